#pragma once

#include <CLI/CLI.hpp>
#include <filesystem>
#include <string>

namespace qf17 {

struct Sessione;

// "sollecitazioni NODO --rimuovi-doppi | --max-min [-o FILE]": reduces the node's load table
// and saves the node.
struct ComandoSoll {
  CLI::App* comando = nullptr;
  std::string nodo;
  std::string uscita;  // empty: the node file itself is rewritten
  bool rimuoviDoppi = false;
  bool maxMin = false;
};

// Adds the subcommand to `app`; `opzioni` receives the parsed values and must outlive parsing.
void RegistraSollecitazioni(CLI::App& app, ComandoSoll& opzioni);

// Opens `file`, applies the chosen operation, saves and prints the set counts before and after.
// 0 when done, 2 on any failure (the user was told through the platform).
int EseguiSollecitazioni(Sessione& sessione, const std::filesystem::path& file,
                         const ComandoSoll& opzioni);

}  // namespace qf17
