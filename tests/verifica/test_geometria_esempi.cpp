// The geometry of the sample nodes: consistency of the figure rather than figures by hand.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "nodo/esempi_nodo.h"
#include "piattaforma/piattaforma_registrata.h"
#include "verifica/geometria.h"

namespace qf17 {
namespace {

double DistanzaDalSegmento(Punto p, Punto a, Punto b) {
  const Punto ab = b - a;
  const double l2 = ab.x * ab.x + ab.y * ab.y;
  double u = l2 > 0 ? ((p.x - a.x) * ab.x + (p.y - a.y) * ab.y) / l2 : 0;
  u = std::clamp(u, 0.0, 1.0);
  return Modulo(p - (a + u * ab));
}

Punto Estremo(const LatoFazzoletto& l, int k) {
  return {l.XP[k], l.YP[k]};
}

// Inside the six-sided outline or on it.
bool NelFazzoletto(const GeometriaFazzoletto& g, Punto p) {
  bool dentro = false;
  for (int s = 1; s <= 6; ++s) {
    const Punto a = Estremo(g.LatiFazzoletto[s], 1);
    const Punto b = Estremo(g.LatiFazzoletto[s], 2);
    if (DistanzaDalSegmento(p, a, b) < 1e-6) return true;
    if ((a.y > p.y) != (b.y > p.y) && p.x < a.x + (p.y - a.y) * (b.x - a.x) / (b.y - a.y)) {
      dentro = !dentro;
    }
  }
  return dentro;
}

class GeometriaEsempi : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(prova::CaricaLibrerieInstallazione(s_));
    esempi_ = prova::EsempiNodo(s_);
    ASSERT_FALSE(esempi_.empty());
  }
  PiattaformaRegistrata p_;
  Sessione s_{p_};
  std::vector<prova::EsempioNodo> esempi_;
};

TEST_F(GeometriaEsempi, IncrociSulContornoEdEstremiNelFazzoletto) {
  for (const auto& e : esempi_) {
    SCOPED_TRACE(e.file);
    s_.nodo = e.nodo;
    GeometriaNodo(s_);
    const Nodo& n = s_.nodo;
    const GeometriaFazzoletto& g = s_.geometria;
    EXPECT_TRUE(GeometriaFinita(n, g));
    EXPECT_NE(n.PosFazzoletto, 0);
    for (int r = 1; r <= 6; ++r) {
      if (n.Ast_flag[r] != 1) continue;
      const bool opposta = r > 3 || n.Ast_modo[r] == 2;
      for (int j = 1; j <= 2; ++j) {
        const Saldatura& b = n.Saldature(r, j);
        SCOPED_TRACE(testing::Message() << "row " << r << " edge " << j);
        ASSERT_GE(b.Lato, 1);
        ASSERT_LE(b.Lato, 5);
        const LatoFazzoletto& l = g.LatiFazzoletto[b.Lato];
        const Punto incrocio = PuntoBordo(b, 4);
        EXPECT_LT(DistanzaDalSegmento(incrocio, Estremo(l, 1), Estremo(l, 2)), 1e-6);
        // The crossing is on the edge line itself.
        const double sullaRetta = DirezioneVerticale(n.Ast_teta[r])
                                      ? incrocio.x - b.Quota
                                      : incrocio.y - (b.Pend * incrocio.x + b.Quota);
        EXPECT_LT(std::abs(sullaRetta), 1e-6);
        EXPECT_TRUE(NelFazzoletto(g, PuntoBordo(b, 1)));
        // Opposed profiles are cut where the farthest edge needs it: the others' points 2 reach
        // past their own crossings.
        if (!opposta) {
          EXPECT_TRUE(NelFazzoletto(g, PuntoBordo(b, 2)));
        }
        EXPECT_FALSE(NelFazzoletto(g, PuntoBordo(b, 3)));
      }
    }
    for (int i = 1; i <= 3; ++i) {
      if (n.Ast_flag[i] != 1) continue;
      // Insertion along the axis between points 1 and 2 of both edges.
      const Punto a = Direzione(n.Ast_teta[i]);
      for (int j = 1; j <= 2; ++j) {
        const Saldatura& b = n.Saldature(i, j);
        const Punto d = PuntoBordo(b, 2) - PuntoBordo(b, 1);
        EXPECT_NEAR(d.x * a.x + d.y * a.y, n.Ast_ins[i], 1e-9) << i << " " << j;
      }
      EXPECT_GT(g.Beff[i], n.Aste[i].h);
    }
    EXPECT_EQ(n.Saldature(4, 1).Sld_L, n.Fz_a + n.Fz_b + n.Fz_c + n.Fz_d);
  }
}

}  // namespace
}  // namespace qf17
