#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "comandi.h"
#include "librerie/token.h"
#include "nodo/avvio.h"
#include "nodo/descrizione_nodo.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/errori.h"
#include "piattaforma_cli.h"

namespace {

using namespace qf17;

std::filesystem::path CartellaProgramma(const char* argv0) {
  std::error_code ec;
  auto eseguibile = std::filesystem::read_symlink("/proc/self/exe", ec);
  if (ec) eseguibile = std::filesystem::absolute(argv0, ec);
  return eseguibile.parent_path();
}

// "|diroot=...|" fields are the family's launch convention, not options: they are taken out of
// the arguments and form the launch command line.
std::string EstraiRigaFamiglia(std::vector<std::string>& argomenti) {
  std::string riga;
  std::vector<std::string> resto;
  for (auto& a : argomenti) {
    if (Minuscolo(a).find("|diroot=") != std::string::npos) {
      riga += a;
    } else {
      resto.push_back(a);
    }
  }
  argomenti = resto;
  return riga;
}

// A bare node name that is not in the current folder is looked for in the job folder.
std::filesystem::path FileNodo(const Sessione& s, const std::string& nome) {
  std::filesystem::path p(nome);
  std::error_code ec;
  if (std::filesystem::exists(p, ec) || p.has_parent_path()) return p;
  return std::filesystem::path(s.nodo.DirLavoro) / p;
}

int Converti(Sessione& s, const std::string& ingresso, const std::string& uscita) {
  if (!ApriNodoPerComando(s, FileNodo(s, ingresso))) return kEsitoErrore;
  if (!SalvaNodoSuFile(s, uscita)) return kEsitoErrore;
  std::cout << std::filesystem::absolute(uscita).string() << "\n";
  return kEsitoFatto;
}

int Mostra(Sessione& s, const std::string& ingresso) {
  if (!ApriNodoDaFile(s, FileNodo(s, ingresso))) return kEsitoErrore;
  std::cout << DescrizioneNodo(s);
  return kEsitoFatto;
}

// Every --root is taken as given: made absolute, so that "." or ".." (which the family's launch
// field would not take) still name the folder the user meant.
std::string RigaDaRadice(const std::string& radice) {
  std::error_code ec;
  std::filesystem::path assoluta = std::filesystem::absolute(radice, ec).lexically_normal();
  std::string testo = (ec ? std::filesystem::path(radice) : assoluta).string();
  while (testo.size() > 1 && testo.back() == '/') testo.pop_back();
  return "|diroot=" + testo + "|";
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> argomenti(argv + 1, argv + argc);
  std::string rigaFamiglia = EstraiRigaFamiglia(argomenti);
  std::reverse(argomenti.begin(), argomenti.end());

  CLI::App app{"QF17 - verifica e disegno di un nodo di travatura reticolare bullonata"};
  app.require_subcommand(1);
  app.fallthrough();  // --root and --annulla may follow the command too
  std::string radice;
  bool annulla = false;
  app.add_option("--root", radice, "Cartella radice dell'installazione (come |diroot=...|)");
  app.add_flag("--annulla", annulla, "Risponde Annulla alle domande OK/Annulla");

  std::string ingresso, uscita;
  auto* converti = app.add_subcommand("converti",
                                      "Apre un file nodo (anche vecchio) e lo salva "
                                      "nel formato a chiavi");
  converti->add_option("NODO", ingresso, "File nodo .qf7")->required();
  converti->add_option("-o,--output", uscita, "File nodo da scrivere")->required();
  auto* nodo = app.add_subcommand("nodo", "Mostra il nodo caricato");
  nodo->add_option("NODO", ingresso, "File nodo .qf7")->required();
  ComandoSoll sollecitazioni;
  RegistraSollecitazioni(app, sollecitazioni);
  ComandoDisegna disegna;
  RegistraDisegna(app, disegna);
  ComandoBulloni bulloni;
  RegistraBulloni(app, bulloni);
  std::string metodo, fileJson;
  auto* verifica = app.add_subcommand(
      "verifica",
      "Verifica il nodo, scrive la relazione nella cartella del lavoro e ne stampa "
      "il percorso (esito 0 verificato, 1 non verificato, 3 verificato con avvertenze, "
      "2 errore)");
  verifica->add_option("NODO", ingresso, "File nodo .qf7")->required();
  verifica->add_option("--metodo", metodo, "TA (tensioni ammissibili) o SLU (stati limite)")
      ->check(CLI::IsMember({"TA", "SLU"}, CLI::ignore_case));
  verifica->add_option("--json", fileJson, "Scrive le tabelle dei risultati in un file JSON");

  try {
    app.parse(argomenti);
  } catch (const CLI::ParseError& e) {
    return app.exit(e) == 0 ? 0 : kEsitoErrore;
  }
  if (!radice.empty()) rigaFamiglia = RigaDaRadice(radice);

  PiattaformaCli piattaforma(annulla);
  try {
    auto sessione = std::make_unique<Sessione>(piattaforma);
    return EseguiComando(piattaforma, [&]() -> int {
      Avvio(*sessione, rigaFamiglia, CartellaProgramma(argv[0]));
      Sessione& s = *sessione;
      if (*converti) return Converti(s, ingresso, uscita);
      if (*verifica) return ComandoVerifica(s, FileNodo(s, ingresso), metodo, fileJson);
      if (*nodo) return Mostra(s, ingresso);
      if (*disegna.comando) return EseguiDisegna(s, FileNodo(s, disegna.nodo), disegna);
      if (*bulloni.comando) return EseguiBulloni(s, FileNodo(s, bulloni.nodo), bulloni);
      return EseguiSollecitazioni(s, FileNodo(s, sollecitazioni.nodo), sollecitazioni);
    });
  } catch (const FineProgramma&) {
    return kEsitoErrore;
  }
}
