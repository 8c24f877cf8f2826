#pragma once

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

enum class Asse { X, Y };
// Sorts the points ascending on the coordinate of `asse`.
void OrdinaPunti(std::vector<Punto>& punti, Asse asse);

// One dimension between each pair of consecutive points, in the dimension colours and sizes,
// with texts that do not fit staggered to the two sides in turn. `fattore` scales the measure
// (1 / the detail multiplier in the details, so that texts read true millimetres).
void QuotaCatena(Tavola& t, const std::vector<Punto>& punti, double fattore = 1.0);

// The chains of the node view, each from its base point (bx, by).
void QuotaAltezzeSx(Tavola& t, double bx, double by);
void QuotaAltezzeDx(Tavola& t, double bx, double by);
void QuotaLunghezze(Tavola& t, double bx, double by);
void QuotaCorrente(Tavola& t, double bx, double by);
void QuotaAstaAltezza(Tavola& t, int asta, double bx, double by);
void QuotaAstaLarghezza(Tavola& t, int asta, double bx, double by);
void QuotaSaldatura(Tavola& t, int asta, int saldatura);

// All the chains of the node view, the member angle arcs included; nothing when dimensions
// are off in the options.
void QuoteNodo(Tavola& t, const StatoEsecutivo& stato);

}  // namespace qf17
