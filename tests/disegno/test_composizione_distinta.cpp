// The bill of materials on the hand-written node with the holes numbered, which adds the
// coordinate table the samples' sheets lack (table texts 10 x 10, rows 15 apart, cell texts 2.5
// over their row's lower line), a welded chord, and the counts of profiles and holes.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "composizione_prova.h"
#include "disegno/esecutivo/composizione.h"
#include "disegno/esecutivo/fazzoletto_disegno.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "piattaforma/piattaforma_registrata.h"
#include "verifica/geometria.h"

namespace qf17 {
namespace {

using prova::ChiamataTavola;
using prova::Richiesta;
using Righe = std::vector<std::vector<std::string>>;

class DistintaTabelle : public ::testing::Test {
 protected:
  void SetUp() override {
    prova::NodoAMano(s_, 90);
    prova::PreparaDisegno(s_);
  }
  // The tables with the holes numbered (o24 0) or dimensioned (1), the geometry run first as
  // the composition does.
  void Disegna(int modo) {
    GeometriaNodo(s_);
    stato_->ModoForiFazzoletto = static_cast<std::int16_t>(modo);
    if (modo == 0) NumeraFori(s_, *stato_);
    fondo_ = DisegnaDistinta(t_, *stato_);
  }
  // The cell texts grouped by the rows they were written on, from the top.
  Righe RigheScritte() const {
    Righe r;
    double y = 1e300;
    for (const ChiamataTavola& c : t_.Di(Richiesta::TestoCentrato)) {
      if (c.y1 != y) r.emplace_back();
      y = c.y1;
      r.back().push_back(c.testo);
    }
    return r;
  }

  PiattaformaRegistrata p_;
  Sessione s_{p_};
  prova::TavolaComposizione t_{s_};
  std::unique_ptr<StatoEsecutivo> stato_ = std::make_unique<StatoEsecutivo>();
  double fondo_ = 0;
};

// Chord holes: 100 - (150 + 250) = -300, (70 - (80 - 10.5)) x 1 = 0.5; 700 - 400, 20 - 69.5.
// Member at 90 degrees, its end 120 above the plate's lower side (-330), its free edge 50 left
// of the axis: (-50 + 30, -210 - 40) and (-50 + 30, -210 - 90). Holes d + 0.5.
TEST_F(DistintaTabelle, QuattroTabelleEPoiLeCoordinate) {
  Disegna(0);
  const Righe attese = {
      {"Prof.", "num.", "h", "b", "a", "e"},
      {"UPN160", "2", "160", "65", "7.5", "10.5"},  // a channel chord: one on each face
      {"LU70x7", "1", "70", "70", "7", "7"},
      {"N. fazz.", "l", "h", "s"},
      {"1", "800", "410", "10"},  // 150 + 250 + 250 + 150; max(100 + 150, 100 + 150) + 160
      {"N. bull.", "fi", "Classe", "] Foro"},
      {"2", "20", "8.8", "20.5"},
      {"2", "16", "8.8", "16.5"},
      {"n°", "X", "Y", "] Foro"},
      {"1", "-300", "0.5", "20.5"},
      {"2", "300", "-49.5", "20.5"},
      {"3", "-20", "-250", "16.5"},
      {"4", "-20", "-300", "16.5"},
  };
  EXPECT_EQ(RigheScritte(), attese);
  // Tables 2 rows apart: 3 rows to -45, 2 from -75, 3 from -135, the coordinates from -210 with
  // 5 rows down to -285. Columns: the longest text + 2 characters: "n°" 4, "-300" 6, "-49.5" 7,
  // "] Foro" 8.
  struct Cella {
    std::string testo;
    double x1, x2, y;
  };
  const Cella celle[] = {{"n°", 0, 40, -225},
                         {"-300", 40, 100, -240},
                         {"-49.5", 100, 170, -255},
                         {"] Foro", 170, 250, -225}};
  for (const Cella& a : celle) {
    SCOPED_TRACE(a.testo);
    int trovate = 0;
    for (const ChiamataTavola& c : t_.Di(Richiesta::TestoCentrato)) {
      if (c.testo != a.testo || c.y1 != a.y) continue;
      ++trovate;
      EXPECT_DOUBLE_EQ(c.x1, a.x1);
      EXPECT_DOUBLE_EQ(c.x2, a.x2);
      EXPECT_DOUBLE_EQ(c.distanza, 2.5);
      EXPECT_EQ(c.classe, ClasseTesto::Distinta);
    }
    EXPECT_EQ(trovate, 1);
  }
  EXPECT_DOUBLE_EQ(fondo_, -285);
}

// A welded chord: one profile, the gusset's height without the chord's, the weld table with the
// one weld of the joint (numbered 1, the plate's length along the chord 150 + 250 + 250 + 150,
// the leg 6), and no chord bolts among the holes even when the group still holds some.
TEST_F(DistintaTabelle, CorrenteSaldato) {
  s_.nodo.Corrente.Tipo = 2;
  s_.nodo.Corrente.Nome = "HEA160";
  Disegna(1);
  const Righe attese = {
      {"Prof.", "num.", "h", "b", "a", "e"},
      {"HEA160", "1", "160", "65", "7.5", "10.5"},
      {"LU70x7", "1", "70", "70", "7", "7"},
      {"N. fazz.", "l", "h", "s"},
      {"1", "800", "250", "10"},
      {"Sald.", "lungh", "lato"},
      {"1", "800", "6"},
      {"N. bull.", "fi", "Classe", "] Foro"},
      {"2", "16", "8.8", "16.5"},
  };
  EXPECT_EQ(RigheScritte(), attese);
}

// The gusset's height is the deeper of its two sides, whichever it is.
TEST_F(DistintaTabelle, AltezzaFazzoletto) {
  struct Caso {
    double e, f, g, h;
    std::string altezza;
  };
  const Caso casi[] = {
      {120, 180, 100, 150, "460"},  // left deeper: 300 + 160
      {80, 120, 100, 150, "410"},   // right deeper: 250 + 160
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.altezza);
    SetUp();
    s_.nodo.Fz_e = c.e, s_.nodo.Fz_f = c.f, s_.nodo.Fz_g = c.g, s_.nodo.Fz_h = c.h;
    t_.chiamate.clear();
    Disegna(1);
    EXPECT_EQ(RigheScritte()[4], (std::vector<std::string>{"1", "800", c.altezza, "10"}));
  }
}

// Members of one section share a row; a double or opposite member is two profiles; an absent
// member is not listed.
TEST(DistintaListaProfili, ConteggiPerSezione) {
  struct Asta {
    const char* nome;
    int flag, modo;
  };
  struct Caso {
    std::vector<Asta> aste;
    std::vector<std::pair<std::string, int>> attesa;
  };
  const Caso casi[] = {
      {{{"LU70x7", 1, 0}, {"LU70x7", 1, 0}, {"LU60x6", 1, 0}}, {{"LU70x7", 2}, {"LU60x6", 1}}},
      {{{"LU70x7", 1, 1}, {"LU60x6", 1, 0}, {"LU70x7", 0, 0}}, {{"LU70x7", 2}, {"LU60x6", 1}}},
      {{{"LU60x6", 1, 2}, {"LU70x7", 1, 0}, {"LU60x6", 1, 1}}, {{"LU60x6", 4}, {"LU70x7", 1}}},
      {{{"LU60x6", 0, 0}, {"LU70x7", 0, 0}, {"LU60x6", 0, 0}}, {}},
  };
  for (const Caso& c : casi) {
    PiattaformaRegistrata p;
    Sessione s(p);
    for (int i = 1; i <= 3; ++i) {
      s.nodo.Aste[i].Nome = c.aste[i - 1].nome;
      s.nodo.Ast_flag[i] = static_cast<std::int16_t>(c.aste[i - 1].flag);
      s.nodo.Ast_modo[i] = static_cast<std::int16_t>(c.aste[i - 1].modo);
    }
    EXPECT_EQ(ListaProfili(s), c.attesa);
  }
}

// Bolts by diameter in the order met: chord, A, B, C; an opposite member's bolts twice, a
// welded chord's none, an absent member's none.
TEST(DistintaListaFori, ConteggiPerDiametro) {
  PiattaformaRegistrata p;
  Sessione s(p);
  Nodo& n = s.nodo;
  auto bulloni = [&](int g, std::vector<double> diametri) {
    n.nBull[g] = 0;
    for (double d : diametri) n.FiBull(g, ++n.nBull[g]) = d;
  };
  bulloni(0, {20, 20, 24});
  bulloni(1, {16, 20});
  bulloni(2, {16, 16});
  bulloni(3, {12});
  n.Ast_flag[1] = n.Ast_flag[2] = 1;
  n.Ast_modo[2] = 2;
  using Lista = std::vector<std::pair<double, int>>;
  EXPECT_EQ(ListaFori(s), (Lista{{20, 3}, {24, 1}, {16, 5}}));
  n.Corrente.Tipo = 2;
  EXPECT_EQ(ListaFori(s), (Lista{{16, 5}, {20, 1}}));
  n.Ast_flag[3] = 1;
  n.Ast_modo[1] = 1;
  EXPECT_EQ(ListaFori(s), (Lista{{16, 5}, {20, 1}, {12, 1}}));
}

}  // namespace
}  // namespace qf17
