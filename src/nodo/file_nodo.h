#pragma once

#include <chrono>
#include <filesystem>
#include <string>

#include "nodo/nodo.h"
#include "piattaforma/piattaforma.h"

namespace qf17 {

struct Sessione;

inline constexpr std::string_view kFiltroFileNodo =
    "File nodo qf7 (*.qf7)|*.qf7|Tutti i file (*.*)|*.*";
inline constexpr std::string_view kEstensioneNodo = "qf7";
inline constexpr std::string_view kDescrizioneFileNodo = "file_QF17";
inline constexpr int kReleaseFileNodo = 1;
inline constexpr std::string_view kTitoloLetturaFallita = "QF17 - LETTURA NON RIUSCITA";
inline constexpr std::string_view kTitoloSalvataggioFallito = "QF17 - SALVATAGGIO NON RIUSCITO";

// The keyed reader: fills `nodo` from the file (fields whose keys are missing keep their
// value). False, with the family's message, when the file cannot be opened. A key with an index
// beyond its table, a number beyond 16 bits, a count beyond its table, a non-numeric Esposizione
// or TipoVer, or a choice (mode, side, flag, load case, exposure, method) outside its values is
// an ErroreFatale naming the file, the line and the key; so is a file with none of the node's
// keys. `nodo` may then be half read, so callers read into a copy.
bool LeggiNodo(Nodo& nodo, const std::filesystem::path& file, Piattaforma& piattaforma);
// The positional reader of both older generations; false on any failure, a choice outside its
// values included, without a message (the fields read up to the failure stay in `nodo`). It
// never throws ErroreFatale.
bool LeggiNodoVecchio(Nodo& nodo, const std::filesystem::path& file);
// Writes the keyed file (temporary file renamed over the target). False, with the family's
// message, when it cannot be written.
bool ScriviNodo(const Nodo& nodo, const std::filesystem::path& file, Piattaforma& piattaforma,
                std::chrono::system_clock::time_point ora = std::chrono::system_clock::now());

// The current node's base name and ".qf7".
std::string NomeFileCorrente(const Nodo& nodo);

// The panel's commands. Each returns true when the node was opened or saved; the caller then
// rewrites the window's title and refreshes the panel. A load works on a copy: on any failure
// the session's node is the one it had before, and the user was told; an ErroreFatale of the
// keyed reader goes up to the command boundary with its text, the node unchanged.
bool ApriNodo(Sessione& sessione);
bool ApriNodoDaFile(Sessione& sessione, const std::filesystem::path& file);
bool SalvaNodo(Sessione& sessione);
bool SalvaNodoCome(Sessione& sessione);
bool SalvaNodoSuFile(Sessione& sessione, const std::filesystem::path& file);

}  // namespace qf17
