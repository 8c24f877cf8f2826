// The gusset detail: hole coordinates in the plate's frame worked out by hand, their numbers,
// the two ways of giving the holes, and the detail multiplier.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "composizione_prova.h"
#include "disegno/esecutivo/fazzoletto_disegno.h"
#include "disegno/esecutivo/fazzoletto_interno.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "nodo/esempi_nodo.h"
#include "nodo/file_nodo.h"
#include "piattaforma/piattaforma_registrata.h"
#include "verifica/geometria.h"

namespace qf17 {
namespace {

using prova::ChiamataTavola;
using prova::Richiesta;

class FazzolettoDisegno : public ::testing::Test {
 protected:
  void Prepara(double teta) {
    prova::NodoAMano(s_, teta);
    prova::PreparaDisegno(s_);
    GeometriaNodo(s_);
  }
  void Dettaglio(int modo) {
    stato_->ModoForiFazzoletto = static_cast<std::int16_t>(modo);
    if (modo == 0) NumeraFori(s_, *stato_);
    DettaglioFazzoletto(t_, *stato_);
  }

  PiattaformaRegistrata p_;
  Sessione s_{p_};
  prova::TavolaComposizione t_{s_};
  std::unique_ptr<StatoEsecutivo> stato_ = std::make_unique<StatoEsecutivo>();
};

// The chord's bolts straight from their axes: X = x - (Fz_a + Fz_b), Y = (y - y0) x -P with
// y0 = 80 - 10.5 = 69.5 for the channel; the member's through its end on the gusset and its
// free edge, then into the chord's frame.
TEST_F(FazzolettoDisegno, CoordinateAMano) {
  struct Caso {
    double teta;
    int gruppo, k;
    double x, y;
  };
  const Caso casi[] = {
      // A member going down puts the gusset under the chord: P = -1.
      {90, 0, 1, 100 - 400, (70 - 69.5) * 1},
      {90, 0, 2, 700 - 400, (20 - 69.5) * 1},
      // Free edge at x = -(70 - 20), the end at -330 + 120; the bolt 30 across, 40 and 90 along.
      {90, 1, 1, -50 + 30, -210 - 40},
      {90, 1, 2, -50 + 30, -210 - 90},
      // A member going up: the gusset above, P = +1, and everything mirrored.
      {-90, 0, 1, -300, (70 - 69.5) * -1},
      {-90, 0, 2, 300, (20 - 69.5) * -1},
      {-90, 1, 1, 50 - 30, 210 + 40},
      {-90, 1, 2, 50 - 30, 210 + 90},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(std::to_string(c.teta) + " " + std::to_string(c.gruppo) + " " +
                 std::to_string(c.k));
    Prepara(c.teta);
    CoordinateFori(s_, *stato_, c.gruppo);
    EXPECT_NEAR(stato_->ForoX(c.gruppo, c.k), c.x, 1e-9);
    EXPECT_NEAR(stato_->ForoY(c.gruppo, c.k), c.y, 1e-9);
  }
}

// A turned chord changes nothing in the plate's frame, since the frame turns with it; the
// chord's holes keep their figures exactly.
TEST_F(FazzolettoDisegno, CorrenteInclinato) {
  Prepara(90);
  NumeraFori(s_, *stato_);
  const double x = stato_->ForoX(1, 2), y = stato_->ForoY(1, 2);
  const double c = GradiInRadianti(20);
  s_.nodo.Cor_teta = c;
  s_.nodo.Ast_teta[1] += c;
  GeometriaNodo(s_);
  NumeraFori(s_, *stato_);
  EXPECT_EQ(stato_->ForoX(0, 1), -300);
  EXPECT_EQ(stato_->ForoY(0, 1), 0.5);
  EXPECT_NEAR(stato_->ForoX(1, 2), x, 1e-9);
  EXPECT_NEAR(stato_->ForoY(1, 2), y, 1e-9);
}

// Numbers run on through the groups in the table's order: chord, then each member followed by
// its mirrored profile when opposed; a welded chord has none.
TEST_F(FazzolettoDisegno, Numerazione) {
  Prepara(90);
  Nodo& n = s_.nodo;
  n.Aste[2] = n.Aste[3] = n.Aste[1];
  n.Ast_teta[2] = GradiInRadianti(45);
  n.Ast_teta[3] = GradiInRadianti(135);
  n.Ast_ins[2] = n.Ast_ins[3] = 120;
  n.Ast_flag[2] = n.Ast_flag[3] = 1;
  n.Ast_modo[2] = 2;
  n.nBull[2] = 3;
  n.nBull[3] = 1;
  GeometriaNodo(s_);
  EXPECT_EQ(GruppiForiFazzoletto(s_), (std::vector<int>{0, 1, 2, 5, 3}));
  NumeraFori(s_, *stato_);
  const std::map<std::pair<int, int>, int> attesi = {
      {{0, 1}, 1}, {{0, 2}, 2}, {{1, 1}, 3}, {{1, 2}, 4},  {{2, 1}, 5}, {{2, 2}, 6},
      {{2, 3}, 7}, {{5, 1}, 8}, {{5, 2}, 9}, {{5, 3}, 10}, {{3, 1}, 11}};
  for (const auto& [gk, numero] : attesi) {
    EXPECT_EQ(stato_->ForoNumero(gk.first, gk.second), numero) << gk.first << " " << gk.second;
  }
  // The mirrored profile's holes lie across the member's axis from the first profile's.
  EXPECT_GT(std::hypot(stato_->ForoX(5, 1) - stato_->ForoX(2, 1),
                       stato_->ForoY(5, 1) - stato_->ForoY(2, 1)),
            1);
  n.Corrente.Tipo = 2;
  EXPECT_EQ(GruppiForiFazzoletto(s_), (std::vector<int>{1, 2, 5, 3}));
}

// "Disegna quote": chains and no numbers; "Disegna tabella coordinate": the numbers and the
// table's axes, no chain.
TEST_F(FazzolettoDisegno, QuoteOppureNumeri) {
  for (int modo : {1, 0}) {
    SCOPED_TRACE(modo);
    Prepara(90);
    t_.chiamate.clear();
    Dettaglio(modo);
    std::vector<std::string> numeri;
    for (const ChiamataTavola& c : t_.Di(Richiesta::Testo)) {
      if (c.classe == ClasseTesto::Quote) numeri.push_back(c.testo);
    }
    const auto quote = t_.Di(Richiesta::Quota);
    if (modo == 1) {
      EXPECT_TRUE(numeri.empty());
      EXPECT_FALSE(quote.empty());
      EXPECT_FALSE(t_.HaTesto("X"));
    } else {
      EXPECT_EQ(numeri, (std::vector<std::string>{"1", "2", "3", "4"}));
      EXPECT_TRUE(quote.empty());
      EXPECT_TRUE(t_.HaTesto("X"));
      EXPECT_TRUE(t_.HaTesto("Y"));
    }
    EXPECT_TRUE(t_.HaTesto("PARTICOLARE FAZZOLETTO"));
  }
}

// The chains of each group from the plate's edges, in true millimetres whatever the
// multiplier: along X the chord's holes at 100 and 700 of 800, the member's at 380; along Y the
// plate from -330 to the chord's far edge at 80, the chord's holes at 0.5 and -49.5, the
// member's at -250 and -300.
TEST_F(FazzolettoDisegno, CateneInMillimetriVeri) {
  for (double k : {1.0, 2.0}) {
    SCOPED_TRACE(k);
    Prepara(90);
    s_.opzioni[21] = k;
    t_.chiamate.clear();
    Dettaglio(1);
    std::vector<double> misure;
    for (const ChiamataTavola& c : t_.Di(Richiesta::Quota)) {
      EXPECT_DOUBLE_EQ(c.fattore, 1 / k);
      EXPECT_EQ(c.testo, "");
      misure.push_back(std::hypot(c.x2 - c.x1, c.y2 - c.y1) * c.fattore);
    }
    const std::vector<double> attese = {
        100,        600,        100,       // chord along X
        330 - 49.5, 49.5 + 0.5, 80 - 0.5,  // chord along Y
        380,        420,                   // member along X: 400 - 20
        30,         50,         250 + 80,  // member along Y: -330, -300, -250, 80
    };
    ASSERT_EQ(misure.size(), attese.size());
    for (std::size_t i = 0; i < attese.size(); ++i) EXPECT_NEAR(misure[i], attese[i], 1e-9) << i;
    // What the sheet reads, the title apart.
    std::vector<std::string> testi;
    const TabelleDisegno& d = s_.disegno.Tabelle();
    for (int i = 0; i < s_.disegno.NumTesti; ++i) testi.push_back(d.TestoStringa[i]);
    EXPECT_EQ(testi,
              (std::vector<std::string>{"100", "600", "100", "280.5", "50", "79.5", "380", "420",
                                        "30", "50", "330", "PARTICOLARE FAZZOLETTO"}));
  }
}

// The multiplier doubles the plate: its outline and its holes, and the detail's size.
TEST_F(FazzolettoDisegno, MoltiplicatoreRaddoppia) {
  double larghezza[2], altezza[2];
  std::vector<prova::CerchioLetto> cerchi[2];
  for (int i = 0; i < 2; ++i) {
    Prepara(90);
    s_.opzioni[21] = i + 1;
    Dettaglio(0);
    larghezza[i] = stato_->LargF;
    altezza[i] = stato_->AltF;
    cerchi[i] = prova::Cerchi(s_.disegno);
  }
  ASSERT_EQ(cerchi[0].size(), 4u);
  ASSERT_EQ(cerchi[1].size(), 4u);
  for (std::size_t j = 0; j < 4; ++j) {
    EXPECT_NEAR(cerchi[1][j].centro.x, 2 * cerchi[0][j].centro.x, 1e-9);
    EXPECT_NEAR(cerchi[1][j].centro.y, 2 * cerchi[0][j].centro.y, 1e-9);
    EXPECT_NEAR(cerchi[1][j].raggio, 2 * cerchi[0][j].raggio, 1e-9);
  }
  // The first hole: X -300 from the plate's left end at -400, 20.5 across.
  EXPECT_NEAR(cerchi[1][0].centro.x, 200, 1e-9);
  EXPECT_NEAR(cerchi[1][0].raggio, 20.5, 1e-9);
  EXPECT_GT(larghezza[1], 2 * 800 - 1);
  EXPECT_GT(larghezza[1], larghezza[0] + 790);
  EXPECT_GT(altezza[1], altezza[0] + 400);
}

// The plate as cut: its left end at x = 0 of the detail, the bolted chord under it over its
// whole height; the two deep corners level when both sides are equally deep.
TEST_F(FazzolettoDisegno, ContornoDellaPiastra) {
  struct Caso {
    double g, h;
    int tipo;
    double base, c3y;
  };
  const Caso casi[] = {
      // Channel, P = -1: the chord's edge at -80, its far edge at +80; C3 at -(80 + 250).
      {100, 150, 0, 80, -330},
      {150, 150, 0, 80, -380},
      // Welded chord: the plate stands on the flange at -80.
      {100, 150, 2, -80, -330},
  };
  for (const Caso& c : casi) {
    Prepara(90);
    s_.nodo.Fz_g = c.g;
    s_.nodo.Fz_h = c.h;
    s_.nodo.Corrente.Tipo = static_cast<std::int16_t>(c.tipo);
    const auto angoli = AngoliFazzoletto(s_.nodo);
    EXPECT_EQ(angoli[0].y, c.base);
    EXPECT_EQ(angoli[5].y, c.base);
    EXPECT_EQ(angoli[2].y, c.c3y);
    EXPECT_EQ(angoli[3].y, -330);
    EXPECT_EQ(angoli[5].x, -400);
    EXPECT_EQ(angoli[0].x, 400);
  }
}

// Where the member and the chord lie on the plate, dashed in the section colour: the member's
// two edges (x = 20 and -50, 400 + x on the detail) from its end at -210 down to the plate's
// lower side at -330, its end, and the chord's edge at -80 across the plate.
TEST_F(FazzolettoDisegno, TracceDelleAste) {
  Prepara(90);
  Dettaglio(1);
  struct Tratto {
    Punto a, b;
  };
  const Tratto attesi[] = {
      {{420, -210}, {420, -330}},
      {{350, -210}, {350, -330}},
      {{420, -210}, {350, -210}},
      {{0, -80}, {800, -80}},
  };
  const ArchivioDisegno& a = s_.disegno;
  const TabelleDisegno& d = a.Tabelle();
  auto vicino = [](Punto p, Punto q) { return std::hypot(p.x - q.x, p.y - q.y) < 1e-6; };
  for (const Tratto& t : attesi) {
    int trovati = 0;
    for (int i = 0; i < a.NumLinee; ++i) {
      const Punto p{d.CoordX[d.LinP1[i]], d.CoordY[d.LinP1[i]]};
      const Punto q{d.CoordX[d.LinP2[i]], d.CoordY[d.LinP2[i]]};
      if ((vicino(p, t.a) && vicino(q, t.b)) || (vicino(p, t.b) && vicino(q, t.a))) {
        ++trovati;
        EXPECT_EQ(d.LinTipo[i], 4);
        EXPECT_EQ(d.LinColore[i], 3);
      }
    }
    EXPECT_EQ(trovati, 1) << t.a.x << " " << t.a.y << " - " << t.b.x << " " << t.b.y;
  }
}

// FITTO (beside the golden sheets) has M12 holes (12.5) 28 apart in rows 28 apart on the chord
// and on member B: a number written at a fixed corner of its hole would stand nearer the next
// hole than its own. With the holes numbered for the table, at the multipliers 1 and 2, every
// number's box (its characters' cells, one text height up from its baseline) keeps clear of
// every hole and stands nearer to its own hole than to any other; the holes are the detail's
// circles, drawn in the order of the numbers.
TEST(FazzolettoNumeri, GruppoFittoOgniNumeroPressoIlSuoForo) {
  for (const double k : {1.0, 2.0}) {
    SCOPED_TRACE(k);
    PiattaformaRegistrata p;
    Sessione s{p};
    ASSERT_TRUE(prova::CaricaLibrerieInstallazione(s));
    const auto file = std::filesystem::path(QF17_DATI_TEST) / "disegno" / "dati" / "FITTO.qf7";
    ASSERT_TRUE(ApriNodoDaFile(s, file));
    s.opzioni[21] = k;
    prova::PreparaDisegno(s);
    GeometriaNodo(s);
    prova::TavolaComposizione t{s};
    auto stato = std::make_unique<StatoEsecutivo>();
    stato->ModoForiFazzoletto = 0;
    NumeraFori(s, *stato);
    DettaglioFazzoletto(t, *stato);

    const std::vector<prova::CerchioLetto> fori = prova::Cerchi(s.disegno);
    std::vector<ChiamataTavola> numeri;
    for (const ChiamataTavola& c : t.Di(Richiesta::Testo)) {
      if (c.classe == ClasseTesto::Quote) numeri.push_back(c);
    }
    ASSERT_EQ(fori.size(), 53u);
    ASSERT_EQ(numeri.size(), fori.size());
    const double w = t.Larghezza(ClasseTesto::Quote), h = t.Altezza(ClasseTesto::Quote);
    for (const ChiamataTavola& c : numeri) {
      SCOPED_TRACE(c.testo);
      const auto proprio = static_cast<std::size_t>(std::stoi(c.testo) - 1);
      const double x2 = c.x1 + static_cast<double>(c.testo.size()) * w, y2 = c.y1 + h;
      auto margine = [&](const prova::CerchioLetto& f) {
        const double dx = std::max({c.x1 - f.centro.x, 0.0, f.centro.x - x2});
        const double dy = std::max({c.y1 - f.centro.y, 0.0, f.centro.y - y2});
        return std::hypot(dx, dy) - f.raggio;
      };
      const double mio = margine(fori[proprio]);
      EXPECT_GT(mio, 0);
      for (std::size_t j = 0; j < fori.size(); ++j) {
        if (j == proprio) continue;
        EXPECT_GT(margine(fori[j]), mio) << "hole " << j + 1;
      }
    }
  }
}

TEST(FazzolettoTagliaContorno, IncrocioSulLato) {
  struct Caso {
    Punto a1, a2, b1, b2;
    int atteso;
    Punto incrocio;
  };
  const Caso casi[] = {
      {{0, 0}, {10, 0}, {5, 5}, {5, 6}, 1, {5, 0}},     // the line crosses the side
      {{0, 0}, {10, 0}, {10, 5}, {10, 6}, 1, {10, 0}},  // at its end
      {{0, 0}, {10, 0}, {11, 5}, {11, 6}, 0, {}},       // beyond its end
      {{0, 0}, {10, 0}, {0, 1}, {10, 1}, 0, {}},        // parallel
      {{0, 0}, {10, 10}, {0, 10}, {10, 0}, 1, {5, 5}},
  };
  for (const Caso& c : casi) {
    Punto p{-1, -1};
    EXPECT_EQ(TagliaContorno(c.a1, c.a2, c.b1, c.b2, p), c.atteso);
    if (c.atteso == 1) {
      EXPECT_NEAR(p.x, c.incrocio.x, 1e-12);
      EXPECT_NEAR(p.y, c.incrocio.y, 1e-12);
    }
  }
}

}  // namespace
}  // namespace qf17
