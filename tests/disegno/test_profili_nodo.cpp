// The node view of small nodes built by hand: every outline stroke where the geometry puts it,
// once, hidden parts dashed, bolts in their groups' frames, the view's extents.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/esecutivo/profili_disegno.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "test_profili_prova.h"
#include "verifica/test_geometria_prova.h"

namespace qf17 {
namespace {

using prova::LineaLetta;
using prova::Vicini;

// The geometry tests' node: channel chord 100 high at angle 0, gusset a 100, b 200, c 0, d 100,
// e f g h 100, s 10. One angle L60 (centroid 15 from the back, 6 thick) at 90 degrees, lato 1,
// inserted 100. The gusset lies below the chord (P = -1): C1 (100, -50), C2 (100, -150),
// C3 (0, -250), C4 (-200, -250), C5 (-300, -150), C6 (-300, -50). The member's edges: edge 1
// x = 45 and edge 2 x = -15 (its back), from y = -105 (the cut) to -405.
struct NodoVista {
  NodoVista() {
    n.Fz_c = 0;
    n.Corrente.e = 10, n.Corrente.b = 50, n.Corrente.a = 6;
    g.Asta(1, 90, 1);
    Profilo& p = n.Aste[1];
    p.e = 6, p.a = 6, p.b = 60, p.r1 = 6;
    n.Lato_Sald = 8;
    // Chord bolt at x 150 (-150 from the node), 30 from the lower flange's inner face (y -40);
    // member bolts 30 and 70 along, 20 from the free edge (x 45).
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

struct Tratto {
  Punto a, b;
  std::int16_t tipo;  // 0 continuous, 4 dashed
};

bool Uguale(const LineaLetta& l, const Tratto& t) {
  const bool versi =
      (Vicini(l.a, t.a) && Vicini(l.b, t.b)) || (Vicini(l.a, t.b) && Vicini(l.b, t.a));
  return versi && l.tipo == t.tipo;
}

TEST(ProfiliNodo, ContorniDiFazzolettoAstaECorrente) {
  NodoVista v;
  v.Disegna();
  const std::vector<Tratto> attesi{
      // The member: long edges, cut end, far end, and the inner face of the leg 6 inside the
      // back (x -15 + 6).
      {{45, -105}, {45, -405}, 0},
      {{-15, -105}, {-15, -405}, 0},
      {{45, -105}, {-15, -105}, 0},
      {{45, -405}, {-15, -405}, 0},
      {{-9, -105}, {-9, -405}, 0},
      // The gusset: side 2 (y = x - 250) goes under the member at x 45, side 3 (y -250) comes
      // out at x -15; those parts are dashed. Side 6 is the chord's edge.
      {{100, -50}, {100, -150}, 0},
      {{100, -150}, {45, -205}, 0},
      {{45, -205}, {0, -250}, 4},
      {{0, -250}, {-15, -250}, 4},
      {{-15, -250}, {-200, -250}, 0},
      {{-200, -250}, {-300, -150}, 0},
      {{-300, -150}, {-300, -50}, 0},
      // The chord from -1.3 x 300 to 1.3 x 100: faces +-50, flange inner faces +-40; the face
      // the gusset meets has the gusset's corners on it.
      {{-390, -50}, {-300, -50}, 0},
      {{-300, -50}, {100, -50}, 0},
      {{100, -50}, {130, -50}, 0},
      {{-390, -40}, {130, -40}, 0},
      {{-390, 40}, {130, 40}, 0},
      {{-390, 50}, {130, 50}, 0},
      // Break marks: at 0.4 and 0.6 of the height, a tenth of it (10) outwards and back.
      {{-390, -50}, {-400, -10}, 0},
      {{-400, -10}, {-380, 10}, 0},
      {{-380, 10}, {-390, 50}, 0},
      {{130, -50}, {140, -10}, 0},
      {{140, -10}, {120, 10}, 0},
      {{120, 10}, {130, 50}, 0},
  };
  std::vector<LineaLetta> contorni;
  for (const auto& l : prova::Linee(v.s)) {
    if (l.colore == 1) contorni.push_back(l);
  }
  EXPECT_EQ(contorni.size(), attesi.size());
  for (const Tratto& t : attesi) {
    int volte = 0;
    for (const auto& l : contorni) volte += Uguale(l, t) ? 1 : 0;
    EXPECT_EQ(volte, 1) << "(" << t.a.x << ", " << t.a.y << ") - (" << t.b.x << ", " << t.b.y
                        << ")";
  }
}

TEST(ProfiliNodo, NessunTrattoDisegnatoDueVolte) {
  NodoVista v;
  v.n.Corrente.Tipo = 2;
  v.Disegna();
  // The weld's end ticks stand on the plate's square ends, in the weld's own colour: left out.
  std::vector<LineaLetta> linee;
  for (const auto& l : prova::Linee(v.s)) {
    if (l.colore != 7) linee.push_back(l);
  }
  for (std::size_t i = 0; i < linee.size(); ++i) {
    for (std::size_t j = i + 1; j < linee.size(); ++j) {
      EXPECT_FALSE(prova::Sovrapposte(linee[i], linee[j]))
          << "(" << linee[i].a.x << ", " << linee[i].a.y << ") - (" << linee[i].b.x << ", "
          << linee[i].b.y << ") and (" << linee[j].a.x << ", " << linee[j].a.y << ") - ("
          << linee[j].b.x << ", " << linee[j].b.y << ")";
    }
  }
}

TEST(ProfiliNodo, BulloniAssiEtichettaEdEstensioni) {
  NodoVista v;
  v.Disegna();
  // Holes: the chord's at (150 - 300, -40 + 30); the member's from its cut (-15, -105): 60 - 20
  // = 40 from the back across, 30 and 70 down along.
  std::vector<prova::ArcoLetto> fori;
  for (const auto& a : prova::Archi(v.s)) {
    if (a.colore == 1) fori.push_back(a);
  }
  ASSERT_EQ(fori.size(), 3u);
  EXPECT_TRUE(Vicini(fori[0].centro, {-150, -10}));
  EXPECT_NEAR(fori[0].Diametro(), 20.5, 1e-9);
  EXPECT_TRUE(Vicini(fori[1].centro, {25, -135}));
  EXPECT_TRUE(Vicini(fori[2].centro, {25, -175}));
  EXPECT_NEAR(fori[2].Diametro(), 16.5, 1e-9);

  // Axes: the member's from the node through its end section, which takes 40 (the margin) and
  // 60 (its other leg) beyond the end: 405 + 40 + 60 + 10. The chord's
  // from 20 before its left end through its section (centre 130 + 40 + 5 + 50, half width 55).
  int assiTrovati = 0;
  for (const auto& l : prova::Linee(v.s)) {
    if (l.tipo != 1 || l.colore != 2) continue;
    if (Vicini(l.a, {0, 0}) && Vicini(l.b, {0, -515})) ++assiTrovati;
    if (Vicini(l.a, {-410, 0}) && Vicini(l.b, {300, 0})) ++assiTrovati;
  }
  EXPECT_EQ(assiTrovati, 2);

  // The label over the part outside the gusset (405 - 200 to 405 down the axis), read upwards,
  // clear of edge 2 (15 to the left) by half a text.
  std::vector<prova::ChiamataQuota> etichette;
  for (const auto& q : v.t.quote) {
    if (q.soloTesto && q.classe == ClasseTesto::Testi) etichette.push_back(q);
  }
  ASSERT_EQ(etichette.size(), 1u);
  EXPECT_EQ(etichette[0].testo, "A - L60 (1)");
  EXPECT_TRUE(Vicini({etichette[0].x1, etichette[0].y1}, {0, -405}));
  EXPECT_TRUE(Vicini({etichette[0].x2, etichette[0].y2}, {0, -205}));
  EXPECT_NEAR(etichette[0].distanza, 20, 1e-9);
  EXPECT_EQ(etichette[0].colore, 1);

  // Extents: the chord's axis at both ends, the chord's top face, the member's axis at the bottom.
  EXPECT_NEAR(v.stato.XminN, -410, 1e-9);
  EXPECT_NEAR(v.stato.XmaxN, 300, 1e-9);
  EXPECT_NEAR(v.stato.YminN, -515, 1e-9);
  EXPECT_NEAR(v.stato.YmaxN, 50, 1e-9);
}

// Only a chord of kind 2 is welded to the gusset: the weld along side 6, 400 long with a leg of
// 8, has 50 steps, 49 ticks inside, the two end ticks and the closing line 8 below the edge, on
// the gusset's side. The bolted channel has no weld mark.
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

// An opposed pair: the far profile lies behind the gusset, so its strokes over the plate are
// dashed and the plate's outline across it stays continuous; its bolts' crosses are dashed.
// Edge lines x = 65, -5 (first profile) and 5, -65 (far one) meet the plate at (65, -185),
// (-5, -250), (5, -245), (-65, -250). Less 100 along (0, -1) the candidates are (65 - 60, -85),
// (-5, -150), (5 + 10, -145), (-65 + 70, -150): the second is the farthest (the fourth ties it
// and loses), so the cut is at y -150 with edge (1, 1) at -5 + 60 = 55, (1, 2) at -5, (4, 1) at
// -15, (4, 2) at -75, all ending at -250 - 200 = -450. The plate's side 3 (y -250) is where
// the far profile comes out.
TEST(ProfiliNodo, CoppiaOppostaDietroAlFazzoletto) {
  NodoVista v;
  v.n.Ast_modo[1] = static_cast<std::int16_t>(AstModo::Opposta);
  v.Disegna();
  ASSERT_EQ(v.n.Ast_flag[4], 1);
  const std::vector<Tratto> attesi{
      // The first profile, in front, and its leg's inner face 6 inside its back (x -5).
      {{55, -150}, {55, -450}, 0},
      {{-5, -150}, {-5, -450}, 0},
      {{55, -150}, {-5, -150}, 0},
      {{55, -450}, {-5, -450}, 0},
      {{1, -150}, {1, -450}, 0},
      // The far profile: over the plate dashed, beyond it continuous; its leg's inner face is 6
      // inside its back (x -15).
      {{-15, -150}, {-15, -250}, 4},
      {{-15, -250}, {-15, -450}, 0},
      {{-75, -150}, {-75, -250}, 4},
      {{-75, -250}, {-75, -450}, 0},
      {{-21, -150}, {-21, -250}, 4},
      {{-21, -250}, {-21, -450}, 0},
      {{-15, -150}, {-75, -150}, 4},
      {{-15, -450}, {-75, -450}, 0},
      // The plate: hidden only under the first profile (side 2 from x 55, side 3 to x -5).
      {{100, -150}, {55, -195}, 0},
      {{55, -195}, {0, -250}, 4},
      {{0, -250}, {-5, -250}, 4},
      {{-5, -250}, {-200, -250}, 0},
  };
  const auto linee = prova::Linee(v.s);
  for (const Tratto& t : attesi) {
    int volte = 0;
    for (const auto& l : linee) volte += (l.colore == 1 && Uguale(l, t)) ? 1 : 0;
    EXPECT_EQ(volte, 1) << "(" << t.a.x << ", " << t.a.y << ") - (" << t.b.x << ", " << t.b.y
                        << ")";
  }
  // Bolts: the first profile's 40 from its back (x 35), the far one's 20 from its free edge
  // (x -55), 30 and 70 below the cut; the far ones' crosses dashed.
  std::vector<Punto> centri;
  for (const auto& a : prova::Archi(v.s)) {
    if (a.colore == 1) centri.push_back(a.centro);
  }
  ASSERT_EQ(centri.size(), 5u);
  EXPECT_TRUE(Vicini(centri[1], {35, -180}) && Vicini(centri[2], {35, -220}));
  EXPECT_TRUE(Vicini(centri[3], {-55, -180}) && Vicini(centri[4], {-55, -220}));
  int croci = 0;
  for (const auto& l : linee) {
    if (l.colore == 2 && l.tipo == 4) ++croci;
  }
  EXPECT_EQ(croci, 4);  // two bolts, two arms each
  bool etichetta = false;
  for (const auto& q : v.t.quote) etichetta = etichetta || q.testo == "A - L60 (2)";
  EXPECT_TRUE(etichetta);
}

}  // namespace
}  // namespace qf17
