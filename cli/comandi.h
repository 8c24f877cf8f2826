#pragma once

#include <CLI/CLI.hpp>
#include <filesystem>
#include <string>

namespace qf17 {

struct Sessione;

// Exit status of any command that could not do its work.
inline constexpr int kEsitoErrore = 2;

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

// "disegna NODO [--formato dis|svg] [-o FILE] [--opzioni FILE] [--quote-saldature]": composes
// the executive sheet and writes it, by default in the job folder under the node's name.
struct ComandoDisegna {
  CLI::App* comando = nullptr;
  std::string nodo;
  std::string formato = "grb";  // the drawing button's own default
  bool esplodiTesti = false;    // DXF only
  bool monocromo = false;       // DXF only
  double disgrega = 0;          // DXF only: plot scale for breaking up dashed lines
  std::string uscita;           // empty: job folder, node name, the format's extension
  std::string fileOpzioni;      // empty: the installation's options, read at start-up
  bool quoteSaldature = false;
};

// Adds the subcommand to `app`; `opzioni` receives the parsed values and must outlive parsing.
void RegistraDisegna(CLI::App& app, ComandoDisegna& opzioni);

// Reads the options file if one was given, opens the node, composes and writes the sheet and
// prints the file's path. 0 when written, 2 on any failure (the user was told).
int EseguiDisegna(Sessione& sessione, const std::filesystem::path& file,
                  const ComandoDisegna& opzioni);

// "verifica NODO [--metodo TA] [--json FILE]": runs the verification as the button does, writes
// the report in the job folder and prints its path. 0 when the node is verified, 1 when it is
// not, 2 on an error or when the run ended without a report.
int ComandoVerifica(Sessione& sessione, const std::filesystem::path& file,
                    const std::string& metodo, const std::string& fileJson);

}  // namespace qf17
