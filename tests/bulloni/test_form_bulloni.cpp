// The bolt editor over a node made by hand: every expected figure is worked out in the comment
// beside it from the section's sizes, the hole tolerance (0.5 mm) and the method's rules.

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "bulloni/form_bulloni.h"
#include "disegno/opzioni.h"
#include "nodo/nodo.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {
namespace {

Profilo Sezione(std::int16_t tipo, double h, double e, double dBarX) {
  Profilo p;
  p.Tipo = tipo;
  p.h = h;
  p.e = e;
  p.dBarX = dBarX;
  return p;
}

class EditorBulloni : public ::testing::Test {
 protected:
  EditorBulloni() {
    // Chord: a channel 160 x 10.5 under a gusset 150 + 250 + 250 + 150 = 800 long. A: an angle
    // 70 x 7 inserted 200; B: a channel 120 x 9 inserted 120; C: an angle 60 x 6, opposed.
    n.Corrente = Sezione(0, 160, 10.5, 80);
    n.Fz_a = 150, n.Fz_b = 250, n.Fz_c = 250, n.Fz_d = 150;
    n.Aste[1] = Sezione(1, 70, 7, 20);
    n.Aste[2] = Sezione(0, 120, 9, 60);
    n.Aste[3] = Sezione(1, 60, 6, 17);
    n.Ast_ins[1] = 200, n.Ast_ins[2] = 120, n.Ast_ins[3] = 120;
    n.Ast_modo[3] = 2;
    o[25] = 0.5;
  }
  std::optional<FormBulloni> Apri(std::int16_t gruppo) {
    return ApriFormBulloni(n, o, p, gruppo, CaselleDalNodo(n), 600, 300);
  }
  FormBulloni ApriGruppo(std::int16_t gruppo) {
    auto f = Apri(gruppo);
    EXPECT_TRUE(f.has_value());
    return f.value_or(FormBulloni{});
  }

  Nodo n;
  Opzioni o;
  PiattaformaRegistrata p;
};

// Margins, current and minimum pitches by method and group; the 12 mm bolt's hole is 12.5.
TEST_F(EditorBulloni, MarginiEPassiPerMetodoEGruppo) {
  struct Caso {
    std::int16_t metodo, gruppo;
    const char *righe, *colonne;
    std::array<std::string, 6> atteso;  // margin, Passo(0), Passo(1), Fi3(0), Fi3(1), caption
  };
  const Caso casi[] = {
      // 2 x 12.5 = 25; (800 - 50) / 2 = 375; (160 - 21 - 50) / 2 = 44.5 -> 44; 3 x 12.5.
      {0, 1, "2", "2", {"25", "375", "44", "37.5", "37.5", "Inserimento bulloni sul corrente"}},
      // Int(1.2 x 12.5 + 1) = 16; (800 - 32) / 2 = 384; (139 - 32) / 2 = 53.5 -> 53; the chord's
      // minimum pitches are 2.4 and 2.2 holes.
      {1, 1, "2", "2", {"16", "384", "53", "30", "27.5", "Inserimento bulloni sul corrente"}},
      // A: (200 - 32) / 2 = 84; (70 - 7 - 32) / 2 = 15.5 -> 15; a member's are 2.2 and 2.4.
      {1, 2, "2", "2", {"16", "84", "15", "27.5", "30", "Inserimento bulloni sull'asta A"}},
      // One row and one column: no minimum pitch; (800 - 50) / 1 and (139 - 50) / 1.
      {0, 1, "1", "1", {"25", "750", "89", "-", "-", "Inserimento bulloni sul corrente"}},
      // No columns: the column pitch keeps what it showed (nothing yet).
      {0, 4, "3", "0", {"25", "", "1", "-", "37.5", "Inserimento bulloni sull'asta C"}},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(std::to_string(c.metodo) + " " + std::to_string(c.gruppo) + " " + c.righe);
    n.TipoVer = c.metodo;
    FormBulloni f = ApriGruppo(c.gruppo);
    f.Passo = {};
    f.MbpTxt = {"12", c.righe, c.colonne};
    CalcolaValori(f, n, o);
    EXPECT_EQ(f.MargSx, c.atteso[0]);
    EXPECT_EQ(f.MargIn, c.atteso[0]);
    EXPECT_EQ((std::array{f.Passo[0], f.Passo[1], f.Fi3[0], f.Fi3[1], f.Caption}),
              (std::array{c.atteso[1], c.atteso[2], c.atteso[3], c.atteso[4], c.atteso[5]}));
  }
}

// The rules of the generator, on member B's area 120 x 102 with the margins given.
TEST_F(EditorBulloni, RegoleDellaMatrice) {
  struct Caso {
    const char* nome;
    int righe, colonne;
    double diametro, sx, dx, in, su;
    bool accettata;
  };
  const Caso casi[] = {
      {"una riga e una colonna", 1, 1, 50, 10, 10, 20, 20, true},
      {"nessuna colonna", 2, 0, 10, 10, 10, 10, 10, false},
      // W = 120 - 20 - 20 = 80 = dx between two columns: 2 x 40 equals it and passes.
      {"due diametri uguali al passo", 1, 2, 40, 20, 20, 10, 10, true},
      {"due diametri oltre il passo", 1, 2, 40.001, 20, 20, 10, 10, false},
      // H = 102 - 50 - 50 = 2 rows 2 apart: a 2 mm bolt needs 4.
      {"righe troppo fitte", 2, 1, 2, 10, 10, 50, 50, false},
      {"margini oltre l'area", 1, 1, 10, 60, 60, 10, 10, false},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.nome);
    n.nBull[2] = 0;
    FormBulloni f = ApriGruppo(3);
    EXPECT_EQ(CreaMatriceBulloni(n, f, c.righe, c.colonne, c.diametro, c.dx, c.sx, c.in, c.su),
              c.accettata);
    EXPECT_EQ(f.NumBulloniEdit, c.accettata ? c.righe * c.colonne : 0);
  }
  // W exactly 0.0001 is refused, a little more is an area.
  FormBulloni f = ApriGruppo(3);
  f.area.AreaLarghezza = 0.0001;
  EXPECT_FALSE(CreaMatriceBulloni(n, f, 1, 1, 10, 0, 0, 0, 0));
  f.area.AreaLarghezza = 0.00011;
  EXPECT_TRUE(CreaMatriceBulloni(n, f, 1, 1, 10, 0, 0, 0, 0));
  EXPECT_EQ(n.xBull(2, 1), 0);
}

// Appended after the bolts there are, row by row from the bottom and from the left; rows read
// from a box that is not a number make it 0 and the matrix is refused with its message.
TEST_F(EditorBulloni, MatriceAggiuntaEMatriceNonValida) {
  n.nBull[1] = 1;
  n.xBull(1, 1) = 7;
  FormBulloni f = ApriGruppo(2);
  // Area 200 x 63, margins 25: columns (200 - 50) / 2 = 75 apart, rows 63 - 50 = 13 apart.
  f.MbpTxt = {"6", "2", "3"};
  ASSERT_TRUE(Matrice(f, n, p));
  ASSERT_EQ(f.NumBulloniEdit, 7);
  const double x[] = {7, 25, 100, 175, 25, 100, 175}, y[] = {0, 25, 25, 25, 38, 38, 38};
  for (int k = 1; k <= 7; ++k) {
    EXPECT_EQ(n.xBull(1, k), x[k - 1]) << k;
    EXPECT_EQ(n.yBull(1, k), y[k - 1]) << k;
  }
  EXPECT_EQ(n.FiBull(1, 7), 6);
  EXPECT_EQ(f.righe[4].Lbul, "5");
  EXPECT_TRUE(f.Scroll1.visibile);
  EXPECT_TRUE(p.messaggi.empty());
  f.MbpTxt[1] = "due";
  EXPECT_FALSE(Matrice(f, n, p));
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].testo, "Matrice non valida");
  EXPECT_EQ(p.messaggi[0].titolo, "ATTENZIONE");
  EXPECT_EQ(f.NumBulloniEdit, 7);
}

// The list: five rows at most, then the scroll bar from 1 to n - 4; a moved bar shows the bolts
// from its value.
TEST_F(EditorBulloni, ListaEBarra) {
  n.nBull[0] = 3;
  FormBulloni f = ApriGruppo(1);
  EXPECT_TRUE(f.righe[2].visibile);
  EXPECT_FALSE(f.righe[3].visibile);
  EXPECT_FALSE(f.Scroll1.visibile);
  for (int k = 1; k <= 7; ++k) n.xBull(0, k) = 10.25 * k;
  n.nBull[0] = 7;
  f = ApriGruppo(1);
  EXPECT_TRUE(f.righe[4].visibile);
  EXPECT_TRUE(f.Scroll1.visibile);
  EXPECT_EQ(f.Scroll1.massimo, 3);
  EXPECT_EQ(f.Scroll1.grande, 5);
  Scroll1Cambia(f, n, 3);
  EXPECT_EQ(f.righe[0].Lbul, "3");
  EXPECT_EQ(f.righe[0].Xbul, "30.75");
  EXPECT_EQ(f.righe[4].Lbul, "7");
  // A value typed in a row goes into the bolt of that row's number.
  CasellaBullone(f, n, 4, 1, "12abc");
  EXPECT_EQ(n.yBull(0, 7), 12);
}

// The double click takes away the bolt after the one clicked, as the list always did; on the
// last bolt it takes the last one. Annulla keeps the count, not what was typed: a later
// "Agg. singolo" brings back the first abandoned bolt.
TEST_F(EditorBulloni, DoppioClicEAnnulla) {
  n.nBull[0] = 4;
  for (int k = 1; k <= 4; ++k) n.xBull(0, k) = k;
  FormBulloni f = ApriGruppo(1);
  LbulDblClick(f, n, 1);  // row 1 shows bolt 2: bolt 3 goes
  EXPECT_EQ(f.NumBulloniEdit, 3);
  EXPECT_EQ((std::array{n.xBull(0, 1), n.xBull(0, 2), n.xBull(0, 3)}), (std::array{1., 2., 4.}));
  LbulDblClick(f, n, 2);  // the last bolt
  EXPECT_EQ(f.NumBulloniEdit, 2);
  MatBulOK(f, n);
  EXPECT_EQ(n.nBull[0], 2);

  f = ApriGruppo(1);
  f.MbpTxt = {"10", "2", "5"};
  ASSERT_TRUE(Matrice(f, n, p));
  EXPECT_EQ(f.NumBulloniEdit, 12);
  const double primoAbbandonato = n.xBull(0, 3);
  f = ApriGruppo(1);  // after Annulla
  EXPECT_EQ(f.NumBulloniEdit, 2);
  Singolo(f, n);
  EXPECT_EQ(f.righe[2].Xbul, std::to_string(static_cast<int>(primoAbbandonato)));
  Rimuovi(f, n);
  p.risposte = {Risposta::Annulla, Risposta::Ok};
  RimuoviT(f, n, p);
  EXPECT_EQ(f.NumBulloniEdit, 2);
  RimuoviT(f, n, p);
  EXPECT_EQ(f.NumBulloniEdit, 0);
  EXPECT_EQ(p.messaggi.back().testo, "Rimuovere tutti i bulloni?");
}

// The buttons' guards: a gusset or a member of no length says so (up to 0.0001 it only stays
// shut); an I or H chord with a good gusset opens nothing and says nothing.
TEST_F(EditorBulloni, PulsantiCheNonAprono) {
  n.Ast_ins[2] = 0;
  EXPECT_FALSE(Apri(3));
  n.Ast_ins[2] = 0.0001;
  EXPECT_FALSE(Apri(3));
  n.Fz_a = n.Fz_b = n.Fz_c = n.Fz_d = 0;
  EXPECT_FALSE(Apri(1));
  ASSERT_EQ(p.messaggi.size(), 2u);
  EXPECT_EQ(p.messaggi[0].testo, "Dimensione dell'asta B non valida");
  EXPECT_EQ(p.messaggi[1].testo, "Dimensione del fazzoletto non valida");
  n.Fz_a = 100;
  n.Corrente.Tipo = 2;
  EXPECT_FALSE(Apri(1));
  EXPECT_EQ(p.messaggi.size(), 2u);
}

TEST_F(EditorBulloni, SuggerimentiDopoIlTimer) {
  FormBulloni f = ApriGruppo(1);
  PuntatoreSu(f, ControlloConSuggerimento::RimuoviT);
  EXPECT_EQ(f.Help, "");
  Timer1(f);
  EXPECT_EQ(f.Help, " Rimuove tutti i bulloni inseriti ");
  NascondiSuggerimento(f);
  EXPECT_EQ(f.Help, "");
}

// The area and the picture's window of a channel, an angle and an opposed angle, on a picture
// 600 x 300.
TEST_F(EditorBulloni, AreaEFinestra) {
  struct Caso {
    std::int16_t gruppo;
    std::array<double, 8> atteso;  // length, height, offset, scale, left, right, top, bottom
  };
  const Caso casi[] = {
      // Angle 70 x 7, 200 long: x -20..220, y -7..77; scale min(600 / 240, 300 / 84) = 2.5;
      // seen 240 x 120 round the middle (100, 35).
      {2, {200, 63, 0, 2.5, -20, 220, 95, -25}},
      // Channel 120 x 9: the web 120 - 18 = 102, shifted 9; x and y -12..132; scale
      // 300 / 144; seen 288 x 144 round (60, 60), moved down by 9.
      {3, {120, 102, 9, 300.0 / 144, -84, 204, 123, -21}},
      // Opposed angle 60 x 6: the window reaches 60 + 6 = 66; y -6.6..72.6; scale
      // min(600 / 144, 300 / 79.2); seen 158.4 x 79.2 round (60, 33).
      {4, {120, 54, 0, 300 / 79.2, -19.2, 139.2, 72.6, -6.6}},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.gruppo);
    const AreaEditor a = ApriGruppo(c.gruppo).area;
    const std::array valori{a.AreaLarghezza, a.AreaAltezza, a.AreaOffsetY, a.scala,
                            a.sinistra,      a.destra,      a.alto,        a.basso};
    for (std::size_t i = 0; i < valori.size(); ++i) EXPECT_NEAR(valori[i], c.atteso[i], 1e-9) << i;
  }
}

// What the preview draws: the axis where the section's gravity lies, the second profile only for
// an opposed angle, and the bolts as green circles of their nominal size.
TEST_F(EditorBulloni, Anteprima) {
  auto conta = [](const std::vector<PrimitivaAnteprima>& v, ColoreAnteprima colore) {
    return std::count_if(v.begin(), v.end(), [&](const auto& x) { return x.colore == colore; });
  };
  n.nBull[3] = 1;
  n.xBull(3, 1) = 30, n.yBull(3, 1) = 20, n.FiBull(3, 1) = 16;
  const FormBulloni c = ApriGruppo(4), a = ApriGruppo(2), u = ApriGruppo(3);
  EXPECT_EQ(conta(a.anteprima, ColoreAnteprima::Asse), 1);
  EXPECT_EQ(a.anteprima[0].y1, 70 - 20);  // angle: H - e
  EXPECT_EQ(u.anteprima[0].y1, 51);       // channel: (120 - 18) / 2
  EXPECT_EQ(conta(c.anteprima, ColoreAnteprima::Asse), 2);
  EXPECT_EQ(conta(c.anteprima, ColoreAnteprima::Sezione),
            conta(a.anteprima, ColoreAnteprima::Sezione) + 5);  // two faces, two ends, the note
  ASSERT_EQ(conta(c.anteprima, ColoreAnteprima::Bullone), 1);
  const PrimitivaAnteprima& bullone = c.anteprima.back();
  EXPECT_EQ((std::array{bullone.x1, bullone.y1, bullone.raggio}), (std::array{30., 20., 8.}));
  EXPECT_EQ(c.anteprima[c.anteprima.size() - 4].testo, "Bulloni per un profilo");
}

}  // namespace
}  // namespace qf17
