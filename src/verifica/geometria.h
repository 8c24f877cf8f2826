#pragma once

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

// The plane figure of the node: normalised chord angle, gusset side, gusset outline, member
// edges and ends, the 30-degree spread and the effective widths. Repeated runs give the same
// figure.
void GeometriaNodo(Sessione& sessione);
// +1 / -1: on which side of the chord the gusset lies, decided by the last present member; 0
// with no member present.
std::int16_t Posizione_fazzoletto_(const Nodo& nodo);
// Crossings of the segment (x1, y1)-(x2, y2) with gusset sides 1 to 5.
std::vector<Punto> InterseziLati(const GeometriaFazzoletto& geometria, double x1, double x2,
                                 double y1, double y2);
void CalcolaBeff(Sessione& sessione, int asta);
double AngoloSegmento(double x1, double y1, double x2, double y2);

}  // namespace qf17
