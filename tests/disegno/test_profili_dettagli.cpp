// The strip details and the sections with holes: lengths, the multiplier of the details, chains
// that read true millimetres, notes.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "disegno/esecutivo/profili_disegno.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "test_profili_prova.h"

namespace qf17 {
namespace {

using prova::DisegnoProva;
using prova::LineaLetta;
using prova::Vicini;

// A channel chord 100 high (flanges 10, centroid at 50) under a gusset 100 + 400 + 400 + 100
// = 1000 long, two chord bolts of 20 at x 100 and 300, 40 from the flange's inner face.
void CorrenteDiProva(Sessione& s) {
  Nodo& n = s.nodo;
  n.Corrente.Nome = "UPN100";
  n.Corrente.Tipo = 0;
  n.Corrente.h = 100, n.Corrente.b = 50, n.Corrente.a = 6, n.Corrente.e = 10;
  n.Corrente.dBarX = 50;
  n.Fz_a = 100, n.Fz_b = 400, n.Fz_c = 400, n.Fz_d = 100;
  n.Fz_s = 10;
  n.nBull[0] = 2;
  n.xBull(0, 1) = 100, n.yBull(0, 1) = 40, n.FiBull(0, 1) = 20;
  n.xBull(0, 2) = 300, n.yBull(0, 2) = 40, n.FiBull(0, 2) = 20;
}

std::vector<LineaLetta> Assi(const Sessione& s, double piuLungoDi) {
  std::vector<LineaLetta> assi;
  for (const auto& l : prova::Linee(s)) {
    if (l.tipo == 1 && Modulo(l.b - l.a) > piuLungoDi) assi.push_back(l);
  }
  return assi;
}

TEST(ProfiliDettagli, LaStrisciaDi1000PassaOgniEstremoDel15PerCento) {
  struct Caso {
    double moltiplicatore;
    Punto inizio, fine;
  };
  for (const Caso& c : {
           // L = 1000: from -150 to 1150, at 100 - 50 (the centroid) over the flange's face.
           Caso{1, {-150, 50}, {1150, 50}},
           // Everything doubled: L = 2000, from -300 to 2300 at 200 - 100.
           Caso{2, {-300, 100}, {2300, 100}},
       }) {
    DisegnoProva d;
    CorrenteDiProva(d.s);
    d.s.opzioni[21] = c.moltiplicatore;
    StatoEsecutivo stato;
    DettaglioForiCorrente(d.t, stato);
    const auto assi = Assi(d.s, 1000);
    ASSERT_EQ(assi.size(), 1u) << c.moltiplicatore;
    EXPECT_TRUE(Vicini(assi[0].a, c.inizio) && Vicini(assi[0].b, c.fine)) << c.moltiplicatore;
    EXPECT_EQ(assi[0].colore, 2);
    // The long lines run as far: the two faces and the inner faces of the flanges.
    int lunghe = 0;
    for (const auto& l : prova::Linee(d.s)) {
      if (l.tipo == 0 && Vicini(l.a, {c.inizio.x, l.a.y}) && Vicini(l.b, {c.fine.x, l.a.y})) {
        ++lunghe;
      }
    }
    EXPECT_EQ(lunghe, 4);
  }
}

TEST(ProfiliDettagli, IlMoltiplicatoreRaddoppiaIlDettaglioMaLeQuoteRestanoInMillimetri) {
  DisegnoProva d;
  CorrenteDiProva(d.s);
  d.s.opzioni[21] = 2;
  StatoEsecutivo stato;
  DettaglioForiCorrente(d.t, stato);

  // Holes at (100 x 2, (10 + 40) x 2) and (300 x 2, 100), 20.5 x 2 across.
  const auto archi = prova::Archi(d.s);
  ASSERT_EQ(archi.size(), 2u);
  EXPECT_TRUE(Vicini(archi[0].centro, {200, 100}));
  EXPECT_TRUE(Vicini(archi[1].centro, {600, 100}));
  EXPECT_NEAR(archi[0].Diametro(), 41, 1e-9);

  // Chains along (0, 200, 600, 2000 at y = -20), across (0, 100, 200 at x = -300 - 20) and the
  // section's height 20 beyond the strip's end: every text is its length halved.
  struct Attesa {
    double x1, x2, y1, y2, misura;
  };
  const std::vector<Attesa> attese{
      {0, 200, -20, -20, 100},  {200, 600, -20, -20, 200},  {600, 2000, -20, -20, 700},
      {-320, -320, 0, 100, 50}, {-320, -320, 100, 200, 50}, {2320, 2320, 0, 200, 100},
  };
  ASSERT_EQ(d.t.quote.size(), attese.size());
  for (std::size_t i = 0; i < attese.size(); ++i) {
    const auto& q = d.t.quote[i];
    const Attesa& a = attese[i];
    EXPECT_TRUE(q.testo.empty());
    EXPECT_TRUE(Vicini({q.x1, q.y1}, {a.x1, a.y1}) && Vicini({q.x2, q.y2}, {a.x2, a.y2})) << i;
    EXPECT_NEAR(std::hypot(q.x2 - q.x1, q.y2 - q.y1) * std::abs(q.fattore), a.misura, 1e-9) << i;
  }

  // Title 20 over the strip's top edge at its start; notes under the chains, in the text colour.
  ASSERT_EQ(d.t.testi.size(), 3u);
  EXPECT_EQ(d.t.testi[0].testo, "PARTICOLARE FORATURA DEL CORRENTE");
  EXPECT_TRUE(Vicini({d.t.testi[0].x, d.t.testi[0].y}, {0, 220}));
  // -20 (chain line) - 10 (its text distance) - 8 (its text) - 1.5 x 10.
  EXPECT_EQ(d.t.testi[1].testo, "Fori ]20.5");
  EXPECT_TRUE(Vicini({d.t.testi[1].x, d.t.testi[1].y}, {-300, -53}));
  EXPECT_EQ(d.t.testi[2].testo, "Bull. M20");
  EXPECT_TRUE(Vicini({d.t.testi[2].x, d.t.testi[2].y}, {-300, -68}));
  for (const auto& t : d.t.testi) {
    EXPECT_EQ(t.classe, ClasseTesto::Testi);
    EXPECT_EQ(t.colore, 1);
  }
  // Width from the across chain's text (-320 - 10 - 8) to the section's dimension (2320); height
  // from the lower note (-68) to the title's top (200 + 20 + 10).
  EXPECT_NEAR(stato.LargF, 2320 + 338, 1e-9);
  EXPECT_NEAR(stato.AltF, 230 + 68, 1e-9);
}

TEST(ProfiliDettagli, SenzaQuoteDeiForiNienteCatene) {
  DisegnoProva d;
  CorrenteDiProva(d.s);
  d.s.opzioni[24] = 0;
  StatoEsecutivo stato;
  DettaglioForiCorrente(d.t, stato);
  EXPECT_TRUE(d.t.quote.empty());
  EXPECT_EQ(d.t.testi.size(), 3u);
}

TEST(ProfiliDettagli, AstaSenzaBulloniFiniscePrimaDelleNote) {
  DisegnoProva d;
  Nodo& n = d.s.nodo;
  n.Aste[2].Nome = "LU60x6";
  n.Aste[2].Tipo = 1, n.Aste[2].h = 60, n.Aste[2].b = 60, n.Aste[2].a = 6, n.Aste[2].e = 6;
  n.Aste[2].dBarX = 16.9;
  n.Ast_ins[2] = 120;
  StatoEsecutivo stato;
  DettaglioForiAsta(d.t, stato, 2);
  ASSERT_EQ(d.t.testi.size(), 1u);
  EXPECT_EQ(d.t.testi[0].testo, "PARTICOLARE FORATURA DELL'ASTA B");
  EXPECT_TRUE(d.t.quote.empty());
  EXPECT_TRUE(prova::Archi(d.s).empty());
  // With no bolt the strip stands for the insertion: 120, axis from -18 to 138 at 60 - 16.9.
  const auto assi = Assi(d.s, 100);
  ASSERT_EQ(assi.size(), 1u);
  EXPECT_TRUE(Vicini(assi[0].a, {-18, 43.1}) && Vicini(assi[0].b, {138, 43.1}));
}

TEST(ProfiliDettagli, LunghezzaDellAstaDalBulloneDiPiuLontano) {
  DisegnoProva d;
  Nodo& n = d.s.nodo;
  n.nBull[1] = 3;
  n.xBull(1, 1) = 40, n.xBull(1, 2) = 160, n.xBull(1, 3) = 100;
  d.s.opzioni[21] = 1.5;
  EXPECT_NEAR(LunghezzaStriscia(d.s, 1), 240, 1e-9);  // 160 x 1.5
}

// The angle's strip: its free edge at y = 0, the back at h, the leg's inner face at h - e; the
// section beside it with its heel at the top and the holes cut through the leg.
TEST(ProfiliDettagli, SezioneDellAngolareConIFori) {
  DisegnoProva d;
  Nodo& n = d.s.nodo;
  Profilo& p = n.Aste[1];
  p.Nome = "LU70x7";
  p.Tipo = 1, p.h = 70, p.b = 70, p.a = 7, p.e = 7, p.r1 = 7, p.dBarX = 19.7;
  n.Ast_modo[1] = 0;
  n.Fz_s = 10;
  n.nBull[1] = 2;
  n.xBull(1, 1) = 40, n.yBull(1, 1) = 30, n.FiBull(1, 1) = 20;
  n.xBull(1, 2) = 160, n.yBull(1, 2) = 30, n.FiBull(1, 2) = 20;
  StatoEsecutivo stato;
  SezioneConFori(d.t, stato, 1);
  // L = 160: the section starts at 160 + 24 + (1 + 2) x 20 = 244. One row of holes (same y and
  // diameter): walls at 30 +- 10.25 across the leg (244 to 251), the axis 2 beyond each face.
  const auto linee = prova::Linee(d.s);
  int pareti = 0;
  int assi = 0;
  for (const auto& l : linee) {
    if (l.colore == 1 && Vicini(l.a, {244, l.a.y}) && Vicini(l.b, {251, l.a.y}) &&
        (std::abs(l.a.y - 19.75) < 1e-9 || std::abs(l.a.y - 40.25) < 1e-9)) {
      ++pareti;
    }
    if (l.tipo == 1 && Vicini(l.a, {242, 30}) && Vicini(l.b, {253, 30})) ++assi;
  }
  EXPECT_EQ(pareti, 2);
  EXPECT_EQ(assi, 1);
  // The outline: heel at (244, 70), the other leg to 244 + 70, the leg down to y = 0; the bolt's
  // axis starts 2 before the heel's face.
  EXPECT_NEAR(d.s.disegno.EstMinX, 242, 1e-9);
  EXPECT_NEAR(d.s.disegno.EstMaxX, 314, 1e-9);
  EXPECT_NEAR(d.s.disegno.EstMinY, 0, 1e-9);
  EXPECT_NEAR(d.s.disegno.EstMaxY, 70, 1e-9);
}

// An I chord is welded: no strip, no holes, and its section hangs below the origin that the
// composition leaves at the node view's bottom.
TEST(ProfiliDettagli, SezioneDelCorrenteDoppioTSottoLOrigine) {
  DisegnoProva d;
  Nodo& n = d.s.nodo;
  n.Corrente.Nome = "HEA200";
  n.Corrente.Tipo = 2, n.Corrente.h = 190, n.Corrente.b = 200, n.Corrente.a = 6.5;
  n.Corrente.e = 10, n.Corrente.r1 = 18;
  n.nBull[0] = 1;
  n.xBull(0, 1) = 100, n.yBull(0, 1) = 50, n.FiBull(0, 1) = 20;
  StatoEsecutivo stato;
  SezioneConFori(d.t, stato, 0);
  const auto linee = prova::Linee(d.s);
  EXPECT_EQ(linee.size(), 12u);
  for (const auto& l : linee) EXPECT_EQ(l.colore, 3);
  EXPECT_NEAR(d.s.disegno.EstMinX, 0, 1e-9);
  EXPECT_NEAR(d.s.disegno.EstMaxX, 200, 1e-9);
  EXPECT_NEAR(d.s.disegno.EstMinY, -190, 1e-9);
  EXPECT_NEAR(d.s.disegno.EstMaxY, 0, 1e-9);
}

// An opposed pair's section stacks the second profile over the first (60 + 10 + 60): the
// strip's title goes 20 above that.
TEST(ProfiliDettagli, TitoloSopraLaCoppiaOpposta) {
  DisegnoProva d;
  Nodo& n = d.s.nodo;
  n.Aste[3].Nome = "LU60x6";
  n.Aste[3].Tipo = 1, n.Aste[3].h = 60, n.Aste[3].b = 60, n.Aste[3].a = 6, n.Aste[3].e = 6;
  n.Aste[3].dBarX = 16.9, n.Ast_modo[3] = static_cast<std::int16_t>(AstModo::Opposta);
  n.Ast_ins[3] = 100, n.Fz_s = 10;
  StatoEsecutivo stato;
  DettaglioForiAsta(d.t, stato, 3);
  ASSERT_EQ(d.t.testi.size(), 1u);
  EXPECT_EQ(d.t.testi[0].testo, "PARTICOLARE FORATURA DELL'ASTA C");
  EXPECT_TRUE(Vicini({d.t.testi[0].x, d.t.testi[0].y}, {0, 150}));
}

}  // namespace
}  // namespace qf17
