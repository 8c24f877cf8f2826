#include <gtest/gtest.h>

#include <string>

#include "librerie/unita.h"
#include "nodo/nodo.h"
#include "verifica/relazioni/relazione_ta.h"
#include "verifica/relazioni/relazione_ta_parti.h"

namespace qf17 {
namespace {

// After a TAB a number keeps the blank of its sign, and nothing follows it; the plain figures
// are those of the sample reports, here the edges.
TEST(TestoRelazione, NumeriDopoUnTab) {
  struct Caso {
    double valore;
    const char* atteso;
  };
  const Caso casi[] = {
      {-0.0, "\t 0\t\r\n"},
      {0.1 + 0.2, "\t 0.3\t\r\n"},
      {1e20, "\t 1E+20\t\r\n"},
      {-20002.5, "\t-20002.5\t\r\n"},
      {999999999999999, "\t 999999999999999\t\r\n"},
      {1e15, "\t 1E+15\t\r\n"},
      {1e-7, "\t 1E-07\t\r\n"},
  };
  for (const Caso& c : casi) {
    TestoRelazione r(16);
    r << kTab << Numero{c.valore} << kTab << kFine;
    EXPECT_EQ(r.testo(), c.atteso) << c.valore;
  }
}

TEST(TestoRelazione, PulisciNomeESezione) {
  EXPECT_EQ(PulisciNome("Vento\r\nsx"), "Vento sx");
  EXPECT_EQ(PulisciNome("a\nb\rc\n"), "ab c");
  EXPECT_EQ(PulisciNome("\r\r"), "  ");
  EXPECT_EQ(PulisciNome(""), "");
  EXPECT_EQ(PulisciSezione("UPN  200"), "UPN 200");
  EXPECT_EQ(PulisciSezione(" \tIPE\t 140 "), "IPE 140");
  EXPECT_EQ(PulisciSezione("LU60x6"), "LU60x6");
  EXPECT_EQ(PulisciSezione("   "), "");
}

TEST(TestoRelazione, ModoAsta) {
  Nodo n;
  const std::pair<std::int16_t, const char*> casi[] = {
      {0, "SINGOLA"}, {1, "DOPPIA"}, {2, "OPPOSTA"}, {3, "SINGOLA"}, {-1, "SINGOLA"}};
  for (auto [modo, parola] : casi) {
    n.Ast_modo[2] = modo;
    EXPECT_EQ(ModoAsta(n, 2), parola) << modo;
  }
}

TEST(TestoRelazione, NomeRelazione) {
  Nodo n;
  n.DirLavoro = "/lavori/capannone";
  n.NomeFileNodo = "  nodo 12 ";
  EXPECT_EQ(NomeRelazione(n, "TA"),
            std::filesystem::path("/lavori/capannone") / "RelTA_QF17_nodo 12.txt");
  EXPECT_EQ(NomeRelazione(n, "SLU"),
            std::filesystem::path("/lavori/capannone") / "RelSLU_QF17_nodo 12.txt");
  EXPECT_EQ(NomeRelazione(n, "TA", "QF18").filename(), "RelTA_QF18_nodo 12.txt");
}

// Factor first, then the job's decimals, halves to the even neighbour.
TEST(TestoRelazione, TensioneDelLavoro) {
  UnitaLavoro u;
  u.FatTensioni = 1;
  u.DecTensioni = 0;
  EXPECT_EQ(TensioneLavoro(u)(2.5), 2);
  EXPECT_EQ(TensioneLavoro(u)(3.5), 4);
  EXPECT_EQ(TensioneLavoro(u)(-2.5), -2);
  u.FatTensioni = 10;
  EXPECT_EQ(TensioneLavoro(u)(1234.25), 12342);  // 12342.5
  EXPECT_EQ(TensioneLavoro(u)(1234.75), 12348);  // 12347.5
  u.FatTensioni = 0.5;
  u.DecTensioni = 1;
  EXPECT_DOUBLE_EQ(TensioneLavoro(u)(0.5), 0.2);  // 0.25
  EXPECT_DOUBLE_EQ(TensioneLavoro(u)(1.5), 0.8);  // 0.75
}

}  // namespace
}  // namespace qf17
