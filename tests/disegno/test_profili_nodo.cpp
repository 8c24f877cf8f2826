// The node view: the weld only on a welded chord, and the view untouched by the details'
// multiplier. Outlines, holes, axes and labels at the installation's options are pinned by the
// sample sheets (test_esecutivo_esempi).

#include <gtest/gtest.h>

#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/esecutivo/profili_disegno.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "test_profili_prova.h"
#include "verifica/test_geometria_prova.h"

namespace qf17 {
namespace {

using prova::Vicini;

// The geometry tests' node: channel chord 100 high, gusset a 100, b 200, c 0, d 100, e-h 100,
// s 10, lying below the chord (P = -1) from x -300 to 100; one L60 at 90 degrees, lato 1.
struct NodoVista {
  NodoVista() {
    n.Fz_c = 0;
    n.Corrente.e = 10, n.Corrente.b = 50, n.Corrente.a = 6;
    g.Asta(1, 90, 1);
    Profilo& p = n.Aste[1];
    p.e = 6, p.a = 6, p.b = 60, p.r1 = 6;
    n.Lato_Sald = 8;
    n.nBull[0] = 1;
    n.xBull(0, 1) = 150, n.yBull(0, 1) = 30, n.FiBull(0, 1) = 20;
    n.nBull[1] = 2;
    n.xBull(1, 1) = 30, n.yBull(1, 1) = 20, n.FiBull(1, 1) = 16;
    n.xBull(1, 2) = 70, n.yBull(1, 2) = 20, n.FiBull(1, 2) = 16;
    s.opzioni[20] = 7;  // weld marks apart from the outlines
    s.disegno.DestinazioneDisegno = "gendis";
    stato.MargineTabella = 40;
  }
  void Disegna() {
    GeometriaNodo(s);
    AzzeraDisegno(s.disegno);
    DisegnaNodo(t, stato);
  }
  prova::NodoGeometria g;
  Sessione& s = g.s;
  Nodo& n = g.n;
  prova::TavolaProfili t{s};
  StatoEsecutivo stato;
};

// Only a chord of kind 2 is welded: side 6, 400 long, leg 8 -> 400 / 8 = 50 steps: 49 ticks
// inside, 2 end ticks and the closing line 8 below the edge (y -58). The bolted channel has none.
TEST(ProfiliNodo, SaldaturaSoloSulCorrenteSaldato) {
  for (const std::int16_t tipo : {2, 0}) {
    SCOPED_TRACE(tipo);
    NodoVista v;
    v.n.Corrente.Tipo = tipo;
    v.Disegna();
    int saldatura = 0;
    bool chiusura = false;
    for (const auto& l : prova::Linee(v.s)) {
      if (l.colore != 7) continue;
      ++saldatura;
      chiusura = chiusura || (Vicini(l.a, {-300, -58}) && Vicini(l.b, {100, -58}));
    }
    EXPECT_EQ(saldatura, tipo == 2 ? 52 : 0);
    EXPECT_EQ(chiusura, tipo == 2);
  }
}

TEST(ProfiliNodo, IlMoltiplicatoreDeiParticolariNonToccaLaVista) {
  NodoVista uno;
  uno.Disegna();
  NodoVista due;
  due.s.opzioni[21] = 2;
  due.Disegna();
  const auto a = prova::Linee(uno.s);
  const auto b = prova::Linee(due.s);
  ASSERT_EQ(a.size(), b.size());
  for (std::size_t i = 0; i < a.size(); ++i) {
    EXPECT_TRUE(Vicini(a[i].a, b[i].a) && Vicini(a[i].b, b[i].b)) << i;
  }
  EXPECT_EQ(uno.stato.XmaxN, due.stato.XmaxN);
  EXPECT_EQ(uno.stato.YminN, due.stato.YminN);
}

}  // namespace
}  // namespace qf17
