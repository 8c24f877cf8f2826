#include <gtest/gtest.h>

#include <string>

#include "librerie/formatta.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {
namespace {

struct Caso {
  double valore;
  const char* comandi;
  double scala;
  const char* atteso;
};

void Verifica(const Caso* casi, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const Caso& c = casi[i];
    PiattaformaRegistrata p;
    double scala = c.scala;
    EXPECT_EQ(Formatta(c.valore, c.comandi, scala, p), c.atteso)
        << c.valore << " " << c.comandi << " scala " << c.scala;
    EXPECT_TRUE(p.messaggi.empty()) << c.comandi;
  }
}

TEST(Formatta, DecimaliPuntoERiempimento) {
  const Caso casi[] = {
      // The filling blanks and the point go: "45.  " trimmed and without its point.
      {45, "(DV_02)(NP_1)", 1, "45"},
      {12.5, "(DV_02)(NP_1)", 1, "12.5"},
      {45, "(np_1)(Dv_02)", 1, "45"},  // any case, any order
      {1.5, "(cd_02)(zr_0)", 1, "1.50"},
      {1.5, "(cd_02)", 1, "1.5"},
      {3, "(cd_00)", 1, "3."},  // the added point stays without (np_1)
      {3, "(np_1)", 1, "3"},
      {3, "", 1, "3"},
      {2.5, "", 2, "5"},
      {1.23456, "(cd_03)", 1, "1.235"},
      {0.1 + 0.2, "(cd_04)(zr_#)", 1, "0.3###"},
      // Half to even at the decimal asked for.
      {2.5, "(cd_00)", 1, "2."},
      {3.5, "(cd_00)", 1, "4."},
      {0.125, "(cd_02)", 1, "0.12"},
      {-0.375, "(cd_02)(zr_0)", 1, "-0.38"},
      {1e20, "(cd_02)", 1, "1E+20"},  // exponent texts get neither point nor filling
  };
  Verifica(casi, std::size(casi));
}

TEST(Formatta, DecimaliRelativiAllaScala) {
  const Caso casi[] = {
      // Scale 5 and above takes one decimal: log10(5) - 0.19897 is just above one half.
      {1.234, "(dv_02)", 5, "6.2"},
      {1.234, "(dv_02)", 4.99, "6.16"},
      {1.23456, "(dv_02)", 0.1, "0.123"},
      {2.5, "(dv_02)(np_1)", 1000, "2500"},     // 2 - 3 decimals: none
      {12345, "(dv_02)", 1e-5, "0.12"},         // scales up to 0.0001 shift nothing
      {1234.5678, "(dv_01)", 0.001, "1.2346"},  // 1 + 3 decimals
  };
  Verifica(casi, std::size(casi));
}

TEST(Formatta, CifreSignificative) {
  const Caso casi[] = {
      {123456, "(cs_02)", 1, "120000."},  // an integral text keeps the added point
      {0.000123456, "(CS_03)", 1, "0.000123"},
      {-987.65, "(cs_03)(np_1)", 1, "-988"},
      {2.5, "(cs_01)", 1, "2."},
      {3.5, "(cs_01)", 1, "4."},
      {1234.5678, "(cs_06)(cd_01)", 1, "1234.6"},
  };
  Verifica(casi, std::size(casi));
  EXPECT_EQ(CifreSignificative(0.00123456, 3), 0.00123);
  EXPECT_EQ(CifreSignificative(1.0 / 3, 20), 1.0 / 3);
}

TEST(Formatta, CampiAllineati) {
  const Caso casi[] = {
      {3.14159, "(cd_02)(fd_08)", 1, "    3.14"},
      {3.5, "(fs_06)", 1, "3.5   "},
      {3, "(fd_05)(np_1)", 1, "    3"},
      // With (cd_ the blank that took the point's place stays on the right.
      {3, "(cd_00)(fd_05)(np_1)", 1, "   3 "},
      {3, "(fs_05)(np_1)", 1, "3    "},
      {12345, "(fd_05)", 1, "12345"},
      // The integer part exactly fills the field: no decimals.
      {1234.5678, "(fd_04)", 1, "1235"},
      // Longer with room for the integer part: decimals cut to the field.
      {12.3456, "(fd_05)", 1, "12.35"},
      {12.3, "(cd_04)(zr_0)(fd_05)", 1, "12.30"},
      {9.99, "(cd_02)(fd_03)", 1, "10."},
      // The runtime's digit places show no zero before the point.
      {0.5, "(cd_05)(fd_04)", 1, ".5  "},
      // Integer part wider than the field: exponent form of the field's width.
      {123456789, "(fd_08)", 1, "12346.E4"},
      {-123456789, "(fd_08)", 1, "-1235.E5"},
      {1e20, "(fd_08)", 1, "1000.E17"},
      {1e20, "(fd_05)", 1, "1.E20"},
      {1.5e-7, "(fd_08)", 1, " 150.E-9"},
      // No room at all.
      {12345, "(fd_03)", 1, "***"},
      {12345, "(fd_03)(sc_|)", 1, "***|"},
      {1e20, "(fd_03)", 1, "***"},
  };
  Verifica(casi, std::size(casi));
  PiattaformaRegistrata p;
  double scala = 1;
  EXPECT_EQ(Formatta(7, "(fd_100)(np_1)", scala, p), std::string(99, ' ') + "7");
}

TEST(Formatta, Suffisso) {
  const Caso casi[] = {
      {2.5, "(sc_ kN)", 1, "2.5 kN"},
      {2.5, "(SC_kN)", 1, "2.5kN"},  // the text keeps its case
      {2.5, "(sc_)", 1, "2.5"},
      {12, "(cd_01)(np_1)(sc_ daN)", 1, "12 daN"},
      {12, "(cd_02)(zr_0)(sc_ m", 1, "12.00 m"},  // an unclosed text runs to the end
  };
  Verifica(casi, std::size(casi));
  std::string t = "12";
  AggiungiSuffisso(t, "(cd_02)");
  EXPECT_EQ(t, "12");
}

TEST(Formatta, ComandiErrati) {
  struct Errato {
    double valore;
    const char* comandi;
    double scala;
    const char* messaggio;
  };
  const Errato casi[] = {
      {5, "(cu_x_y)(cd_02)", 1, "Stringa di conversione unità di misura non riconosciuta."},
      {5, "(cu_)", 1, "Stringa di conversione unità di misura non riconosciuta."},
      {5, "(cs_00)", 1, "comando (cs_nn) errato."},
      {5, "(cs_-3)", 1, "comando (cs_nn) errato."},
      {5, "(dv_-1)", 1, "comando (dv_nn) errato (2)."},
      {5, "(dv_99)", 0.01, "comando (dv_nn) errato (1)."},  // 99 + 2
      {5, "(cd_-1)", 1, "comando (cd_nn) errato."},
      {5, "(fd_01)", 1, "comando (fd_nn) o (fs_nn) errato."},
      {5, "(fs_00)", 1, "comando (fd_nn) o (fs_nn) errato."},
  };
  for (const Errato& c : casi) {
    PiattaformaRegistrata p;
    double scala = c.scala;
    EXPECT_EQ(Formatta(c.valore, c.comandi, scala, p), "") << c.comandi;
    ASSERT_EQ(p.messaggi.size(), 1u) << c.comandi;
    EXPECT_EQ(p.messaggi[0].testo, c.messaggio);
    EXPECT_EQ(p.messaggi[0].titolo, "QF17");
    EXPECT_EQ(p.messaggi[0].icona, Icona::Critica);
    EXPECT_EQ(p.messaggi[0].pulsanti, Pulsanti::Ok);
  }
  // With the same scale (dv_97) asks for 99 decimals, the most allowed.
  PiattaformaRegistrata p;
  double scala = 0.01;
  EXPECT_EQ(Formatta(5, "(dv_97)", scala, p), "0.05");
  EXPECT_TRUE(p.messaggi.empty());
}

TEST(Formatta, ConversioniNelFormato) {
  const Caso casi[] = {
      // 2.54 in = 6.4515999574 cm; in_cm adds one decimal.
      {2.54, "(cu_in_cm)(dv_02)", 1, "6.452"},
      {1000, "(CU_DAN/CM2_N/MM2)(DV_01)(NP_1)", 1, "100"},
      // 3 kgf = 29.41995 N; kgf_n takes one decimal away.
      {3, "(cu_kgf_n)(dv_02)", 1, "29.4"},
      // The row's shift (-2) replaces the scale's (+2): 3 - 2 decimals.
      {0.123456, "(cu_m_cm)(dv_03)", 0.01, "0.1"},
      // A bare "(cu_" at the end asks for nothing.
      {2.5, "(cd_01)(cu_", 1, "2.5"},
      {2.5, "(cu_||)(dv_01)", 1, "2.5"},
  };
  Verifica(casi, std::size(casi));
}

TEST(Formatta, PuntoDecimaleEUltimaPosizione) {
  std::string t = "45";
  EXPECT_EQ(PuntoDecimale(t), 3);
  EXPECT_EQ(t, "45.");
  t = "12.5";
  EXPECT_EQ(PuntoDecimale(t), 3);
  EXPECT_EQ(t, "12.5");
  t = "1E+20";
  EXPECT_EQ(PuntoDecimale(t), -1);
  EXPECT_EQ(t, "1E+20");

  EXPECT_EQ(UltimaPosizione("a.b.c", "."), 4);
  EXPECT_EQ(UltimaPosizione("abab", "ab"), 3);
  EXPECT_EQ(UltimaPosizione("abc", "x"), 0);
  EXPECT_EQ(UltimaPosizione("abc", ""), 0);
  EXPECT_EQ(UltimaPosizione("èa.b", "."), 3);  // characters, not bytes
}

TEST(Formatta, FormatoColonna) {
  struct Cella {
    ValoreColonna valore;
    int larghezza;
    bool separatore;
    const char* allineamento;
    const char* atteso;
  };
  const Cella celle[] = {
      {std::string("abc"), 5, false, "R", "  abc"},
      {std::string("abc"), 5, false, "L", "abc  "},
      {std::string(" abc "), 5, true, "R", "  abc|"},
      {std::string("  abcdefg "), 3, true, "X", "abc|"},
      {std::string("perché"), 4, false, "R", "perc"},
      {std::string("è"), 3, true, "L", "è  |"},
      {42LL, 5, false, "R", "   42"},
  };
  for (const Cella& c : celle) {
    PiattaformaRegistrata p;
    EXPECT_EQ(FormatoColonna(c.valore, c.larghezza, c.separatore, c.allineamento, p), c.atteso)
        << c.atteso;
    EXPECT_TRUE(p.messaggi.empty());
  }
}

}  // namespace
}  // namespace qf17
