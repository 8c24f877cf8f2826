#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "librerie/unita.h"
#include "piattaforma/piattaforma.h"

namespace qf17 {

struct Sessione;

// Reads parametrilavoro of the job folder and computes the factors (ParUni). A file that is
// missing or unreadable is told to the user under "ATTENZIONE" and the job gets the units of
// UnitaPredefinite. Unit names that are not exactly one of the rules' names are told once, under
// "ATTENZIONE", naming the file and the names; their factors stay as the rules give them.
void LeggiUnitaLavoro(Sessione& sessione);

// The unit names of `unita` that are not exactly a name of the rules (lengths mm, cm, m; forces
// daN, kN, N, kgf, t; stresses and loads a force over a length or its square, kPa, MPa; moments
// a force followed by a length), each as its key and the name in quotes: `forze "KN"`.
std::vector<std::string> UnitaNonRiconosciute(const UnitaLavoro& unita);

// The force names of the rules, and the factor that turns daN into each (g the job's gravity).
inline constexpr std::array<std::string_view, 5> kUnitaForze = {"daN", "kN", "N", "kgf", "t"};
double FattoreForza(std::string_view unita, double g);

// The unit names and constants of one parametrilavoro file into `unita`; the keys the file does
// not hold leave their fields alone. False when the file cannot be read, is empty or holds a
// number beyond range.
bool LeggiParametriLavoro(const std::filesystem::path& file, UnitaLavoro& unita);

// mm, daN, daN/cm2 and their companions, with the factors already computed.
UnitaLavoro UnitaPredefinite();

// The factors and decimals of the unit names already in `unita`. A name that fits no rule leaves
// factor 0 and decimals 0.
void ParUni(UnitaLavoro& unita);

// Starts the unit tool and waits; on its end returns line 1 of ux_unimis.tmp in the temp folder,
// trimmed. No value when the tool could not start or left no file; a force (category 4) whose
// tool could not start goes to the platform's ConvertiForza instead. `titolo` is "assente" or
// empty for none, otherwise a bare title or one already in the "|titolo=...|" form.
std::optional<std::string> LanciaUnita(Sessione& sessione, std::string_view valore, int categoria,
                                       std::string_view unita, std::string_view titolo);

// The double click on the load box 1, 2 or 3 of a row (members A, B, C): the unit tool on the
// box's force, and the text the box shows afterwards.
std::string TbDblClick(Sessione& sessione, int casella, std::string_view testo);

}  // namespace qf17
