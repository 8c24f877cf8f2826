#pragma once

#include <string>
#include <utility>
#include <vector>

namespace qf17 {

class Tavola;
struct Sessione;
struct StatoEsecutivo;

// The whole executive sheet into the session's drawing, which must be the target and empty:
// node geometry, node view, gusset detail, chord and member details and sections, tables,
// title and note.
void ComponiEsecutivo(Tavola& t);

// The title: "ESECUTIVO NODI", and ": " with the node numbers joined by "," when there are some.
std::string TitoloEsecutivo(const Sessione& s);

// The distinct member sections with how many profiles each (a double or opposite member counts
// 2), in the order they first appear.
std::vector<std::pair<std::string, int>> ListaProfili(const Sessione& s);
// The distinct bolt diameters of all groups with their bolt counts, in the order they appear.
std::vector<std::pair<double, int>> ListaFori(const Sessione& s);

// The bill of materials at the drawing's origin: sections, gusset, welds, bolts, and the hole
// coordinate table when the holes are numbered.
void DisegnaDistinta(Tavola& t, StatoEsecutivo& stato);

// The ruling of a table: a line for each row and column boundary from the top left (x, y).
void GrigliaTabella(Tavola& t, double x, double y, double passo, int righe,
                    const std::vector<double>& colonne);

}  // namespace qf17
