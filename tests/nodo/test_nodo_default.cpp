#include <gtest/gtest.h>

#include "nodo/file_nodo.h"
#include "nodo/nodo_default.h"
#include "sessione_prova.h"

namespace qf17::prova {
namespace {

TEST(NodoDefault, ValoriDiUnNodoNuovo) {
  SessioneProva s;
  NodoDefault(s.sessione);
  const Nodo& n = s.sessione.nodo;
  EXPECT_EQ(n.TipoVer, 0);
  EXPECT_EQ(n.Corrente.Nome, "IPE140");
  EXPECT_EQ(n.Corrente.h, 140);
  EXPECT_EQ(n.Aste[1].Nome, "LU60x6");
  EXPECT_EQ(n.Aste[2].Nome, "UPN120");
  EXPECT_EQ(n.Aste[2].Area, 1700);
  EXPECT_EQ(n.Aste[3].Nome, "LU60x6");
  for (int i = 1; i <= 3; ++i) {
    EXPECT_EQ(n.Ast_flag[i], 1);
    EXPECT_EQ(n.Ast_flag[i + 3], 1);
    EXPECT_EQ(n.Ast_modo[i], 0);
    EXPECT_EQ(n.Ast_coeff[i], 1.0);
    EXPECT_EQ(n.Ast_ins[i], 150);
    EXPECT_EQ(n.Ast_teta[i], (45.0 * i) * kGrado);
  }
  EXPECT_EQ(n.Ast_lato[1], 0);
  EXPECT_EQ(n.Ast_lato[2], 0);
  EXPECT_EQ(n.Ast_lato[3], 1);
  const double fz[] = {n.Fz_a, n.Fz_b, n.Fz_c, n.Fz_d, n.Fz_e, n.Fz_f, n.Fz_g, n.Fz_h};
  const double attesi[] = {150, 250, 250, 150, 100, 150, 100, 150};
  for (int k = 0; k < 8; ++k) EXPECT_EQ(fz[k], attesi[k]) << k;
  EXPECT_EQ(n.Fz_s, 15);
  EXPECT_EQ(n.Lato_Sald, 10);
  EXPECT_EQ(n.PosFazzoletto, 0);
  // The bolt class is row 4 of the table, whichever it is; the steel row 1.
  EXPECT_EQ(n.vite.Nome, "8.8");
  EXPECT_EQ(n.vite.SAmmViti, 3700);
  EXPECT_EQ(n.acciaio.Nome, "S 235 (FE 360)");
  EXPECT_EQ(n.Esposizione, 0);
  EXPECT_EQ(n.nSollAg, 0);
  for (int g = 0; g <= 3; ++g) EXPECT_EQ(n.nBull[g], 0);
  EXPECT_EQ(n.NumNodi, 0);
  EXPECT_FALSE(n.DisegnoGenerato);
  EXPECT_TRUE(s.piattaforma.messaggi.empty());
}

TEST(NodoDefault, IlFileDiUnNodoNuovo) {
  SessioneProva s;
  NodoDefault(s.sessione);
  const auto file = s.cartella / "nuovo.qf7";
  ASSERT_TRUE(ScriviNodo(s.sessione.nodo, file, s.piattaforma, OraLocale(2024, 3, 5, 9, 7)));
  EXPECT_EQ(LeggiTutto(file), LeggiTutto(DatoProva("nodo_nuovo.qf7")));
}

TEST(NodoDefault, RiportaANuovoUnNodoCaricato) {
  SessioneProva s;
  ASSERT_TRUE(ApriNodoDaFile(s.sessione, DatoProva("nodo_piccolo.qf7")));
  NodoDefault(s.sessione);
  const Nodo& n = s.sessione.nodo;
  EXPECT_EQ(n.TipoVer, 0);
  EXPECT_EQ(n.Esposizione, 0);
  EXPECT_EQ(n.nSollAg, 0);
  EXPECT_EQ(n.nBull[0], 0);
  EXPECT_EQ(n.nBull[3], 0);
  EXPECT_EQ(n.NumNodi, 0);
  EXPECT_EQ(n.Ast_flag[3], 1);
  EXPECT_EQ(n.Ast_flag[6], 1);
  EXPECT_EQ(n.Ast_modo[3], 0);
  EXPECT_EQ(n.Fz_s, 15);
}

TEST(NodoDefault, ParoleDeiReport) {
  EXPECT_EQ(ParolaModo(0), "SINGOLA");
  EXPECT_EQ(ParolaModo(1), "DOPPIA");
  EXPECT_EQ(ParolaModo(2), "OPPOSTA");
  EXPECT_EQ(ParolaModo(7), "SINGOLA");
  EXPECT_EQ(LetteraAsta(1), "A");
  EXPECT_EQ(LetteraAsta(2), "B");
  EXPECT_EQ(LetteraAsta(3), "C");
}

}  // namespace
}  // namespace qf17::prova
