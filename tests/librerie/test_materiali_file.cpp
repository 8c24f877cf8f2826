#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <string>

#include "librerie/materiali.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

const fs::path kDati = fs::path(QF17_DATI_TEST) / "librerie" / "dati" / "materiali";
const fs::path kCampione =
    fs::path(QF17_SORGENTI) / "installazione" / "custom" / "MaterialiNTC08.tx1";

// The installation's file: CNR 10011 allowable stresses, NTC 2008 strengths, daN/cm2.
TEST(MaterialiFile, CampioneDellInstallazione) {
  Materiali m;
  EsitoMateriali esito = LeggiMateriali(m, kCampione);
  ASSERT_EQ(esito.errore, "");
  EXPECT_FALSE(esito.vecchio);

  // The strengths of S 235, S 275 and S 355 that the sample reports print (allowable stresses,
  // design strengths, bearing) are checked there; ft over 40 mm is printed by none.
  ASSERT_EQ(m.NumAcciai, 4);
  EXPECT_EQ((std::array{m.Acciai[1].ft40, m.Acciai[2].ft40, m.Acciai[3].ft40}),
            (std::array<double, 3>{3600, 4100, 4700}));
  EXPECT_EQ(m.Acciai[4].SAmm, 0);  // only for limit states
  EXPECT_GT(m.Acciai[4].fy40, 0);

  ASSERT_EQ(m.NumViti, 5);
  struct Classe {
    const char* nome;
    double SAmm, Tau, fy, ft, fd;
  };
  // Allowable stresses fd,N / 1.5 and fd,N / (1.5 sqrt 2), fd,N = min(0.7 ft, fy).
  const Classe classi[] = {{"4.6", 1600, 1130, 2400, 4000, 2400},
                           {"5.6", 2000, 1410, 3000, 5000, 3000},
                           {"6.8", 2800, 1980, 4800, 6000, 4200},
                           {"8.8", 3730, 2640, 6490, 8000, 5600},
                           {"10.9", 4660, 3300, 9000, 10000, 7000}};
  for (int i = 1; i <= 5; ++i) {
    const Vite& v = m.Viti[i];
    const Classe& c = classi[i - 1];
    EXPECT_EQ(v, (Vite{c.nome, c.SAmm, c.Tau, c.fy, c.ft, c.fd, 1.25})) << c.nome;
  }
  EXPECT_EQ(m.NumAcciaiChiusi, 3);
  EXPECT_EQ(m.AcciaiChiusi[3].Nome, "S 355 H");
  EXPECT_GT(m.NumCalcestruzzi, 0);
  EXPECT_EQ(m.AcciaiCA[1].Nome, "B450C");
}

// Field order of each table, free lines, a title in mixed case, missing fields, both layouts of
// the reinforcing steels.
TEST(MaterialiFile, OgniTabella) {
  Materiali m;
  EsitoMateriali esito = LeggiMateriali(m, kDati / "tabelle.tx1");
  ASSERT_EQ(esito.errore, "");
  EXPECT_TRUE(esito.vecchio);

  ASSERT_EQ(m.NumAcciai, 2);
  const Acciaio& a = m.Acciai[1];
  EXPECT_EQ(a.Nome, "Acciaio à");
  EXPECT_EQ(a.Norma, "Norma è");
  EXPECT_EQ((std::array{a.SAmm, a.SAmm40, a.fy, a.ft, a.fy40, a.ft40, a.gM, a.gMT}),
            (std::array<double, 8>{1, 2, 3, 4, 5, 6, 7, 8}));
  // Fields beyond the table's own are left alone.
  const Acciaio& b = m.Acciai[2];
  EXPECT_EQ(b.Nome, "Acciaio lungo");
  EXPECT_EQ((std::array{b.SAmm, b.SAmm40, b.fy, b.ft, b.fy40, b.ft40, b.gM, b.gMT}),
            (std::array<double, 8>{9, 10, 11, 12, 13, 14, 15, 16}));

  ASSERT_EQ(m.NumAcciaiChiusi, 1);
  EXPECT_EQ(m.AcciaiChiusi[1].Nome, "S 355 H");
  EXPECT_EQ(m.AcciaiChiusi[1].ft40, 4900);

  ASSERT_EQ(m.NumViti, 2);
  EXPECT_EQ(m.Viti[1], (Vite{"4.6", 11, 12, 13, 14, 15, 16}));
  EXPECT_EQ(m.Viti[2], (Vite{"8.8", 21, 22, 23, 24, 25, 26}));

  ASSERT_EQ(m.NumCalcestruzzi, 1);
  EXPECT_EQ(m.Calcestruzzi[1].Nome, "C25/30");
  EXPECT_EQ(m.Calcestruzzi[1].Rck, 300);
  EXPECT_EQ(m.Calcestruzzi[1].Valore2, 250);

  ASSERT_EQ(m.NumAcciaiCA, 3);
  auto valori = [&](int i) {
    const double* v = m.AcciaiCA[i].Valori;
    return std::array{v[0], v[1], v[2], v[3], v[4], v[5]};
  };
  EXPECT_EQ(valori(1), (std::array<double, 6>{31, 32, 33, 34, 35, 36}));
  EXPECT_EQ(valori(2), (std::array<double, 6>{41, 5400, 43, 44, 45, 2550}));
  EXPECT_EQ(valori(3), (std::array<double, 6>{51, 52, 53, 54, 55, 0}));
}

TEST(MaterialiFile, SeiValoriNonSonoVecchi) {
  prova::CartellaProva t;
  auto file = t.Scrivi("m.tx1",
                       "[ACCIAIO_DA_CARPENTERIA_SEZIONI_APERTE]\r\n0\r\n[VITI]\r\n0\r\n"
                       "[ACCIAIO_DA_CA]\r\n1\r\nB450C\r\n1 2 3 4 5 6\r\n");
  Materiali m;
  EsitoMateriali esito = LeggiMateriali(m, file);
  EXPECT_EQ(esito.errore, "");
  EXPECT_FALSE(esito.vecchio);
}

TEST(MaterialiFile, CinquantaRigheSiLeggono) {
  std::string testo = "[ACCIAIO_DA_CARPENTERIA_SEZIONI_APERTE]\n50\n";
  for (int i = 1; i <= 50; ++i) testo += "A" + std::to_string(i) + "\nN\n1 1 1 1 1 1 1 1\n";
  testo += "[VITI]\n0\n";
  prova::CartellaProva t;
  Materiali m;
  EXPECT_EQ(LeggiMateriali(m, t.Scrivi("m.tx1", testo)).errore, "");
  EXPECT_EQ(m.NumAcciai, 50);
  EXPECT_EQ(m.Acciai[50].Nome, "A50");
}

// A bad file is one clean error with the path, and the tables read before stay as they were.
TEST(MaterialiFile, FileNonValido) {
  std::string troppe = "[VITI]\n51\n";
  for (int i = 1; i <= 51; ++i) troppe += "V\n1 1 1 1 1 1\n";
  troppe += "[ACCIAIO_DA_CARPENTERIA_SEZIONI_APERTE]\n0\n";
  const std::string acciai = "[ACCIAIO_DA_CARPENTERIA_SEZIONI_APERTE]\n1\nS\nN\n1 1 1 1 1 1 1 1\n";
  struct Caso {
    const char* nome;
    std::string testo;
    std::string motivo = {};
  };
  const Caso casi[] = {
      {"51 righe", troppe},
      {"conteggio negativo", acciai + "[VITI]\n-1\n"},
      {"righe mancanti", acciai + "[VITI]\n2\n8.8\n1 2 3 4 5 6\n"},
      {"conteggio mancante", acciai + "[VITI]"},
      {"senza viti", acciai},
      {"senza acciai", "[VITI]\n0\n"},
      {"numero fuori scala", acciai + "[VITI]\n1\n8.8\n1e999 1 1 1 1 1\n"},
      {"conteggio fuori scala", acciai + "[VITI]\n1e999\n"},
      {"vuoto", ""},
      // A missing factor read as 0 made every resistance divided by it endless.
      {"vite senza gMViti", acciai + "[VITI]\n1\n8.8\n1 2 3 4 5\n",
       ":\nriga 9 (8.8): 5 valori invece di 6"},
      {"acciaio corto", "[ACCIAIO_DA_CARPENTERIA_SEZIONI_APERTE]\n1\nS 235\nN\n1 2 3 4 5 6 7\n",
       ":\nriga 5 (S 235): 7 valori invece di 8"},
  };
  prova::CartellaProva t;
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.nome);
    Materiali m;
    m.NumAcciai = 1;
    m.Acciai[1].Nome = "prima";
    auto file = t.Scrivi("m.tx1", c.testo);
    EsitoMateriali esito = LeggiMateriali(m, file);
    EXPECT_EQ(esito.errore,
              "File materiali (" + file.string() + ") non trovato o non valido" + c.motivo);
    EXPECT_EQ(m.NumAcciai, 1);
    EXPECT_EQ(m.Acciai[1].Nome, "prima");
  }
}

TEST(MaterialiFile, FileMancante) {
  Materiali m;
  const fs::path file = kDati / "non_esiste.tx1";
  EXPECT_EQ(LeggiMateriali(m, file).errore,
            "File materiali (" + file.string() + ") non trovato o non valido");
}

}  // namespace
}  // namespace qf17
