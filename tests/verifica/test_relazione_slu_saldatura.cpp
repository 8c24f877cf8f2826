#include <gtest/gtest.h>

#include <string>

#include "test_relazione_slu_prova.h"

namespace qf17::prova {
namespace {

// The small node with an H chord welded to a 50 mm gusset. The steel's yield strength is 2000
// (20000 in the job's unit), 1875 over 40 mm: the gusset takes 1875 / 1.25 = 1500, the weld
// 2000 whatever the thickness.
class RelazioneSLUSaldatura : public RelazioneSLUPiccola {
 protected:
  RelazioneSLUSaldatura() {
    Nodo& n = s.nodo;
    n.Corrente = ProfiloRelazione("HEA  200", 2, 190, 200, 6.5, 10);
    n.Fz_s = 50;
    n.Lato_Sald = 5;
    Saldatura& w = n.Saldature(4, 1);
    w.Nome = "Sald. corrente";
    w.Sld_L = 300;
    n.acciaio.fy = 2000;
    n.acciaio.fy40 = 1875;
  }

  void Tensioni(double sig, double tauPar, double tauPerp) {
    Saldatura& w = s.nodo.Saldature(4, 1);
    w.SigPerp[1] = sig;
    w.TauPar[1] = tauPar;
    w.TauPerp[1] = tauPerp;
  }
};

constexpr char kIntestazione[] =
    "Saldatura corrente\r\n"
    "SEq-1, SLim-1: NTC 2008, 4.2.8.2.4 formula (4.2.78)\r\n"
    "SEq-2, SLim-2: NTC 2008, 4.2.8.2.4 formula (4.2.79)\r\n"
    "Nome                |     S_prp|    Tau_pa|    Tau_pe|     SEq-1|     SEq-2|    SLim-1|"
    "    SLim-2|Ver|\r\n";

// Coefficients by the grade found anywhere in the steel's name: 235 gives 0.85 and 1.0; 275 or
// 355 give 0.7 and 0.85; 420, 450 or 460 give 0.62 and 0.75; limits on the yield strength 2000.
// SEq-1 = sqrt(tn^2 + s^2 + tp^2), SEq-2 = |tn| + |s|; all shown x 10.
TEST_F(RelazioneSLUSaldatura, CoefficientiPerGradoNelNome) {
  struct Caso {
    const char* acciaio;
    double sig, tauPar, tauPerp;
    const char* riga;
    bool ok;
    double rapporto;
  };
  const Caso casi[] = {
      // Lower case and extra words still hold 235. SEq-1 = sqrt(49 + 576) = 25, SEq-2 = 31.
      {"s235jr (fe 360) laminato", -24, 0, -7,
       "     -240.|        0.|      -70.|      250.|      310.|    17000.|    20000.|SI'|", true,
       31.0 / 2000},
      // SEq-1 = sqrt(1500^2 + 1000^2) = 1802.77563773 over 0.7 x 2000 = 1400.
      {"S 355 (FE 510)", 1500, 1000, 0,
       "    15000.|    10000.|        0.|18027.7564|    15000.|    14000.|    17000.| NO|", false,
       1802.7756377319947 / 1400},
      // SEq-1 = sqrt(1640000) = 1280.62484749 passes 1400; SEq-2 = 1800 fails 1700.
      {"S 275 (FE 430)", 1000, 0, 800,
       "    10000.|        0.|     8000.|12806.2485|    18000.|    14000.|    17000.| NO|", false,
       1800.0 / 1700},
      // 1200 within 0.62 x 2000 = 1240.
      {"S460NL", 1200, 0, 0,
       "    12000.|        0.|        0.|    12000.|    12000.|    12400.|    15000.|SI'|", true,
       1200.0 / 1240},
      {"S450", 1240.5, 0, 0,
       "    12405.|        0.|        0.|    12405.|    12405.|    12400.|    15000.| NO|", false,
       1240.5 / 1240},
      {"S 420 ML", 0, 0, 0,
       "        0.|        0.|        0.|        0.|        0.|    12400.|    15000.|SI'|", true,
       0},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.acciaio);
    p.messaggi.clear();
    s.nodo.acciaio.Nome = c.acciaio;
    Tensioni(c.sig, c.tauPar, c.tauPerp);
    ASSERT_TRUE(Esegui());
    const std::string atteso =
        kIntestazione + std::string("Sald. corrente      |") + c.riga + "\r\n\r\nVerifica profili";
    EXPECT_EQ(Tratto(Relazione(), "Saldatura corrente", "\r\n\r\nVerifica profili") +
                  "\r\n\r\nVerifica profili",
              atteso);
    EXPECT_EQ(verdetti.SetOk[1], c.ok);
    EXPECT_TRUE(verdetti.SaldaturaVerificabile[1]);
    EXPECT_NEAR(verdetti.RapportoSaldatura[1], c.rapporto, 1e-12);
    EXPECT_EQ(p.messaggi.size(), 1u) << "set 2 fails in any case";
  }
}

// A steel of no known grade has no coefficients: the weld line says it cannot be checked and
// the set fails, even with no stress in the weld.
TEST_F(RelazioneSLUSaldatura, AcciaioDiGradoSconosciuto) {
  s.nodo.acciaio.Nome = "S 500 Q";
  Set2Verificato();  // set 2 then fails on its weld alone
  Tensioni(0, 0, 0);
  ASSERT_TRUE(Esegui());
  EXPECT_EQ(Tratto(Relazione(), "Saldatura corrente", "\r\n\r\nVerifica profili"),
            kIntestazione +
                std::string("Sald. corrente      |        0.|        0.|        0.|        0.|"
                            "        0.|         -|         -| NO| Saldatura non verificabile: "
                            "acciaio S 500 Q sconosciuto alla regola delle saldature"));
  EXPECT_FALSE(verdetti.SaldaturaVerificabile[1]);
  EXPECT_EQ(verdetti.SetOk, (std::vector<bool>{true, false, false}));
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].testo, "ATTENZIONE: nodo non verificato!");
}

}  // namespace
}  // namespace qf17::prova
