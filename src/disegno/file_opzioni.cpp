#include "disegno/file_opzioni.h"

#include <string>

#include "librerie/numeri.h"
#include "piattaforma/errori.h"
#include "piattaforma/file_testo.h"

namespace qf17 {

Opzioni OpzioniPredefinite() {
  return Opzioni{};
}

bool LeggiOpzioni(Opzioni& opzioni, const std::filesystem::path& file) {
  auto righe = LeggiRighe(file);
  if (!righe || righe->size() < 31) return false;
  Opzioni letto = opzioni;
  try {
    for (int i = 0; i < 30; ++i) letto[i] = NumeroIniziale((*righe)[static_cast<std::size_t>(i)]);
  } catch (const ErroreFatale&) {
    return false;
  }
  letto.NotaDisegno = (*righe)[30];
  letto[22] = 20.0;  // the detail spacing is the program's, whatever the file says
  letto[17] = letto[13];
  opzioni = letto;
  return true;
}

bool ScriviOpzioni(const Opzioni& opzioni, const std::filesystem::path& file) {
  std::string contenuto;
  for (int i = 0; i < 30; ++i) AggiungiRiga(contenuto, TestoLista(opzioni[i]));
  // The note is the last line of the file: what followed a line break in it would be lost.
  std::string nota = opzioni.NotaDisegno;
  for (char& c : nota) {
    if (c == '\r' || c == '\n') c = ' ';
  }
  AggiungiRiga(contenuto, nota);
  return ScriviFileSicuro(file, contenuto);
}

}  // namespace qf17
