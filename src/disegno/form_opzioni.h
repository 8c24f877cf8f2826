#pragma once

#include "disegno/opzioni.h"

namespace qf17 {

struct Sessione;

// The logic of the drawing options form, over what the form shows; the desktop form calls these
// from its events and shows or hides itself.

// Opening the form: its controls filled from the session's options.
FormOpzioni ApriFormOpzioni(const Sessione& s);

// "Quote Saldature" can be ticked only while "Quote" is.
bool QuoteChAbilitato(const FormOpzioni& form);

// A change of "Quote" to `valore`. Unticking it unticks "Quote Saldature" too, which clears the
// session's QuoteSaldature at once.
void ImpostaCheckQuote(FormOpzioni& form, Sessione& s, bool valore);
// A change of "Quote Saldature" to `valore`: ticking it ticks "Quote" too. The session's
// QuoteSaldature follows the box at once, before any button: "Annulla" does not take it back.
void ImpostaQuoteCh(FormOpzioni& form, Sessione& s, bool valore);

// "Applica": the form into the session's options, then the sheet in the viewer; the form stays
// open.
void Applica(const FormOpzioni& form, Sessione& s);
// "Chiudi": the form into the session's options; the form is hidden.
void Chiudi(const FormOpzioni& form, Sessione& s);
// "Annulla": the form is hidden and the options stay as they were.
inline void Annulla(const FormOpzioni& /*form*/, Sessione& /*s*/) {}
// "Salva": the form into the session's options, and OpzioniQf7.txt written in the custom folder.
// On failure the user is told; false.
bool Def(const FormOpzioni& form, Sessione& s);

}  // namespace qf17
