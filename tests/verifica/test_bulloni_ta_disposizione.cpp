#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "verifica/bulloni_ta.h"
#include "verifica/test_bulloni_ta_prova.h"

namespace qf17 {
namespace {

using prova::ProvaBulloniTA;

const std::string kFuori = "Bulloni fuori dall' area bullonabile";
const std::string kBordo =
    "La distanza dei bulloni dal bordo risulta difforme dalle prescrizioni della CNR-UNI 10011";
const std::string kCoincidenti = "Bulloni coincidenti";
const std::string kInterasse =
    "L'interasse dei bulloni risulta difforme dalle prescrizioni della CNR-UNI 10011";

using Bulloni = std::vector<std::pair<double, double>>;

// Member A as in the fixture (bolted rectangle 120 x 100, flange 10, tmin = min(10, 6) = 6),
// bolts of 12 with holes of 12:
//   end distance at least 2 * 12 = 24, edge distance (10 + y) at least 1.5 * 12 = 18,
//   both at most 9 * 6 = 54; pitch at least 3 * 12 = 36, at most 25 * 6 = 150 (15 * 6 = 90
//   when the member is not pulled).
// An angle measures the edge distance from y itself and allows only 6 * tmin: with web 8,
// tmin = 8 and the edge distance must lie in 18..48. The chord, loaded across as well, wants an
// edge distance of at least 2 * 12 = 24 and has its pitch across judged too (at least 36).
TEST(ControlliDisposizioneTA, OgniRegolaColSuoAvviso) {
  enum Gruppo { Corrente, Asta, Angolare, AstaLunga };  // AstaLunga: member A 200 long
  struct Caso {
    const char* nome;
    Gruppo gruppo;
    Bulloni bulloni;
    double Fx;
    std::vector<std::string> attesi;
    double Fy = 0;
  };
  const std::string a = " sull'asta A", c = " sul corrente";
  const Caso casi[] = {
      {"regolare", Asta, {{40, 40}, {80, 40}}, 1000, {}},
      {"sopra l'area", Asta, {{40, 40}, {80, 101}}, 1000, {kFuori + a}},
      {"troppo vicino all'inizio", Asta, {{20, 40}, {60, 40}}, 1000, {kBordo + a}},
      {"troppo vicino alla fine", Asta, {{40, 40}, {100, 40}}, 1000, {kBordo + a}},  // 120 - 100
      {"bordo 10 + 9 = 19 basta", Asta, {{40, 9}, {80, 9}}, 1000, {}},
      {"bordo 10 + 7 = 17", Asta, {{40, 7}, {80, 7}}, 1000, {kBordo + a}},
      {"bordo 10 + 45 = 55", Asta, {{40, 45}, {80, 45}}, 1000, {kBordo + a}},
      // One bolt shares nothing, yet its layout is checked: 60 from either end is above 54.
      {"un bullone", Asta, {{60, 40}}, 1000, {kBordo + a}},
      {"coincidenti", Asta, {{40, 40}, {40, 40}}, 1000, {kCoincidenti + a}},
      // Coincident bolts end the pitch search: the pitch 35 of the third is never judged.
      {"coincidenti e fitti", Asta, {{40, 40}, {40, 40}, {75, 40}}, 1000, {kCoincidenti + a}},
      {"passo 35", Asta, {{40, 40}, {75, 40}}, 1000, {kInterasse + a}},
      // Staggered beyond two diameters (30 > 24): the 30 along x is no pitch.
      {"sfalsati", Asta, {{40, 40}, {70, 70}}, 1000, {}},
      {"passo 35 a compressione", Asta, {{40, 40}, {75, 40}}, -1000, {kInterasse + a}},
      // Outside (101 > 100), end distance 20 < 24, pitch 35: the warnings in this order.
      {"tre difformita'",
       Asta,
       {{20, 40}, {55, 40}, {55, 101}},
       1000,
       {kFuori + a, kBordo + a, kInterasse + a}},
      // The greatest pitch depends on the sign: 100 passes when pulled (<= 150), not otherwise.
      {"passo 100 a trazione", AstaLunga, {{50, 40}, {150, 40}}, 1000, {}},
      {"passo 100 scarico", AstaLunga, {{50, 40}, {150, 40}}, 0, {kInterasse + a}},
      {"passo 100 a compressione", AstaLunga, {{50, 40}, {150, 40}}, -1000, {kInterasse + a}},
      {"angolare, bordo 30", Angolare, {{40, 30}, {80, 30}}, 1000, {}},
      {"angolare, bordo 15", Angolare, {{40, 15}, {80, 15}}, 1000, {kBordo + a}},
      {"angolare, bordo 50", Angolare, {{40, 50}, {80, 50}}, 1000, {kBordo + a}},
      {"corrente, bordo 19 senza Fy", Corrente, {{40, 9}, {80, 9}}, 1000, {}},
      {"corrente, bordo 19 con Fy", Corrente, {{40, 9}, {80, 9}}, 1000, {kBordo + c}, 500},
      {"corrente, passo trasversale 30 senza Fy", Corrente, {{40, 20}, {40, 50}}, 1000, {}},
      {"corrente, passo trasversale 30 con Fy",
       Corrente,
       {{40, 20}, {40, 50}},
       1000,
       {kInterasse + c},
       -500},
  };
  // One session for all (the result tables are slow to make): the checks read only the node.
  ProvaBulloniTA p;
  p.r.ControlloGeometricoTA = 1;
  const Nodo base = p.nodo;
  for (const Caso& k : casi) {
    SCOPED_TRACE(k.nome);
    p.nodo = base;
    if (k.gruppo == AstaLunga) p.nodo.Ast_ins[1] = 200;
    if (k.gruppo == Angolare) p.nodo.Aste[1].Tipo = 1, p.nodo.Aste[1].h = 100, p.nodo.Aste[1].a = 8;
    p.piattaforma.messaggi.clear();
    const int g = k.gruppo == Corrente ? 0 : 1;
    for (const auto& [x, y] : k.bulloni) p.Bullone(g, x, y, 12);
    BulloniTA(p.sessione, g + 1, 1, k.Fx, k.Fy, k.gruppo == Corrente ? 60 : 0);
    EXPECT_EQ(p.Testi(), k.attesi);
    for (const auto& m : p.piattaforma.messaggi) {
      EXPECT_EQ(m.titolo, "ATTENZIONE!");
      EXPECT_EQ(m.icona, Icona::Attenzione);
      EXPECT_EQ(m.pulsanti, Pulsanti::OkAnnulla);
    }
  }
}

// The warnings themselves, their order and Cancel, are the limit states' (the same helper); here
// only the switch: with the check off or done for an earlier set, no warning and Interrompi kept.
TEST(ControlliDisposizioneTA, SenzaIlControlloNessunAvviso) {
  for (std::int16_t controllo : {0, 2}) {
    ProvaBulloniTA p;
    for (double x : {20, 55}) p.Bullone(2, x, 40, 12);  // end distance 20, pitch 35
    p.r.ControlloGeometricoTA = controllo;
    p.r.Interrompi = 1;  // as a limit state run may have left it
    BulloniTA(p.sessione, 3, 1, 1000, 0, 0);
    EXPECT_TRUE(p.piattaforma.messaggi.empty());
    EXPECT_EQ(p.r.Interrompi, 1);
  }
}

}  // namespace
}  // namespace qf17
