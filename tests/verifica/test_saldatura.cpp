#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "verifica/saldatura.h"

namespace qf17 {
namespace {

struct ProvaSaldatura {
  explicit ProvaSaldatura(const std::string& acciaio) { sessione.nodo.acciaio.Nome = acciaio; }

  void Tensioni(double s, double tp, double tn) {
    Saldatura& w = sessione.nodo.Saldature(4, 1);
    w.SigPerp[3] = s;
    w.TauPar[3] = tp;
    w.TauPerp[3] = tn;
  }

  PiattaformaRegistrata piattaforma;
  Sessione sessione{piattaforma};
};

struct CasoRapporto {
  const char* nome;
  const char* acciaio;
  double s, tp, tn;
  double rapporto;
  std::int16_t ok;  // from 1
};

// Limit 1600. S 235: b1 = 0.85, b2 = 1; S 275 and S 355: b1 = 0.7, b2 = 0.85.
const CasoRapporto kCasi[] = {
    // All three: sqrt(1200^2 + 300^2 + 400^2) = 1300; 1300 / 0.85 / 1600 = 0.955882;
    // (1200 + 300) / 1 / 1600 = 0.9375. The larger.
    {"tutte", "S 235 (FE 360)", 300, 400, 1200, 0.955882, 1},
    // S 355, signs ignored: 1300 / 0.7 / 1600 = 1.160714 against (1200 + 300) / 0.85 / 1600 =
    // 1.102941.
    {"tutte S 355", "S 355 (FE 510)", 300, -400, -1200, 1.160714, 0},
    // s zero: sqrt(800^2 + 600^2) = 1000; 1000 / 0.85 / 1600 = 0.735294.
    {"senza s", "S 235 (FE 360)", 0, 600, 800, 0.735294, 1},
    // tn zero: sqrt(900^2 + 1200^2) = 1500; 1500 / 0.85 / 1600 = 1.102941.
    {"senza tn", "S 235 (FE 360)", 900, 1200, 0, 1.102941, 0},
    // s alone: 680 / 0.85 / 1600 = 0.5.
    {"solo s", "S 235 (FE 360)", -680, 0, 0, 0.5, 1},
    // tp alone: 340 / 0.85 / 1600 = 0.25.
    {"solo tp", "S 235 (FE 360)", 0, 340, 0, 0.25, 1},
    // tn alone: 1700 / 0.85 / 1600 = 1.25.
    {"solo tn", "S 235 (FE 360)", 0, 0, -1700, 1.25, 0},
    // Nothing: 0, the weld passes.
    {"nulla", "S 235 (FE 360)", 0, 0, 0, 0, 1},
    // tp zero: 800 / 0.85 / 1600 = 0.588235; 900 / 0.85 / 1600 = 0.661765;
    // (900 + 800) / 1 / 1600 = 1.0625.
    {"senza tp", "S 235 (FE 360)", 800, 0, 900, 1.0625, 0},
    // The same with S 275: 0.714286, 0.803571, 1700 / 0.85 / 1600 = 1.25.
    {"senza tp S 275", "S 275 (FE 430)", 800, 0, -900, 1.25, 0},
    // The name is compared in upper case.
    {"minuscolo", "s 275 (fe 430)", 0, 340, 0, 340 / 0.7 / 1600, 1},
};

TEST(Saldatura, RapportoPerComponenti) {
  for (const CasoRapporto& c : kCasi) {
    ProvaSaldatura p(c.acciaio);
    p.Tensioni(c.s, c.tp, c.tn);
    std::int16_t ok = 1;
    EsitoSaldatura e = VerificaSaldatura(p.sessione, 3, 4, 1, 1600, ok);
    EXPECT_TRUE(e.CoefficientiNoti) << c.nome;
    EXPECT_NEAR(e.Rapporto, c.rapporto, 1e-6) << c.nome;
    EXPECT_EQ(ok, c.ok) << c.nome;
  }
}

// A passing weld leaves an earlier failure standing.
TEST(Saldatura, OkNonRipristinato) {
  ProvaSaldatura p("S 235 (FE 360)");
  p.Tensioni(100, 0, 0);
  std::int16_t ok = 0;
  VerificaSaldatura(p.sessione, 3, 4, 1, 1600, ok);
  EXPECT_EQ(ok, 0);
}

// The printed values are rounded to one decimal; the tables keep theirs.
TEST(Saldatura, ValoriArrotondatiNonRiscritti) {
  ProvaSaldatura p("S 235 (FE 360)");
  p.Tensioni(123.44, 123.46, -12.34);
  std::int16_t ok = 1;
  EsitoSaldatura e = VerificaSaldatura(p.sessione, 3, 4, 1, 1600, ok);
  EXPECT_DOUBLE_EQ(e.Sig, 123.4);
  EXPECT_DOUBLE_EQ(e.TauPar, 123.5);
  EXPECT_DOUBLE_EQ(e.TauPerp, -12.3);  // Int(-123.4 + 0.5) = -123
  const Saldatura& w = p.sessione.nodo.Saldature(4, 1);
  EXPECT_EQ(w.SigPerp[3], 123.44);
  EXPECT_EQ(w.TauPar[3], 123.46);
  EXPECT_EQ(w.TauPerp[3], -12.34);
}

// A steel outside the three names has no coefficients: no ratio, and the weld does not pass,
// even unloaded. The match is exact.
TEST(Saldatura, AcciaioSconosciuto) {
  for (const char* nome : {"S 460", "S 235", "S 235 (FE 360) JR", " S 235 (FE 360)", ""}) {
    ProvaSaldatura p(nome);
    p.Tensioni(0, 10, 0);
    std::int16_t ok = 1;
    EsitoSaldatura e = VerificaSaldatura(p.sessione, 3, 4, 1, 1600, ok);
    EXPECT_FALSE(e.CoefficientiNoti) << nome;
    EXPECT_EQ(e.Rapporto, 0) << nome;
    EXPECT_EQ(ok, 0) << nome;
    EXPECT_DOUBLE_EQ(e.TauPar, 10) << nome;
  }
}

}  // namespace
}  // namespace qf17
