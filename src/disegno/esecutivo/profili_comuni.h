#pragma once

// What the profile drawings share: option colours, lines in a style, the parts of a line that
// lie under other parts, break marks.

#include <cstdint>
#include <vector>

#include "verifica/geometria.h"

namespace qf17 {

class Tavola;
struct Sessione;
struct Profilo;
struct StatoEsecutivo;

namespace profili {

inline constexpr std::int16_t kContinua = 0;
inline constexpr std::int16_t kTratteggiata = 1;
inline constexpr std::int16_t kTrattoPunto = 3;

// Option `indice` as a colour index.
std::int16_t Colore(const Sessione& s, int indice);

// A line in the style given (the drawing's style is left as it was).
void Linea(Sessione& s, Punto p, Punto q, std::int16_t colore, std::int16_t stile = kContinua);

using Poligono = std::vector<Punto>;

// Strictly inside the polygon: a point on its outline (within 1E-6) is not.
bool DentroPoligono(const Poligono& poligono, Punto p);

// The line p-q, with the parts that lie inside any of `coperture` dashed and the others in
// `stile`: an edge seen through a part that lies over it.
void LineaCoperta(Sessione& s, Punto p, Punto q, std::int16_t colore,
                  const std::vector<Poligono>& coperture, std::int16_t stile = kContinua);

// The break mark closing a strip between `da` (on one long edge) and `a` (on the other): three
// strokes zig-zagging by a tenth of the width towards `fuori` (a unit vector) and back.
void Rottura(Sessione& s, Punto da, Punto a, Punto fuori, std::int16_t colore);

// The section of `profilo` with its local u along `versoU` Direzione(angolo) and v along
// `versoV` Normale(angolo) (each +1 or -1) from `origine`.
void SezioneOrientata(Tavola& t, const Profilo& profilo, Punto origine, double angolo,
                      double versoU, double versoV, double scala);

// The chord of the node view: outline with its break marks, section, axis, bolts and welds.
void CorrenteNodo(Tavola& t, const StatoEsecutivo& stato);

// Thickness of the part a bolt passes: the leg of an angle, the web of a channel or I.
double SpessoreForato(const Profilo& p);

}  // namespace profili
}  // namespace qf17
