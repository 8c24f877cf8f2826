#include "verifica/bulloni_comuni.h"

#include <cmath>

#include "nodo/sessione.h"
#include "verifica/comuni.h"

namespace qf17 {

const Profilo& ProfiloGruppo(const Nodo& nodo, int g) {
  return g == 1 ? nodo.Corrente : nodo.Aste[g - 1];
}

std::optional<GruppoRipartito> PreparaRipartizione(Sessione& sessione, int g) {
  const Nodo& nodo = sessione.nodo;
  GruppoRipartito r;
  r.gruppo = g - 1;
  if (g == 1 && nodo.Corrente.Tipo == 2) return std::nullopt;
  r.n = nodo.nBull[r.gruppo];
  if (r.n <= 0) return std::nullopt;
  r.area = AreaBullonataTA(nodo, g);

  // Centroid weighted by the nominal area of each bolt.
  double sommaAree = 0;
  double sommaX = 0;
  double sommaY = 0;
  for (int k = 1; k <= r.n; ++k) {
    const double d = nodo.FiBull(r.gruppo, k);
    const double area = kPiGreco * (d * d) / 4;
    sommaAree += area;
    sommaX += area * nodo.xBull(r.gruppo, k);
    sommaY += area * nodo.yBull(r.gruppo, k);
  }
  if (sommaAree <= 0.0001) {
    sessione.piattaforma.Messaggio("Area bulloni nulla nell'asta " + std::to_string(g), "QF17",
                                   Icona::Nessuna, Pulsanti::Ok);
    return std::nullopt;
  }
  r.xG = sommaX / sommaAree;
  r.yG = sommaY / sommaAree;

  // Not weighted by area, unlike the centroid: the family's bolt tables rest on this.
  for (int k = 1; k <= r.n; ++k) {
    const double dx = nodo.xBull(r.gruppo, k) - r.xG;
    const double dy = nodo.yBull(r.gruppo, k) - r.yG;
    r.Ip += dx * dx + dy * dy;
  }
  return r;
}

double MomentoBaricentrico(const GruppoRipartito& gruppo, double Fx, double Fy, double xP) {
  return (xP - gruppo.xG) * Fy - (gruppo.area.yP - gruppo.yG) * Fx;
}

QuotaBullone QuotaRigida(const Nodo& nodo, const GruppoRipartito& gruppo, int k, double Fx,
                         double Fy, double MomG) {
  const double dxB = nodo.xBull(gruppo.gruppo, k) - gruppo.xG;
  const double dyB = nodo.yBull(gruppo.gruppo, k) - gruppo.yG;
  return {Fx / gruppo.n - (MomG / gruppo.Ip) * dyB, Fy / gruppo.n + (MomG / gruppo.Ip) * dxB};
}

std::string DoveGruppo(int g) {
  if (g == 1) return " sul corrente";
  return std::string(" sull'asta ") + static_cast<char>('A' + g - 2);
}

bool BulloniFuoriArea(const Nodo& nodo, int gruppo, const AreaBullonata& area) {
  for (int k = 1; k <= nodo.nBull[gruppo]; ++k) {
    const double x = nodo.xBull(gruppo, k);
    const double y = nodo.yBull(gruppo, k);
    if (x > area.LArea || x < 0 || y > area.HArea || y < 0) return true;
  }
  return false;
}

DistanzeBordo DistanzeDaiBordi(const Nodo& nodo, int gruppo, const Profilo& profilo, double LArea,
                               double inizio) {
  DistanzeBordo e{inizio, 1, inizio, 1};
  for (int k = 1; k <= nodo.nBull[gruppo]; ++k) {
    const double x = nodo.xBull(gruppo, k);
    const double y = nodo.yBull(gruppo, k);
    if (x < e.eX) {
      e.eX = x;
      e.kX = k;
    }
    if (LArea - x < e.eX) {
      e.eX = LArea - x;
      e.kX = k;
    }
    const double yBordo = profilo.Tipo == 0 ? profilo.e + y : y;
    // The distance from the far side of the section is worked out but has never entered the
    // rules: only the near side counts.
    [[maybe_unused]] const double yBordoOpposto = profilo.h - yBordo;
    if (yBordo < e.eY) {
      e.eY = yBordo;
      e.kY = k;
    }
  }
  return e;
}

// Of each pair, a step counts only when the pair lies within two diameters of one line.
// Quadratic in the bolts; it runs once per group and run. The test against the pitch found so
// far comes first: it soon fails for nearly every pair, which keeps the loop's jumps
// predictable in scattered layouts.
Interassi ScansioneInterassi(const std::vector<double>& x, const std::vector<double>& y, double pX,
                             double pY, double dm, std::optional<double> pYInRiga) {
  Interassi p{pX, pY, false};
  const std::size_t n = x.size();
  for (std::size_t k = 0; k < n; ++k) {
    for (std::size_t m = 0; m < n; ++m) {
      if (m == k) continue;
      const double dx = std::abs(x[k] - x[m]);
      const double dy = std::abs(y[k] - y[m]);
      if (dx < 0.0001 && dy < 0.0001) {
        p.coincidenti = true;
        return p;
      }
      if (dy > 0.0001) {
        if (dy < p.pY && 2 * dm > dx) {
          p.pY = dy;
        } else if (p.pY < 0.0001) {
          p.pY = dy;
        }
      } else if (pYInRiga && dy < 0.0001) {
        p.pY = *pYInRiga;
      }
      if (dx > 0.0001) {
        if (dx < p.pX && 2 * dm > dy) {
          p.pX = dx;
        } else if (p.pX < 0.0001) {
          p.pX = dx;
        }
      }
    }
  }
  return p;
}

double DiametroMinimo(const Nodo& nodo, int gruppo) {
  double dm = nodo.FiBull(gruppo, 1);
  for (int k = 2; k <= nodo.nBull[gruppo]; ++k) dm = MinDi(dm, nodo.FiBull(gruppo, k));
  return dm;
}

void AvvisiDisposizione(Sessione& sessione, int g,
                        const std::vector<std::pair<bool, const char*>>& avvisi) {
  RisultatiVerifica& r = sessione.Risultati();
  r.Interrompi = 0;
  for (const auto& [alzato, frase] : avvisi) {
    if (!alzato) continue;
    const Risposta risposta = sessione.piattaforma.Messaggio(
        frase + DoveGruppo(g), "ATTENZIONE!", Icona::Attenzione, Pulsanti::OkAnnulla);
    if (risposta == Risposta::Annulla) r.Interrompi = 1;
  }
}

void AlzaBandierine(RisultatiVerifica& r, int j) {
  r.OkCorr[j] = 1;
  r.OkSotto[j] = 1;
  for (int g = 0; g <= 3; ++g) {
    r.OkTau(g, j) = 1;
    r.OkRif(g, j) = 1;
    r.OkProf(g, j) = 1;
    r.OkDiff(g, j) = 1;
  }
}

}  // namespace qf17
