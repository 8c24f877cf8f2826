#include <iostream>
#include <string>

#include "comandi.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "verifica/operazioni_soll.h"

namespace qf17 {

void RegistraSollecitazioni(CLI::App& app, ComandoSoll& opzioni) {
  opzioni.comando = app.add_subcommand(
      "sollecitazioni", "Riduce la tabella delle sollecitazioni di un file nodo e lo salva");
  CLI::App* c = opzioni.comando;
  c->add_option("NODO", opzioni.nodo, "File nodo .qf7")->required();
  c->add_option("-o,--output", opzioni.uscita,
                "File nodo da scrivere (senza: si riscrive il file letto)");
  CLI::Option_group* operazione = c->add_option_group("operazione", "Una sola delle due");
  operazione->add_flag("--rimuovi-doppi", opzioni.rimuoviDoppi,
                       "Toglie le sollecitazioni ripetute");
  operazione->add_flag("--max-min", opzioni.maxMin,
                       "Tiene solo le sollecitazioni con un massimo o un minimo");
  operazione->require_option(1);
}

int EseguiSollecitazioni(Sessione& sessione, const std::filesystem::path& file,
                         const ComandoSoll& opzioni) {
  if (!ApriNodoPerComando(sessione, file)) return kEsitoErrore;
  const int prima = sessione.nodo.nSollAg;
  if (opzioni.maxMin) {
    RiduciMaxMin(sessione.nodo);
  } else {
    RimuoviDoppie(sessione.nodo);
  }
  const std::filesystem::path destinazione =
      opzioni.uscita.empty() ? file : std::filesystem::path(opzioni.uscita);
  if (!SalvaNodoSuFile(sessione, destinazione)) return kEsitoErrore;
  std::cout << "Sollecitazioni iniziali: " + std::to_string(prima) + "\n" +
                   "Sollecitazioni rimaste: " + std::to_string(sessione.nodo.nSollAg) + "\n";
  return kEsitoFatto;
}

}  // namespace qf17
