#include <gtest/gtest.h>

#include "nodo/file_nodo.h"
#include "nodo/nodo_default.h"
#include "sessione_prova.h"

namespace qf17::prova {
namespace {

// A new node writes the golden file of a new node; what the file does not hold comes from the
// libraries' rows.
TEST(NodoDefault, NodoNuovoComeIlFileDiRiferimento) {
  SessioneProva s;
  NodoDefault(s.sessione);
  const Nodo& n = s.sessione.nodo;
  const auto file = s.cartella / "nuovo.qf7";
  ASSERT_TRUE(ScriviNodo(n, file, s.piattaforma, OraLocale(2024, 3, 5, 9, 7)));
  EXPECT_EQ(LeggiTutto(file), LeggiTutto(DatoProva("nodo_nuovo.qf7")));
  EXPECT_EQ(n.Corrente.h, 140);
  EXPECT_EQ(n.Aste[2].Area, 1700);
  // The bolt class is row 4 of the table, whichever it is.
  EXPECT_EQ(n.vite.SAmmViti, 3700);
  EXPECT_EQ(n.PosFazzoletto, 0);
  for (int i = 4; i <= 6; ++i) EXPECT_EQ(n.Ast_flag[i], 1) << i;  // the mirrored rows
  EXPECT_FALSE(n.DisegnoGenerato);
  EXPECT_TRUE(s.piattaforma.messaggi.empty());
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

}  // namespace
}  // namespace qf17::prova
