#include <gtest/gtest.h>

#include <string>

#include "test_relazione_ta_prova.h"

namespace qf17::prova {
namespace {

// The small node with an I chord welded to the gusset, one load set, a weld stressed only
// along its length (TauPar): the ratio is then |TauPar| / 0.85 / Lim for the S 235 steel.
class RelazioneTASaldatura : public RelazioneTAPiccola {
 protected:
  RelazioneTASaldatura() {
    Nodo& n = s.nodo;
    n.Corrente = ProfiloRelazione("HEA200", 2, 190, 200, 6.5, 10), n.nBull[0] = 0;
    n.Saldature(4, 1).Nome = "S1", n.Saldature(4, 1).Sld_L = 300, n.Lato_Sald = 5;
    n.acciaio.SAmm = 1600, n.nSollAg = 1;
  }
  void Sollecita(double tauPar) {
    Saldatura& sald = s.nodo.Saldature(4, 1);
    sald.TauPar[1] = tauPar;
    sald.SigPerp[1] = 0;
    sald.TauPerp[1] = 0;
  }
  // The set's lines from the weld's title to the bearing check, which follows it.
  std::string BloccoSaldatura() const {
    std::string t = Relazione();
    std::size_t da = t.find("\r\n\r\n\tSaldatura corrente\r\n");
    std::size_t a = t.find("\r\n\r\n\tVerifica a rifollamento\r\n");
    if (da == std::string::npos || a == std::string::npos) return "";
    return t.substr(da + 2, a - da);
  }
};

constexpr const char* kTitoliSaldatura =
    "\r\n\tSaldatura corrente\r\n\tNome\tS_prp\tTau_pa\tTau_pe\t% su adm\r\n";

// The limit is c x SAmm whatever the gusset's thickness; the verdict takes the unrounded
// ratio, so that 1.004 prints 1 and fails, and a weld over its limit has no failure line.
TEST_F(RelazioneTASaldatura, RapportoELimite) {
  struct Caso {
    int caso;
    double s;
    double tauPar;
    const char* riga;
    bool setOk;
    double rapporto;
  };
  const Caso casi[] = {
      // 1365.44 / 0.85 / 1600 = 1.004; Arrot2: Int(100.4 + 0.5) / 100 = 1; Arrot1(1365.44) =
      // 1365.4, shown x 10.
      {0, 10, 1365.44, "\tS1\t 0\t 13654\t 0\t 1\r\n", false, 1.004},
      // Case II over 40 mm: Lim = 1.125 x 1600 = 1800 (not SAmm40); 1500 / 0.85 / 1800 =
      // 0.98039, shown 0.98.
      {1, 50, 1500, "\tS1\t 0\t 15000\t 0\t 0.98\r\n", true, 1500 / 0.85 / 1800},
      // A ratio of 0.996 rounds up to 1 and passes: 1354.56 / 0.85 / 1600 = 0.996.
      {0, 10, 1354.56, "\tS1\t 0\t 13546\t 0\t 1\r\n", true, 0.996},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.riga);
    p.messaggi.clear();
    RiempiRisultati();
    s.nodo.CasoCarico[1] = static_cast<std::int16_t>(c.caso);
    s.nodo.Fz_s = c.s;
    Sollecita(c.tauPar);
    ASSERT_TRUE(Esegui());
    EXPECT_EQ(BloccoSaldatura(), std::string(kTitoliSaldatura) + c.riga);
    EXPECT_EQ(verdetti.SetOk[1], c.setOk);
    EXPECT_EQ(verdetti.NodoKo, !c.setOk);
    EXPECT_EQ(p.messaggi.size(), c.setOk ? 0u : 1u);
    EXPECT_NEAR(verdetti.RapportoSaldatura[1], c.rapporto, 1e-12);
    EXPECT_EQ(Relazione().find("NON VERIFICATA"), std::string::npos);
  }
}

TEST_F(RelazioneTASaldatura, AcciaioSconosciutoAllaRegola) {
  s.nodo.acciaio.Nome = "S 460";
  Sollecita(100);
  ASSERT_TRUE(Esegui());
  EXPECT_EQ(BloccoSaldatura(),
            std::string(kTitoliSaldatura) +
                "\tSaldatura non verificabile: acciaio S 460 sconosciuto alla regola delle "
                "saldature\r\n\tTensione NON VERIFICATA\r\n");
  EXPECT_FALSE(verdetti.SetOk[1]);
  EXPECT_FALSE(verdetti.SaldaturaVerificabile[1]);
  EXPECT_TRUE(verdetti.NodoKo);
  EXPECT_EQ(p.messaggi.size(), 1u);
}

}  // namespace
}  // namespace qf17::prova
