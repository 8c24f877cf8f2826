#include <gtest/gtest.h>

#include <string>

#include "importazione/nodo_modello.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {
namespace {

TEST(NodoModello, Elenchi) {
  PiattaformaRegistrata p;
  EXPECT_EQ(LeggiElenco("1,3,7-9", p), (std::vector<std::int16_t>{1, 3, 7, 8, 9}));
  EXPECT_EQ(LeggiElenco(" 12 , 4-4,", p), (std::vector<std::int16_t>{12, 4}));
  EXPECT_EQ(LeggiElenco("", p), std::vector<std::int16_t>{});
  for (const char* errato : {"1;2", "a", "3-", "9-7", "1.5"}) {
    EXPECT_FALSE(LeggiElenco(errato, p)) << errato;
  }
  ASSERT_EQ(p.messaggi.size(), 5u);
  EXPECT_EQ(p.messaggi[0].testo, "Inserimento dati errato");
  EXPECT_EQ(p.messaggi[0].titolo, "ERRORE");
}

// Model names as the library writes them, and the mode they imply.
TEST(NodoModello, NomiDelleSezioni) {
  struct Caso {
    const char* modello;
    const char* nome;
    std::int16_t modo;
    bool libreria;
  };
  const Caso casi[] = {
      {"P_LDO80_8", "LU80x8", 2, true},        {"P_LDI80_60_7", "LD80x60x7", 1, true},
      {"P_LD70_7", "LU70x7", 1, true},         {"P_L60_6", "LU60x6", 0, true},
      {"P_LI80_60_7", "LD80x60x7", 0, true},   {"P_HEA 200", "HEA200", 0, true},
      {"IPE200", "Non app. IPE200", 0, false},
  };
  for (const Caso& c : casi) {
    const SezioneModello s = NomeSezioneModello(c.modello);
    EXPECT_EQ(s.nome, c.nome) << c.modello;
    EXPECT_EQ(s.modo, c.modo) << c.modello;
    EXPECT_EQ(s.dallaLibreria, c.libreria) << c.modello;
  }
}

// Clockwise from the horizontal, in the truss's vertical plane; worked by the rule: arccos of
// dz / L in degrees, signed by dx (or dy), to one decimal, less 90, a half turn taken as 0.
TEST(NodoModello, Angoli) {
  struct Caso {
    PuntoModello lontano;
    double gradi;
  };
  const Caso casi[] = {
      {{1000, 0, 0}, 0},          // along +x: 90 - 90
      {{-1000, 0, 0}, 0},         // along -x: -90 - 90 = -180, taken as 0
      {{0, 0, 1000}, -90},        // up: 0 - 90
      {{0, 0, -1000}, 90},        // down: 180 - 90
      {{1000, 0, 1000}, -45},     // up towards +x: 45 - 90
      {{-1000, 0, 1000}, -135},   // up towards -x: -45 - 90
      {{0, 500, 866.0254}, -60},  // across x, in the y-z plane: 30 - 90
      {{0, 0, 0}, -90},           // no length: 0 radians
      {{866.0254, 0, 500}, -30},  // 60 degrees from the vertical (arccos 0.5): 60 - 90
  };
  for (std::size_t k = 0; k < std::size(casi); ++k) {
    EXPECT_DOUBLE_EQ(AngoloModello({0, 0, 0}, casi[k].lontano), casi[k].gradi) << k;
  }
}

TEST(NodoModello, AsteDelNodo) {
  StrutturaModello s;
  s.punti = {{0, 0, 0}, {1000, 0, 0}, {0, 0, 1000}};
  s.nodi = {{0, 5}, {1, 6}};
  s.aste = {{0, 1, 1, 1, 11, 2}, {2, 0, 1, 1, 12, 3}, {1, 2, 1, 1, 13, 4}, {0, 2, 1, 1, 0, 5}};
  PiattaformaRegistrata p;
  const auto aste = LeggiAsteDelNodo(s, 5, p);
  ASSERT_TRUE(aste);
  ASSERT_EQ(aste->size(), 2u);  // 13 does not reach the node, the last is no member
  EXPECT_EQ((*aste)[1].nome, 12);
  EXPECT_EQ((*aste)[1].sezione, 3);
  EXPECT_EQ((*aste)[1].estremo1.z, 0);     // at the node
  EXPECT_EQ((*aste)[1].estremo2.z, 1000);  // the far end, though the file lists it first
  EXPECT_FALSE(LeggiAsteDelNodo(s, 99, p));
  EXPECT_EQ(p.messaggi.back().testo, "Errore: nodo inesistente");
}

}  // namespace
}  // namespace qf17
