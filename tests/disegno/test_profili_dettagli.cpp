// The strip details off the installation's options: the multiplier, no hole chains, a member
// with no bolt. At the installation's options the samples' sheets pin them.

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "disegno/esecutivo/profili_disegno.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "test_profili_prova.h"

namespace qf17 {
namespace {

using prova::DisegnoProva;
using prova::LineaLetta;
using prova::Vicini;

// UPN100 (flanges 10, centroid 50) under a gusset 100 + 400 + 400 + 100 = 1000 long; chord bolts
// M20 at x 100 and 300, 40 from the flange's inner face.
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

// k = 2: L = 2 x 1000 = 2000, axis from -0.15 L to 1.15 L at (100 - 50) x 2; holes at
// (2 x 100, 2 x 50), (2 x 300, 100), diameter 2 x 20.5; chains read L / k.
TEST(ProfiliDettagli, IlMoltiplicatoreRaddoppiaIlDettaglioMaLeQuoteRestanoInMillimetri) {
  DisegnoProva d;
  CorrenteDiProva(d.s);
  d.s.opzioni[21] = 2;
  StatoEsecutivo stato;
  DettaglioForiCorrente(d.t, stato);

  const auto assi = Assi(d.s, 1000);
  ASSERT_EQ(assi.size(), 1u);
  EXPECT_TRUE(Vicini(assi[0].a, {-300, 100}) && Vicini(assi[0].b, {2300, 100}));
  const auto archi = prova::Archi(d.s);
  ASSERT_EQ(archi.size(), 2u);
  EXPECT_TRUE(Vicini(archi[0].centro, {200, 100}));
  EXPECT_TRUE(Vicini(archi[1].centro, {600, 100}));
  EXPECT_NEAR(archi[0].Diametro(), 41, 1e-9);

  // Along at y -20 (0, 200, 600, 2000), across at x -320 (0, 100, 200), the section's height at
  // 2320.
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
  // Title 20 over the strip (200 + 20); notes at -20 - 10 - 8 - 1.5 x 10 = -53, then 15 lower.
  ASSERT_EQ(d.t.testi.size(), 3u);
  EXPECT_TRUE(Vicini({d.t.testi[0].x, d.t.testi[0].y}, {0, 220}));
  EXPECT_EQ(d.t.testi[1].testo, "Fori ]20.5");
  EXPECT_TRUE(Vicini({d.t.testi[1].x, d.t.testi[1].y}, {-300, -53}));
  EXPECT_TRUE(Vicini({d.t.testi[2].x, d.t.testi[2].y}, {-300, -68}));
  // Width from -320 - 10 - 8 to 2320; height from -68 to 200 + 20 + 10.
  EXPECT_NEAR(stato.LargF, 2320 + 338, 1e-9);
  EXPECT_NEAR(stato.AltF, 230 + 68, 1e-9);

  // Without the hole chains (option 24 at 0) the notes stay.
  DisegnoProva senza;
  CorrenteDiProva(senza.s);
  senza.s.opzioni[24] = 0;
  DettaglioForiCorrente(senza.t, stato);
  EXPECT_TRUE(senza.t.quote.empty());
  EXPECT_EQ(senza.t.testi.size(), 3u);
}

// No bolt: the strip stands for the insertion 120, axis from -0.15 x 120 to 1.15 x 120 at
// 60 - 16.9; no hole, no chain, no note.
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
  const auto assi = Assi(d.s, 100);
  ASSERT_EQ(assi.size(), 1u);
  EXPECT_TRUE(Vicini(assi[0].a, {-18, 43.1}) && Vicini(assi[0].b, {138, 43.1}));
}

// The farthest bolt, not the last: 160 x 1.5.
TEST(ProfiliDettagli, LunghezzaDellAstaDalBulloneDiPiuLontano) {
  DisegnoProva d;
  Nodo& n = d.s.nodo;
  n.nBull[1] = 3;
  n.xBull(1, 1) = 40, n.xBull(1, 2) = 160, n.xBull(1, 3) = 100;
  d.s.opzioni[21] = 1.5;
  EXPECT_NEAR(LunghezzaStriscia(d.s, 1), 240, 1e-9);
}

}  // namespace
}  // namespace qf17
