#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "verifica/bulloni_ta.h"

namespace qf17 {

struct Sessione;
struct Nodo;
struct Profilo;
struct RisultatiVerifica;

// What both methods share: the sharing of a force among the bolts of a group as a rigid pattern,
// and the pieces of the layout checks that read the same under both. Group g counts as the
// engine's calls: 1 chord, 2..4 members A, B, C.

const Profilo& ProfiloGruppo(const Nodo& nodo, int g);

// A group ready to share a force: its bolted rectangle, the centroid of its bolts weighted by
// their nominal area, and the polar moment about it (not weighted).
struct GruppoRipartito {
  int gruppo = 0;  // 0 chord, 1..3 members
  int n = 0;
  AreaBullonata area;
  double xG = 0;
  double yG = 0;
  double Ip = 0;
};

// Nothing when the group shares nothing: a chord welded to the gusset, a group without bolts,
// or bolts without area, which is told to the user ("Area bulloni nulla nell'asta " and g).
std::optional<GruppoRipartito> PreparaRipartizione(Sessione& sessione, int g);

// Moment of (Fx, Fy), applied at xP on the line of action, about the bolts' centroid.
double MomentoBaricentrico(const GruppoRipartito& gruppo, double Fx, double Fy, double xP);

struct QuotaBullone {
  double FxB = 0;
  double FyB = 0;
};
// The share of bolt k: an equal part of the force plus the moment over the polar moment.
QuotaBullone QuotaRigida(const Nodo& nodo, const GruppoRipartito& gruppo, int k, double Fx,
                         double Fy, double MomG);

// " sul corrente" or " sull'asta " and the member's letter: the end of every layout warning.
std::string DoveGruppo(int g);

// A bolt beyond the bolted rectangle, its sides counting as inside.
bool BulloniFuoriArea(const Nodo& nodo, int gruppo, const AreaBullonata& area);

// The least end distance (of x and LArea - x) and the least edge distance (y, plus the flange
// for a channel), each with the bolt it belongs to. Both start at `inizio`, bolt 1.
struct DistanzeBordo {
  double eX = 0;
  int kX = 1;
  double eY = 0;
  int kY = 1;
};
DistanzeBordo DistanzeDaiBordi(const Nodo& nodo, int gruppo, const Profilo& profilo, double LArea,
                               double inizio);

// The pitch along (pX) and across (pY) a group, over every ordered pair of different bolts;
// a pair within 0.0001 on both axes ends the search as coincident. With `pYInRiga` set, a pair
// in one row (dy below 0.0001) sets pY to that value, as the limit state rules want.
struct Interassi {
  double pX = 0;
  double pY = 0;
  bool coincidenti = false;
};
Interassi ScansioneInterassi(const std::vector<double>& x, const std::vector<double>& y, double pX,
                             double pY, double dm, std::optional<double> pYInRiga);
// The least diameter of group gruppo, from the first slot.
double DiametroMinimo(const Nodo& nodo, int gruppo);

// One OK/Cancel warning per raised rule, in order: Interrompi is cleared first and set by any
// Cancel, and the later warnings are still shown.
void AvvisiDisposizione(Sessione& sessione, int g,
                        const std::vector<std::pair<bool, const char*>>& avvisi);

// All the pass flags of set j raised: each check only ever clears its own.
void AlzaBandierine(RisultatiVerifica& r, int j);

}  // namespace qf17
