#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "librerie/libreria_profili.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {
namespace {

Profilo Riga(const std::string& nome, double h, double b, double a, double e) {
  Profilo p;
  p.Nome = nome, p.h = h, p.b = b, p.a = a, p.e = e;
  p.r1 = 99, p.r2 = 98, p.dBarY = 20.1, p.Tipo = 7;
  return p;
}

// Rows 1-2 as the first pass leaves them, 3-6 the second, 7 a leftover row past the end.
LibreriaProfili Libreria() {
  LibreriaProfili lib;
  lib.Profili[1] = Riga("IPELU140", 140, 73, 4.7, 6.9);  // "LU" in a first-list name
  lib.Profili[2] = Riga("HEA200", 190, 200, 6.5, 10);
  lib.Profili[3] = Riga("UPN200", 200, 75, 8.5, 11.5);
  lib.Profili[4] = Riga("UPN120", 120, 55, 7, 9), lib.Profili[5] = Riga("LU60x6", 60, 60, 6, 6);
  lib.Profili[6] = Riga("LD80x60x7", 80, 60, 7, 7), lib.Profili[7] = Riga("LU70x7", 70, 70, 7, 7);
  lib.NumProfili1 = 2, lib.NumProfili2 = 4, lib.NumProfiliTot = 6;
  return lib;
}

TEST(CompletaProfili, TipiRaggiESpessoriDerivati) {
  LibreriaProfili lib = Libreria();
  CompletaProfili(lib);

  // I and H rows: only the type, whatever the name contains.
  EXPECT_EQ(lib.Profili[1].Tipo, 2);
  EXPECT_DOUBLE_EQ(lib.Profili[1].r1, 99);
  EXPECT_EQ(lib.Profili[2].Tipo, 2);

  // UPN200 by hand: r1 = e = 11.5, r2 = e/2 = 5.75,
  // eBordo = 11.5 - (37.5 - 5.75) x 0.08 = 11.5 - 2.54 = 8.96,
  // eAnima = (37.5 - 8.5 - 11.5) x 0.08 + 11.5 = 1.4 + 11.5 = 12.9.
  const Profilo& upn = lib.Profili[3];
  EXPECT_EQ(upn.Tipo, 0);
  EXPECT_DOUBLE_EQ(upn.dBarY, 0);
  EXPECT_DOUBLE_EQ(upn.r1, 11.5);
  EXPECT_DOUBLE_EQ(upn.r2, 5.75);
  EXPECT_NEAR(upn.eBordo, 8.96, 1e-12);
  EXPECT_NEAR(upn.eAnima, 12.9, 1e-12);
  // UPN120: eBordo = 9 - (27.5 - 4.5) x 0.08 = 7.16; eAnima = (27.5 - 7 - 9) x 0.08 + 9 = 9.92.
  EXPECT_NEAR(lib.Profili[4].eBordo, 7.16, 1e-12);
  EXPECT_NEAR(lib.Profili[4].eAnima, 9.92, 1e-12);

  // Angles: r1 = a, r2 = a/2, the centroid distances stay.
  for (int i : {5, 6}) {
    const Profilo& l = lib.Profili[i];
    SCOPED_TRACE(l.Nome);
    EXPECT_EQ(l.Tipo, 1);
    EXPECT_DOUBLE_EQ(l.r1, l.a);
    EXPECT_DOUBLE_EQ(l.r2, l.a / 2);
    EXPECT_DOUBLE_EQ(l.dBarY, 20.1);
    EXPECT_DOUBLE_EQ(l.eAnima, 0);
  }

  // Nothing past the last row.
  EXPECT_EQ(lib.Profili[7].Tipo, 7);
  EXPECT_DOUBLE_EQ(lib.Profili[7].r1, 99);

  // Run again after a node load, it gives the same table.
  LibreriaProfili ancora = lib;
  CompletaProfili(ancora);
  for (int i = 1; i <= 7; ++i) EXPECT_EQ(ancora.Profili[i], lib.Profili[i]);
}

TEST(ProfiloDaNome, ConfrontoEsattoSulleRigheLette) {
  LibreriaProfili lib = Libreria();
  PiattaformaRegistrata p;
  EXPECT_EQ(ProfiloDaNome(lib, "HEA200", p), 2);
  EXPECT_EQ(ProfiloDaNome(lib, "LD80x60x7", p), 6);
  EXPECT_TRUE(p.messaggi.empty());

  // A row past the last one read, another case, a blank, a part, nothing: each told once.
  for (const char* assente : {"LU70x7", "lu60x6", " LU60x6", "UPN", ""}) {
    EXPECT_EQ(ProfiloDaNome(lib, assente, p), 0) << assente;
  }
  ASSERT_EQ(p.messaggi.size(), 5u);
  EXPECT_EQ(p.messaggi[4].testo, "Profilo non trovato.");
  EXPECT_EQ(p.messaggi[4].titolo, "RICERCA PROFILO DA NOME");
  EXPECT_EQ(p.messaggi[4].icona, Icona::Critica);
  EXPECT_EQ(p.messaggi[4].pulsanti, Pulsanti::Ok);
}

TEST(ListeProfili, CorrenteTutteLeRigheAsteSoloLeU) {
  LibreriaProfili lib = Libreria();
  lib.Profili[2].Nome = "UC152";  // a first-list name beginning with U is a member's section too
  EXPECT_EQ(ListaCorrente(lib), (std::vector<std::int16_t>{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(ListaAste(lib), (std::vector<std::int16_t>{2, 3, 4, 5, 6}));

  LibreriaProfili vuota;
  EXPECT_TRUE(ListaCorrente(vuota).empty());
  EXPECT_TRUE(ListaAste(vuota).empty());
}

TEST(ProfiloInLista, PosizioneDaZeroConNomiRifilati) {
  LibreriaProfili lib = Libreria();
  lib.Profili[5].Nome = "LU60x6 ";
  const auto aste = ListaAste(lib);  // rows 3, 4, 5, 6
  PiattaformaRegistrata p;
  EXPECT_EQ(ProfiloInLista(lib, "UPN200", aste, p), 0);
  EXPECT_EQ(ProfiloInLista(lib, " LU60x6", aste, p), 2);
  EXPECT_EQ(ProfiloInLista(lib, "LD80x60x7", aste, p), 3);
  EXPECT_EQ(ProfiloInLista(lib, "HEA200", ListaCorrente(lib), p), 1);
  EXPECT_TRUE(p.messaggi.empty());

  // A chord section is not in the members' list: 0, the same as the first place, plus the box.
  EXPECT_EQ(ProfiloInLista(lib, "HEA200", aste, p), 0);
  ASSERT_EQ(p.messaggi.size(), 1u);
  EXPECT_EQ(p.messaggi[0].testo, "Profilo non trovato.");
}

}  // namespace
}  // namespace qf17
