#pragma once

#include <cstdint>
#include <string>

namespace qf17 {

struct Sessione;

// The three kinds of text of the sheet; each has its own size.
enum class ClasseTesto {
  Quote,     // dimension texts, hole numbers, the letters of the coordinate axes
  Testi,     // titles, member labels, notes
  Distinta,  // cells of the tables
};

// What the executive sheet is composed into. Lines, circles and arcs go straight into the
// session's drawing store, which every output shares; texts and dimensions go through here,
// because the DIS and DXF sheets store a dimension as lines and a text of a given size while
// the GRB sheet keeps dimension entities and texts by style.
class Tavola {
 public:
  explicit Tavola(Sessione& s) : sessione_(s) {}
  virtual ~Tavola() = default;
  Tavola(const Tavola&) = delete;
  Tavola& operator=(const Tavola&) = delete;

  Sessione& S() const { return sessione_; }

  // Width of one character and height of a text of the kind: what placing a text reckons with.
  virtual double Larghezza(ClasseTesto classe) const = 0;
  virtual double Altezza(ClasseTesto classe) const = 0;

  // A dimension of the segment (x1, y1)-(x2, y2) in the dimension colours, its text `distanza`
  // to the left of the line's direction; an empty text writes the measure times |fattore|.
  // Coordinates are relative to the drawing's origin.
  virtual void Quota(const std::string& testo, double x1, double x2, double y1, double y2,
                     double distanza, double fattore) = 0;

  // A text of the kind centred along the segment (x1, y1)-(x2, y2) and `distanza` to the left
  // of it, with no line: table cells, titles, member labels.
  virtual void TestoCentrato(const std::string& testo, double x1, double x2, double y1, double y2,
                             double distanza, ClasseTesto classe, std::int16_t colore) = 0;

  // A text of the kind with the left end of its baseline at (x, y), `angolo` whole degrees.
  virtual void Testo(const std::string& testo, double x, double y, std::int16_t angolo,
                     ClasseTesto classe, std::int16_t colore) = 0;

 private:
  Sessione& sessione_;
};

}  // namespace qf17
