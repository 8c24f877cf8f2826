#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "librerie/unita_lavoro.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

constexpr double kG = 9.80665;

enum class Grandezza { Forze, Lunghezze, Tensioni, Momenti, Carichi };

struct Prova {
  Grandezza grandezza;
  const char* nome;
  double g;
  double fattore;
  int decimali;
};

// Every factor below is worked out from the stored units: cm, daN, daN/cm2, daN cm. A unit that
// fits no rule gets factor 0, so its figures show as 0.
TEST(UnitaLavoro, FattoriEDecimaliPerGrandezza) {
  using enum Grandezza;
  const Prova prove[] = {
      {Forze, "daN", kG, 1, 1},
      {Forze, "kN", kG, 0.01, 3},
      {Forze, "N", kG, 10, 0},
      {Forze, "kgf", kG, 10 / kG, 1},
      {Forze, "kgf", 9.81, 10 / 9.81, 1},
      {Forze, "t", kG, 0.01 / kG, 4},
      {Forze, "t", 9.81, 0.01 / 9.81, 4},
      {Forze, "libbre", kG, 0, 0},
      // Lengths and sections share their units.
      {Lunghezze, "mm", kG, 10, 0},
      {Lunghezze, "cm", kG, 1, 1},
      {Lunghezze, "m", kG, 0.01, 3},
      {Lunghezze, "in", kG, 0, 0},
      {Tensioni, "daN/cm2", kG, 1, 1},
      {Tensioni, "N/mm2", kG, 10 / 100.0, 2},   // 0 + 2 x (1 - 0)
      {Tensioni, "kN/m2", kG, 0.01 / 1e-4, 0},  // 3 + 2 x (1 - 3) < 0
      {Tensioni, "kgf/cm2", kG, 10 / kG, 1},
      {Tensioni, "daN/mm2", kG, 1 / 100.0, 3},
      {Tensioni, "kN/cm2", kG, 0.01, 3},
      {Tensioni, "t/m2", kG, (0.01 / kG) / 1e-4, 0},
      {Tensioni, "kPa", kG, 100, 0},
      {Tensioni, "MPa", kG, 0.1, 2},
      {Tensioni, "Pa", kG, 0, 0},
      {Tensioni, "daN/in2", kG, 0, 0},
      {Momenti, "daNm", kG, 0.01, 3},  // 1 + 3 - 1
      {Momenti, "kNm", kG, 0.01 * 0.01, 5},
      {Momenti, "daNcm", kG, 1, 1},
      {Momenti, "Nm", kG, 0.1, 2},
      {Momenti, "Nmm", kG, 100, 0},  // 0 + 0 - 1, at least 0
      {Momenti, "kgfm", kG, 0.01 * 10 / kG, 3},
      {Momenti, "tm", kG, 0.01 * 0.01 / kG, 6},
      {Carichi, "daN/m2", kG, 10000, 0},
      {Carichi, "kN/m2", kG, 100, 0},
      {Carichi, "daN/cm2", kG, 1, 1},
      {Carichi, "kgf/m2", kG, 10 / kG / 1e-4, 0},
      {Carichi, "kPa", kG, 100, 0},
  };
  for (const Prova& p : prove) {
    SCOPED_TRACE(p.nome);
    UnitaLavoro u;
    u.AccelG = p.g;
    const Grandezza q = p.grandezza;
    (q == Forze       ? u.UniForze
     : q == Lunghezze ? u.UniLunghezze
     : q == Tensioni  ? u.UniTensioni
     : q == Momenti   ? u.UniMomenti
                      : u.UniCarichi) = p.nome;
    if (q == Lunghezze) u.UniSezioni = p.nome;
    ParUni(u);
    const double fattori[] = {u.FatForze, u.FatLunghezze, u.FatTensioni, u.FatMomenti,
                              u.FatCarichi};
    const int decimali[] = {u.DecForze, u.DecLunghezze, u.DecTensioni, u.DecMomenti, u.DecCarichi};
    EXPECT_DOUBLE_EQ(fattori[static_cast<int>(q)], p.fattore);
    EXPECT_EQ(decimali[static_cast<int>(q)], p.decimali);
    if (q == Lunghezze) {
      EXPECT_DOUBLE_EQ(u.FatSezioni, p.fattore);
      EXPECT_EQ(u.DecSezioni, p.decimali);
    }
  }
}

class UnitaLavoroFile : public ::testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(cartella_ / "lavori" / "prova1");
    fs::create_directories(cartella_ / "progra");
    fs::create_directories(cartella_ / "temp");
    sessione_.nodo.DirLavoro = (cartella_ / "lavori" / "prova1").string();
    sessione_.cartelle.progra = (cartella_ / "progra").string();
    sessione_.cartelle.temp = (cartella_ / "temp").string();
  }
  fs::path FileParametri() const { return cartella_ / "lavori" / "prova1" / "parametrilavoro"; }

  void ScriviParametri(std::initializer_list<const char*> righe) {
    std::string contenuto;
    for (const char* r : righe) AggiungiRiga(contenuto, r);
    ASSERT_TRUE(ScriviFileSicuro(FileParametri(), contenuto));
  }

  prova::CartellaProva spazio_;
  const fs::path cartella_ = spazio_.percorso();
  PiattaformaRegistrata piattaforma_;
  Sessione sessione_{piattaforma_};
};

TEST_F(UnitaLavoroFile, FileDiEsempioDellInstallazione) {
  const fs::path esempi = fs::path(QF17_SORGENTI) / "installazione" / "lavori" / "esempi";
  const std::string b = prova::LeggiTutto(esempi / "parametrilavoro");
  ASSERT_FALSE(b.empty());
  EXPECT_NE(b.find("gravit\xE0"), std::string::npos);  // Windows-1252
  for (std::size_t i = 0; i < b.size(); ++i) {
    if (b[i] == '\n') {
      EXPECT_TRUE(i > 0 && b[i - 1] == '\r') << "byte " << i;
    }
  }

  sessione_.nodo.DirLavoro = esempi.string();
  LeggiUnitaLavoro(sessione_);
  EXPECT_TRUE(piattaforma_.messaggi.empty());
  const UnitaLavoro& u = sessione_.unita;
  EXPECT_EQ(u.UniLunghezze, "mm");
  EXPECT_EQ(u.UniForze, "daN");
  EXPECT_EQ(u.UniTensioni, "daN/cm2");
  EXPECT_EQ(u.UniCarichi, "daN/m2");
  EXPECT_EQ(u.UniMomenti, "daNm");
  EXPECT_EQ(u.UniSezioni, "cm");
  EXPECT_DOUBLE_EQ(u.AccelG, 9.80665);
  EXPECT_DOUBLE_EQ(u.FatLunghezze, 10);  // the factors follow the names, as the table above
}

TEST_F(UnitaLavoroFile, OttoPerBarraEChiaviPerSottostringa) {
  ScriviParametri({
      "kN                                      [forze] la prima riga non si legge",
      "9.81                                    [ACCELERAZIONE_G]",
      "  kN8m2                                 [carichi_superficie]",
      "N8mm2                                   [tensioni]",
      "kgf                                     [Forze] in chilogrammi forza",
      "kNm [coppie_momenti]",
      "cm forze senza parentesi",
  });
  LeggiUnitaLavoro(sessione_);
  // The names the file leaves out are told, once, as units no rule knows.
  ASSERT_EQ(piattaforma_.messaggi.size(), 1u);
  EXPECT_EQ(piattaforma_.messaggi[0].testo,
            "File " + FileParametri().string() +
                ": unità non riconosciute: lunghezze \"\", dati_sezioni \"\". Le grandezze in "
                "queste unità possono essere mostrate con valori errati.");
  const UnitaLavoro& u = sessione_.unita;
  EXPECT_EQ(u.UniCarichi, "kN/m2");
  EXPECT_EQ(u.UniTensioni, "N/mm2");
  EXPECT_EQ(u.UniForze, "kgf");
  EXPECT_EQ(u.UniMomenti, "kNm");
  EXPECT_DOUBLE_EQ(u.AccelG, 9.81);
  EXPECT_DOUBLE_EQ(u.FatForze, 10 / 9.81);
  EXPECT_DOUBLE_EQ(u.FatCarichi, 100);
  EXPECT_DOUBLE_EQ(u.FatTensioni, 0.1);
  EXPECT_EQ(u.DecTensioni, 2);
  // Keys the file does not hold leave their names empty, and their factors 0.
  EXPECT_EQ(u.UniLunghezze, "");
  EXPECT_DOUBLE_EQ(u.FatLunghezze, 0);
}

TEST_F(UnitaLavoroFile, FileMancanteOErrato) {
  const std::string messaggio = "File " + FileParametri().string() +
                                " errato o mancante: verranno usate le unità mm, daN, daN/cm2.";
  auto verifica = [&](const char* caso) {
    ASSERT_EQ(piattaforma_.messaggi.size(), 1u) << caso;
    EXPECT_EQ(piattaforma_.messaggi[0].testo, messaggio) << caso;
    EXPECT_EQ(piattaforma_.messaggi[0].titolo, "ATTENZIONE");
    EXPECT_EQ(piattaforma_.messaggi[0].icona, Icona::Attenzione);
    const UnitaLavoro& u = sessione_.unita;
    EXPECT_EQ(u.UniTensioni, "daN/cm2") << caso;
    EXPECT_DOUBLE_EQ(u.FatLunghezze, 10);
    EXPECT_DOUBLE_EQ(u.FatForze, 1);
    EXPECT_DOUBLE_EQ(u.FatTensioni, 1);
    EXPECT_DOUBLE_EQ(u.FatCarichi, 10000);
    EXPECT_DOUBLE_EQ(u.FatMomenti, 0.01);
    EXPECT_DOUBLE_EQ(u.FatSezioni, 1);
    piattaforma_.messaggi.clear();
  };
  LeggiUnitaLavoro(sessione_);
  verifica("mancante");
  ASSERT_TRUE(ScriviFileSicuro(FileParametri(), ""));
  LeggiUnitaLavoro(sessione_);
  verifica("vuoto");
  ScriviParametri({"testata", "kN [forze]", "1e999 [accelerazione_g]"});
  LeggiUnitaLavoro(sessione_);
  verifica("numero fuori scala");
}

TEST_F(UnitaLavoroFile, DoppioClicSuiCarichi) {
  sessione_.unita.UniForze = "daN";
  const std::string risposta = (cartella_ / "temp" / "ux_unimis.tmp").string();
  piattaforma_.suAvvio = [&](const PiattaformaRegistrata::AvvioVisto&) {
    std::string contenuto;
    AggiungiRiga(contenuto, "  1250  ");
    AggiungiRiga(contenuto, "seconda riga");
    ASSERT_TRUE(ScriviFileSicuro(risposta, contenuto));
  };
  EXPECT_EQ(TbDblClick(sessione_, 1, "12.5"), "1250");
  EXPECT_EQ(TbDblClick(sessione_, 2, "7"), "1250");
  EXPECT_EQ(TbDblClick(sessione_, 3, "8"), "1250");
  ASSERT_EQ(piattaforma_.avvii.size(), 3u);
  const std::string lavoro = sessione_.nodo.DirLavoro;
  EXPECT_EQ(piattaforma_.avvii[0].programma, (cartella_ / "progra" / "ux_unimis.exe").string());
  EXPECT_TRUE(piattaforma_.avvii[0].attendi);
  EXPECT_EQ(piattaforma_.avvii[0].argomenti,
            "|primcipale=daN|uniprinctesto=|categoriadiingresso=4|valoreingresso=12.5|fileout=" +
                lavoro + "\\UX_unimis.tmp|titolo=Sf_Norm_astaA|");
  // Member C goes with member B's title.
  EXPECT_EQ(piattaforma_.avvii[1].argomenti,
            "|primcipale=daN|uniprinctesto=|categoriadiingresso=4|valoreingresso=7|fileout=" +
                lavoro + "\\UX_unimis.tmp|titolo=Sf_Norm_astaB|");
  EXPECT_EQ(piattaforma_.avvii[2].argomenti,
            "|primcipale=daN|uniprinctesto=|categoriadiingresso=4|valoreingresso=8|fileout=" +
                lavoro + "\\UX_unimis.tmp|titolo=Sf_Norm_astaB|");
}

TEST_F(UnitaLavoroFile, StrumentoCheNonParteOSenzaRisposta) {
  sessione_.unita.UniForze = "kN";
  // A stale answer in the temp folder is not taken when the tool could not start.
  std::string contenuto;
  AggiungiRiga(contenuto, "999");
  ASSERT_TRUE(ScriviFileSicuro(cartella_ / "temp" / "ux_unimis.tmp", contenuto));
  piattaforma_.esitiAvvio = {false};
  EXPECT_EQ(TbDblClick(sessione_, 2, "3.5"), "3.5");
  ASSERT_EQ(piattaforma_.avvii.size(), 1u);

  fs::remove(cartella_ / "temp" / "ux_unimis.tmp");
  EXPECT_EQ(TbDblClick(sessione_, 1, "4"), "4");
  EXPECT_EQ(TbDblClick(sessione_, 4, "5"), "5");  // no such box
  EXPECT_EQ(piattaforma_.avvii.size(), 2u);
  // A platform with a converter of its own answers in the tool's place.
  piattaforma_.esitiAvvio = {false};
  piattaforma_.conversioni = {"0.25"};
  EXPECT_EQ(TbDblClick(sessione_, 1, "25"), "0.25");
}

TEST_F(UnitaLavoroFile, TitoliDelloStrumento) {
  const std::string base =
      "|primcipale=cm|uniprinctesto=|categoriadiingresso=1|valoreingresso=2|"
      "fileout=" +
      sessione_.nodo.DirLavoro + "\\UX_unimis.tmp|";
  piattaforma_.esitiAvvio = {false, false, false};
  EXPECT_FALSE(LanciaUnita(sessione_, "2", 1, "cm", "assente"));
  EXPECT_FALSE(LanciaUnita(sessione_, "2", 1, "cm", "Lunghezza"));
  EXPECT_FALSE(LanciaUnita(sessione_, "2", 1, "cm", ""));
  ASSERT_EQ(piattaforma_.avvii.size(), 3u);
  EXPECT_EQ(piattaforma_.avvii[0].argomenti, base);
  EXPECT_EQ(piattaforma_.avvii[1].argomenti, base + "titolo=Lunghezza|");
  EXPECT_EQ(piattaforma_.avvii[2].argomenti, base);
}

}  // namespace
}  // namespace qf17
