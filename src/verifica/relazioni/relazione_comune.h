#pragma once

#include <string_view>

#include "verifica/relazioni/testo_relazione.h"

namespace qf17 {

struct Sessione;
struct Nodo;
class Piattaforma;
class FileSicuro;
class RaccoltaMessaggi;
struct VerdettiRelazione;

// The frame both reports share.

// "VERIFICA TENSIONALE", then " NODI: " and the imported node numbers joined by "," when there
// are any; no line end, since each method adds its own name to the title.
void ScriviTitoloVerifica(const Nodo& nodo, TestoRelazione& r);
// The number the panel's angle box shows for an angle: degrees to two decimals at most, read
// back.
double NumeroCasellaAngolo(double radianti, Piattaforma& piattaforma);
// The chord's angle the reports print: the one of its box, unless the box no longer describes
// the chord's line (Cor_teta was set without it), when Cor_teta itself is the truth.
double AngoloCasellaCorrente(const Nodo& nodo);
// Verdicts for `nSet` load sets (index 0 unused), every set verified until its checks say
// otherwise.
void PreparaVerdetti(VerdettiRelazione& verdetti, int nSet);
// The closing section "AVVERTENZE": every message the run gave, each text once on its line with
// how many times it came. Nothing at all when the run gave none.
void ScriviAvvertenze(const RaccoltaMessaggi& raccolta, TestoRelazione& r);
// The end of a report: the messages of the run (ScriviAvvertenze), then the closing message when a set has failed, which comes up before the
// file is on disk, as the user has always seen it; then the file made whole under its name, and
// the viewer (shown as a report, not waited for). False, with a message, when the file cannot be
// written; the viewer is then not started.
bool ConcludiRelazione(Sessione& sessione, FileSicuro& file, TestoRelazione& r, bool nodoKo);

}  // namespace qf17
