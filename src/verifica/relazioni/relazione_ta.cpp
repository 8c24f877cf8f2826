#include "verifica/relazioni/relazione_ta.h"

#include "librerie/token.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"
#include "verifica/relazioni/relazione_ta_parti.h"

namespace qf17 {

std::filesystem::path NomeRelazione(const Nodo& nodo, std::string_view tag,
                                    std::string_view codice) {
  std::string nome = "Rel";
  nome.append(tag).append("_").append(codice).append("_");
  nome += Rifila(nodo.NomeFileNodo);
  nome += ".txt";
  return std::filesystem::path(nodo.DirLavoro) / nome;
}

// The closing message comes up before the file is on disk, as the user has always seen it; the
// viewer gets the file once it is complete. The text is UTF-8, the encoding of this platform's
// editors, with CR LF line ends.
bool RelazioneTA(Sessione& sessione, VerdettiRelazione& verdetti) {
  const Nodo& n = sessione.nodo;
  int nSet = n.nSollAg > 0 ? n.nSollAg : 0;
  verdetti = VerdettiRelazione{};
  verdetti.SetOk.assign(nSet + 1, true);
  verdetti.RapportoSaldatura.assign(nSet + 1, 0.0);
  verdetti.SaldaturaVerificabile.assign(nSet + 1, true);

  TestoRelazione r(StimaLunghezzaTA(n));
  ScriviTestataTA(sessione, r);
  for (int j = 1; j <= nSet; ++j) {
    verdetti.SetOk[j] = ScriviSetTA(sessione, j, r, verdetti);
    if (!verdetti.SetOk[j]) verdetti.NodoKo = true;
  }

  Piattaforma& p = sessione.piattaforma;
  if (verdetti.NodoKo) {
    p.Messaggio("ATTENZIONE: nodo non verificato!", "QF17 - NODO DI TRAVATURA RETICOLARE",
                Icona::Attenzione, Pulsanti::Ok);
  }
  std::filesystem::path file = NomeRelazione(n, "TA");
  if (!ScriviFileSicuro(file, r.testo())) {
    p.Messaggio("Errore: scrittura della relazione non riuscita:\n" + file.string(), "ERRORE",
                Icona::Critica, Pulsanti::Ok);
    return false;
  }
  if (!p.Avvia("notepad.exe", file.string(), false)) {
    p.Messaggio("Errore: impossibile mostrare la relazione:\n" + file.string(), "ERRORE",
                Icona::Critica, Pulsanti::Ok);
  }
  return true;
}

}  // namespace qf17
