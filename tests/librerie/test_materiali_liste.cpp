#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "librerie/materiali.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {
namespace {

constexpr std::int16_t TA = 0;
constexpr std::int16_t SLU = 1;

Acciaio A(const char* nome, double SAmm, double SAmm40, double fy, double fy40) {
  return {nome, std::string("norma ") + nome, SAmm, SAmm40, fy, fy40};
}

// Row 1 only for limit states, row 2 only for allowable stresses, so that the lists of the two
// methods skip different rows.
void Riempi(Materiali& m) {
  const Acciaio acciai[] = {
      A("S 460 (NTC08)", 0, 0, 4600, 4300),     A("S 235 (FE 360)", 1600, 1400, 2350, 2150),
      A("Fe 430 vecchio", 1900, 1700, 2750, 0), A("S 275 (FE 430)", 1900, 1700, 2750, 2550),
      A("S 355 (FE 510)", 2400, 0, 3550, 3350), A("S 355 (FE 510) bis", 2400, 2100, 3550, 3350)};
  m.NumAcciai = 6;
  for (int i = 1; i <= 6; ++i) m.Acciai[i] = acciai[i - 1];
  const Vite viti[] = {{"4.6", 1600, 1130, 2400, 4000, 2400, 1.25},
                       {"5.6", 2000, 1410, 3000, 5000, 0, 1.25},
                       {"6.8", 2800, 1980, 4800, 6000, 4200, 0},
                       {"8.8", 3730, 2640, 6490, 8000, 5600, 1.25}};
  m.NumViti = 4;
  for (int i = 1; i <= 4; ++i) m.Viti[i] = viti[i - 1];
}

struct Banco {
  Banco() { Riempi(s.materiali); }
  PiattaformaRegistrata p;
  Sessione s{p};
};

TEST(MaterialiListe, AmmessiPerMetodo) {
  Materiali m;
  Riempi(m);
  EXPECT_EQ(RigheAcciaiAmmesse(m, TA), (std::vector<int>{2, 3, 4, 6}));
  EXPECT_EQ(RigheAcciaiAmmesse(m, SLU), (std::vector<int>{1, 2, 4, 5, 6}));
  struct Caso {
    std::int16_t metodo;
    int riga;
    bool ammessa;
  };
  // Bolts: every class for allowable stresses; fdVit and gMViti both needed for limit states.
  const Caso viti[] = {{TA, 1, true},  {TA, 2, true},   {TA, 3, true},   {TA, 4, true},
                       {SLU, 1, true}, {SLU, 2, false}, {SLU, 3, false}, {SLU, 4, true},
                       {TA, 0, false}, {TA, 5, false},  {SLU, 5, false}};
  for (const Caso& c : viti) {
    EXPECT_EQ(MaterialeAmmesso(m, c.metodo, ListaMateriale::Bulloni, c.riga), c.ammessa)
        << c.metodo << " " << c.riga;
  }
  EXPECT_FALSE(MaterialeAmmesso(m, SLU, ListaMateriale::Profili, 7));
  EXPECT_EQ(ListaViti(m), (std::vector<std::string>{"4.6", "5.6", "6.8", "8.8"}));
}

TEST(MaterialiListe, PosizioneInListaPerSottostringa) {
  Materiali m;
  Riempi(m);
  struct Caso {
    std::int16_t metodo;
    const char* voluto;
    int posto;
  };
  const Caso casi[] = {
      {TA, "S 275", 2},                 // contained in "S 275 (FE 430)"
      {TA, "S 275 (FE 430) extra", 2},  // contains "S 275 (FE 430)"
      {TA, "S 275 (FE 430)", 2},        // the same name contains itself
      {TA, "S 355 (FE 510)", 3},        // row 5 is not allowed: the next one that contains it
      {SLU, "S 355 (FE 510)", 3},       // row 5 itself, third after two allowed rows
      {TA, "S 460 (NTC08)", -1},        // only the forbidden row fits
      {SLU, "S 460", 0},                //
      {TA, "s 275", -1},                // case counts
      {TA, "", 0},                      // every name contains the empty text
      {SLU, "FE", 1},                   // first allowed row holding "FE"
  };
  for (const Caso& c : casi) {
    EXPECT_EQ(PosizioneInLista(m, c.metodo, c.voluto), c.posto) << c.metodo << " " << c.voluto;
  }
}

TEST(MaterialiListe, RiempiListaSenzaAvviso) {
  Banco b;
  b.s.nodo.TipoVer = SLU;
  RiempiListaAcciai(b.s, "S 275 (FE 430)");
  EXPECT_EQ(b.s.materiali.ListaAcciai,
            (std::vector<std::string>{"S 460 (NTC08)", "S 235 (FE 360)", "S 275 (FE 430)",
                                      "S 355 (FE 510)", "S 355 (FE 510) bis"}));
  EXPECT_EQ(b.s.materiali.ListaAcciaiScelta, 2);
  RiempiListaAcciai(b.s, "");
  EXPECT_EQ(b.s.materiali.ListaAcciaiScelta, -1);
  EXPECT_TRUE(b.p.messaggi.empty());
}

// A wanted steel the method forbids: the warning of the method, then the first allowed row that
// fits by name, or the first allowed row, becomes the steel.
TEST(MaterialiListe, RiempiListaAvvisoPerMetodo) {
  const std::string seguito =
      "\nDa questo momento in poi il materiale impostato sarà ricordato anche se si cambia il "
      "metodo di verifica.";
  struct Caso {
    std::int16_t metodo;
    const char* voluto;
    const char* testo;
    int posto;
    const char* acciaio;
  };
  const Caso casi[] = {
      {TA, "S 460 (NTC08)",
       "Materiale non possibile per verifiche alle tensioni ammissibili. Verrà impostato un altro "
       "tipo di acciaio.",
       0, "S 235 (FE 360)"},
      {TA, "S 355 (FE 510)",
       "Materiale non possibile per verifiche alle tensioni ammissibili. Verrà impostato un altro "
       "tipo di acciaio.",
       3, "S 355 (FE 510) bis"},
      {SLU, "Fe 430 vecchio",
       "Materiale non possibile per verifiche agli stati limite. Verrà impostato un altro tipo di "
       "acciaio.",
       0, "S 460 (NTC08)"},
  };
  for (const Caso& c : casi) {
    SCOPED_TRACE(c.voluto);
    Banco b;
    b.s.nodo.TipoVer = c.metodo;
    RiempiListaAcciai(b.s, c.voluto);
    ASSERT_EQ(b.p.messaggi.size(), 1u);
    EXPECT_EQ(b.p.messaggi[0].testo, c.testo + seguito);
    EXPECT_EQ(b.p.messaggi[0].titolo, "ATTENZIONE!");
    EXPECT_EQ(b.s.materiali.ListaAcciaiScelta, c.posto);
    EXPECT_EQ(b.s.nodo.acciaio.Nome, c.acciaio);
  }
}

// The click takes table row list place + 1 even where the list skips forbidden rows.
TEST(MaterialiListe, SceltaAcciaioRigaPiuUno) {
  Banco b;
  b.s.nodo.TipoVer = TA;
  RiempiListaAcciai(b.s, "");
  ASSERT_EQ(b.s.materiali.ListaAcciai[1], "Fe 430 vecchio");
  SceltaAcciaio(b.s, 1);  // the list shows row 3 there
  EXPECT_EQ(b.s.nodo.acciaio.Nome, "S 235 (FE 360)");
  EXPECT_EQ(b.s.nodo.acciaio.Norma, "norma S 235 (FE 360)");
  EXPECT_EQ(b.s.materiali.ListaAcciaiScelta, 1);

  SceltaVite(b.s, 3);
  EXPECT_EQ(b.s.nodo.vite.Nome, "8.8");
}

// A limit-state steel carried to allowable stresses with an empty memory: the warning, and the
// replacement is what the next move remembers.
TEST(MaterialiListe, CambioMetodoConAcciaioNonAmmesso) {
  Banco b;
  Sessione& s = b.s;
  s.nodo.TipoVer = SLU;
  s.nodo.acciaio = s.materiali.Acciai[1];
  CambiaMetodo(s, TA);
  ASSERT_EQ(b.p.messaggi.size(), 1u);
  EXPECT_EQ(b.p.messaggi[0].titolo, "ATTENZIONE!");
  EXPECT_EQ(s.materiali.AcciaioTA.Nome, "S 460 (NTC08)");
  EXPECT_EQ(s.nodo.acciaio.Nome, "S 235 (FE 360)");
  CambiaMetodo(s, SLU);
  EXPECT_EQ(s.materiali.AcciaioTA.Nome, "S 235 (FE 360)");
  EXPECT_EQ(s.nodo.acciaio.Nome, "S 460 (NTC08)");
}

TEST(MaterialiListe, RicercaPerNome) {
  Materiali m;
  Riempi(m);
  PiattaformaRegistrata p;
  EXPECT_EQ(AcciaioDaNome(m, "S 275 (FE 430)", p), 4);
  EXPECT_EQ(ViteDaNome(m, "8.8", p), 4);
  EXPECT_TRUE(p.messaggi.empty());
  EXPECT_EQ(AcciaioDaNome(m, "S 275", p), 0);  // exact names only
  EXPECT_EQ(ViteDaNome(m, "10.9", p), 0);
  ASSERT_EQ(p.messaggi.size(), 2u);
  EXPECT_EQ(p.messaggi[0].testo, "Tipo acciaio non trovato.");
  EXPECT_EQ(p.messaggi[0].titolo, "RICERCA TIPO ACCIAIO DA NOME");
  EXPECT_EQ(p.messaggi[0].icona, Icona::Critica);
  EXPECT_EQ(p.messaggi[1].testo, "Tipo vite non trovato.");
  EXPECT_EQ(p.messaggi[1].titolo, "RICERCA TIPO VITE DA NOME");
  EXPECT_EQ(p.messaggi[1].icona, Icona::Critica);
}

}  // namespace
}  // namespace qf17
