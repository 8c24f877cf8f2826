// The method switch and back, more than once: each method's remembered steel is overwritten on
// every leave, not only the first time, and what comes back is the whole record, strengths
// included, not a row looked up again by its name.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "librerie/materiali.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {
namespace {

constexpr std::int16_t TA = 0;
constexpr std::int16_t SLU = 1;

Acciaio Riga(const char* nome, double SAmm, double SAmm40, double fy, double ft, double fy40,
             double ft40) {
  return {nome, "UNI EN 10025-2", SAmm, SAmm40, fy, fy40, ft, ft40, 1.05, 1.25};
}

// The installation's open-section steels; S 460 has no allowable stress.
struct Banco {
  Banco() {
    Materiali& m = s.materiali;
    m.NumAcciai = 4, m.Acciai[1] = Riga("S 235 (FE 360)", 1600, 1400, 2350, 3600, 2150, 3600);
    m.Acciai[2] = Riga("S 275 (FE 430)", 1900, 1700, 2750, 4300, 2550, 4100);
    m.Acciai[3] = Riga("S 355 (FE 510)", 2400, 2100, 3550, 5100, 3350, 4700);
    m.Acciai[4] = Riga("S 460 (NTC08)", 0, 0, 4600, 5400, 4300, 5400);
    s.nodo.TipoVer = TA;
    s.nodo.acciaio = m.Acciai[2];
    RiempiListaAcciai(s, s.nodo.acciaio.Nome);
  }
  void Scegli(const std::string& nome) {
    const int posto = PostoInLista(s.materiali, nome);
    ASSERT_GE(posto, 0) << nome;
    SceltaAcciaio(s, posto);
    ASSERT_EQ(s.nodo.acciaio.Nome, nome);
  }
  std::string Scelto() const {
    const Materiali& m = s.materiali;
    if (m.ListaAcciaiScelta < 0) return "(none)";
    return m.ListaAcciai.at(static_cast<std::size_t>(m.ListaAcciaiScelta));
  }
  PiattaformaRegistrata p;
  Sessione s{p};
};

// TA -> SLU -> TA, then a new steel for allowable stresses: the next round trip brings that one
// back, while limit states keep the steel they were left with.
TEST(MaterialiCambioMetodo, AcciaioCambiatoAlRitornoEQuelloRicordato) {
  Banco b;
  Sessione& s = b.s;
  const Materiali& m = s.materiali;

  CambiaMetodo(s, SLU);
  CambiaMetodo(s, TA);
  EXPECT_EQ(s.nodo.acciaio, m.Acciai[2]);
  EXPECT_EQ(m.AcciaioSLU, m.Acciai[2]);

  b.Scegli("S 235 (FE 360)");
  CambiaMetodo(s, SLU);
  EXPECT_EQ(s.nodo.acciaio, m.Acciai[2]) << "limit states keep S 275";
  EXPECT_EQ(m.AcciaioTA, m.Acciai[1]);
  EXPECT_EQ(b.Scelto(), "S 275 (FE 430)");

  b.Scegli("S 355 (FE 510)");
  CambiaMetodo(s, TA);
  EXPECT_EQ(s.nodo.acciaio, m.Acciai[1]);
  EXPECT_EQ(b.Scelto(), "S 235 (FE 360)");
  EXPECT_EQ(m.AcciaioSLU, m.Acciai[3]);

  CambiaMetodo(s, SLU);
  EXPECT_EQ(s.nodo.acciaio, m.Acciai[3]);
  EXPECT_EQ(b.Scelto(), "S 355 (FE 510)");
  CambiaMetodo(s, SLU);  // the method already set: nothing is remembered again
  EXPECT_EQ(m.AcciaioTA, m.Acciai[1]);
  EXPECT_TRUE(b.p.messaggi.empty()) << b.p.messaggi.front().testo;
}

// A steel of the job's materials base carries its own strengths under a table name. Taken for
// allowable stresses, it survives a trip to limit states and back with every figure, although
// the list only selects its name.
TEST(MaterialiCambioMetodo, AcciaioDelMaterialeBaseTornaIntero) {
  Banco b;
  Sessione& s = b.s;
  Materiali& m = s.materiali;
  Acciaio base = m.Acciai[2];
  base.fy = 2800, base.ft = 4400, base.fy40 = 2600, base.SAmm = 1950, base.gM = 1.1;
  m.MatBaseAttivo = true;
  m.AcciaioBase = base;
  CliccaCheckMatBase(s, true);
  ASSERT_EQ(s.nodo.acciaio, base);

  CambiaMetodo(s, SLU);
  EXPECT_EQ(s.nodo.acciaio, base) << "the first time, the current steel goes along";
  b.Scegli("S 460 (NTC08)");
  CambiaMetodo(s, TA);
  EXPECT_EQ(s.nodo.acciaio, base);
  EXPECT_EQ(s.nodo.acciaio.fy, 2800);
  EXPECT_EQ(s.nodo.acciaio.SAmm, 1950);
  EXPECT_EQ(b.Scelto(), "S 275 (FE 430)");

  CambiaMetodo(s, SLU);
  EXPECT_EQ(s.nodo.acciaio, m.Acciai[4]);
  EXPECT_EQ(m.AcciaioTA, base);
  CambiaMetodo(s, TA);
  EXPECT_EQ(s.nodo.acciaio, base);
  EXPECT_TRUE(b.p.messaggi.empty()) << b.p.messaggi.front().testo;
}

}  // namespace
}  // namespace qf17
