#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <vector>

#include "librerie/profilo.h"
#include "piattaforma/piattaforma.h"

namespace qf17 {

// The families each pass of the library accepts; the blanks belong to the text.
inline constexpr std::string_view kFiltroPrimaPassata =
    " IPE  IPEA  IPER  IPEO  IPEV  HEA  HEAA  HEB  HEM  HEC  DIL  HER  HLAA  HLA  HLB  HLM  HLR  "
    "HXAA  HXA  HXB  HXM  HXR  HD  HP  M  W ";
inline constexpr std::string_view kFiltroSecondaPassata = " UPN  LD  LU ";

// Reads the rows of the families in `filtro` into the table from `primaRiga`; returns how many
// it stored, 0 on any failure (file missing, no "*END*", a row beyond the table).
int LeggiProfilario(const std::filesystem::path& file, int primaRiga, LibreriaProfili& libreria,
                    double fattoreLunghezza, double fattoreArea, std::string_view filtro);

// The two passes of start-up (mm, mm2, mm4 in memory). False when either pass stored nothing:
// the caller shows "Profilario errato o mancante" and ends.
bool LeggiProfili(LibreriaProfili& libreria, const std::filesystem::path& file);

void AzzeraProfilo(Profilo& profilo);
void ScalaProfilo(Profilo& profilo, double fattoreLunghezza, double fattoreArea);

// Type and derived radii and flange thicknesses of every row; run at start-up and after a load.
void CompletaProfili(LibreriaProfili& libreria);

// Row of the first section with exactly this name; 0 with the message "Profilo non trovato."
// when there is none.
int ProfiloDaNome(const LibreriaProfili& libreria, std::string_view nome, Piattaforma& piattaforma);

// The rows the panel's lists offer: every row for the chord, the "L" and "U" rows for members.
std::vector<std::int16_t> ListaCorrente(const LibreriaProfili& libreria);
std::vector<std::int16_t> ListaAste(const LibreriaProfili& libreria);

// Place of the section in a list (0-based, as a combo counts); 0 with the message when absent.
int ProfiloInLista(const LibreriaProfili& libreria, std::string_view nome,
                   const std::vector<std::int16_t>& lista, Piattaforma& piattaforma);

}  // namespace qf17
