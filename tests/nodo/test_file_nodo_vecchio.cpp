#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "nodo/file_nodo.h"
#include "sessione_prova.h"

namespace qf17::prova {
namespace {

// The fields of each old file, read back; a quoted string keeps its commas.
TEST(FileNodoVecchio, SecondaGenerazione) {
  Nodo n;
  ASSERT_TRUE(LeggiNodoVecchio(n, DatoProva("vecchio2.qf7")));
  EXPECT_EQ(
      (std::vector<std::string>{n.Corrente.Nome, n.Aste[1].Nome, n.acciaio.Nome, n.vite.Nome,
                                n.NomeSa[1]}),
      (std::vector<std::string>{"HEA200", "LU70x7", "S 275 (FE 430)", "8.8", "Soll 1, neve"}));
  EXPECT_EQ((std::vector<double>{n.Cor_teta, n.Lato_Sald, n.Ast_ins[1], n.Saldature(1, 2).Sld_L,
                                 n.Fz_s, n.xBull(1, 3), n.yBull(2, 2), n.FiBull(3, 1),
                                 n.SforzoNormale(1, 1), n.SforzoNormale(3, 2), n.Ast_coeff[3]}),
            (std::vector<double>{0, 7, 180, 180, 12, 140, 30, 16, -18500, 3900, 0.9}));
  EXPECT_EQ((std::vector<int>{n.Aste[1].Tipo, n.Ast_modo[1], n.Ast_modo[3], n.Ast_lato[3],
                              n.nBull[0], n.nBull[1], n.nBull[2], n.Esposizione, n.nSollAg,
                              n.CasoCarico[2], n.NumNodi, n.NomeNodi[1], n.TipoVer}),
            (std::vector<int>{1, 1, 2, 1, 0, 3, 2, 1, 2, 1, 1, 345, 0}));
  EXPECT_EQ(n.Ast_teta[1], 45 * kGrado);
  EXPECT_EQ(n.Ast_teta[3], 135 * kGrado);
}

// Whole degrees: 50.5 rounds half to even. The first generation's strengths go into the
// current records' first two fields; the others keep theirs.
TEST(FileNodoVecchio, PrimaGenerazione) {
  Nodo n;
  n.acciaio.Nome = "prima";
  n.acciaio.fy = 1234;
  ASSERT_TRUE(LeggiNodoVecchio(n, DatoProva("vecchio1.qf7")));
  EXPECT_EQ((std::vector<std::string>{n.Corrente.Nome, n.Aste[2].Nome, n.acciaio.Nome, n.vite.Nome,
                                      n.NomeSa[1]}),
            (std::vector<std::string>{"UPN160", "UPN120", "FE 360", "8.8", "Soll 1"}));
  EXPECT_EQ(n.Cor_teta, -5 * kGrado);
  EXPECT_EQ(n.Ast_teta[1], 50 * kGrado);
  EXPECT_EQ((std::vector<double>{n.Lato_Sald, n.Saldature(3, 1).Sld_L, n.xBull(0, 2),
                                 n.FiBull(2, 2), n.acciaio.SAmm, n.acciaio.SAmm40, n.acciaio.fy,
                                 n.vite.SAmmViti, n.vite.TauAmmViti, n.SforzoNormale(2, 1)}),
            (std::vector<double>{10, 140, 600, 20, 1600, 1400, 1234, 3700, 2600, -9000}));
  EXPECT_EQ((std::vector<int>{n.Aste[2].Tipo, n.Ast_flag[3], n.Ast_flag[6], n.nBull[0], n.nBull[3],
                              n.nSollAg, n.NumNodi, n.TipoVer}),
            (std::vector<int>{0, 0, 0, 2, 0, 1, 0, 1}));
}

TEST(FileNodoVecchio, ApertoDalComandoPrendeLeLibrerie) {
  SessioneProva s;
  ASSERT_TRUE(ApriNodoDaFile(s.sessione, DatoProva("vecchio2.qf7")));
  const Nodo& n = s.sessione.nodo;
  EXPECT_EQ(n.NomeFileNodo, "vecchio2");
  EXPECT_EQ(n.Corrente.h, 190);
  EXPECT_EQ(n.Aste[2].Area, 691);
  EXPECT_EQ(n.acciaio.fy, 2750);
  EXPECT_EQ(n.vite.ftViti, 8000);
  EXPECT_TRUE(s.piattaforma.messaggi.empty());
}

TEST(FileNodoVecchio, OgniGuastoESilenzioso) {
  const std::string intero = LeggiTutto(DatoProva("vecchio2.qf7"));
  struct Caso {
    std::string nome, contenuto;
  };
  auto sostituisci = [&](const std::string& da, const std::string& a) {
    std::string t = intero;
    t.replace(t.find(da), da.size(), a);
    return t;
  };
  const Caso casi[] = {
      {"troncato", intero.substr(0, intero.size() - 3)},
      {"vuoto", ""},
      {"metodo 2", sostituisci("0.9\r\n0\r\n", "0.9\r\n2\r\n")},
      {"esposizione 0", sostituisci("\"8.8\",2", "\"8.8\",0")},
      {"2001 bulloni", sostituisci("\r\n3\r\n40,35,16", "\r\n2001\r\n40,35,16")},
      {"201 sollecitazioni", sostituisci("\r\n2\r\n-18500", "\r\n201\r\n-18500")},
      {"oltre 16 bit", sostituisci("0,7\r\n", "0,70000\r\n")},
  };
  for (const Caso& c : casi) {
    SessioneProva s;
    Nodo n;
    const auto f = s.ScriviFile("vecchio.qf7", c.contenuto);
    EXPECT_FALSE(LeggiNodoVecchio(n, f)) << c.nome;
    EXPECT_TRUE(s.piattaforma.messaggi.empty()) << c.nome;
  }
}

TEST(FileNodoVecchio, UnGuastoLasciaQuantoLettoNelNodoMaNonNellaSessione) {
  SessioneProva s;
  s.sessione.nodo.Fz_s = 99;
  const std::string intero = LeggiTutto(DatoProva("vecchio2.qf7"));
  const auto f = s.ScriviFile("troncato.qf7", intero.substr(0, intero.size() - 3));
  Nodo n;
  EXPECT_FALSE(LeggiNodoVecchio(n, f));
  EXPECT_EQ(n.Fz_s, 12);
  EXPECT_EQ(n.Ast_coeff[3], 0.9);

  EXPECT_FALSE(ApriNodoDaFile(s.sessione, f));
  EXPECT_EQ(s.sessione.nodo.Fz_s, 99);
  EXPECT_EQ(s.sessione.nodo.NomeFileNodo, "Nuovo");
  ASSERT_EQ(s.piattaforma.messaggi.size(), 1u);
  EXPECT_EQ(s.piattaforma.messaggi[0].testo, "File:\n" + f.string());
  EXPECT_EQ(s.piattaforma.messaggi[0].titolo, "QF17 - LETTURA NON RIUSCITA");
  EXPECT_EQ(s.piattaforma.messaggi[0].icona, Icona::Critica);
}

TEST(FileNodoVecchio, SenzaReleaseQuestoFileEVecchio) {
  SessioneProva s;
  // A keyed file whose header lost its file release goes to the positional reader and fails.
  std::string testo = LeggiTutto(DatoProva("nodo_piccolo.qf7"));
  testo.replace(testo.find(" [ReleaseQuestoFile=1]"), 22, "");
  const auto f = s.ScriviFile("senza.qf7", testo);
  s.sessione.nodo.Fz_s = 99;
  EXPECT_FALSE(ApriNodoDaFile(s.sessione, f));
  EXPECT_EQ(s.sessione.nodo.Fz_s, 99);
  ASSERT_EQ(s.piattaforma.messaggi.size(), 1u);
  EXPECT_EQ(s.piattaforma.messaggi[0].titolo, "QF17 - LETTURA NON RIUSCITA");
}

}  // namespace
}  // namespace qf17::prova
