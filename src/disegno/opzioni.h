#pragma once

#include <array>
#include <string>

namespace qf17 {

// The drawing options of OpzioniQf7.txt: thirty numbers and the note printed under the title.
// A new table holds the options of a fresh installation.
struct Opzioni {
  std::array<double, 30> valori{
      1, 2, 3, 1, 4, 1, 6,   // colours: outlines, axes, sections, dimensions and their
                             // lines, titles, tables
      8, 8, 10, 10, 10, 10,  // text sizes: dimensions, other texts, tables
      10, 5,                 // text to dimension line, size of the dimension indicators
      1, 0, 10, 1, 1, 2, 1,  // dimensions on, unused, copy of 13, table on, palette, weld
                             // mark colour, detail multiplier
      20, 70, 1, 0.5, 0, 1,  // detail spacing, distance between views, holes dimensioned,
                             // hole tolerance, threaded area off, arrows
      2, 6};                 // GRB text and dimension styles
  std::string NotaDisegno = "Nella dimensione dei fori non è conteggiata alcuna tolleranza";
  // "Quote Saldature": the node view dimensions each member's welds. Set by the options form,
  // never written to the file.
  bool QuoteSaldature = false;

  double& operator[](int i);
  double operator[](int i) const;
};

// What the options form shows: the texts of its boxes and the states of its other controls.
struct FormOpzioni {
  // Boxes Par_Nodo(0..15), (21), (23), (25), (28), (29); the other rows are not boxes.
  std::array<std::string, 30> Par_Nodo{};
  bool CheckQuote = false;
  bool QuoteCh = false;  // "Quote Saldature": mirrors the session's QuoteSaldature
  bool CheckDistinta = false;
  bool CheckAresBull = false;
  bool QuoteBull1 = false;  // "Disegna quote" chosen rather than "Disegna tabella coordinate"
  int IndQuote = -1;        // list index: 0 "Pallino", 1 "Freccia", -1 nothing chosen
  std::string NotaFori;
};

// The options the form holds, over `attuali` for the rows the form does not show (16, 20,
// 22). Boxes are read by their leading number, so an empty box gives 0; row 17 follows box 13
// and row 19 box 15. A number beyond any range in a box is an ErroreFatale.
Opzioni LeggiOpzioniForm(const FormOpzioni& form, const Opzioni& attuali);

// The form filled from the table (and "Quote Saldature" from the session's flag), as it is shown
// when it opens.
FormOpzioni FormDaOpzioni(const Opzioni& opzioni);

}  // namespace qf17
