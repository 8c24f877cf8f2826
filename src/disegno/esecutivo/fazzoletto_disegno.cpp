// "PARTICOLARE FAZZOLETTO": the gusset as the workshop cuts and drills it.

#include "disegno/esecutivo/fazzoletto_disegno.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "disegno/archivio_disegno_primitive.h"
#include "disegno/esecutivo/fazzoletto_interno.h"
#include "disegno/esecutivo/profili_disegno.h"
#include "disegno/esecutivo/quote.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "disegno/esecutivo/tavola.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"
#include "verifica/comuni.h"

namespace qf17 {

namespace {

constexpr char kTitoloFazzoletto[] = "PARTICOLARE FAZZOLETTO";

// Holes closer than this along an axis share one station of the chain.
constexpr double kStessaQuota = kTolleranzaDisegno;

// Sorted values without repeats.
std::vector<double> Distinti(std::vector<double> valori) {
  std::sort(valori.begin(), valori.end());
  std::vector<double> distinti;
  for (const double v : valori) {
    if (distinti.empty() || v - distinti.back() >= kStessaQuota) distinti.push_back(v);
  }
  return distinti;
}

class Dettaglio {
 public:
  Dettaglio(Tavola& t, StatoEsecutivo& stato)
      : t_(t), s_(t.S()), n_(s_.nodo), o_(s_.opzioni), stato_(stato), k_(o_[21]) {}

  void Disegna();

 private:
  Punto Foglio(Punto telaio) const { return {(telaio.x + n_.Fz_a + n_.Fz_b) * k_, telaio.y * k_}; }
  void Linea(Punto a, Punto b, std::int16_t colore) {
    DisegnaLinea(s_, a.x, a.y, b.x, b.y, colore);
    box_.Aggiungi(a);
    box_.Aggiungi(b);
  }
  void Contorno();
  void AsseCorrente();
  void Tracce();
  void TracciaBordo(Punto p1, Punto p3);
  void Fori();
  void Catene();
  void Numeri();
  double LunghezzaAssi() const { return 1.2 * n_.Corrente.h / 2 * k_; }
  std::array<Riquadro, 2> IngombroAssi() const;
  void Assi();
  void Titolo();

  Tavola& t_;
  Sessione& s_;
  const Nodo& n_;
  const Opzioni& o_;
  StatoEsecutivo& stato_;
  double k_;
  std::array<Punto, 6> contorno_{};  // sheet corners of the plate, in order
  Riquadro box_;
  Riquadro piastra_;
};

void Dettaglio::Contorno() {
  const auto angoli = AngoliFazzoletto(n_);
  for (std::size_t i = 0; i < angoli.size(); ++i) {
    contorno_[i] = Foglio(angoli[i]);
    piastra_.Aggiungi(contorno_[i]);
  }
  s_.disegno.ColoreCorrente = static_cast<std::int16_t>(o_[0]);
  s_.disegno.StileLinea = 0;
  for (std::size_t i = 0; i < contorno_.size(); ++i) {
    Linea(contorno_[i], contorno_[(i + 1) % contorno_.size()], static_cast<std::int16_t>(o_[0]));
  }
}

// The chord's gravity axis, the line the Y coordinates start from, passing the plate's ends.
void Dettaglio::AsseCorrente() {
  s_.disegno.StileLinea = 3;
  const double oltre = o_[22];
  Linea({piastra_.minX - oltre, 0}, {piastra_.maxX + oltre, 0}, static_cast<std::int16_t>(o_[1]));
  s_.disegno.StileLinea = 0;
}

// Where a member or the chord lies on the plate: its edges from the profile's end to the
// plate's outline, and the end itself, dashed.
void Dettaglio::Tracce() {
  s_.disegno.StileLinea = 1;
  for (int r = 1; r <= 6; ++r) {
    if (n_.Ast_flag[r] != 1) continue;
    if (r > 3 && n_.Ast_flag[r - 3] != 1) continue;
    Punto estremi[2];
    for (int j = 1; j <= 2; ++j) {
      const Saldatura& bordo = n_.Saldature(r, j);
      const Punto p1 = Foglio(DaNodo(n_, PuntoBordo(bordo, 1)));
      const Punto p3 = Foglio(DaNodo(n_, PuntoBordo(bordo, 3)));
      estremi[j - 1] = p1;
      TracciaBordo(p1, p3);
    }
    Linea(estremi[0], estremi[1], static_cast<std::int16_t>(o_[2]));
  }
  if (n_.Corrente.Tipo != static_cast<std::int16_t>(TipoProfilo::DoppioT)) {
    // The chord's edge on the plate: the line the visible gusset starts from.
    const double y = BordoCorrente(n_) * k_;
    Linea({piastra_.minX, y}, {piastra_.maxX, y}, static_cast<std::int16_t>(o_[2]));
  }
  s_.disegno.StileLinea = 0;
}

void Dettaglio::TracciaBordo(Punto p1, Punto p3) {
  const Punto d = p3 - p1;
  const double l2 = d.x * d.x + d.y * d.y;
  if (l2 <= kTolleranzaDisegno * kTolleranzaDisegno) return;
  double migliore = -1;
  Punto fine = p1;
  for (std::size_t i = 0; i < contorno_.size(); ++i) {
    Punto incrocio;
    if (!TagliaContorno(contorno_[i], contorno_[(i + 1) % contorno_.size()], p1, p3, incrocio)) {
      continue;
    }
    const Punto v = incrocio - p1;
    const double u = (v.x * d.x + v.y * d.y) / l2;
    if (u > kTolleranzaDisegno && (migliore < 0 || u < migliore)) {
      migliore = u;
      fine = incrocio;
    }
  }
  if (migliore < 0) return;
  Linea(p1, fine, static_cast<std::int16_t>(o_[2]));
}

void Dettaglio::Fori() {
  for (const int g : GruppiForiFazzoletto(s_)) {
    const int gruppo = GruppoBulloni(g);
    for (int k = 1; k <= n_.nBull[gruppo]; ++k) {
      const Punto c = Foglio({stato_.ForoX(g, k), stato_.ForoY(g, k)});
      DisegnaForo(t_, c.x, c.y, n_.FiBull(gruppo, k), k_);
      const double r = DiamForo(o_, n_.FiBull(gruppo, k)) * k_ / 2;
      box_.Aggiungi({c.x - r, c.y - r});
      box_.Aggiungi({c.x + r, c.y + r});
    }
  }
}

// Chains over the distinct hole positions, from the plate's edges, one pair for each group
// so that close holes of different members do not crowd one chain: along X under the plate,
// along Y at the plate's end nearer to the group's holes, each group's further out, in true
// millimetres.
void Dettaglio::Catene() {
  // A text stands o[13] from its line, or as far on the other side when staggered.
  const double fascia = o_[13] + o_[7];
  const double passo = 2 * fascia + o_[7];
  const double mezzo = (piastra_.minX + piastra_.maxX) / 2;
  double yCatena = piastra_.minY - o_[22] - fascia;
  double xSinistra = piastra_.minX - o_[22] - fascia;
  double xDestra = piastra_.maxX + o_[22] + fascia;
  for (const int g : GruppiForiFazzoletto(s_)) {
    const int gruppo = GruppoBulloni(g);
    if (n_.nBull[gruppo] == 0) continue;
    std::vector<double> xs{piastra_.minX, piastra_.maxX};
    std::vector<double> ys{piastra_.minY, piastra_.maxY};
    double somma = 0;
    for (int k = 1; k <= n_.nBull[gruppo]; ++k) {
      const Punto c = Foglio({stato_.ForoX(g, k), stato_.ForoY(g, k)});
      xs.push_back(c.x);
      ys.push_back(c.y);
      somma += c.x - mezzo;
    }
    const bool destra = g != 0 && somma > 0;
    double& xCatena = destra ? xDestra : xSinistra;
    std::vector<Punto> lungo, alto;
    for (const double x : Distinti(xs)) lungo.push_back({x, yCatena});
    for (const double y : Distinti(ys)) alto.push_back({xCatena, y});
    QuotaCatena(t_, lungo, 1 / k_);
    QuotaCatena(t_, alto, 1 / k_);
    box_.Aggiungi({piastra_.minX, yCatena - fascia});
    box_.Aggiungi({xCatena + (destra ? fascia : -fascia), piastra_.minY});
    yCatena -= passo;
    xCatena += destra ? passo : -passo;
  }
}

// Each hole's number beside it, where it reads against no other hole (PostiNumeri); the holes
// keep clear with their centre crosses.
void Dettaglio::Numeri() {
  std::vector<ForoNumerato> fori;
  std::vector<std::int32_t> numeri;
  for (const int g : GruppiForiFazzoletto(s_)) {
    const int gruppo = GruppoBulloni(g);
    for (int k = 1; k <= n_.nBull[gruppo]; ++k) {
      const double d = n_.FiBull(gruppo, k);
      const double croce = (DiamForo(o_, d) / 2 + 0.1 * d) * k_;
      fori.push_back({Foglio({stato_.ForoX(g, k), stato_.ForoY(g, k)}), croce});
      numeri.push_back(stato_.ForoNumero(g, k));
    }
  }
  const double w = t_.Larghezza(ClasseTesto::Quote);
  const double h = t_.Altezza(ClasseTesto::Quote);
  PostiNumeri posti(fori, w, h);
  for (const Riquadro& asse : IngombroAssi()) posti.Evita(asse);
  for (std::size_t i = 0; i < fori.size(); ++i) {
    const std::string testo = TestoNumero(static_cast<long long>(numeri[i]));
    const std::size_t caratteri = NumeroCaratteri(testo);
    const Punto p = posti.Posto(i, caratteri);
    t_.Testo(testo, p.x, p.y, 0, ClasseTesto::Quote, static_cast<std::int16_t>(o_[3]));
    box_.Aggiungi(p);
    box_.Aggiungi({p.x + static_cast<double>(caratteri) * w, p.y + h});
  }
}

// What the axes of the coordinate table take with their heads and letters: a number over them
// would be hard to read.
std::array<Riquadro, 2> Dettaglio::IngombroAssi() const {
  const Punto o = Foglio({0, 0});
  const double l = LunghezzaAssi();
  const double w = t_.Larghezza(ClasseTesto::Quote);
  const double h = t_.Altezza(ClasseTesto::Quote);
  std::array<Riquadro, 2> r;
  r[0].Aggiungi({o.x, o.y - h / 2});
  r[0].Aggiungi({o.x + l + 2 * w, o.y + h / 2});
  r[1].Aggiungi({o.x - w / 2, o.y});
  r[1].Aggiungi({o.x + w / 2, o.y + l + 2 * h});
  return r;
}

// The axes of the coordinate table at its origin, the node's point on the chord's axis.
void Dettaglio::Assi() {
  const Punto o = Foglio({0, 0});
  const double l = LunghezzaAssi();
  const double punta = l / 10;
  const auto colore = static_cast<std::int16_t>(o_[3]);
  const Punto px{o.x + l, o.y};
  const Punto py{o.x, o.y + l};
  Linea(o, px, colore);
  Linea(px, {px.x - punta, px.y + punta / 2}, colore);
  Linea(px, {px.x - punta, px.y - punta / 2}, colore);
  Linea(o, py, colore);
  Linea(py, {py.x + punta / 2, py.y - punta}, colore);
  Linea(py, {py.x - punta / 2, py.y - punta}, colore);
  const double w = t_.Larghezza(ClasseTesto::Quote);
  const double h = t_.Altezza(ClasseTesto::Quote);
  t_.TestoCentrato("X", px.x + w / 2, px.x + 3 * w / 2, px.y, px.y, -h / 2, ClasseTesto::Quote,
                   colore);
  t_.TestoCentrato("Y", py.x - w / 2, py.x + w / 2, py.y, py.y, -h / 2 + 1.5 * o_[7],
                   ClasseTesto::Quote, colore);
  box_.Aggiungi({px.x + 2 * w, px.y});
  box_.Aggiungi({py.x, py.y + 2 * h});
  MarcaOrigine(t_, o.x, o.y, 0);
}

void Dettaglio::Titolo() {
  const std::string titolo = kTitoloFazzoletto;
  const double w = t_.Larghezza(ClasseTesto::Testi);
  const double lunghezza = static_cast<double>(NumeroCaratteri(titolo)) * w;
  const double x = (piastra_.maxX - piastra_.minX) / 2 + piastra_.minX - lunghezza / 2;
  const double y = box_.maxY + o_[22];
  t_.Testo(titolo, x, y, 0, ClasseTesto::Testi, static_cast<std::int16_t>(o_[5]));
  box_.Aggiungi({x, y + t_.Altezza(ClasseTesto::Testi)});
  box_.Aggiungi({x + lunghezza, y});
}

void Dettaglio::Disegna() {
  for (const int g : GruppiForiFazzoletto(s_)) {
    CoordinateFori(s_, stato_, GruppoBulloni(g), g > 3 ? -1 : 1);
  }
  Contorno();
  AsseCorrente();
  Tracce();
  Fori();
  if (stato_.ModoForiFazzoletto == 1) {
    Catene();
  } else {
    Numeri();
    Assi();
  }
  Titolo();
  s_.disegno.StileLinea = 0;
  stato_.LargF = box_.maxX - box_.minX;
  stato_.AltF = box_.maxY - box_.minY;
}

}  // namespace

std::int16_t TagliaContorno(Punto a1, Punto a2, Punto b1, Punto b2, Punto& incrocio) {
  const Punto da = a2 - a1;
  const Punto db = b2 - b1;
  const double den = da.x * db.y - da.y * db.x;
  if (std::abs(den) <= kTolleranzaDisegno * kTolleranzaDisegno) return 0;
  const Punto w = b1 - a1;
  const double u = (w.x * db.y - w.y * db.x) / den;
  // The crossing counts on the side's ends too, within the drawing's tolerance.
  const double lato = std::hypot(da.x, da.y);
  const double margine = lato > 0 ? kTolleranzaDisegno / lato : 0;
  if (u < -margine || u > 1 + margine) return 0;
  incrocio = a1 + u * da;
  return 1;
}

void MarcaOrigine(Tavola& t, double x, double y, double angolo) {
  Sessione& s = t.S();
  const double l = 1.5 * s.opzioni[14];
  const Punto a = RuotaPunto(l, 0, x, y, angolo);
  const Punto b = RuotaPunto(0, -l, x, y, angolo);
  const auto colore = static_cast<std::int16_t>(s.opzioni[2]);
  DisegnaLinea(s, a.x, a.y, b.x, b.y, colore);
  DisegnaLinea(s, b.x, b.y, x, y, colore);
}

void DettaglioFazzoletto(Tavola& t, StatoEsecutivo& stato) {
  Dettaglio(t, stato).Disegna();
}

}  // namespace qf17
