#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qf17 {

struct Sessione;

inline constexpr std::string_view kScritturaGrbAnnullata = "Scrittura GRB annullata";
// The sheet the viewer button leaves in the job folder for the family's editor.
inline constexpr std::string_view kFileGrbTemporaneo = "qf7tmp.grb";

// Composes the executive sheet afresh for the GRB file (store and dimension entities emptied,
// store as target, the composition on the GRB sheet, target cleared) and writes it to `nome`
// with no clean-up. `scritto` comes back 1 when the file was written, 0 when it was not.
// `silenzioso` as for the DIS writer: 0 the user is told of the saving ("SALVA FILE DISEGNO")
// and of a failure ("ERRORE"), 1 of nothing, 2 of a failure only, a negative value of the saving
// only.
void SalvaGRBSuFile(Sessione& s, const std::string& nome, std::int16_t& scritto,
                    std::int16_t silenzioso);

// The same under the busy pointer; when nothing was written the user is told "Scrittura GRB
// annullata" whatever `silenzioso` says.
void SalvaGRB(Sessione& s, const std::string& nome, std::int16_t& scritto, std::int16_t silenzioso);

// The full path of qf7tmp.grb in the node's job folder.
std::string PercorsoGrbTemporaneo(const Sessione& s);

// The viewer button's second half: qf7tmp.grb in the job folder, silently (a failure still says
// "Scrittura GRB annullata"). True when written.
bool SalvaGrbTemporaneo(Sessione& s);

}  // namespace qf17
