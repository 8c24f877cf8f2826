#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/formati/salva_dxf.h"
#include "disegno/formati/salva_dxf_tipi_linea.h"
#include "disegno/formati/salva_dxf_tratteggio.h"
#include "disegno_a_mano.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

// Type 4: a dash of 60 tenths and a gap of 30 (6 and 3 mm of the drawing at 1:1); type 1: dash
// 100, gap 20, dot 10, gap 20; type 2: 5 and 5 tenths.
TipiLinea Tipi() {
  TipiLinea t;
  t.TipoNumTratti[4] = 2, t.TipoTratti(4, 0) = 60, t.TipoTratti(4, 1) = 30, t.TipoLunghezza[4] = 90;
  t.TipoNumTratti[1] = 4, t.TipoTratti(1, 0) = 100, t.TipoTratti(1, 1) = 20;
  t.TipoTratti(1, 2) = 10, t.TipoTratti(1, 3) = 20, t.TipoLunghezza[1] = 150;
  t.TipoNumTratti[2] = 2, t.TipoTratti(2, 0) = 5, t.TipoTratti(2, 1) = 5, t.TipoLunghezza[2] = 10;
  return t;
}

// Dashes along X as (from, to) pairs; the lines of these tests lie on y = 0 or x = 0.
std::vector<std::pair<double, double>> Tratti(const std::vector<SegmentoDxf>& s, bool lungoY) {
  std::vector<std::pair<double, double>> r;
  for (const auto& t : s) r.push_back(lungoY ? std::pair{t.y1, t.y2} : std::pair{t.x1, t.x2});
  return r;
}

void Vicini(const std::vector<std::pair<double, double>>& visti,
            const std::vector<std::pair<double, double>>& attesi) {
  ASSERT_EQ(visti.size(), attesi.size());
  for (std::size_t i = 0; i < visti.size(); ++i) {
    EXPECT_NEAR(visti[i].first, attesi[i].first, 1e-9) << i;
    EXPECT_NEAR(visti[i].second, attesi[i].second, 1e-9) << i;
  }
}

// One polygon side after another, with the pattern carried on. Type 4 at 1:1: dash 6, gap 3.
TEST(DisgregaLineaTest, PatternPortatoSuLineeConsecutive) {
  const TipiLinea tipi = Tipi();
  StatoTratteggio stato;
  struct Passo {
    SegmentoDxf linea;
    bool lungoY;
    std::vector<std::pair<double, double>> tratti;
    std::int16_t pezzo;
    double resto;
  };
  const std::vector<Passo> passi = {
      // 20 long: dashes 0-6, 9-15 and 18-24 cut to 18-20; 4 of dash 0 handed on.
      {{0, 0, 20, 0}, false, {{0, 6}, {9, 15}, {18, 20}}, 0, 4},
      // Up 10 from (20, 0): the 4 left (0-4), gap 4-7, dash 7-13 cut to 7-10; 3 handed on.
      {{20, 0, 20, 10}, true, {{0, 4}, {7, 10}}, 0, 3},
      // Back along y = 10, 12 long, from x 20 to 8: dash 20-17, gap 17-14, dash 14-8 ends on
      // the dash's end: the next line starts afresh.
      {{20, 10, 8, 10}, false, {{20, 17}, {14, 8}}, 0, 0},
      // 7 long: dash 0-6, the gap 6-9 is cut at 7 and writes nothing; 2 of gap 1 handed on.
      {{0, 0, 7, 0}, false, {{0, 6}}, 1, 2},
      // 10 long: the gap's 2 (0-2), dash 2-8, gap 8-11 cut: 1 of gap 1 handed on.
      {{0, 0, 10, 0}, false, {{2, 8}}, 1, 1},
  };
  for (std::size_t i = 0; i < passi.size(); ++i) {
    SCOPED_TRACE(i);
    const Passo& p = passi[i];
    const auto tratti = DisgregaLinea(tipi, 4, 1, p.linea, stato);
    ASSERT_TRUE(tratti.has_value());
    Vicini(Tratti(*tratti, p.lungoY), p.tratti);
    EXPECT_EQ(stato.pezzo, p.pezzo);
    EXPECT_NEAR(stato.resto, p.resto, 1e-9);
    for (const auto& t : *tratti) {
      EXPECT_NEAR(p.lungoY ? t.x1 : t.y1, p.lungoY ? p.linea.x1 : p.linea.y1, 1e-12);
    }
  }
}

// The pattern of another type means nothing to this one: the dash-dot starts afresh after a
// dashed line's remainder. Type 1 at 1:1: dash 10, gap 2, dot 1, gap 2; 30 long: 0-10, 12-13,
// 15-25, 27-28, and the gap 28-30 ends on the line's end, so the next line starts afresh.
TEST(DisgregaLineaTest, AltroTipoRipartedaCapo) {
  const TipiLinea tipi = Tipi();
  StatoTratteggio stato{4, 0, 4};
  const auto tratti = DisgregaLinea(tipi, 1, 1, {0, 0, 30, 0}, stato);
  ASSERT_TRUE(tratti.has_value());
  Vicini(Tratti(*tratti, false), {{0, 10}, {12, 13}, {15, 25}, {27, 28}});
  EXPECT_EQ(stato.resto, 0);
}

// Type 2 at 1:50: the pattern is 10 tenths, 1 mm on paper, 50 mm of the drawing; 2000 of them
// are 100 m. A line of exactly 2000 patterns is broken (2000 dashes of 25, the last ending on
// the line's end); past that, and certainly at 2000 m, it is written whole and the state stays.
TEST(DisgregaLineaTest, Limite2000Pattern) {
  const TipiLinea tipi = Tipi();
  StatoTratteggio stato;
  const auto tratti = DisgregaLinea(tipi, 2, 50, {0, 0, 100000, 0}, stato);
  ASSERT_TRUE(tratti.has_value());
  ASSERT_EQ(tratti->size(), 2000u);
  EXPECT_EQ(tratti->front().x2, 25);
  EXPECT_EQ(tratti->back().x1, 99950);
  EXPECT_EQ(tratti->back().x2, 99975);

  stato = {2, 1, 3};
  EXPECT_FALSE(DisgregaLinea(tipi, 2, 50, {0, 0, 100000.01, 0}, stato).has_value());
  EXPECT_FALSE(DisgregaLinea(tipi, 2, 50, {0, 0, 0, 2000000}, stato).has_value());
  EXPECT_EQ(stato.pezzo, 1);
  EXPECT_EQ(stato.resto, 3);
}

// Lines written whole: a type with no pattern or outside the table, no length, a scale that
// gives the pattern no length.
TEST(DisgregaLineaTest, LineeIntere) {
  const TipiLinea tipi = Tipi();
  StatoTratteggio stato;
  const SegmentoDxf l{0, 0, 100, 0};
  EXPECT_FALSE(DisgregaLinea(tipi, 3, 1, l, stato).has_value());
  EXPECT_FALSE(DisgregaLinea(tipi, 10, 1, l, stato).has_value());
  EXPECT_FALSE(DisgregaLinea(tipi, -4, 1, l, stato).has_value());
  EXPECT_FALSE(DisgregaLinea(tipi, 4, 1, {5, 5, 5, 5}, stato).has_value());
  EXPECT_FALSE(DisgregaLinea(tipi, 4, 0, l, stato).has_value());
  EXPECT_FALSE(DisgregaLinea(tipi, 4, -1, l, stato).has_value());
  EXPECT_FALSE(
      DisgregaLinea(tipi, 4, std::numeric_limits<double>::quiet_NaN(), l, stato).has_value());
}

// In the file: a type 4 line is one LINE named DASHED2 in plain mode; broken up at 1:1 it is its
// dashes, continuous (no group 6), with the line's colour; a continuous line is never broken.
using DisgregaNelFile = prova::DisegnoAMano;

TEST_F(DisgregaNelFile, NelFileDxf) {
  const std::int32_t inizio = Punto(0, 0), fine = Punto(10, 0);
  Linea(inizio, fine, 2, 4);
  Linea(inizio, fine, 1, 0);
  auto linea = [](std::string x1, std::string x2, std::string coda) {
    return " 0\r\nLINE\r\n 8\r\n0\r\n 10\r\n" + x1 + "\r\n 20\r\n 0\r\n 30\r\n0.0\r\n 11\r\n" + x2 +
           "\r\n 21\r\n 0\r\n 31\r\n0.0\r\n" + coda;
  };
  const std::string continua = linea(" 0", " 10", "");

  const std::string semplice = TestoDxf(a, s.font);
  EXPECT_NE(semplice.find(linea(" 0", " 10", " 62\r\n 5\r\n 6\r\nDASHED2\r\n") + continua),
            std::string::npos);

  const TipiLinea tipi = Tipi();
  ModoDxf modo;
  modo.disgrega = true;
  modo.scala = 1;
  modo.tipi = &tipi;
  // 10 long: dashes 0-6 and 9-10 (cut).
  EXPECT_NE(TestoDxf(a, s.font, modo)
                .find(linea(" 0", " 6", " 62\r\n 5\r\n") + linea(" 9", " 10", " 62\r\n 5\r\n") +
                      continua),
            std::string::npos);
}

class TipiLineaTest : public ::testing::Test {
 protected:
  fs::path Scrivi(const std::string& testo) { return cartella.Scrivi("TipiLineaQf7.txt", testo); }
  prova::CartellaProva cartella;
  TipiLinea tipi;
};

TEST_F(TipiLineaTest, RigheBuone) {
  const fs::path f =
      Scrivi("; commento\r\n\r\n\t4\t60  30 ; tratteggio\r\n9 .5 5. 1 2 3 4 5 6 7 8 10000\n  ;\n");
  EXPECT_EQ(LegTipLin(tipi, f), "");
  EXPECT_EQ(tipi.TipoNumTratti[4], 2);
  EXPECT_EQ(tipi.TipoLunghezza[4], 90);
  EXPECT_EQ(tipi.TipoNumTratti[9], 11);
  EXPECT_EQ(tipi.TipoTratti(9, 0), 0.5);
  EXPECT_EQ(tipi.TipoTratti(9, 1), 5);
  EXPECT_EQ(tipi.TipoTratti(9, 10), 10000);
  EXPECT_EQ(tipi.TipoLunghezza[9], 10041.5);  // 0.5 + 5 + 36 + 10000
}

// Each wrong line is told with its number (comments and empty lines count), and nothing of the
// file is kept: a good line for type 1 comes first in every case.
TEST_F(TipiLineaTest, RigheSbagliate) {
  const std::string lunghezza = "\" non è un numero maggiore di 0 e non oltre 10000 (decimi di mm)";
  struct Caso {
    std::string testo;
    int riga;
    std::string motivo;
  };
  const std::vector<Caso> casi = {
      {"0 10", 2, "il codice \"0\" non è un tipo di linea da 1 a 9"},
      {"; a\n\n10 5", 4, "il codice \"10\" non è un tipo di linea da 1 a 9"},
      {"x 5", 2, "il codice \"x\" non è un tipo di linea da 1 a 9"},
      {"4", 2, "il tipo di linea 4 deve avere da 1 a 11 tratti"},
      {"4 1 2 3 4 5 6 7 8 9 10 11 12", 2, "il tipo di linea 4 deve avere da 1 a 11 tratti"},
      {"4 60 30\n4 50", 3, "il tipo di linea 4 è ripetuto"},
      {"4 0", 2, "la lunghezza \"0" + lunghezza},
      {"4 -5", 2, "la lunghezza \"-5" + lunghezza},
      {"4 5abc", 2, "la lunghezza \"5abc" + lunghezza},
      {"4 60,5", 2, "la lunghezza \"60,5" + lunghezza},
      {"4 1.2.3", 2, "la lunghezza \"1.2.3" + lunghezza},
      {"4 .", 2, "la lunghezza \"." + lunghezza},
      {"4 10000.1", 2, "la lunghezza \"10000.1" + lunghezza},
      {"4 1e3", 2, "la lunghezza \"1e3" + lunghezza},
      {"4 0000000000001", 2, "la lunghezza \"0000000000001" + lunghezza},
  };
  for (const Caso& c : casi) {
    const fs::path f = Scrivi("1 10 5\r\n" + c.testo);
    EXPECT_EQ(LegTipLin(tipi, f), "Errore nel file " + f.string() + ", riga " +
                                      std::to_string(c.riga) + ": " + c.motivo + ".")
        << c.testo;
    EXPECT_EQ(tipi.TipoNumTratti[1], 0) << c.testo;
  }
}

TEST_F(TipiLineaTest, FileMancante) {
  const fs::path f = cartella.percorso() / "nessuno.txt";
  EXPECT_EQ(LegTipLin(tipi, f), "Errore: file " + f.string() + " errato o mancante.");
}

// The saver reads the patterns from the custom folder only when asked to break lines up, and
// names the scale in its confirmation; a missing file is told and nothing is written.
TEST_F(TipiLineaTest, SalvataggioConDisgregazione) {
  PiattaformaRegistrata p;
  Sessione s{p};
  AzzeraDisegno(s.disegno);
  s.cartelle.custom = (cartella.percorso() / "custom").string();
  const std::string nome = (cartella.percorso() / "x.dxf").string();

  EXPECT_TRUE(SalvaDxf(s, nome, 0, 0, 50, 0, 0));
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].testo, "File " + nome + " salvato.");
  fs::remove(nome);

  p.messaggi.clear();
  EXPECT_FALSE(SalvaDxf(s, nome, 0, 0, 50, 1, 0));
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].testo, "Errore: file " +
                                     (fs::path(s.cartelle.custom) / "TipiLineaQf7.txt").string() +
                                     " errato o mancante.");
  EXPECT_EQ(p.messaggi[0].titolo, "ERRORE");
  EXPECT_FALSE(fs::exists(nome));

  cartella.Scrivi("custom/TipiLineaQf7.txt", "4 60 30\r\n");
  p.messaggi.clear();
  EXPECT_TRUE(SalvaDxf(s, nome, 0, 0, 50, 1, 0));
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].testo,
            "File " + nome +
                " salvato.\nLe linee tratteggiate sono state disgregate ipotizzando una scala di "
                "plottaggio 1:50");
  EXPECT_EQ(p.messaggi[0].titolo, "SALVA FILE DXF");
  EXPECT_EQ(p.messaggi[0].icona, Icona::Informazione);
}

}  // namespace
}  // namespace qf17
