#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "verifica/bulloni_slu.h"
#include "verifica/test_bulloni_slu_prova.h"

namespace qf17 {
namespace {

using prova::ProvaBulloniSLU;
using Bulloni = std::vector<std::pair<double, double>>;
using Testi = std::vector<std::string>;

const std::string kFuori = "Bulloni fuori dall' area bullonabile";
const std::string kBordoMaggiore =
    "La distanza dei bulloni dal bordo risulta difforme dalle prescrizioni delle NTC 2008 "
    "(maggiore del limite)";
const std::string kBordoMinore =
    "La distanza dei bulloni dal bordo risulta difforme dalle prescrizioni delle NTC 2008 "
    "(minore del limite)";
const std::string kCoincidenti = "Bulloni coincidenti";
const std::string kPassoMinore =
    "L'interasse dei bulloni risulta difforme dalle prescrizioni delle NTC 2008 (minore del "
    "limite)";
const std::string kPassoMaggiore =
    "L'interasse dei bulloni risulta difforme dalle prescrizioni delle NTC 2008 (maggiore del "
    "limite)";

void Disponi(ProvaBulloniSLU& p, int gruppo, const Bulloni& bulloni) {
  p.nodo.nBull[gruppo] = 0;
  for (const auto& [x, y] : bulloni) p.Bullone(gruppo, x, y, 16);
}

// Member A: bolted rectangle 120 x 100, flange 10, tmin = min(10, 6) = 6, bolts and holes of
// 16, exposure 1 (no upper edge limit):
//   end and edge distance (10 + y) at least 1.2 * 16 = 19.2;
//   pitch along at least 2.2 * 16 = 35.2, across at least 2.4 * 16 = 38.4;
//   pitch at most min(200, 14 * 6) = 84.
// A pair in one row sets the pitch across to the greater distance of bolt 1 from the sides,
// max(100 - y1, y1), as the pair loop meets it: bolts at y = 20 give 80, within 84.
TEST(ControlliBulloniSLU, OgniRegolaColSuoAvviso) {
  struct Caso {
    const char* nome;
    Bulloni bulloni;
    Testi attesi;
  };
  const std::string a = " sull'asta A";
  const Caso casi[] = {
      {"regolare", {{40, 20}, {80, 20}}, {}},
      {"sopra l'area", {{40, 20}, {80, 20}, {80, 101}}, {kFuori + a}},
      {"troppo vicino all'inizio", {{19, 20}, {59, 20}}, {kBordoMinore + a}},
      {"troppo vicino alla fine", {{62, 20}, {101, 20}}, {kBordoMinore + a}},  // 120 - 101 = 19
      // 10 + 9 = 19 from the side; the third bolt, 41 across, brings the pitch to 41.
      {"troppo vicino al lato", {{40, 9}, {80, 9}, {60, 50}}, {kBordoMinore + a}},
      // The coincident pair comes after pitches of 40 along and across.
      {"coincidenti", {{40, 20}, {80, 20}, {60, 60}, {60, 60}}, {kCoincidenti + a}},
      {"passo lungo 35", {{40, 20}, {75, 20}}, {kPassoMinore + a}},
      // max(100 - 10, 10) = 90 > 84.
      {"fila a 10 dal bordo", {{40, 10}, {80, 10}}, {kPassoMaggiore + a}},
  };
  ProvaBulloniSLU p;
  for (const Caso& c : casi) {
    Disponi(p, 1, c.bulloni);
    p.piattaforma.messaggi.clear();
    ControlliBulloniSLU(p.sessione, 2);
    EXPECT_EQ(p.Testi(), c.attesi) << c.nome;
    for (const auto& m : p.piattaforma.messaggi) {
      EXPECT_EQ(m.titolo, "ATTENZIONE!");
      EXPECT_EQ(m.icona, Icona::Attenzione);
      EXPECT_EQ(m.pulsanti, Pulsanti::OkAnnulla);
    }
  }
}

// Five rules at once, in the order of the messages, on member C (exposure 0, so the upper
// edge limit is 4 * 6 + 40 = 64): bolts (10, 90), (40, 90), (150, 101).
//   1: y = 101 > 100.
//   2: the least edge distance is 10 + 90 = 100 > 64.
//   3: the least end distance is 10 < 19.2.
//   5: pX = 30 < 35.2 (the third bolt is 41 or more off the row, beyond 2 * 16).
//   6: the row pair sets pY = max(100 - 90, 90) = 90 > 84.
TEST(ControlliBulloniSLU, OrdineDegliAvvisiESuffissi) {
  ProvaBulloniSLU p;
  p.nodo.Esposizione = 0;
  p.nodo.Ast_ins[3] = 200;
  Disponi(p, 3, {{10, 90}, {40, 90}, {150, 101}});
  ControlliBulloniSLU(p.sessione, 4);
  const std::string c = " sull'asta C";
  EXPECT_EQ(p.Testi(), (Testi{kFuori + c, kBordoMaggiore + c, kBordoMinore + c, kPassoMinore + c,
                              kPassoMaggiore + c}));

  // Coincident bolts met first stop the pair loop with the pitches at their start, 120 along
  // and 100 across, and the upper pitch rule still reads them: 120 > 84. (End distance 40,
  // edge 10 + 20 = 30: within 19.2..64.)
  p.piattaforma.messaggi.clear();
  Disponi(p, 0, {{40, 20}, {40, 20}});
  ControlliBulloniSLU(p.sessione, 1);
  EXPECT_EQ(p.Testi(), (Testi{kCoincidenti + " sul corrente", kPassoMaggiore + " sul corrente"}));

  // A group without bolts keeps its distances at 1e20: above any upper edge limit.
  p.piattaforma.messaggi.clear();
  p.nodo.nBull[2] = 0;
  ControlliBulloniSLU(p.sessione, 3);
  EXPECT_EQ(p.Testi(), Testi{kBordoMaggiore + " sull'asta B"});
  p.nodo.Esposizione = 1;
  p.piattaforma.messaggi.clear();
  ControlliBulloniSLU(p.sessione, 3);
  EXPECT_TRUE(p.piattaforma.messaggi.empty());
}

// The chord is pulled along x: its least pitch is 2.4 d along and 2.2 d across; a member's the
// other way round. 36 lies between 2.2 * 16 = 35.2 and 2.4 * 16 = 38.4. Both groups are 80
// long (chord: four gusset lengths of 20), so that a pitch of 80 is within 84.
//   along: (22, 40), (58, 40): pX = 36; across max(100 - 40, 40) = 60.
//   across: (40, 20), (40, 56): pY = 36; pX stays 80.
TEST(ControlliBulloniSLU, PassoMinimoScambiatoTraCorrenteEAsta) {
  struct Caso {
    const char* nome;
    int g;
    Bulloni bulloni;
    bool avviso;
  };
  const Bulloni lungo = {{22, 40}, {58, 40}};
  const Bulloni attraverso = {{40, 20}, {40, 56}};
  const Caso casi[] = {{"corrente, lungo", 1, lungo, true},
                       {"corrente, attraverso", 1, attraverso, false},
                       {"asta, lungo", 2, lungo, false},
                       {"asta, attraverso", 2, attraverso, true}};
  ProvaBulloniSLU p;
  p.nodo.Fz_a = p.nodo.Fz_b = p.nodo.Fz_c = p.nodo.Fz_d = 20;
  p.nodo.Ast_ins[1] = 80;
  for (const Caso& c : casi) {
    Disponi(p, c.g - 1, c.bulloni);
    p.piattaforma.messaggi.clear();
    ControlliBulloniSLU(p.sessione, c.g);
    const std::string dove = c.g == 1 ? " sul corrente" : " sull'asta A";
    EXPECT_EQ(p.Testi(), c.avviso ? Testi{kPassoMinore + dove} : Testi{}) << c.nome;
  }
}

// A pair in one row sets the pitch across to max(HArea - y1, y1) wherever the loop meets it,
// and a later pair may lower it again: the same three bolts warn in one order only.
//   (40, 20), (40, 50), (80, 20): the last pair met in a row is (3, 1): pY = 80, no warning.
//   (40, 20), (80, 20), (40, 50): after the row pair (2, 1), (3, 1) gives 30 < 38.4.
// Without the rule a row at y = 20 would keep pY = HArea = 100 > 84.
TEST(ControlliBulloniSLU, PassoTrasversaleDiUnaFilaSecondoLOrdine) {
  struct Caso {
    Bulloni bulloni;
    Testi attesi;
  };
  const Caso casi[] = {
      {{{40, 20}, {40, 50}, {80, 20}}, {}},
      {{{40, 20}, {80, 20}, {40, 50}}, {kPassoMinore + " sull'asta A"}},
  };
  ProvaBulloniSLU p;
  for (const Caso& c : casi) {
    Disponi(p, 1, c.bulloni);
    p.piattaforma.messaggi.clear();
    ControlliBulloniSLU(p.sessione, 2);
    EXPECT_EQ(p.Testi(), c.attesi);
  }
}

// Upper limits by exposure. Edge: 0 at most 4 * tmin + 40, 2 at most max(125, 8 * tmin),
// 1 none. Pitch: 0 and 1 at most min(200, 14 * tmin), 2 at most min(175, 14 * tmin).
// One bolt on member A at (x, 50) with Ast_ins = 2 x: end distance x, edge 10 + 50 = 60.
// Two bolts 50 from the ends at y = 20 with Ast_ins = 100 + passo: pitch passo along, 80
// across; with web and gusset of 15 the edge limits are 100 and 125 and 14 * 15 = 210.
TEST(ControlliBulloniSLU, LimitiSuperioriSecondoLEsposizione) {
  struct Caso {
    const char* nome;
    std::int16_t esposizione;
    double spessore;  // web and gusset
    Bulloni bulloni;
    double lunghezza;
    Testi attesi;
  };
  const std::string a = " sull'asta A";
  const Caso casi[] = {
      {"0: 64 = 4 * 6 + 40", 0, 6, {{64, 50}}, 128, {}},
      {"0: 65", 0, 6, {{65, 50}}, 130, {kBordoMaggiore + a}},
      {"0: lato 10 + 55 = 65", 0, 6, {{40, 55}}, 80, {kBordoMaggiore + a}},
      {"2: 125 = max(125, 48)", 2, 6, {{125, 50}}, 250, {}},
      {"2: 126", 2, 6, {{126, 50}}, 252, {kBordoMaggiore + a}},
      {"2: 160 = max(125, 8 * 20)", 2, 20, {{160, 50}}, 320, {}},
      {"2: 161", 2, 20, {{161, 50}}, 322, {kBordoMaggiore + a}},
      {"1: 500", 1, 6, {{500, 50}}, 1000, {}},
      {"passo 1: 200 = min(200, 210)", 1, 15, {{50, 20}, {250, 20}}, 300, {}},
      {"passo 0: 201", 0, 15, {{50, 20}, {251, 20}}, 301, {kPassoMaggiore + a}},
      {"passo 2: 175 = min(175, 210)", 2, 15, {{50, 20}, {225, 20}}, 275, {}},
      {"passo 2: 180", 2, 15, {{50, 20}, {230, 20}}, 280, {kPassoMaggiore + a}},
  };
  ProvaBulloniSLU p;
  for (const Caso& c : casi) {
    p.nodo.Esposizione = c.esposizione, p.nodo.Aste[1].a = c.spessore, p.nodo.Fz_s = c.spessore;
    p.nodo.Ast_ins[1] = c.lunghezza;
    Disponi(p, 1, c.bulloni);
    p.piattaforma.messaggi.clear();
    ControlliBulloniSLU(p.sessione, 2);
    EXPECT_EQ(p.Testi(), c.attesi) << c.nome;
  }
}

// A chord welded to the gusset has no lower edge rule: bolts 10 from the start warn only on a
// bolted chord. Chord 120 long; welded (h - e = 110 high, edge y = 30) or channel (100 high,
// edge 10 + 30); pitch 40 along, max(110 - 30, 30) = 80 or max(70, 30) = 70 across.
TEST(ControlliBulloniSLU, CorrenteSaldatoSenzaDistanzaMinima) {
  for (std::int16_t tipo : {0, 2}) {
    ProvaBulloniSLU p;
    p.nodo.Corrente.Tipo = tipo;
    Disponi(p, 0, {{10, 30}, {50, 30}});
    ControlliBulloniSLU(p.sessione, 1);
    EXPECT_EQ(p.Testi(), tipo == 2 ? Testi{} : Testi{kBordoMinore + " sul corrente"}) << tipo;
  }
}

// Interrompi is cleared by each call: a Cancel on an earlier group is forgotten by a later one,
// and within a group a Cancel on any warning counts while the following ones are still shown.
TEST(ControlliBulloniSLU, AnnullaValeSoloPerLUltimoGruppo) {
  ProvaBulloniSLU p;
  // Member A: outside and too near the start; member B clean.
  Disponi(p, 1, {{19, 20}, {59, 20}, {59, 101}});
  Disponi(p, 2, {{40, 20}, {80, 20}});
  p.piattaforma.risposte = {Risposta::Annulla, Risposta::Ok};
  ControlliBulloniSLU(p.sessione, 2);
  EXPECT_EQ(p.Testi(), (Testi{kFuori + " sull'asta A", kBordoMinore + " sull'asta A"}));
  EXPECT_EQ(p.r.Interrompi, 1);
  ControlliBulloniSLU(p.sessione, 3);
  EXPECT_EQ(p.r.Interrompi, 0);

  // A Cancel on the last warning counts as well, and the other way round stays 1.
  p.piattaforma.messaggi.clear();
  p.piattaforma.risposte = {Risposta::Ok, Risposta::Annulla};
  ControlliBulloniSLU(p.sessione, 3);
  ControlliBulloniSLU(p.sessione, 2);
  EXPECT_EQ(p.Testi(), (Testi{kFuori + " sull'asta A", kBordoMinore + " sull'asta A"}));
  EXPECT_EQ(p.r.Interrompi, 1);
}

}  // namespace
}  // namespace qf17
