#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

#include "librerie/conversioni_unita.h"
#include "librerie/formatta.h"
#include "librerie/token.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {
namespace {

struct Riga {
  const char* comando;
  double fattore;
  int spostamento;
};

void Verifica(const Riga& r) {
  PiattaformaRegistrata p;
  double v = 1;
  int s = 99;
  ASSERT_TRUE(ConvertiUnita(v, r.comando, s, p)) << r.comando;
  EXPECT_NEAR(v, r.fattore, std::fabs(r.fattore) * 1e-12) << r.comando;
  EXPECT_EQ(s, r.spostamento) << r.comando;
  EXPECT_TRUE(p.messaggi.empty());
}

// The rows whose factors and shifts the family fixed: the shift rule must give them back.
TEST(ConversioniUnita, RigheFisseDellaFamiglia) {
  const Riga righe[] = {
      {"(cu_m_cm)", 100, -2},
      {"(cu_cm_in)", 0.39370079, -1},
      {"(cu_in_cm)", 2.539999983236, 1},
      {"(cu_cm_ft)", 0.032808399, -2},
      {"(cu_ft_cm)", 30.479999953670397, 2},
      {"(cu_kgf_n)", 9.80665, -1},
      {"(cu_n_kgf)", 1 / 9.80665, 1},
      {"(cu_kgf_dan)", 0.980665, 0},
      {"(cu_dan_kn)", 0.01, 2},
      {"(cu_kgf_lbf)", 2.2046223, 1},
      {"(cu_lbf_dan)", 0.44482222036595, -1},
      {"(cu_dan/cm2_n/mm2)", 0.1, 1},
  };
  for (const Riga& r : righe) Verifica(r);
}

// Factors from g = 9.80665, 1 in = 2.54 cm, 1 ft = 30.48 cm, 1 lbf = 0.45359237 kgf,
// 1 atm = 101325 Pa, worked out by hand.
TEST(ConversioniUnita, AltreRigheDaiCampioni) {
  const Riga righe[] = {
      // length and area
      {"(cu_cm_mm)", 10, -1},  // not taken for cm_m, which comes first
      {"(cu_mm_m)", 0.001, 3},
      {"(cu_in2_cm2)", 6.4516, 1},
      {"(cu_cm4_mm4)", 10000, -4},
      // force
      {"(cu_kn_dan)", 100, -2},
      {"(cu_tf_kgf)", 1000, -3},
      {"(cu_dan_lbf)", 10 / (0.45359237 * 9.80665), 1},
      // moment: 1 kgf cm = 9.80665 N x 0.01 m
      {"(cu_kgfcm_nm)", 0.0980665, 1},
      {"(cu_danm_dancm)", 100, -2},
      {"(cu_lbfin_kgfcm)", 0.45359237 * 2.54, 1},
      // force per length: 10 N/cm = 1000 N/m
      {"(cu_dan/cm_kn/m)", 1, 0},
      {"(cu_kgf/cm_N/mm)", 0.980665, 0},
      {"(cu_dan/cm_kn/mm)", 0.001, 3},  // not taken for dan/cm_kn/m
      // stress: 1 kgf/cm2 = 98066.5 Pa
      {"(cu_kgf/cm2_mpa)", 0.0980665, 1},
      {"(cu_dan/cm2_kpa)", 100, -2},
      {"(cu_mpa_dan/cm2)", 10, -1},
      {"(cu_lbf/in2_kgf/cm2)", 0.45359237 / 6.4516, -2},
      {"(cu_kgf/cm2_atm)", 98066.5 / 101325, 0},
      {"(cu_dan/cm2_dyn/m2)", 1e10, -10},
      // weight per volume
      {"(cu_kn/m3_dan/cm3)", 1e-4, 4},
      {"(cu_kgf/m3_kgf/cm3)", 1e-6, 6},
      {"(cu_dan/cm3_kgf/m3)", 10 / 9.80665 * 1e6, -6},
      {"(cu_lbf/ft3_kgf/cm3)", 0.45359237 / 28316.846592, -5},
      // speed and conductivity
      {"(cu_cm/s_km/h)", 0.036, 1},
      {"(cu_w/mk_w/cmk)", 0.01, 2},
      // no conversion
      {"(cu_||)", 1, 0},
  };
  for (const Riga& r : righe) Verifica(r);
}

TEST(ConversioniUnita, PrimaChiaveTrovataInQualsiasiMaiuscolo) {
  PiattaformaRegistrata p;
  double v = 2;
  int s = 0;
  // Two keys in one string: the one earlier in the table wins, wherever it stands.
  ASSERT_TRUE(ConvertiUnita(v, "(CD_02)(CU_DAN_KN)(cu_m_cm)", s, p));
  EXPECT_DOUBLE_EQ(v, 200);
  EXPECT_EQ(s, -2);
}

// Every row: a known key in lower case, reachable by its own command, with a positive factor
// and the shift of the rule.
TEST(ConversioniUnita, OgniRigaRaggiungibile) {
  const auto tabella = TabellaConversioni();
  ASSERT_EQ(tabella.size(), 297u);
  EXPECT_EQ(tabella.front().chiave, "m_cm");
  EXPECT_EQ(tabella[tabella.size() - 2].chiave, "W/cmK_W/mK");
  EXPECT_EQ(tabella.back().chiave, "||");
  std::set<std::string> viste;
  for (const auto& riga : tabella) {
    EXPECT_TRUE(viste.insert(Minuscolo(riga.chiave)).second) << riga.chiave;
    EXPECT_GT(riga.fattore, 0) << riga.chiave;
    PiattaformaRegistrata p;
    double v = 1;
    int s = 99;
    ASSERT_TRUE(ConvertiUnita(v, "(cu_" + std::string(riga.chiave) + ")", s, p));
    EXPECT_EQ(v, riga.fattore) << riga.chiave;
    EXPECT_EQ(s, riga.spostamento) << riga.chiave;
  }
  // A pair and its inverse: factors multiply to one, up to the rounding of the fixed rows.
  for (std::size_t i = 1; i + 1 < tabella.size(); ++i) {
    const std::string k = Minuscolo(tabella[i].chiave);
    const auto u = k.find('_');
    const std::string inversa = k.substr(u + 1) + "_" + k.substr(0, u);
    for (const auto& altra : tabella) {
      if (Minuscolo(altra.chiave) == inversa) {
        EXPECT_NEAR(tabella[i].fattore * altra.fattore, 1, 1e-6) << k;
      }
    }
  }
}

}  // namespace
}  // namespace qf17
