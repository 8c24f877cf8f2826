#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "nodo/tabella.h"

namespace qf17 {

class Piattaforma;

// Last rows of the drawing tables. Rows count from 0; a table's live rows are 0 to its count - 1.
inline constexpr int kUltimaCoordinata = 50000;
inline constexpr int kUltimaLinea = 50000;
inline constexpr int kUltimoArco = 15000;
inline constexpr int kUltimoTesto = 15000;
inline constexpr int kUltimoPunto = 5000;
inline constexpr int kUltimaQuota = 1000;  // dimension entities of the GRB sheet

// Two coordinates closer than this in both X and Y are the same point; a line no longer than this
// in both X and Y is no line.
inline constexpr double kTolleranzaDisegno = 0.0001;

// The target name that sends the primitives to the tables.
inline constexpr std::string_view kDestinazioneArchivio = "gendis";

// What the tables tell the user when they fill up: title and texts of the box.
inline constexpr std::string_view kTitoloLimiteDisegno = "ERRORE !!";
inline constexpr std::string_view kLimiteCoordinate =
    "Si è raggiunto il numero massimo di coordinate.";
inline constexpr std::string_view kLimiteLinee = "Si è raggiunto il numero massimo di linee.";
inline constexpr std::string_view kLimiteTesti = "Si è raggiunto il numero massimo di testi.";

// The parallel tables of one drawing. Coordinates are sheet millimetres with the origin applied;
// every other table refers to them by index.
struct TabelleDisegno {
  Tabella<double, 0, kUltimaCoordinata> CoordX, CoordY;

  Tabella<std::int32_t, 0, kUltimaLinea> LinP1, LinP2;
  Tabella<std::int16_t, 0, kUltimaLinea> LinColore;
  Tabella<std::int16_t, 0, kUltimaLinea> LinTipo;  // 0 continuous, 1 dash-dot, 4 dashed

  // Markers: room kept by the file format, never filled by a primitive.
  Tabella<std::int32_t, 0, kUltimoPunto> PuntoRif;
  Tabella<std::int16_t, 0, kUltimoPunto> PuntoA, PuntoB;

  // An arc runs from ArcInizio to ArcFine round ArcCentro; a circle has the two ends equal.
  Tabella<std::int32_t, 0, kUltimoArco> ArcCentro, ArcInizio, ArcCentro2, ArcFine;
  Tabella<std::int16_t, 0, kUltimoArco> ArcColore, ArcTipo;

  Tabella<std::int32_t, 0, kUltimoTesto> TestoPunto;   // left end of the baseline
  Tabella<std::int16_t, 0, kUltimoTesto> TestoAngolo;  // whole degrees, counter-clockwise
  Tabella<std::int16_t, 0, kUltimoTesto> TestoLarghezza, TestoAltezza;  // tenths of a millimetre
  Tabella<std::int16_t, 0, kUltimoTesto> TestoColore;
  Tabella<std::string, 0, kUltimoTesto> TestoStringa;
  // GRB texts only: where the anchor sits on the text (1 middle, 2 end, other start); their
  // TestoColore holds the text style.
  Tabella<std::int16_t, 0, kUltimoTesto> TestoAllineamento;

  // Dimension entities of the GRB sheet: the two measured points, "H", "V" or "P", the style,
  // the offset of the dimension line from the points, and the text ("Stringa_di_default" lets
  // the reader write the measure).
  Tabella<std::int16_t, 0, kUltimaQuota> QuotaP1, QuotaP2;
  Tabella<std::string, 0, kUltimaQuota> QuotaTipo;
  Tabella<std::int16_t, 0, kUltimaQuota> QuotaStile;
  Tabella<double, 0, kUltimaQuota> QuotaScost;
  Tabella<std::string, 0, kUltimaQuota> QuotaTesto;
};

// An owning pointer whose copy copies what it points to, so that a class holding one keeps its
// default copy: every field is copied without being listed.
template <class T>
class CopiaProfonda {
 public:
  CopiaProfonda() = default;
  CopiaProfonda(const CopiaProfonda& altro)
      : p_(altro.p_ ? std::make_unique<T>(*altro.p_) : nullptr) {}
  CopiaProfonda& operator=(const CopiaProfonda& altro) {
    if (this != &altro) p_ = altro.p_ ? std::make_unique<T>(*altro.p_) : nullptr;
    return *this;
  }
  CopiaProfonda(CopiaProfonda&&) = default;
  CopiaProfonda& operator=(CopiaProfonda&&) = default;

  T* get() const { return p_.get(); }
  void Crea() { p_ = std::make_unique<T>(); }

 private:
  std::unique_ptr<T> p_;
};

// The one in-memory drawing: what composition writes through the primitives and the writers
// dump. Its tables take a few megabytes, so they are made on first use: a session that never
// draws never pays for them. Clearing the drawing resets the counts only; rows keep their old
// content, which a line of an unknown style inherits.
class ArchivioDisegno {
 public:
  TabelleDisegno& Tabelle();
  // Made on first use here too: fresh tables read as zeros and empty strings, which is what a
  // reader of untouched rows would find anyway.
  const TabelleDisegno& Tabelle() const;
  bool HaTabelle() const { return tabelle_.get() != nullptr; }

  std::string DestinazioneDisegno;  // "gendis" while composition fills the tables
  double OrigineX = 0, OrigineY = 0;
  std::int16_t ColoreCorrente = 0;  // colour of a circle drawn without one
  std::int16_t StileLinea = 0;      // 0 continuous, 1 dashed, 3 dash-dot
  // Dimension texts that do not fit their line: QuotaAlterna (set by a chain) lets them go to
  // the two sides in turn, QuotaAlternata tells that the last one went to the far side.
  std::int16_t QuotaAlterna = 0, QuotaAlternata = 0;

  // Extents of the lines stored so far, on the sheet and in the frame of the chord.
  double EstMaxX = 0, EstMaxY = 0, EstMinX = 0, EstMinY = 0;
  double RuotMaxX = 0, RuotMaxY = 0, RuotMinX = 0, RuotMinY = 0;

  std::int32_t NumCoord = 0;
  std::int32_t NumLinee = 0;
  std::int32_t NumPunti = 0;
  std::int32_t NumArchi = 0;
  std::int32_t NumTesti = 0;
  std::int16_t NumQuote = 0;     // GRB dimension entities
  std::int16_t NumPoligoni = 0;  // room kept by the GRB format, never filled

 private:
  mutable CopiaProfonda<TabelleDisegno> tabelle_;
};

// The box of a table that fills up: OK only, and the drawing goes on.
void AvvisoLimiteDisegno(Piattaforma& p, std::string_view testo);

// Empties every table (counts to 0; rows are left as they are).
void AzzeraDisegno(ArchivioDisegno& a);
// Maxima to -1e10 and minima to 1e10, on the sheet and in the chord frame.
void AzzeraEstensioni(ArchivioDisegno& a);
// Widens both extents to hold the sheet point (x, y); `corTeta` is the chord's angle.
void AggiornaEstensioni(ArchivioDisegno& a, double corTeta, double x, double y);

// The index of a coordinate equal to (x, y) among the 31 most recent ones, newest first; -1 if
// none. Older equal coordinates are not looked for: the DIS writer's clean-up merges them.
std::int32_t CoordinataRecente(const ArchivioDisegno& a, double x, double y);

// Finds or adds (x, y), with the table's own limits: at row 49999 the user is told once and the
// coordinate is still added; a full table gives -1 without a word. The index is 32-bit here.
std::int32_t TrovaOAggiungiCoordinata(ArchivioDisegno& a, Piattaforma& p, double x, double y);

// What the primitives call: the same, with the 16-bit index of the family's drawings. A drawing
// that needs index 32768 is an ErroreFatale, so the table's own limit is never met this way.
std::int16_t AggiungiCoordinata(ArchivioDisegno& a, Piattaforma& p, double x, double y);

}  // namespace qf17
