#include "disegno/esecutivo/tavola_dis.h"

#include "disegno/archivio_disegno_primitive.h"
#include "disegno/esecutivo/quote.h"
#include "nodo/sessione.h"

namespace qf17 {

namespace {

// The options' rows of each kind of text: width, then height.
struct RigheDimensioni {
  int larghezza;
  int altezza;
};

RigheDimensioni Righe(ClasseTesto classe) {
  switch (classe) {
    case ClasseTesto::Quote:
      return {8, 7};
    case ClasseTesto::Testi:
      return {10, 9};
    case ClasseTesto::Distinta:
      return {12, 11};
  }
  return {10, 9};
}

}  // namespace

double TavolaDis::Larghezza(ClasseTesto classe) const {
  return S().opzioni[Righe(classe).larghezza];
}

double TavolaDis::Altezza(ClasseTesto classe) const {
  return S().opzioni[Righe(classe).altezza];
}

void TavolaDis::Quota(const std::string& testo, double x1, double x2, double y1, double y2,
                      double distanza, double fattore) {
  qf17::Quota(S(), testo, x1, x2, y1, y2, ColoreOpzione(S(), 4), ColoreOpzione(S(), 3),
              Larghezza(ClasseTesto::Quote), Altezza(ClasseTesto::Quote), distanza, fattore);
}

void TavolaDis::TestoCentrato(const std::string& testo, double x1, double x2, double y1, double y2,
                              double distanza, ClasseTesto classe, std::int16_t colore) {
  qf17::Quota(S(), testo, x1, x2, y1, y2, -1, colore, Larghezza(classe), Altezza(classe), distanza,
              1.0);
}

void TavolaDis::Testo(const std::string& testo, double x, double y, std::int16_t angolo,
                      ClasseTesto classe, std::int16_t colore) {
  ScriviTesto(S(), testo, x, y, angolo, Larghezza(classe), Altezza(classe), colore);
}

}  // namespace qf17
