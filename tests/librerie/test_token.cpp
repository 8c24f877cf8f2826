#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "librerie/token.h"

namespace qf17 {
namespace {

TEST(Token, CampiSeparatiDaBlanchiETab) {
  std::string riga = "  LU \t 60x6   6.91  22.8\t";
  std::vector<std::string> campi;
  for (std::string c = ProssimoToken(riga); !c.empty(); c = ProssimoToken(riga)) {
    campi.push_back(c);
  }
  EXPECT_EQ(campi, (std::vector<std::string>{"LU", "60x6", "6.91", "22.8"}));
  EXPECT_EQ(riga, "");
}

TEST(Token, SeparatoreDiversoDalBlank) {
  std::string riga = "a,,b c,";
  EXPECT_EQ(ProssimoToken(riga, ','), "a");
  EXPECT_EQ(ProssimoToken(riga, ','), "");
  EXPECT_EQ(ProssimoToken(riga, ','), "b c");
  EXPECT_EQ(riga, "");
}

TEST(Token, ContaToken) {
  EXPECT_EQ(ContaToken(""), 0);
  EXPECT_EQ(ContaToken("   "), 0);
  EXPECT_EQ(ContaToken(" a  b\tc "), 3);
  std::string molti;
  for (int i = 0; i < 70; ++i) molti += "x ";
  EXPECT_EQ(ContaToken(molti), 50);
}

}  // namespace
}  // namespace qf17
