// Reports of the sample nodes by both methods, through the real libraries, compared byte for
// byte with golden files. The goldens were checked against an independent calculation (Python,
// from the sample's keys, Prof_pro, MaterialiNTC08.tx1, OpzioniQf7.txt and parametrilavoro) that
// rebuilt every report byte for byte. Options: holes d + 0.5, nominal bolt area pi d^2 / 4; units
// daN and daN/cm2, factors 1, one decimal. Load set 1, figure by figure (hand value, printed):
//
// Allowable stresses.
// ANGUPN "G + neve", I, S_adm 1900, s 10, P -1; A LU70x7 7100, B UPN120 -4900, C LU60x6 -3100:
//   TauBull A1: MomG -144130, Ip 7200, R 2654.00, 100 R / 314.159 = 844.7942 (844.8)
//   TauBull A2: R 7100/3 = 2366.667, 753.3334 (753.3)
//   RifBull A: 100 R / 7 / 20 = 1895.7138 (1895.7 <= 2 x 1900)
//   SigDiff A: width 69.282, ASez 692.82 - 10 x 20.5, NSez 2/3 N = 970.3026 (970.3)
//   SigDiff B: -1188.3101, Arrot1 rounds down: -1188.3 (cutting toward zero: -1188.2)
//   RifBull B: R 1225, 1225 / 7 / 16 = 1093.75 exactly, Round to even: 1093.8
//   SigProf A: An 656.138, In 367309.1, Ecc 16.2, s1 10.8209 + 6.1689 = 1698.9792 (1699)
//   SigSotto: SommaH -7212.4892, MomF 576999.13, tau -1.352342 = 247.5136 (247.5)
//   chord ideal: An 4494.5, Sig 160.4737, Tau 1.5 x 2071.573 / An = 200.2287 (200.2)
// DOPPIO "Permanenti + neve", I, S_adm 1600, s 12, chord LU100x10 at 10 deg, A double -21500,
// B opposed 13200, C LD80x60x7 double 18400:
//   TauBull C1: N/2 9200, MomG -183080, Ip 5000, R 3571.593 / 201.062 = 1776.3644 (1776.4)
//   TauBull C2: R 3066.667, 1525.2349 (1525.2)
//   RifBull C: 2R / s / d = 3720.4089 (3720.4 > 3200: NON VER.)
//   SigDiff C: width 57.735, ASez 494.82, NSez 12266.67 = 2479.0143 (2479 > 1600)
//   SigProf C: double, An 2 x (938 - 16.5 x 7) = 1645: 1118.5410 (1118.5)
//   SigSotto: SommaH 24737.9319, MomF -1776183.51 = 830.4423 (830.4)
//   chord ideal: An 3420, Sig 723.3313, Tau 521.5739 = 1157.2926 (1157.3)
// HEASALD "Comb. 1 - G+Qn", I, S_adm 2400, s 12, HEA200 welded (a 7, Lf 900), A UPN140 24500,
// B LU80x8 -13200, C UPN140 -18900:
//   TauBull B1: yP 57.4, yG 35, MomG 295680, Ip 7200, R 5042.945 = 1605.2193 (1605.2)
//   TauBull B2: R 4400, 1400.5635 (1400.6); RifBull B: R / a / d = 3151.8407 (3151.8)
//   SigDiff A: 4 bolts, ASez 585.384, NSez 16333.33 = 2790.1894 (2790.2 > 2400)
//   SigProf A: An 980 - 2 x 143.5 = 693, In = I2, Ecc -3.5: 3291.6772 (3291.7 > 2400)
//   SigSotto: SommaH -33246.3288, MomF 3158401.24 = 848.6612 (848.7)
//   weld TauPar: 100 (SommaH / 2) / 900 / 7 sqrt2 = -373.1540, Arrot1 down: -373.2
//   weld SigPerp: 100 (-1.077540 - 2.363309) = -344.0849 (-344.1)
//   weld ratio: sqrt(344.085^2 + 373.154^2) / 0.7 / 2400 = 0.302131 (0.3)
//
// Limit states. Shear 8.8: 38.4 A (d 20 12063.716, d 16 7720.778), 10.9: 40 A (d 20 12566.371).
// Bearing kRes aRes ft d t / 100 / 1.25, t the least of gusset and web; a member kRes along x,
// aRes across y, the chord the other way round; fans bounded by tan 30.
// ANGUPN, S 275 (ft 4300, fd 2619.048), 8.8:
//   FbRd A1 corner: 2.5 x 30/61.5 x 4300 x 20 x 7 / 125 = 5873.171 (5873.2); FvRd 12063.7
//   FbRd A2 inside: kRes 1.4 x 60/20.5 - 1.7 = 2.397561, 5632.514 (5632.5)
//   FedBull A1 2653.999 (2654.), ratio 0.451885 (0.45); A2 2366.667, 0.420179 (0.42)
//   FbRd B4 far corner: 2.5 x (102-76)/49.5 x 4300 x 16 x 7 / 125 = 5059.232; FedBull 1225 (0.24)
//   FbRd C1: aRes 25/49.5, 4169.697 (4169.7); FedBull C1 (FxB -1550, FyB 1122.2) 1913.592
//   FbRd chord: kRes across y capped, aRes 1: 2.5 x 4300 x 20 x 7.5 / 125 = 12900
//   FedBull chord D1, D6: Ip 252000, FyB -172.6311 -/+ 0.0071552 x 300 = 624.752, 625.937
// DOPPIO, S 235 (ft 3600, fd 2238.095), gusset 12:
//   FbRd A1: 2.5 x 30/49.5 x 3600 x 16 x 7 / 125 = 4887.273; A2 kRes 2.542 capped, the same
//   FedBull A1 (MomG 218225, Ip 5000) 4195.533, ratio 0.858461 (0.86)
//   FbRd B1: 2.5 x 25/49.5 x 3600 x 16 x 6 / 125 = 3490.909; FedBull 4074.098: 1.167059 fails
//   FbRd C1: aRes 35/49.5, 5701.818; FedBull as the TA R 3571.593, 0.626395 (0.63)
//   FbRd chord D1 end 60/61.5: 14048.780; D2 inside 14400; FedBull D1 2472.791, 0.204978 (0.2)
// HEASALD, S 355 (ft 5100, fy 3550, fd 3380.952), 10.9:
//   FbRd A1 corner 6965.854 (6965.9); A2 edge kRes 2.397561, 6680.424; A5 far edge the same
//   FedBull A2 24500/6 = 4083.333, ratio 0.611239 (0.61)
//   FbRd B1: 2.5 x 35/61.5 x 5100 x 20 x 8 / 125 = 9287.805; B2 inside 8907.231
//   FedBull B1, B2 5042.945, 4400; ratios 0.542964, 0.493981 (0.54, 0.49)
//   weld: SEq1 sqrt(344.0849^2 + 373.1540^2) = 507.5809, SEq2 344.0849, SLim 2485, 3017.5: SI'
// Diffusion, profile and chord stresses are the TA ones against fd: DOPPIO set 1 fails on all
// three diffusions, HEASALD only set 4, on the profile of A (3708.175 > 3380.952).
// Layout warnings, chord, A, B, C: ANGUPN chord pitch 120 > 105, A 33 < 48, C 29 < 38.4;
// DOPPIO A 33, B 29, C 38 < 38.4; HEASALD (exposure 2) B 37 < 48.
// Cells: ratios to two decimals ("0.2"); a stress too long for ten characters keeps the
// decimals that fit ("200.22873 ").

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <vector>

#include "librerie/materiali.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"
#include "verifica/esempio_in_lavoro.h"
#include "verifica/verifica.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

struct CasoEsempio {
  const char* metodo;  // "TA" or "SLU"
  const char* nodo;
  bool verificato;
  std::vector<bool> setOk;          // sets 1..n
  std::vector<std::string> avvisi;  // the layout warnings, in order
};

void PrintTo(const CasoEsempio& caso, std::ostream* os) {
  *os << caso.metodo << " " << caso.nodo;
}

std::string NomeCaso(const ::testing::TestParamInfo<CasoEsempio>& info) {
  return std::string(info.param.metodo) + "_" + info.param.nodo;
}

std::string Riferimento(const std::string& nome) {
  return prova::LeggiTutto(fs::path(QF17_DATI_TEST) / "verifica" / "dati" / nome);
}

const std::string kInterasseMinore =
    "L'interasse dei bulloni risulta difforme dalle prescrizioni delle NTC 2008 (minore del "
    "limite)";
const std::string kInterasseMaggiore =
    "L'interasse dei bulloni risulta difforme dalle prescrizioni delle NTC 2008 (maggiore del "
    "limite)";

using prova::PrimaDifferenza;

class RelazioneEsempi : public prova::EsempioInLavoro,
                        public ::testing::TestWithParam<CasoEsempio> {
 protected:
  void SetUp() override {
    Prepara(GetParam().nodo);
    // As the command line's --metodo SLU does: the node's own steel.
    if (std::string(GetParam().metodo) == "SLU") s.nodo.TipoVer = 1;
  }
};

TEST_P(RelazioneEsempi, RelazioneComeIlFileDiRiferimentoEVerdetto) {
  const CasoEsempio& caso = GetParam();
  const std::string metodo = caso.metodo;
  std::string minuscolo = metodo == "TA" ? "ta" : "slu";
  const std::string atteso = Riferimento("relazione_" + minuscolo + "_" + caso.nodo + ".txt");
  ASSERT_FALSE(atteso.empty());
  const fs::path relazione =
      lavoro.percorso() / ("Rel" + metodo + "_QF17_" + std::string(caso.nodo) + ".txt");

  EsitoVerifica esito = EseguiVerifica(s);

  ASSERT_EQ(esito.fine, FineVerifica::Relazione);
  EXPECT_EQ(esito.relazione, relazione);
  EXPECT_EQ(esito.nodoVerificato, caso.verificato);
  const std::string testo = prova::LeggiTutto(relazione);
  EXPECT_TRUE(testo == atteso) << PrimaDifferenza(testo, atteso);
  EXPECT_FALSE(fs::exists(relazione.string() + ".tmp~"));

  ASSERT_EQ(esito.verdetti.SetOk.size(), caso.setOk.size() + 1);
  for (std::size_t j = 1; j <= caso.setOk.size(); ++j) {
    EXPECT_EQ(esito.verdetti.SetOk[j], caso.setOk[j - 1]) << "set " << j;
  }

  // The layout warnings (limit states only), answered OK, then the closing message of a node
  // that fails; the viewer gets the report.
  std::vector<std::string> attesi = caso.avvisi;
  if (!caso.verificato) attesi.push_back("ATTENZIONE: nodo non verificato!");
  ASSERT_EQ(p.messaggi.size(), attesi.size());
  for (std::size_t i = 0; i < caso.avvisi.size(); ++i) {
    EXPECT_EQ(p.messaggi[i].testo, attesi[i]);
    EXPECT_EQ(p.messaggi[i].titolo, "ATTENZIONE!");
    EXPECT_EQ(p.messaggi[i].icona, Icona::Attenzione);
    EXPECT_EQ(p.messaggi[i].pulsanti, Pulsanti::OkAnnulla);
  }
  if (!caso.verificato) {
    EXPECT_EQ(p.messaggi.back().testo, attesi.back());
    EXPECT_EQ(p.messaggi.back().titolo, "QF17 - NODO DI TRAVATURA RETICOLARE");
  }
  ASSERT_EQ(p.viste.size(), 1u);
  EXPECT_EQ(p.viste[0], std::pair(Vista::Relazione, relazione.string()));

  // The report rounded what it printed back into the tables; a second run on the same session
  // fills them again and writes the same file.
  const std::string secondo = Relazione(metodo, caso.nodo);
  EXPECT_TRUE(secondo == atteso) << PrimaDifferenza(secondo, atteso);
}

const CasoEsempio kEsempi[] = {
    {"TA", "ANGUPN", true, {true, true, true, true, true}, {}},
    {"TA", "DOPPIO", false, {false, false, true}, {}},
    {"TA", "HEASALD", false, {false, false, true, false}, {}},
    {"SLU",
     "ANGUPN",
     true,
     {true, true, true, true, true},
     {kInterasseMaggiore + " sul corrente", kInterasseMinore + " sull'asta A",
      kInterasseMinore + " sull'asta C"}},
    {"SLU",
     "DOPPIO",
     false,
     {false, true, true},
     {kInterasseMinore + " sull'asta A", kInterasseMinore + " sull'asta B",
      kInterasseMinore + " sull'asta C"}},
    {"SLU", "HEASALD", false, {true, true, true, false}, {kInterasseMinore + " sull'asta B"}},
};

INSTANTIATE_TEST_SUITE_P(Campioni, RelazioneEsempi, ::testing::ValuesIn(kEsempi), NomeCaso);

// The method switched on a loaded sample and back: each method keeps its own steel, and the
// reports of the two methods come out as the golden files above whatever was chosen for the other
// method in between.
class CambioMetodoEsempio : public prova::EsempioInLavoro, public ::testing::Test {
 protected:
  void SetUp() override { Prepara("ANGUPN"); }
};

TEST_F(CambioMetodoEsempio, OgniMetodoTieneIlSuoAcciaio) {
  const std::string ta = Riferimento("relazione_ta_ANGUPN.txt");
  const std::string slu = Riferimento("relazione_slu_ANGUPN.txt");
  ASSERT_FALSE(ta.empty());
  ASSERT_FALSE(slu.empty());
  const Acciaio s275 = s.materiali.Acciai[AcciaioDaNome(s.materiali, "S 275 (FE 430)", p)];
  const Acciaio s355 = s.materiali.Acciai[AcciaioDaNome(s.materiali, "S 355 (FE 510)", p)];
  ASSERT_EQ(s.nodo.acciaio, s275);
  RiempiListaAcciai(s, s.nodo.acciaio.Nome);

  // To limit states the first time: the memory is empty, the node's steel goes along.
  CambiaMetodo(s, 1);
  EXPECT_EQ(s.nodo.TipoVer, 1);
  EXPECT_EQ(s.nodo.acciaio, s275);
  EXPECT_EQ(s.materiali.AcciaioTA, s275);
  EXPECT_TRUE(Relazione("SLU", "ANGUPN") == slu);

  // Another steel for limit states: the report's design strengths follow it (3550 / 1.05).
  const int posto = PostoInLista(s.materiali, s355.Nome);
  ASSERT_GE(posto, 0);
  SceltaAcciaio(s, posto);
  ASSERT_EQ(s.nodo.acciaio, s355);
  const std::string slu355 = Relazione("SLU", "ANGUPN");
  EXPECT_NE(slu355.find("Acciaio S 355 (FE 510)"), std::string::npos);
  EXPECT_NE(slu355.find("3381.               |3190.5"), std::string::npos);

  // Back to allowable stresses: the steel left there returns, and so does its report.
  CambiaMetodo(s, 0);
  EXPECT_EQ(s.nodo.TipoVer, 0);
  EXPECT_EQ(s.nodo.acciaio, s275);
  EXPECT_EQ(s.materiali.AcciaioSLU, s355);
  EXPECT_EQ(s.materiali.ListaAcciai[static_cast<std::size_t>(s.materiali.ListaAcciaiScelta)],
            s275.Nome);
  EXPECT_TRUE(Relazione("TA", "ANGUPN") == ta);

  // And to limit states again: the steel chosen there.
  CambiaMetodo(s, 1);
  EXPECT_EQ(s.nodo.acciaio, s355);
  EXPECT_EQ(s.materiali.AcciaioTA, s275);
  EXPECT_TRUE(Relazione("SLU", "ANGUPN") == slu355);

  // No steel was refused on the way: the only boxes are the limit-state layout warnings, three
  // per limit-state run.
  for (const auto& m : p.messaggi) EXPECT_EQ(m.titolo, "ATTENZIONE!") << m.testo;
  EXPECT_EQ(p.messaggi.size(), 9u);
}

class AngoloCorrenteEsempio : public prova::EsempioInLavoro, public ::testing::Test {
 protected:
  void SetUp() override { Prepara("ANGUPN"); }
  // The sample opened again from its copy with the chord's angle `gradi` in its file.
  void ApriConAngolo(const std::string& gradi) {
    const fs::path file = lavoro.percorso() / "ANGUPN.qf7";
    std::string testo = prova::LeggiTutto(file);
    const std::size_t chiave = testo.find("[Cor_teta]");
    const std::size_t riga = testo.rfind('\n', chiave) + 1;
    testo.replace(riga, chiave - riga, gradi + std::string(40 - gradi.size(), ' '));
    std::ofstream(file, std::ios::binary) << testo;
    ASSERT_TRUE(ApriNodoDaFile(s, file));
    s.nodo.DirLavoro = lavoro.percorso().string();
  }
};

// The chord's angle prints as the engineer entered it, in the members' table of both reports,
// though the geometry turns it to the half turn nearest zero for its figures (172.83 - 180 =
// -7.17, 195.53 - 180 = 15.53); an angle entered as -7.17 stays -7.17. The limit-state cell is 8
// wide, right-aligned.
TEST_F(AngoloCorrenteEsempio, ComeImmessoInEntrambeLeRelazioni) {
  struct Caso {
    std::string gradi, ta, slu;
  };
  const std::string corrente = "\tCorr.\tUPN160\tDoppio\t\t 160\t 65\t 7.5\t 10.5\t";
  const std::string correnteSlu =
      "Corr. |UPN160              |Doppio |    160.|     65.|     7.5|"
      "    10.5|";
  const Caso casi[] = {
      {"172.83", corrente + " 172.83\t-\r\n", correnteSlu + "  172.83|       -|\r\n"},
      {"195.53", corrente + " 195.53\t-\r\n", correnteSlu + "  195.53|       -|\r\n"},
      {"-7.17", corrente + "-7.17\t-\r\n", correnteSlu + "   -7.17|       -|\r\n"},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.gradi);
    ApriConAngolo(c.gradi);
    s.nodo.TipoVer = 0;
    const std::string ta = Relazione("TA", "ANGUPN");
    EXPECT_NE(ta.find(c.ta), std::string::npos) << ta.substr(0, 600);
    s.nodo.TipoVer = 1;
    const std::string slu = Relazione("SLU", "ANGUPN");
    EXPECT_NE(slu.find(c.slu), std::string::npos) << slu.substr(0, 900);
  }
}

}  // namespace
}  // namespace qf17
