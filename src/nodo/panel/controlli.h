#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "disegno/primitive_schermo.h"

namespace qf17 {

// One control of a form, as a front end paints it: the text of a box or the caption of a
// label, button or frame; enabled and visible; the value of a check box, option button or scroll
// bar (with its range); the items and the selection of a combo; the tooltip; what a picture
// shows.
struct Controllo {
  std::string testo;
  bool abilitato = true;
  bool visibile = true;
  int valore = 0;
  int minimo = 0, massimo = 0;
  std::vector<std::string> voci;
  int selezione = -1;
  std::string tooltip;
  DisegnoSchermo disegno;
};

// The controls of a form by name and, for a control array, index: "FzTxt(3)", "SpessTxt".
class Controlli {
 public:
  Controllo& operator()(std::string_view nome, int indice = -1) {
    return mappa_[Chiave(nome, indice)];
  }
  // Null for a control the form never touched.
  const Controllo* Trova(std::string_view nome, int indice = -1) const;
  std::size_t size() const { return mappa_.size(); }

  static std::string Chiave(std::string_view nome, int indice);

 private:
  std::unordered_map<std::string, Controllo> mappa_;
};

}  // namespace qf17
