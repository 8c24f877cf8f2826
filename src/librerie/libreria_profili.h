#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "librerie/profilo.h"
#include "piattaforma/piattaforma.h"

// The section library: one text file of blank-separated fields, "family size values...", read in
// two filtered passes into one table (rows of the first pass are I and H sections, those of the
// second channels and angles). The file gives dimensions in mm, areas in cm2 and second moments
// in cm4; both passes scale them to mm, mm2 and mm4.
//
// What the three moments of a row are, the same rule for every family: I1 is about the centroidal
// axis parallel to the width b (the strong axis of an I, H or channel; for an angle the axis
// parallel to the short leg), I2 about the centroidal axis parallel to the height h (the weak
// axis of an I, H or channel; for an angle the axis parallel to the leg h, which is the one the
// net-section check bends about), I3 the torsion constant for I, H and channels and the minimum
// principal moment (v-v) for angles. Centroid distances of angles: dBarX is measured along h from
// the back of the other leg, dBarY along b from the back of the leg h; a channel's dBarY is the
// distance of the centroid from the back of its web.
namespace qf17 {

// The families each pass of the library accepts; the blanks belong to the text.
inline constexpr std::string_view kFiltroPrimaPassata =
    " IPE  IPEA  IPER  IPEO  IPEV  HEA  HEAA  HEB  HEM  HEC  DIL  HER  HLAA  HLA  HLB  HLM  HLR  "
    "HXAA  HXA  HXB  HXM  HXR  HD  HP  M  W ";
inline constexpr std::string_view kFiltroSecondaPassata = " UPN  LD  LU ";

// Reads the rows of the families in `filtro` into the table from `primaRiga`; returns how many
// it stored, 0 on any failure (file missing, no "*END*", a row beyond the table, a line of an
// accepted family without all its columns: then `motivo` names the line).
int LeggiProfilario(const std::filesystem::path& file, int primaRiga, LibreriaProfili& libreria,
                    double fattoreLunghezza, double fattoreArea, std::string_view filtro,
                    std::string* motivo = nullptr);

// The two passes of start-up (mm, mm2, mm4 in memory), setting NumProfili1, NumProfili2 and
// NumProfiliTot. False when either pass stored nothing: the caller shows "Profilario errato o
// mancante" and ends. CompletaProfili is the caller's next step.
bool LeggiProfili(LibreriaProfili& libreria, const std::filesystem::path& file,
                  std::string* motivo = nullptr);

// Clears the dimensions, radii, centroid distances and Classe of a row before a line is parsed;
// the name, area, moments, type and flange thicknesses keep what the row held.
void AzzeraProfilo(Profilo& profilo);
// Lengths times the length factor, the area times the square and the moments times the fourth
// power of the area factor.
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
