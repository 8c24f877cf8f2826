#include <string>

#include "disegno/esporta_disegno.h"
#include "disegno/formati/salva_svg.h"
#include "disegno/puntatore_occupato.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"

namespace qf17 {

std::string PercorsoNodoDis(const Sessione& s) {
  return (Percorso(s.cartelle.progra) / kFileNodoDis).string();
}

std::string TestoIngressoVisualizzatore(const std::string& dis) {
  std::string c;
  AggiungiRiga(c, TestoLista(2LL));
  AggiungiRiga(c, dis);
  // The window of the sheet the viewer opens on.
  for (long long v : {0LL, 0LL, 8000LL, 8000LL}) AggiungiRiga(c, TestoLista(v));
  return c;
}

std::string PercorsoNodoSvg(const Sessione& s) {
  return (Percorso(s.cartelle.temp) / kFileNodoSvg).string();
}

bool SalvaNodoDis(Sessione& s) {
  return EsportaDisegno(s, PercorsoNodoDis(s), 1, "DIS");
}

void ApriVisualizzatore(Sessione& s) {
  PuntatoreOccupato occupato(s.piattaforma);
  SalvaNodoDis(s);
  // A platform with a drawing viewer of its own shows the sheet as nodo.dis holds it.
  const std::string svg = PercorsoNodoSvg(s);
  if (SalvaSvg(s, svg, 1) && s.piattaforma.Mostra(Vista::Disegno, svg)) return;
  const std::string dis = PercorsoNodoDis(s);
  if (s.piattaforma.AttivaFinestra(std::string(kTitoloVisualizzatore) + dis,
                                   std::string(kTastiRicarica))) {
    return;
  }
  const auto progra = Percorso(s.cartelle.progra);
  // A viewer that cannot be told which file to open is as good as missing.
  const bool avviato =
      ScriviFileSicuro(progra / kFileIngressoVisualizzatore, TestoIngressoVisualizzatore(dis)) &&
      s.piattaforma.Avvia((progra / kProgrammaVisualizzatore).string(), "", false);
  if (!avviato) {
    s.piattaforma.Messaggio(std::string(kVisualizzatoreMancante), "ERRORE", Icona::Attenzione,
                            Pulsanti::Ok);
  }
}

}  // namespace qf17
