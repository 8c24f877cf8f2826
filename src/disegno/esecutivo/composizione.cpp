// The executive sheet: every view placed by the extents of the ones before it, then the tables
// and the title.

#include "disegno/esecutivo/composizione.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <string>

#include "disegno/esecutivo/fazzoletto_disegno.h"
#include "disegno/esecutivo/profili_disegno.h"
#include "disegno/esecutivo/stato_esecutivo.h"
#include "disegno/esecutivo/tavola.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "piattaforma/errori.h"
#include "piattaforma/file_testo.h"
#include "verifica/comuni.h"
#include "verifica/geometria.h"

namespace qf17 {
namespace {

void Origine(Sessione& s, double x, double y) {
  s.disegno.OrigineX = x;
  s.disegno.OrigineY = y;
}

void VistaNodo(Tavola& t, StatoEsecutivo& stato) {
  Sessione& s = t.S();
  DisegnaNodo(t, stato);
  const ArchivioDisegno& d = s.disegno;
  stato.XmaxN = d.EstMaxX;
  stato.YmaxN = d.EstMaxY;
  stato.XminN = d.EstMinX;
  stato.YminN = d.EstMinY;
}

// The gusset detail below the node view, lower still when the plate rises above the chord.
void Fazzoletto(Tavola& t, StatoEsecutivo& stato) {
  Sessione& s = t.S();
  const Nodo& n = s.nodo;
  const Opzioni& o = s.opzioni;
  const double e = std::max(n.Fz_e + n.Fz_f, n.Fz_g + n.Fz_h);
  const double k = n.PosFazzoletto == 1 ? 2 : 1;
  Origine(s, stato.XminN, stato.YminN - k * (e + n.Corrente.h + 3 * o[22] + o[9]) - 2 * o[23]);
  if (o[24] == 1) {
    stato.ModoForiFazzoletto = 1;
  } else {
    stato.ModoForiFazzoletto = 0;
    NumeraFori(s, stato);
  }
  DettaglioFazzoletto(t, stato);
}

// The chord's strip detail and section, then each member's, one under the other to the right
// of the gusset detail.
void Dettagli(Tavola& t, StatoEsecutivo& stato) {
  Sessione& s = t.S();
  const Nodo& n = s.nodo;
  const Opzioni& o = s.opzioni;
  s.disegno.OrigineX = stato.XminN + stato.LargF + o[23];
  if (n.Corrente.Tipo == static_cast<std::int16_t>(TipoProfilo::DoppioT)) {
    s.disegno.OrigineY = stato.YminN;
  } else {
    s.disegno.OrigineY = stato.YminN - 2 * o[23] - n.Corrente.h;
    DettaglioForiCorrente(t, stato);
  }
  SezioneConFori(t, stato, 0);
  for (int i = 1; i <= kMaxAste; ++i) {
    if (n.Ast_flag[i] != 1) continue;
    const double h = n.Aste[i].h;
    const double altezza = n.Ast_modo[i] == static_cast<std::int16_t>(AstModo::Opposta) ? 2 * h : h;
    s.disegno.OrigineY -= stato.AltF + o[23] + altezza;
    DettaglioForiAsta(t, stato, i);
    SezioneConFori(t, stato, i);
  }
}

void Distinta(Tavola& t, StatoEsecutivo& stato) {
  Sessione& s = t.S();
  ArchivioDisegno& d = s.disegno;
  Origine(s, d.EstMaxX + stato.MargineTabella, d.EstMaxY);
  const std::int16_t colore = d.ColoreCorrente;
  d.ColoreCorrente = static_cast<std::int16_t>(s.opzioni[6]);
  DisegnaDistinta(t, stato);
  d.ColoreCorrente = colore;
}

// The highest point of the texts stored so far (the extents count lines only, and the texts of
// the topmost chain stand above its line), or the extents' top when no text is higher.
double CimaTesti(const ArchivioDisegno& d) {
  double cima = d.EstMaxY;
  if (!d.HaTabelle()) return cima;
  const TabelleDisegno& t = d.Tabelle();
  for (std::int32_t i = 0; i < d.NumTesti; ++i) {
    const double y = t.CoordY[t.TestoPunto[i]];
    const double a = t.TestoAngolo[i] * kPiGreco / 180;
    const double l =
        static_cast<double>(NumeroCaratteri(t.TestoStringa[i])) * t.TestoLarghezza[i] / 10;
    const double h = t.TestoAltezza[i] / 10.0;
    cima = std::max(
        {cima, y + l * std::sin(a), y + h * std::cos(a), y + l * std::sin(a) + h * std::cos(a)});
  }
  return cima;
}

// The title centred over the whole sheet, above it and above every text, and the note under
// the title.
void Titolo(Tavola& t) {
  Sessione& s = t.S();
  const ArchivioDisegno& d = s.disegno;
  Origine(s, 0, 0);
  const double h = t.Altezza(ClasseTesto::Testi);
  const double x = (d.EstMaxX + d.EstMinX) / 2 - 1;
  // The note's line is the sheet's top, kept clear of the texts standing higher by half a line.
  const double cima = CimaTesti(d);
  const double y = 2 * h + (cima > d.EstMaxY ? cima + h / 2 : d.EstMaxY);
  const auto colore = static_cast<std::int16_t>(s.opzioni[5]);
  t.TestoCentrato(TitoloEsecutivo(s), x, x + 2, y, y, 0, ClasseTesto::Testi, colore);
  const std::string& nota = s.opzioni.NotaDisegno;
  if (!nota.empty()) {
    t.TestoCentrato(nota, x, x + 2, y - 2 * h, y - 2 * h, 0, ClasseTesto::Testi, colore);
  }
}

}  // namespace

std::string TitoloEsecutivo(const Sessione& s) {
  const Nodo& n = s.nodo;
  std::string titolo = "ESECUTIVO NODI";
  for (int i = 1; i <= n.NumNodi; ++i) {
    titolo += i == 1 ? ": " : ",";
    titolo += TestoNumero(static_cast<long long>(n.NomeNodi[i]));
  }
  return titolo;
}

// No writer may put an endless or undefined figure into a file: a node whose sizes overflow
// stops the drawing here, before any file is touched.
void ControllaFiniti(const ArchivioDisegno& a) {
  if (!a.HaTabelle()) return;
  const TabelleDisegno& t = a.Tabelle();
  for (std::int32_t i = 0; i < a.NumCoord; ++i) {
    if (std::isfinite(t.CoordX[i]) && std::isfinite(t.CoordY[i])) continue;
    throw ErroreFatale("Disegno non eseguito: la coordinata " + std::to_string(i) +
                       " del disegno non è un numero finito (" + TestoNumero(t.CoordX[i]) + ", " +
                       TestoNumero(t.CoordY[i]) +
                       "): controllare le dimensioni del fazzoletto, degli angoli e delle aste");
  }
  // The number texts write an endless figure as the family did, "1.#INF": a text holding it is
  // a figure of the sheet that overflowed.
  for (std::int32_t i = 0; i < a.NumTesti; ++i) {
    if (t.TestoStringa[i].find("#INF") == std::string::npos) continue;
    throw ErroreFatale("Disegno non eseguito: il testo \"" + t.TestoStringa[i] +
                       "\" del disegno non è un numero finito: controllare i dati del nodo");
  }
}

void ComponiEsecutivo(Tavola& t, StatoEsecutivo& stato) {
  Sessione& s = t.S();
  stato = StatoEsecutivo{};
  GeometriaNodo(s);
  if (!GeometriaFinita(s.nodo, s.geometria)) {
    throw ErroreFatale(
        "Disegno non eseguito: geometria del nodo non calcolabile (valori fuori scala): "
        "controllare le dimensioni del fazzoletto, degli angoli e delle aste");
  }
  stato.MargineTabella = 4 * s.opzioni[10];
  Origine(s, 0, 0);
  VistaNodo(t, stato);
  Fazzoletto(t, stato);
  Dettagli(t, stato);
  if (s.opzioni[18] == 1) Distinta(t, stato);
  Titolo(t);
  ControllaFiniti(s.disegno);
}

void ComponiEsecutivo(Tavola& t) {
  const auto stato = std::make_unique<StatoEsecutivo>();
  ComponiEsecutivo(t, *stato);
}

}  // namespace qf17
