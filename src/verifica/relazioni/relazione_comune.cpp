#include "verifica/relazioni/relazione_comune.h"

#include <cmath>
#include <filesystem>
#include <string>
#include <string_view>

#include "librerie/formatta.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"
#include "piattaforma/file_sicuro.h"
#include "piattaforma/file_testo.h"
#include "verifica/comuni.h"
#include "verifica/relazioni/relazione_ta.h"

namespace qf17 {

void ScriviTitoloVerifica(const Nodo& n, TestoRelazione& r) {
  r << "VERIFICA TENSIONALE";
  if (n.NumNodi <= 0) return;
  r << " NODI: ";
  for (int i = 1; i <= n.NumNodi; ++i) {
    if (i > 1) r << ',';
    r << TestoNumero(static_cast<long long>(n.NomeNodi[i]));
  }
}

double NumeroCasellaAngolo(double radianti, Piattaforma& piattaforma) {
  double scala = 1;
  return NumeroIniziale(Formatta(RadiantiInGradi(radianti), "(DV_02)(NP_1)", scala, piattaforma));
}

double AngoloCasellaCorrente(const Nodo& n) {
  // The geometry moves Cor_teta by a half turn at most; the tolerance only absorbs the rounding
  // of that subtraction.
  const double scarto = n.Cor_tetaCasella - n.Cor_teta;
  const double mezziGiri = std::round(scarto / kPiGreco);
  const bool stessaRetta = std::abs(scarto - mezziGiri * kPiGreco) < 1e-9;
  return stessaRetta ? n.Cor_tetaCasella : n.Cor_teta;
}

void PreparaVerdetti(VerdettiRelazione& verdetti, int nSet) {
  verdetti = VerdettiRelazione{};
  verdetti.SetOk.assign(nSet + 1, true);
  verdetti.RapportoSaldatura.assign(nSet + 1, 0.0);
  verdetti.SaldaturaVerificabile.assign(nSet + 1, true);
}

namespace {

// A message on one line: each line break of the box becomes a blank.
std::string SuUnaRiga(std::string_view testo) {
  std::string riga;
  for (std::size_t i = 0; i < testo.size(); ++i) {
    if (testo[i] == '\r' && i + 1 < testo.size() && testo[i + 1] == '\n') continue;
    riga.push_back(testo[i] == '\r' || testo[i] == '\n' ? ' ' : testo[i]);
  }
  return riga;
}

}  // namespace

void ScriviAvvertenze(const RaccoltaMessaggi& raccolta, TestoRelazione& r) {
  if (raccolta.Voci().empty()) return;
  r << "AVVERTENZE" << kFine;
  for (const auto& voce : raccolta.Voci()) {
    r << kTab << SuUnaRiga(voce.testo) << " (" << TestoNumero(static_cast<long long>(voce.volte))
      << (voce.volte == 1 ? " volta)" : " volte)") << kFine;
  }
  r << kFine;
}

// The text is UTF-8, the encoding of this platform's editors, with CR LF line ends.
bool ConcludiRelazione(Sessione& sessione, FileSicuro& file, TestoRelazione& r, bool nodoKo) {
  Piattaforma& p = sessione.piattaforma;
  if (p.Raccolta() != nullptr) ScriviAvvertenze(*p.Raccolta(), r);
  if (nodoKo) {
    p.Messaggio("ATTENZIONE: nodo non verificato!", "QF17 - NODO DI TRAVATURA RETICOLARE",
                Icona::Attenzione, Pulsanti::Ok);
  }
  r.Versa();
  const std::string nome = file.Percorso().string();
  if (!file.Conferma()) {
    p.Messaggio("Errore: scrittura della relazione non riuscita:\n" + nome, "ERRORE",
                Icona::Critica, Pulsanti::Ok);
    return false;
  }
  if (!p.Mostra(Vista::Relazione, nome)) {
    p.Messaggio("Errore: impossibile mostrare la relazione:\n" + nome, "ERRORE", Icona::Critica,
                Pulsanti::Ok);
  }
  return true;
}

}  // namespace qf17
