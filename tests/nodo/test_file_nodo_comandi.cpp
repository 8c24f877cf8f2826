#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "nodo/file_nodo.h"
#include "sessione_prova.h"

namespace qf17::prova {
namespace {

TEST(ComandiNodo, ApriNodoAnnullato) {
  SessioneProva s;
  s.sessione.nodo.Fz_s = 21;
  EXPECT_FALSE(ApriNodo(s.sessione));
  ASSERT_EQ(s.piattaforma.richiesteFile.size(), 1u);
  const RichiestaFile& r = s.piattaforma.richiesteFile[0];
  EXPECT_EQ(r.estensione, "qf7");
  EXPECT_EQ(r.filtro, "File nodo qf7 (*.qf7)|*.qf7|Tutti i file (*.*)|*.*");
  EXPECT_EQ(r.nome, "");
  EXPECT_TRUE(s.piattaforma.messaggi.empty());
  EXPECT_EQ(s.sessione.nodo.Fz_s, 21);
  EXPECT_EQ(s.sessione.nodo.NomeFileNodo, "Nuovo");
}

TEST(ComandiNodo, ApriNodoDaUnAltraCartella) {
  SessioneProva s;
  s.piattaforma.fileScelti.push_back(FileScelto{DatoProva("nodo_piccolo.qf7").string(), 1});
  ASSERT_TRUE(ApriNodo(s.sessione));
  const Nodo& n = s.sessione.nodo;
  EXPECT_EQ(n.NomeFileNodo, "nodo_piccolo");
  // The job folder stays: a later plain save goes there.
  EXPECT_EQ(n.DirLavoro, s.cartella.string());
  // Sections and materials are the libraries' rows, taken by name.
  EXPECT_EQ(n.Corrente.h, 160);
  EXPECT_EQ(n.Corrente.Tipo, 0);
  EXPECT_EQ(n.Aste[3].Area, 938);
  EXPECT_EQ(n.acciaio.SAmm, 1900);
  EXPECT_EQ(n.vite.TauAmmViti, 2600);
  EXPECT_EQ(s.sessione.materiali.ListaAcciai.size(), 4u);
  EXPECT_EQ(s.sessione.materiali.ListaAcciaiScelta, 1);
  EXPECT_TRUE(s.piattaforma.messaggi.empty());

  ASSERT_TRUE(SalvaNodo(s.sessione));
  EXPECT_TRUE(std::filesystem::exists(s.cartella / "nodo_piccolo.qf7"));
}

TEST(ComandiNodo, NomiAssentiNelleLibrerie) {
  SessioneProva s;
  const auto f = s.ScriviFile("strano.qf7", kTestataNodo +
                                                "IPE999 [Cor_Nome]\r\n"
                                                "S 999 [acciaio_Nome]\r\n"
                                                "8.8 [vite_Nome]\r\n");
  ASSERT_TRUE(ApriNodoDaFile(s.sessione, f));
  const Nodo& n = s.sessione.nodo;
  // Row 0 of the table, which is empty.
  EXPECT_EQ(n.Corrente.Nome, "");
  EXPECT_EQ(n.Corrente.h, 0);
  std::vector<std::string> titoli;
  for (const auto& m : s.piattaforma.messaggi) titoli.push_back(m.titolo);
  ASSERT_GE(titoli.size(), 3u);
  EXPECT_EQ(s.piattaforma.messaggi[0].testo, "Profilo non trovato.");
  EXPECT_EQ(titoli[0], "RICERCA PROFILO DA NOME");
  EXPECT_NE(std::find(titoli.begin(), titoli.end(), "RICERCA TIPO ACCIAIO DA NOME"), titoli.end());
  // The steel check then takes an allowed steel in place of the empty row.
  EXPECT_FALSE(n.acciaio.Nome.empty());
  EXPECT_EQ(n.vite.Nome, "8.8");
}

TEST(ComandiNodo, SalvaNodoNuovoVaNellaCartellaDelLavoro) {
  SessioneProva s;
  ASSERT_TRUE(SalvaNodo(s.sessione));
  EXPECT_TRUE(s.piattaforma.richiesteFile.empty());
  EXPECT_TRUE(s.piattaforma.messaggi.empty());
  const std::string scritto = LeggiTutto(s.cartella / "Nuovo.qf7");
  EXPECT_EQ(scritto.substr(0, kTestataNodo.size()), kTestataNodo);
  EXPECT_EQ(s.sessione.nodo.NomeFileNodo, "Nuovo");
  EXPECT_EQ(NomeFileCorrente(s.sessione.nodo), "Nuovo.qf7");
}

TEST(ComandiNodo, SalvaNodoCome) {
  SessioneProva s;
  EXPECT_FALSE(SalvaNodoCome(s.sessione));
  ASSERT_EQ(s.piattaforma.richiesteFile.size(), 1u);
  EXPECT_EQ(s.piattaforma.richiesteFile[0].estensione, "qf7");
  EXPECT_EQ(s.piattaforma.richiesteFile[0].filtro, std::string(kFiltroFileNodo));
  EXPECT_EQ(s.sessione.nodo.NomeFileNodo, "Nuovo");

  std::filesystem::create_directories(s.cartella / "altrove");
  const auto f = s.cartella / "altrove" / "Capriata 3.v2.qf7";
  s.piattaforma.fileScelti.push_back(FileScelto{f.string(), 1});
  ASSERT_TRUE(SalvaNodoCome(s.sessione));
  EXPECT_TRUE(std::filesystem::exists(f));
  EXPECT_EQ(s.sessione.nodo.NomeFileNodo, "Capriata 3.v2");
  // A plain save now goes to the job folder under the new name.
  ASSERT_TRUE(SalvaNodo(s.sessione));
  EXPECT_TRUE(std::filesystem::exists(s.cartella / "Capriata 3.v2.qf7"));
}

}  // namespace
}  // namespace qf17::prova
