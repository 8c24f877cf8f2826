#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "oracolo_bulloni_slu.h"
#include "sessione_verifica.h"
#include "verifica/bulloni_slu.h"
#include "verifica/bulloni_slu_ventaglio.h"

namespace qf17 {
namespace {

using Punti = std::vector<std::pair<double, double>>;

const double kT = std::tan(3.14159265358979 / 6);

enum class Disposizione {
  Griglia,
  FilaX,
  FilaY,
  Sfalsati,
  Coincidenti,
  Singolo,
  NuvolaMezzoMillimetro,
  Nuvola,
  BordoDelCono,
  SogliaUnCentesimo,
  DiagonaleRipida,
  Lontani,
  Numero
};

class Generatore {
 public:
  explicit Generatore(std::uint64_t seme) : g_(seme) {}

  template <class T>
  T Uno(std::initializer_list<T> valori) {
    std::uniform_int_distribution<int> d(0, static_cast<int>(valori.size()) - 1);
    return valori.begin()[d(g_)];
  }
  double Reale(double da, double a) { return std::uniform_real_distribution<double>(da, a)(g_); }
  int Intero(int da, int a) { return std::uniform_int_distribution<int>(da, a)(g_); }

  Punti Bulloni(Disposizione d, bool grande) {
    Punti p;
    const double x0 = Uno({0.0, 30.0, 45.5, -10.0});
    const double y0 = Uno({0.0, 20.0, 35.0});
    switch (d) {
      case Disposizione::Griglia: {
        const int righe = grande ? 10 : Intero(1, 6);
        const int colonne = grande ? 200 : Intero(1, 30);
        const double px = Uno({40.0, 60.0, 35.5, 21.0, 70.0});
        const double py = Uno({40.0, 30.0, 25.0, 80.0});
        for (int i = 0; i < colonne; ++i) {
          for (int j = 0; j < righe; ++j) p.push_back({x0 + i * px, y0 + j * py});
        }
        break;
      }
      case Disposizione::FilaX:
      case Disposizione::FilaY: {
        const int n = grande ? 2000 : Intero(1, 60);
        const double passo = Uno({40.0, 0.5, 65.0, 0.01});
        for (int i = 0; i < n; ++i) {
          if (d == Disposizione::FilaX) p.push_back({x0 + i * passo, y0});
          if (d == Disposizione::FilaY) p.push_back({x0, y0 + i * passo});
        }
        break;
      }
      case Disposizione::Sfalsati: {
        const int righe = Intero(2, 4);
        const int colonne = grande ? 700 : Intero(2, 25);
        const double px = Uno({80.0, 60.0, 50.0});
        const double py = Uno({30.0, 40.0, 50.0});
        for (int j = 0; j < righe; ++j) {
          for (int i = 0; i < colonne; ++i) {
            p.push_back({x0 + i * px + (j % 2) * px / 2, y0 + j * py});
          }
        }
        break;
      }
      case Disposizione::Coincidenti: {
        p = Bulloni(Disposizione::Griglia, false);
        const int copie = Intero(1, 5);
        for (int c = 0; c < copie; ++c) {
          const auto b = p[Intero(0, static_cast<int>(p.size()) - 1)];
          const double scarto = Uno({0.0, 0.0, 0.00005, 0.005});
          p.push_back({b.first + scarto, b.second});
        }
        break;
      }
      case Disposizione::Singolo:
        p.push_back({Reale(-10, 200), Reale(-10, 120)});
        break;
      case Disposizione::NuvolaMezzoMillimetro:
      case Disposizione::Nuvola: {
        const int n = grande ? 2000 : Intero(2, 250);
        const double L = Reale(20, 600);
        const double H = Reale(20, 200);
        for (int i = 0; i < n; ++i) {
          double x = Reale(0, L);
          double y = Reale(0, H);
          if (d == Disposizione::NuvolaMezzoMillimetro) {
            x = std::floor(x * 2) / 2;
            y = std::floor(y * 2) / 2;
          }
          p.push_back({x, y});
        }
        break;
      }
      case Disposizione::BordoDelCono: {
        // Bolts whose fan test is decided by the last bit: at T * du off the line, and one
        // step either side of it, across x and across y.
        const int n = Intero(1, 30);
        for (int i = 0; i < n; ++i) {
          const double xk = Uno({0.0, Reale(0, 300)});
          const double yk = Uno({0.0, Reale(0, 100)});
          const double du = Uno({40.0, Reale(0.001, 100), 0.01, 60.0});
          const double w = kT * du;
          const double w2 = Uno({w, std::nextafter(w, 0.0), std::nextafter(w, 1e9)});
          p.push_back({xk, yk});
          if (Intero(0, 1) == 0) {
            p.push_back({xk + Uno({du, -du}), yk + Uno({w2, -w2})});
          } else {
            p.push_back({xk + Uno({w2, -w2}), yk + Uno({du, -du})});
          }
        }
        break;
      }
      case Disposizione::SogliaUnCentesimo: {
        // Fans whose ends lie about 0.01 from the bolt.
        const int n = Intero(1, 20);
        for (int i = 0; i < n; ++i) {
          const double xk = Reale(0, 300);
          const double yk = Reale(0, 100);
          p.push_back({xk, yk});
          const double du = Uno({0.01, std::nextafter(0.01, 0.0), 0.0099, 0.0101, 0.02});
          p.push_back({xk + Uno({du, -du}), yk});
          p.push_back({xk, yk + Uno({du, -du})});
          if (Intero(0, 1)) p.push_back({xk + Uno({40.0, -40.0}), yk});
        }
        break;
      }
      case Disposizione::DiagonaleRipida: {
        // Every fan empty but the bolt's own: the case the quadrant test answers.
        const int n = grande ? 2000 : Intero(2, 200);
        const double passo = Reale(0.5, 30);
        for (int i = 0; i < n; ++i) p.push_back({x0 + i * passo, y0 + i * passo * 2.5});
        if (Intero(0, 1)) p.push_back({x0 - 500, y0 + 10});
        break;
      }
      case Disposizione::Lontani: {
        const int n = Intero(1, 100);
        for (int i = 0; i < n; ++i) p.push_back({Reale(-1e6, 1e6), Reale(-1e5, 1e5)});
        break;
      }
      case Disposizione::Numero:
        break;
    }
    return p;
  }

  Profilo Sezione() {
    Profilo s;
    s.Nome = "P";
    s.Tipo = static_cast<std::int16_t>(Uno({0, 1, 2}));
    s.h = Reale(60, 400);
    s.e = Reale(5, 20);
    s.a = Uno({6.0, 10.0, 45.0});
    s.dBarX = Reale(10, 50);
    return s;
  }

 private:
  std::mt19937_64 g_;
};

std::uint64_t Bit(double x) {
  return std::bit_cast<std::uint64_t>(x);
}

void Riempi(Generatore& gen, prova::SessioneVerifica& p, int g, const Punti& punti) {
  Nodo& n = p.nodo;
  p.sessione.opzioni[25] = gen.Uno({-1.0, 0.0, 1.0, 2.0});
  p.sessione.opzioni[26] = gen.Uno({0.0, 1.0});
  n.Fz_a = gen.Reale(0, 200), n.Fz_b = gen.Reale(0, 200), n.Fz_c = gen.Reale(0, 200);
  n.Fz_d = gen.Reale(0, 200);
  n.Fz_s = gen.Uno({10.0, 12.0, 50.0});
  n.Corrente = gen.Sezione();
  for (int i = 1; i <= 3; ++i) {
    n.Aste[i] = gen.Sezione();
    n.Ast_ins[i] = gen.Reale(50, 600);
  }
  n.vite.Nome = gen.Uno<std::string>({"8.8", "10.9", "4.6", "6.8", "12.9"});
  n.vite.ftViti = gen.Uno({8000.0, 10000.0, 4000.0});
  n.vite.gMViti = 1.25;
  n.acciaio.ft = gen.Uno({3600.0, 4300.0, 5100.0});
  n.acciaio.ft40 = n.acciaio.ft - 200;
  const int gruppo = g - 1;
  n.nBull[gruppo] = 0;
  for (const auto& [x, y] : punti) p.Bullone(gruppo, x, y, gen.Uno({12.0, 16.0, 20.0, 24.0}));
}

// The fan search against every pair: place in the fan, and pitch between the ends.
void ConfrontaVentagli(const std::vector<double>& u, const std::vector<double>& v,
                       const std::string& caso) {
  const std::vector<PostoBullone> posti = PostiNeiVentagli(u, v, kT);
  ASSERT_EQ(posti.size(), u.size());
  for (int k = 0; k < static_cast<int>(u.size()); ++k) {
    const prova::VentaglioOracolo f = prova::OracoloVentaglio(u, v, k);
    PostoNelVentaglio atteso = PostoNelVentaglio::Interno;
    if (std::abs(u[k] - f.minimo) < 0.01) {
      atteso = PostoNelVentaglio::Primo;
    } else if (std::abs(u[k] - f.massimo) < 0.01) {
      atteso = PostoNelVentaglio::Ultimo;
    }
    ASSERT_EQ(posti[k].posto, atteso) << caso << " bullone " << k;
    if (atteso == PostoNelVentaglio::Interno) {
      ASSERT_EQ(Bit(posti[k].passo), Bit(f.passo)) << caso << " bullone " << k;
    }
  }
}

TEST(DifferenzialeBulloniSLU, RicercaNeiVentagliComeOgniCoppia) {
  prova::SessioneVerifica p;
  Generatore gen(2008);
  const int tipi = static_cast<int>(Disposizione::Numero);
  int gruppi = 0;
  for (int caso = 0; caso < 480; ++caso) {
    const auto d = static_cast<Disposizione>(caso % tipi);
    // A few groups of the largest size, where the search must not visit every pair.
    const bool grande = caso % 97 == 0 || caso % 131 == 0;
    const int g = gen.Intero(1, 4);
    const Punti punti = gen.Bulloni(d, grande);
    if (punti.size() > 2000) continue;
    Riempi(gen, p, g, punti);
    const std::string nome = "caso " + std::to_string(caso) + " gruppo " + std::to_string(g) +
                             " bulloni " + std::to_string(punti.size());

    std::vector<double> x, y;
    for (const auto& [a, b] : punti) {
      x.push_back(a);
      y.push_back(b);
    }
    ConfrontaVentagli(x, y, nome + " attraverso x");
    ConfrontaVentagli(y, x, nome + " attraverso y");

    ResistenzeBulloniSLU(p.sessione, g);
    const prova::ResistenzeOracolo o = prova::OracoloResistenzeSLU(p.sessione, g);
    for (int k = 1; k <= static_cast<int>(punti.size()); ++k) {
      ASSERT_EQ(Bit(p.r.FvRd(g - 1, k)), Bit(o.FvRd[k - 1])) << nome << " bullone " << k;
      ASSERT_EQ(Bit(p.r.FbRd(g - 1, k)), Bit(o.FbRd[k - 1])) << nome << " bullone " << k;
    }
    ++gruppi;
  }
  EXPECT_GT(gruppi, 400);
}

// Coordinates beyond reach of the sorting go to the pair loop. Along u = 0, 40, inf on one
// line: bolt 1 sees 40 and inf in its fan (0 <= T * inf), so it is first; bolt 2 lies between
// 0 and inf, pitch 40; bolt 3 is not in its own fan (T * |inf - inf| is not a number) but
// sees the other two: least 0, greatest inf, |inf - inf| < 0.01 fails too, so it is between,
// pitch min(inf, inf) = inf.
TEST(DifferenzialeBulloniSLU, CoordinateNonFiniteVannoAlleCoppie) {
  const double inf = std::numeric_limits<double>::infinity();
  const std::vector<PostoBullone> posti = PostiNeiVentagli({0, 40, inf}, {0, 0, 0}, kT);
  ASSERT_EQ(posti.size(), 3u);
  EXPECT_EQ(posti[0].posto, PostoNelVentaglio::Primo);
  EXPECT_EQ(posti[1].posto, PostoNelVentaglio::Interno);
  EXPECT_EQ(posti[1].passo, 40);
  EXPECT_EQ(posti[2].posto, PostoNelVentaglio::Interno);
  EXPECT_EQ(posti[2].passo, inf);
}

}  // namespace
}  // namespace qf17
