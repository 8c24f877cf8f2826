#include "piattaforma/piattaforma_registrata.h"

namespace qf17 {

Risposta PiattaformaRegistrata::MostraMessaggio(const std::string& testo, const std::string& titolo,
                                                Icona icona, Pulsanti pulsanti) {
  messaggi.push_back({testo, titolo, icona, pulsanti});
  if (risposte.empty()) return Risposta::Ok;
  Risposta r = risposte.front();
  risposte.pop_front();
  return r;
}

std::optional<FileScelto> PiattaformaRegistrata::ScegliFileDaAprire(const RichiestaFile& r) {
  richiesteFile.push_back(r);
  if (fileScelti.empty()) return std::nullopt;
  auto f = fileScelti.front();
  fileScelti.pop_front();
  return f;
}

std::optional<FileScelto> PiattaformaRegistrata::ScegliFileDaSalvare(const RichiestaFile& r) {
  return ScegliFileDaAprire(r);
}

bool PiattaformaRegistrata::Avvia(const std::string& programma, const std::string& argomenti,
                                  bool attendi) {
  avvii.push_back({programma, argomenti, attendi});
  bool esito = true;
  if (!esitiAvvio.empty()) {
    esito = esitiAvvio.front();
    esitiAvvio.pop_front();
  }
  if (esito && suAvvio) suAvvio(avvii.back());
  return esito;
}

bool PiattaformaRegistrata::AttivaFinestra(const std::string& titolo, const std::string& tasti) {
  finestreCercate.push_back({titolo, tasti});
  if (finestreAperte.empty()) return false;
  bool aperta = finestreAperte.front();
  finestreAperte.pop_front();
  return aperta;
}

void PiattaformaRegistrata::Occupato(bool acceso) {
  occupato = acceso;
  ++cambiOccupato;
}

bool PiattaformaRegistrata::Mostra(Vista vista, const std::string& file) {
  viste.emplace_back(vista, file);
  if (vista == Vista::Disegno && !mostraDisegni) return false;
  if (esitiAvvio.empty()) return true;
  const bool esito = esitiAvvio.front();
  esitiAvvio.pop_front();
  return esito;
}

std::optional<std::string> PiattaformaRegistrata::ConvertiForza(const std::string&,
                                                                const std::string&, double) {
  if (conversioni.empty()) return std::nullopt;
  auto risposta = conversioni.front();
  conversioni.pop_front();
  return risposta;
}

}  // namespace qf17
