#include <gtest/gtest.h>

#include <string>

#include "piattaforma/piattaforma_registrata.h"
#include "verifica/relazioni/relazione_comune.h"

namespace qf17 {
namespace {

std::string Avvertenze(const RaccoltaMessaggi& raccolta) {
  TestoRelazione r(0);
  ScriviAvvertenze(raccolta, r);
  return r.testo();
}

// Each text once, in the order it first came, with its count; a box of several lines on one.
TEST(RaccoltaMessaggi, SezioneAvvertenze) {
  PiattaformaRegistrata p;
  {
    RaccoltaMessaggi raccolta(p);
    EXPECT_EQ(Avvertenze(raccolta), "");
    p.Messaggio("Area netta nulla", "QF17", Icona::Nessuna, Pulsanti::Ok);
    {
      // A collection inside another keeps nothing: the outer one has it all.
      RaccoltaMessaggi interna(p);
      p.Messaggio("File:\nnodo.qf7", "ERRORE", Icona::Critica, Pulsanti::Ok);
      p.Messaggio("Area netta nulla", "QF17", Icona::Nessuna, Pulsanti::Ok);
      EXPECT_TRUE(interna.Voci().empty());
    }
    EXPECT_EQ(p.Raccolta(), &raccolta);
    EXPECT_EQ(Avvertenze(raccolta),
              "AVVERTENZE\r\n\tArea netta nulla (2 volte)\r\n\tFile: nodo.qf7 (1 volta)\r\n\r\n");
  }
  EXPECT_EQ(p.Raccolta(), nullptr);
  // Boxes still reach the platform, collected or not.
  EXPECT_EQ(p.messaggi.size(), 3u);
}

}  // namespace
}  // namespace qf17
