#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace qf17 {

struct Sessione;
struct Nodo;

// The verdicts the report decides, as data for other views of the run.
struct VerdettiRelazione {
  std::vector<bool> SetOk;                 // index 0 unused; 1..nSollAg
  std::vector<double> RapportoSaldatura;   // unrounded weld ratio per set (chord weld only)
  std::vector<bool> SaldaturaVerificabile; // false when the steel is unknown to the weld rule
  bool NodoKo = false;
};

// Job folder + "\RelTA_" or "\RelSLU_" + code + "_" + node name + ".txt".
std::filesystem::path NomeRelazione(const Nodo& nodo, std::string_view tag,
                                    std::string_view codice = "QF17");
// Writes the allowable-stress report (temporary file renamed over the target), shows the
// closing message and hands the file to the viewer. False, with a message, when it cannot be
// written.
bool RelazioneTA(Sessione& sessione, VerdettiRelazione& verdetti);

}  // namespace qf17
