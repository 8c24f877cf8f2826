#include "librerie/materiali.h"

// Lookups of a steel or bolt class by name, as a loaded node needs them.
namespace qf17 {

int AcciaioDaNome(const Materiali& materiali, std::string_view nome, Piattaforma& piattaforma) {
  for (int i = 1; i <= materiali.NumAcciai; ++i) {
    if (materiali.Acciai[i].Nome == nome) return i;
  }
  piattaforma.Messaggio("Tipo acciaio non trovato.", "RICERCA TIPO ACCIAIO DA NOME", Icona::Critica,
                        Pulsanti::Ok);
  return 0;
}

int ViteDaNome(const Materiali& materiali, std::string_view nome, Piattaforma& piattaforma) {
  for (int i = 1; i <= materiali.NumViti; ++i) {
    if (materiali.Viti[i].Nome == nome) return i;
  }
  piattaforma.Messaggio("Tipo vite non trovato.", "RICERCA TIPO VITE DA NOME", Icona::Critica,
                        Pulsanti::Ok);
  return 0;
}

}  // namespace qf17
