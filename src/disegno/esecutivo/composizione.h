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
// The same with the caller's working values, which it resets first; they stay readable after.
void ComponiEsecutivo(Tavola& t, StatoEsecutivo& stato);

// The title: "ESECUTIVO NODI", and ": " with the node numbers joined by "," when there are some.
std::string TitoloEsecutivo(const Sessione& s);

// The distinct member sections of the present members with how many profiles each (a double or
// opposite member counts 2), in the order they first appear.
std::vector<std::pair<std::string, int>> ListaProfili(const Sessione& s);
// The distinct bolt diameters with their bolt counts, in the order they appear: the chord's
// group unless the chord is welded, then each present member's, twice for an opposite pair,
// whose second profile carries the same bolts.
std::vector<std::pair<double, int>> ListaFori(const Sessione& s);

// The bill of materials with its top left corner at the drawing's origin: sections, gusset,
// the chord weld (a chord of kind 2 only), bolts, and the hole coordinate table when the holes
// are numbered, each 2 rows below the one before. Returns the y of the bottom of the last table.
double DisegnaDistinta(Tavola& t, const StatoEsecutivo& stato);

// The hole coordinate table with its top left corner at (x, y) and rows `passo` apart: number,
// X and Y to one decimal, hole diameter, in the order of NumeraFori. Returns its row count
// (the heading included).
int DisegnaTabellaCoordinate(Tavola& t, const StatoEsecutivo& stato, double x, double y,
                             double passo);

// The ruling of a table: a line for each row and column boundary from the top left (x, y).
void GrigliaTabella(Tavola& t, double x, double y, double passo, int righe,
                    const std::vector<double>& colonne);

}  // namespace qf17
