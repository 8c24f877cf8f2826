#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <random>
#include <string>

#include "oracolo_sezioni.h"
#include "verifica/fazzoletto.h"
#include "verifica/profili.h"
#include "verifica/sezioni_cache.h"

namespace qf17 {
namespace {

constexpr int kSet = 4;

class NodoCasuale {
 public:
  explicit NodoCasuale(std::uint64_t seme) : g_(seme) {}

  void Riempi(Sessione& s) {
    Nodo& n = s.nodo;
    s.opzioni[25] = Uno({-1.0, 0.0, 0.5, 1.0, 2.0});
    n.Fz_s = Uno({10.0, 8.0, 12.0, 0.001});
    n.Cor_teta = Reale(-1, 1);
    n.PosFazzoletto = static_cast<std::int16_t>(Uno({1, -1, 0}));
    for (int i = 1; i <= 3; ++i) {
      n.Aste[i] = Sezione();
      n.Ast_modo[i] = static_cast<std::int16_t>(Uno({0, 0, 1, 2, 2, 3}));
      n.Ast_flag[i] = static_cast<std::int16_t>(Uno({0, 1}));
      n.Ast_coeff[i] = Uno({1.0, 1.0, 0.5, 2.5, 0.0, -1.0});
      n.Ast_teta[i] = Reale(-3, 3);
    }
    n.Corrente = Sezione();
    for (int g = 0; g <= 3; ++g) Bulloni(n, g);
    for (int j = 1; j <= kSet; ++j) {
      for (int i = 1; i <= 3; ++i) n.SforzoNormale(i, j) = Forza();
    }
  }

 private:
  template <class T>
  T Uno(std::initializer_list<T> valori) {
    std::uniform_int_distribution<int> d(0, static_cast<int>(valori.size()) - 1);
    return valori.begin()[d(g_)];
  }
  double Reale(double da, double a) { return std::uniform_real_distribution<double>(da, a)(g_); }
  int Intero(int da, int a) { return std::uniform_int_distribution<int>(da, a)(g_); }

  Profilo Sezione() {
    Profilo p;
    p.Nome = "P" + std::to_string(Intero(1, 99)), p.h = Reale(30, 200), p.b = Reale(30, 200);
    p.a = Reale(3, 15), p.e = Reale(3, 15);
    // Small areas and second moments bring the net area messages.
    p.Area = Uno({Reale(50, 400), Reale(400, 3000)});
    p.dBarY = Reale(5, 50);
    p.I2 = Uno({0.0, 100.0, Reale(1e4, 1e7), Reale(1e4, 1e7)});
    return p;
  }

  // Coordinates on a half-millimetre grid bring equal x, rows and distances equal to a hole
  // diameter; tenths bring distances a rounding away from it.
  double X(int modo, double largo) {
    switch (modo) {
      case 0:
        return std::floor(Reale(0, largo) * 2) / 2;
      case 1:
        return Intero(0, 6) * Uno({21.0, 20.0, 40.0, 21.5});
      case 2:
        return std::round(Reale(0, largo) * 10) / 10;
      default:
        return Reale(-largo, largo);
    }
  }

  void Bulloni(Nodo& n, int g) {
    const int quanti =
        Uno({0, 1, 2, 3, Intero(2, 12), Intero(2, 40), Intero(40, 150), Intero(150, 400)});
    const int modo = Intero(0, 3);
    // Wide groups leave few bolts within a hole diameter: the sorted search, not a full pass.
    const double largo = Uno({10.0, 60.0, 300.0, 3000.0, 3000.0});
    n.nBull[g] = static_cast<std::int16_t>(quanti);
    for (int k = 1; k <= quanti; ++k) {
      n.xBull(g, k) = X(modo, largo);
      n.yBull(g, k) = Uno({std::floor(Reale(0, 100)), Reale(-100, 100), 50.0});
      n.FiBull(g, k) = Uno({12.0, 14.0, 16.0, 20.0, 20.0, 22.0, 24.0, 27.0, 30.0, 0.0, -40.0});
    }
    // Now and then a number that is none.
    if (quanti > 0 && Intero(0, 30) == 0) {
      const double strano =
          Uno({std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
               -std::numeric_limits<double>::infinity()});
      const int k = Intero(1, quanti);
      switch (Intero(0, 2)) {
        case 0:
          n.xBull(g, k) = strano;
          break;
        case 1:
          n.yBull(g, k) = strano;
          break;
        default:
          n.FiBull(g, k) = strano;
          break;
      }
    }
  }

  double Forza() {
    return Uno(
        {0.0, Reale(-1e5, 1e5), Reale(-1e5, 1e5), std::round(Reale(-1e4, 1e4)), 5e-324, -1e-300});
  }

  std::mt19937_64 g_;
};

bool StessoNumero(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) ||
         (std::isnan(a) && std::isnan(b));
}

void StessiMessaggi(const PiattaformaRegistrata& a, const PiattaformaRegistrata& b, int nodo) {
  ASSERT_EQ(a.messaggi.size(), b.messaggi.size()) << "nodo " << nodo;
  for (std::size_t m = 0; m < a.messaggi.size(); ++m) {
    EXPECT_EQ(a.messaggi[m].testo, b.messaggi[m].testo) << "nodo " << nodo << " messaggio " << m;
    EXPECT_EQ(a.messaggi[m].titolo, b.messaggi[m].titolo) << "nodo " << nodo;
    EXPECT_EQ(a.messaggi[m].icona, b.messaggi[m].icona) << "nodo " << nodo;
    EXPECT_EQ(a.messaggi[m].pulsanti, b.messaggi[m].pulsanti) << "nodo " << nodo;
  }
}

// Random nodes through the sorted, once-per-run sections and through the plain loops: every
// figure bit for bit and every message in its order. One cache serves every node, as it would
// serve a user editing the node between runs.
TEST(SezioniDifferenziale, NodiCasuali) {
  PiattaformaRegistrata piattaforma, piattaformaOracolo;
  Sessione s{piattaforma};
  auto oracolo = std::make_unique<RisultatiVerifica>();
  RisultatiVerifica& r = s.Risultati();
  CacheSezioni cache;
  int messaggi = 0, stress = 0;
  for (int nodo = 0; nodo < 300; ++nodo) {
    NodoCasuale(1000 + nodo).Riempi(s);
    piattaforma.messaggi.clear();
    piattaformaOracolo.messaggi.clear();
    for (int j = 1; j <= kSet; ++j) {
      // Every third node goes without a kept cache.
      if (nodo % 3 == 0) {
        VerificaProfili(s, j);
        VerificaFazzoletto(s, j);
      } else {
        VerificaProfili(s, j, cache);
        VerificaFazzoletto(s, j, cache);
      }
      prova::OracoloProfili(s, j, *oracolo, piattaformaOracolo);
      prova::OracoloFazzoletto(s, j, *oracolo, piattaformaOracolo);
    }
    for (int j = 1; j <= kSet; ++j) {
      for (int g = 0; g <= 3; ++g) {
        EXPECT_PRED2(StessoNumero, r.SigProf(g, j), oracolo->SigProf(g, j))
            << "nodo " << nodo << " gruppo " << g << " set " << j;
        EXPECT_PRED2(StessoNumero, r.SigDiff(g, j), oracolo->SigDiff(g, j))
            << "nodo " << nodo << " gruppo " << g << " set " << j;
        if (r.SigProf(g, j) != 0 || r.SigDiff(g, j) != 0) ++stress;
      }
      EXPECT_PRED2(StessoNumero, r.TauCorr[j], oracolo->TauCorr[j]) << "nodo " << nodo;
    }
    StessiMessaggi(piattaforma, piattaformaOracolo, nodo);
    messaggi += static_cast<int>(piattaforma.messaggi.size());
  }
  // The nodes must exercise both figures and messages.
  EXPECT_GT(stress, 1000);
  EXPECT_GT(messaggi, 100);
}

}  // namespace
}  // namespace qf17
