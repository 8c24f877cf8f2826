#pragma once

#include <cstdint>
#include <string>

#include "librerie/materiale.h"
#include "librerie/profilo.h"
#include "nodo/tabella.h"

namespace qf17 {

inline constexpr int kMaxAste = 3;
inline constexpr int kMaxBulloni = 2000;
inline constexpr int kMaxSollecitazioni = 200;
inline constexpr int kMaxNodiImportati = 200;

// The pi of the family's conversions: node files and boxes carry angles in degrees converted
// with exactly this value, so a saved angle reads back to the same radians.
inline constexpr double kPiGrecoNodo = 3.14159265358979;
inline double GradiInRadianti(double gradi) {
  return gradi * kPiGrecoNodo / 180;
}
inline double RadiantiInGradi(double radianti) {
  return radianti * 180 / kPiGrecoNodo;
}

enum class AstModo : std::int16_t { Singola = 0, Doppia = 1, Opposta = 2 };
enum class TipoVerifica : std::int16_t { TA = 0, SLU = 1 };

// Weld and cut line of a member's edge. Sld_L is kept in the node file; the rest is written by
// the geometry and the verification of each run.
struct Saldatura {
  std::string Nome;
  double Sld_L = 0;
  Tabella<double, 0, kMaxSollecitazioni> TauPar;
  Tabella<double, 0, kMaxSollecitazioni> TauPerp;
  Tabella<double, 0, kMaxSollecitazioni> SigPerp;
  Tabella<double, 0, kMaxSollecitazioni> SEq1;
  Tabella<double, 0, kMaxSollecitazioni> SEq2;
  double Pend = 0;
  double Quota = 0;
  Tabella<double, 1, 6> XS;
  Tabella<double, 1, 6> YS;
  std::int16_t Lato = 0;
};

// The one node. Lengths mm, forces daN, angles radians (degrees only in files and boxes).
// Member tables run 0..6 with slot i+3 mirroring slot i; bolt groups 0 = chord, 1..3 = A, B, C.
struct Nodo {
  Profilo Corrente;
  double Cor_teta = 0;

  Tabella<Profilo, 0, 6> Aste;
  Tabella<std::int16_t, 0, 6> Ast_flag;
  Tabella<std::int16_t, 0, 6> Ast_modo;
  Tabella<std::int16_t, 0, 6> Ast_lato;
  Tabella<double, 0, 6> Ast_teta;
  Tabella<double, 0, 6> Ast_coeff;
  Tabella<double, 0, 3> Ast_ins;

  double Fz_a = 0, Fz_b = 0, Fz_c = 0, Fz_d = 0, Fz_e = 0, Fz_f = 0, Fz_g = 0, Fz_h = 0;
  double Fz_s = 0;
  std::int16_t PosFazzoletto = 0;
  double Lato_Sald = 0;

  Tabella2<Saldatura, 0, 6, 0, 2> Saldature;

  Tabella<std::int16_t, 0, 3> nBull;
  Tabella2<double, 0, 3, 0, kMaxBulloni> xBull;
  Tabella2<double, 0, 3, 0, kMaxBulloni> yBull;
  Tabella2<double, 0, 3, 0, kMaxBulloni> FiBull;

  Vite vite;
  Acciaio acciaio;
  std::int16_t Esposizione = 0;

  std::int16_t nSollAg = 0;
  Tabella2<double, 0, 4, 0, kMaxSollecitazioni> SforzoNormale;
  Tabella<std::int16_t, 0, kMaxSollecitazioni> CasoCarico;
  Tabella<std::string, 0, kMaxSollecitazioni> NomeSa;
  std::int16_t NumNodi = 0;
  Tabella<std::int16_t, 0, kMaxNodiImportati> NomeNodi;
  std::int16_t TipoVer = 0;

  // Run-time fields, never saved.
  // The chord's angle as the panel's angle box holds it (radians): what the engineer entered or
  // the node file gave, written when the panel is refreshed from the node. The geometry turns
  // Cor_teta to the half turn nearest zero and leaves this alone; the reports print it.
  double Cor_tetaCasella = 0;
  std::string NomeFileNodo = "Nuovo";
  std::string DirLavoro;
  std::int16_t Vista3DAttiva = 0;
  bool DisegnoGenerato = false;
};

}  // namespace qf17
