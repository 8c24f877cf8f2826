#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "nodo/cartelle.h"
#include "piattaforma/piattaforma.h"

namespace qf17 {

struct Sessione;

inline constexpr std::string_view kTitoloProgramma = "QF17";
inline constexpr std::string_view kTitoloLungo =
    "QF17 - NODO DI TRAVATURA RETICOLARE - KORVIN Software 18";
inline constexpr const char* kVociEsposizione[] = {"Esposto a fenomeni corrosivi",
                                                   "Non esposto a fenomeni corrosivi",
                                                   "Resistente alla corrosione"};

// Finds the installation's folders from the launch command line (its "|diroot=...|" field) or
// from the program's own folder, which must be the installation's progra folder. Any failure
// shows its message as a critical box and throws FineProgramma.
Cartelle ImpostaCartelle(std::string_view rigaComando,
                         const std::filesystem::path& cartellaProgramma, Piattaforma& piattaforma);

// The main window's title for the job folder and the node's base name.
std::string ImpostaTitolo(std::string_view dirLavoro, std::string_view nomeNodo);

// The whole start-up without a screen: folders, units, font, GRB styles, materials, sections,
// options and the default node. A missing library shows its message and throws FineProgramma;
// a missing options file only warns.
void Avvio(Sessione& sessione, std::string_view rigaComando,
           const std::filesystem::path& cartellaProgramma);

}  // namespace qf17
