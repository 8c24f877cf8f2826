#include "disegno/archivio_disegno_primitive.h"

#include <cmath>
#include <string>

#include "disegno/archivio_disegno.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "piattaforma/errori.h"

namespace qf17 {

namespace {

bool VersoArchivio(const Sessione& s) {
  return s.disegno.DestinazioneDisegno == kDestinazioneArchivio;
}

std::int16_t ColoreVisibile(std::int16_t colore) {
  return colore == 0 ? 1 : colore;
}

// The line type stored for the style in force; an unknown style keeps what the row held.
void ImpostaTipo(const ArchivioDisegno& a, TabelleDisegno& t, std::int32_t riga) {
  switch (a.StileLinea) {
    case 0:
      t.LinTipo[riga] = 0;
      break;
    case 1:
      t.LinTipo[riga] = 4;
      break;
    case 3:
      t.LinTipo[riga] = 1;
      break;
    default:
      break;
  }
}

}  // namespace

void RegistraLinea(Sessione& s, double x1, double y1, double x2, double y2, std::int16_t colore) {
  ArchivioDisegno& a = s.disegno;
  if (a.NumLinee == kUltimaLinea - 1) AvvisoLimiteDisegno(s.piattaforma, kLimiteLinee);
  if (a.NumLinee >= kUltimaLinea) return;
  TabelleDisegno& t = a.Tabelle();
  const std::int32_t riga = a.NumLinee++;
  t.LinP1[riga] = AggiungiCoordinata(a, s.piattaforma, x1, y1);
  t.LinP2[riga] = AggiungiCoordinata(a, s.piattaforma, x2, y2);
  ImpostaTipo(a, t, riga);
  t.LinColore[riga] = colore;
  // Only the second end is tested: once it fails the first has failed too, or stays at -1.
  if (t.LinP2[riga] < 0) --a.NumLinee;
  AggiornaEstensioni(a, s.nodo.Cor_teta, x1, y1);
  AggiornaEstensioni(a, s.nodo.Cor_teta, x2, y2);
}

void DisegnaLinea(Sessione& s, double x1, double y1, double x2, double y2, std::int16_t colore) {
  if (!VersoArchivio(s)) return;
  if (std::abs(x1 - x2) <= kTolleranzaDisegno && std::abs(y1 - y2) <= kTolleranzaDisegno) return;
  const ArchivioDisegno& a = s.disegno;
  RegistraLinea(s, x1 + a.OrigineX, y1 + a.OrigineY, x2 + a.OrigineX, y2 + a.OrigineY,
                ColoreVisibile(colore));
}

void DisegnaLineaRel(Sessione& s, double x, double y, double dx, double dy, std::int16_t colore) {
  DisegnaLinea(s, x, y, x + dx, y + dy, colore);
}

void DisegnaCerchio(Sessione& s, double x, double y, double diametro,
                    std::optional<std::int16_t> colore, double inizio, std::optional<double> fine) {
  if (!VersoArchivio(s)) return;
  if (diametro <= kTolleranzaDisegno) return;
  ArchivioDisegno& a = s.disegno;
  // The arc table has no message of its own and borrows the lines' one.
  if (a.NumArchi == kUltimoArco - 1) AvvisoLimiteDisegno(s.piattaforma, kLimiteLinee);
  if (a.NumArchi >= kUltimoArco) return;
  TabelleDisegno& t = a.Tabelle();
  const double fineArco = fine.value_or(inizio);
  const double cx = x + a.OrigineX;
  const double cy = y + a.OrigineY;
  const double r = diametro / 2;
  const std::int32_t riga = a.NumArchi++;
  t.ArcCentro[riga] = AggiungiCoordinata(a, s.piattaforma, cx, cy);
  t.ArcInizio[riga] =
      AggiungiCoordinata(a, s.piattaforma, cx + r * std::cos(inizio), cy + r * std::sin(inizio));
  t.ArcCentro2[riga] = t.ArcCentro[riga];
  t.ArcFine[riga] = AggiungiCoordinata(a, s.piattaforma, cx + r * std::cos(fineArco),
                                       cy + r * std::sin(fineArco));
  t.ArcTipo[riga] = 0;
  t.ArcColore[riga] = ColoreVisibile(colore.value_or(a.ColoreCorrente));
  if (t.ArcInizio[riga] < 0) --a.NumArchi;
}

void ScriviTesto(Sessione& s, const std::string& testo, double x, double y, std::int16_t angolo,
                 double larghezza, double altezza, std::int16_t colore) {
  if (!VersoArchivio(s)) return;
  ArchivioDisegno& a = s.disegno;
  if (a.NumTesti == kUltimoTesto - 1) AvvisoLimiteDisegno(s.piattaforma, kLimiteTesti);
  // The stop is tested against the lines' limit, not the texts' own: past the last row the
  // drawing fails rather than going on without the text.
  if (a.NumTesti == kUltimaLinea) return;
  const std::int32_t riga = a.NumTesti;
  if (riga > kUltimoTesto) {
    throw ErroreFatale("Troppi testi nel disegno: la riga " + std::to_string(riga) +
                       " è oltre la tabella dei testi (0.." + std::to_string(kUltimoTesto) + ")");
  }
  const std::int16_t decimiLarghezza = InI16(larghezza * 10);
  const std::int16_t decimiAltezza = InI16(altezza * 10);
  TabelleDisegno& t = a.Tabelle();
  ++a.NumTesti;
  t.TestoPunto[riga] = AggiungiCoordinata(a, s.piattaforma, x + a.OrigineX, y + a.OrigineY);
  t.TestoLarghezza[riga] = decimiLarghezza;
  t.TestoAltezza[riga] = decimiAltezza;
  t.TestoAngolo[riga] = angolo;
  t.TestoColore[riga] = ColoreVisibile(colore);
  t.TestoStringa[riga] = testo;
  if (t.TestoPunto[riga] < 0) --a.NumTesti;
}

}  // namespace qf17
