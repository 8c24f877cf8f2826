#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "librerie/materiali.h"
#include "nodo/chiavi.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

constexpr std::int16_t TA = 0;
constexpr std::int16_t SLU = 1;

const fs::path kDati = fs::path(QF17_DATI_TEST) / "librerie" / "dati" / "materiali";
const fs::path kInstallazione = fs::path(QF17_SORGENTI) / "installazione";

// A session with the installation's materials: S 235, S 275, S 355, S 460 (limit states only);
// classes 4.6, 5.6, 6.8, 8.8, 10.9.
struct Banco {
  Banco() {
    EXPECT_EQ(LeggiMateriali(s.materiali, kInstallazione / "custom" / "MaterialiNTC08.tx1").errore,
              "");
  }
  void LeggiBase(const fs::path& cartella) {
    s.nodo.DirLavoro = cartella.string();
    LeggiMaterialiBase(s);
  }
  PiattaformaRegistrata p;
  Sessione s{p};
};

const std::string kNonCorretti =
    "Materiali base non corretti. Aprire 'Materiali base' dal pannello principale di Korvin e "
    "salvarli";

TEST(MaterialiBase, MessaggiDellaLettura) {
  struct Caso {
    fs::path cartella;
    std::string testo;
    std::string titolo;
  };
  const Caso casi[] = {
      {kDati / "non_esiste",
       "Materiali Base non impostati, specificare un materiale nell'apposita sezione", "QF17"},
      {kDati / "base_senza_release", kNonCorretti, "ATTENZIONE!"},
      {kDati / "base_fuori_scala", kNonCorretti, "ATTENZIONE!"},
      {kDati / "base_altro",
       "Non è possibile utilizzare un tipo di acciaio personalizzato. Impostare un tipo standard",
       "ATTENZIONE!"},
      {kDati / "base_altra",
       "Non è possibile utilizzare una classe personalizzata per il calcestruzzo. Impostare una "
       "classe standard",
       "ATTENZIONE!"},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.cartella.string());
    Banco b;
    b.s.materiali.CheckMatBase = true;
    b.LeggiBase(c.cartella);
    ASSERT_EQ(b.p.messaggi.size(), 1u);
    EXPECT_EQ(b.p.messaggi[0].testo, c.testo);
    EXPECT_EQ(b.p.messaggi[0].titolo, c.titolo);
    EXPECT_FALSE(b.s.materiali.MatBaseAttivo);
    EXPECT_FALSE(b.s.materiali.CheckMatBase);
  }
}

// The job's sample base: steel 1 is S 275 of the table with the base's strengths over it.
TEST(MaterialiBase, BaseValida) {
  Banco b;
  b.LeggiBase(kInstallazione / "lavori" / "esempi");
  EXPECT_TRUE(b.p.messaggi.empty());
  const Materiali& m = b.s.materiali;
  ASSERT_TRUE(m.MatBaseAttivo);
  EXPECT_EQ(m.Base.Acciaio1.Tipo, "S 275 (FE 430)");
  EXPECT_EQ(m.Base.Acciaio2.fyd80, 2428.57);
  EXPECT_EQ(m.Base.E, 2100000);
  EXPECT_EQ(m.Base.ClasseCls, "C25/30");
  EXPECT_EQ(m.Base.SAmmCls, 97.5);
  EXPECT_EQ(m.Base.TipoAcciaioCA, "B450C");
  EXPECT_EQ(m.AcciaioBase, m.Acciai[2]);  // the sample repeats the table's figures

  auto righe = LeggiRighe(kInstallazione / "lavori" / "esempi" / "propmateriali.tx1");
  ASSERT_TRUE(righe && !righe->empty());
  EXPECT_EQ(righe->front(), TestataRelease("file_materiali_base", 1));
}

TEST(MaterialiBase, AcciaioDaValoriDellaBase) {
  Materiali m;
  m.NumAcciai = 1;
  m.Acciai[1] = {"S 275 (FE 430)", "UNI", 1900, 1700, 2750, 2550, 4300, 4100, 1.05, 1.25};
  MaterialiBase base;
  for (const char* riga :
       {"S 275 (FE 430)      [ACC_CARP_1_TIPO]",
        "2800   [VALORECALCOLATO_ACC_CARP_1_FYK_SP_MIN_40]",
        "4400   [VALORECALCOLATO_ACC_CARP_1_FTK_SP_MIN_40]",
        "2600   [VALORECALCOLATO_ACC_CARP_1_FYK_SP_MIN_80]",
        "0      [VALORECALCOLATO_ACC_CARP_1_FTK_SP_MIN_80]",
        "1950   [VALORECALCOLATO_ACC_CARP_1_SAMM]", "9999   [VALORECALCOLATO_ACC_CARP_2_SAMM]",
        "1.1    [ACC_CARP_COEFFICIENTE_GAMMAM]"}) {
    EXPECT_EQ(DecifraRigaMatBase(riga, base), EsitoRigaMatBase::Letta) << riga;
  }
  EXPECT_EQ(AcciaioDaMatBase(m, base),
            (Acciaio{"S 275 (FE 430)", "UNI", 1950, 1700, 2800, 2600, 4400, 4100, 1.1, 1.25}));
  base.Acciaio1.Tipo = "S 999";
  EXPECT_EQ(AcciaioDaMatBase(m, base), (Acciaio{"S 999", "", 1950, 0, 2800, 2600, 4400, 0, 1.1}));
}

TEST(MaterialiBase, GestioneApplicaLAcciaioDellaBase) {
  Banco b;
  b.LeggiBase(kInstallazione / "lavori" / "esempi");
  b.s.nodo.acciaio = b.s.materiali.Acciai[1];
  CliccaCheckMatBase(b.s, true);
  EXPECT_TRUE(b.p.messaggi.empty());
  EXPECT_EQ(b.s.nodo.acciaio.Nome, "S 275 (FE 430)");
  EXPECT_EQ(b.s.materiali.ListaAcciaiScelta, 1);
  CliccaCheckMatBase(b.s, false);
  EXPECT_EQ(b.s.nodo.acciaio.Nome, "S 275 (FE 430)");
}

TEST(MaterialiBase, GestioneRifiutaAcciaioNonAmmesso) {
  Banco b;
  b.LeggiBase(kDati / "base_s460");
  ASSERT_TRUE(b.s.materiali.MatBaseAttivo);
  b.s.nodo.TipoVer = TA;
  CliccaCheckMatBase(b.s, true);
  ASSERT_EQ(b.p.messaggi.size(), 1u);
  EXPECT_EQ(b.p.messaggi[0].testo,
            "Materiale-Base non valido per questo tipo di verifica. Verrà impostato un altro tipo "
            "di acciaio.");
  EXPECT_EQ(b.p.messaggi[0].titolo, "ATTENZIONE!");
  EXPECT_FALSE(b.s.materiali.CheckMatBase);
  EXPECT_EQ(b.s.nodo.acciaio, b.s.materiali.Acciai[1]);
  EXPECT_EQ(b.s.materiali.ListaAcciaiScelta, 0);

  b.s.nodo.TipoVer = SLU;  // allowed there
  CliccaCheckMatBase(b.s, true);
  EXPECT_EQ(b.p.messaggi.size(), 1u);
  EXPECT_EQ(b.s.nodo.acciaio.Nome, "S 460 (NTC08)");
}

TEST(MaterialiBase, ControllaMateriali) {
  struct Caso {
    std::int16_t metodo;
    const char* acciaio;
    const char* vite;
    std::vector<std::string> testi;
    const char* acciaioDopo;
    const char* viteDopo;
  };
  const Caso casi[] = {
      {TA, "S 355 (FE 510)", "10.9", {}, "S 355 (FE 510)", "10.9"},
      {TA,
       "S 460 (NTC08)",
       "8.8",
       {"Attenzione: tipo acciaio non accettabile (S 460 (NTC08)). Scegliere un acciaio dalla "
        "tendina dei  materiali"},
       "S 235 (FE 360)",
       "8.8"},
      {SLU,
       "",
       "12.9",
       {"Attenzione: tipo acciaio non accettabile (). Scegliere un acciaio dalla tendina dei  "
        "materiali",
        "Attenzione: classe viti non accettabile (12.9). Scegliere una classe dalla tendina delle "
        "viti"},
       "S 235 (FE 360)",
       "4.6"},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.acciaio);
    Banco b;
    b.s.nodo.TipoVer = c.metodo;
    b.s.nodo.acciaio.Nome = c.acciaio;
    b.s.nodo.vite.Nome = c.vite;
    ControllaMateriali(b.s);
    ASSERT_EQ(b.p.messaggi.size(), c.testi.size());
    for (std::size_t i = 0; i < c.testi.size(); ++i) {
      EXPECT_EQ(b.p.messaggi[i].testo, c.testi[i]);
      EXPECT_EQ(b.p.messaggi[i].titolo, "QF17");
    }
    EXPECT_EQ(b.s.nodo.acciaio.Nome, c.acciaioDopo);
    EXPECT_EQ(b.s.nodo.vite.Nome, c.viteDopo);
    const auto& lista = b.s.materiali.ListaAcciai;
    ASSERT_GE(b.s.materiali.ListaAcciaiScelta, 0);
    EXPECT_EQ(lista[static_cast<std::size_t>(b.s.materiali.ListaAcciaiScelta)], c.acciaioDopo);
  }
}

TEST(MaterialiBase, MaterialiDefault) {
  Banco b;
  MaterialiDefault(b.s);
  EXPECT_EQ(b.s.nodo.vite.Nome, "8.8");
  EXPECT_EQ(b.s.nodo.acciaio.Nome, "S 235 (FE 360)");

  std::swap(b.s.materiali.Viti[4], b.s.materiali.Viti[1]);  // row 4, whatever class it holds
  MaterialiDefault(b.s);
  EXPECT_EQ(b.s.nodo.vite.Nome, "4.6");

  b.LeggiBase(kDati / "base_s460");
  MaterialiDefault(b.s);  // base valid, box not checked
  EXPECT_EQ(b.s.nodo.acciaio.Nome, "S 235 (FE 360)");
  b.s.materiali.CheckMatBase = true;
  b.s.nodo.TipoVer = SLU;
  MaterialiDefault(b.s);
  EXPECT_EQ(b.s.nodo.acciaio.Nome, "S 460 (NTC08)");
}

// S 275 and class 8.8 shown in N/mm2 (factor 0.1 from daN/cm2), worked by hand.
TEST(MaterialiBase, SettaMaterialiInUnitaDelLavoro) {
  Banco b;
  b.s.unita.FatTensioni = 0.1;
  b.s.nodo.acciaio = b.s.materiali.Acciai[2];
  b.s.nodo.vite = b.s.materiali.Viti[4];
  ValoriMateriali v = SettaMateriali(b.s);
  EXPECT_EQ(v.titoloAcciaio, "Acciaio profili - [NTC08 11.3.4.1] - Tipo S 275 (FE 430)");
  EXPECT_DOUBLE_EQ(v.fk, 275);
  EXPECT_DOUBLE_EQ(v.gM, 1.05);
  EXPECT_DOUBLE_EQ(v.gMT, 1.25);
  EXPECT_NEAR(v.fd, 261.904762, 1e-6);    // 275 / 1.05
  EXPECT_DOUBLE_EQ(v.fdt, 220);           // 275 / 1.25
  EXPECT_NEAR(v.fd40, 242.857143, 1e-6);  // 255 / 1.05
  EXPECT_DOUBLE_EQ(v.fdt40, 204);         // 255 / 1.25
  EXPECT_DOUBLE_EQ(v.SAmmI, 190);
  EXPECT_DOUBLE_EQ(v.SAmmII, 213.75);
  EXPECT_EQ(v.titoloViti, "Bulloni - [NTC08 11.3.4.6.1] - Classe 8.8");
  EXPECT_DOUBLE_EQ(v.fyViti, 649);
  EXPECT_DOUBLE_EQ(v.fydViti, 519.2);  // 649 / 1.25
  EXPECT_DOUBLE_EQ(v.ftViti, 800);
  EXPECT_DOUBLE_EQ(v.ftdViti, 640);
  EXPECT_DOUBLE_EQ(v.SAmmIViti, 373);
  EXPECT_DOUBLE_EQ(v.SAmmIIViti, 419.625);
  EXPECT_DOUBLE_EQ(v.TauAmmIViti, 264);
  EXPECT_DOUBLE_EQ(v.TauAmmIIViti, 297);
  EXPECT_DOUBLE_EQ(v.gMViti, 1.25);

  EXPECT_EQ(SettaMateriali(b.s, true).titoloAcciaio,
            "Acciaio profili e piastre - [NTC08 11.3.4.1] - Tipo S 275 (FE 430)");
  b.s.nodo.acciaio.gM = 0;
  EXPECT_EQ(SettaMateriali(b.s).fd, 0);
}

}  // namespace
}  // namespace qf17
