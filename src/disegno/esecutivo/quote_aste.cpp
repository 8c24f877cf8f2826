#include <cmath>
#include <numbers>
#include <vector>

#include "disegno/archivio_disegno_primitive.h"
#include "disegno/esecutivo/quote.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "disegno/esecutivo/tavola.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"
#include "verifica/geometria.h"

namespace qf17 {

namespace {

constexpr double kPi = std::numbers::pi;

double Scalare(Punto p, Punto q) {
  return p.x * q.x + p.y * q.y;
}

void Catena(Tavola& t, std::vector<Punto> punti, double direzione) {
  OrdinaPunti(punti,
              std::abs(std::cos(direzione)) >= std::abs(std::sin(direzione)) ? Asse::X : Asse::Y);
  QuotaCatena(t, punti);
}

bool Opposta(const Nodo& n, int asta) {
  return n.Ast_modo[asta] == static_cast<std::int16_t>(AstModo::Opposta);
}

// How far an edge line lies from the member's axis, along the member's normal: the figure
// as the geometry laid it, so that the chain ends on the drawn edges in every case the
// geometry distinguishes (side, vertical members, the gusset's side).
double ScostamentoBordo(const Saldatura& bordo, double teta) {
  return DirezioneVerticale(teta) ? bordo.Quota * std::sin(teta) : bordo.Quota * std::cos(teta);
}

std::vector<double> BordiAsta(const Nodo& n, int asta) {
  const double teta = n.Ast_teta[asta];
  const Profilo& profilo = n.Aste[asta];
  if (profilo.Tipo == static_cast<std::int16_t>(TipoProfilo::DoppioT)) {
    return {-profilo.h / 2, profilo.h / 2};
  }
  std::vector<double> bordi{ScostamentoBordo(n.Saldature(asta, 1), teta),
                            ScostamentoBordo(n.Saldature(asta, 2), teta)};
  if (Opposta(n, asta)) {
    bordi.push_back(ScostamentoBordo(n.Saldature(asta + 3, 1), teta));
    bordi.push_back(ScostamentoBordo(n.Saldature(asta + 3, 2), teta));
  }
  return bordi;
}

// The member's far end: the mean of points 3 of its outer edges, pushed out along the member.
Punto BaseAsta(const Nodo& n, int asta, double margine) {
  const int riga2 = Opposta(n, asta) ? asta + 3 : asta;
  const Punto fine =
      0.5 * (PuntoBordo(n.Saldature(asta, 1), 3) + PuntoBordo(n.Saldature(riga2, 2), 3));
  return fine + margine * Direzione(n.Ast_teta[asta]);
}

// The arc between the X axis and member `asta` round the node, and the member's angle beside
// its middle, outside it.
void AngoloAsta(Tavola& t, int asta) {
  Sessione& s = t.S();
  const double teta = s.nodo.Ast_teta[asta];
  const double altezza = t.Altezza(ClasseTesto::Quote);
  const double diametro = 3 * (asta + 1) * altezza;
  if (teta >= 0) {
    DisegnaCerchio(s, 0, 0, diametro, ColoreOpzione(s, 4), 2 * kPi - teta, 2 * kPi + 0.0001);
  } else {
    DisegnaCerchio(s, 0, 0, diametro, ColoreOpzione(s, 4), 2 * kPi, 2 * kPi - teta);
  }
  const std::string testo = TestoAngoloAsta(teta);
  // The text's box reaches this far from its centre in the direction of the arc's middle.
  const Punto mezzo = Direzione(teta / 2);
  const double lungTesto =
      static_cast<double>(NumeroCaratteri(testo)) * t.Larghezza(ClasseTesto::Quote);
  const double scosta = diametro / 2 +
                        (std::abs(mezzo.x) * lungTesto + std::abs(mezzo.y) * altezza) / 2 +
                        altezza / 4;
  const Punto centro = scosta * mezzo;
  // Level, centred on `centro`: the baseline half a height below it.
  t.TestoCentrato(testo, centro.x - 1, centro.x + 1, centro.y, centro.y, -altezza / 2,
                  ClasseTesto::Quote, ColoreOpzione(s, 3));
}

}  // namespace

// The cut ignores the last bits of the conversion from radians, so that a member laid at 137
// degrees does not read 136.99.
std::string TestoAngoloAsta(double teta) {
  const double centesimi = std::floor(ArrotondaPari(std::abs(RadiantiInGradi(teta)) * 100, 6));
  return TestoNumero(centesimi / 100);
}

void QuotaAstaAltezza(Tavola& t, int asta, double bx, double by) {
  const Nodo& n = t.S().nodo;
  const double teta = n.Ast_teta[asta];
  const Punto normale = Normale(teta);
  // The base gives the row's place along the member; the stations are measured from its axis.
  const Punto base{bx, by};
  const Punto sullAsse = base - Scalare(base, normale) * normale;
  std::vector<Punto> punti;
  for (const double d : BordiAsta(n, asta)) punti.push_back(sullAsse + d * normale);
  Catena(t, punti, teta - kPi / 2);
}

void QuotaAstaLarghezza(Tavola& t, int asta, double bx, double by) {
  const Nodo& n = t.S().nodo;
  const double teta = n.Ast_teta[asta];
  const double b = n.Aste[asta].b;
  std::vector<double> stazioni{0, b};
  if (n.Ast_modo[asta] != static_cast<std::int16_t>(AstModo::Singola)) {
    stazioni.push_back(b + n.Fz_s);
    stazioni.push_back(2 * b + n.Fz_s);
  }
  const Punto direzione = Direzione(teta);
  std::vector<Punto> punti;
  for (const double d : stazioni) punti.push_back(Punto{bx, by} + d * direzione);
  Catena(t, punti, teta);
}

void QuotaSaldatura(Tavola& t, int asta, int saldatura) {
  const Nodo& n = t.S().nodo;
  const double teta = n.Ast_teta[asta];
  const Saldatura& bordo = n.Saldature(asta, saldatura);
  const Saldatura& altro = n.Saldature(asta, 3 - saldatura);
  const Punto normale = Normale(teta);
  const Punto inizio = PuntoBordo(bordo, 1);
  // Out on the edge's own side: the lower edge takes the negative offset.
  const double lato =
      Scalare(inizio, normale) >= Scalare(PuntoBordo(altro, 1), normale) ? 1.0 : -1.0;
  const Punto spinta = (lato * 6 * t.Altezza(ClasseTesto::Quote)) * normale;
  Catena(t, {inizio + spinta, PuntoBordo(bordo, 2) + spinta}, teta);
}

void QuoteNodo(Tavola& t, const StatoEsecutivo& stato) {
  Sessione& s = t.S();
  if (s.opzioni[15] != 1) return;
  const Nodo& n = s.nodo;
  const double teta = n.Cor_teta;
  const double c = std::cos(teta);
  const double sn = std::sin(teta);
  const double p = n.PosFazzoletto;
  const double altezza = t.Altezza(ClasseTesto::Quote);
  const double larghezzaTesti = t.Larghezza(ClasseTesto::Testi);

  double d = s.disegno.RuotMinX - 1.5 * larghezzaTesti - 3 * altezza;
  QuotaAltezzeSx(t, d * c, -d * sn);
  d = s.disegno.RuotMaxX + stato.MargineTabella + 1.5 * larghezzaTesti + 3 * altezza;
  QuotaAltezzeDx(t, d * c, -d * sn);
  d = -p * (stato.FattoreAltezza * n.Corrente.h / 2 + 3 * altezza);
  QuotaLunghezze(t, d * sn, d * c);
  const double e =
      stato.FattoreLunghezza * (n.Fz_c + n.Fz_d) + stato.MargineTabella + n.Corrente.b / 2;
  QuotaCorrente(t, e * c + d * sn, -e * sn + d * c);

  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] != 1) continue;
    AngoloAsta(t, i);
    const Punto base = BaseAsta(n, i, stato.MargineTabella);
    QuotaAstaAltezza(t, i, base.x, base.y);
    QuotaAstaLarghezza(t, i, base.x, base.y);
    if (s.opzioni.QuoteSaldature) {
      QuotaSaldatura(t, i, 1);
      QuotaSaldatura(t, i, 2);
    }
  }
}

}  // namespace qf17
