#pragma once

#include <cstdint>

#include "verifica/geometria.h"

namespace qf17 {

class Tavola;
struct Profilo;
struct StatoEsecutivo;

// A point of a member's local frame on the sheet: turned by `a` and moved to (ox, oy).
Punto RuotaPunto(double x, double y, double ox, double oy, double a);

// The node view: gusset with its hidden parts, members with their extra profile edges, axes,
// labels and end sections, the chord with its bolts and welds, the dimension chains and the
// members' bolts. Fills the node view's extents in `stato`.
void DisegnaNodo(Tavola& t, StatoEsecutivo& stato);

// The section outline of `profilo` at (x, y) times `scala`; `specchio` -1 mirrors it. An
// angle shows its legs, thickness and root, a channel its web and flanges, an I or H its
// flanges and web.
void DisegnaSezione(Tavola& t, const Profilo& profilo, double x, double y, double angolo,
                    double scala, double specchio);

// The holes of bolt group `gruppo` (0 chord, 1..3 members) at the drawing's origin plus
// (ox, oy), mirrored by `segno`, times `scala`: circle, centre cross and nothing else.
void DisegnaFori(Tavola& t, int gruppo, double ox, double oy, double segno, double scala);

// "PARTICOLARE FORATURA DEL CORRENTE" at the drawing's origin.
void DettaglioForiCorrente(Tavola& t, StatoEsecutivo& stato);
// "PARTICOLARE FORATURA DELL'ASTA " and the member's letter; `asta` 1..3.
void DettaglioForiAsta(Tavola& t, StatoEsecutivo& stato, int asta);
// The section of the chord (asta 0) or of a member with its holes, at the drawing's origin.
void SezioneConFori(Tavola& t, StatoEsecutivo& stato, int asta);

// Weld ticks every `passo` along (x1, y1)-(x2, y2) with angle `angolo`, `spessore` the tick's
// length in pitches; `estremi` 1 adds the end ticks and closes the mark.
void MarcaSaldatura(Tavola& t, double x1, double y1, double x2, double y2, double spessore,
                    std::int16_t estremi, double passo, double angolo);

}  // namespace qf17
