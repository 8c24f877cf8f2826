#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "verifica/relazioni/testo_relazione.h"

namespace qf17 {

struct Sessione;
struct Nodo;

// The verdicts the report decides, as data for other views of the run.
struct VerdettiRelazione {
  std::vector<bool> SetOk;                  // index 0 unused; 1..nSollAg
  std::vector<double> RapportoSaldatura;    // unrounded weld ratio per set (chord weld only)
  std::vector<bool> SaldaturaVerificabile;  // false when the steel is unknown to the weld rule
  bool NodoKo = false;
};

// Job folder, the platform's separator, "Rel" + tag ("TA" or "SLU") + "_" + code + "_" + the
// node's name trimmed + ".txt".
std::filesystem::path NomeRelazione(const Nodo& nodo, std::string_view tag,
                                    std::string_view codice = "QF17");
// Writes the allowable-stress report (temporary file renamed over the target), shows the
// closing message when a set fails and hands the file to the viewer (shown as a report, not
// waited for). Leaves the shown stresses rounded in the result tables, the chord's ideal stress
// in SigProf(0, j): the checks must fill the tables again before another report. False, with a
// message, when it cannot be written; the viewer is then not started.
bool RelazioneTA(Sessione& sessione, VerdettiRelazione& verdetti);

}  // namespace qf17
