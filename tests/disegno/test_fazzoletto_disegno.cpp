// The gusset detail where the samples' sheets (chains, multiplier 1) do not reach: a gusset
// above the chord, the holes numbered for the table, the multiplier 2, a crowded group.

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

// A member going up puts the gusset above the chord (P = +1). Chord bolts: X = x - (Fz_a + Fz_b),
// Y = (y - y0) x -P, y0 = 80 - 10.5; the member's from its free edge (50 - 30 across) and its end
// 210 above the axis (40 and 90 along).
TEST_F(FazzolettoDisegno, CoordinateAMano) {
  struct Caso {
    int gruppo, k;
    double x, y;
  };
  Prepara(-90);
  for (const Caso& c : {Caso{0, 1, -300, (70 - 69.5) * -1}, Caso{0, 2, 300, (20 - 69.5) * -1},
                        Caso{1, 1, 50 - 30, 210 + 40}, Caso{1, 2, 50 - 30, 210 + 90}}) {
    SCOPED_TRACE(std::to_string(c.gruppo) + " " + std::to_string(c.k));
    CoordinateFori(s_, *stato_, c.gruppo);
    EXPECT_NEAR(stato_->ForoX(c.gruppo, c.k), c.x, 1e-9);
    EXPECT_NEAR(stato_->ForoY(c.gruppo, c.k), c.y, 1e-9);
  }
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

// "Disegna tabella coordinate": the numbers and the table's axes, no chain.
TEST_F(FazzolettoDisegno, NumeriSenzaCatene) {
  Prepara(90);
  Dettaglio(0);
  std::vector<std::string> numeri;
  for (const ChiamataTavola& c : t_.Di(Richiesta::Testo)) {
    if (c.classe == ClasseTesto::Quote) numeri.push_back(c.testo);
  }
  EXPECT_EQ(numeri, (std::vector<std::string>{"1", "2", "3", "4"}));
  EXPECT_TRUE(t_.Di(Richiesta::Quota).empty());
  EXPECT_TRUE(t_.HaTesto("X"));
  EXPECT_TRUE(t_.HaTesto("Y"));
}

// At the multiplier 2 the plate is drawn double (wider than 2 x 800) but each chain reads true
// millimetres (factor 1/2): along X the chord's holes at 100 and 700 of 800, the member's at 380;
// along Y the plate from -330 to the chord's far edge at 80, the chord's holes at 0.5 and -49.5,
// the member's at -250 and -300.
TEST_F(FazzolettoDisegno, CateneInMillimetriVeri) {
  Prepara(90);
  s_.opzioni[21] = 2;
  Dettaglio(1);
  std::vector<double> misure;
  for (const ChiamataTavola& c : t_.Di(Richiesta::Quota)) {
    EXPECT_DOUBLE_EQ(c.fattore, 0.5);
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
  std::vector<std::string> testi;
  const TabelleDisegno& d = s_.disegno.Tabelle();
  for (int i = 0; i < s_.disegno.NumTesti; ++i) testi.push_back(d.TestoStringa[i]);
  EXPECT_EQ(testi, (std::vector<std::string>{"100", "600", "100", "280.5", "50", "79.5", "380",
                                             "420", "30", "50", "330", "PARTICOLARE FAZZOLETTO"}));
  EXPECT_GT(stato_->LargF, 2 * 800);
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
      auto margine = [&](const prova::CerchioLetto& f) {
        return prova::MargineDalForo(c, w, h, f);
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
