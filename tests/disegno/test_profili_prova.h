#pragma once

// What the profile drawing tests share: a sheet that records its texts and dimensions, and
// readers of the drawing store.

#include <cmath>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/esecutivo/tavola.h"
#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "quote_prova.h"
#include "verifica/geometria.h"

namespace qf17::prova {

// A dimension or a centred text as the module asked for it.
struct ChiamataQuota {
  std::string testo;
  double x1, x2, y1, y2, distanza, fattore;
  bool soloTesto;  // TestoCentrato
  ClasseTesto classe;
  std::int16_t colore;
};

struct ChiamataTesto {
  std::string testo;
  double x, y;
  ClasseTesto classe;
  std::int16_t colore;
};

// Texts 10 wide and 10 high of every kind; nothing goes to the store but lines and circles.
class TavolaProfili : public Tavola {
 public:
  using Tavola::Tavola;
  double Larghezza(ClasseTesto) const override { return 10; }
  double Altezza(ClasseTesto) const override { return 10; }
  void Quota(const std::string& testo, double x1, double x2, double y1, double y2, double distanza,
             double fattore) override {
    quote.push_back({testo, x1, x2, y1, y2, distanza, fattore, false, ClasseTesto::Quote, -2});
  }
  void TestoCentrato(const std::string& testo, double x1, double x2, double y1, double y2,
                     double distanza, ClasseTesto classe, std::int16_t colore) override {
    quote.push_back({testo, x1, x2, y1, y2, distanza, 0, true, classe, colore});
  }
  void Testo(const std::string& testo, double x, double y, std::int16_t, ClasseTesto classe,
             std::int16_t colore) override {
    testi.push_back({testo, x, y, classe, colore});
  }

  std::vector<ChiamataQuota> quote;
  std::vector<ChiamataTesto> testi;
};

// A session drawing into an empty store, with its sheet.
struct DisegnoProva : SessioneQuote {
  TavolaProfili t{s};
};

inline bool Vicini(Punto a, Punto b, double tolleranza = 1e-6) {
  return std::abs(a.x - b.x) < tolleranza && std::abs(a.y - b.y) < tolleranza;
}

// How many strokes (line ends and arc ends) meet at each distinct point, points within 1E-6.
inline std::vector<std::pair<Punto, int>> GradiVertici(const std::vector<LineaLetta>& linee,
                                                       const std::vector<ArcoLetto>& archi) {
  std::vector<std::pair<Punto, int>> gradi;
  const auto conta = [&](Punto p) {
    for (auto& [q, n] : gradi) {
      if (Vicini(p, q)) {
        ++n;
        return;
      }
    }
    gradi.push_back({p, 1});
  };
  for (const LineaLetta& l : linee) {
    conta(l.a);
    conta(l.b);
  }
  for (const ArcoLetto& a : archi) {
    conta(a.inizio);
    conta(a.fine);
  }
  return gradi;
}

}  // namespace qf17::prova
