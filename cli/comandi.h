#pragma once

#include <CLI/CLI.hpp>
#include <filesystem>
#include <string>
#include <vector>

#include "piattaforma/confine_comando.h"

namespace qf17 {

struct Sessione;

// Opens the node file for a command that writes something from it (a node, a report, a sheet):
// false when it cannot be opened, or when a section, steel or bolt class name was not found in
// the libraries (after their messages, a line saying that nothing is written).
bool ApriNodoPerComando(Sessione& sessione, const std::filesystem::path& file);
// False, with a message, when `uscita` is the node file `nodo` itself, by whatever path.
bool UscitaNonSulNodo(Sessione& sessione, const std::filesystem::path& uscita,
                      const std::filesystem::path& nodo);

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

// "disegna NODO [--formato grb|dis|dxf|svg] [-o FILE] [--opzioni FILE] [--quote-saldature]
// [--esplodi-testi] [--monocromo] [--disgrega SCALA]": composes the executive sheet and writes
// it, by default in the job folder under the node's name; the last three are DXF modes.
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
// prints the file's path. 0 when written, 2 on any failure (the user was told), also when the
// output is the node file itself.
int EseguiDisegna(Sessione& sessione, const std::filesystem::path& file,
                  const ComandoDisegna& opzioni);

// "bulloni NODO --gruppo corrente|A|B|C [--matrice RIGHE COLONNE DIAMETRO] [--margini SX DX SU
// IN] [--aggiungi] [--anteprima FILE.svg] [-o FILE]": the bolt editor of one group, opened as
// the panel's bolt button opens it, driven as a user would drive it.
struct ComandoBulloni {
  CLI::App* comando = nullptr;
  std::string nodo;
  std::string gruppo;
  std::vector<double> matrice;  // rows, columns, diameter
  std::vector<double> margini;  // left, right, upper, lower
  bool aggiungi = false;
  std::string anteprima;
  std::string uscita;  // empty: the node file itself is rewritten
};

// Adds the subcommand to `app`; `opzioni` receives the parsed values and must outlive parsing.
void RegistraBulloni(CLI::App& app, ComandoBulloni& opzioni);

// Opens the editor; without a matrix prints its readouts and the group's bolts and changes
// nothing; with one, removes the group's bolts (unless adding), types the matrix's boxes,
// presses Enter, types the margins if given, adds the matrix, confirms and saves the node. 0 when
// done, 2 when the editor does not open, the matrix is refused or a file cannot be written.
int EseguiBulloni(Sessione& sessione, const std::filesystem::path& file,
                  const ComandoBulloni& opzioni);

// "verifica NODO [--metodo TA] [--json FILE]": runs the verification as the button does, writes
// the report in the job folder and prints its path. 0 when the node is verified, 1 when it is
// not, 3 when it is by the report but the run gave messages (its "AVVERTENZE"), 2 on an error,
// when the node has no load set or when the run ended without a report.
int ComandoVerifica(Sessione& sessione, const std::filesystem::path& file,
                    const std::string& metodo, const std::string& fileJson);

}  // namespace qf17
