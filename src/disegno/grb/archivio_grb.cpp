#include "disegno/grb/archivio_grb.h"

#include <cmath>
#include <string>

#include "disegno/archivio_disegno.h"
#include "nodo/avvio.h"
#include "nodo/sessione.h"

namespace qf17 {

namespace {

bool VersoArchivio(const Sessione& s) {
  return s.disegno.DestinazioneDisegno == kDestinazioneArchivio;
}

void AvvisoLimiteGrb(Sessione& s, std::string_view testo) {
  s.piattaforma.Messaggio(std::string(testo), std::string(kTitoloProgramma), Icona::Nessuna,
                          Pulsanti::Ok);
}

std::string TipoQuota(double x1, double y1, double x2, double y2) {
  if (std::abs(y1 - y2) < kTolleranzaDisegno) return "H";
  if (std::abs(x1 - x2) < kTolleranzaDisegno) return "V";
  return "P";
}

}  // namespace

void ScriviTestoGRB(Sessione& s, const std::string& testo, double x1, double y1, double x2,
                    double y2, std::int16_t angolo, std::int16_t modo, std::int16_t stile) {
  if (!VersoArchivio(s)) return;
  ArchivioDisegno& a = s.disegno;
  if (a.NumTesti == kUltimoTesto - 1) AvvisoLimiteGrb(s, kLimiteTestiGrb);
  if (a.NumTesti >= kUltimoTesto) return;
  double x = x1;
  double y = y1;
  if (modo == kAncoraAlCentro) {
    x = (x1 + x2) / 2;
    y = (y1 + y2) / 2;
  } else if (modo == kAncoraAllaFine) {
    x = x2;
    y = y2;
  }
  TabelleDisegno& t = a.Tabelle();
  const std::int32_t riga = a.NumTesti++;
  t.TestoPunto[riga] = AggiungiCoordinata(a, s.piattaforma, x + a.OrigineX, y + a.OrigineY);
  t.TestoAngolo[riga] = angolo;
  t.TestoLarghezza[riga] = 0;
  t.TestoAltezza[riga] = 0;
  t.TestoColore[riga] = stile;
  t.TestoAllineamento[riga] = modo;
  t.TestoStringa[riga] = testo;
  if (t.TestoPunto[riga] < 0) --a.NumTesti;
}

void QuotaGRB(Sessione& s, const std::string& testo, double x1, double y1, double x2, double y2,
              double scost, std::int16_t stile) {
  if (!VersoArchivio(s)) return;
  ArchivioDisegno& a = s.disegno;
  if (a.NumQuote == kUltimaQuota - 1) AvvisoLimiteGrb(s, kLimiteQuoteGrb);
  if (a.NumQuote >= kUltimaQuota) return;
  if (std::abs(x1 - x2) < kTolleranzaDisegno && std::abs(y1 - y2) < kTolleranzaDisegno) return;
  const std::int16_t p1 = AggiungiCoordinata(a, s.piattaforma, x1 + a.OrigineX, y1 + a.OrigineY);
  const std::int16_t p2 = AggiungiCoordinata(a, s.piattaforma, x2 + a.OrigineX, y2 + a.OrigineY);
  // A full coordinate table leaves no point to refer to: the dimension is dropped.
  if (p1 < 0 || p2 < 0) return;
  TabelleDisegno& t = a.Tabelle();
  const std::int16_t riga = a.NumQuote++;
  t.QuotaP1[riga] = p1;
  t.QuotaP2[riga] = p2;
  t.QuotaTipo[riga] = TipoQuota(x1, y1, x2, y2);
  t.QuotaStile[riga] = stile;
  t.QuotaScost[riga] = scost;
  t.QuotaTesto[riga] = testo.empty() ? std::string(kTestoQuotaPredefinito) : testo;
}

}  // namespace qf17
