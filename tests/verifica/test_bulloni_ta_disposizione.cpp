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
TEST(ControlliDisposizioneTA, OgniRegolaColSuoAvviso) {
  struct Caso {
    const char* nome;
    Bulloni bulloni;
    double Fx;
    std::vector<std::string> attesi;
  };
  const std::string a = " sull'asta A";
  const Caso casi[] = {
      {"regolare", {{40, 40}, {80, 40}}, 1000, {}},
      {"sopra l'area", {{40, 40}, {80, 101}}, 1000, {kFuori + a}},
      {"troppo vicino all'inizio", {{20, 40}, {60, 40}}, 1000, {kBordo + a}},
      {"troppo vicino alla fine", {{40, 40}, {100, 40}}, 1000, {kBordo + a}},  // 120 - 100
      {"bordo 10 + 9 = 19 basta", {{40, 9}, {80, 9}}, 1000, {}},
      {"bordo 10 + 7 = 17", {{40, 7}, {80, 7}}, 1000, {kBordo + a}},
      {"bordo 10 + 45 = 55", {{40, 45}, {80, 45}}, 1000, {kBordo + a}},
      // One bolt shares nothing, yet its layout is checked: 60 from either end is above 54.
      {"un bullone", {{60, 40}}, 1000, {kBordo + a}},
      {"coincidenti", {{40, 40}, {40, 40}}, 1000, {kCoincidenti + a}},
      // Coincident bolts end the pitch search: the pitch 35 of the third is never judged.
      {"coincidenti e fitti", {{40, 40}, {40, 40}, {75, 40}}, 1000, {kCoincidenti + a}},
      {"passo 35", {{40, 40}, {75, 40}}, 1000, {kInterasse + a}},
      // Staggered beyond two diameters (30 > 24): the 30 along x is no pitch.
      {"sfalsati", {{40, 40}, {70, 70}}, 1000, {}},
      {"passo 35 a compressione", {{40, 40}, {75, 40}}, -1000, {kInterasse + a}},
  };
  // One session for all (the result tables are slow to make): the checks read only the node.
  ProvaBulloniTA p;
  p.r.ControlloGeometricoTA = 1;
  for (const Caso& c : casi) {
    p.nodo.nBull[1] = 0;
    p.piattaforma.messaggi.clear();
    for (const auto& [x, y] : c.bulloni) p.Bullone(1, x, y, 12);
    BulloniTA(p.sessione, 2, 1, c.Fx, 0, 0);
    EXPECT_EQ(p.Testi(), c.attesi) << c.nome;
    for (const auto& m : p.piattaforma.messaggi) {
      EXPECT_EQ(m.titolo, "ATTENZIONE!");
      EXPECT_EQ(m.icona, Icona::Attenzione);
      EXPECT_EQ(m.pulsanti, Pulsanti::OkAnnulla);
    }
  }
}

// The greatest pitch along the member depends on its sign: with Ast_ins 200 two bolts 100
// apart (ends 50 and 50) pass when pulled (100 <= 150), not otherwise (100 > 90).
TEST(ControlliDisposizioneTA, PassoMassimoSecondoIlSegno) {
  for (double Fx : {1000.0, 0.0, -1000.0}) {
    ProvaBulloniTA p;
    p.r.ControlloGeometricoTA = 1;
    p.nodo.Ast_ins[1] = 200;
    p.Bullone(1, 50, 40, 12);
    p.Bullone(1, 150, 40, 12);
    BulloniTA(p.sessione, 2, 1, Fx, 0, 0);
    const std::vector<std::string> attesi =
        Fx > 0 ? std::vector<std::string>{} : std::vector<std::string>{kInterasse + " sull'asta A"};
    EXPECT_EQ(p.Testi(), attesi) << Fx;
  }
}

// An angle measures the edge distance from y itself and allows only 6 * tmin: with web 8,
// tmin = 8 and the edge distance must lie in 18..48.
TEST(ControlliDisposizioneTA, AngolareBordoDaYESeiSpessori) {
  struct Caso {
    double y;
    bool difforme;
  };
  const Caso casi[] = {{30, false}, {15, true}, {50, true}};
  for (const Caso& c : casi) {
    ProvaBulloniTA p;
    p.r.ControlloGeometricoTA = 1;
    p.nodo.Aste[1].Tipo = 1;
    p.nodo.Aste[1].h = 100;  // bolted height 90
    p.nodo.Aste[1].a = 8;
    p.Bullone(1, 40, c.y, 12);
    p.Bullone(1, 80, c.y, 12);
    BulloniTA(p.sessione, 2, 1, 1000, 0, 0);
    const std::vector<std::string> attesi =
        c.difforme ? std::vector<std::string>{kBordo + " sull'asta A"} : std::vector<std::string>{};
    EXPECT_EQ(p.Testi(), attesi) << c.y;
  }
}

// The chord, loaded across as well: edge distance at least 2 * 12 = 24 and the pitch across
// it is judged too (at least 36).
TEST(ControlliDisposizioneTA, CorrenteConForzaTrasversale) {
  struct Caso {
    const char* nome;
    Bulloni bulloni;
    double Fy;
    std::vector<std::string> attesi;
  };
  const std::string c = " sul corrente";
  const Caso casi[] = {
      {"bordo 19 senza Fy", {{40, 9}, {80, 9}}, 0, {}},
      {"bordo 19 con Fy", {{40, 9}, {80, 9}}, 500, {kBordo + c}},
      {"passo trasversale 30 senza Fy", {{40, 20}, {40, 50}}, 0, {}},
      {"passo trasversale 30 con Fy", {{40, 20}, {40, 50}}, -500, {kInterasse + c}},
  };
  for (const Caso& k : casi) {
    ProvaBulloniTA p;
    p.r.ControlloGeometricoTA = 1;
    for (const auto& [x, y] : k.bulloni) p.Bullone(0, x, y, 12);
    BulloniTA(p.sessione, 1, 1, 1000, k.Fy, 60);
    EXPECT_EQ(p.Testi(), k.attesi) << k.nome;
  }
}

// Bolts (20, 40), (55, 40), (55, 101): outside (101 > 100), end distance 20 < 24, pitch 35.
void GruppoConTreDifformita(ProvaBulloniTA& p, int gruppo) {
  p.r.ControlloGeometricoTA = 1;
  p.Bullone(gruppo, 20, 40, 12);
  p.Bullone(gruppo, 55, 40, 12);
  p.Bullone(gruppo, 55, 101, 12);
}

TEST(ControlliDisposizioneTA, AnnullaFermaMaGliAvvisiSeguonoTutti) {
  struct Caso {
    std::vector<Risposta> risposte;
    std::int16_t interrompiPrima;
    std::int16_t interrompi;
  };
  const Caso casi[] = {
      {{Risposta::Annulla, Risposta::Ok, Risposta::Ok}, 0, 1},
      {{Risposta::Ok, Risposta::Ok, Risposta::Annulla}, 0, 1},
      {{Risposta::Ok, Risposta::Ok, Risposta::Ok}, 1, 0},  // cleared by the checks
  };
  for (const Caso& c : casi) {
    ProvaBulloniTA p;
    GruppoConTreDifformita(p, 3);
    p.r.Interrompi = c.interrompiPrima;
    p.piattaforma.risposte.assign(c.risposte.begin(), c.risposte.end());
    BulloniTA(p.sessione, 4, 1, 1000, 0, 0);
    const std::string dove = " sull'asta C";
    EXPECT_EQ(p.Testi(),
              (std::vector<std::string>{kFuori + dove, kBordo + dove, kInterasse + dove}));
    EXPECT_EQ(p.r.Interrompi, c.interrompi);
  }
}

TEST(ControlliDisposizioneTA, SenzaIlControlloNessunAvviso) {
  for (std::int16_t controllo : {0, 2}) {
    ProvaBulloniTA p;
    GruppoConTreDifformita(p, 2);
    p.r.ControlloGeometricoTA = controllo;
    p.r.Interrompi = 1;  // as a limit state run may have left it
    BulloniTA(p.sessione, 3, 1, 1000, 0, 0);
    EXPECT_TRUE(p.piattaforma.messaggi.empty());
    EXPECT_EQ(p.r.Interrompi, 1);
  }
}

}  // namespace
}  // namespace qf17
