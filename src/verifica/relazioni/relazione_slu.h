#pragma once

#include "verifica/relazioni/relazione_ta.h"

namespace qf17 {

struct Sessione;

// Writes the limit-state report (file by NomeRelazione with tag "SLU", temporary file renamed
// over the target), shows the closing message when a set fails and hands the file to the viewer
// (shown as a report, not waited for). It leaves each bolt's ratio in RapportoBull rounded to two
// decimals, as shown, and fills the weld's SEq1 and SEq2; it reads no bolt flag (OkTau): a
// bolt's verdict is its shown ratio. `verdetti` gets each set's verdict, the node's, and for a
// welded chord whether its steel has weld coefficients and the weld's ratio to its limits (the
// greater of SEq-1 / SLim-1 and SEq-2 / SLim-2). False, with a message, when the file cannot be
// written; the viewer is then not started.
bool RelazioneSLU(Sessione& sessione, VerdettiRelazione& verdetti);

}  // namespace qf17
