#include "bulloni/area_bullonata.h"

#include <algorithm>
#include <cmath>

#include "librerie/numeri.h"
#include "nodo/nodo.h"
#include "verifica/bulloni_comuni.h"

namespace qf17 {
namespace {

PrimitivaAnteprima Linea(double x1, double y1, double x2, double y2, ColoreAnteprima colore,
                         TrattoAnteprima tratto = TrattoAnteprima::Continuo) {
  PrimitivaAnteprima p;
  p.x1 = x1;
  p.y1 = y1;
  p.x2 = x2;
  p.y2 = y2;
  p.colore = colore;
  p.tratto = tratto;
  return p;
}

PrimitivaAnteprima Testo(const std::string& controllo, const std::string& testo, double x,
                         double y) {
  PrimitivaAnteprima p;
  p.tipo = PrimitivaAnteprima::Tipo::Testo;
  p.x1 = x;
  p.y1 = y;
  p.testo = testo;
  p.controllo = controllo;
  return p;
}

// A window range of at most 0.0001 takes scale 1 on that axis.
double ScalaAsse(double picture, double da, double a) {
  const double campo = std::abs(a - da);
  return campo > 0.0001 ? picture / campo : 1.0;
}

// The outline of one profile between y = basso and y = alto over the whole length, closed at
// both ends.
void Contorno(std::vector<PrimitivaAnteprima>& v, double W, const std::vector<double>& quote) {
  for (double y : quote) v.push_back(Linea(0, y, W, y, ColoreAnteprima::Sezione));
  const auto [basso, alto] = std::minmax_element(quote.begin(), quote.end());
  v.push_back(Linea(0, *basso, 0, *alto, ColoreAnteprima::Sezione));
  v.push_back(Linea(W, *basso, W, *alto, ColoreAnteprima::Sezione));
}

void Assi(std::vector<PrimitivaAnteprima>& v, double A) {
  const double a2 = std::abs(0.2 * A), a15 = std::abs(0.15 * A), a05 = std::abs(0.05 * A);
  const auto c = ColoreAnteprima::Sezione;
  v.push_back(Linea(0, 0, a2, 0, c));
  v.push_back(Linea(a2, 0, a15, a05, c));
  v.push_back(Linea(a2, 0, a15, -a05, c));
  v.push_back(Linea(0, 0, 0, a2, c));
  v.push_back(Linea(0, a2, a05, a15, c));
  v.push_back(Linea(0, a2, -a05, a15, c));
  v.push_back(Testo("LabelX", "X", std::abs(0.25 * A), a05));
  v.push_back(Testo("LabelY", "Y", a05, std::abs(0.25 * A)));
}

}  // namespace

CaselleLunghezze CaselleDalNodo(const Nodo& n) {
  CaselleLunghezze c;
  const double fazzoletto[] = {n.Fz_a, n.Fz_b, n.Fz_c, n.Fz_d};
  for (int i = 0; i < 4; ++i) c.FzTxt[i] = TestoNumero(fazzoletto[i]);
  for (int i = 1; i <= kMaxAste; ++i) c.FzTxt[7 + i] = TestoNumero(n.Ast_ins[i]);
  return c;
}

AreaEditor ImpostaScalaPicture(const Nodo& nodo, std::int16_t gruppo,
                               const CaselleLunghezze& caselle, double larghezzaPicture,
                               double altezzaPicture) {
  AreaEditor a;
  if (gruppo == 1) {
    for (int i = 0; i < 4; ++i) a.AreaLarghezza += NumeroIniziale(caselle.FzTxt[i]);
  } else {
    a.AreaLarghezza = NumeroIniziale(caselle.FzTxt[gruppo + 6]);
  }
  const Profilo& p = ProfiloGruppo(nodo, gruppo);
  a.H = p.h;
  a.t = p.e;
  a.e = p.dBarX;
  a.tipo = p.Tipo;
  a.opposta = gruppo > 1 && p.Tipo != 0 && nodo.Ast_modo[gruppo - 1] == 2;
  double alto = a.H;
  if (p.Tipo == 0) {
    a.AreaAltezza = a.H - 2 * a.t;
    a.AreaOffsetY = a.t;
  } else {
    a.AreaAltezza = a.H - a.t;
    if (a.opposta) alto = a.H + a.t;
  }
  double xa = 0, xb = a.AreaLarghezza, ya = 0, yb = alto;
  const double rx = std::abs(xb - xa), ry = std::abs(yb - ya);
  xa -= 0.1 * rx;
  xb += 0.1 * rx;
  ya -= 0.1 * ry;
  yb += 0.1 * ry;
  a.scala = std::min(ScalaAsse(larghezzaPicture, xa, xb), ScalaAsse(altezzaPicture, ya, yb));
  const double wv = larghezzaPicture / a.scala, hv = altezzaPicture / a.scala;
  a.sinistra = (xa + xb) / 2 - wv / 2;
  a.destra = (xa + xb) / 2 + wv / 2;
  a.alto = (ya + yb) / 2 + hv / 2 - a.AreaOffsetY;
  a.basso = (ya + yb) / 2 - hv / 2 - a.AreaOffsetY;
  return a;
}

std::vector<PrimitivaAnteprima> DisegnaAreaBullonata(const AreaEditor& a) {
  std::vector<PrimitivaAnteprima> v;
  const double A = a.AreaAltezza, W = a.AreaLarghezza, t = a.t, H = a.H;
  const bool canale = a.tipo == 0;
  const double yAsse = canale ? (H - 2 * t) / 2 : H - a.e;
  v.push_back(Linea(-std::abs(0.15 * H), yAsse, W + std::abs(0.15 * H), yAsse,
                    ColoreAnteprima::Asse, TrattoAnteprima::TrattoPunto));
  // A channel shows the outer faces of its flanges; an angle its free edge and both faces of the
  // other leg.
  Contorno(v, W, canale ? std::vector<double>{A + t, -t} : std::vector<double>{A, A + t, 0});
  const auto area = ColoreAnteprima::Area;
  const auto tratteggio = TrattoAnteprima::Tratteggiato;
  v.push_back(Linea(0, 0, W, 0, area, tratteggio));
  v.push_back(Linea(W, 0, W, A, area, tratteggio));
  v.push_back(Linea(W, A, 0, A, area, tratteggio));
  v.push_back(Linea(0, A, 0, 0, area, tratteggio));
  Assi(v, A);
  if (a.opposta) {
    // The opposed profile's other leg lies right past the first one's, across the gusset: its
    // axis at mid thickness, its faces at A + t and A + 2t.
    v.push_back(Linea(-std::abs(0.15 * H), A + 1.5 * t, W + std::abs(0.15 * H), A + 1.5 * t,
                      ColoreAnteprima::Asse, TrattoAnteprima::TrattoPunto));
    Contorno(v, W, {A + t, A + 2 * t});
    v.push_back(Testo("Label", "Bulloni per un profilo", 0, A + 2.5 * t));
  }
  v.push_back(Testo("LabQuotaX", TestoNumero(W), W / 2, -std::abs(0.01 * A)));
  v.push_back(Testo("LabQuotaY", TestoNumero(A), W + std::abs(0.01 * W), A / 2));
  return v;
}

std::vector<PrimitivaAnteprima> DisegnaBulloni(const Nodo& n, std::int16_t gruppo,
                                               std::int16_t numero) {
  std::vector<PrimitivaAnteprima> v;
  const int g = gruppo - 1;
  for (int k = 1; k <= numero; ++k) {
    PrimitivaAnteprima c;
    c.tipo = PrimitivaAnteprima::Tipo::Cerchio;
    c.x1 = n.xBull(g, k);
    c.y1 = n.yBull(g, k);
    c.raggio = n.FiBull(g, k) / 2;
    c.colore = ColoreAnteprima::Bullone;
    v.push_back(c);
  }
  return v;
}

}  // namespace qf17
