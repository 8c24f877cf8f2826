#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "librerie/libreria_profili.h"
#include "piattaforma/file_testo.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17 {
namespace {

namespace fs = std::filesystem;

const fs::path kFamiglie = fs::path(QF17_DATI_TEST) / "librerie" / "dati" / "profili_famiglie";

// Every family of the shared file in one filter, so that every layout is reached.
constexpr std::string_view kFiltroTutte = " UPN LU LD LLU T.QUAD TUBO INP IPE HEA UB UC ";

// A line "IPE <size>" with the I and H layout: t1 area, t2 I1, t5 I2, t10 I3, t16.. h b a e r1.
std::string RigaIPE(const std::string& misura, const std::string& area = "7.64") {
  return "IPE " + misura + " " + area + " 80.1 - - 8.49 - - - - 0.7 - - b - - 80 46 3.8 5.2 5";
}

class LetturaProfili : public ::testing::Test {
 protected:
  fs::path Scrivi(const std::vector<std::string>& righe) {
    std::string contenuto;
    for (const auto& r : righe) AggiungiRiga(contenuto, r);
    fs::path file = cartella_ / "Prof_pro";
    EXPECT_TRUE(ScriviFileSicuro(file, contenuto));
    return file;
  }

  prova::CartellaProva spazio_;
  const fs::path cartella_ = spazio_.percorso();
  LibreriaProfili lib_;
};

struct Atteso {
  const char* nome;
  double Area, I1, I2, I3;
  const char* Classe;
  double h, b, a, e, r1, r2, dBarX, dBarY;
};

// The fixture has one line per family, field tK of line n holding n*100 + K (the Classe field a
// word whose first letter marks the family), so a field read from a wrong column shows.
// Expected values: areas cm2 x 100, moments cm4 x 10^4, dimensions as they are.
TEST_F(LetturaProfili, OgniTracciatoLeggeLeSueColonne) {
  Profilo sentinella;
  sentinella.I3 = 7;
  sentinella.Tipo = 9;
  sentinella.eAnima = 3;
  lib_.Profili.Riempi(sentinella);
  ASSERT_EQ(LeggiProfilario(kFamiglie, 1, lib_, 1, 10, kFiltroTutte), 11);

  const Atteso attesi[] = {
      {"UPN100", 10100, 102e4, 104e4, 106e4, "c", 111, 112, 113, 114, 116, 117, 55.5, 115},
      {"LU60x6", 20100, 202e4, 204e4, 206e4, "u", 211, 211, 212, 212, 216, 217, 213, 214},
      {"LD80x60x7", 30100, 302e4, 304e4, 306e4, "d", 311, 312, 313, 313, 316, 317, 314, 315},
      // no I3 column: the row keeps the moment it held, and the scaling multiplies it again
      {"LLU50x5", 40100, 402e4, 403e4, 7e4, "l", 408, 408, 409, 410, 0, 0, 0, 0},
      {"T.QUAD100x4", 50100, 502e4, 504e4, 506e4, "q", 511, 511, 512, 0, 0, 0, 0, 0},
      {"INP200", 70100, 702e4, 705e4, 710e4, "n", 716, 717, 718, 719, 720, 721, 0, 0},
      {"IPE200", 80100, 802e4, 805e4, 810e4, "i", 816, 817, 818, 819, 820, 0, 0, 0},
      {"HEA200", 90100, 902e4, 905e4, 910e4, "h", 916, 917, 918, 919, 920, 0, 0, 0},
      {"UB203x133x25", 100100, 1002e4, 1005e4, 1010e4, "b", 1016, 1017, 1018, 1019, 1020, 0, 0, 0},
      {"UC152x152x23", 110100, 1102e4, 1105e4, 1110e4, "k", 1116, 1117, 1118, 1119, 1120, 0, 0, 0},
      // a round tube has no height; the Classe keeps one character, not one byte
      {"TUBO114.3x4", 60100, 602e4, 604e4, 606e4, "à", 0, 611, 612, 0, 0, 0, 0, 0},
  };
  for (int i = 0; i < 11; ++i) {
    const Atteso& x = attesi[i];
    const Profilo& p = lib_.Profili[i + 1];
    SCOPED_TRACE(x.nome);
    EXPECT_EQ(p.Nome, x.nome);
    EXPECT_DOUBLE_EQ(p.Area, x.Area);
    EXPECT_DOUBLE_EQ(p.I1, x.I1);
    EXPECT_DOUBLE_EQ(p.I2, x.I2);
    EXPECT_DOUBLE_EQ(p.I3, x.I3);
    EXPECT_EQ(p.Classe, x.Classe);
    EXPECT_DOUBLE_EQ(p.h, x.h);
    EXPECT_DOUBLE_EQ(p.b, x.b);
    EXPECT_DOUBLE_EQ(p.a, x.a);
    EXPECT_DOUBLE_EQ(p.e, x.e);
    EXPECT_DOUBLE_EQ(p.r1, x.r1);
    EXPECT_DOUBLE_EQ(p.r2, x.r2);
    EXPECT_DOUBLE_EQ(p.dBarX, x.dBarX);
    EXPECT_DOUBLE_EQ(p.dBarY, x.dBarY);
    // the reader leaves the type and the flange thicknesses to CompletaProfili
    EXPECT_EQ(p.Tipo, 9);
    EXPECT_DOUBLE_EQ(p.eAnima, 3);
  }
}

TEST_F(LetturaProfili, TutteLeFamiglieDoppioTHannoLoStessoTracciato) {
  const std::vector<std::string> famiglie = {"IPE", "IPEA", "IPER", "IPEO", "IPEV", "HEA",  "HEAA",
                                             "HEB", "HEM",  "HEC",  "DIL",  "HER",  "HLAA", "HLA",
                                             "HLB", "HLM",  "HLR",  "HXAA", "HXA",  "HXB",  "HXM",
                                             "HXR", "HD",   "HP",   "M",    "W",    "UB",   "UC"};
  std::vector<std::string> righe;
  std::string filtro = " ";
  for (const auto& f : famiglie) {
    righe.push_back(f + " 1 1 2 3 4 5 6 7 8 9 10 11 12 X 14 15 16 17 18 19 20 21");
    filtro += f + " ";
  }
  righe.push_back("*END*");
  ASSERT_EQ(LeggiProfilario(Scrivi(righe), 1, lib_, 1, 10, filtro), 28);
  for (int i = 1; i <= 28; ++i) {
    const Profilo& p = lib_.Profili[i];
    SCOPED_TRACE(p.Nome);
    EXPECT_EQ(p.Nome, famiglie[i - 1] + "1");
    EXPECT_DOUBLE_EQ(p.I2, 5e4);
    EXPECT_DOUBLE_EQ(p.I3, 10e4);
    EXPECT_EQ(p.Classe, "X");
    EXPECT_DOUBLE_EQ(p.h, 16);
    EXPECT_DOUBLE_EQ(p.r1, 20);
    EXPECT_DOUBLE_EQ(p.r2, 0);  // only INP reads t21
  }
}

TEST_F(LetturaProfili, LeDuePassateFiltranoLeFamiglie) {
  ASSERT_TRUE(LeggiProfili(lib_, kFamiglie));
  EXPECT_EQ(lib_.NumProfili1, 2);
  EXPECT_EQ(lib_.NumProfili2, 3);
  EXPECT_EQ(lib_.NumProfiliTot, 5);
  const char* nomi[] = {"", "IPE200", "HEA200", "UPN100", "LU60x6", "LD80x60x7"};
  for (int i = 1; i <= 5; ++i) EXPECT_EQ(lib_.Profili[i].Nome, nomi[i]);
  // The row after the last one stored was cleared and named by each skipped line in turn: the
  // last is the tube before "*END*"; the IPE line after "*END*" was never read.
  EXPECT_EQ(lib_.Profili[6].Nome, "TUBO114.3x4");
  EXPECT_DOUBLE_EQ(lib_.Profili[6].b, 0);
  EXPECT_EQ(lib_.Profili[6].Classe, "");
  EXPECT_DOUBLE_EQ(lib_.Profili[3].Area, 10100);
}

TEST_F(LetturaProfili, UnaRigaScartataLasciaLaSuaRigaAllaSuccessiva) {
  // XYZ passes the filter but has no layout: its row is cleared, named and then reused.
  auto file = Scrivi({"XYZ 1 99 99", "UPN 80 1 2 - 3", RigaIPE("80"), "*END*"});
  ASSERT_EQ(LeggiProfilario(file, 1, lib_, 1, 10, " XYZ IPE "), 1);
  EXPECT_EQ(lib_.Profili[1].Nome, "IPE80");
  EXPECT_DOUBLE_EQ(lib_.Profili[1].Area, 764);
  EXPECT_EQ(lib_.Profili[2].Nome, "");
}

TEST_F(LetturaProfili, FattoriDiScala) {
  auto file = Scrivi({"UPN 80 101 102 - 104 - 106 - c - - 80 45 6 8 14.5 8 4", "*END*"});
  ASSERT_EQ(LeggiProfilario(file, 1, lib_, 2, 0.5, " UPN "), 1);
  const Profilo& p = lib_.Profili[1];
  EXPECT_DOUBLE_EQ(p.Area, 101 * 0.25);
  EXPECT_DOUBLE_EQ(p.I1, 102 * 0.0625);
  EXPECT_DOUBLE_EQ(p.I3, 106 * 0.0625);
  EXPECT_DOUBLE_EQ(p.h, 160);
  EXPECT_DOUBLE_EQ(p.dBarX, 80);  // h / 2 of the file, scaled with the rest
  EXPECT_DOUBLE_EQ(p.dBarY, 29);
  EXPECT_DOUBLE_EQ(p.r2, 8);
}

TEST_F(LetturaProfili, SegniDiCommentoEFine) {
  auto file = Scrivi({"*", "%", "   *   ", "", RigaIPE("80"), "\t%", " *END* ", RigaIPE("100")});
  EXPECT_EQ(LeggiProfilario(file, 1, lib_, 1, 10, kFiltroPrimaPassata), 1);
  EXPECT_EQ(lib_.Profili[1].Nome, "IPE80");
  EXPECT_EQ(lib_.Profili[2].Nome, "");  // the IPE after the end never reached row 2
}

TEST_F(LetturaProfili, FallimentiDannoZero) {
  EXPECT_EQ(LeggiProfilario(cartella_ / "manca", 1, lib_, 1, 10, kFiltroPrimaPassata), 0);
  EXPECT_FALSE(LeggiProfili(lib_, cartella_ / "manca"));
  EXPECT_EQ(lib_.NumProfiliTot, 0);

  auto senzaFine = Scrivi({RigaIPE("80"), "LU 60x6 6.91 22.8", "*END"});
  EXPECT_EQ(LeggiProfilario(senzaFine, 1, lib_, 1, 10, kFiltroPrimaPassata), 0);

  // a number beyond the range of a double
  auto fuoriScala = Scrivi({RigaIPE("80", "1e999"), "*END*"});
  EXPECT_EQ(LeggiProfilario(fuoriScala, 1, lib_, 1, 10, kFiltroPrimaPassata), 0);

  auto soloFine = Scrivi({"*END*"});
  EXPECT_EQ(LeggiProfilario(soloFine, 1, lib_, 1, 10, kFiltroPrimaPassata), 0);
}

TEST_F(LetturaProfili, IlNomeDelFileVieneRifilato) {
  auto file = Scrivi({RigaIPE("80"), "*END*"});
  EXPECT_EQ(LeggiProfilario("  " + file.string() + " ", 1, lib_, 1, 10, kFiltroPrimaPassata), 1);
}

TEST_F(LetturaProfili, SoloFamiglieDellaPrimaPassata) {
  auto file = Scrivi({RigaIPE("80"), RigaIPE("100"), "*END*"});
  EXPECT_FALSE(LeggiProfili(lib_, file));
  EXPECT_EQ(lib_.NumProfili1, 2);
  EXPECT_EQ(lib_.NumProfili2, 0);
}

TEST_F(LetturaProfili, LaTabellaHaDuemilaRighe) {
  std::vector<std::string> righe;
  for (int i = 1; i <= 2000; ++i) righe.push_back(RigaIPE(std::to_string(i)));
  righe.push_back("*END*");
  EXPECT_EQ(LeggiProfilario(Scrivi(righe), 1, lib_, 1, 10, kFiltroPrimaPassata), 2000);
  EXPECT_EQ(lib_.Profili[2000].Nome, "IPE2000");

  // One more row does not fit: the whole library fails, it is not cut short.
  righe.insert(righe.end() - 1, RigaIPE("2001"));
  EXPECT_EQ(LeggiProfilario(Scrivi(righe), 1, lib_, 1, 10, kFiltroPrimaPassata), 0);

  // Nor does a full table followed by a line the filter would drop: that line clears the row
  // at the counter before its family is tested, and there is no row 2001.
  righe.erase(righe.end() - 2);
  righe.insert(righe.end() - 1, "UPN 80 11 106");
  EXPECT_EQ(LeggiProfilario(Scrivi(righe), 1, lib_, 1, 10, kFiltroPrimaPassata), 0);
}

TEST_F(LetturaProfili, NomiDoppiRestanoEntrambi) {
  const std::string coda = " - 22.8 - 9.43 - b - - 60 6 16.9 16.9 - 8 4";
  auto file = Scrivi({RigaIPE("80", "1"), "LU 60x6 6.91 22.8" + coda, RigaIPE("80", "2"),
                      "LU 60x6 7 23" + coda, "*END*"});
  ASSERT_TRUE(LeggiProfili(lib_, file));
  EXPECT_EQ(lib_.NumProfiliTot, 4);
  EXPECT_EQ(lib_.Profili[2].Nome, "IPE80");
  EXPECT_DOUBLE_EQ(lib_.Profili[2].Area, 200);
  PiattaformaRegistrata p;
  EXPECT_EQ(ProfiloDaNome(lib_, "IPE80", p), 1);
  EXPECT_EQ(ProfiloDaNome(lib_, "LU60x6", p), 3);
  EXPECT_DOUBLE_EQ(lib_.Profili[4].Area, 700);
  EXPECT_TRUE(p.messaggi.empty());
}

// A line of an accepted family without all its columns would give a section of zero size: the
// whole library is refused and the reason names the line; a skipped family may be short.
TEST_F(LetturaProfili, ColonneMancantiRifiutanoIlProfilario) {
  auto file =
      Scrivi({"TUBO 60x3", RigaIPE("80"), "IPE 100 10.3 171 - - 15.9 - - - - 1.2", "*END*"});
  std::string motivo;
  EXPECT_EQ(LeggiProfilario(file, 1, lib_, 1, 10, kFiltroPrimaPassata, &motivo), 0);
  EXPECT_EQ(motivo, "Riga 3 (IPE100): 10 colonne di dati invece di 20.");
  EXPECT_FALSE(LeggiProfili(lib_, file, &motivo));
  EXPECT_EQ(motivo, "Riga 3 (IPE100): 10 colonne di dati invece di 20.");

  // Exactly the columns of the layout are enough.
  file = Scrivi({RigaIPE("80"), "UPN 80 11 106 - 19.4 - 2.2 - c - - 80 45 6 8 14.5 8 4", "*END*"});
  EXPECT_TRUE(LeggiProfili(lib_, file, &motivo));
  EXPECT_EQ(motivo, "");
}

TEST(AzzeraProfilo, PulisceSoloMisureRaggiBaricentroEClasse) {
  Profilo p{"UPN80", 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, "c"};
  AzzeraProfilo(p);
  Profilo atteso{"UPN80", 0, 0, 0, 0, 5, 6, 7, 0, 0, 0, 0, 12, 13, 14, 15, ""};
  EXPECT_EQ(p, atteso);
}

}  // namespace
}  // namespace qf17
