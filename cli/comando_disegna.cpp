#include <filesystem>
#include <iostream>
#include <string>

#include "comandi.h"
#include "disegno/esporta_disegno.h"
#include "disegno/file_opzioni.h"
#include "disegno/grb/salva_grb.h"
#include "librerie/token.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"

namespace qf17 {

void RegistraDisegna(CLI::App& app, ComandoDisegna& opzioni) {
  opzioni.comando = app.add_subcommand(
      "disegna",
      "Compone l'esecutivo del nodo e lo scrive in formato GRB, DIS, DXF o SVG (anteprima); "
      "stampa il percorso del file (esito 0 scritto, 2 errore)");
  CLI::App* c = opzioni.comando;
  c->add_option("NODO", opzioni.nodo, "File nodo .qf7")->required();
  c->add_option("--formato", opzioni.formato, "grb (predefinito), dis, dxf o svg")
      ->check(CLI::IsMember({"grb", "dis", "dxf", "svg"}, CLI::ignore_case));
  c->add_option("-o,--output", opzioni.uscita,
                "File da scrivere (senza: nella cartella del lavoro, col nome del nodo)");
  c->add_option("--opzioni", opzioni.fileOpzioni,
                "File delle opzioni di disegno da usare al posto di quello dell'installazione");
  c->add_flag("--quote-saldature", opzioni.quoteSaldature,
              "Quota le saldature nella vista del nodo");
  c->add_flag("--esplodi-testi", opzioni.esplodiTesti, "DXF: testi come tratti del font");
  c->add_flag("--monocromo", opzioni.monocromo, "DXF: tutto nel colore 7");
  c->add_option("--disgrega", opzioni.disgrega,
                "DXF: linee tratteggiate spezzate in tratti alla scala di plottaggio 1:SCALA")
      ->check(CLI::PositiveNumber);
}

namespace {

// Writes the composed sheet; false when nothing was written (the user was told why).
bool Scrivi(Sessione& s, const std::string& formato, const std::string& uscita,
            const ComandoDisegna& opzioni) {
  // Only a failure is told: the path printed is the confirmation.
  if (formato == "grb") {
    std::int16_t scritto = 0;
    SalvaGRBSuFile(s, uscita, scritto, 2);
    return scritto == 1;
  }
  if (formato == "dxf") {
    const ModoEsportaDxf modo{opzioni.esplodiTesti, opzioni.monocromo, opzioni.disgrega};
    return EsportaDxf(s, uscita, modo, 2);
  }
  return EsportaDisegno(s, uscita, 2, Maiuscolo(formato));
}

}  // namespace

int EseguiDisegna(Sessione& s, const std::filesystem::path& file, const ComandoDisegna& opzioni) {
  if (!opzioni.fileOpzioni.empty() && !LeggiOpzioni(s.opzioni, opzioni.fileOpzioni)) {
    s.piattaforma.Messaggio("Errore: file " + opzioni.fileOpzioni + " errato o mancante.", "ERRORE",
                            Icona::Critica, Pulsanti::Ok);
    return kEsitoErrore;
  }
  const std::string formato = Minuscolo(opzioni.formato);
  if (formato != "dxf" && (opzioni.esplodiTesti || opzioni.monocromo || opzioni.disgrega > 0)) {
    s.piattaforma.Messaggio("--esplodi-testi, --monocromo e --disgrega valgono solo per il DXF.",
                            "ERRORE", Icona::Critica, Pulsanti::Ok);
    return kEsitoErrore;
  }
  if (!ApriNodoPerComando(s, file)) return kEsitoErrore;
  s.opzioni.QuoteSaldature = opzioni.quoteSaldature;
  const std::filesystem::path uscita =
      opzioni.uscita.empty()
          ? Percorso(s.nodo.DirLavoro) / (Rifila(s.nodo.NomeFileNodo) + "." + formato)
          : std::filesystem::path(opzioni.uscita);
  if (!UscitaNonSulNodo(s, uscita, file)) return kEsitoErrore;
  if (!Scrivi(s, formato, uscita.string(), opzioni)) return kEsitoErrore;
  std::cout << std::filesystem::absolute(uscita).string() << "\n";
  return kEsitoFatto;
}

}  // namespace qf17
