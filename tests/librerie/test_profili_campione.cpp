#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

#include "librerie/libreria_profili.h"
#include "piattaforma/file_testo.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

const fs::path kCampione = fs::path(QF17_INSTALLAZIONE) / "custom" / "Prof_pro";
constexpr double kPi = 3.14159265358979;

class LibreriaCampione : public ::testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(LeggiProfili(lib_, kCampione)); }
  const Profilo& Riga(const std::string& nome) {
    return lib_.Profili[ProfiloDaNome(lib_, nome, piattaforma_)];
  }
  LibreriaProfili lib_;
  PiattaformaRegistrata piattaforma_;
};

TEST_F(LibreriaCampione, Composizione) {
  EXPECT_EQ(lib_.NumProfili1, 18 + 24 + 24);  // IPE 80-600, HEA and HEB 100-1000
  EXPECT_EQ(lib_.NumProfili2, 16 + 41 + 60);  // UPN 80-400, unequal and equal angles
  EXPECT_EQ(lib_.Profili[1].Nome, "IPE80");
  EXPECT_EQ(lib_.Profili[66].Nome, "HEB1000");
  EXPECT_EQ(lib_.Profili[67].Nome, "UPN80");
  EXPECT_EQ(lib_.Profili[lib_.NumProfiliTot].Nome, "LU200x20");
  // the names the node and the panel use, and families that no pass reaches
  for (const char* nome : {"IPE140", "HEA200", "HEB300", "UPN120", "LU60x6", "LD80x60x7"}) {
    EXPECT_NE(ProfiloDaNome(lib_, nome, piattaforma_), 0) << nome;
  }
  EXPECT_TRUE(piattaforma_.messaggi.empty());
  for (const char* nome : {"INP200", "UB203x133x25", "TUBO114.3x4"}) {
    EXPECT_EQ(ProfiloDaNome(lib_, nome, piattaforma_), 0) << nome;
  }
  EXPECT_EQ(ListaAste(lib_).size(), 117u);
  EXPECT_EQ(ListaAste(lib_).front(), 67);
}

// Published figures of the European tables, checked by hand against the catalogues; the file
// holds cm2 and cm4, memory mm2 and mm4.
TEST_F(LibreriaCampione, ValoriPubblicati) {
  struct Cifra {
    const char* nome;
    double Area, I1, I2;  // cm2, cm4, cm4 (0: not checked)
  };
  const Cifra cifre[] = {
      {"IPE200", 28.5, 1943, 142},
      {"HEA200", 53.8, 3692, 1336},
      {"UPN200", 32.2, 1910, 148},
      {"LU60x6", 6.91, 22.8, 22.8},
  };
  for (const auto& c : cifre) {
    const Profilo& p = Riga(c.nome);
    SCOPED_TRACE(c.nome);
    EXPECT_NEAR(p.Area, c.Area * 100, 0.006 * c.Area * 100);
    EXPECT_NEAR(p.I1, c.I1 * 1e4, 0.004 * c.I1 * 1e4);
    EXPECT_NEAR(p.I2, c.I2 * 1e4, 0.004 * c.I2 * 1e4);
  }
  // Centroids: UPN200 e_y = 2.01 cm from the back of the web (dropped later by
  // CompletaProfili), L60x6 c = 1.69 cm from the back of either leg.
  EXPECT_NEAR(Riga("UPN200").dBarY, 20.1, 0.05);
  EXPECT_DOUBLE_EQ(Riga("UPN200").dBarX, 100);
  EXPECT_NEAR(Riga("LU60x6").dBarX, 16.9, 0.05);
  EXPECT_NEAR(Riga("LU60x6").dBarY, 16.9, 0.05);
  // IPE200 dimensions h 200, b 100, tw 5.6, tf 8.5, r 12; torsion constant 6.98 cm4.
  const Profilo& ipe = Riga("IPE200");
  EXPECT_EQ((std::vector<double>{ipe.h, ipe.b, ipe.a, ipe.e, ipe.r1}),
            (std::vector<double>{200, 100, 5.6, 8.5, 12}));
  EXPECT_NEAR(ipe.I3, 6.98e4, 0.01e4);
  // LD80x60x7: A 9.38 cm2, centroid 2.51 cm along the long leg and 1.52 cm along the short one.
  const Profilo& ld = Riga("LD80x60x7");
  EXPECT_NEAR(ld.Area, 938, 1);
  EXPECT_NEAR(ld.dBarX, 25.1, 0.05);
  EXPECT_NEAR(ld.dBarY, 15.2, 0.05);
  EXPECT_TRUE(piattaforma_.messaggi.empty());
}

// Every row's area agrees with its own dimensions: for a parallel-flange I or H
// A = 2 b tf + (h - 2 tf) tw + (4 - pi) r^2, for an angle A = t (h + b - t) + (1 - pi/4)(r1^2 -
// 2 r2^2), both exact for the rolled outline; a channel's tapered flanges are within 1.5 % of
// 2 b tf + (h - 2 tf) tw. So a mistyped dimension or area in the file shows.
TEST_F(LibreriaCampione, AreeCoerentiConLeDimensioni) {
  for (int i = 1; i <= lib_.NumProfiliTot; ++i) {
    const Profilo& p = lib_.Profili[i];
    SCOPED_TRACE(p.Nome);
    if (i <= lib_.NumProfili1) {
      double area = 2 * p.b * p.e + (p.h - 2 * p.e) * p.a + (4 - kPi) * p.r1 * p.r1;
      EXPECT_NEAR(p.Area, area, 1.0);
    } else if (p.Nome.starts_with("UPN")) {
      double area = 2 * p.b * p.e + (p.h - 2 * p.e) * p.a;
      EXPECT_NEAR(p.Area, area, 0.015 * area);
    } else {
      double area = p.a * (p.h + p.b - p.a) + (1 - kPi / 4) * (p.r1 * p.r1 - 2 * p.r2 * p.r2);
      EXPECT_NEAR(p.Area, area, 1.0);
      EXPECT_DOUBLE_EQ(p.r2, p.r1 / 2);
    }
    EXPECT_GT(p.I1, 0);
    EXPECT_GE(p.I1, p.I2);
    EXPECT_GT(p.I3, 0);
  }
}

TEST(LibreriaCampioneFile, Windows1252ConCrLf) {
  auto byte = LeggiByte(fs::path(QF17_SORGENTI) / "installazione" / "custom" / "Prof_pro");
  ASSERT_TRUE(byte);
  const std::string& b = *byte;
  ASSERT_TRUE(b.ends_with("*END*\r\n"));
  for (std::size_t i = 0; i < b.size(); ++i) {
    if (b[i] == '\n') {
      ASSERT_TRUE(i > 0 && b[i - 1] == '\r') << "byte " << i;
    }
  }
  EXPECT_NE(b.find("cm\xB2"), std::string::npos);  // the square sign of the heading, one byte
}

}  // namespace
}  // namespace qf17
