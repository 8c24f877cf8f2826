#pragma once

#include <cmath>
#include <cstdint>
#include <vector>

#include "verifica/risultati.h"

namespace qf17 {

struct Sessione;
struct Nodo;

struct Punto {
  double x = 0;
  double y = 0;
};

inline Punto operator+(Punto p, Punto q) {
  return {p.x + q.x, p.y + q.y};
}
inline Punto operator-(Punto p, Punto q) {
  return {p.x - q.x, p.y - q.y};
}
inline Punto operator*(double k, Punto p) {
  return {k * p.x, k * p.y};
}
// Distance from the origin.
double Modulo(Punto p);
// Direction of angle t in the node's plane, and the normal beside it.
inline Punto Direzione(double t) {
  return {std::cos(t), -std::sin(t)};
}
inline Punto Normale(double t) {
  return {std::sin(t), std::cos(t)};
}
// Point k (1..6) of an edge.
inline Punto PuntoBordo(const Saldatura& bordo, int k) {
  return {bordo.XS[k], bordo.YS[k]};
}
inline void MettiPunto(Saldatura& bordo, int k, Punto p) {
  bordo.XS[k] = p.x;
  bordo.YS[k] = p.y;
}

// The plane figure of the node: normalised chord angle, gusset side, gusset outline, member
// edges and ends, the 30-degree spread and the effective widths. Repeated runs give the same
// figure.
//
// The node's plane: origin where the member axes meet the chord axis, mm, radians. A direction
// of angle t is (cos t, -sin t) (angles grow clockwise with Y read upward) and the normal beside
// it is (sin t, cos t).
void GeometriaNodo(Sessione& sessione);
// +1 / -1: on which side of the chord the gusset lies, decided by the last present member; 0
// with no member present.
std::int16_t Posizione_fazzoletto_(const Nodo& nodo);
// Crossings of the line through (x1, y1)-(x2, y2) with gusset sides 1 to 5, each lying on its
// side, in the order of the sides. Whether a crossing lies between the two points is the
// caller's test.
std::vector<Punto> InterseziLati(const GeometriaFazzoletto& geometria, double x1, double x2,
                                 double y1, double y2);
// Effective width of member `asta` (1..3): the spread between the points 5 of its outer edges,
// cut by the gusset outline, times |Ast_coeff|. Moves the points 5 it cuts.
void CalcolaBeff(Sessione& sessione, int asta);
double AngoloSegmento(double x1, double y1, double x2, double y2);

// The test that tells a vertical direction t (radians) from a sloped one: 2t/pi lies within
// 0.0001 above its integer part and t/pi does not. The integer part rounds down, so a direction
// a hair short of a quarter turn counts as sloped (with a huge slope).
bool DirezioneVerticale(double t);

// One crossing of a line with a gusset side.
struct IncrocioLato {
  Punto punto;
  int lato = 0;  // 1..5
};
// Crossings of the line y = pend x + quota (x = quota when `verticale`) with gusset sides 1 to
// 5: sides of no length are skipped, parallel lines give none, and a crossing counts only
// when it lies on its side.
std::vector<IncrocioLato> IncrociLati(const GeometriaFazzoletto& geometria, bool verticale,
                                      double pend, double quota);

// Gusset sides 1..6 from Fz_a..Fz_h, the chord's section and PosFazzoletto, in the chord's
// frame turned by Cor_teta into the node's plane.
void CostruisciLatiFazzoletto(const Nodo& nodo, GeometriaFazzoletto& geometria);
// Points 1, 2 and 3 of the edges of present member `asta` (1..3), from the crossings.
void EstremiAsta(Nodo& nodo, int asta, double lunghOltre);
// Points 5 of member `asta` (1..3): the 30-degree spread from points 1 of the edges that spread.
void PuntiDiffusione(Nodo& nodo, int asta);

// True when every figure the geometry wrote (chord angle, sides, the edges of present rows,
// widths of present members) is a finite number. Only entries that are not finite, or lengths
// so large (beyond about 1E+150 mm) that their sums or squares overflow, break it.
bool GeometriaFinita(const Nodo& nodo, const GeometriaFazzoletto& geometria);

}  // namespace qf17
