#pragma once

#include <cstdint>

namespace qf17 {

struct Sessione;

struct EsitoSaldatura {
  double Sig = 0;       // rounded by Arrot1, as printed
  double TauPar = 0;    // rounded by Arrot1
  double TauPerp = 0;   // rounded by Arrot1
  double Rapporto = 0;  // unrounded ratio to the limit; 1 is the limit
  // False when the steel is none of the three the weld rule knows: no ratio can be formed and
  // the weld counts as not verified.
  bool CoefficientiNoti = true;
};

// The chord weld of set j (record i, l: always 4, 1) against the limit `Lim`; `ok` is cleared
// when the ratio exceeds 1 or the steel is unknown to the rule.
EsitoSaldatura VerificaSaldatura(const Sessione& sessione, int j, int i, int l, double Lim,
                                 std::int16_t& ok);
// SEq1 and SEq2 of set j for the limit-state report.
void TensioniEqSaldatura(Sessione& sessione, int j, int i, int l);

}  // namespace qf17
