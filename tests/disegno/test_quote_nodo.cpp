// The node view's chains on a hand-built node where the samples' sheets do not reach: the weld
// dimensions, a base off the member's axis, a gusset without cuts, dimensions switched off.

#include <gtest/gtest.h>

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

// Chord UPN100 (b 50) at 0; gusset a 100, b 200, c 200, d 100, e f g 100, h 150, s 10, below the
// chord: C1 (300, -50), C2 (300, -150), C3 (200, -300), C4 (-200, -250), C5 (-300, -150),
// C6 (-300, -50). Member A: L60 (dBarX 15) at 90 degrees, side 0, inserted 100; edges x 15 and
// -45 cross side 3 (y = -x / 8 - 275) at -276.875 and -269.375, so the profile ends 100 above
// the higher: edges from y -169.375 to -269.375, points 3 at -269.375 - 250.
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
    n.Aste[1].Nome = "L60", n.Aste[1].h = 60, n.Aste[1].b = 60, n.Aste[1].dBarX = 15;
    n.Aste[1].Tipo = 1, n.Ast_flag[1] = 1, n.Ast_modo[1] = 0;
    n.Ast_lato[1] = 0, n.Ast_teta[1] = GradiInRadianti(90), n.Ast_coeff[1] = 1;
    n.Ast_ins[1] = 100;
    s.opzioni[27] = 0;  // circles: each dimension stores exactly one line
    GeometriaNodo(s);
  }

  TavolaDis tavola{s};
};

// Weld lengths 6 x 8 = 48 outside each edge (edge 1 on the positive side); the height across
// member A from its edges wherever across the base lies.
TEST_F(QuoteNodoTest, SaldatureEAltezzaFuoriAsse) {
  struct Caso {
    const char* nome;
    void (*catena)(Tavola&);
    Punto a, b;
    const char* testo;
  };
  const Caso casi[] = {
      {"Saldatura 1",
       [](Tavola& t) { QuotaSaldatura(t, 1, 1); },
       {63, -269.375},
       {63, -169.375},
       "100"},
      {"Saldatura 2",
       [](Tavola& t) { QuotaSaldatura(t, 1, 2); },
       {-93, -269.375},
       {-93, -169.375},
       "100"},
      {"AstaAltezza fuori asse",
       [](Tavola& t) { QuotaAstaAltezza(t, 1, 100, -500); },
       {-45, -500},
       {15, -500},
       "60"},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.nome);
    AzzeraDisegno(a);
    c.catena(tavola);
    EXPECT_EQ(Stringhe(a), std::vector<std::string>{c.testo});
    const auto linee = Linee(a);
    ASSERT_EQ(linee.size(), 1u);
    AttesoPunto(linee[0].a, c.a.x, c.a.y, "a");
    AttesoPunto(linee[0].b, c.b.x, c.b.y, "b");
  }
}

// The second row along the chord measures the plate's outline at the feet of the cuts that
// exist; with no cut there is none.
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

// The weld dimensions come last, only when asked for; dimensions off draw nothing at all.
TEST_F(QuoteNodoTest, QuoteNodoSaldatureESpente) {
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
    if (saldature) AttesoPunto(Linee(a)[16].a, 63, -269.375, "saldatura 1");
  }
  s.opzioni[15] = 0;
  AzzeraDisegno(a);
  QuoteNodo(tavola, stato);
  EXPECT_EQ(a.NumLinee + a.NumArchi + a.NumTesti, 0);
}

// Absolute degrees, truncated (not rounded) to two decimals.
TEST(TestoAngoloAsta, GradiAssolutiTroncatiADueDecimali) {
  struct Caso {
    double gradi;
    const char* testo;
  };
  for (const Caso c : {Caso{137, "137"}, Caso{-60, "60"}, Caso{12.349, "12.34"},
                       Caso{-12.349, "12.34"}, Caso{0.29, "0.29"}, Caso{0.001, "0"}}) {
    SCOPED_TRACE(c.gradi);
    EXPECT_EQ(TestoAngoloAsta(GradiInRadianti(c.gradi)), c.testo);
  }
}

}  // namespace
}  // namespace qf17
