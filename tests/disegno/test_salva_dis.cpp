#include <gtest/gtest.h>

#include <numbers>
#include <optional>
#include <string>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/archivio_disegno_primitive.h"
#include "disegno/formati/pulisci_disegno.h"
#include "disegno/formati/salva_dis.h"
#include "disegno/formati/salva_dxf.h"
#include "disegno/formati/salva_svg.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "quote_prova.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

class SalvaDisTest : public ::testing::Test, public prova::SessioneQuote {
 protected:
  std::string File(const std::string& nome) const { return (cartella.percorso() / nome).string(); }

  // A gusset-sized sketch: an outline, a dashed line on its bottom edge, a dash-dot axis, a
  // circle drawn twice, a quarter arc, a text with an accented letter, a text of no height and a
  // line below the origin.
  void Schizzo() {
    a.OrigineX = 100;
    a.OrigineY = 50;
    DisegnaLinea(s, 0, 0, 40, 0, 1);
    DisegnaLinea(s, 40, 0, 40, 20, 1);
    DisegnaLinea(s, 40, 20, 0, 20, 1);
    DisegnaLinea(s, 0, 20, 0, 0, 1);
    a.StileLinea = 1;
    DisegnaLinea(s, 10, 0, 30, 0, 2);
    a.StileLinea = 3;
    DisegnaLinea(s, 20, -5, 20, 25, 2);
    a.StileLinea = 0;
    DisegnaCerchio(s, 20, 10, 10, std::int16_t{3});
    a.ColoreCorrente = 5;
    DisegnaCerchio(s, 20, 10, 10, std::nullopt, 0, std::numbers::pi / 2);
    DisegnaCerchio(s, 20, 10, 10, std::int16_t{3});
    ScriviTesto(s, "Nodo è", 5, 25, 90, 2.5, 3.5);
    ScriviTesto(s, "zero", 0, 30, 0, 2, 0.04);
    DisegnaLinea(s, -110, -60, -99.75, -49.5, 6);
  }

  TabelleDisegno& t = a.Tabelle();
  prova::CartellaProva cartella;
};

// The expected file was written by hand: extents over all 15 coordinates before the clean-up;
// the dashed line on the edge, the repeated circle and the text of no height gone, with the
// three coordinates only they used; the rest renumbered in order.
TEST_F(SalvaDisTest, SchizzoBytePerByte) {
  Schizzo();
  ASSERT_EQ(a.NumCoord, 15);
  const std::string nome = File("schizzo.dis");
  std::int16_t versione = 4;
  SalvaDis(s, nome, versione, 0);
  EXPECT_EQ(versione, 1);
  const std::string atteso =
      prova::LeggiTutto(std::filesystem::path(QF17_DATI_TEST) / "disegno/dati/dis_piccolo.dis");
  ASSERT_FALSE(atteso.empty());
  EXPECT_EQ(prova::LeggiTutto(nome), atteso);
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].testo, "File " + nome + " salvato.");
  EXPECT_EQ(p.messaggi[0].titolo, "SALVA FILE DISEGNO");
  EXPECT_EQ(p.messaggi[0].icona, Icona::Informazione);
  // The store stays cleaned: a second writer sees the same drawing.
  EXPECT_EQ((std::vector<std::int32_t>{a.NumCoord, a.NumLinee, a.NumArchi, a.NumTesti}),
            (std::vector<std::int32_t>{12, 6, 2, 1}));
}

// Version 4 is written as asked, any other as 3.
TEST_F(SalvaDisTest, RigaDiVersioneDiVentiCaratteri) {
  DisegnaLinea(s, 0, 0, 1, 1);
  for (const auto& [versione, cifra] :
       std::vector<std::pair<int, char>>{{4, '4'}, {3, '3'}, {7, '3'}, {0, '3'}}) {
    const std::string testo =
        TestoDis(a, EstensioniDisegno(a), static_cast<std::int16_t>(versione));
    EXPECT_EQ(testo.substr(0, 22), std::string(19, ' ') + cifra + "\r\n") << versione;
  }
}

// The boxes of the three writers by the silence flag: the SVG writer answers as the DIS one; the
// DXF writer has a title of its own and tells a failure even when asked to be silent.
TEST_F(SalvaDisTest, MessaggiSecondoIlSilenzio) {
  struct Caso {
    std::string formato;
    bool scrivibile;
    std::int16_t silenzioso;
    bool messaggio;
  };
  const Caso casi[] = {
      {"dis", true, 0, true},  {"dis", true, 1, false},   {"dis", true, 2, false},
      {"dis", true, -1, true}, {"dis", false, 0, true},   {"dis", false, 1, false},
      {"dis", false, 2, true}, {"dis", false, -1, false}, {"svg", true, 0, true},
      {"svg", true, 1, false}, {"svg", false, 2, true},   {"dxf", true, 0, true},
      {"dxf", true, 1, false}, {"dxf", false, 0, true},   {"dxf", false, 1, true},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(testing::Message() << c.formato << " " << c.scrivibile << " " << c.silenzioso);
    p.messaggi.clear();
    AzzeraDisegno(a);
    Schizzo();
    const std::string nome = File((c.scrivibile ? "nodo." : "manca/nodo.") + c.formato);
    bool riuscito = false;
    if (c.formato == "dis") {
      std::int16_t versione = 4;
      SalvaDis(s, nome, versione, c.silenzioso);
      riuscito = versione == 1;
      EXPECT_EQ(a.NumLinee, 6);  // cleaned whatever happened to the file
    } else if (c.formato == "svg") {
      riuscito = SalvaSvg(s, nome, c.silenzioso);
    } else {
      riuscito = SalvaDxf(s, nome, 0, 0, 0, 0, c.silenzioso);
    }
    EXPECT_EQ(riuscito, c.scrivibile);
    const bool dxf = c.formato == "dxf";
    std::vector<std::string> attesi, visti;
    if (c.messaggio && c.scrivibile) {
      attesi.push_back((dxf ? "SALVA FILE DXF" : "SALVA FILE DISEGNO") + (": File " + nome) +
                       " salvato.");
    } else if (c.messaggio) {
      attesi.push_back(dxf ? "QF17: ERRORE: non riesco ad aprire il file " + nome
                           : "ERRORE: Errore durante la scrittura sul file" + nome);
    }
    for (const auto& m : p.messaggi) visti.push_back(m.titolo + ": " + m.testo);
    EXPECT_EQ(visti, attesi);
  }
}

// Extents start from entry 0 of the table, even when the drawing holds nothing.
TEST_F(SalvaDisTest, EstensioniDallaRigaZero) {
  t.CoordX[0] = 7;
  t.CoordY[0] = -3;
  EXPECT_EQ(TestoDis(a, EstensioniDisegno(a), 4),
            "                   4\r\n 7  7 \r\n-3 -3 \r\n-10000.000000        10000.000000\r\n"
            " 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n");
}

// Which lines survive, given in the order drawn; the first line is always continuous, colour 1,
// from (0, 0) to (10, 0).
TEST_F(SalvaDisTest, LineeCoperteTolteSoloSeColorateENonContinue) {
  struct Linea {
    double x1, y1, x2, y2;
    std::int16_t stile, colore;
  };
  struct Caso {
    const char* nome;
    std::vector<Linea> linee;
    std::vector<std::int16_t> restano;  // colours of the lines that stay, in order
  };
  const std::vector<Caso> casi{
      {"tratteggiata sulla continua", {{2, 0, 8, 0, 1, 2}}, {1}},
      {"tratteggiata di colore 0", {{2, 0, 8, 0, 1, 0}}, {1}},  // 0 is stored as 1...
      {"tratto-punto sulla continua", {{0, 0, 10, 0, 3, 4}}, {1}},
      {"continua su una tratteggiata", {{-5, 0, 15, 0, 1, 3}, {2, 0, 8, 0, 0, 5}}, {1, 3, 5}},
      {"tratteggiate sovrapposte in parte", {{5, 5, 15, 5, 1, 2}, {10, 5, 20, 5, 1, 3}}, {1, 2, 3}},
      {"coperta da una tratteggiata", {{-5, 7, 15, 7, 1, 3}, {0, 7, 10, 7, 1, 2}}, {1, 3}},
      {"due uguali: resta l'ultima", {{0, 3, 9, 3, 1, 2}, {0, 3, 9, 3, 1, 6}}, {1, 6}},
      // Beside the line: the sum of distances exceeds the length by 0.0000833 and 0.000105.
      {"a 0.02 dalla continua", {{4, 0.02, 6, 0.02, 1, 2}}, {1}},
      {"a 0.0225 dalla continua", {{4, 0.0225, 6, 0.0225, 1, 2}}, {1, 2}},
      {"in verso opposto", {{10, 0, 0, 0, 1, 2}}, {1}},
      {"inclinata su una inclinata", {{0, 0, 30, 40, 0, 1}, {3, 4, 27, 36, 1, 7}}, {1, 1}},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.nome);
    AzzeraDisegno(a);
    a.StileLinea = 0;
    DisegnaLinea(s, 0, 0, 10, 0, 1);
    for (const Linea& l : c.linee) {
      a.StileLinea = l.stile;
      DisegnaLinea(s, l.x1, l.y1, l.x2, l.y2, l.colore);
    }
    PulisciDisegno(a);
    std::vector<std::int16_t> colori;
    for (std::int32_t i = 0; i < a.NumLinee; ++i) colori.push_back(t.LinColore[i]);
    EXPECT_EQ(colori, c.restano);
  }
}

// ...but a line stored with colour 0, or with a negative colour or type, is another matter.
TEST_F(SalvaDisTest, ColoreZeroRestaNegativiVanno) {
  auto linea = [this](double x1, double x2, std::int16_t colore, std::int16_t tipo) {
    const std::int32_t i = a.NumLinee++;
    t.LinP1[i] = AggiungiCoordinata(a, p, x1, 0), t.LinP2[i] = AggiungiCoordinata(a, p, x2, 0);
    t.LinColore[i] = colore, t.LinTipo[i] = tipo;
  };
  linea(0, 10, 1, 0);
  linea(2, 8, 0, 4);     // colour 0 on a continuous line: stays
  linea(3, 7, -1, 0);    // negative colour: goes
  linea(20, 30, 2, -1);  // negative type: goes, uncovered as it is
  linea(20, 30, 2, 2);   // type 2 counts as non-continuous: nothing covers it any more
  linea(40, 50, 2, 4);   // covered by the next line, still there at its turn: goes
  linea(40, 50, 3, -1);  // and this one goes for its type
  // Along the axis the cover reaches 0.00005 beyond the end, less than a coordinate's own
  // tolerance: these ends are stored apart by hand.
  auto aParte = [this](double x1, double x2, std::int16_t colore, std::int16_t tipo) {
    const std::int32_t i = a.NumLinee++;
    for (double x : {x1, x2}) {
      t.CoordX[a.NumCoord] = x;
      t.CoordY[a.NumCoord] = 100;
      (x == x1 ? t.LinP1[i] : t.LinP2[i]) = a.NumCoord++;
    }
    t.LinColore[i] = colore;
    t.LinTipo[i] = tipo;
  };
  aParte(0, 10, 1, 0);
  aParte(0.5, 10.00004, 4, 1);  // 0.00008 over: on the line, goes
  aParte(0.5, 10.00006, 5, 1);  // 0.00012 over: stays (and its end is then merged onto 10)
  PulisciDisegno(a);
  ASSERT_EQ(a.NumLinee, 5);
  EXPECT_EQ(t.LinColore[0], 1);
  EXPECT_EQ(t.LinColore[1], 0);
  EXPECT_EQ(t.LinTipo[2], 2);
  EXPECT_EQ(t.LinTipo[3], 0);
  EXPECT_EQ(t.LinColore[4], 5);
  EXPECT_EQ(t.LinP2[4], t.LinP2[3]);
  EXPECT_EQ(a.NumCoord, 9);  // 3, 7, 40, 50 went with their lines, the ends by 10 and 0.5 merged
}

// A point drawn again after more than 31 others is stored twice; the clean-up gives it one
// index again. Arc ends keep their own coordinate, and so do markers.
TEST_F(SalvaDisTest, CoordinateUgualiUnitePrimaDiScrivere) {
  DisegnaLinea(s, 0, 0, 5, 5, 1);
  for (int k = 0; k < 40; ++k) DisegnaLinea(s, 100 + k, 0, 100 + k, 1, 1);
  DisegnaLinea(s, 0.00005, -0.00005, -5, 5, 1);
  DisegnaCerchio(s, 0.00002, 0, 10, std::int16_t{1}, 0, std::numbers::pi);
  t.ArcFine[0] = AggiungiCoordinata(a, p, 5.00003, 5);  // within 0.0001 of (5, 5)
  ASSERT_EQ(a.NumCoord, 2 + 80 + 2 + 2 + 1);
  a.NumPunti = 1;
  t.PuntoRif[0] = a.NumCoord - 1;
  PulisciDisegno(a);
  EXPECT_EQ(t.LinP1[41], t.LinP1[0]);     // the far-back copy of (0, 0) merged
  EXPECT_EQ(t.ArcCentro[0], t.LinP1[0]);  // and the arc's centre with it
  EXPECT_EQ(t.ArcCentro2[0], t.LinP1[0]);
  EXPECT_NE(t.ArcFine[0], t.LinP2[0]);  // the end on (5.00003, 5) keeps its own
  EXPECT_EQ(t.CoordX[t.ArcFine[0]], 5.00003);
  EXPECT_EQ(t.PuntoRif[0], t.ArcFine[0]);
  // Gone: the copy of (0, 0) and the arc's first end, which the new end replaced.
  EXPECT_EQ(a.NumCoord, 2 + 80 + 1 + 1 + 1);
}

// Of three points where only neighbours are within the tolerance, each is merged onto the first
// one before it within reach, not onto the first of the chain.
TEST_F(SalvaDisTest, CatenaDiPuntiVicini) {
  auto coordinata = [this](double x) {
    const std::int32_t i = a.NumCoord++;
    t.CoordX[i] = x;
    t.CoordY[i] = 0;
    return i;
  };
  const std::int32_t p0 = coordinata(0), p1 = coordinata(0.00008), p2 = coordinata(0.00016);
  const std::int32_t q = coordinata(50);
  for (std::int32_t estremo : {p0, p1, p2}) {
    const std::int32_t i = a.NumLinee++;
    t.LinP1[i] = estremo, t.LinP2[i] = q, t.LinColore[i] = 1, t.LinTipo[i] = 0;
  }
  PulisciDisegno(a);
  ASSERT_EQ(a.NumCoord, 3);
  EXPECT_EQ(t.CoordX[0], 0);
  EXPECT_EQ(t.CoordX[1], 0.00008);
  EXPECT_EQ(t.CoordX[2], 50);
  EXPECT_EQ(t.LinP1[0], 0);
  EXPECT_EQ(t.LinP1[1], 0);
  EXPECT_EQ(t.LinP1[2], 1);
}

TEST_F(SalvaDisTest, RiferimentoFuoriTabellaRifiutato) {
  DisegnaLinea(s, 0, 0, 1, 1);
  t.LinP1[0] = -1;
  EXPECT_THROW(PulisciDisegno(a), ErroreFatale);
  t.LinP1[0] = 2;
  EXPECT_THROW(PulisciDisegno(a), ErroreFatale);
}

}  // namespace
}  // namespace qf17
