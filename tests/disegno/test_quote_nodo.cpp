#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <string>
#include <vector>

#include "disegno/esecutivo/quote.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "disegno/esecutivo/tavola_dis.h"
#include "nodo/nodo.h"
#include "quote_prova.h"
#include "verifica/geometria.h"

namespace qf17 {
namespace {

using prova::AttesoPunto;
using prova::Linee;
using prova::Stringhe;

struct Segmento {
  Punto a, b;
};

// A hand-built node. Chord: channel h 100, b 50, at angle 0. Gusset a 100, b 200, c 200, d 100,
// e 100, f 100, g 100, h 150, s 10. Member A: an angle h = b = 60 with its centroid 15 from the
// back, vertical (90 degrees, pointing down), side 0, inserted 100. The gusset lies below the
// chord (P = -1), so its corners are C1 (300, -50), C2 (300, -150), C3 (200, -300),
// C4 (-200, -250), C5 (-300, -150), C6 (-300, -50).
//
// Member A's edges are x = 15 and x = -45. They cross side 3 (y = -x / 8 - 275) at
// E1 (15, -276.875) and E2 (-45, -269.375). T1 = E1 + (0, 100) - (60, 0) = (-45, -176.875) is
// farther from the node than T2 = E2 + (0, 100) = (-45, -169.375), so the profile ends on T2:
// edge 1 runs from (15, -169.375) to (15, -269.375), edge 2 from (-45, -169.375) to
// (-45, -269.375); both points 3 lie 250 (the larger gusset height) beyond, at y = -519.375.
class QuoteNodoTest : public ::testing::Test, public prova::SessioneQuote {
 protected:
  void SetUp() override {
    Nodo& n = s.nodo;
    n.Corrente.Nome = "UPN100", n.Corrente.h = 100, n.Corrente.b = 50, n.Corrente.dBarX = 50;
    n.Corrente.Tipo = 0;
    for (int i = 0; i <= 6; ++i) n.Ast_flag[i] = 0;
    n.Fz_a = 100, n.Fz_b = 200, n.Fz_c = 200, n.Fz_d = 100;
    n.Fz_e = 100, n.Fz_f = 100, n.Fz_g = 100, n.Fz_h = 150;
    n.Fz_s = 10;
    Asta(1, 90, AstModo::Singola, 60);
    s.opzioni[27] = 0;  // circles: each dimension stores exactly one line
  }
  void Asta(int i, double gradi, AstModo modo, double b) {
    Nodo& n = s.nodo;
    n.Aste[i].Nome = "L60", n.Aste[i].h = 60, n.Aste[i].b = b, n.Aste[i].dBarX = 15;
    n.Aste[i].Tipo = 1, n.Ast_flag[i] = 1, n.Ast_modo[i] = static_cast<std::int16_t>(modo);
    n.Ast_lato[i] = 0, n.Ast_teta[i] = GradiInRadianti(gradi), n.Ast_coeff[i] = 1;
    n.Ast_ins[i] = 100;
  }

  void AttesaCatena(const std::vector<Segmento>& segmenti, const std::vector<std::string>& testi) {
    EXPECT_EQ(Stringhe(a), testi);
    const auto linee = Linee(a);
    ASSERT_EQ(linee.size(), segmenti.size());
    for (std::size_t i = 0; i < linee.size(); ++i) {
      const std::string dove = "linea " + std::to_string(i);
      AttesoPunto(linee[i].a, segmenti[i].a.x, segmenti[i].a.y, dove);
      AttesoPunto(linee[i].b, segmenti[i].b.x, segmenti[i].b.y, dove);
    }
  }

  TavolaDis tavola{s};
};

// Each chain from a base of its own: stations sorted along the chain, one dimension between
// each two, lines from left to right or upward.
TEST_F(QuoteNodoTest, CateneDelCorrenteEDelFazzoletto) {
  struct Caso {
    const char* nome;
    std::function<void(Tavola&)> catena;
    std::vector<Segmento> segmenti;
    std::vector<std::string> testi;
  };
  const Caso casi[] = {
      // Across at x = -389: chord edge -50, then -50 - 100 (C5), -50 - 200 (C4), and
      // -50 - 250 (C3) since e + f = 200 < g + h = 250.
      {"AltezzeSx",
       [](Tavola& t) { QuotaAltezzeSx(t, -389, 0); },
       {{{-389, -300}, {-389, -250}}, {{-389, -250}, {-389, -150}}, {{-389, -150}, {-389, -50}}},
       {"50", "100", "100"}},
      // Across at x = 429: -50, -50 - 100 (C2), -50 - 250 (C3), the chord's far edge +50.
      {"AltezzeDx",
       [](Tavola& t) { QuotaAltezzeDx(t, 429, 0); },
       {{{429, -300}, {429, -150}}, {{429, -150}, {429, -50}}, {{429, -50}, {429, 50}}},
       {"150", "100", "100"}},
      // Along at y = 89: -300, -200, 0, 200, 300; then, both corners being cut, a row
      // 2 (10 + 8) + 8 / 2 = 40 farther from the gusset: -300, -200, 200, 300.
      {"Lunghezze",
       [](Tavola& t) { QuotaLunghezze(t, 0, 89); },
       {{{-300, 89}, {-200, 89}},
        {{-200, 89}, {0, 89}},
        {{0, 89}, {200, 89}},
        {{200, 89}, {300, 89}},
        {{-300, 129}, {-200, 129}},
        {{-200, 129}, {200, 129}},
        {{200, 129}, {300, 129}}},
       {"100", "200", "200", "100", "100", "400", "100"}},
      // B / 2 = 25 each side of the base.
      {"Corrente", [](Tavola& t) { QuotaCorrente(t, 455, 89); }, {{{430, 89}, {480, 89}}}, {"50"}},
      // Across member A at its base's height: the edges x = -45 and x = 15, measured from the
      // member's axis, wherever across the base lies.
      {"AstaAltezza",
       [](Tavola& t) { QuotaAstaAltezza(t, 1, 0, -500); },
       {{{-45, -500}, {15, -500}}},
       {"60"}},
      {"AstaAltezza fuori asse",
       [](Tavola& t) { QuotaAstaAltezza(t, 1, 100, -500); },
       {{{-45, -500}, {15, -500}}},
       {"60"}},
      // Along member A (downward) from the base: 0 and b = 60.
      {"AstaLarghezza",
       [](Tavola& t) { QuotaAstaLarghezza(t, 1, 0, -500); },
       {{{0, -560}, {0, -500}}},
       {"60"}},
      // Edge 1 lies on the member's positive side (x 15 > -45): 6 x 8 = 48 out, at x = 63.
      {"Saldatura 1",
       [](Tavola& t) { QuotaSaldatura(t, 1, 1); },
       {{{63, -269.375}, {63, -169.375}}},
       {"100"}},
      {"Saldatura 2",
       [](Tavola& t) { QuotaSaldatura(t, 1, 2); },
       {{{-93, -269.375}, {-93, -169.375}}},
       {"100"}},
  };
  GeometriaNodo(s);
  ASSERT_EQ(s.nodo.PosFazzoletto, -1);
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.nome);
    AzzeraDisegno(a);
    c.catena(tavola);
    AttesaCatena(c.segmenti, c.testi);
    EXPECT_EQ(a.QuotaAlterna, 0);
  }
}

// The second row along the chord measures the plate's outline only, at the feet of the cuts
// that exist; with no cut there is no second row.
TEST_F(QuoteNodoTest, SecondaFilaSoloConITagli) {
  struct Caso {
    double f, h;
    std::vector<std::string> testi;
  };
  const Caso casi[] = {
      {0, 0, {"100", "200", "200", "100"}},
      {100, 0, {"100", "200", "200", "100", "100", "500"}},
      {0, 150, {"100", "200", "200", "100", "500", "100"}},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(std::to_string(c.f) + " " + std::to_string(c.h));
    s.nodo.Fz_f = c.f;
    s.nodo.Fz_h = c.h;
    GeometriaNodo(s);
    AzzeraDisegno(a);
    QuotaLunghezze(tavola, 0, 89);
    EXPECT_EQ(Stringhe(a), c.testi);
  }
}

// Under an angle chord the gusset starts at the toe of the leg, H - dBarX = 70 from the axis:
// the chain's stations are the corners the outline has.
TEST_F(QuoteNodoTest, AltezzeSxSottoUnAngolare) {
  s.nodo.Corrente.Tipo = 1;
  s.nodo.Corrente.dBarX = 30;
  GeometriaNodo(s);
  QuotaAltezzeSx(tavola, -389, 0);
  AttesaCatena(
      {{{-389, -320}, {-389, -270}}, {{-389, -270}, {-389, -170}}, {{-389, -170}, {-389, -70}}},
      {"50", "100", "100"});
  // C3, C4, C5, C6 of the outline: the first ends of sides 3 to 6.
  const auto& lati = s.geometria.LatiFazzoletto;
  EXPECT_NEAR(lati[3].YP[1], -320, 1e-9);
  EXPECT_NEAR(lati[4].YP[1], -270, 1e-9);
  EXPECT_NEAR(lati[5].YP[1], -170, 1e-9);
  EXPECT_NEAR(lati[6].YP[1], -70, 1e-9);
}

// An opposite pair at 30 degrees (b 50): its four edges lie 65, 5, -5, -65 from the axis along
// the normal (sin 30, cos 30) = (0.5, 0.866); across the member the chain reads 60, 10, 60 and
// along it (cos 30, -sin 30) the two profiles and the gusset read 50, 10, 50. Base: 400 along
// the axis, (346.41, -200), or the same moved 100 across.
TEST_F(QuoteNodoTest, CoppiaOppostaAttraversoELungo) {
  s.nodo.Ast_flag[1] = 0;
  Asta(2, 30, AstModo::Opposta, 50);
  GeometriaNodo(s);
  const double c = std::sqrt(3.0) / 2;
  const Punto normale{0.5, c}, lungo{c, -0.5};
  const Punto base{400 * c, -200};
  auto su = [&](Punto dir, double d) { return base + d * dir; };
  for (const double fuori : {0.0, 100.0}) {
    SCOPED_TRACE(fuori);
    AzzeraDisegno(a);
    const Punto b = base + fuori * normale;
    QuotaAstaAltezza(tavola, 2, b.x, b.y);
    AttesaCatena({{su(normale, -65), su(normale, -5)},
                  {su(normale, -5), su(normale, 5)},
                  {su(normale, 5), su(normale, 65)}},
                 {"60", "10", "60"});
  }
  AzzeraDisegno(a);
  QuotaAstaLarghezza(tavola, 2, base.x, base.y);
  AttesaCatena({{su(lungo, 0), su(lungo, 50)},
                {su(lungo, 50), su(lungo, 60)},
                {su(lungo, 60), su(lungo, 110)}},
               {"50", "10", "50"});
}

// The whole node view, from view extents of -350..350 across the chord frame and
// MargineTabella 40: the left chain at -350 - 15 - 24 = -389, the right one at
// 350 + 40 + 15 + 24 = 429, the length chain at 1.3 x 50 + 24 = 89 above the chord, the chord's
// width at 1.3 x 300 + 40 + 25 = 455 along it; member A's chains 40 beyond its far end
// (y = -519.375 - 40), across it from its centre line, along it from the middle of its end.
TEST_F(QuoteNodoTest, QuoteNodoInOrdine) {
  GeometriaNodo(s);
  StatoEsecutivo stato;
  stato.MargineTabella = 40;
  const std::vector<std::string> catene{"50",  "100", "100", "150", "100", "100",
                                        "100", "200", "200", "100", "100", "400",
                                        "100", "50",  "90",  "60",  "60"};
  for (const bool saldature : {false, true}) {
    SCOPED_TRACE(saldature);
    s.opzioni.QuoteSaldature = saldature;
    AzzeraDisegno(a);
    AzzeraEstensioni(a);
    a.RuotMinX = -350;
    a.RuotMaxX = 350;
    QuoteNodo(tavola, stato);
    auto attesi = catene;
    if (saldature) attesi.insert(attesi.end(), {"100", "100"});
    EXPECT_EQ(Stringhe(a), attesi);
    const auto linee = Linee(a);
    ASSERT_EQ(linee.size(), attesi.size() - 1);  // the angle's text has no line
    AttesoPunto(linee[0].a, -389, -300, "sinistra");
    AttesoPunto(linee[3].a, 429, -300, "destra");
    AttesoPunto(linee[6].a, -300, 89, "lunghezze");
    AttesoPunto(linee[10].a, -300, 129, "tagli");
    AttesoPunto(linee[13].a, 430, 89, "corrente");
    AttesoPunto(linee[14].a, -45, -559.375, "altezza A");
    AttesoPunto(linee[14].b, 15, -559.375, "altezza A");
    AttesoPunto(linee[15].a, -15, -619.375, "larghezza A");
    AttesoPunto(linee[15].b, -15, -559.375, "larghezza A");
    if (saldature) AttesoPunto(linee[16].a, 63, -269.375, "saldatura 1");
  }
  // The member's arc, after the 14 dimensions' two circles each: diameter 3 x 2 x 8 = 48 round
  // the node, from the member (-90 degrees) to the X axis, in the dimension lines' colour.
  const auto archi = prova::Archi(a);
  ASSERT_GT(archi.size(), 28u);
  AttesoPunto(archi[28].centro, 0, 0, "arco");
  AttesoPunto(archi[28].inizio, 0, -24, "arco");
  EXPECT_NEAR(archi[28].fine.x, 24, 1e-6);
  EXPECT_NEAR(archi[28].fine.y, 0.0024, 1e-6);
  EXPECT_EQ(archi[28].colore, 4);
  // Its text, level, centred beyond the arc's middle (45 degrees down): the centre lies
  // 24 + (16 + 8) x 0.7071 / 2 + 2 = 34.485 out, (24.385, -24.385); the anchor 8 left and 4 below.
  const auto testi = prova::Testi(a);
  const double centro = (26 + 12 * std::sqrt(0.5)) * std::sqrt(0.5);
  AttesoPunto(testi[14].punto, centro - 8, -centro - 4, "angolo");
  EXPECT_EQ(testi[14].angolo, 0);
  EXPECT_EQ(testi[14].colore, 1);

  // Dimensions off: nothing at all.
  s.opzioni[15] = 0;
  AzzeraDisegno(a);
  QuoteNodo(tavola, stato);
  EXPECT_EQ(a.NumLinee + a.NumArchi + a.NumTesti, 0);
}

TEST(TestoAngoloAsta, GradiAssolutiTroncatiADueDecimali) {
  struct Caso {
    double gradi;
    const char* testo;
  };
  for (const Caso c :
       {Caso{45, "45"}, Caso{137, "137"}, Caso{-60, "60"}, Caso{33.333, "33.33"},
        Caso{12.349, "12.34"}, Caso{-12.349, "12.34"}, Caso{0.29, "0.29"}, Caso{0.001, "0"}}) {
    SCOPED_TRACE(c.gradi);
    EXPECT_EQ(TestoAngoloAsta(GradiInRadianti(c.gradi)), c.testo);
  }
}

}  // namespace
}  // namespace qf17
