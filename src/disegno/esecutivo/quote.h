#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "verifica/geometria.h"

namespace qf17 {

class Tavola;
struct Sessione;
struct StatoEsecutivo;

// One linear dimension into the session's drawing: indicators (arrows or circles by the
// options), the line, and the text centred along it `distanza` to the left of its direction.
// `coloreLinea` -1 draws only the text, which is how table cells and titles are placed. An
// empty `testo` writes |fattore| times the length, to one decimal. Coordinates are relative to
// the drawing's origin; a segment shorter than 0.0001 both ways draws nothing.
void Quota(Sessione& s, const std::string& testo, double x1, double x2, double y1, double y2,
           std::int16_t coloreLinea, std::int16_t coloreTesto, double larghezza, double altezza,
           double distanza, double fattore);

// A colour of the drawing options (index 0..29) as the store's colour index.
std::int16_t ColoreOpzione(const Sessione& s, int indice);

// The text of a measure: rounded to one decimal, halves up, in the shortest form ("1245.3",
// "100"). A measure that is not finite is an ErroreFatale: no sheet is written with it.
std::string TestoMisura(double misura);

// The text of a member's angle (radians) at its arc: degrees, absolute, cut to two decimals.
std::string TestoAngoloAsta(double teta);

// The two tips of an arrow head at (x, y) on a line of direction `angolo` (radians), with the
// indicator size of the options: `verso` +1 opens it along the line, -1 against it.
std::array<Punto, 2> PunteFreccia(const Sessione& s, double x, double y, double angolo,
                                  double verso);

enum class Asse { X, Y };
// Sorts the points ascending on the coordinate of `asse`.
void OrdinaPunti(std::vector<Punto>& punti, Asse asse);

// One dimension between each pair of consecutive points, in the dimension colours and sizes,
// with texts that do not fit staggered to the two sides in turn. `fattore` scales the measure
// (1 / the detail multiplier in the details, so that texts read true millimetres).
void QuotaCatena(Tavola& t, const std::vector<Punto>& punti, double fattore = 1.0);

// The chains of the node view. Each turns its stations (distances along one direction from the
// base point (bx, by)) into points, sorts them and dimensions them as one chain; they read the
// node and the figure of the last GeometriaNodo.

// Across the chord at the gusset's left end: the chord's edge on the gusset's side, the
// corners C5 and C4 (heights Fz_e, Fz_f), and C3 when the right-hand side is the higher. Under
// an angle chord the gusset starts at H - dBarX from the axis, where the outline starts.
void QuotaAltezzeSx(Tavola& t, double bx, double by);
// Across the chord at the right: the chord's two edges (+-H/2), the corners C2 and C3 (heights
// Fz_g, Fz_h), and the height of C4 when the left-hand side is the higher.
void QuotaAltezzeDx(Tavola& t, double bx, double by);
// Along the chord: the gusset's two ends, the feet of its corner cuts and the node. When the
// gusset has a corner cut (Fz_f or Fz_h not 0), a second row further out measures the plate's
// own outline without the node: its ends and the foot of each cut that exists, so that the
// straight top edge between the cuts reads as one length.
void QuotaLunghezze(Tavola& t, double bx, double by);
// The chord's width B along the chord, centred on the base.
void QuotaCorrente(Tavola& t, double bx, double by);
// Across member `asta` (1..3), at the base's position along its axis: its drawn edges (both
// profiles of an opposite pair; +-h/2 for an I or H section), measured from the member's axis.
void QuotaAstaAltezza(Tavola& t, int asta, double bx, double by);
// Along member `asta` from the base: b, or b, s, b for a double or opposite pair.
void QuotaAstaLarghezza(Tavola& t, int asta, double bx, double by);
// The weld of edge `saldatura` (1, 2) of member `asta`, from point 1 to point 2 of the edge,
// 6 dimension text heights out on the edge's own side of the member.
void QuotaSaldatura(Tavola& t, int asta, int saldatura);

// All the chains of the node view, the member angle arcs included; nothing when dimensions
// are off in the options.
void QuoteNodo(Tavola& t, const StatoEsecutivo& stato);

}  // namespace qf17
