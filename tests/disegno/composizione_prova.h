#pragma once

// What the tests of the gusset detail and of the sheet composition share: a DIS sheet that also
// records what was asked of it, readers of the drawing store, and a small node written by hand.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/esecutivo/tavola_dis.h"
#include "nodo/sessione.h"
#include "verifica/geometria.h"

namespace qf17::prova {

enum class Richiesta { Quota, TestoCentrato, Testo };

// One text or dimension the sheet was asked for, with the drawing's origin at that moment.
struct ChiamataTavola {
  Richiesta tipo;
  std::string testo;
  double x1 = 0, x2 = 0, y1 = 0, y2 = 0, distanza = 0, fattore = 1;
  ClasseTesto classe = ClasseTesto::Quote;
  std::int16_t colore = 0;
  double origineX = 0, origineY = 0;
};

// The DIS sheet, recording every call before it goes to the store.
class TavolaComposizione : public TavolaDis {
 public:
  using TavolaDis::TavolaDis;
  void Quota(const std::string& testo, double x1, double x2, double y1, double y2, double distanza,
             double fattore) override {
    Registra({Richiesta::Quota, testo, x1, x2, y1, y2, distanza, fattore});
    TavolaDis::Quota(testo, x1, x2, y1, y2, distanza, fattore);
  }
  void TestoCentrato(const std::string& testo, double x1, double x2, double y1, double y2,
                     double distanza, ClasseTesto classe, std::int16_t colore) override {
    Registra({Richiesta::TestoCentrato, testo, x1, x2, y1, y2, distanza, 1, classe, colore});
    TavolaDis::TestoCentrato(testo, x1, x2, y1, y2, distanza, classe, colore);
  }
  void Testo(const std::string& testo, double x, double y, std::int16_t angolo, ClasseTesto classe,
             std::int16_t colore) override {
    Registra({Richiesta::Testo, testo, x, x, y, y, 0, 1, classe, colore});
    TavolaDis::Testo(testo, x, y, angolo, classe, colore);
  }

  std::vector<ChiamataTavola> chiamate;

  std::vector<ChiamataTavola> Di(Richiesta tipo) const {
    std::vector<ChiamataTavola> r;
    for (const auto& c : chiamate) {
      if (c.tipo == tipo) r.push_back(c);
    }
    return r;
  }
  std::vector<std::string> TestiDistinta() const {
    std::vector<std::string> r;
    for (const auto& c : chiamate) {
      if (c.tipo == Richiesta::TestoCentrato && c.classe == ClasseTesto::Distinta) {
        r.push_back(c.testo);
      }
    }
    return r;
  }
  bool HaTesto(const std::string& testo) const {
    for (const auto& c : chiamate) {
      if (c.testo == testo) return true;
    }
    return false;
  }

 private:
  void Registra(ChiamataTavola c) {
    c.origineX = S().disegno.OrigineX;
    c.origineY = S().disegno.OrigineY;
    chiamate.push_back(std::move(c));
  }
};

// A circle of the store: centre and radius on the sheet.
struct CerchioLetto {
  Punto centro;
  double raggio;
};
inline std::vector<CerchioLetto> Cerchi(const ArchivioDisegno& a) {
  const TabelleDisegno& t = a.Tabelle();
  std::vector<CerchioLetto> r;
  for (int i = 0; i < a.NumArchi; ++i) {
    if (t.ArcInizio[i] != t.ArcFine[i]) continue;
    const Punto c{t.CoordX[t.ArcCentro[i]], t.CoordY[t.ArcCentro[i]]};
    const Punto p{t.CoordX[t.ArcInizio[i]], t.CoordY[t.ArcInizio[i]]};
    r.push_back({c, std::hypot(p.x - c.x, p.y - c.y)});
  }
  return r;
}

// How far a number's box (its characters' cells, one text height up from its baseline, moved by
// the drawing's origin) stands clear of a hole's edge; negative where they overlap.
inline double MargineDalForo(const ChiamataTavola& c, double w, double h, const CerchioLetto& f) {
  const double x1 = c.x1 + c.origineX, y1 = c.y1 + c.origineY;
  const double x2 = x1 + static_cast<double>(c.testo.size()) * w, y2 = y1 + h;
  const double dx = std::max({x1 - f.centro.x, 0.0, f.centro.x - x2});
  const double dy = std::max({y1 - f.centro.y, 0.0, f.centro.y - y2});
  return std::hypot(dx, dy) - f.raggio;
}

// The session's drawing made the target and emptied, as the export does before composing.
inline void PreparaDisegno(Sessione& s) {
  s.disegno.DestinazioneDisegno = "gendis";
  AzzeraDisegno(s.disegno);
  AzzeraEstensioni(s.disegno);
  s.disegno.OrigineX = s.disegno.OrigineY = 0;
}

// A node written by hand: a channel chord 160 high (flange 10.5) along X, a gusset 800 long
// and 250 deep on both sides (Fz_a..Fz_d 150, 250, 250, 150; Fz_e..Fz_h 100, 150, 100, 150),
// 10 thick, one angle 70 x 7 (gravity axis 20 from its back) at `teta` degrees, inserted 120,
// side 0. Chord bolts M20 at (100, 70) and (700, 20); member bolts M16 at (40, 30) and (90, 30).
void NodoAMano(Sessione& s, double teta);

}  // namespace qf17::prova
