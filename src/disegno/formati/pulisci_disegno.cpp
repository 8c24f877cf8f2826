#include "disegno/formati/pulisci_disegno.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <string>
#include <vector>

#include "disegno/archivio_disegno.h"
#include "disegno/formati/pulisci_passi.h"
#include "piattaforma/errori.h"

namespace qf17 {

namespace {

template <class T, int P, int U>
void VerificaRiferimenti(const Tabella<T, P, U>& tabella, std::int32_t righe, std::int32_t numCoord,
                         const char* nome) {
  for (std::int32_t i = 0; i < righe; ++i) {
    if (tabella[i] < 0 || tabella[i] >= numCoord) {
      throw ErroreFatale(std::string("Disegno non valido: ") + nome + " della riga " +
                         std::to_string(i) + " rimanda alla coordinata " +
                         std::to_string(tabella[i]) + ", fuori dalle " + std::to_string(numCoord) +
                         " della tabella");
    }
  }
}

// A failed coordinate leaves -1 only in a drawing whose coordinate table is full, which the
// 16-bit index never lets happen; such a drawing is refused rather than read out of bounds.
void VerificaConteggio(std::int32_t conteggio, int ultimo, const char* nome) {
  if (conteggio < 0 || conteggio > ultimo + 1) {
    throw ErroreFatale(std::string("Disegno non valido: ") + nome + " vale " +
                       std::to_string(conteggio) + ", oltre la tabella (0.." +
                       std::to_string(ultimo) + ")");
  }
}

void VerificaArchivio(const ArchivioDisegno& a) {
  VerificaConteggio(a.NumCoord, kUltimaCoordinata, "NumCoord");
  VerificaConteggio(a.NumLinee, kUltimaLinea, "NumLinee");
  VerificaConteggio(a.NumPunti, kUltimoPunto, "NumPunti");
  VerificaConteggio(a.NumArchi, kUltimoArco, "NumArchi");
  VerificaConteggio(a.NumTesti, kUltimoTesto, "NumTesti");
  const TabelleDisegno& t = a.Tabelle();
  VerificaRiferimenti(t.LinP1, a.NumLinee, a.NumCoord, "LinP1");
  VerificaRiferimenti(t.LinP2, a.NumLinee, a.NumCoord, "LinP2");
  VerificaRiferimenti(t.PuntoRif, a.NumPunti, a.NumCoord, "PuntoRif");
  VerificaRiferimenti(t.ArcCentro, a.NumArchi, a.NumCoord, "ArcCentro");
  VerificaRiferimenti(t.ArcInizio, a.NumArchi, a.NumCoord, "ArcInizio");
  VerificaRiferimenti(t.ArcCentro2, a.NumArchi, a.NumCoord, "ArcCentro2");
  VerificaRiferimenti(t.ArcFine, a.NumArchi, a.NumCoord, "ArcFine");
  VerificaRiferimenti(t.TestoPunto, a.NumTesti, a.NumCoord, "TestoPunto");
}

// Moves the rows to keep down over the others, in order; returns the new count.
template <class F>
std::int32_t Compatta(std::int32_t righe, const std::vector<bool>& tieni, F sposta) {
  std::int32_t n = 0;
  for (std::int32_t i = 0; i < righe; ++i) {
    if (!tieni[static_cast<std::size_t>(i)]) continue;
    if (n != i) sposta(i, n);
    ++n;
  }
  return n;
}

void PulisciLinee(ArchivioDisegno& a, double latoCella) {
  TabelleDisegno& t = a.Tabelle();
  a.NumLinee =
      Compatta(a.NumLinee, LineeDaTenere(a, latoCella), [&t](std::int32_t da, std::int32_t in) {
        t.LinP1[in] = t.LinP1[da];
        t.LinP2[in] = t.LinP2[da];
        t.LinColore[in] = t.LinColore[da];
        t.LinTipo[in] = t.LinTipo[da];
      });
}

// An arc equal in all six fields to an earlier one goes.
void PulisciArchi(ArchivioDisegno& a) {
  TabelleDisegno& t = a.Tabelle();
  using Chiave = std::array<std::int32_t, 6>;
  const auto n = static_cast<std::size_t>(a.NumArchi);
  std::vector<Chiave> chiavi(n);
  for (std::size_t i = 0; i < n; ++i) {
    const auto r = static_cast<std::int32_t>(i);
    chiavi[i] = {t.ArcCentro[r], t.ArcInizio[r], t.ArcCentro2[r],
                 t.ArcFine[r],   t.ArcColore[r], t.ArcTipo[r]};
  }
  std::vector<std::int32_t> ordine(n);
  std::iota(ordine.begin(), ordine.end(), 0);
  std::stable_sort(ordine.begin(), ordine.end(), [&chiavi](std::int32_t x, std::int32_t y) {
    return chiavi[static_cast<std::size_t>(x)] < chiavi[static_cast<std::size_t>(y)];
  });
  std::vector<bool> tieni(n, true);
  for (std::size_t k = 1; k < n; ++k) {
    const auto prima = static_cast<std::size_t>(ordine[k - 1]);
    const auto questa = static_cast<std::size_t>(ordine[k]);
    if (chiavi[prima] == chiavi[questa]) tieni[questa] = false;
  }
  a.NumArchi = Compatta(a.NumArchi, tieni, [&t](std::int32_t da, std::int32_t in) {
    t.ArcCentro[in] = t.ArcCentro[da];
    t.ArcInizio[in] = t.ArcInizio[da];
    t.ArcCentro2[in] = t.ArcCentro2[da];
    t.ArcFine[in] = t.ArcFine[da];
    t.ArcColore[in] = t.ArcColore[da];
    t.ArcTipo[in] = t.ArcTipo[da];
  });
}

void PulisciTesti(ArchivioDisegno& a) {
  TabelleDisegno& t = a.Tabelle();
  std::vector<bool> tieni(static_cast<std::size_t>(a.NumTesti));
  for (std::int32_t i = 0; i < a.NumTesti; ++i) {
    tieni[static_cast<std::size_t>(i)] = t.TestoLarghezza[i] > 0 && t.TestoAltezza[i] > 0;
  }
  a.NumTesti = Compatta(a.NumTesti, tieni, [&t](std::int32_t da, std::int32_t in) {
    t.TestoPunto[in] = t.TestoPunto[da];
    t.TestoAngolo[in] = t.TestoAngolo[da];
    t.TestoLarghezza[in] = t.TestoLarghezza[da];
    t.TestoAltezza[in] = t.TestoAltezza[da];
    t.TestoColore[in] = t.TestoColore[da];
    t.TestoStringa[in] = std::move(t.TestoStringa[da]);
  });
}

template <class T, int P, int U, class F>
void PerOgniRiferimento(Tabella<T, P, U>& tabella, std::int32_t righe, F cambia) {
  for (std::int32_t i = 0; i < righe; ++i) tabella[i] = cambia(tabella[i]);
}

// Arc ends and markers keep the coordinate they had, as the family's merge leaves them.
void UnisciCoordinate(ArchivioDisegno& a) {
  TabelleDisegno& t = a.Tabelle();
  const std::vector<std::int32_t> prima = PrimeCoordinateUguali(a);
  auto verso = [&prima](std::int32_t i) { return prima[static_cast<std::size_t>(i)]; };
  PerOgniRiferimento(t.LinP1, a.NumLinee, verso);
  PerOgniRiferimento(t.LinP2, a.NumLinee, verso);
  PerOgniRiferimento(t.ArcCentro, a.NumArchi, verso);
  PerOgniRiferimento(t.ArcInizio, a.NumArchi, verso);
  PerOgniRiferimento(t.ArcCentro2, a.NumArchi, verso);
  PerOgniRiferimento(t.TestoPunto, a.NumTesti, verso);
}

void RimuoviCoordinateInutili(ArchivioDisegno& a) {
  TabelleDisegno& t = a.Tabelle();
  std::vector<bool> usata(static_cast<std::size_t>(a.NumCoord), false);
  auto segna = [&usata](std::int32_t i) {
    usata[static_cast<std::size_t>(i)] = true;
    return i;
  };
  PerOgniRiferimento(t.LinP1, a.NumLinee, segna);
  PerOgniRiferimento(t.LinP2, a.NumLinee, segna);
  PerOgniRiferimento(t.PuntoRif, a.NumPunti, segna);
  PerOgniRiferimento(t.TestoPunto, a.NumTesti, segna);
  PerOgniRiferimento(t.ArcCentro, a.NumArchi, segna);
  PerOgniRiferimento(t.ArcInizio, a.NumArchi, segna);
  PerOgniRiferimento(t.ArcCentro2, a.NumArchi, segna);
  PerOgniRiferimento(t.ArcFine, a.NumArchi, segna);

  std::vector<std::int32_t> nuovo(usata.size());
  a.NumCoord = Compatta(a.NumCoord, usata, [&t](std::int32_t da, std::int32_t in) {
    t.CoordX[in] = t.CoordX[da];
    t.CoordY[in] = t.CoordY[da];
  });
  std::int32_t n = 0;
  for (std::size_t i = 0; i < usata.size(); ++i) {
    nuovo[i] = n;
    if (usata[i]) ++n;
  }
  auto rinumera = [&nuovo](std::int32_t i) { return nuovo[static_cast<std::size_t>(i)]; };
  PerOgniRiferimento(t.LinP1, a.NumLinee, rinumera);
  PerOgniRiferimento(t.LinP2, a.NumLinee, rinumera);
  PerOgniRiferimento(t.PuntoRif, a.NumPunti, rinumera);
  PerOgniRiferimento(t.TestoPunto, a.NumTesti, rinumera);
  PerOgniRiferimento(t.ArcCentro, a.NumArchi, rinumera);
  PerOgniRiferimento(t.ArcInizio, a.NumArchi, rinumera);
  PerOgniRiferimento(t.ArcCentro2, a.NumArchi, rinumera);
  PerOgniRiferimento(t.ArcFine, a.NumArchi, rinumera);
}

}  // namespace

void PulisciDisegno(ArchivioDisegno& a) {
  PulisciDisegnoConCelle(a, 0);
}

void PulisciDisegnoConCelle(ArchivioDisegno& a, double latoCella) {
  VerificaArchivio(a);
  PulisciLinee(a, latoCella);
  PulisciArchi(a);
  PulisciTesti(a);
  UnisciCoordinate(a);
  RimuoviCoordinateInutili(a);
}

}  // namespace qf17
