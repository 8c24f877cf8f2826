// The node view: gusset, members, chord, dimensions and bolts, in the node's own plane.

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/esecutivo/profili_comuni.h"
#include "disegno/esecutivo/profili_disegno.h"
#include "disegno/esecutivo/quote.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "disegno/esecutivo/tavola.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"

namespace qf17 {

namespace {

using profili::Colore;
using profili::Poligono;

using Segmento = std::pair<Punto, Punto>;

// One profile of a member as the view shows it: the ends of its two edges. The far profile of an
// opposed pair lies behind the gusset.
struct ProfiloVista {
  int riga = 0;  // row of the edge table: the member, or the member + 3
  bool dietro = false;
  Punto a1, a3;  // edge 1, points 1 and 3
  Punto b1, b3;  // edge 2
  Poligono Quadro() const { return {a1, a3, b3, b1}; }
};

bool Opposta(const Nodo& n, int asta) {
  return n.Ast_modo[asta] == static_cast<std::int16_t>(AstModo::Opposta) &&
         n.Ast_flag[asta + 3] == 1;
}

ProfiloVista Vista(const Nodo& n, int riga, bool dietro) {
  const Saldatura& e1 = n.Saldature(riga, 1);
  const Saldatura& e2 = n.Saldature(riga, 2);
  return {riga, dietro, PuntoBordo(e1, 1), PuntoBordo(e1, 3), PuntoBordo(e2, 1), PuntoBordo(e2, 3)};
}

std::vector<ProfiloVista> ProfiliAsta(const Nodo& n, int asta) {
  std::vector<ProfiloVista> profili{Vista(n, asta, false)};
  if (Opposta(n, asta)) profili.push_back(Vista(n, asta + 3, true));
  return profili;
}

Poligono ContornoFazzoletto(const GeometriaFazzoletto& g) {
  Poligono c;
  for (int lato = 1; lato <= 6; ++lato) {
    c.push_back({g.LatiFazzoletto[lato].XP[1], g.LatiFazzoletto[lato].YP[1]});
  }
  return c;
}

// The edges of the profile inside its outline: the inner face of an angle's outstanding leg
// where the leg shows (lato positive, or an opposed pair), the inner faces of both flanges of a
// channel or an I.
std::vector<Segmento> SpigoliInterni(const Nodo& n, int asta, const ProfiloVista& v) {
  const Profilo& p = n.Aste[asta];
  const Punto e = p.e * Normale(n.Ast_teta[asta]);
  const Segmento lungo1{v.a1 - e, v.a3 - e};  // inside edge 1
  const Segmento lungo2{v.b1 + e, v.b3 + e};  // inside edge 2
  if (p.Tipo != static_cast<std::int16_t>(TipoProfilo::Angolare)) return {lungo1, lungo2};
  if (Opposta(n, asta)) return {v.dietro ? lungo1 : lungo2};
  if (n.Ast_lato[asta] <= 0) return {};
  // The back lies on edge 2 with lato 1, as the edge lines place it.
  return {n.Ast_lato[asta] == 1 ? lungo2 : lungo1};
}

void LineaProfilo(Sessione& s, const ProfiloVista& v, Punto p, Punto q,
                  const Poligono& fazzoletto) {
  const std::int16_t colore = Colore(s, 0);
  if (v.dietro) {
    profili::LineaCoperta(s, p, q, colore, {fazzoletto});
  } else {
    profili::Linea(s, p, q, colore);
  }
}

void ContornoProfilo(Tavola& t, int asta, const ProfiloVista& v, const Poligono& fazzoletto) {
  Sessione& s = t.S();
  const std::vector<Segmento> contorno{{v.a1, v.a3}, {v.b1, v.b3}, {v.a1, v.b1}, {v.a3, v.b3}};
  for (const auto& [p, q] : contorno) LineaProfilo(s, v, p, q, fazzoletto);
  for (const auto& [p, q] : SpigoliInterni(s.nodo, asta, v)) LineaProfilo(s, v, p, q, fazzoletto);
}

bool Coppia(const Nodo& n, int asta) {
  return n.Ast_modo[asta] == static_cast<std::int16_t>(AstModo::Doppia) || Opposta(n, asta);
}

// How far beyond the member's end its turned section reaches. The section starts `margine`
// beyond the end and takes b along the member, 2 b + s for a pair: where the member's
// dimension chains measure it.
double FineSezione(const Nodo& n, int asta, double margine) {
  const Profilo& p = n.Aste[asta];
  return margine + (Coppia(n, asta) ? 2 * p.b + n.Fz_s : p.b);
}

// The end section, turned into the view beyond the member's end: the near profile with its
// outstanding parts back towards the member and its face on the gusset at b, the other profile
// of a pair beyond the gusset's thickness, mirrored.
void SezioniEstremo(Tavola& t, int asta, const std::vector<ProfiloVista>& profili, double margine) {
  Sessione& s = t.S();
  const Nodo& n = s.nodo;
  const Profilo& p = n.Aste[asta];
  const double teta = n.Ast_teta[asta];
  const Punto avanti = Direzione(teta);
  s.disegno.StileLinea = 0;
  s.disegno.ColoreCorrente = Colore(s, 2);
  const bool angolare = p.Tipo == static_cast<std::int16_t>(TipoProfilo::Angolare);
  const ProfiloVista& v = profili.front();
  // v of the section runs from edge 2 to edge 1, or back for an angle whose heel is on edge 1.
  const bool talloneSu1 = angolare && !Opposta(n, asta) && n.Ast_lato[asta] != 1;
  const double versoV = talloneSu1 ? -1 : 1;
  // An I or H section is centred on its web.
  const double faccia =
      margine + (p.Tipo == static_cast<std::int16_t>(TipoProfilo::DoppioT) ? p.b / 2 : p.b);
  const Punto origine = (talloneSu1 ? v.a3 : v.b3) + faccia * avanti;
  profili::SezioneOrientata(t, p, origine, teta, -1, versoV, 1);
  if (n.Ast_modo[asta] == static_cast<std::int16_t>(AstModo::Doppia)) {
    profili::SezioneOrientata(t, p, origine + n.Fz_s * avanti, teta, 1, versoV, 1);
  }
  if (profili.size() > 1) {
    // The far profile of an opposed pair: its heel on its edge 1, its leg towards its edge 2.
    const ProfiloVista& w = profili.back();
    const Punto base = (angolare ? w.a3 : w.b3) + (faccia + n.Fz_s) * avanti;
    profili::SezioneOrientata(t, p, base, teta, 1, angolare ? -1 : 1, 1);
  }
}

std::string Etichetta(const Nodo& n, int asta) {
  const bool coppia = n.Ast_modo[asta] == static_cast<std::int16_t>(AstModo::Doppia) ||
                      n.Ast_modo[asta] == static_cast<std::int16_t>(AstModo::Opposta);
  const char lettera = static_cast<char>('A' + asta - 1);
  return std::string(1, lettera) + " - " + n.Aste[asta].Nome + " (" + (coppia ? "2" : "1") + ")";
}

// The axis from the node through the end section, and the label over the part of the member
// outside the gusset, clear of its edges.
void AsseEEtichetta(Tavola& t, int asta, const std::vector<ProfiloVista>& profili, double margine) {
  Sessione& s = t.S();
  const Nodo& n = s.nodo;
  const Punto avanti = Direzione(n.Ast_teta[asta]);
  const Punto& fine3 = profili.front().a3;
  const double estremo = fine3.x * avanti.x + fine3.y * avanti.y;
  const double lunghezza = estremo + FineSezione(n, asta, margine) + s.opzioni[22] / 2;
  profili::Linea(s, {0, 0}, lunghezza * avanti, Colore(s, 1), profili::kTrattoPunto);

  Punto q1 = (estremo - s.geometria.LunghOltre) * avanti;
  Punto q2 = estremo * avanti;
  // The text goes to the left of the segment as the dimension orders its ends.
  const bool verticale = std::abs(q1.x - q2.x) < 0.0001;
  if ((!verticale && q1.x > q2.x) || (verticale && q1.y > q2.y)) std::swap(q1, q2);
  const Punto d = q2 - q1;
  const double l = Modulo(d);
  if (l <= 0) return;
  const Punto sinistra{-d.y / l, d.x / l};
  double oltre = 0;
  for (const ProfiloVista& v : profili) {
    for (const Punto& p : {v.a3, v.b3}) {
      oltre = std::max(oltre, (p.x - q2.x) * sinistra.x + (p.y - q2.y) * sinistra.y);
    }
  }
  t.TestoCentrato(Etichetta(n, asta), q1.x, q2.x, q1.y, q2.y,
                  oltre + 0.5 * t.Altezza(ClasseTesto::Testi), ClasseTesto::Testi, Colore(s, 5));
}

void BulloniAsta(Tavola& t, int asta) {
  Sessione& s = t.S();
  const Nodo& n = s.nodo;
  const double teta = n.Ast_teta[asta];
  for (int k = 1; k <= n.nBull[asta]; ++k) {
    const Punto c = CentroBulloneNodo(s, asta, k);
    DisegnaForo(t, c.x, c.y, n.FiBull(asta, k), 1, teta);
  }
  if (!Opposta(n, asta)) return;
  // The far profile's bolts are seen through the gusset.
  s.disegno.StileLinea = profili::kTratteggiata;
  for (int k = 1; k <= n.nBull[asta]; ++k) {
    const Punto c = CentroBulloneNodo(s, asta, k, true);
    DisegnaForo(t, c.x, c.y, n.FiBull(asta, k), 1, teta, true);
  }
  s.disegno.StileLinea = profili::kContinua;
}

}  // namespace

void DisegnaNodo(Tavola& t, StatoEsecutivo& stato) {
  Sessione& s = t.S();
  const Nodo& n = s.nodo;
  ArchivioDisegno& d = s.disegno;
  AzzeraEstensioni(d);
  d.ColoreCorrente = Colore(s, 0);
  d.StileLinea = 0;

  std::vector<std::vector<ProfiloVista>> aste(kMaxAste + 1);
  std::vector<Poligono> sopra;  // what lies over the gusset
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] != 1) continue;
    aste[i] = ProfiliAsta(n, i);
    for (const ProfiloVista& v : aste[i]) {
      if (!v.dietro) sopra.push_back(v.Quadro());
    }
  }

  // The gusset's side along the chord is the chord's own edge.
  const Poligono fazzoletto = ContornoFazzoletto(s.geometria);
  for (int lato = 0; lato < 5; ++lato) {
    profili::LineaCoperta(s, fazzoletto[lato], fazzoletto[lato + 1], Colore(s, 0), sopra);
  }

  for (int i = 1; i <= kMaxAste; ++i) {
    if (aste[i].empty()) continue;
    d.ColoreCorrente = Colore(s, 0);
    d.StileLinea = 0;
    for (const ProfiloVista& v : aste[i]) ContornoProfilo(t, i, v, fazzoletto);
    AsseEEtichetta(t, i, aste[i], stato.MargineTabella);
    SezioniEstremo(t, i, aste[i], stato.MargineTabella);
  }

  d.ColoreCorrente = Colore(s, 0);
  d.StileLinea = 0;
  profili::CorrenteNodo(t, stato);

  d.StileLinea = 0;
  QuoteNodo(t, stato);

  for (int i = 1; i <= kMaxAste; ++i) {
    if (!aste[i].empty()) BulloniAsta(t, i);
  }
  d.StileLinea = 0;

  stato.XmaxN = d.EstMaxX;
  stato.YmaxN = d.EstMaxY;
  stato.XminN = d.EstMinX;
  stato.YminN = d.EstMinY;
}

}  // namespace qf17
