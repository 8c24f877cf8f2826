#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "importazione/modello_3d.h"

namespace qf17 {

class Piattaforma;

// A list such as "1,3,7-9" as its numbers; any character but digits, commas and hyphens is
// "Inserimento dati errato" under "ERRORE", and no value.
std::optional<std::vector<std::int16_t>> LeggiElenco(std::string_view testo,
                                                     Piattaforma& piattaforma);

// A member of the model that meets at a node, from the node outwards.
struct AstaDelNodo {
  int nome = 0;
  int sezione = 0;
  PuntoModello estremo1;  // at the node
  PuntoModello estremo2;  // the far end
};
// The members (name number 1 or more) with an end at the model's node `nodo`; "Errore: nodo
// inesistente" under "ERRORE" and no value when the model has no such node.
std::optional<std::vector<AstaDelNodo>> LeggiAsteDelNodo(const StrutturaModello& struttura,
                                                         int nodo, Piattaforma& piattaforma);

// A section name of the model as the library writes it, and the mode of the member it implies:
// "P_LDO80_8" is "LU80x8" opposed; a name without "P_" is not the library's ("Non app. IPE200").
struct SezioneModello {
  std::string nome;
  std::int16_t modo = 0;
  bool dallaLibreria = true;
};
SezioneModello NomeSezioneModello(std::string_view nome);

// The text with every blank taken out: model and library names are compared so.
std::string RimuoviSpazi(std::string_view testo);

// Rounded to one decimal the family's way: the integer part of 10 x + 0.5, over 10.
double ArrotondaDecimo(double x);
// The angle in degrees, clockwise from the horizontal, of a member from its end at the node to
// its far end, with the truss's plane taken from z and x (or y): straight up -90, down 90,
// horizontal 0 either way, up at 45 degrees towards +x -45.
double AngoloModello(const PuntoModello& nodo, const PuntoModello& lontano);

}  // namespace qf17
