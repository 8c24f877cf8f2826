#include "nodo/panel/controlli.h"

namespace qf17 {

std::string Controlli::Chiave(std::string_view nome, int indice) {
  std::string chiave(nome);
  if (indice >= 0) chiave += "(" + std::to_string(indice) + ")";
  return chiave;
}

const Controllo* Controlli::Trova(std::string_view nome, int indice) const {
  const auto trovato = mappa_.find(Chiave(nome, indice));
  return trovato == mappa_.end() ? nullptr : &trovato->second;
}

}  // namespace qf17
