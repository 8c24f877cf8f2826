#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "nodo/file_nodo.h"
#include "nodo/nodo.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"
#include "supporto/esegui_programma.h"

namespace {

namespace fs = std::filesystem;
using qf17::prova::LeggiTutto;

using qf17::prova::Esito;

// Runs the staged program on copies of the sample nodes in a folder of its own.
class RigaDiComandoSoll : public qf17::prova::RigaDiComandoProva {
 protected:
  fs::path CopiaEsempio(const std::string& nome) {
    const fs::path copia = cartella_ / nome;
    fs::copy_file(Esempio(nome), copia);
    return copia;
  }
  qf17::Nodo Leggi(const fs::path& file) {
    qf17::PiattaformaRegistrata p;
    qf17::Nodo n;
    EXPECT_TRUE(qf17::LeggiNodo(n, file, p)) << file;
    return n;
  }
};

TEST_F(RigaDiComandoSoll, MaxMinRiscriveIlFileNodo) {
  const fs::path nodo = CopiaEsempio("MOLTESOLL.qf7");
  Esito e = Esegui("sollecitazioni MOLTESOLL.qf7 --max-min");
  ASSERT_EQ(e.stato, 0) << e.errori;
  EXPECT_EQ(e.uscita, "Sollecitazioni iniziali: 60\nSollecitazioni rimaste: 7\n");
  EXPECT_EQ(e.errori, "");
  // The sets kept and their rows are the engine's (RiduciMaxMin); here the file rewritten.
  const std::string testo = LeggiTutto(nodo);
  EXPECT_NE(testo.find("\r\n7                                       [nSollAg]\r\n"),
            std::string::npos);
  EXPECT_EQ(Leggi(nodo).SforzoNormale(1, 1), 15100);  // set 2's, in row 1
}

TEST_F(RigaDiComandoSoll, RimuoviDoppiSuUnAltroFile) {
  // Sets 3 and 5 made equal to set 1: both go, and the names move with the forces.
  const fs::path originale = CopiaEsempio("MOLTESOLL.qf7");
  qf17::Nodo n = Leggi(originale);
  for (int j : {3, 5}) {
    for (int i = 1; i <= 3; ++i) n.SforzoNormale(i, j) = n.SforzoNormale(i, 1);
    n.CasoCarico[j] = n.CasoCarico[1];
  }
  qf17::PiattaformaRegistrata p;
  const fs::path doppi = cartella_ / "doppi.qf7";
  ASSERT_TRUE(qf17::ScriviNodo(n, doppi, p));
  const std::string prima = LeggiTutto(doppi);

  Esito e = Esegui("sollecitazioni doppi.qf7 --rimuovi-doppi -o ridotto.qf7");
  ASSERT_EQ(e.stato, 0) << e.errori;
  EXPECT_EQ(e.uscita, "Sollecitazioni iniziali: 60\nSollecitazioni rimaste: 58\n");
  EXPECT_EQ(LeggiTutto(doppi), prima);
  const qf17::Nodo r = Leggi(cartella_ / "ridotto.qf7");
  ASSERT_EQ(r.nSollAg, 58);
  EXPECT_EQ(r.NomeSa[2], "SLU 02 - 1.3G1+1.5G2+1.5Qn+0.9Qv2");
  EXPECT_EQ(r.NomeSa[3], "SLU 04 - 1.3G1+1.5G2+1.5Qn+0.9Qv4");
  EXPECT_EQ(r.SforzoNormale(1, 3), 16360);
  EXPECT_EQ(r.NomeSa[4], "SLU 06 - 1.3G1+1.5G2+1.5Qna+0.9Qv2");
  EXPECT_EQ(r.SforzoNormale(1, 4), 17050);
  EXPECT_EQ(r.NomeSa[58], "SLE 60 - G1+G2+Qv2+0.5Qn");
}

TEST_F(RigaDiComandoSoll, UnaSolaOperazioneENessunFileToccatoSuErrore) {
  const fs::path nodo = CopiaEsempio("MOLTESOLL.qf7");
  const std::string prima = LeggiTutto(nodo);
  for (const char* argomenti :
       {"sollecitazioni MOLTESOLL.qf7", "sollecitazioni MOLTESOLL.qf7 --max-min --rimuovi-doppi",
        "sollecitazioni --max-min"}) {
    Esito e = Esegui(argomenti);
    EXPECT_EQ(e.stato, 2) << argomenti;
    EXPECT_EQ(e.uscita, "") << argomenti;
  }
  EXPECT_EQ(LeggiTutto(nodo), prima);

  // A node that is not there.
  Esito e = Esegui("sollecitazioni NONCE.qf7 --max-min -o x.qf7");
  EXPECT_EQ(e.stato, 2);
  EXPECT_NE(e.errori.find("LETTURA"), std::string::npos) << e.errori;
  EXPECT_FALSE(fs::exists(cartella_ / "x.qf7"));

  // A target that cannot be written.
  e = Esegui("sollecitazioni MOLTESOLL.qf7 --max-min -o manca/x.qf7");
  EXPECT_EQ(e.stato, 2);
  EXPECT_EQ(e.uscita, "");
  EXPECT_EQ(LeggiTutto(nodo), prima);
}

}  // namespace
