#include <filesystem>
#include <iostream>
#include <string>

#include "comandi.h"
#include "disegno/esporta_disegno.h"
#include "disegno/file_opzioni.h"
#include "librerie/token.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"

namespace qf17 {

void RegistraDisegna(CLI::App& app, ComandoDisegna& opzioni) {
  opzioni.comando = app.add_subcommand(
      "disegna",
      "Compone l'esecutivo del nodo e lo scrive in formato DIS o SVG (anteprima); stampa il "
      "percorso del file (esito 0 scritto, 2 errore)");
  CLI::App* c = opzioni.comando;
  c->add_option("NODO", opzioni.nodo, "File nodo .qf7")->required();
  c->add_option("--formato", opzioni.formato, "dis (predefinito) o svg")
      ->check(CLI::IsMember({"dis", "svg"}, CLI::ignore_case));
  c->add_option("-o,--output", opzioni.uscita,
                "File da scrivere (senza: nella cartella del lavoro, col nome del nodo)");
  c->add_option("--opzioni", opzioni.fileOpzioni,
                "File delle opzioni di disegno da usare al posto di quello dell'installazione");
  c->add_flag("--quote-saldature", opzioni.quoteSaldature,
              "Quota le saldature nella vista del nodo");
}

int EseguiDisegna(Sessione& s, const std::filesystem::path& file, const ComandoDisegna& opzioni) {
  if (!opzioni.fileOpzioni.empty() && !LeggiOpzioni(s.opzioni, opzioni.fileOpzioni)) {
    s.piattaforma.Messaggio("Errore: file " + opzioni.fileOpzioni + " errato o mancante.", "ERRORE",
                            Icona::Critica, Pulsanti::Ok);
    return kEsitoErrore;
  }
  if (!ApriNodoDaFile(s, file)) return kEsitoErrore;
  s.opzioni.QuoteSaldature = opzioni.quoteSaldature;
  const std::string formato = Minuscolo(opzioni.formato);
  const std::filesystem::path uscita =
      opzioni.uscita.empty()
          ? Percorso(s.nodo.DirLavoro) / (Rifila(s.nodo.NomeFileNodo) + "." + formato)
          : std::filesystem::path(opzioni.uscita);
  // Only a failure is told: the path printed is the confirmation.
  if (!EsportaDisegno(s, uscita.string(), 2, Maiuscolo(formato))) return kEsitoErrore;
  std::cout << std::filesystem::absolute(uscita).string() << "\n";
  return 0;
}

}  // namespace qf17
