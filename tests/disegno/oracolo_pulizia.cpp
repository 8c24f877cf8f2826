#include "oracolo_pulizia.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace qf17::prova {

namespace {

double Dist(double x1, double y1, double x2, double y2) {
  return std::sqrt((x1 - x2) * (x1 - x2) + (y1 - y2) * (y1 - y2));
}

bool SulSegmento(const TabelleDisegno& t, std::int32_t p, std::int32_t a, std::int32_t b) {
  const double px = t.CoordX[p], py = t.CoordY[p];
  const double ax = t.CoordX[a], ay = t.CoordY[a];
  const double bx = t.CoordX[b], by = t.CoordY[b];
  return Dist(px, py, ax, ay) + Dist(px, py, bx, by) - Dist(ax, ay, bx, by) < 0.0001;
}

void TogliLinea(ArchivioDisegno& a, std::int32_t i) {
  TabelleDisegno& t = a.Tabelle();
  for (std::int32_t k = i; k < a.NumLinee - 1; ++k) {
    t.LinP1[k] = t.LinP1[k + 1];
    t.LinP2[k] = t.LinP2[k + 1];
    t.LinColore[k] = t.LinColore[k + 1];
    t.LinTipo[k] = t.LinTipo[k + 1];
  }
  --a.NumLinee;
}

bool PassoLinee(ArchivioDisegno& a) {
  TabelleDisegno& t = a.Tabelle();
  bool tolto = false;
  std::int32_t i = 0;
  while (i < a.NumLinee) {
    bool togli = t.LinColore[i] < 0 || t.LinTipo[i] < 0;
    if (!togli && t.LinColore[i] > 0 && t.LinTipo[i] > 0) {
      for (std::int32_t j = 0; j < a.NumLinee && !togli; ++j) {
        togli = j != i && SulSegmento(t, t.LinP1[i], t.LinP1[j], t.LinP2[j]) &&
                SulSegmento(t, t.LinP2[i], t.LinP1[j], t.LinP2[j]);
      }
    }
    if (togli) {
      TogliLinea(a, i);
      tolto = true;
    } else {
      ++i;
    }
  }
  return tolto;
}

bool ArchiUguali(const TabelleDisegno& t, std::int32_t i, std::int32_t j) {
  return t.ArcCentro[i] == t.ArcCentro[j] && t.ArcInizio[i] == t.ArcInizio[j] &&
         t.ArcCentro2[i] == t.ArcCentro2[j] && t.ArcFine[i] == t.ArcFine[j] &&
         t.ArcColore[i] == t.ArcColore[j] && t.ArcTipo[i] == t.ArcTipo[j];
}

bool PassoArchi(ArchivioDisegno& a) {
  TabelleDisegno& t = a.Tabelle();
  bool tolto = false;
  for (std::int32_t i = 0; i < a.NumArchi; ++i) {
    std::int32_t j = i + 1;
    while (j < a.NumArchi) {
      if (!ArchiUguali(t, i, j)) {
        ++j;
        continue;
      }
      for (std::int32_t k = j; k < a.NumArchi - 1; ++k) {
        t.ArcCentro[k] = t.ArcCentro[k + 1];
        t.ArcInizio[k] = t.ArcInizio[k + 1];
        t.ArcCentro2[k] = t.ArcCentro2[k + 1];
        t.ArcFine[k] = t.ArcFine[k + 1];
        t.ArcColore[k] = t.ArcColore[k + 1];
        t.ArcTipo[k] = t.ArcTipo[k + 1];
      }
      --a.NumArchi;
      tolto = true;
    }
  }
  return tolto;
}

bool PassoTesti(ArchivioDisegno& a) {
  TabelleDisegno& t = a.Tabelle();
  bool tolto = false;
  std::int32_t i = 0;
  while (i < a.NumTesti) {
    if (t.TestoLarghezza[i] > 0 && t.TestoAltezza[i] > 0) {
      ++i;
      continue;
    }
    for (std::int32_t k = i; k < a.NumTesti - 1; ++k) {
      t.TestoPunto[k] = t.TestoPunto[k + 1];
      t.TestoAngolo[k] = t.TestoAngolo[k + 1];
      t.TestoLarghezza[k] = t.TestoLarghezza[k + 1];
      t.TestoAltezza[k] = t.TestoAltezza[k + 1];
      t.TestoColore[k] = t.TestoColore[k + 1];
      t.TestoStringa[k] = t.TestoStringa[k + 1];
    }
    --a.NumTesti;
    tolto = true;
  }
  return tolto;
}

template <class Tab>
void Sostituisci(Tab& tabella, std::int32_t righe, std::int32_t da, std::int32_t verso) {
  for (std::int32_t k = 0; k < righe; ++k) {
    if (tabella[k] == da) tabella[k] = verso;
  }
}

void PassoUnione(ArchivioDisegno& a) {
  TabelleDisegno& t = a.Tabelle();
  for (std::int32_t i = 0; i < a.NumCoord; ++i) {
    for (std::int32_t j = i + 1; j < a.NumCoord; ++j) {
      if (std::abs(t.CoordX[i] - t.CoordX[j]) < 0.0001 &&
          std::abs(t.CoordY[i] - t.CoordY[j]) < 0.0001) {
        Sostituisci(t.LinP1, a.NumLinee, j, i);
        Sostituisci(t.LinP2, a.NumLinee, j, i);
        Sostituisci(t.ArcCentro, a.NumArchi, j, i);
        Sostituisci(t.ArcInizio, a.NumArchi, j, i);
        Sostituisci(t.ArcCentro2, a.NumArchi, j, i);
        Sostituisci(t.TestoPunto, a.NumTesti, j, i);
      }
    }
  }
}

template <class Tab>
bool Contiene(const Tab& tabella, std::int32_t righe, std::int32_t i) {
  for (std::int32_t k = 0; k < righe; ++k) {
    if (tabella[k] == i) return true;
  }
  return false;
}

template <class Tab>
void Scala(Tab& tabella, std::int32_t righe, std::int32_t i) {
  for (std::int32_t k = 0; k < righe; ++k) {
    if (tabella[k] > i) --tabella[k];
  }
}

bool PassoSpazzata(ArchivioDisegno& a) {
  TabelleDisegno& t = a.Tabelle();
  bool tolto = false;
  std::int32_t i = 0;
  while (i < a.NumCoord) {
    const bool usata =
        Contiene(t.LinP1, a.NumLinee, i) || Contiene(t.LinP2, a.NumLinee, i) ||
        Contiene(t.PuntoRif, a.NumPunti, i) || Contiene(t.TestoPunto, a.NumTesti, i) ||
        Contiene(t.ArcCentro, a.NumArchi, i) || Contiene(t.ArcInizio, a.NumArchi, i) ||
        Contiene(t.ArcCentro2, a.NumArchi, i) || Contiene(t.ArcFine, a.NumArchi, i);
    if (usata) {
      ++i;
      continue;
    }
    Scala(t.LinP1, a.NumLinee, i);
    Scala(t.LinP2, a.NumLinee, i);
    Scala(t.PuntoRif, a.NumPunti, i);
    Scala(t.TestoPunto, a.NumTesti, i);
    Scala(t.ArcCentro, a.NumArchi, i);
    Scala(t.ArcInizio, a.NumArchi, i);
    Scala(t.ArcCentro2, a.NumArchi, i);
    Scala(t.ArcFine, a.NumArchi, i);
    for (std::int32_t k = i; k < a.NumCoord - 1; ++k) {
      t.CoordX[k] = t.CoordX[k + 1];
      t.CoordY[k] = t.CoordY[k + 1];
    }
    --a.NumCoord;
    tolto = true;
  }
  return tolto;
}

}  // namespace

void PulisciDisegnoOracolo(ArchivioDisegno& a) {
  while (PassoLinee(a)) {
  }
  while (PassoArchi(a)) {
  }
  while (PassoTesti(a)) {
  }
  PassoUnione(a);
  while (PassoSpazzata(a)) {
  }
}

namespace {

class Riempitore {
 public:
  Riempitore(ArchivioDisegno& a, std::uint64_t seme) : a_(a), t_(a.Tabelle()), g_(seme) {}

  double Caso(double da, double a) { return std::uniform_real_distribution<double>(da, a)(g_); }
  std::int32_t Intero(std::int32_t da, std::int32_t a) {
    return std::uniform_int_distribution<std::int32_t>(da, a)(g_);
  }
  bool Prob(double p) { return Caso(0, 1) < p; }

  // A new coordinate while there is room, else an old one.
  std::int32_t Coord(double x, double y) {
    if (a_.NumCoord >= kUltimaCoordinata) return Intero(0, a_.NumCoord - 1);
    t_.CoordX[a_.NumCoord] = x;
    t_.CoordY[a_.NumCoord] = y;
    return a_.NumCoord++;
  }

  // A point placed again on an earlier one: exactly, just inside or just outside the tolerance.
  std::int32_t CoordRipetuta() {
    const std::int32_t k = Intero(0, a_.NumCoord - 1);
    const double scarti[] = {0, 0, 0.00005, -0.00009, 0.00011, 0.0002};
    const double dx = scarti[Intero(0, 5)];
    const double dy = scarti[Intero(0, 5)];
    return Coord(t_.CoordX[k] + dx, t_.CoordY[k] + dy);
  }

  void Linea(std::int32_t p1, std::int32_t p2, std::int16_t colore, std::int16_t tipo) {
    const std::int32_t i = a_.NumLinee++;
    t_.LinP1[i] = p1;
    t_.LinP2[i] = p2;
    t_.LinColore[i] = colore;
    t_.LinTipo[i] = tipo;
  }

  // Colour and type: mostly continuous, one in four dashed or dash-dot.
  void Stile(std::int16_t& colore, std::int16_t& tipo) {
    colore = static_cast<std::int16_t>(Intero(0, 7));
    tipo = Prob(0.25) ? (Prob(0.5) ? 4 : 1) : 0;
  }

  // A dashed line on part of an earlier line.
  void LineaSopra() {
    const std::int32_t j = Intero(0, a_.NumLinee - 1);
    const double ax = t_.CoordX[t_.LinP1[j]], ay = t_.CoordY[t_.LinP1[j]];
    const double bx = t_.CoordX[t_.LinP2[j]], by = t_.CoordY[t_.LinP2[j]];
    const double u0 = Prob(0.3) ? 0 : Caso(0, 0.5);
    const double u1 = Prob(0.3) ? 1 : Caso(0.5, 1);
    const std::int32_t p1 = Coord(ax + u0 * (bx - ax), ay + u0 * (by - ay));
    const std::int32_t p2 = Coord(ax + u1 * (bx - ax), ay + u1 * (by - ay));
    Linea(p1, p2, static_cast<std::int16_t>(Intero(1, 7)), Prob(0.5) ? 4 : 1);
  }

  // Strokes of 2 to 40 mm, mostly along the axes. Past `tetto` coordinates a stroke goes back
  // to an earlier point of the same polyline instead: an edge drawn twice, as details overlap.
  void Polilinea(std::int32_t linee, std::int32_t tetto) {
    std::vector<std::int32_t> punti{Coord(Caso(0, 4000), Caso(0, 3000))};
    for (std::int32_t k = 0; k < linee && a_.NumLinee < kUltimaLinea; ++k) {
      const std::int32_t p = punti.back();
      if (a_.NumLinee > 0 && Prob(0.08)) {
        LineaSopra();
        continue;
      }
      std::int32_t q;
      if (a_.NumCoord >= tetto && punti.size() > 1) {
        q = punti[static_cast<std::size_t>(Intero(0, static_cast<std::int32_t>(punti.size()) - 2))];
      } else if (Prob(0.2)) {
        q = CoordRipetuta();
      } else {
        const double l = Caso(2, 40) * (Prob(0.5) ? 1 : -1);
        const double scelta = Caso(0, 1);
        const double dx = scelta < 0.35 ? l : (scelta < 0.7 ? 0 : l * Caso(-1, 1));
        const double dy = scelta < 0.35 ? 0 : (scelta < 0.7 ? l : l * Caso(-1, 1));
        q = Coord(t_.CoordX[p] + dx, t_.CoordY[p] + dy);
      }
      std::int16_t colore, tipo;
      Stile(colore, tipo);
      Linea(p, q, colore, tipo);
      punti.push_back(q);
    }
  }

  void Cornice(std::int32_t righe) {
    for (std::int32_t k = 0; k < righe && a_.NumLinee < kUltimaLinea; ++k) {
      const double y = 3000.0 * k / righe;
      Linea(Coord(0, y), Coord(4000, y), 1, 0);
      const double x = 4000.0 * k / righe;
      if (a_.NumLinee < kUltimaLinea) Linea(Coord(x, 0), Coord(x, 3000), 3, k % 7 == 0 ? 4 : 0);
    }
  }

  void Archi(std::int32_t n) {
    for (std::int32_t k = 0; k < n && a_.NumArchi < kUltimoArco; ++k) {
      const std::int32_t i = a_.NumArchi++;
      if (i > 0 && Prob(0.1)) {
        const std::int32_t j = Intero(0, i - 1);
        t_.ArcCentro[i] = t_.ArcCentro[j];
        t_.ArcInizio[i] = t_.ArcInizio[j];
        t_.ArcCentro2[i] = t_.ArcCentro2[j];
        t_.ArcFine[i] = t_.ArcFine[j];
        t_.ArcColore[i] = t_.ArcColore[j];
        t_.ArcTipo[i] = t_.ArcTipo[j];
        continue;
      }
      const std::int32_t c = Intero(0, a_.NumCoord - 1);
      const double r = Caso(3, 15);
      const std::int32_t inizio = Coord(t_.CoordX[c] + r, t_.CoordY[c]);
      t_.ArcCentro[i] = c;
      t_.ArcInizio[i] = inizio;
      t_.ArcCentro2[i] = Prob(0.9) ? c : Intero(0, a_.NumCoord - 1);
      t_.ArcFine[i] = Prob(0.7) ? inizio : Coord(t_.CoordX[c], t_.CoordY[c] + r);
      t_.ArcColore[i] = static_cast<std::int16_t>(Intero(1, 7));
      t_.ArcTipo[i] = 0;
    }
  }

  void Testi(std::int32_t n) {
    for (std::int32_t k = 0; k < n && a_.NumTesti < kUltimoTesto; ++k) {
      const std::int32_t i = a_.NumTesti++;
      t_.TestoPunto[i] = Prob(0.5) ? Intero(0, a_.NumCoord - 1) : CoordRipetuta();
      t_.TestoAngolo[i] = static_cast<std::int16_t>(Prob(0.8) ? 0 : 90);
      t_.TestoLarghezza[i] = static_cast<std::int16_t>(Prob(0.05) ? 0 : Intero(50, 120));
      t_.TestoAltezza[i] = static_cast<std::int16_t>(Prob(0.05) ? 0 : Intero(50, 120));
      t_.TestoColore[i] = static_cast<std::int16_t>(Intero(1, 7));
      t_.TestoStringa[i] = std::to_string(i);
    }
  }

 private:
  ArchivioDisegno& a_;
  TabelleDisegno& t_;
  std::mt19937_64 g_;
};

}  // namespace

void RiempiDisegnoPieno(ArchivioDisegno& a, std::int32_t linee, std::uint64_t seme) {
  AzzeraDisegno(a);
  Riempitore r(a, seme);
  const std::int32_t tetto = std::min(kUltimaCoordinata, linee) * 3 / 5;
  r.Cornice(std::max(4, linee / 500));
  while (a.NumLinee < linee) r.Polilinea(std::min(linee - a.NumLinee, r.Intero(5, 60)), tetto);
  r.Archi(std::min(kUltimoArco, linee * 3 / 10));
  r.Testi(std::min(kUltimoTesto, linee * 3 / 10));
  // Points no row refers to any more, up to the requested size of the table.
  while (a.NumCoord < std::min(kUltimaCoordinata, linee)) r.CoordRipetuta();
}

}  // namespace qf17::prova
