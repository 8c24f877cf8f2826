#pragma once

#include <cstdint>

#include "nodo/nodo.h"
#include "nodo/tabella.h"

namespace qf17 {

// One side of the gusset outline in the node's plane.
struct LatoFazzoletto {
  std::int16_t TipoLato = 0;  // 0 no length, 1 sloped y = M x + Q, 2 vertical x = XV
  double M = 0;
  double Q = 0;
  double XV = 0;
  Tabella<double, 1, 2> XP;
  Tabella<double, 1, 2> YP;
};

// What the geometry derives beside the node's own fields; rebuilt by each run.
struct GeometriaFazzoletto {
  Tabella<LatoFazzoletto, 0, 6> LatiFazzoletto;  // sides 1..6
  Tabella<double, 0, 6> Beff;                    // effective width of members 1..3
  double LunghOltre = 0;
};

// Bolt results by group 0..3 (0 chord), bolt 1..2000, load set 1..200.
template <class T>
using TabellaBulloniSet = Tabella3<T, 0, 3, 0, kMaxBulloni, 0, kMaxSollecitazioni>;
template <class T>
using TabellaGruppiSet = Tabella2<T, 0, 3, 0, kMaxSollecitazioni>;
template <class T>
using TabellaSet = Tabella<T, 0, kMaxSollecitazioni>;

// The result tables of a verification run. They live as long as the session and each run
// overwrites them: a group whose bolts share nothing keeps what an earlier run left there.
// Stresses daN/cm2, forces daN.
struct RisultatiVerifica {
  TabellaBulloniSet<double> TauBull;
  TabellaBulloniSet<double> RifBull;
  TabellaBulloniSet<double> FedBull;
  TabellaBulloniSet<double> RapportoBull;
  Tabella2<double, 0, 3, 0, kMaxBulloni> FvRd;
  Tabella2<double, 0, 3, 0, kMaxBulloni> FbRd;

  TabellaGruppiSet<double> SigProf;  // g = 0 the chord
  TabellaGruppiSet<double> SigDiff;
  TabellaSet<double> TauCorr;
  TabellaSet<double> SigSotto;

  TabellaGruppiSet<std::int16_t> OkTau;
  TabellaGruppiSet<std::int16_t> OkRif;
  TabellaGruppiSet<std::int16_t> OkProf;
  TabellaGruppiSet<std::int16_t> OkDiff;
  TabellaSet<std::int16_t> OkCorr;
  TabellaSet<std::int16_t> OkSotto;

  // Working values of the load set in hand; SommaH stays readable for the reports.
  double SommaH = 0;
  double SommaV = 0;
  double MomF = 0;
  double Lf = 0;
  double EccF = 0;

  std::int16_t Interrompi = 0;
  // Guard of the bolt layout checks of the allowable-stress method: nothing sets it to 1, so
  // those checks stay dormant.
  std::int16_t ControlloGeometricoTA = 0;
};

}  // namespace qf17
