#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

#include "piattaforma/piattaforma.h"

// The family's keyed text lines: value, padding to column 40, "[key indices]", comment. They
// serve the node file and every other keyed file of the family.
namespace qf17 {

inline constexpr std::string_view kTitoloFamiglia = "QF17 - NODO DI TRAVATURA RETICOLARE";
inline constexpr int kReleaseFamiglia = 18;

// One keyed line, without its line end.
std::string ScriviChiave(std::string_view valore, std::string_view chiave,
                         std::initializer_list<int> indici = {}, std::string_view commento = "");

using IndiciChiave = std::array<std::int16_t, 11>;

// True when the line holds the key (a key never matches a longer key that begins with it).
// `valore` is set whenever the key text is found; `indici` gets the indices behind the key and
// keeps its earlier content in the slots not reached.
bool LeggiChiave(std::string_view riga, std::string_view chiave, std::string& valore,
                 IndiciChiave& indici);

// Finds one "[key=value]" in a line, such as the release header.
bool ValoreDaTestata(std::string_view testo, std::string_view chiave, std::string& valore,
                     std::string_view separatore = "=", std::string_view delimitatori = "[]");

// The release header, line 1 of every keyed file of the family.
std::string TestataRelease(std::string_view descrizione, int releaseFile);

struct Release {
  double famiglia = 0;
  double file = 0;
  bool ok = true;
};
// Reads line 1 of a file; a file that cannot be read gives ok false and, with `mostra`, the
// message "Errore in lettura del file:" under "LETTURA RELEASE".
Release LeggiRelease(const std::filesystem::path& file, Piattaforma& piattaforma, bool mostra);

std::string Sostituisci(std::string_view testo, std::string_view vecchio, std::string_view nuovo,
                        bool ignoraMaiuscole = false);
// Everything up to the last separator ("\" or "/") cut off.
std::string SoloNomeFile(std::string_view percorso);
// From the last point on cut off; a name without a point stays whole.
std::string SenzaEstensione(std::string_view nome);
// "yyyy_mm_dd_hh_nn" of the given moment (local time).
std::string DataOraSalvataggio(std::chrono::system_clock::time_point istante);

}  // namespace qf17
