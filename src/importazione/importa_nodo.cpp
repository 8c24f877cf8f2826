#include "importazione/importa_nodo.h"

#include <optional>
#include <string>
#include <vector>

#include "importazione/nodo_modello.h"
#include "librerie/numeri.h"
#include "nodo/panel/ins_dati.h"
#include "nodo/panel/profili_pannello.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

// The place in a combo's list of the section named `nome`, blanks ignored; -1 if none.
int PostoInLista(const LibreriaProfili& libreria, const std::vector<std::int16_t>& lista,
                 const std::string& nome) {
  const std::string cercato = RimuoviSpazi(nome);
  for (std::size_t k = 0; k < lista.size(); ++k) {
    if (RimuoviSpazi(libreria.Profili[lista[k]].Nome) == cercato) return static_cast<int>(k);
  }
  return -1;
}

void Angolo(InsDati& p, Sessione& s, int i, double gradi) {
  p.c("TetaTxt", i).testo = TestoNumero(gradi);
  TbValuta(p, s.nodo, s.unita, {FamigliaCasella::TetaTxt, i});
}

}  // namespace

void ImportaNodo3D(InsDati& p, Sessione& s, int nodo, const std::array<int, 4>& richiesti) {
  const std::filesystem::path lavoro = Percorso(s.nodo.DirLavoro);
  const auto struttura = LeggiStruttura(lavoro / "struttur.str", s.piattaforma);
  if (!struttura) return;
  const auto aste = LeggiAsteDelNodo(*struttura, nodo, s.piattaforma);
  if (!aste) return;
  // One row per role, A, B, C, then the chord D.
  std::array<const AstaDelNodo*, 4> righe{};
  bool qualcuna = false;
  for (std::size_t r = 0; r < 4; ++r) {
    for (const AstaDelNodo& a : *aste) {
      if (a.nome == richiesti[r] && a.sezione >= 0) righe[r] = &a;
    }
    qualcuna = qualcuna || righe[r] != nullptr;
  }
  if (!qualcuna) return;
  const auto sezioni = LeggiSezioniModello(lavoro / "sezioni_", s.piattaforma);
  if (!sezioni) return;
  pnn1_aggiorna_profili(p, s);  // the combos' lists
  auto sezione = [&](const AstaDelNodo* a) {
    const auto k = static_cast<std::size_t>(a->sezione);
    return NomeSezioneModello(k < sezioni->size() ? (*sezioni)[k] : std::string());
  };
  const AstaDelNodo* d = righe[3];
  const SezioneModello corrente = d != nullptr ? sezione(d) : SezioneModello{"", 0, false};
  const int postoCorrente =
      corrente.dallaLibreria ? PostoInLista(s.profili, p.listaCorrente, corrente.nome) : -1;
  if (postoCorrente >= 0) {
    Cb_Asta_Click(p, s, 0, postoCorrente);
  } else {
    s.piattaforma.Messaggio("Profilo non applicabile al corrente (solo L e U)", "Attenzione",
                            Icona::Attenzione, Pulsanti::Ok);
  }
  if (d != nullptr) Angolo(p, s, 0, AngoloModello(d->estremo1, d->estremo2));
  for (int i = 1; i <= 3; ++i) {
    const AstaDelNodo* a = righe[static_cast<std::size_t>(i - 1)];
    const bool chiesta = richiesti[static_cast<std::size_t>(i - 1)] >= 1;
    AstaCh_Click(p, s, i, chiesta);
    if (!chiesta) continue;
    const SezioneModello m = a != nullptr ? sezione(a) : SezioneModello{"", 0, false};
    const int posto = m.dallaLibreria ? PostoInLista(s.profili, p.listaAste, m.nome) : -1;
    if (posto >= 0) {
      Cb_Asta_Click(p, s, i, posto);
      OpB_aste_c_Click(p, s, (i - 1) * 3 + m.modo);
    } else {
      s.piattaforma.Messaggio("Profilo non applicabile all'asta " +
                                  std::string(1, static_cast<char>('A' + i - 1)) + " (solo L e U)",
                              "Attenzione", Icona::Attenzione, Pulsanti::Ok);
    }
    if (a != nullptr) Angolo(p, s, i, AngoloModello(a->estremo1, a->estremo2));
  }
}

}  // namespace qf17
