#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <functional>
#include <string>

#include "nodo/nodo_default.h"
#include "nodo/sessione_prova.h"
#include "verifica/verifica.h"

namespace qf17::prova {
namespace {

namespace fs = std::filesystem;

constexpr double kPi = 3.14159265358979;

// A node with member A only: LU60x6 at 45 degrees on an UPN120 chord at 0, two M16 bolts on the
// member's line of action, no chord bolts, one load set.
class Verifica_ : public ::testing::Test {
 protected:
  void SetUp() override {
    NodoDefault(s);
    Nodo& n = s.nodo;
    n.NomeFileNodo = "prova";
    n.Corrente = s.profili.Profili[3];  // UPN120
    n.Cor_teta = 0;
    n.Ast_flag[2] = n.Ast_flag[5] = 0;
    n.Ast_flag[3] = n.Ast_flag[6] = 0;
    n.nBull[1] = 2;
    // An angle's line of action lies at h - dBarX = 60 from the corner of the bolted area.
    n.xBull(1, 1) = 30, n.yBull(1, 1) = 60, n.xBull(1, 2) = 90, n.yBull(1, 2) = 60;
    n.FiBull(1, 1) = n.FiBull(1, 2) = 16;
    n.nSollAg = 1;
    n.SforzoNormale(1, 1) = 1000;
    n.NomeSa[1] = "Soll 1";
    p.piattaforma.messaggi.clear();
  }
  fs::path Relazione() const { return p.cartella / "RelTA_QF17_prova.txt"; }

  SessioneProva p;
  Sessione& s = p.sessione;
};

TEST_F(Verifica_, AvvisoDeiBulloniMancanti) {
  struct Caso {
    int bulloni[4];
    int flag[4];
    int tipoCorrente;
    const char* testo;  // empty: no warning
  };
  const Caso casi[] = {
      // Each fragment ends with a blank and the next begins with one: they stand side by side.
      {{0, 0, 0, 0},
       {1, 1, 1, 1},
       0,
       "Nessun bullone definito sul corrente,  sull'asta A,  sull'asta B,  sull'asta C "},
      {{0, 2, 2, 0}, {1, 1, 1, 1}, 2, "Nessun bullone definito sull'asta C "},
      // B has bolts: A's fragment loses its blank only, the comma stays.
      {{3, 0, 2, 0}, {1, 1, 1, 1}, 0, "Nessun bullone definito sull'asta A, sull'asta C "},
      {{3, 2, 0, 0}, {1, 1, 0, 0}, 0, ""},
      // A's bolts take the chord fragment's last blank.
      {{0, 2, 2, 2}, {1, 1, 1, 1}, 1, "Nessun bullone definito sul corrente,"},
  };
  for (const auto& c : casi) {
    PiattaformaRegistrata& registro = p.piattaforma;
    registro.messaggi.clear();
    for (int g = 0; g <= 3; ++g) s.nodo.nBull[g] = static_cast<std::int16_t>(c.bulloni[g]);
    for (int i = 1; i <= 3; ++i) s.nodo.Ast_flag[i] = static_cast<std::int16_t>(c.flag[i]);
    s.nodo.Corrente.Tipo = static_cast<std::int16_t>(c.tipoCorrente);
    AvvisoBulloniMancanti(s);
    if (std::string(c.testo).empty()) {
      EXPECT_TRUE(registro.messaggi.empty()) << registro.messaggi.front().testo;
      continue;
    }
    ASSERT_EQ(registro.messaggi.size(), 1u) << c.testo;
    EXPECT_EQ(registro.messaggi[0].testo, c.testo);
    EXPECT_EQ(registro.messaggi[0].titolo, "ATTENZIONE");
    EXPECT_EQ(registro.messaggi[0].icona, Icona::Attenzione);
    EXPECT_EQ(registro.messaggi[0].pulsanti, Pulsanti::Ok);
  }
}

// Nothing under allowable stresses clears a Cancel left by an earlier run: the run ends at the
// first member, without a word and without a report.
TEST_F(Verifica_, InterrompiRestaDaUnaVerificaPrecedente) {
  s.Risultati().Interrompi = 1;
  EsitoVerifica esito = EseguiVerifica(s);
  EXPECT_EQ(esito.fine, FineVerifica::Interrotta);
  EXPECT_TRUE(p.piattaforma.messaggi.empty());
  EXPECT_FALSE(fs::exists(Relazione()));
}

TEST_F(Verifica_, SenzaSollecitazioniLaRelazioneVieneScritta) {
  s.nodo.nSollAg = 0;
  EsitoVerifica esito = EseguiVerifica(s);
  EXPECT_EQ(esito.fine, FineVerifica::Relazione);
  EXPECT_TRUE(esito.nodoVerificato);
  EXPECT_EQ(esito.relazione, Relazione());
  EXPECT_TRUE(fs::exists(Relazione()));
}

// Input that would make every stress a division by zero stops the run with a message.
TEST_F(Verifica_, DatiCheNonPermettonoLaVerifica) {
  struct Caso {
    const char* nome;
    std::function<void(Nodo&)> guasta;
    const char* testo;
  };
  const Caso casi[] = {
      {"asta parallela",
       [](Nodo& n) {
         n.Ast_flag[2] = 1;
         n.Ast_teta[2] = kPi;  // reduced to the half turn it is 0, as the chord
       },
       "Asta B paralella al corrente: impossibile procedere alla verifica"},
      {"spessore nullo", [](Nodo& n) { n.Fz_s = 0; },
       "Spessore del fazzoletto nullo: impossibile procedere alla verifica"},
      {"lunghezza nulla", [](Nodo& n) { n.Fz_a = n.Fz_b = n.Fz_c = n.Fz_d = 0; },
       "Lunghezza del fazzoletto lungo il corrente nulla: impossibile procedere alla verifica"},
      {"saldatura senza lato",
       [](Nodo& n) {
         n.Corrente.Tipo = 2;
         n.Lato_Sald = 0;
       },
       "Lato della saldatura nullo: impossibile procedere alla verifica"},
      {"bullone senza diametro", [](Nodo& n) { n.FiBull(1, 2) = 0; },
       "Bullone 2 dell'asta A senza diametro: impossibile procedere alla verifica"},
      {"sezione mancante", [](Nodo& n) { n.Aste[1] = Profilo(); },
       "Sezione mancante dell'asta A senza dati nel profilario: impossibile procedere alla "
       "verifica"},
  };
  for (const auto& c : casi) {
    SetUp();
    c.guasta(s.nodo);
    EsitoVerifica esito = EseguiVerifica(s);
    EXPECT_EQ(esito.fine, FineVerifica::Messaggio) << c.nome;
    ASSERT_EQ(p.piattaforma.messaggi.size(), 1u) << c.nome;
    EXPECT_EQ(p.piattaforma.messaggi[0].testo, c.testo) << c.nome;
    EXPECT_EQ(p.piattaforma.messaggi[0].titolo, "ATTENZIONE") << c.nome;
    EXPECT_FALSE(fs::exists(Relazione())) << c.nome;
  }
}

}  // namespace
}  // namespace qf17::prova
