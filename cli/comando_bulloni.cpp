#include <filesystem>
#include <iostream>
#include <string>

#include "bulloni/form_bulloni.h"
#include "comandi.h"
#include "librerie/numeri.h"
#include "librerie/token.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

// The size of the editor's picture, in pixels: what the preview is scaled to.
constexpr double kLarghezzaPicture = 600;
constexpr double kAltezzaPicture = 300;

std::int16_t Gruppo(const std::string& nome) {
  const std::string g = Maiuscolo(nome);
  if (g == "CORRENTE") return 1;
  return static_cast<std::int16_t>(g[0] - 'A' + 2);
}

std::string Casella(const std::string& testo) {
  return testo.empty() ? "-" : testo;
}

void StampaLetture(const FormBulloni& f) {
  std::cout << "Area bullonabile: " << TestoNumero(f.area.AreaLarghezza) << " x "
            << TestoNumero(f.area.AreaAltezza) << "\n"
            << "Passo corrente: " << Casella(f.Passo[0]) << " " << Casella(f.Passo[1]) << "\n"
            << "Passo min: " << Casella(f.Fi3[0]) << " " << Casella(f.Fi3[1]) << "\n";
}

void StampaBulloni(const Nodo& n, std::int16_t gruppo) {
  const int g = gruppo - 1;
  for (int k = 1; k <= n.nBull[g]; ++k) {
    std::cout << k << " " << TestoNumero(n.xBull(g, k)) << " " << TestoNumero(n.yBull(g, k)) << " "
              << TestoNumero(n.FiBull(g, k)) << "\n";
  }
}

// As a user types the matrix into the form: diameter, rows, columns, Enter (the margins by the
// method), then the margins if given, then "Aggiungi".
bool AggiungiMatrice(FormBulloni& f, Sessione& s, const ComandoBulloni& o) {
  f.MbpTxt = {TestoNumero(o.matrice[2]), TestoNumero(o.matrice[0]), TestoNumero(o.matrice[1])};
  CalcolaValori(f, s.nodo, s.opzioni);
  StampaLetture(f);
  if (!o.margini.empty()) {
    f.MargSx = TestoNumero(o.margini[0]);
    f.MargDx = TestoNumero(o.margini[1]);
    f.MargSu = TestoNumero(o.margini[2]);
    f.MargIn = TestoNumero(o.margini[3]);
  }
  return Matrice(f, s.nodo, s.piattaforma);
}

}  // namespace

void RegistraBulloni(CLI::App& app, ComandoBulloni& opzioni) {
  opzioni.comando = app.add_subcommand(
      "bulloni",
      "Apre l'editor dei bulloni di un gruppo: ne stampa le letture e i bulloni, o vi aggiunge "
      "una matrice e salva il nodo (esito 0 fatto, 2 errore)");
  CLI::App* c = opzioni.comando;
  c->add_option("NODO", opzioni.nodo, "File nodo .qf7")->required();
  c->add_option("--gruppo", opzioni.gruppo, "corrente, A, B o C")
      ->required()
      ->check(CLI::IsMember({"corrente", "A", "B", "C"}, CLI::ignore_case));
  c->add_option("--matrice", opzioni.matrice, "RIGHE COLONNE DIAMETRO della matrice da aggiungere")
      ->expected(3);
  c->add_option("--margini", opzioni.margini,
                "SX DX SU IN: distanze dai margini (senza: quelle del metodo)")
      ->expected(4);
  c->add_flag("--aggiungi", opzioni.aggiungi,
              "Aggiunge la matrice ai bulloni del gruppo invece di sostituirli");
  c->add_option("--anteprima", opzioni.anteprima, "Scrive l'anteprima dell'editor in SVG");
  c->add_option("-o,--output", opzioni.uscita,
                "File nodo da scrivere (senza: si riscrive il file letto)");
}

int EseguiBulloni(Sessione& s, const std::filesystem::path& file, const ComandoBulloni& o) {
  if ((!o.margini.empty() || o.aggiungi) && o.matrice.empty()) {
    s.piattaforma.Messaggio("--margini e --aggiungi valgono solo con --matrice.", "ERRORE",
                            Icona::Critica, Pulsanti::Ok);
    return kEsitoErrore;
  }
  if (!ApriNodoPerComando(s, file)) return kEsitoErrore;
  const std::int16_t gruppo = Gruppo(o.gruppo);
  auto form = ApriFormBulloni(s.nodo, s.opzioni, s.piattaforma, gruppo, CaselleDalNodo(s.nodo),
                              kLarghezzaPicture, kAltezzaPicture);
  if (!form) {
    s.piattaforma.Messaggio(
        "L'editor dei bulloni non si apre per il gruppo " + o.gruppo +
            (gruppo == 1 && s.nodo.Corrente.Tipo == 2 ? ": il fazzoletto è saldato al corrente."
                                                      : ": lunghezza non valida."),
        "ERRORE", Icona::Critica, Pulsanti::Ok);
    return kEsitoErrore;
  }
  if (o.matrice.empty()) {
    StampaLetture(*form);
  } else {
    if (!o.aggiungi) form->NumBulloniEdit = 0;  // "Rimuovi tutto" answered OK
    if (!AggiungiMatrice(*form, s, o)) return kEsitoErrore;
    MatBulOK(*form, s.nodo);
  }
  if (!o.anteprima.empty()) {
    if (!UscitaNonSulNodo(s, o.anteprima, file)) return kEsitoErrore;
    DisegnaBp(*form, s.nodo);
    const std::string svg =
        AnteprimaSvg(form->area, form->anteprima, kLarghezzaPicture, kAltezzaPicture);
    if (!ScriviFileSicuro(o.anteprima, svg)) {
      s.piattaforma.Messaggio("Errore: impossibile scrivere " + o.anteprima, "ERRORE",
                              Icona::Critica, Pulsanti::Ok);
      return kEsitoErrore;
    }
  }
  if (!o.matrice.empty()) {
    const std::filesystem::path destinazione =
        o.uscita.empty() ? file : std::filesystem::path(o.uscita);
    if (!SalvaNodoSuFile(s, destinazione)) return kEsitoErrore;
  }
  StampaBulloni(s.nodo, gruppo);
  return kEsitoFatto;
}

}  // namespace qf17
