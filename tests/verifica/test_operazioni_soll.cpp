#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "nodo/esempi_nodo.h"
#include "nodo/file_nodo.h"
#include "nodo/nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "verifica/operazioni_soll.h"

namespace qf17 {
namespace {

// One row of the load table: forces of A, B, C, case, name.
struct Riga {
  double a = 0, b = 0, c = 0;
  int caso = 0;
  std::string nome;
  bool operator==(const Riga&) const = default;
};
std::ostream& operator<<(std::ostream& o, const Riga& r) {
  return o << "{" << r.a << ", " << r.b << ", " << r.c << ", caso " << r.caso << ", \"" << r.nome
           << "\"}";
}

// A node with the members flagged in `presenti` (A, B, C) and the given sets.
Nodo NodoConSoll(std::array<int, 3> presenti, const std::vector<Riga>& righe) {
  Nodo n;
  for (int i = 1; i <= 3; ++i) {
    n.Ast_flag[i] = n.Ast_flag[i + 3] = static_cast<std::int16_t>(presenti[i - 1]);
  }
  n.nSollAg = 0;
  for (const Riga& r : righe) {
    const int j = ++n.nSollAg;
    n.SforzoNormale(1, j) = r.a, n.SforzoNormale(2, j) = r.b, n.SforzoNormale(3, j) = r.c;
    n.CasoCarico[j] = static_cast<std::int16_t>(r.caso), n.NomeSa[j] = r.nome;
  }
  return n;
}

Riga LeggiRiga(const Nodo& n, int j) {
  return {n.SforzoNormale(1, j), n.SforzoNormale(2, j), n.SforzoNormale(3, j), n.CasoCarico[j],
          n.NomeSa[j]};
}

// Rows 1..last, whatever nSollAg says.
std::vector<Riga> Righe(const Nodo& n, int ultima) {
  std::vector<Riga> r;
  for (int j = 1; j <= ultima; ++j) r.push_back(LeggiRiga(n, j));
  return r;
}

constexpr std::array<int, 3> kTutte{1, 1, 1};

struct CasoDoppie {
  const char* descrizione;
  std::array<int, 3> presenti;
  std::vector<Riga> prima;
  bool rimosso;
  std::vector<Riga> dopo;  // rows 1..nSollAg after the call
};

TEST(RimuoviDoppie, TieneLaPrimaDiOgniCoppia) {
  const std::vector<CasoDoppie> casi = {
      {"0.00005 apart in every present member: one set",
       kTutte,
       {{1000, -500, 250, 0, "S1"},
        {1000.00005, -500.00005, 250.00005, 0, "S2"},
        {10, 20, 30, 0, "S3"}},
       true,
       {{1000, -500, 250, 0, "S1"}, {10, 20, 30, 0, "S3"}}},
      {"exactly 0.0001 apart in one member: two sets (the test is 'below')",
       kTutte,
       {{0, 0, 0, 0, "S1"}, {0.0001, 0, 0, 0, "S2"}},
       false,
       {{0, 0, 0, 0, "S1"}, {0.0001, 0, 0, 0, "S2"}}},
      {"equal forces, different case: both kept",
       kTutte,
       {{100, 200, 300, 0, "S1"}, {100, 200, 300, 1, "S2"}},
       false,
       {{100, 200, 300, 0, "S1"}, {100, 200, 300, 1, "S2"}}},
      {"B absent: sets differing only in B are duplicates",
       {1, 0, 1},
       {{100, 5, 300, 1, "S1"}, {100, 999, 300, 1, "S2"}},
       true,
       {{100, 5, 300, 1, "S1"}}},
      {"a single set is left alone", kTutte, {{1, 2, 3, 0, "S1"}}, false, {{1, 2, 3, 0, "S1"}}},
      // A only: 1,2,1,2,1. S3 goes (repeats S1), rescan: S5 repeats S1, rescan: S4 repeats S2.
      {"the later of each pair goes, rescanning from the first",
       {1, 0, 0},
       {{1, 0, 0, 0, "S1"},
        {2, 0, 0, 0, "S2"},
        {1, 0, 0, 0, "S3"},
        {2, 0, 0, 0, "S4"},
        {1, 0, 0, 0, "S5"}},
       true,
       {{1, 0, 0, 0, "S1"}, {2, 0, 0, 0, "S2"}}},
      // 0, 0.00008, 0.00016: the middle repeats the first and goes; the third is 0.00016 from
      // the first and stays, though it was within 0.0001 of the removed one.
      {"the tolerance is not chained",
       {1, 0, 0},
       {{0, 0, 0, 0, "S1"}, {0.00008, 0, 0, 0, "S2"}, {0.00016, 0, 0, 0, "S3"}},
       true,
       {{0, 0, 0, 0, "S1"}, {0.00016, 0, 0, 0, "S3"}}},
  };
  for (const CasoDoppie& caso : casi) {
    SCOPED_TRACE(caso.descrizione);
    Nodo n = NodoConSoll(caso.presenti, caso.prima);
    EXPECT_EQ(RimuoviDoppie(n), caso.rimosso);
    ASSERT_EQ(n.nSollAg, static_cast<int>(caso.dopo.size()));
    EXPECT_EQ(Righe(n, n.nSollAg), caso.dopo);
    // Every slot freed lost its name.
    for (int j = n.nSollAg + 1; j <= static_cast<int>(caso.prima.size()); ++j) {
      EXPECT_EQ(n.NomeSa[j], "") << j;
    }
  }
}

TEST(RimuoviSoll, PrimaMezzoUltima) {
  const std::vector<Riga> tre = {{1, 2, 3, 0, "S1"}, {4, 5, 6, 1, "S2"}, {7, 8, 9, 0, "S3"}};
  struct Caso {
    int j;
    std::vector<Riga> dopo;  // rows 1..3: the freed row 3 keeps S3's forces and case, no name
  };
  const std::vector<Caso> casi = {
      {1, {{4, 5, 6, 1, "S2"}, {7, 8, 9, 0, "S3"}, {7, 8, 9, 0, ""}}},
      {2, {{1, 2, 3, 0, "S1"}, {7, 8, 9, 0, "S3"}, {7, 8, 9, 0, ""}}},
      {3, {{1, 2, 3, 0, "S1"}, {4, 5, 6, 1, "S2"}, {7, 8, 9, 0, ""}}},
  };
  for (const Caso& caso : casi) {
    SCOPED_TRACE(caso.j);
    Nodo n = NodoConSoll(kTutte, tre);
    RimuoviSoll(n, caso.j);
    EXPECT_EQ(n.nSollAg, 2);
    EXPECT_EQ(Righe(n, 3), caso.dopo);
  }
  // A set that is not there: nothing happens, the count never goes below 0.
  for (int j : {0, 4}) {
    Nodo n = NodoConSoll(kTutte, tre);
    RimuoviSoll(n, j);
    EXPECT_EQ(n.nSollAg, 3);
    EXPECT_EQ(Righe(n, 3), tre);
  }
  Nodo vuoto = NodoConSoll(kTutte, {});
  RimuoviSoll(vuoto, 1);
  EXPECT_EQ(vuoto.nSollAg, 0);
}

struct CasoMaxMin {
  const char* descrizione;
  std::array<int, 3> presenti;
  std::vector<Riga> prima;
  std::vector<Riga> dopo;  // rows 1..prima.size() after the call
  int nSollAg;
};

TEST(RiduciMaxMin, TieneMassimiEMinimiDaiValoriIniziali) {
  const std::vector<CasoMaxMin> casi = {
      // Start: A = 100 (first present member of set 1), B = 0. A: max 300, min 100; B: max 70,
      // min 0 (no set holds it). Set 1 by A's min, set 3 by A's and B's max; set 2 (A 200, B 60)
      // holds nothing and goes. Row 2 keeps the name S2 with the forces of S3; row 3 is left.
      {"all tensile: B's minimum stays 0",
       {1, 1, 0},
       {{100, 50, 0, 0, "S1"}, {200, 60, 0, 0, "S2"}, {300, 70, 0, 0, "S3"}},
       {{100, 50, 0, 0, "S1"}, {300, 70, 0, 0, "S2"}, {300, 70, 0, 0, "S3"}},
       2},
      // Start: A = 20, B = 0. A: max 30 (S3), min 10 (S2); B: max 0 (no set), min -70 (S3).
      // S1 (20, -50) holds nothing and goes, though -50 is B's true maximum.
      {"all compressive: B's maximum stays 0",
       {1, 1, 0},
       {{20, -50, 0, 0, "S1"}, {10, -60, 0, 0, "S2"}, {30, -70, 0, 0, "S3"}},
       {{10, -60, 0, 0, "S1"}, {30, -70, 0, 0, "S2"}, {30, -70, 0, 0, "S3"}},
       2},
      // A absent: B is the first present member and starts at 50, C at 0. B: 50..70, C: 0..7.
      // S1 by B's min, S3 by the maxima; S2 (60, 6) goes. A's forces travel with their sets.
      {"the first present member takes the start value",
       {0, 1, 1},
       {{999, 50, 5, 1, "S1"}, {888, 60, 6, 1, "S2"}, {777, 70, 7, 1, "S3"}},
       {{999, 50, 5, 1, "S1"}, {777, 70, 7, 1, "S2"}, {777, 70, 7, 1, "S3"}},
       2},
      // Case II (S1, S3, S5): start A = 10, B = 0; A 10..40, B 0..8.
      // Case I (S2, S4, S6): start A = 50, B = 0; A 20..50, B -20..0.
      // Kept: S1 (A min II), S2 (A max I, B min I), S3 (A, B max II), S4 (A min I: 20 is not
      // the smallest A of all sets, only of case I). S5 (25, 6) and S6 (35, -15) go.
      {"each case type has its own extremes",
       {1, 1, 0},
       {{10, 5, 0, 1, "S1"},
        {50, -20, 0, 0, "S2"},
        {40, 8, 0, 1, "S3"},
        {20, -10, 0, 0, "S4"},
        {25, 6, 0, 1, "S5"},
        {35, -15, 0, 0, "S6"}},
       {{10, 5, 0, 1, "S1"},
        {50, -20, 0, 0, "S2"},
        {40, 8, 0, 1, "S3"},
        {20, -10, 0, 0, "S4"},
        {25, 6, 0, 1, "S5"},
        {35, -15, 0, 0, "S6"}},
       4},
      // Start A = 100, B = 0. A: 100..300; B: 0..60 (0.0001 and 0.00005 never lower 0).
      // S3: |299.99995 - 300| = 0.00005 < 0.0001, kept. S4: A 200 nothing, |0.0001 - 0| is not
      // below 0.0001, goes. S5: |0.00005 - 0| < 0.0001, kept.
      {"within 0.0001 of an extreme",
       {1, 1, 0},
       {{100, 50, 0, 0, "S1"},
        {300, 60, 0, 0, "S2"},
        {299.99995, 55, 0, 0, "S3"},
        {200, 0.0001, 0, 0, "S4"},
        {150, 0.00005, 0, 0, "S5"}},
       {{100, 50, 0, 0, "S1"},
        {300, 60, 0, 0, "S2"},
        {299.99995, 55, 0, 0, "S3"},
        {150, 0.00005, 0, 0, "S4"},
        {150, 0.00005, 0, 0, "S5"}},
       4},
      // Repeated sets go first, with their names: S3 repeats S2, leaving S1 10, S2 30, S4 20
      // and an empty name in row 4. Then A 10..30 keeps rows 1 and 2; row 3 keeps S4.
      {"duplicates are removed before the extremes",
       {1, 0, 0},
       {{10, 0, 0, 0, "S1"}, {30, 0, 0, 0, "S2"}, {30, 0, 0, 0, "S3"}, {20, 0, 0, 0, "S4"}},
       {{10, 0, 0, 0, "S1"}, {30, 0, 0, 0, "S2"}, {20, 0, 0, 0, "S4"}, {20, 0, 0, 0, ""}},
       2},
  };
  for (const CasoMaxMin& caso : casi) {
    SCOPED_TRACE(caso.descrizione);
    Nodo n = NodoConSoll(caso.presenti, caso.prima);
    RiduciMaxMin(n);
    EXPECT_EQ(n.nSollAg, caso.nSollAg);
    EXPECT_EQ(Righe(n, static_cast<int>(caso.prima.size())), caso.dopo);
  }
}

TEST(RiduciMaxMin, SenzaSollecitazioniNonCambiaNulla) {
  // A stale row beyond the count stays as it is.
  Nodo n = NodoConSoll(kTutte, {{5, 6, 7, 1, "vecchia"}});
  n.nSollAg = 0;
  RiduciMaxMin(n);
  EXPECT_EQ(n.nSollAg, 0);
  EXPECT_EQ(LeggiRiga(n, 1), (Riga{5, 6, 7, 1, "vecchia"}));
}

// The sample job's roof node: 60 sets, A, B, C present, no two sets repeated.
// Case I (CasoCarico 0: sets 17, 18, 23, 24, 41, 42, 47, 48, 49, 50, 55, 56), start from set 17:
//   A = 20140, B = C = 0. A: max 22090 (18), min 5820 (48). B and C are negative in every case I
//   set: max 0, min -12590 (18) and -13390 (17). Kept: 17, 18, 48.
// Case II (the other 48 sets), start from set 1: A = 22030, B = C = 0.
//   A: max 23980 (5), min -2580 (44). B: max 1170 (44), min -13400 (5).
//   C: max 660 (43), min -16810 (2). Kept: 2, 5, 43, 44.
TEST(RiduciMaxMin, NodoDiEsempioConSessantaSollecitazioni) {
  PiattaformaRegistrata p;
  Sessione s{p};
  ASSERT_TRUE(prova::CaricaLibrerieInstallazione(s));
  ASSERT_TRUE(ApriNodoDaFile(s, prova::CartellaEsempi() / "MOLTESOLL.qf7"));
  ASSERT_EQ(s.nodo.nSollAg, 60);
  const std::string nome1 = s.nodo.NomeSa[1], nome7 = s.nodo.NomeSa[7];
  const Riga riga8 = LeggiRiga(s.nodo, 8), riga60 = LeggiRiga(s.nodo, 60);

  Nodo copia = s.nodo;
  EXPECT_FALSE(RimuoviDoppie(copia));
  EXPECT_EQ(copia.nSollAg, 60);

  RiduciMaxMin(s.nodo);
  ASSERT_EQ(s.nodo.nSollAg, 7);
  const std::vector<std::array<double, 4>> attese = {
      {15100, -8480, -16810, 1},   // set 2
      {23980, -13400, -6040, 1},   // set 5
      {20140, -11090, -13390, 0},  // set 17
      {22090, -12590, -8740, 0},   // set 18
      {8970, -4530, 660, 1},       // set 43
      {-2580, 1170, -9540, 1},     // set 44
      {5820, -3180, -3840, 0},     // set 48
  };
  for (int j = 1; j <= 7; ++j) {
    const auto& e = attese[static_cast<std::size_t>(j - 1)];
    const Riga r = LeggiRiga(s.nodo, j);
    EXPECT_EQ((std::array<double, 4>{r.a, r.b, r.c, static_cast<double>(r.caso)}), e) << j;
  }
  // The names did not follow: row 1 holds set 2's forces under set 1's name.
  EXPECT_EQ(s.nodo.NomeSa[1], nome1);
  EXPECT_EQ(nome1.rfind("SLU 01 ", 0), 0u) << nome1;
  EXPECT_EQ(s.nodo.NomeSa[7], nome7);
  EXPECT_EQ(LeggiRiga(s.nodo, 8), riga8);
  EXPECT_EQ(LeggiRiga(s.nodo, 60), riga60);
}

}  // namespace
}  // namespace qf17
