// The panel's sections, modes, presence, method, schema and bolt buttons over the hand-written
// library of the node tests (IPE140, HEA200, UPN120, UPN160, LU50x5, LU60x6, LU70x7, LD80x60x7).

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "librerie/libreria_profili.h"
#include "nodo/panel/ins_dati.h"
#include "nodo/panel/pannello.h"
#include "nodo/panel/profili_pannello.h"
#include "nodo/panel/schizzi.h"
#include "nodo/sessione_prova.h"

namespace qf17 {
namespace {

class PannelloProfili : public ::testing::Test, public prova::SessioneProva {
 protected:
  PannelloProfili() {
    Nodo& n = sessione.nodo;
    const auto riga = [&](const char* nome) { return sessione.profili.Profili[Riga(nome)]; };
    n.Corrente = riga("UPN160");
    n.Aste[1] = riga("LU70x7");
    n.Aste[2] = riga("UPN120");
    n.Aste[3] = riga("LU60x6");
    for (int i = 1; i <= 3; ++i) n.Ast_flag[i] = n.Ast_flag[i + 3] = 1, n.Ast_ins[i] = 120;
    n.Fz_a = n.Fz_b = n.Fz_c = n.Fz_d = 100;
    n.acciaio = sessione.materiali.Acciai[1];
    sessione.unita.FatForze = 1;
    AggiornaPannello(p, sessione);
  }
  int Riga(const char* nome) { return ProfiloDaNome(sessione.profili, nome, piattaforma); }

  InsDati p;
};

TEST_F(PannelloProfili, ListeESelezioni) {
  EXPECT_EQ(p.c("Cb_Asta", 0).voci.size(), 8u);
  EXPECT_EQ(p.c("Cb_Asta", 2).voci, (std::vector<std::string>{"UPN120", "UPN160", "LU50x5",
                                                              "LU60x6", "LU70x7", "LD80x60x7"}));
  EXPECT_EQ(p.c("Cb_Asta", 0).selezione, 3);
  EXPECT_EQ(p.c("Cb_Asta", 1).selezione, 4);
  EXPECT_TRUE(p.c("Bt_bul_corr").abilitato);
  // The chord taken from its list: an I section has no bolts on the chord.
  sessione.nodo.nBull[1] = 3;
  Cb_Asta_Click(p, sessione, 0, 0);
  EXPECT_EQ(sessione.nodo.Corrente.Nome, "IPE140");
  EXPECT_FALSE(p.c("Bt_bul_corr").abilitato);
  Cb_Asta_Click(p, sessione, 1, 5);
  EXPECT_EQ(sessione.nodo.Aste[1].Nome, "LD80x60x7");
  EXPECT_EQ(sessione.nodo.nBull[1], 3);  // the bolts stay
  EXPECT_EQ(p.c("geomp", 6).testo, "80");
}

// Opposed on a channel means single with the side set; on an angle it is opposed. The side
// label turns an angle over and leaves a channel alone.
TEST_F(PannelloProfili, ModiELati) {
  Nodo& n = sessione.nodo;
  OpB_aste_c_Click(p, sessione, 5);
  EXPECT_EQ(n.Ast_modo[2], 0);
  EXPECT_EQ(n.Ast_lato[2], 1);
  EXPECT_EQ(p.c("OpB_aste_c", 3).valore, 1);
  EXPECT_EQ(p.c("OpB_aste_c", 5).valore, 0);
  OpB_aste_c_Click(p, sessione, 2);
  EXPECT_EQ(n.Ast_modo[1], 2);
  EXPECT_EQ(p.c("OpB_aste_c", 2).valore, 1);
  Cambia_lato_asta_L(p, sessione, 1);
  EXPECT_EQ(n.Ast_lato[2], 1);
  EXPECT_FALSE(p.c("L2").abilitato);
  EXPECT_TRUE(p.c("L").abilitato);
  Cambia_lato_asta_L(p, sessione, 0);
  EXPECT_EQ(n.Ast_lato[1], 0);
  // Double: the capacity cells double (940 mm2: 2 x 9.4 = 18.8 -> 19, 2 x 150400 -> 300000).
  OpB_aste_c_Click(p, sessione, 1);
  EXPECT_EQ(p.c("geomp", 10).testo, "19");
  EXPECT_EQ(p.c("geomp", 11).testo, "300000");
}

// A member taken out keeps its bolts and forces, only greyed.
TEST_F(PannelloProfili, AstaDisattivata) {
  Nodo& n = sessione.nodo;
  n.nBull[2] = 4;
  n.nSollAg = 1;
  n.SforzoNormale(2, 1) = 500;
  AstaCh_Click(p, sessione, 2, false);
  EXPECT_EQ(n.Ast_flag[2], 0);
  EXPECT_EQ(n.Ast_flag[5], 0);
  EXPECT_EQ(n.nBull[2], 4);
  EXPECT_EQ(n.SforzoNormale(2, 1), 500);
  EXPECT_FALSE(p.c("FzTxt", 9).abilitato);
  EXPECT_FALSE(p.c("Bt_bul_asta_B").abilitato);
  EXPECT_FALSE(p.c("Txt2", 0).abilitato);
  EXPECT_EQ(p.c("Txt2", 0).testo, "500");
}

// The method: load cases only by allowable stresses, capacity by yield (940 x 2350 / 10 =
// 220900 -> 220000) by limit states.
TEST_F(PannelloProfili, Metodo) {
  // While the panel refreshes, the events its own refresh raises change nothing.
  p.Aggiornamento = 1;
  TipoVer_Click(p, sessione, 1);
  Cb_Vite_Click(p, sessione, 0);
  EXPECT_EQ(sessione.nodo.TipoVer, 0);
  EXPECT_EQ(sessione.nodo.vite.Nome, "");
  p.Aggiornamento = 0;
  Cb_Vite_Click(p, sessione, 3);
  EXPECT_EQ(sessione.nodo.vite.Nome, "8.8");
  sessione.nodo.nSollAg = 1;
  TipoVer_Click(p, sessione, 1);
  EXPECT_EQ(sessione.nodo.TipoVer, 1);
  EXPECT_EQ(p.c("TipoVer", 1).valore, 1);
  EXPECT_FALSE(p.c("CasCar", 0).visibile);
  EXPECT_EQ(p.c("geomp", 11).testo, "220000");
}

// The schema's hot areas: the chord's only for a bolted chord; a click on an area of no length
// says so, otherwise the editor opens on that group.
TEST_F(PannelloProfili, SchemaEPulsantiDeiBulloni) {
  Nodo& n = sessione.nodo;
  Sezioni_MouseMove(p, n, 200, 40);
  EXPECT_EQ(p.GruppoEditor, 1);
  EXPECT_TRUE(p.manina);
  Sezioni_MouseMove(p, n, 200, 250);
  EXPECT_EQ(p.GruppoEditor, 3);
  n.Ast_ins[2] = 0;
  EXPECT_FALSE(Sezioni_Click(p, sessione));
  EXPECT_EQ(piattaforma.messaggi.back().testo, "Dimensione non valida");
  n.Ast_ins[2] = 120;
  auto form = Sezioni_Click(p, sessione);
  ASSERT_TRUE(form);
  EXPECT_EQ(form->Caption, "Inserimento bulloni sull'asta B");
  Sezioni_MouseMove(p, n, 5, 5);
  EXPECT_EQ(p.GruppoEditor, 0);
  EXPECT_FALSE(p.manina);
  n.Corrente = sessione.profili.Profili[Riga("IPE140")];
  Sezioni_MouseMove(p, n, 200, 40);
  EXPECT_EQ(p.GruppoEditor, 0);
  EXPECT_FALSE(Bt_bul_Click(p, sessione, 1));
  form = Bt_bul_Click(p, sessione, 2);
  ASSERT_TRUE(form);
  EXPECT_EQ(p.GruppoEditor, 2);
}

// One tooltip per control, the texts the family's panel shows among them.
TEST_F(PannelloProfili, ToolTip) {
  std::set<std::string> controlli;
  for (const ToolTipPannello& t : kToolTipPannello) {
    EXPECT_FALSE(t.testo.empty());
    controlli.insert(Controlli::Chiave(t.controllo, t.indice));
  }
  EXPECT_EQ(controlli.size(), 63u);
  EXPECT_EQ(p.c("Car_Nodo").tooltip, "Caricamento di un nodo salvato in precedenza");
  EXPECT_EQ(p.c("FzTxt", 8).tooltip, "Inserire la lunghezza di profilo nel fazzoletto [mm]");
  EXPECT_EQ(p.c("L2").tooltip, "Cliccare per ribaltare la sezione");
}

// The sketches: the plate and one outline for a single member, two for a double one; the
// opposed angle's second outline turned over.
TEST_F(PannelloProfili, Schizzi) {
  Nodo& n = sessione.nodo;
  EXPECT_EQ(SchizzoSezione(n, 1).size(), 4u + 6u);  // plate, L
  EXPECT_EQ(SchizzoSezione(n, 2).size(), 4u + 8u);  // plate, C
  n.Ast_modo[1] = 1;
  const DisegnoSchermo doppio = SchizzoSezione(n, 1);
  n.Ast_modo[1] = 2;
  const DisegnoSchermo opposto = SchizzoSezione(n, 1);
  ASSERT_EQ(doppio.size(), 4u + 12u);
  ASSERT_EQ(opposto.size(), doppio.size());
  // The second outline's first side: along the bottom for the double, up the back for the
  // opposed angle (70 x 7 against a 0 mm plate: it starts at x = 0).
  EXPECT_EQ((std::array{doppio[10].x2, doppio[10].y2}), (std::array{-70., 0.}));
  EXPECT_EQ((std::array{opposto[10].x2, opposto[10].y2}), (std::array{-7., 0.}));
}

}  // namespace
}  // namespace qf17
