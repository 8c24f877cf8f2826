#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>

#include "disegno/archivio_disegno.h"
#include "disegno/archivio_disegno_primitive.h"
#include "nodo/sessione.h"
#include "piattaforma/errori.h"
#include "piattaforma/piattaforma_registrata.h"
#include "quote_prova.h"

namespace qf17 {
namespace {

class ArchivioDisegnoTest : public ::testing::Test, public prova::SessioneQuote {
 protected:
  TabelleDisegno& t = a.Tabelle();
};

TEST(ArchivioDisegnoSessione, UnaSessioneCheNonDisegnaNonFaLeTabelle) {
  PiattaformaRegistrata p;
  Sessione s{p};
  EXPECT_FALSE(s.disegno.HaTabelle());
  s.disegno.DestinazioneDisegno = "gendis";
  DisegnaLinea(s, 0, 0, 1, 1);
  EXPECT_TRUE(s.disegno.HaTabelle());
}

// Coordinates 0.00009 apart on both axes share an index when the earlier one is among the 31
// newest; the tolerance itself is already too far.
TEST_F(ArchivioDisegnoTest, RicercaSulleUltime31Coordinate) {
  struct Caso {
    int inMezzo;
    double scarto;
    bool condivisa;
  };
  for (const Caso c : {Caso{0, 0.00009, true}, Caso{10, 0.00009, true}, Caso{29, 0.00009, true},
                       Caso{30, -0.00009, true}, Caso{31, 0.00009, false}, Caso{40, 0.00009, false},
                       Caso{0, 0.0001, false}}) {
    SCOPED_TRACE(testing::Message() << c.inMezzo << " in mezzo, scarto " << c.scarto);
    AzzeraDisegno(a);
    // From 0, so that the tolerance itself is a difference of exactly 0.0001.
    ASSERT_EQ(AggiungiCoordinata(a, p, 0, 0), 0);
    for (int k = 0; k < c.inMezzo; ++k) AggiungiCoordinata(a, p, 100 + k, 0);
    const std::int16_t i = AggiungiCoordinata(a, p, c.scarto, c.scarto);
    EXPECT_EQ(i, c.condivisa ? 0 : c.inMezzo + 1);
    EXPECT_EQ(a.NumCoord, c.inMezzo + (c.condivisa ? 1 : 2));
  }
  // Of two matches the newest wins, and the stored value is the first one's.
  AzzeraDisegno(a);
  AggiungiCoordinata(a, p, 0, 0);
  AggiungiCoordinata(a, p, 0.00015, 0);
  EXPECT_EQ(AggiungiCoordinata(a, p, 0.00008, 0), 1);
  EXPECT_EQ(t.CoordX[1], 0.00015);
}

TEST_F(ArchivioDisegnoTest, TabellaCoordinatePienaAvvisaUnaVoltaPoiMeno1) {
  for (int i = 0; i < 49999; ++i) ASSERT_EQ(TrovaOAggiungiCoordinata(a, p, i, 1), i);
  EXPECT_TRUE(p.messaggi.empty());
  EXPECT_EQ(TrovaOAggiungiCoordinata(a, p, -5, -5), 49999);  // row 49999: told, and stored
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].titolo, "ERRORE !!");
  EXPECT_EQ(p.messaggi[0].testo, "Si è raggiunto il numero massimo di coordinate.");
  EXPECT_EQ(p.messaggi[0].pulsanti, Pulsanti::Ok);
  EXPECT_EQ(t.CoordX[49999], -5);
  EXPECT_EQ(a.NumCoord, 50000);
  EXPECT_EQ(TrovaOAggiungiCoordinata(a, p, -6, -6), -1);       // the 50,001st: nothing, silently
  EXPECT_EQ(TrovaOAggiungiCoordinata(a, p, 49990, 1), 49990);  // a recent one is still found
  EXPECT_EQ(a.NumCoord, 50000);
  EXPECT_EQ(p.messaggi.size(), 1u);
}

// The family's index is 16 bits: the 32,769th coordinate fails cleanly instead of wrapping.
TEST_F(ArchivioDisegnoTest, IndiceA16BitFinoA32767PoiErrore) {
  for (int i = 0; i < 32768; ++i) ASSERT_EQ(AggiungiCoordinata(a, p, i, 0), i);
  EXPECT_THROW(AggiungiCoordinata(a, p, -1, -1), ErroreFatale);
  EXPECT_EQ(a.NumCoord, 32768);
  EXPECT_EQ(AggiungiCoordinata(a, p, 32767, 0), 32767);  // a recent one is still found
  try {
    DisegnaLinea(s, -1, -1, -2, -2);
    FAIL() << "una linea oltre l'indice 32767 deve fermare il disegno";
  } catch (const ErroreFatale& e) {
    EXPECT_NE(std::string(e.what()).find("32768"), std::string::npos) << e.what();
  }
  // A table filled further by other means cannot even be searched with a 16-bit counter.
  AzzeraDisegno(a);
  for (int i = 0; i < 32770; ++i) TrovaOAggiungiCoordinata(a, p, i, 0);
  EXPECT_THROW(AggiungiCoordinata(a, p, 32769, 0), ErroreFatale);
  EXPECT_TRUE(p.messaggi.empty());
}

TEST_F(ArchivioDisegnoTest, LineeDegeneriNonArrivanoAllaTabella) {
  struct Caso {
    double dx, dy;
    bool registrata;
  };
  for (const Caso c :
       {Caso{0.00005, 0.00005, false}, Caso{0.0001, 0.0001, false}, Caso{-0.0001, 0, false},
        Caso{0.0002, 0, true}, Caso{0, -0.0002, true}, Caso{0.00011, 0.00001, true}}) {
    SCOPED_TRACE(testing::Message() << c.dx << ", " << c.dy);
    AzzeraDisegno(a);
    DisegnaLineaRel(s, 0, 0, c.dx, c.dy, 2);  // from 0: the differences are exact
    EXPECT_EQ(a.NumLinee, c.registrata ? 1 : 0);
    EXPECT_EQ(a.NumCoord, c.registrata ? 2 : 0);
  }
}

// Style 2, or one out of the table, is no style: the row keeps the type the line before it left
// there; colour 0 is stored as 1.
TEST_F(ArchivioDisegnoTest, StileSconosciutoLasciaIlTipo) {
  for (std::int16_t stile : {2, 7, -1}) {
    AzzeraDisegno(a);
    t.LinTipo[0] = 4;
    a.StileLinea = stile;
    DisegnaLinea(s, 1, 2, 3, 4, 0);
    EXPECT_EQ(t.LinTipo[0], 4) << stile;
    EXPECT_EQ(t.LinColore[0], 1);
  }
}

TEST_F(ArchivioDisegnoTest, AltraDestinazioneNonRegistraNulla) {
  a.DestinazioneDisegno = "";
  DisegnaLinea(s, 0, 0, 10, 10);
  DisegnaCerchio(s, 0, 0, 10);
  ScriviTesto(s, "x", 0, 0, 0, 1, 1);
  a.DestinazioneDisegno = "GENDIS";
  DisegnaLinea(s, 0, 0, 10, 10);
  EXPECT_EQ(a.NumLinee + a.NumArchi + a.NumTesti + a.NumCoord, 0);
  EXPECT_EQ(a.EstMaxX, -10000000000.0);
}

// The size given is the diameter; with no end angle the circle is whole, in the current colour,
// 0 standing for 1; a diameter not above the tolerance draws nothing.
TEST_F(ArchivioDisegnoTest, CerchiEArchi) {
  a.OrigineX = 1000;
  a.ColoreCorrente = 6;
  DisegnaCerchio(s, 20, 10, 10);
  DisegnaCerchio(s, 20, 10, 20, std::int16_t{0}, std::numbers::pi);  // start angle, no end
  a.ColoreCorrente = 0;
  DisegnaCerchio(s, 0, 0, 1);
  DisegnaCerchio(s, 0, 0, 0.0001);
  ASSERT_EQ(a.NumArchi, 3);
  EXPECT_EQ(t.CoordX[t.ArcInizio[0]], 1025);
  EXPECT_EQ(t.ArcColore[0], 6);
  EXPECT_EQ(t.ArcInizio[1], t.ArcFine[1]);
  EXPECT_EQ(t.CoordX[t.ArcInizio[1]], 1010);
  EXPECT_EQ(t.ArcColore[1], 1);
  EXPECT_EQ(t.ArcColore[2], 1);
}

TEST_F(ArchivioDisegnoTest, TestiInDecimiArrotondatiAlPari) {
  struct Caso {
    double misura;
    std::int16_t decimi;
  };
  for (const Caso c : {Caso{0.25, 2}, Caso{0.75, 8}, Caso{1.25, 12}, Caso{2.5, 25}, Caso{0.04, 0},
                       Caso{0.06, 1}, Caso{-0.25, -2}, Caso{0, 0}}) {
    SCOPED_TRACE(c.misura);
    AzzeraDisegno(a);
    ScriviTesto(s, "Nodo è", 1, 2, 90, c.misura, 3.5);
    ASSERT_EQ(a.NumTesti, 1);
    EXPECT_EQ(t.TestoLarghezza[0], c.decimi);
    EXPECT_EQ(t.TestoAltezza[0], 35);
    EXPECT_EQ(t.TestoAngolo[0], 90);
    EXPECT_EQ(t.TestoColore[0], 1);
    EXPECT_EQ(t.TestoStringa[0], "Nodo è");
  }
  EXPECT_THROW(ScriviTesto(s, "x", 0, 0, 0, 3276.8, 1), ErroreFatale);  // beyond 16 bits
}

// Lines and arcs are told at their last-but-one row and then stop without a word; the arc table
// borrows the lines' message.
TEST_F(ArchivioDisegnoTest, LineeEArchiAvvisanoAlPenultimoPoiSiFermano) {
  for (int i = 0; i < 49999; ++i) DisegnaLinea(s, 0, 0, 1, 1, 2);
  EXPECT_TRUE(p.messaggi.empty());
  DisegnaLinea(s, 0, 0, 1, 2, 3);
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].titolo, "ERRORE !!");
  EXPECT_EQ(p.messaggi[0].testo, "Si è raggiunto il numero massimo di linee.");
  EXPECT_EQ(a.NumLinee, 50000);
  EXPECT_EQ(t.LinColore[49999], 3);
  DisegnaLinea(s, 500, 500, 600, 600, 4);
  EXPECT_EQ(a.NumLinee, 50000);
  EXPECT_EQ(a.EstMaxX, 1);  // the dropped line does not reach the extents
  EXPECT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(a.NumCoord, 3);

  for (int i = 0; i < 14999; ++i) DisegnaCerchio(s, 0, 0, 2);
  EXPECT_EQ(p.messaggi.size(), 1u);
  DisegnaCerchio(s, 0, 0, 2);
  ASSERT_EQ(p.messaggi.size(), 2u);
  EXPECT_EQ(p.messaggi[1].testo, "Si è raggiunto il numero massimo di linee.");
  EXPECT_EQ(a.NumArchi, 15000);
  DisegnaCerchio(s, 0, 0, 2);
  EXPECT_EQ(a.NumArchi, 15000);
  EXPECT_EQ(p.messaggi.size(), 2u);
}

// Texts are told at row 14999 but their stop waits for 50000: row 15000 still takes a text and
// the next one is past the table, which stops the drawing.
TEST_F(ArchivioDisegnoTest, TestiOltreLaTabellaSonoUnErrore) {
  for (int i = 0; i < 14999; ++i) ScriviTesto(s, "a", 0, 0, 0, 1, 1);
  EXPECT_TRUE(p.messaggi.empty());
  ScriviTesto(s, "b", 0, 0, 0, 1, 1);
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].titolo, "ERRORE !!");
  EXPECT_EQ(p.messaggi[0].testo, "Si è raggiunto il numero massimo di testi.");
  ScriviTesto(s, "c", 0, 0, 0, 1, 1);
  EXPECT_EQ(a.NumTesti, 15001);
  EXPECT_EQ(t.TestoStringa[15000], "c");
  EXPECT_THROW(ScriviTesto(s, "d", 0, 0, 0, 1, 1), ErroreFatale);
  EXPECT_EQ(a.NumTesti, 15001);
  EXPECT_EQ(p.messaggi.size(), 1u);
}

TEST_F(ArchivioDisegnoTest, AzzeraDisegnoTieneLeRigheECopiaLeTabelle) {
  DisegnaLinea(s, 0, 0, 5, 5, 3);
  ScriviTesto(s, "t", 0, 0, 0, 1, 1);
  a.QuotaAlternata = 1;  // working state travels with the copy too
  ArchivioDisegno copia = a;
  AzzeraDisegno(a);
  EXPECT_EQ(a.NumCoord + a.NumLinee + a.NumTesti, 0);
  EXPECT_EQ(t.LinColore[0], 3);
  t.LinColore[0] = 9;
  EXPECT_EQ(copia.NumLinee, 1);
  EXPECT_EQ(copia.Tabelle().LinColore[0], 3);
  EXPECT_EQ(copia.QuotaAlternata, 1);
}

}  // namespace
}  // namespace qf17
