#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "esempi_nodo.h"
#include "nodo/file_nodo.h"
#include "sessione_prova.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

using prova::CartellaEsempi;
using prova::LeggiTutto;

class EsempiNodo : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(prova::CaricaLibrerieInstallazione(s_));
    esempi_ = prova::EsempiNodo(s_);
    ASSERT_TRUE(p_.messaggi.empty()) << p_.messaggi[0].testo;
  }
  PiattaformaRegistrata p_;
  Sessione s_{p_};
  std::vector<prova::EsempioNodo> esempi_;
};

// Run by hand (--gtest_also_run_disabled_tests) after changing a sample's recipe.
TEST_F(EsempiNodo, DISABLED_Rigenera) {
  for (const auto& e : esempi_) {
    EXPECT_TRUE(ScriviNodo(e.nodo, CartellaEsempi() / e.file, p_, prova::OraEsempi()));
  }
}

TEST_F(EsempiNodo, SiApronoSenzaMessaggiESiRiscrivonoUguali) {
  prova::CartellaProva cartella;
  for (const auto& e : esempi_) {
    PiattaformaRegistrata p;
    Sessione s{p};
    ASSERT_TRUE(prova::CaricaLibrerieInstallazione(s));
    ASSERT_TRUE(ApriNodoDaFile(s, CartellaEsempi() / e.file)) << e.file;
    EXPECT_TRUE(p.messaggi.empty()) << e.file << ": " << p.messaggi[0].testo;
    const auto copia = cartella.percorso() / e.file;
    ASSERT_TRUE(ScriviNodo(s.nodo, copia, p, prova::OraEsempi()));
    EXPECT_EQ(LeggiTutto(copia), LeggiTutto(CartellaEsempi() / e.file)) << e.file;
  }
}

TEST_F(EsempiNodo, IVecchiFormatiSiAprono) {
  for (const char* file : {"VECCHIO1.qf7", "VECCHIO2.qf7"}) {
    PiattaformaRegistrata p;
    Sessione s{p};
    ASSERT_TRUE(prova::CaricaLibrerieInstallazione(s));
    EXPECT_TRUE(ApriNodoDaFile(s, CartellaEsempi() / file)) << file;
    EXPECT_TRUE(p.messaggi.empty()) << file;
    EXPECT_GT(s.nodo.Corrente.Area, 0) << file;
    EXPECT_GT(s.nodo.acciaio.fy, 0) << file;
  }
}

// The bolt-able area of a group: along the connected length, across the web between the
// flanges of a channel or the leg of an angle from its free edge.
struct AreaBullonata {
  double larghezza, altezza;
};
AreaBullonata Area(const Nodo& n, int gruppo) {
  const Profilo& p = gruppo == 0 ? n.Corrente : n.Aste[gruppo];
  const double l = gruppo == 0 ? n.Fz_a + n.Fz_b + n.Fz_c + n.Fz_d : n.Ast_ins[gruppo];
  return {l, p.Tipo == 0 ? p.h - 2 * p.e : p.h - p.e};
}

TEST_F(EsempiNodo, BulloniDaProgettista) {
  bool unoSLU = false;
  for (const auto& e : esempi_) {
    const Nodo& n = e.nodo;
    unoSLU = unoSLU || n.TipoVer == 1;
    for (int g = 0; g <= 3; ++g) {
      const AreaBullonata a = Area(n, g);
      for (int k = 1; k <= n.nBull[g]; ++k) {
        const double d = n.FiBull(g, k), x = n.xBull(g, k), y = n.yBull(g, k);
        const std::string dove =
            e.file + " gruppo " + std::to_string(g) + " bullone " + std::to_string(k);
        EXPECT_TRUE(d == 16 || d == 20) << dove;
        // Edge distances of at least 1.2 hole diameters inside the area.
        EXPECT_GE(x, 1.2 * (d + 1)) << dove;
        EXPECT_LE(x, a.larghezza - 1.2 * (d + 1)) << dove;
        EXPECT_GE(y, 1.2 * (d + 1)) << dove;
        EXPECT_LE(y, a.altezza - 1.2 * (d + 1)) << dove;
        for (int m = 1; m < k; ++m) {
          const double p = std::hypot(x - n.xBull(g, m), y - n.yBull(g, m));
          EXPECT_GE(p, 2.2 * (d + 1)) << dove << " e " << m;
        }
      }
    }
    for (int j = 1; j <= n.nSollAg; ++j) {
      EXPECT_FALSE(n.NomeSa[j].empty());
      for (int i = 1; i <= 3; ++i) EXPECT_LE(std::abs(n.SforzoNormale(i, j)), 40000) << e.file;
    }
  }
  EXPECT_TRUE(unoSLU);
  EXPECT_EQ(esempi_[2].nodo.nBull[0], 0);
  EXPECT_EQ(esempi_[3].nodo.nSollAg, 60);
}

}  // namespace
}  // namespace qf17
