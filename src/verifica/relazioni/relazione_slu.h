#pragma once

#include "verifica/relazioni/relazione_ta.h"

namespace qf17 {

struct Sessione;

// Writes the limit-state report (file by NomeRelazione with tag "SLU"), shows the closing
// message and hands the file to the viewer. False, with a message, when it cannot be written.
bool RelazioneSLU(Sessione& sessione, VerdettiRelazione& verdetti);

}  // namespace qf17
