#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "oracolo_sezioni.h"
#include "verifica/fazzoletto.h"
#include "verifica/sezioni_cache.h"

namespace qf17 {
namespace {

using prova::ProvaSezioni;

struct Bullone {
  double x, y, d = 20;
};

struct CasoDiffusione {
  const char* nome;
  std::vector<Bullone> bulloni;
  double coeff;
  double N;
  double sigDiff;  // expected, daN/cm2
  int messaggiAreaNulla;
};

// tan(30 degrees) = 0.577350; gusset 10 thick; holes 21 for bolts of 20. The other cases
// (rows of holes, coefficients, loads) go through the differential test.
const CasoDiffusione kCasi[] = {
    // Section at x 30, both bolts outward: width 2 * 60 * 0.577350 = 69.2820 mm, 692.820 mm2,
    // less the hole of the bolt at 30 only (the one at 90 is 60 away): 692.820 - 210 =
    // 482.820; N whole: 100 * 1000 / 482.820 = 207.116.
    {"due bulloni", {{30, 50}, {90, 50}}, 1, 1000, 207.116, 0},
    // Same x: no width, so the section goes without a word.
    {"stessa x", {{30, 50}, {30, 80}}, 1, 1000, 0, 0},
    // A coefficient 0 or negative leaves no area: no stress and no message.
    {"coefficiente negativo", {{30, 50}, {90, 50}}, -1, 1000, 0, 0},
    // 10 apart: 2 * 10 * 0.577350 * 10 = 115.470, less two holes of 210: nothing left.
    {"area netta nulla", {{30, 50}, {40, 50}}, 1, 1000, 0, 1},
    // A hole outside the spread in y does not count. Bolts (30, 50), (40, 200), (150, 50).
    // At 40 (y 200): 2 * 110 * 0.577350 * 10 = 1270.17, its own hole only (the one at 30 is
    // within 21 in x but at y 50, outside 200 +- 63.5): 1060.17, 666.67 -> 62.882. At 30
    // (y 50): 1385.64, its own hole only (the one at 40 is at y 200, outside 50 +- 69.28):
    // 1175.64, 1000 -> 85.060. Counting both holes would give 965.64 -> 103.558.
    {"fuori dalla diffusione", {{30, 50}, {40, 200}, {150, 50}}, 1, 1000, 85.060, 0},
    // The force is shared equally by the bolts, whatever their diameters: 12, 27, 12 at 30, 90,
    // 150 (holes 13, 28, 13). At 90: 2N/3 = 666.67 on 692.820 - 280 = 412.820 -> 161.491. At
    // 30: N on 1385.64 - 130 = 1255.64 -> 79.641.
    {"diametri diversi", {{90, 50, 27}, {30, 50, 12}, {150, 50, 12}}, 1, 1000, 161.491, 0},
    // The spread starts from the section's own bolt and reaches back to the farthest bolt, not
    // from each bolt's y: at 30 the edges are 0 +- 34.64, the bolt at (90, 500) adds no width.
    {"diffusione dal bullone della sezione", {{30, 0}, {90, 500}}, 1, 1000, 207.116, 0},
};

TEST(Fazzoletto, SezioniDiDiffusione) {
  ProvaSezioni p;  // one session for all: the result tables are large
  for (const CasoDiffusione& c : kCasi) {
    p.nodo.nBull[2] = 0;
    p.piattaforma.messaggi.clear();
    for (const Bullone& b : c.bulloni) p.Bullone(2, b.x, b.y, b.d);
    p.nodo.Ast_coeff[2] = c.coeff;
    p.nodo.SforzoNormale(2, 1) = c.N;
    p.r.SigDiff(2, 1) = 12345;  // what an earlier run left
    VerificaFazzoletto(p.sessione, 1);
    EXPECT_NEAR(p.r.SigDiff(2, 1), c.sigDiff, 0.001) << c.nome;
    EXPECT_EQ(p.r.SigDiff(1, 1), 0) << c.nome;
    ASSERT_EQ(static_cast<int>(p.piattaforma.messaggi.size()), c.messaggiAreaNulla) << c.nome;
    for (const auto& m : p.piattaforma.messaggi) {
      EXPECT_EQ(m.testo, "Area netta nulla nella verifica del fazzoletto");
      EXPECT_EQ(m.titolo, "QF17");
      EXPECT_EQ(m.icona, Icona::Nessuna);
      EXPECT_EQ(m.pulsanti, Pulsanti::Ok);
    }
  }
}

// A member is checked whatever its presence flag, with its whole force even when double.
TEST(Fazzoletto, AstaAssenteEDoppia) {
  ProvaSezioni p;
  p.Bullone(1, 30, 50);
  p.Bullone(1, 90, 50);
  p.nodo.Ast_flag[1] = 0;
  p.nodo.Ast_modo[1] = 1;
  p.nodo.SforzoNormale(1, 1) = 1000;
  VerificaFazzoletto(p.sessione, 1);
  EXPECT_NEAR(p.r.SigDiff(1, 1), 207.116, 0.001);
}

// A bolt whose x is not a number counts in no section: its own section finds no bolt
// outward, says so, and ends the member's scan. Bolts 1..4 at x 30, NaN, 90, 150 (the sort
// leaves them so). At 90 (y 200): 2 of 4 bolts, 500 on 692.820 - 210 = 482.820 -> 103.558.
// Then the NaN bolt: the message, and the section at 30 is never reached (with the large hole
// of the bolt at 30 it would give 750 / (1385.64 - 1010) -> 199.659).
TEST(Fazzoletto, ErroreFermaLAsta) {
  ProvaSezioni p;
  p.Bullone(1, 30, 50, 100);
  p.Bullone(1, std::numeric_limits<double>::quiet_NaN(), 50);
  p.Bullone(1, 90, 200);
  p.Bullone(1, 150, 200);
  p.Bullone(2, 30, 50);
  p.Bullone(2, 90, 50);
  p.nodo.SforzoNormale(1, 1) = 1000;
  p.nodo.SforzoNormale(2, 1) = 1000;
  VerificaFazzoletto(p.sessione, 1);
  EXPECT_NEAR(p.r.SigDiff(1, 1), 103.558, 0.001);
  // The next member goes on.
  EXPECT_NEAR(p.r.SigDiff(2, 1), 207.116, 0.001);
  ASSERT_EQ(p.piattaforma.messaggi.size(), 1u);
  EXPECT_EQ(p.piattaforma.messaggi[0].testo, "Errore nella verifica del fazzoletto");
  EXPECT_EQ(p.piattaforma.messaggi[0].titolo, "QF17");
  EXPECT_EQ(p.piattaforma.messaggi[0].pulsanti, Pulsanti::Ok);
}

// Messages are neither counted nor merged: one per section per load set, also when the
// sections are kept from set to set. Bolts at 30, 40, 50 (y 50): at 40 (x 40, 50 outward)
// 115.470 less two holes; at 30, 230.94 less three holes: two messages a set.
TEST(Fazzoletto, MessaggiPerSezioneEPerSet) {
  ProvaSezioni p;
  for (double x : {30, 40, 50}) p.Bullone(1, x, 50);
  p.nodo.SforzoNormale(1, 1) = 1000;
  p.nodo.SforzoNormale(1, 2) = -1000;
  CacheSezioni cache;
  VerificaFazzoletto(p.sessione, 1, cache);
  VerificaFazzoletto(p.sessione, 2, cache);
  VerificaFazzoletto(p.sessione, 2);
  EXPECT_EQ(p.piattaforma.messaggi.size(), 6u);
  EXPECT_EQ(p.r.SigDiff(1, 2), 0);
}

TEST(Fazzoletto, OrdinaBulloniTieneLOrdineAParitaDiX) {
  std::vector<int> ordine = {0, 1, 2, 3, 4, 5};
  std::vector<double> x = {0, 90, 30, 90, 30, 10};
  OrdinaBulloni(ordine, x, 5);
  EXPECT_EQ(ordine, (std::vector<int>{0, 5, 2, 4, 1, 3}));
  EXPECT_EQ(x, (std::vector<double>{0, 10, 30, 30, 90, 90}));
}

}  // namespace
}  // namespace qf17
