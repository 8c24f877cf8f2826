// The readers of the 3D model's files, over small files written here in the family's layout.

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>

#include "importazione/modello_3d.h"
#include "piattaforma/errori.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

// Two points, one node, two members (one of them not a member: name 0), four load conditions.
const char* const kStruttura =
    "RELEASE 4.2 del modello\r\n"
    "                   2 punti\r\n"
    "0, 0, 0\r\n"
    "3000 0 1500.5\r\n"
    "1\r\n"
    "1, 0, 0, 17\r\n"
    "Nodo di colmo\r\n"
    "2\r\n"
    "0 1 2 5\r\n"
    "12 3 altro\r\n"
    "1 0 1 1\r\n"
    "0 0\r\n"
    "1\r\nsaltare a\r\nsaltare b\r\n"
    "2\r\nx\r\ny\r\n"
    "0\r\n"
    "1\r\nz\r\n"
    "4 condizioni\r\n";

TEST(Modello3D, Struttura) {
  prova::CartellaProva c;
  PiattaformaRegistrata p;
  const auto s = LeggiStruttura(c.Scrivi("struttur.str", kStruttura), p);
  ASSERT_TRUE(s) << (p.messaggi.empty() ? "" : p.messaggi[0].testo);
  ASSERT_EQ(s->punti.size(), 2u);
  EXPECT_EQ(s->punti[1].z, 1500.5);
  ASSERT_EQ(s->nodi.size(), 1u);
  EXPECT_EQ(s->nodi[0].punto, 1);
  EXPECT_EQ(s->nodi[0].numero, 17);
  ASSERT_EQ(s->aste.size(), 2u);
  EXPECT_EQ(s->aste[0].punto2, 1);
  EXPECT_EQ(s->aste[0].colore, 5);
  EXPECT_EQ(s->aste[0].nome, 12);
  EXPECT_EQ(s->aste[0].sezione, 3);
  EXPECT_EQ(s->aste[1].nome, 0);
  EXPECT_EQ(s->condizioni, 4);
  EXPECT_TRUE(p.messaggi.empty());
}

// An old file has its count on the first line: refused, and with `fine` the program ends.
TEST(Modello3D, ReleaseVecchiaEFileMancante) {
  prova::CartellaProva c;
  PiattaformaRegistrata p;
  EXPECT_FALSE(ControllaRelease("2", false, p));
  EXPECT_THROW(LeggiStruttura(c.Scrivi("struttur.str", "2\r\n0 0 0\r\n"), p), FineProgramma);
  ASSERT_EQ(p.messaggi.size(), 2u);
  EXPECT_EQ(p.messaggi[1].testo, std::string(kMessaggioReleaseVecchia));
  EXPECT_EQ(p.messaggi[1].titolo, "ATTENZIONE!");
  const auto manca = c.percorso() / "sezioni_";
  EXPECT_FALSE(LeggiSezioniModello(manca, p));
  EXPECT_EQ(p.messaggi.back().testo, "Errore: file " + manca.string() + " errato o mancante.");
  EXPECT_EQ(p.messaggi.back().titolo, "ERRORE");
  // A file cut short is as bad as a missing one.
  EXPECT_FALSE(LeggiStruttura(c.Scrivi("corta.str", "release\r\n3\r\n0 0 0\r\n"), p));
}

TEST(Modello3D, SezioniECombinazioni) {
  prova::CartellaProva c;
  PiattaformaRegistrata p;
  const auto sezioni = LeggiSezioniModello(
      c.Scrivi("sezioni_",
               "2\r\n1,\"HEA 200\",0\r\na\r\nb\r\nc\r\nd\r\n7 LU70x7 1\r\n1\r\n2\r\n3\r\n4\r\n"),
      p);
  ASSERT_TRUE(sezioni);
  EXPECT_EQ(*sezioni, (std::vector<std::string>{"HEA 200", "LU70x7"}));
  const auto combinazioni = LeggiCombinazioni(
      c.Scrivi("combinaz.tot",
               "2\r\n3\r\nuno\r\ndue\r\n|TIPOVER=SLU|NOME=a|\r\n1\r\n1 2 3\r\n0\r\n"
               "7\r\nuno\r\ndue\r\nsenza chiave\r\n0\r\n2\r\n1 1\r\n2 2\r\n"),
      p);
  ASSERT_TRUE(combinazioni);
  EXPECT_EQ(combinazioni->numeri, (std::vector<std::int16_t>{3, 7}));
  EXPECT_EQ(combinazioni->tipi, (std::vector<std::string>{"SLU", ""}));
  EXPECT_EQ(TipoCombinazione("x TIPOVER=TENSAMM|y"), "TENSAMM");
  EXPECT_EQ(TipoCombinazione("TIPOVER=RARA"), "RARA");
  // More cases than the table holds: the message, nothing stored.
  EXPECT_FALSE(LeggiCombinazioni(c.Scrivi("troppe.tot", "201\r\n"), p));
  EXPECT_EQ(p.messaggi.back().testo, "Errore: numero di combinazioni eccessivo");
}

TEST(Modello3D, NomiDeiFileDeiRisultati) {
  EXPECT_EQ(NomeFileRisultati(true, 7), "astec007.bin");
  EXPECT_EQ(NomeFileRisultati(false, 42), "aste_042.bin");
  EXPECT_EQ(NomeFileRisultati(true, 123), "astec123.bin");
  EXPECT_EQ(NomeFileRisultati(false, 0), "aste_000.bin");
}

// Two members, three stations, two sextets: member i, station b, sextet s holds the force
// 1000 i + 100 b + s and the name number 10 + i.
TEST(Modello3D, FileDeiRisultati) {
  std::string byte(56, '\0');
  const std::int32_t testata[] = {2, 3, 2};
  std::memcpy(byte.data(), testata, sizeof testata);  // the test machine is little-endian
  for (int i = 0; i < 2; ++i) {
    for (int b = 0; b < 3; ++b) {
      for (int s = 1; s <= 2; ++s) {
        std::string record(56, '\0');
        const std::int32_t nome = 10 + i;
        const double forza = 1000.0 * i + 100.0 * b + s;
        std::memcpy(record.data(), &nome, 4);
        std::memcpy(record.data() + 8, &forza, 8);
        byte += record;
      }
    }
  }
  prova::CartellaProva c;
  const auto r = RisultatiModello::Apri(c.Scrivi("astec001.bin", byte));
  ASSERT_TRUE(r);
  EXPECT_EQ(r->Aste(), 2);
  EXPECT_EQ(r->NomeAsta(1), 11);
  EXPECT_EQ(r->SforzoNormale(1, 2, 2), 1202.0);
  EXPECT_EQ(r->SforzoNormale(0, 0, 1), 1.0);
  // A file shorter than its header says is refused.
  EXPECT_FALSE(RisultatiModello::Apri(c.Scrivi("corto.bin", byte.substr(0, byte.size() - 1))));
}

}  // namespace
}  // namespace qf17
