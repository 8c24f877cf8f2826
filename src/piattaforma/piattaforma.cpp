#include "piattaforma/piattaforma.h"

namespace qf17 {

Risposta Piattaforma::Messaggio(const std::string& testo, const std::string& titolo, Icona icona,
                                Pulsanti pulsanti) {
  if (raccolta_ != nullptr) raccolta_->Aggiungi(testo);
  return MostraMessaggio(testo, titolo, icona, pulsanti);
}

RaccoltaMessaggi::RaccoltaMessaggi(Piattaforma& piattaforma) : piattaforma_(piattaforma) {
  if (piattaforma_.raccolta_ != nullptr) return;
  piattaforma_.raccolta_ = this;
  attiva_ = true;
}

RaccoltaMessaggi::~RaccoltaMessaggi() {
  if (attiva_) piattaforma_.raccolta_ = nullptr;
}

void RaccoltaMessaggi::Aggiungi(const std::string& testo) {
  auto [voce, nuova] = indice_.try_emplace(testo, voci_.size());
  if (nuova) voci_.push_back(Voce{testo, 0});
  ++voci_[voce->second].volte;
}

}  // namespace qf17
