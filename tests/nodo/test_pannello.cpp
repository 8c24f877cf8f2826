// The panel's boxes and load table over a node made by hand; figures worked out beside them.

#include <gtest/gtest.h>

#include <string>

#include "librerie/numeri.h"
#include "librerie/unita.h"
#include "nodo/nodo.h"
#include "nodo/panel/ins_dati.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {
namespace {

class Pannello : public ::testing::Test {
 protected:
  Pannello() {
    u.FatForze = 1;
    n.Ast_flag[1] = n.Ast_flag[2] = n.Ast_flag[3] = 1;
  }
  void Digita(FamigliaCasella f, int indice, const std::string& testo) {
    p.c(NomeCasella(f), indice).testo = testo;
    TbValuta(p, n, u, {f, indice});
  }
  void Soll(int quante) {
    n.nSollAg = 0;
    for (int j = 1; j <= quante; ++j) Bt_agg_sing_sol(p, n, u, piattaforma);
  }

  Nodo n;
  UnitaLavoro u;
  InsDati p;
  PiattaformaRegistrata piattaforma;
};

// The leading number of the text, a comma being no decimal mark; the text stays as typed.
// Geometry boxes mark the change and rebuild a live 3D view; the coefficient does not.
TEST_F(Pannello, CaselleConIlNumeroIniziale) {
  int ricostruzioni = 0;
  p.ricostruisci3D = [&] { ++ricostruzioni; };
  Digita(FamigliaCasella::FzTxt, 0, "12,5");
  EXPECT_EQ(n.Fz_a, 12);
  EXPECT_EQ(ricostruzioni, 0);
  n.Vista3DAttiva = 1;
  Digita(FamigliaCasella::FzTxt, 9, "abc");
  EXPECT_EQ(n.Ast_ins[2], 0);
  EXPECT_EQ(p.c("FzTxt", 9).testo, "abc");
  Digita(FamigliaCasella::TetaTxt, 1, "45.5gradi");
  EXPECT_EQ(n.Ast_teta[1], 45.5 * 3.14159265358979 / 180);
  Digita(FamigliaCasella::BeffTxt, 2, "0.8");
  EXPECT_EQ(n.Ast_coeff[2], 0.8);
  EXPECT_EQ(ricostruzioni, 2);
  EXPECT_TRUE(p.cambiato);
  // While the panel refreshes, its events change nothing.
  p.Aggiornamento = 1;
  Digita(FamigliaCasella::SpessTxt, -1, "99");
  EXPECT_NE(n.Fz_s, 99);
}

// Load boxes in the job's unit (kN: factor 1/100). The guard compares the stored daN with the
// typed display value, as it always has: typing "250" over a stored 250 daN (shown "2.5")
// changes nothing. Enter and then leaving the box runs the entry twice: the second changes
// nothing more. Escape shows the stored force in the job's unit again.
TEST_F(Pannello, CaselleDeiCarichi) {
  u.FatForze = 0.01;
  Soll(1);
  n.SforzoNormale(2, 1) = 250;
  pnn1_aggiorna_sollecitazioni(p, n, u, 1);
  EXPECT_EQ(p.c("Txt2", 0).testo, "2.5");
  Digita(FamigliaCasella::Txt2, 0, "250");
  EXPECT_EQ(n.SforzoNormale(2, 1), 250);
  Digita(FamigliaCasella::Txt2, 0, "3");
  EXPECT_EQ(n.SforzoNormale(2, 1), 300);  // 3 kN
  TbValuta(p, n, u, {FamigliaCasella::Txt2, 0});
  EXPECT_EQ(n.SforzoNormale(2, 1), 300);
  p.c("Txt2", 0).testo = "12345";
  TbRipristina(p, n, u, piattaforma, {FamigliaCasella::Txt2, 0});
  EXPECT_EQ(p.c("Txt2", 0).testo, "3");
  Digita(FamigliaCasella::Tb_sol_descr, 0, "neve");
  EXPECT_EQ(n.NomeSa[1], "neve");
}

TEST_F(Pannello, RipristinoNellaFormaDellaCasella) {
  // The chord entered at 172.83 degrees, which the geometry turns to -7.17: the box keeps the
  // angle as entered.
  Digita(FamigliaCasella::TetaTxt, 0, "172.83");
  EXPECT_EQ(n.Cor_tetaCasella, n.Cor_teta);
  n.Cor_teta -= 3.14159265358979;
  n.Fz_b = 250.5;
  pnn1_aggiorna_textbox(p, n, u, piattaforma);
  EXPECT_EQ(p.c("TetaTxt", 0).testo, "172.83");
  EXPECT_EQ(p.c("FzTxt", 1).testo, "250.5");
  EXPECT_EQ(p.c("FzTxt", 8).testo, TestoNumero(n.Ast_ins[1]));
}

TEST(Numero3Cifre, CifreOltreLaTerzaAZero) {
  const std::pair<double, const char*> casi[] = {
      {0.5, "0.5"},    {9.4, "9.4"},   {1.25, "1"},        {13.75, "14"},      {99.95, "100"},
      {999.5, "1000"}, {5678, "5670"}, {12345.6, "12300"}, {150400, "150000"}, {300800, "300000"},
  };
  for (const auto& [valore, atteso] : casi) EXPECT_EQ(Numero3Cifre(valore), atteso) << valore;
}

// A section of 940 mm2 in a steel of 1600 daN/cm2 allowed, 2350 yield: 9.4 cm2 and
// 940 x 1600 / 10 = 150400 -> 150000 (x 2 for a double member: 18.8, four characters, -> 19;
// 300800 -> 300000); by
// limit states 940 x 2350 / 10 = 220900 -> 220000.
TEST_F(Pannello, CelleDellaSezionePerMetodo) {
  n.Aste[2].h = 70, n.Aste[2].b = 70, n.Aste[2].a = 7, n.Aste[2].e = 7, n.Aste[2].Area = 940;
  n.acciaio.SAmm = 1600, n.acciaio.fy = 2350;
  pnn2_ScriviDatiProfilo(p, n, 2);
  EXPECT_EQ(p.c("geomp", 12).testo, "70");
  EXPECT_EQ(p.c("geomp", 16).testo, "9.4");
  EXPECT_EQ(p.c("geomp", 17).testo, "150000");
  n.Ast_modo[2] = 1;
  pnn2_ScriviDatiProfilo(p, n, 2);
  EXPECT_EQ(p.c("geomp", 16).testo, "19");
  EXPECT_EQ(p.c("geomp", 17).testo, "300000");
  n.Ast_modo[2] = 0;
  n.TipoVer = 1;
  pnn2_ScriviDatiProfilo(p, n, 2);
  EXPECT_EQ(p.c("geomp", 17).testo, "220000");
}

// Six sets: four rows and the scroll bar; scrolled to the end, the middle set removed by its
// number: only the numbers move, the names go with their sets.
TEST_F(Pannello, TabellaDeiCarichi) {
  Soll(6);
  pnn1_aggiorna_sollecitazioni(p, n, u, 1);
  EXPECT_TRUE(p.c("VScrollSoll").abilitato);
  EXPECT_EQ(p.c("VScrollSoll").massimo, 3);
  EXPECT_EQ(p.c("Lb_nrosol").testo, "6");
  VScrollSoll_Change(p, n, u, 3);
  EXPECT_EQ(p.c("Lb_sol_num", 0).testo, "3");
  Lb_sol_num_Click(p, n, u, 1);  // set 4
  EXPECT_EQ(n.nSollAg, 5);
  EXPECT_EQ(p.c("VScrollSoll").valore, 2);  // kept inside the list
  EXPECT_EQ(p.c("Lb_sol_num", 2).testo, "4");
  EXPECT_EQ(p.c("Tb_sol_descr", 2).testo, "Soll 5");
  // A member taken out greys its forces; load cases only by allowable stresses.
  n.Ast_flag[3] = 0;
  CasCar_Click(p, n, 0, true);
  EXPECT_EQ(n.CasoCarico[2], 1);
  pnn1_aggiorna_sollecitazioni(p, n, u, -1);
  EXPECT_FALSE(p.c("Txt3", 0).abilitato);
  EXPECT_TRUE(p.c("CasCar", 0).visibile);
  EXPECT_EQ(p.c("CasCar", 0).valore, 1);
  n.TipoVer = 1;
  pnn1_aggiorna_sollecitazioni(p, n, u, -1);
  EXPECT_FALSE(p.c("CasCar", 0).visibile);
  // Fewer than four: the rows past the last are hidden, the bar is idle.
  RimuoviUltSoll(p, n, u);
  RimuoviUltSoll(p, n, u);
  RimuoviUltSoll(p, n, u);
  EXPECT_FALSE(p.c("Lb_sol_num", 2).visibile);
  EXPECT_FALSE(p.c("VScrollSoll").abilitato);
  EXPECT_TRUE(p.c("RimuoviUltSoll").abilitato);
}

// The add button stops at 199 sets with its message; "Rim. tutto" asks first.
TEST_F(Pannello, LimitiEDomande) {
  n.nSollAg = 198;
  Bt_agg_sing_sol(p, n, u, piattaforma);
  EXPECT_EQ(n.nSollAg, 199);
  EXPECT_EQ(n.NomeSa[199], "Soll 199");
  EXPECT_EQ(p.c("Lb_sol_num", 3).testo, "199");
  Bt_agg_sing_sol(p, n, u, piattaforma);
  EXPECT_EQ(n.nSollAg, 199);
  ASSERT_EQ(piattaforma.messaggi.size(), 1u);
  EXPECT_EQ(piattaforma.messaggi[0].testo,
            "E' stato raggiunto il numero massimo di sollecitazioni.");
  piattaforma.risposte = {Risposta::Annulla, Risposta::Ok};
  RimuoviTutteSoll(p, n, u, piattaforma);
  EXPECT_EQ(n.nSollAg, 199);
  RimuoviTutteSoll(p, n, u, piattaforma);
  EXPECT_EQ(n.nSollAg, 0);
  EXPECT_EQ(piattaforma.messaggi.back().titolo, "ATTENZIONE!");
  EXPECT_FALSE(p.c("RimuoviTutteSoll").abilitato);
}

}  // namespace
}  // namespace qf17
