#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include "nodo/sessione.h"
#include "verifica/bulloni_ta.h"
#include "verifica/comuni.h"

namespace qf17 {

namespace {

// Message flags 1, 3, 4, 5; 2 has never been used.
struct Difformita {
  bool fuoriArea = false;    // 1
  bool bordo = false;        // 3
  bool coincidenti = false;  // 4
  bool interasse = false;    // 5
};

struct GruppoInEsame {
  const Nodo& nodo;
  const Opzioni& opzioni;
  int gruppo;  // 0 chord, 1..3 members
  int n;
  const Profilo& profilo;
  double tmin;
};

bool FuoriArea(const GruppoInEsame& c, const AreaBullonata& area) {
  for (int k = 1; k <= c.n; ++k) {
    const double x = c.nodo.xBull(c.gruppo, k);
    const double y = c.nodo.yBull(c.gruppo, k);
    if (x > area.LArea || x < 0 || y > area.HArea || y < 0) return true;
  }
  return false;
}

// End and edge distances: the least over the bolts, each with the bolt it belongs to.
bool BordoDifforme(const GruppoInEsame& c, const AreaBullonata& area, double Fy) {
  double eX = std::numeric_limits<double>::max();
  double eY = std::numeric_limits<double>::max();
  int kX = 1;
  int kY = 1;
  for (int k = 1; k <= c.n; ++k) {
    const double x = c.nodo.xBull(c.gruppo, k);
    const double y = c.nodo.yBull(c.gruppo, k);
    if (x < eX) {
      eX = x;
      kX = k;
    }
    if (area.LArea - x < eX) {
      eX = area.LArea - x;
      kX = k;
    }
    const double yBordo = c.profilo.Tipo == 0 ? c.profilo.e + y : y;
    // The distance from the far side of the section is worked out but has never entered the
    // rule: only the near side counts.
    [[maybe_unused]] const double yBordoOpposto = c.profilo.h - yBordo;
    if (yBordo < eY) {
      eY = yBordo;
      kY = k;
    }
  }
  const double d0X = DiamForo(c.opzioni, c.nodo.FiBull(c.gruppo, kX));
  const double d0Y = DiamForo(c.opzioni, c.nodo.FiBull(c.gruppo, kY));
  bool difforme = false;
  if (Fy != 0) {
    if (eY < 2 * d0Y || eX < 2 * d0X) difforme = true;
  } else {
    if (eY < 1.5 * d0Y || eX < 2 * d0X) difforme = true;
  }
  const double m = c.profilo.Tipo == 0 ? 9 : 6;
  if (eY > m * c.tmin || eX > m * c.tmin) difforme = true;
  return difforme;
}

// Pitch along and across the group: of each pair, the step counts only when the pair lies
// within two diameters of one line. The pair scan is quadratic in the bolts.
void Interassi(const GruppoInEsame& c, const AreaBullonata& area, double Fx, double Fy,
               Difformita& esito) {
  double pX = area.LArea;
  double pY = area.HArea;
  double dm = c.nodo.FiBull(c.gruppo, 1);
  for (int k = 2; k <= c.n; ++k) dm = MinDi(dm, c.nodo.FiBull(c.gruppo, k));
  for (int k = 1; k <= c.n && !esito.coincidenti; ++k) {
    for (int m = 1; m <= c.n; ++m) {
      if (m == k) continue;
      const double dx = std::abs(c.nodo.xBull(c.gruppo, k) - c.nodo.xBull(c.gruppo, m));
      const double dy = std::abs(c.nodo.yBull(c.gruppo, k) - c.nodo.yBull(c.gruppo, m));
      if (dx < 0.0001 && dy < 0.0001) {
        esito.coincidenti = true;
        break;
      }
      if (dy > 0.0001) {
        if (2 * dm > dx && dy < pY) {
          pY = dy;
        } else if (pY < 0.0001) {
          pY = dy;
        }
      }
      if (dx > 0.0001) {
        if (2 * dm > dy && dx < pX) {
          pX = dx;
        } else if (pX < 0.0001) {
          pX = dx;
        }
      }
    }
  }
  if (esito.coincidenti) return;
  if (Fy != 0 && pY > 0.0001 && (pY < 3 * dm || pY > 25 * c.tmin)) esito.interasse = true;
  if (pX > 0.0001 && pX < 3 * dm) esito.interasse = true;
  if (Fx > 0 ? pX > 25 * c.tmin : pX > 15 * c.tmin) esito.interasse = true;
}

std::string Dove(int g) {
  if (g == 1) return " sul corrente";
  return std::string(" sull'asta ") + static_cast<char>('A' + g - 2);
}

}  // namespace

void ControlliDisposizioneTA(Sessione& sessione, int g, const AreaBullonata& area, double Fx,
                             double Fy) {
  const Nodo& nodo = sessione.nodo;
  const int gruppo = g - 1;
  const Profilo& profilo = g == 1 ? nodo.Corrente : nodo.Aste[gruppo];
  const double tmin = MinDi(nodo.Fz_s, profilo.a);
  const GruppoInEsame c{nodo, sessione.opzioni, gruppo, nodo.nBull[gruppo], profilo, tmin};

  Difformita esito;
  esito.fuoriArea = FuoriArea(c, area);
  esito.bordo = BordoDifforme(c, area, Fy);
  if (c.n > 1) Interassi(c, area, Fx, Fy, esito);

  RisultatiVerifica& r = sessione.Risultati();
  r.Interrompi = 0;
  const std::pair<bool, const char*> avvisi[] = {
      {esito.fuoriArea, "Bulloni fuori dall' area bullonabile"},
      {esito.bordo,
       "La distanza dei bulloni dal bordo risulta difforme dalle prescrizioni della CNR-UNI "
       "10011"},
      {esito.coincidenti, "Bulloni coincidenti"},
      {esito.interasse,
       "L'interasse dei bulloni risulta difforme dalle prescrizioni della CNR-UNI 10011"}};
  for (const auto& [alzato, frase] : avvisi) {
    if (!alzato) continue;
    const Risposta risposta = sessione.piattaforma.Messaggio(
        frase + Dove(g), "ATTENZIONE!", Icona::Attenzione, Pulsanti::OkAnnulla);
    if (risposta == Risposta::Annulla) r.Interrompi = 1;
  }
}

}  // namespace qf17
