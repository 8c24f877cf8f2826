#include <gtest/gtest.h>

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

}  // namespace
}  // namespace qf17
