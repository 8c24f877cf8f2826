#pragma once

#include <cstdint>
#include <string>

#include "verifica/geometria.h"

namespace qf17 {

class Tavola;
struct Profilo;
struct Sessione;
struct StatoEsecutivo;

// A point of a member's local frame on the sheet: turned by `a` and moved to (ox, oy). Local x
// goes along Direzione(a), local y along Normale(a).
Punto RuotaPunto(double x, double y, double ox, double oy, double a);

// Centre of bolt k of group `gruppo` (0 chord, 1..3 members) in the node's plane; `secondo`
// picks the far profile of a member of mode 2. The group's local axes: for the chord x runs from
// the gusset's left end (-(Fz_a + Fz_b)) along the chord, and y from the free edge of an angle's
// leg or the inner face of a channel's flange on the gusset side, away from the gusset; for a
// member x runs from the profile's end on the gusset (points 1) outward along the member, and
// y from the free edge of an angle's connected leg (from the inner face of the flange on the side
// of edge 2 for a channel) across the member.
Punto CentroBulloneNodo(const Sessione& s, int gruppo, int k, bool secondo = false);

// The node view: gusset with its hidden parts, members with their extra profile edges, axes,
// labels and end sections, the chord with its section and its bolts or its weld, the dimension
// chains and the members' bolts. Fills the node view's extents in `stato`. The node geometry
// must have run. A member's label is its letter, " - ", its section and " (n)", n the number of
// profiles.
void DisegnaNodo(Tavola& t, StatoEsecutivo& stato);

// The section outline of `profilo` in the drawing's ColoreCorrente: the local point (u, v) goes
// to RuotaPunto(specchio u scala, v scala, x, y, angolo). v runs along the height h, u along the
// width b. An angle has its heel at (0, 0), its leg of height h along v and its other leg along
// u, with the root fillet; a channel has the back of its web on u = 0 and its sloped flanges
// along u, with the root fillets; an I or H section is centred on u = 0 with its flanges at v = 0
// and v = h.
void DisegnaSezione(Tavola& t, const Profilo& profilo, double x, double y, double angolo,
                    double scala, double specchio);
void SezioneLato(Tavola& t, const Profilo& profilo, double x, double y, double angolo, double scala,
                 double specchio);
void SezioneU(Tavola& t, const Profilo& profilo, double x, double y, double angolo, double scala,
              double specchio);
void SezioneDoppioT(Tavola& t, const Profilo& profilo, double x, double y, double angolo,
                    double scala, double specchio);

// One hole of a bolt of diameter `fi` centred on (x, y): a circle of the hole diameter times
// `scala` in the outline colour and a centre cross in the axis colour, dash-dot (dashed when
// `nascosto`), its arms along `angolo` and across it, (D / 2 + 0.1 fi) times `scala` long.
void DisegnaForo(Tavola& t, double x, double y, double fi, double scala, double angolo = 0,
                 bool nascosto = false);

// The holes of bolt group `gruppo` (0 chord, 1..3 members) at (ox + segno x scala,
// oy + segno y scala) for each bolt (x, y) of the group.
void DisegnaFori(Tavola& t, int gruppo, double ox, double oy, double segno, double scala);

// Length of the strip of the chord (asta 0: the gusset's length) or of a member (the farthest
// bolt from its end; with no bolts its insertion), times the detail multiplier.
double LunghezzaStriscia(const Sessione& s, int asta);

// The notes of a strip detail: "Fori ]" and the distinct hole diameters joined by ", ]";
// "Bull. M" and the distinct bolt diameters joined by ", ]" too. Values to one decimal in
// shortest form; a value already found anywhere in the text so far is skipped. Empty with no
// bolts.
std::string NotaFori(const Sessione& s, int gruppo);
std::string NotaBulloni(const Sessione& s, int gruppo);

// "PARTICOLARE FORATURA DEL CORRENTE" at the drawing's origin: the strip from -0.15 L to 1.15 L
// along x, its width (the section's height h) from y = 0 up, holes, chains and notes; the title
// 20 (option 22) over the top, the notes below the chains. Sets LargF and AltF to the detail's
// width and height, chains, title and notes included.
void DettaglioForiCorrente(Tavola& t, StatoEsecutivo& stato);
// "PARTICOLARE FORATURA DELL'ASTA " and the member's letter; `asta` 1..3. The same layout; for
// a member of mode 2 the title stands over the section's second profile (2 h + s).
void DettaglioForiAsta(Tavola& t, StatoEsecutivo& stato, int asta);
// The section of the chord (asta 0) or of a member with its holes seen across the profile, at
// the drawing's origin to the right of the strip drawn there, its height along y as in the
// strip. A pair (the chord, a double member) shows both profiles; a member of mode 2 its second
// profile above the first. A chord of kind 2 has no strip and no holes: its section hangs below
// the origin from x = 0.
void SezioneConFori(Tavola& t, StatoEsecutivo& stato, int asta);

// Weld ticks along (x1, y1)-(x2, y2), `angolo` the line's direction (Direzione): one tick at
// each step of `passo`, n = Int(L / passo + 0.5) steps, each tick `spessore` x `passo` long
// across the line (along Normale(angolo)), in the weld colour; `estremi` 1 adds the end ticks
// and the line that closes the mark. Nothing for a pitch or a length of 0.
void MarcaSaldatura(Tavola& t, double x1, double y1, double x2, double y2, double spessore,
                    std::int16_t estremi, double passo, double angolo);

}  // namespace qf17
