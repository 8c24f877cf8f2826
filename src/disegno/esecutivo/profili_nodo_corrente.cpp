// The chord in the node view, drawn in its own frame (x along the chord, y across it) and
// turned by Cor_teta.

#include <algorithm>
#include <cmath>
#include <vector>

#include "disegno/esecutivo/profili_comuni.h"
#include "disegno/esecutivo/profili_disegno.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "disegno/esecutivo/tavola.h"
#include "nodo/sessione.h"

namespace qf17::profili {

namespace {

struct FrameCorrente {
  double teta = 0;
  Punto operator()(double x, double y) const { return RuotaPunto(x, y, 0, 0, teta); }
};

bool TipoCorrente(const Profilo& c, TipoProfilo tipo) {
  return c.Tipo == static_cast<std::int16_t>(tipo);
}

// The side of the gusset as a sign; with no member the chord is drawn as if the gusset were
// above it.
double LatoDisegno(const Nodo& n) {
  return n.PosFazzoletto != 0 ? n.PosFazzoletto : 1;
}

// Lines along the chord, in its frame: the outer faces and the visible inner faces of the
// flanges, or the free edge, the back and the inner face of the outstanding leg of an angle.
std::vector<double> LineeCorrente(const Nodo& n) {
  const Profilo& c = n.Corrente;
  const double h = c.h;
  if (TipoCorrente(c, TipoProfilo::Angolare)) {
    const double sg = LatoDisegno(n);
    return {sg * (h - c.dBarX), -sg * c.dBarX, -sg * (c.dBarX - c.e)};
  }
  return {-h / 2, -(h / 2 - c.e), h / 2 - c.e, h / 2};
}

// Where the gusset meets the chord, in its frame.
double OrdinataFazzoletto(const Nodo& n) {
  const Profilo& c = n.Corrente;
  const double sg = n.PosFazzoletto;
  if (TipoCorrente(c, TipoProfilo::Angolare)) return sg * (c.h - c.dBarX);
  return sg * c.h / 2;
}

// The section beyond the chord's right end: its centre and its half width along the chord.
struct SezioneCorrente {
  double centro = 0;
  double semilarghezza = 0;
};

SezioneCorrente PostoSezione(const Nodo& n, double fine, double margine) {
  const Profilo& c = n.Corrente;
  if (TipoCorrente(c, TipoProfilo::DoppioT)) return {fine + margine + c.b / 2, c.b / 2};
  // A pair, one profile on each face of the gusset.
  const double semi = n.Fz_s / 2 + c.b;
  return {fine + margine + semi, semi};
}

void Sezione(Tavola& t, const FrameCorrente& f, const SezioneCorrente& posto) {
  Sessione& s = t.S();
  const Nodo& n = s.nodo;
  const Profilo& c = n.Corrente;
  s.disegno.StileLinea = kContinua;
  s.disegno.ColoreCorrente = Colore(s, 2);
  if (TipoCorrente(c, TipoProfilo::DoppioT)) {
    SezioneOrientata(t, c, f(posto.centro, -c.h / 2), f.teta, 1, 1, 1);
    return;
  }
  // The heel of an angle lies on its back, away from the gusset.
  const bool angolare = TipoCorrente(c, TipoProfilo::Angolare);
  const double verso = angolare ? LatoDisegno(n) : 1;
  const double y0 = angolare ? -verso * c.dBarX : -c.h / 2;
  const double semiS = n.Fz_s / 2;
  SezioneOrientata(t, c, f(posto.centro + semiS, y0), f.teta, 1, verso, 1);
  SezioneOrientata(t, c, f(posto.centro - semiS, y0), f.teta, -1, verso, 1);
}

}  // namespace

void CorrenteNodo(Tavola& t, const StatoEsecutivo& stato) {
  Sessione& s = t.S();
  const Nodo& n = s.nodo;
  const Profilo& c = n.Corrente;
  const FrameCorrente f{n.Cor_teta};
  const double sinistra = -stato.FattoreLunghezza * (n.Fz_a + n.Fz_b);
  const double destra = stato.FattoreLunghezza * (n.Fz_c + n.Fz_d);
  const double fazzSinistra = -(n.Fz_a + n.Fz_b);
  const double fazzDestra = n.Fz_c + n.Fz_d;
  const std::int16_t colore = Colore(s, 0);

  const std::vector<double> linee = LineeCorrente(n);
  const double yFazzoletto = OrdinataFazzoletto(n);
  for (double y : linee) {
    // The edge the gusset meets carries the gusset's side: its corners are vertices of it.
    if (n.PosFazzoletto != 0 && std::abs(y - yFazzoletto) < 1e-9) {
      Linea(s, f(sinistra, y), f(fazzSinistra, y), colore);
      Linea(s, f(fazzSinistra, y), f(fazzDestra, y), colore);
      Linea(s, f(fazzDestra, y), f(destra, y), colore);
    } else {
      Linea(s, f(sinistra, y), f(destra, y), colore);
    }
  }
  const auto [basso, alto] = std::minmax_element(linee.begin(), linee.end());
  const Punto lungo = Direzione(n.Cor_teta);
  Rottura(s, f(sinistra, *basso), f(sinistra, *alto), -1 * lungo, colore);
  Rottura(s, f(destra, *basso), f(destra, *alto), lungo, colore);

  const SezioneCorrente posto = PostoSezione(n, destra, stato.MargineTabella);
  Sezione(t, f, posto);

  const double oltre = s.opzioni[22];
  Linea(s, f(sinistra - oltre, 0), f(posto.centro + posto.semilarghezza + oltre, 0), Colore(s, 1),
        kTrattoPunto);

  s.disegno.ColoreCorrente = colore;
  s.disegno.StileLinea = kContinua;
  // A chord of kind 2 is welded to the gusset along the plate's edge on it, side 6, and has no
  // bolt group; the other kinds are a bolted pair with no weld.
  if (TipoCorrente(c, TipoProfilo::DoppioT)) {
    const LatoFazzoletto& lato6 = s.geometria.LatiFazzoletto[6];
    MarcaSaldatura(t, lato6.XP[1], lato6.YP[1], lato6.XP[2], lato6.YP[2], n.PosFazzoletto, 1,
                   n.Lato_Sald, n.Cor_teta);
    return;
  }
  for (int k = 1; k <= n.nBull[0]; ++k) {
    const Punto centro = CentroBulloneNodo(s, 0, k);
    DisegnaForo(t, centro.x, centro.y, n.FiBull(0, k), 1, n.Cor_teta);
  }
}

}  // namespace qf17::profili
