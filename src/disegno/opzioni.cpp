#include "disegno/opzioni.h"

#include "librerie/numeri.h"
#include "librerie/token.h"
#include "nodo/tabella.h"

namespace qf17 {
namespace {

// The rows that a box of the same number edits.
constexpr int kCaselle[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 21, 23, 25, 28, 29};

}  // namespace

double& Opzioni::operator[](int i) {
  if (i < 0 || i > 29) IndiceFuoriTabella(i, 0, 29);
  return valori[static_cast<std::size_t>(i)];
}

double Opzioni::operator[](int i) const {
  if (i < 0 || i > 29) IndiceFuoriTabella(i, 0, 29);
  return valori[static_cast<std::size_t>(i)];
}

Opzioni LeggiOpzioniForm(const FormOpzioni& form, const Opzioni& attuali) {
  Opzioni o = attuali;
  auto casella = [&form](int i) {
    return NumeroIniziale(form.Par_Nodo[static_cast<std::size_t>(i)]);
  };
  for (int i : kCaselle) o[i] = casella(i);
  o[19] = casella(15);
  o[17] = casella(13);
  o.NotaDisegno = Rifila(form.NotaFori);
  o[26] = form.CheckAresBull ? 1 : 0;
  o[27] = form.IndQuote;
  o[15] = form.CheckQuote ? 1 : 0;
  o[18] = form.CheckDistinta ? 1 : 0;
  o[24] = form.QuoteBull1 ? 1 : 0;
  return o;
}

FormOpzioni FormDaOpzioni(const Opzioni& opzioni) {
  FormOpzioni form;
  for (int i : kCaselle) form.Par_Nodo[static_cast<std::size_t>(i)] = TestoNumero(opzioni[i]);
  form.Par_Nodo[15] = TestoNumero(opzioni[19]);
  form.CheckQuote = opzioni[15] != 0;
  form.QuoteCh = opzioni.QuoteSaldature;
  form.CheckDistinta = opzioni[18] != 0;
  form.CheckAresBull = opzioni[26] != 0;
  form.QuoteBull1 = opzioni[24] == 1;
  form.IndQuote = opzioni[27] == 0 ? 0 : opzioni[27] == 1 ? 1 : -1;
  form.NotaFori = opzioni.NotaDisegno;
  return form;
}

}  // namespace qf17
