#include "disegno/esporta_disegno.h"

#include <string>

#include "disegno/archivio_disegno.h"
#include "disegno/esecutivo/composizione.h"
#include "disegno/esecutivo/tavola_dis.h"
#include "disegno/formati/pulisci_disegno.h"
#include "disegno/formati/salva_dis.h"
#include "disegno/formati/salva_dxf.h"
#include "disegno/formati/salva_svg.h"
#include "disegno/grb/salva_grb.h"
#include "disegno/puntatore_occupato.h"
#include "librerie/token.h"
#include "nodo/avvio.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

// The store is the target only while composition runs, even when it stops on a fatal error.
class DestinazioneArchivio {
 public:
  explicit DestinazioneArchivio(ArchivioDisegno& a) : a_(a) {
    a_.DestinazioneDisegno = std::string(kDestinazioneArchivio);
  }
  ~DestinazioneArchivio() { a_.DestinazioneDisegno.clear(); }
  DestinazioneArchivio(const DestinazioneArchivio&) = delete;
  DestinazioneArchivio& operator=(const DestinazioneArchivio&) = delete;

 private:
  ArchivioDisegno& a_;
};

void Componi(Sessione& s) {
  AzzeraDisegno(s.disegno);
  DestinazioneArchivio destinazione(s.disegno);
  TavolaDis tavola(s);
  ComponiEsecutivo(tavola);
}

}  // namespace

bool EsportaDisegno(Sessione& s, const std::string& nome, std::int16_t silenzioso,
                    std::string_view tipo) {
  const std::string formato = Maiuscolo(tipo);
  if (formato == "DXF") return EsportaDxf(s, nome, ModoEsportaDxf{}, silenzioso);
  if (formato != "DIS" && formato != "SVG") return false;
  Componi(s);
  if (formato == "DIS") {
    std::int16_t versione = 4;
    SalvaDis(s, nome, versione, silenzioso);
    return versione == 1;
  }
  PulisciDisegno(s.disegno);
  return SalvaSvg(s, nome, silenzioso);
}

bool EsportaDxf(Sessione& s, const std::string& nome, const ModoEsportaDxf& modo,
                std::int16_t silenzioso) {
  Componi(s);
  return SalvaDxf(s, nome, modo.esplodiTesti ? 1 : 0, modo.monocromo ? 1 : 0, modo.scala,
                  modo.scala > 0 ? 1 : 0, silenzioso);
}

bool GeneraDisegno(Sessione& s) {
  RichiestaFile r;
  r.titolo = std::string(kTitoloDisegnoDaGenerare);
  r.filtro = std::string(kFiltroDisegno);
  r.estensione = "grb";
  r.cartella = s.nodo.DirLavoro;
  r.nome = s.nodo.NomeFileNodo;
  r.indiceFiltro = 1;
  r.flag = kFlagDialogoDisegno;
  const auto scelto = s.piattaforma.ScegliFileDaSalvare(r);
  if (!scelto) return false;
  if (scelto->percorso.empty()) {
    s.piattaforma.Messaggio(std::string(kCreazioneDisegnoFallita), std::string(kTitoloProgramma),
                            Icona::Nessuna, Pulsanti::Ok);
    return false;
  }
  PuntatoreOccupato occupato(s.piattaforma);
  switch (scelto->indiceFiltro) {
    case 1: {
      std::int16_t scritto = 0;
      SalvaGRB(s, scelto->percorso, scritto, 0);
      return scritto == 1;
    }
    case 2:
      return EsportaDisegno(s, scelto->percorso, 0, "DIS");
    default:
      return EsportaDisegno(s, scelto->percorso, 0, "DXF");
  }
}

void ApriVis(Sessione& s) {
  ApriVisualizzatore(s);
  SalvaGrbTemporaneo(s);
}

}  // namespace qf17
