#pragma once

namespace qf17 {

struct Sessione;
struct Nodo;

// Shares the force (Fx, Fy) applied at xP among the bolts of group g (1 chord, 2..4 members A,
// B, C) as a rigid pattern, and writes TauBull and RifBull of set j. A group whose bolts all
// stand in one spot shares nothing and leaves both tables as they were.
void BulloniTA(Sessione& sessione, int g, int j, double Fx, double Fy, double xP);
// The pass flags of every load set under allowable stresses.
void EsitoTA(Sessione& sessione);

// The bolted rectangle of a group (origin at its corner, mm) and the height of the force's
// line of action in the group's frame.
struct AreaBullonata {
  double LArea = 0;
  double HArea = 0;
  double yP = 0;
};
// g counts as BulloniTA's: 1 chord, 2..4 members.
AreaBullonata AreaBullonataTA(const Nodo& nodo, int g);

// The bolt layout rules of CNR-UNI 10011 for group g (1 chord, 2..4 members): one OK/Cancel
// warning per rule broken; Cancel on any of them sets Interrompi, which is cleared first.
void ControlliDisposizioneTA(Sessione& sessione, int g, const AreaBullonata& area, double Fx,
                             double Fy);

// Bearing coefficient from the end distance a and the diameter d. Below 1.2 d it is the
// distance itself, in mm: the family's tables have always done so.
double CoefficienteRifollamento(double a, double d);

}  // namespace qf17
