// The pieces of the profile drawings off the installation's options or at their edges: weld
// steps, holes scaled or with a negative tolerance, mirrored groups, the strip notes.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "disegno/esecutivo/profili_disegno.h"
#include "test_profili_prova.h"

namespace qf17 {
namespace {

using prova::DisegnoProva;
using prova::Vicini;

// n = Int(L / passo + 0.5) steps: n - 1 ticks inside, plus 2 end ticks and the closing line.
TEST(ProfiliBase, MarcaSaldaturaContaIPassi) {
  struct Caso {
    double lunghezza, passo;
    std::int16_t estremi;
    int linee;
  };
  for (const Caso& c : {Caso{100, 8, 1, 12 + 3},  // 12.5 + 0.5 -> 13
                        Caso{99, 8, 0, 11},       // 12.375 + 0.5 -> 12
                        Caso{100, 0, 1, 0}, Caso{0, 8, 1, 0}}) {
    DisegnoProva d;
    MarcaSaldatura(d.t, 0, 0, c.lunghezza, 0, 1, c.estremi, c.passo, 0);
    EXPECT_EQ(d.s.disegno.NumLinee, c.linee) << c.lunghezza << " / " << c.passo;
  }
}

// D = (fi + tolerance) x scale, where a negative tolerance means d + 1.5 above 20, d + 1 up to
// it; the cross's arm D / 2 + 0.1 fi x scale, dash-dot in the axis colour.
TEST(ProfiliBase, ForoCerchioECroce) {
  struct Caso {
    double fi, tolleranza, scala, diametro, braccio;
  };
  for (const Caso& c : {Caso{16, 0.5, 2, 33, 16.5 + 3.2}, Caso{24, -1, 1, 25.5, 12.75 + 2.4},
                        Caso{20, -1, 1, 21, 10.5 + 2}}) {
    SCOPED_TRACE(c.fi);
    DisegnoProva d;
    d.s.opzioni[25] = c.tolleranza;
    DisegnaForo(d.t, 10, 20, c.fi, c.scala);
    const auto archi = prova::Archi(d.s);
    ASSERT_EQ(archi.size(), 1u);
    EXPECT_NEAR(archi[0].Diametro(), c.diametro, 1e-9);
    EXPECT_TRUE(Vicini(archi[0].centro, {10, 20}));
    const auto linee = prova::Linee(d.s);
    ASSERT_EQ(linee.size(), 2u);
    EXPECT_TRUE(Vicini(linee[0].a, {10 - c.braccio, 20}) &&
                Vicini(linee[0].b, {10 + c.braccio, 20}));
    EXPECT_TRUE(Vicini(linee[1].a, {10, 20 - c.braccio}) &&
                Vicini(linee[1].b, {10, 20 + c.braccio}));
    for (const auto& l : linee) EXPECT_TRUE(l.colore == 2 && l.tipo == 1);
  }
}

// Mirrored (-1) and doubled: (5 - 40 x 2, 7 - 30 x 2), (5 - 100 x 2, -53); diameter 20.5 x 2.
TEST(ProfiliBase, ForiDelGruppoSpecchiatiEScalati) {
  DisegnoProva d;
  Nodo& n = d.s.nodo;
  n.nBull[1] = 2;
  n.xBull(1, 1) = 40, n.yBull(1, 1) = 30, n.FiBull(1, 1) = 20;
  n.xBull(1, 2) = 100, n.yBull(1, 2) = 30, n.FiBull(1, 2) = 20;
  DisegnaFori(d.t, 1, 5, 7, -1, 2);
  const auto archi = prova::Archi(d.s);
  ASSERT_EQ(archi.size(), 2u);
  EXPECT_TRUE(Vicini(archi[0].centro, {-75, -53}));
  EXPECT_TRUE(Vicini(archi[1].centro, {-195, -53}));
  EXPECT_NEAR(archi[1].Diametro(), 41, 1e-9);
}

TEST(ProfiliBase, NoteDeiDiametri) {
  struct Caso {
    std::vector<double> diametri;
    double tolleranza;
    std::string fori, bulloni;
  };
  for (const Caso& c : {
           // The bolt note keeps the diameter sign between its values.
           Caso{{20, 16, 20, 16}, 0.5, "Fori ]20.5, ]16.5", "Bull. M20, ]16"},
           // Repeats are found anywhere in the text so far: 2 is already in "M20".
           Caso{{20, 2}, 0.5, "Fori ]20.5, ]2.5", "Bull. M20"},
           // One decimal, ties up: 12.25 -> 12.3, its hole 12.75 -> 12.8.
           Caso{{12.25}, 0.5, "Fori ]12.8", "Bull. M12.3"},
           Caso{{16, 24}, -1, "Fori ]17, ]25.5", "Bull. M16, ]24"},
           Caso{{}, 0.5, "", ""},
       }) {
    DisegnoProva d;
    d.s.opzioni[25] = c.tolleranza;
    Nodo& n = d.s.nodo;
    n.nBull[2] = static_cast<std::int16_t>(c.diametri.size());
    for (std::size_t k = 0; k < c.diametri.size(); ++k) {
      n.FiBull(2, static_cast<int>(k) + 1) = c.diametri[k];
    }
    EXPECT_EQ(NotaFori(d.s, 2), c.fori);
    EXPECT_EQ(NotaBulloni(d.s, 2), c.bulloni);
  }
}

}  // namespace
}  // namespace qf17
