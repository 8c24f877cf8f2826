#pragma once

#include <cstddef>
#include <string_view>

#include "librerie/formatta.h"
#include "verifica/relazioni/testo_relazione.h"

namespace qf17 {

struct Sessione;
struct Nodo;
class Piattaforma;
struct VerdettiRelazione;

// Widths of the limit-state report's columns where the checks do not fix them. A heading cell
// takes the width of the values under it. Lengths, angles and areas get 8 characters (a length
// of 99999.9 mm or an area of 9999.99 mm2 fits); stresses 10, so that a stress of 99999 in the
// job's unit keeps four decimals; names 20, as the section's name of the load sets; the row
// label 6, as "ASTA A"; a mode word 7 ("SINGOLA"); a counter 4 (bolt 2000).
namespace colonne_slu {
inline constexpr int kEtichetta = 6;
inline constexpr int kNome = 20;
inline constexpr int kModo = 7;
inline constexpr int kLunghezza = 8;
inline constexpr int kContatore = 4;
inline constexpr int kTensione = 10;
inline constexpr int kEsito = 3;  // "SI'" / "NO", as the bolts' column
}  // namespace colonne_slu

// Lines of fixed-width cells. A cell ends with "|" unless it is told otherwise; numbers of an
// integer type lose the point a whole floating value keeps ("1" against "1.").
class RigheColonne {
 public:
  RigheColonne(TestoRelazione& r, Piattaforma& piattaforma) : r_(r), p_(piattaforma) {}

  RigheColonne& Cella(const ValoreColonna& valore, int larghezza,
                      std::string_view allineamento = "R", bool separatore = true) {
    r_ << FormatoColonna(valore, larghezza, separatore, allineamento, p_);
    return *this;
  }
  // Numbers, millions of them in a large node's report, written straight into the text when
  // they can be.
  RigheColonne& Cella(double valore, int larghezza, std::string_view allineamento = "R",
                      bool separatore = true) {
    if (!CellaDiretta(valore, larghezza, allineamento, separatore, false))
      Cella(ValoreColonna(valore), larghezza, allineamento, separatore);
    return *this;
  }
  RigheColonne& Cella(long long valore, int larghezza, std::string_view allineamento = "R",
                      bool separatore = true) {
    if (!CellaDiretta(static_cast<double>(valore), larghezza, allineamento, separatore, true))
      Cella(ValoreColonna(valore), larghezza, allineamento, separatore);
    return *this;
  }
  RigheColonne& Testo(std::string_view testo, int larghezza, std::string_view allineamento = "L",
                      bool separatore = true) {
    return Cella(std::string(testo), larghezza, allineamento, separatore);
  }
  void Fine() { r_ << kFine; }
  TestoRelazione& r() { return r_; }

 private:
  bool CellaDiretta(double x, int larghezza, std::string_view allineamento, bool separatore,
                    bool intero) {
    char cella[kCellaBreve];
    const std::size_t n =
        CellaNumeroBreve(x, larghezza, allineamento == "R", separatore, intero, cella);
    if (n == 0) return false;
    r_ << std::string_view(cella, n);
    return true;
  }

  TestoRelazione& r_;
  Piattaforma& p_;
};

// The units, the node, the gusset, the weld, the bolts and the materials, up to the title of the
// loads.
void ScriviTestataSLU(Sessione& sessione, TestoRelazione& r);
// One load set j: its checks and its verdict line. Stores the bolts' ratios back rounded to two
// decimals. True when nothing printed in it has failed.
bool ScriviSetSLU(Sessione& sessione, int j, TestoRelazione& r, VerdettiRelazione& verdetti);

}  // namespace qf17
