#include "nodo/panel/schizzi.h"

#include "nodo/nodo.h"

namespace qf17 {
namespace {

void Spezzata(DisegnoSchermo& d, const Poligono& punti, ColoreAnteprima colore) {
  for (std::size_t i = 0; i < punti.size(); ++i) {
    const auto& [x1, y1] = punti[i];
    const auto& [x2, y2] = punti[(i + 1) % punti.size()];
    PrimitivaAnteprima l;
    l.x1 = x1, l.y1 = y1, l.x2 = x2, l.y2 = y2;
    l.colore = colore;
    d.push_back(l);
  }
}

// The outline of a profile with the back of its connected leg or web on x = 0, growing towards
// +x, its height along y from 0 to h: a channel's flanges or an angle's outstanding leg (at the
// bottom, or at the top when `capovolto`), an I section's flanges on both sides.
Poligono Profilo0(const Profilo& p, bool capovolto) {
  const double h = p.h, b = p.b, a = p.a > 0 ? p.a : p.e, e = p.e;
  switch (p.Tipo) {
    case 0:
      return {{0, 0}, {b, 0}, {b, e}, {a, e}, {a, h - e}, {b, h - e}, {b, h}, {0, h}};
    case 1:
      if (capovolto) return {{0, 0}, {e, 0}, {e, h - e}, {b, h - e}, {b, h}, {0, h}};
      return {{0, 0}, {b, 0}, {b, e}, {e, e}, {e, h}, {0, h}};
    default:
      return {
          {0, 0}, {b, 0}, {b, e},     {b / 2 + a / 2, e},     {b / 2 + a / 2, h - e}, {b, h - e},
          {b, h}, {0, h}, {0, h - e}, {b / 2 - a / 2, h - e}, {b / 2 - a / 2, e},     {0, e}};
  }
}

// The outline moved to stand against the gusset face at x0, on the +x side (verso 1) or the
// -x side (verso -1), mirrored.
Poligono Posa(Poligono p, double x0, double verso) {
  for (auto& [x, y] : p) x = x0 + verso * x;
  return p;
}

}  // namespace

DisegnoSchermo SchizzoSezione(const Nodo& n, int m) {
  DisegnoSchermo d;
  const Profilo& p = m == 0 ? n.Corrente : n.Aste[m];
  const double s = n.Fz_s;
  if (m == 0) {
    // The chord with the gusset standing on it, welded or bolted at its centre.
    Spezzata(d, Profilo0(p, false), ColoreAnteprima::Sezione);
    Spezzata(d,
             {{p.b / 2 - s / 2, p.h},
              {p.b / 2 + s / 2, p.h},
              {p.b / 2 + s / 2, 1.5 * p.h},
              {p.b / 2 - s / 2, 1.5 * p.h}},
             ColoreAnteprima::Area);
    return d;
  }
  Spezzata(d, {{0, -0.1 * p.h}, {s, -0.1 * p.h}, {s, 1.1 * p.h}, {0, 1.1 * p.h}},
           ColoreAnteprima::Area);
  // Side 0 puts the profile on the far face of the plate, side 1 on the near one.
  const bool lato1 = n.Ast_lato[m] == 1;
  const double verso = lato1 ? -1 : 1;
  const double faccia = lato1 ? 0 : s;
  Spezzata(d, Posa(Profilo0(p, false), faccia, verso), ColoreAnteprima::Sezione);
  if (n.Ast_modo[m] != 0) {
    // The second profile on the other face: mirrored for a double member, turned over for an
    // opposed pair of angles.
    const bool opposta = n.Ast_modo[m] == 2;
    Spezzata(d, Posa(Profilo0(p, opposta), lato1 ? s : 0, -verso), ColoreAnteprima::Sezione);
  }
  return d;
}

bool PuntoInterno(double x, double y, const Poligono& poligono) {
  bool dentro = false;
  for (std::size_t i = 0, j = poligono.size() - 1; i < poligono.size(); j = i++) {
    const auto [xi, yi] = poligono[i];
    const auto [xj, yj] = poligono[j];
    if ((yi > y) != (yj > y) && x < (xj - xi) * (y - yi) / (yj - yi) + xi) dentro = !dentro;
  }
  return dentro;
}

const SchemaNodo& Schema() {
  static const SchemaNodo schema = [] {
    SchemaNodo s;
    // Chord, gusset, and the three members at 135, 90 and 45 degrees from the chord.
    s.aree[0] = {{20, 20}, {380, 20}, {380, 60}, {20, 60}};
    s.aree[1] = {{40, 200}, {70, 230}, {150, 150}, {120, 120}};
    s.aree[2] = {{180, 180}, {220, 180}, {220, 290}, {180, 290}};
    s.aree[3] = {{330, 230}, {360, 200}, {280, 120}, {250, 150}};
    Spezzata(s.disegno, {{100, 60}, {300, 60}, {300, 140}, {240, 180}, {160, 180}, {100, 140}},
             ColoreAnteprima::Area);
    for (const Poligono& area : s.aree) Spezzata(s.disegno, area, ColoreAnteprima::Sezione);
    const std::pair<const char*, std::pair<double, double>> lettere[] = {
        {"D", {30, 55}}, {"A", {50, 240}}, {"B", {225, 285}}, {"C", {340, 245}}};
    for (const auto& [lettera, punto] : lettere) {
      PrimitivaAnteprima t;
      t.tipo = PrimitivaAnteprima::Tipo::Testo;
      t.x1 = punto.first, t.y1 = punto.second;
      t.testo = lettera;
      s.disegno.push_back(t);
    }
    return s;
  }();
  return schema;
}

}  // namespace qf17
