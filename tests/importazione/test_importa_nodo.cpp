// A node taken from a small model written here: a horizontal chord through the node, member A
// up to the left, B straight up, C up to the right, over the node tests' own library.

#include <gtest/gtest.h>

#include "importazione/importa_nodo.h"
#include "librerie/libreria_profili.h"
#include "nodo/panel/ins_dati.h"
#include "nodo/sessione_prova.h"

namespace qf17 {
namespace {

const char* const kStruttura =
    "release 4\r\n6\r\n0 0 0\r\n2000 0 0\r\n-2000 0 0\r\n-1000 0 1000\r\n0 0 1000\r\n"
    "1000 0 1000\r\n"
    "1\r\n0 0 0 5\r\nnodo\r\n"
    "5\r\n0 1 1 1\r\n101 0\r\n2 0 1 1\r\n102 0\r\n0 3 1 1\r\n201 1\r\n4 0 1 1\r\n202 2\r\n"
    "0 5 1 1\r\n203 3\r\n"
    "0\r\n0\r\n0\r\n0\r\n1\r\n";
const char* const kSezioni =
    "4\r\n0 P_UPN160 0\r\na\r\nb\r\nc\r\nd\r\n1 P_LDO70_7 0\r\na\r\nb\r\nc\r\nd\r\n"
    "2 P_UPN120 0\r\na\r\nb\r\nc\r\nd\r\n3 IPE200 0\r\na\r\nb\r\nc\r\nd\r\n";

class ImportaNodo : public ::testing::Test, public prova::SessioneProva {
 protected:
  ImportaNodo() {
    ScriviFile("struttur.str", kStruttura);
    ScriviFile("sezioni_", kSezioni);
    Nodo& n = sessione.nodo;
    n.Corrente = sessione.profili.Profili[ProfiloDaNome(sessione.profili, "IPE140", piattaforma)];
    for (int i = 1; i <= 3; ++i) {
      n.Aste[i] = sessione.profili.Profili[ProfiloDaNome(sessione.profili, "LU50x5", piattaforma)];
    }
    sessione.unita.FatForze = 1;
  }
  InsDati p;
};

// Angles by the model's rule: the chord along +x 0, A up towards -x -135, B up -90, C up
// towards +x -45. A's "P_LDO70_7" is LU70x7 opposed (side 1); C's "IPE200" is not the
// library's: it keeps its section and says so, its angle taken all the same.
TEST_F(ImportaNodo, SezioniAngoliEModi) {
  ImportaNodo3D(p, sessione, 5, {201, 202, 203, 101});
  const Nodo& n = sessione.nodo;
  EXPECT_EQ(n.Corrente.Nome, "UPN160");
  EXPECT_NEAR(n.Cor_teta, 0, 1e-12);
  EXPECT_EQ(n.Aste[1].Nome, "LU70x7");
  EXPECT_EQ(n.Ast_modo[1], 2);
  EXPECT_EQ(n.Ast_lato[1], 1);
  EXPECT_NEAR(n.Ast_teta[1], -135 * prova::kGrado, 1e-12);
  EXPECT_EQ(n.Aste[2].Nome, "UPN120");
  EXPECT_NEAR(n.Ast_teta[2], -90 * prova::kGrado, 1e-12);
  EXPECT_EQ(n.Aste[3].Nome, "LU50x5");
  EXPECT_NEAR(n.Ast_teta[3], -45 * prova::kGrado, 1e-12);
  EXPECT_EQ((std::array{n.Ast_flag[1], n.Ast_flag[2], n.Ast_flag[3]}),
            (std::array<std::int16_t, 3>{1, 1, 1}));
  ASSERT_EQ(piattaforma.messaggi.size(), 1u);
  EXPECT_EQ(piattaforma.messaggi[0].testo, "Profilo non applicabile all'asta C (solo L e U)");
  EXPECT_EQ(piattaforma.messaggi[0].titolo, "Attenzione");
}

// A member not asked for is taken out; a node the model lacks changes nothing.
TEST_F(ImportaNodo, AstaNonRichiestaENodoInesistente) {
  ImportaNodo3D(p, sessione, 5, {201, 202, -1, 101});
  EXPECT_EQ(sessione.nodo.Ast_flag[3], 0);
  EXPECT_TRUE(piattaforma.messaggi.empty());
  const Nodo prima = sessione.nodo;
  ImportaNodo3D(p, sessione, 77, {201, 202, 203, 101});
  EXPECT_EQ(piattaforma.messaggi.back().testo, "Errore: nodo inesistente");
  EXPECT_EQ(sessione.nodo.Aste[1].Nome, prima.Aste[1].Nome);
}

}  // namespace
}  // namespace qf17
