#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <memory>
#include <numbers>
#include <string>
#include <vector>

#include "disegno/leggi_font.h"
#include "disegno/tratti_testo.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

class FontTest : public ::testing::Test {
 protected:
  void SetUp() override { font_ = std::make_unique<FontTratti>(); }

  fs::path Scrivi(const std::string& byte) { return spazio_.Scrivi("font.001", byte); }

  prova::CartellaProva spazio_;
  const fs::path cartella_ = spazio_.percorso();
  std::unique_ptr<FontTratti> font_;
};

struct PuntoAtteso {
  int x, y;
};

TEST_F(FontTest, ContaPuntiELeggeLeCoordinate) {
  const std::string testo =
      "15\r\n"
      "A10203040\r\n"                    // 9 characters: one stroke
      "B102030405060\r\n"                // 13: 12/8 = 1.5 rounds to 2 strokes, last point blank
      "C10203040    \r\n"                // trailing blanks do not count
      "D1020\r\n"                        // 5: 4/8 = 0.5 rounds to even, no stroke
      "E11223344556677889900\r\n"        // 21: 20/8 = 2.5 rounds to 2 strokes
      "F1122334455667788990011223344\n"  // 29: 3.5 rounds to 4 strokes; LF alone ends a line too
      "\r\n"                             // an empty line is no glyph
      "H1a2b x y\r\n"                    // non-digits by the leading-number rule
      " \r\n"                            // the blank: present, no stroke
      "\xE8"
      "05 7-3\r\n";  // a byte of the code page: è; " 7" and "-3" are numbers, the rest blank
  ASSERT_TRUE(LeggiFont(*font_, Scrivi(testo)));
  EXPECT_EQ(font_->FontStrizione, 15);

  struct Caso {
    unsigned char car;
    int punti;
    std::vector<PuntoAtteso> primi;
  };
  const Caso casi[] = {
      {'A', 2, {{10, 20}, {30, 40}}},
      {'B', 4, {{10, 20}, {30, 40}, {50, 60}, {0, 0}}},
      {'C', 2, {{10, 20}, {30, 40}}},
      {'D', 0, {}},
      {'E', 4, {{11, 22}, {33, 44}, {55, 66}, {77, 88}}},
      {'F', 8, {{11, 22}, {33, 44}, {55, 66}, {77, 88}, {99, 0}, {11, 22}, {33, 44}, {0, 0}}},
      {'H', 2, {{1, 2}, {0, 0}}},
      {' ', 0, {}},
      {0xE8, 2, {{5, 7}, {-3, 0}}},
  };
  for (const auto& c : casi) {
    SCOPED_TRACE(static_cast<int>(c.car));
    EXPECT_EQ(font_->FontNumPunti[c.car], c.punti);
    for (std::size_t i = 0; i < c.primi.size(); ++i) {
      EXPECT_EQ(font_->FontX[c.car][i], c.primi[i].x) << "punto " << i;
      EXPECT_EQ(font_->FontY[c.car][i], c.primi[i].y) << "punto " << i;
    }
  }
  EXPECT_EQ(font_->FontCar['A'], "A");
  EXPECT_EQ(font_->FontCar[0xE8], "è");
  for (int assente : {0, int{'G'}, int{'Z'}, 0xE9, 255}) {
    EXPECT_EQ(font_->FontNumPunti[static_cast<std::size_t>(assente)], -1) << assente;
    EXPECT_EQ(font_->FontCar[static_cast<std::size_t>(assente)], "") << assente;
  }
}

TEST_F(FontTest, UnaRigaOltreCentoPuntiSiFermaACento) {
  std::string riga = "M";
  for (int i = 0; i < 60; ++i) riga += "12345678";
  ASSERT_TRUE(LeggiFont(*font_, Scrivi("0\r\n" + riga + "\r\n")));
  EXPECT_EQ(font_->FontNumPunti['M'], 100);
  EXPECT_EQ(font_->FontX['M'][99], 56);
  EXPECT_EQ(font_->FontY['M'][99], 78);
  EXPECT_EQ(font_->FontX['M'][100], 0);  // the spare row is never filled
}

TEST_F(FontTest, FileMancanteODannoso) {
  font_->FontStrizione = 7;
  font_->FontNumPunti['A'] = 4;
  EXPECT_FALSE(LeggiFont(*font_, cartella_ / "assente.001"));
  EXPECT_FALSE(LeggiFont(*font_, cartella_));  // a folder is no font
  for (const char* dannoso :
       {"", "\r\n", "abc\r\nA10203040\r\n", "150\r\nA10203040\r\n", "-5\r\n", "1e999\r\n"}) {
    EXPECT_FALSE(LeggiFont(*font_, Scrivi(dannoso))) << dannoso;
  }
  // A failed reading leaves the font as it was.
  EXPECT_EQ(font_->FontStrizione, 7);
  EXPECT_EQ(font_->FontNumPunti['A'], 4);
  // A head with nothing after it is an empty font, not a damaged one.
  ASSERT_TRUE(LeggiFont(*font_, Scrivi("12")));
  EXPECT_EQ(font_->FontStrizione, 12);
  EXPECT_EQ(font_->FontNumPunti['A'], -1);
}

// Every printable character and the accented ones have strokes inside the cell; how they are
// drawn is pinned by the samples' SVG sheets.
TEST_F(FontTest, IlFontDellInstallazioneHaTuttiICaratteri) {
  const fs::path file = fs::path(QF17_SORGENTI) / "installazione" / "progra" / "font.001";
  ASSERT_TRUE(LeggiFont(*font_, file));
  EXPECT_EQ(font_->FontStrizione, 10);
  EXPECT_EQ(font_->FontNumPunti[' '], 0);
  std::vector<int> codici;
  for (int c = 33; c <= 126; ++c) codici.push_back(c);
  for (int c : {0xE0, 0xE8, 0xE9, 0xEC, 0xF2, 0xF9, 0xB0}) codici.push_back(c);
  for (int c : codici) {
    auto k = static_cast<std::size_t>(c);
    SCOPED_TRACE(c);
    ASSERT_GT(font_->FontNumPunti[k], 0);
    for (int i = 0; i < font_->FontNumPunti[k]; ++i) {
      auto j = static_cast<std::size_t>(i);
      EXPECT_TRUE(font_->FontX[k][j] >= 0 && font_->FontX[k][j] <= 99);
      EXPECT_TRUE(font_->FontY[k][j] >= 0 && font_->FontY[k][j] <= 99);
    }
  }
  EXPECT_EQ(font_->FontNumPunti[0x7F], -1);
}

// The family writes the diameter sign as "]" ("Fori ]20.5"), and the installation's font draws
// it so: a ring of 16 strokes closed on itself and a slash. Drawn as wide as high (the
// installation's text sizes), 10 by 10 from the origin, the ring is round, 0.3 of the height in
// radius, centred in the character's cell half way up the capitals (5, 5); the slash rises to
// the right at 45 degrees through that centre and passes the ring at both ends.
TEST_F(FontTest, LaParentesiChiusaEIlSegnoDiDiametro) {
  const fs::path file = fs::path(QF17_SORGENTI) / "installazione" / "progra" / "font.001";
  ASSERT_TRUE(LeggiFont(*font_, file));
  std::vector<Tratto> tratti = TrattiTesto(*font_, "]", 0, 0, 0, 10, 10);
  ASSERT_EQ(tratti.size(), 17u);
  auto lunghezza = [](const Tratto& t) { return std::hypot(t.x2 - t.x1, t.y2 - t.y1); };
  const auto piuLungo = std::max_element(
      tratti.begin(), tratti.end(),
      [&](const Tratto& a, const Tratto& b) { return lunghezza(a) < lunghezza(b); });
  const Tratto barra = *piuLungo;
  tratti.erase(piuLungo);

  double cx = 0, cy = 0;
  for (const Tratto& t : tratti) cx += t.x1 / 16, cy += t.y1 / 16;
  EXPECT_NEAR(cx, 5, 0.05);
  EXPECT_NEAR(cy, 5, 0.05);
  for (const Tratto& t : tratti) {
    EXPECT_NEAR(std::hypot(t.x1 - cx, t.y1 - cy), 3, 0.1);
    // Each stroke ends where another begins: the ring is closed.
    EXPECT_EQ(std::count_if(tratti.begin(), tratti.end(),
                            [&](const Tratto& u) { return u.x1 == t.x2 && u.y1 == t.y2; }),
              1);
  }
  const double dx = barra.x2 - barra.x1, dy = barra.y2 - barra.y1;
  EXPECT_GT(dx * dy, 0) << "rises to the right";
  EXPECT_NEAR(std::abs(dy / dx), 1, 0.05);
  const double dalCentro =
      std::abs(dy * (cx - barra.x1) - dx * (cy - barra.y1)) / std::hypot(dx, dy);
  EXPECT_LT(dalCentro, 0.1);
  EXPECT_GT(std::hypot(barra.x1 - cx, barra.y1 - cy), 3.5);
  EXPECT_GT(std::hypot(barra.x2 - cx, barra.y2 - cy), 3.5);
}

}  // namespace
}  // namespace qf17
