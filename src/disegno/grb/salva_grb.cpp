#include "disegno/grb/salva_grb.h"

#include <string>

#include "disegno/archivio_disegno.h"
#include "disegno/esecutivo/composizione.h"
#include "disegno/grb/crea_grb.h"
#include "disegno/grb/tavola_grb.h"
#include "disegno/puntatore_occupato.h"
#include "nodo/avvio.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"

namespace qf17 {

namespace {

// The store is the target only while the sheet is composed and written, even when composition
// stops on a fatal error.
class DestinazioneGrb {
 public:
  explicit DestinazioneGrb(ArchivioDisegno& a) : a_(a) {
    a_.DestinazioneDisegno = std::string(kDestinazioneArchivio);
  }
  ~DestinazioneGrb() { a_.DestinazioneDisegno.clear(); }
  DestinazioneGrb(const DestinazioneGrb&) = delete;
  DestinazioneGrb& operator=(const DestinazioneGrb&) = delete;

 private:
  ArchivioDisegno& a_;
};

}  // namespace

void SalvaGRBSuFile(Sessione& s, const std::string& nome, std::int16_t& scritto,
                    std::int16_t silenzioso) {
  AzzeraDisegno(s.disegno);
  bool riuscito = false;
  {
    DestinazioneGrb destinazione(s.disegno);
    TavolaGrb tavola(s);
    ComponiEsecutivo(tavola);
    riuscito = ScriviFileSicuro(Percorso(nome), CreaGRB(s.disegno));
  }
  scritto = riuscito ? 1 : 0;
  if (!riuscito) {
    if (silenzioso == 0 || silenzioso == 2) {
      s.piattaforma.Messaggio("Errore durante la scrittura sul file" + nome, "ERRORE",
                              Icona::Nessuna, Pulsanti::Ok);
    }
    return;
  }
  if (silenzioso <= 0) {
    s.piattaforma.Messaggio("File " + nome + " salvato.", "SALVA FILE DISEGNO", Icona::Informazione,
                            Pulsanti::Ok);
  }
}

void SalvaGRB(Sessione& s, const std::string& nome, std::int16_t& scritto,
              std::int16_t silenzioso) {
  PuntatoreOccupato occupato(s.piattaforma);
  SalvaGRBSuFile(s, nome, scritto, silenzioso);
  if (scritto == 0) {
    s.piattaforma.Messaggio(std::string(kScritturaGrbAnnullata), std::string(kTitoloProgramma),
                            Icona::Nessuna, Pulsanti::Ok);
  }
}

std::string PercorsoGrbTemporaneo(const Sessione& s) {
  return (Percorso(s.nodo.DirLavoro) / kFileGrbTemporaneo).string();
}

bool SalvaGrbTemporaneo(Sessione& s) {
  std::int16_t scritto = 0;
  SalvaGRB(s, PercorsoGrbTemporaneo(s), scritto, 1);
  return scritto == 1;
}

}  // namespace qf17
