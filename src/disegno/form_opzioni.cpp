#include "disegno/form_opzioni.h"

#include <string>

#include "disegno/esporta_disegno.h"
#include "disegno/file_opzioni.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"

namespace qf17 {

FormOpzioni ApriFormOpzioni(const Sessione& s) {
  return FormDaOpzioni(s.opzioni);
}

bool QuoteChAbilitato(const FormOpzioni& form) {
  return form.CheckQuote;
}

// A box's change event runs only when its value really changes, as a desktop's does.
void ImpostaCheckQuote(FormOpzioni& form, Sessione& s, bool valore) {
  if (form.CheckQuote == valore) return;
  form.CheckQuote = valore;
  if (!valore) ImpostaQuoteCh(form, s, false);
}

void ImpostaQuoteCh(FormOpzioni& form, Sessione& s, bool valore) {
  if (form.QuoteCh == valore) return;
  form.QuoteCh = valore;
  if (valore) ImpostaCheckQuote(form, s, true);
  s.opzioni.QuoteSaldature = valore;
}

void Applica(const FormOpzioni& form, Sessione& s) {
  s.opzioni = LeggiOpzioniForm(form, s.opzioni);
  ApriVisualizzatore(s);
}

void Chiudi(const FormOpzioni& form, Sessione& s) {
  s.opzioni = LeggiOpzioniForm(form, s.opzioni);
}

bool Def(const FormOpzioni& form, Sessione& s) {
  s.opzioni = LeggiOpzioniForm(form, s.opzioni);
  if (ScriviOpzioni(s.opzioni, Percorso(s.cartelle.custom) / "OpzioniQf7.txt")) return true;
  s.piattaforma.Messaggio(
      "Errore: file " + s.cartelle.custom + "\\OpzioniQf7.txt errato o mancante.", "ERRORE",
      Icona::Critica, Pulsanti::Ok);
  return false;
}

}  // namespace qf17
