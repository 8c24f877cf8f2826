// The bill of materials: headings, rows, counts and the place of each cell, worked out by hand
// on the hand-written node (options of a fresh installation: table texts 10 wide and 10 high,
// rows 15 apart, cell texts 2.5 over their row's lower line).

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

TEST_F(DistintaTabelle, QuattroTabelleEPoiLeCoordinate) {
  struct Caso {
    int modo;
    Righe attese;
  };
  const Righe comuni = {
      {"Prof.", "num.", "h", "b", "a", "e"},
      // A channel chord is a pair, one on each face of the gusset.
      {"UPN160", "2", "160", "65", "7.5", "10.5"},
      {"LU70x7", "1", "70", "70", "7", "7"},
      // Length 150 + 250 + 250 + 150; height max(100 + 150, 100 + 150) + 160.
      {"N. fazz.", "l", "h", "s"},
      {"1", "800", "410", "10"},
      // The channel chord is bolted: no weld, no weld table.
      // Holes 20 + 0.5 and 16 + 0.5.
      {"N. bull.", "fi", "Classe", "] Foro"},
      {"2", "20", "8.8", "20.5"},
      {"2", "16", "8.8", "16.5"},
  };
  Righe numerate = comuni;
  // Chord: 100 - (150 + 250) = -300, (70 - (80 - 10.5)) x 1 = 0.5; 700 - 400, 20 - 69.5.
  // Member at 90 degrees: its end on the gusset 120 above the plate's lower side (-330), its
  // free edge 50 left of the axis: (-50 + 30, -210 - 40) and (-50 + 30, -210 - 90).
  for (Righe coordinate : {Righe{{"n°", "X", "Y", "] Foro"},
                                 {"1", "-300", "0.5", "20.5"},
                                 {"2", "300", "-49.5", "20.5"},
                                 {"3", "-20", "-250", "16.5"},
                                 {"4", "-20", "-300", "16.5"}}}) {
    numerate.insert(numerate.end(), coordinate.begin(), coordinate.end());
  }
  for (const Caso& c : {Caso{1, comuni}, Caso{0, numerate}}) {
    SCOPED_TRACE(c.modo);
    SetUp();
    t_.chiamate.clear();
    Disegna(c.modo);
    EXPECT_EQ(RigheScritte(), c.attese);
  }
}

// Tables 2 rows apart: table 1 has 3 rows (to -45), table 2 starts at -75 and has 2, the bolts
// (no weld table on a bolted chord) at -135 with 3, the coordinates at -210 with 5, down to
// -285.
TEST_F(DistintaTabelle, PostoDelleCelle) {
  Disegna(0);
  struct Cella {
    std::string testo;
    double x1, x2, y;
  };
  // Table 1: "Prof." (6 + 2) x 10 = 80 wide, "num." 60, the four sizes raised to 100 by the
  // member row. Tables 2 to 5: longest text + 2 characters ("s" + 1): "N. fazz." 10, "800" 5,
  // "s" 3; "N. bull." 10, "fi" 4, "Classe" 8, "] Foro" 8; "n°" 4, "-300" 6, "-49.5"
  // 7, "] Foro" 8.
  const Cella attese[] = {
      {"Prof.", 0, 80, -15},      {"num.", 80, 140, -15},     {"h", 140, 240, -15},
      {"e", 440, 540, -15},       {"LU70x7", 0, 80, -45},     {"N. fazz.", 0, 100, -90},
      {"l", 100, 150, -90},       {"s", 200, 230, -90},       {"10", 200, 230, -105},
      {"N. bull.", 0, 100, -150}, {"] Foro", 220, 300, -150}, {"16.5", 220, 300, -180},
      {"n°", 0, 40, -225},        {"-49.5", 100, 170, -255},  {"] Foro", 170, 250, -225},
      {"-300", 40, 100, -240},
  };
  const auto celle = t_.Di(Richiesta::TestoCentrato);
  for (const Cella& a : attese) {
    SCOPED_TRACE(a.testo + " " + std::to_string(a.y));
    bool trovata = false;
    for (const ChiamataTavola& c : celle) {
      if (c.testo != a.testo || c.y1 != a.y) continue;
      trovata = true;
      EXPECT_DOUBLE_EQ(c.x1, a.x1);
      EXPECT_DOUBLE_EQ(c.x2, a.x2);
      EXPECT_DOUBLE_EQ(c.y2, a.y);
      EXPECT_DOUBLE_EQ(c.distanza, 2.5);
      EXPECT_EQ(c.classe, ClasseTesto::Distinta);
      EXPECT_EQ(c.colore, 6);
    }
    EXPECT_TRUE(trovata);
  }
  EXPECT_DOUBLE_EQ(fondo_, -285);
}

// The ruling: one line for each row boundary and each column boundary, in the section colour.
TEST_F(DistintaTabelle, Griglia) {
  const std::vector<double> colonne{80, 60, 100};
  GrigliaTabella(t_, 10, -20, 15, 3, colonne);
  const TabelleDisegno& d = s_.disegno.Tabelle();
  ASSERT_EQ(s_.disegno.NumLinee, 4 + 4);
  auto punto = [&](std::int32_t i) { return Punto{d.CoordX[i], d.CoordY[i]}; };
  // Rows: y = -20, -35, -50, -65 from x 10 to 250.
  for (int r = 0; r < 4; ++r) {
    EXPECT_EQ(punto(d.LinP1[r]).y, -20 - 15 * r);
    EXPECT_EQ(punto(d.LinP1[r]).x, 10);
    EXPECT_EQ(punto(d.LinP2[r]).x, 250);
    EXPECT_EQ(d.LinColore[r], 3);
  }
  // Columns: x = 10, 90, 150, 250 from -20 to -65.
  const double xs[] = {10, 90, 150, 250};
  for (int c = 0; c < 4; ++c) {
    EXPECT_EQ(punto(d.LinP1[4 + c]).x, xs[c]);
    EXPECT_EQ(punto(d.LinP1[4 + c]).y, -20);
    EXPECT_EQ(punto(d.LinP2[4 + c]).y, -65);
  }
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
      {100, 150, 100, 150, "410"},  // equal sides: 250 + 160
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
