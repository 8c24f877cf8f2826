#include <string>
#include <utility>

#include "librerie/libreria_profili.h"
#include "librerie/materiali.h"
#include "nodo/chiavi.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

RichiestaFile RichiestaNodo(const Sessione& sessione) {
  RichiestaFile r;
  r.filtro = std::string(kFiltroFileNodo);
  r.estensione = std::string(kEstensioneNodo);
  r.cartella = sessione.nodo.DirLavoro;
  return r;
}

std::string NomeDaPercorso(const std::filesystem::path& file) {
  return SenzaEstensione(SoloNomeFile(file.string()));
}

// A node file holds names only: sections and materials are the current libraries' rows. False
// when a name was not found (the user was told, and the empty row 0 took its place).
bool RisolviNomi(Sessione& sessione, Nodo& nodo) {
  Piattaforma& p = sessione.piattaforma;
  LibreriaProfili& libreria = sessione.profili;
  bool trovati = true;
  auto riga = [&trovati](int indice) {
    trovati = trovati && indice != 0;
    return indice;
  };
  nodo.Corrente = libreria.Profili[riga(ProfiloDaNome(libreria, nodo.Corrente.Nome, p))];
  for (int i = 1; i <= kMaxAste; ++i) {
    nodo.Aste[i] = libreria.Profili[riga(ProfiloDaNome(libreria, nodo.Aste[i].Nome, p))];
  }
  CompletaProfili(libreria);
  const Materiali& m = sessione.materiali;
  nodo.acciaio = m.Acciai[riga(AcciaioDaNome(m, nodo.acciaio.Nome, p))];
  nodo.vite = m.Viti[riga(ViteDaNome(m, nodo.vite.Nome, p))];
  return trovati;
}

}  // namespace

bool ApriNodo(Sessione& sessione) {
  auto scelto = sessione.piattaforma.ScegliFileDaAprire(RichiestaNodo(sessione));
  if (!scelto || scelto->percorso.empty()) return false;
  return ApriNodoDaFile(sessione, Percorso(scelto->percorso));
}

bool ApriNodoDaFile(Sessione& sessione, const std::filesystem::path& file) {
  Piattaforma& p = sessione.piattaforma;
  Release release = LeggiRelease(file, p, true);
  if (!release.ok) return false;

  // Missing keys keep the session's values, so the copy starts from the node in use; the session
  // sees the result only when the whole file was read.
  Nodo letto = sessione.nodo;
  if (release.file < 1.0) {
    if (!LeggiNodoVecchio(letto, file)) {
      p.Messaggio("File:\n" + file.string(), std::string(kTitoloLetturaFallita), Icona::Critica,
                  Pulsanti::Ok);
      return false;
    }
  } else if (!LeggiNodo(letto, file, p)) {
    return false;
  }

  letto.NomeFileNodo = NomeDaPercorso(file);
  const bool trovati = RisolviNomi(sessione, letto);
  sessione.nodo = std::move(letto);
  sessione.NomiMancanti = !trovati;
  sessione.nodo.Cor_tetaCasella = sessione.nodo.Cor_teta;
  ControllaMateriali(sessione);
  RiempiListaAcciai(sessione, sessione.nodo.acciaio.Nome);
  return true;
}

bool SalvaNodo(Sessione& sessione) {
  const Nodo& n = sessione.nodo;
  return SalvaNodoSuFile(sessione, Percorso(n.DirLavoro) / NomeFileCorrente(n));
}

bool SalvaNodoCome(Sessione& sessione) {
  auto scelto = sessione.piattaforma.ScegliFileDaSalvare(RichiestaNodo(sessione));
  if (!scelto || scelto->percorso.empty()) return false;
  return SalvaNodoSuFile(sessione, Percorso(scelto->percorso));
}

bool SalvaNodoSuFile(Sessione& sessione, const std::filesystem::path& file) {
  if (!ScriviNodo(sessione.nodo, file, sessione.piattaforma)) return false;
  sessione.nodo.NomeFileNodo = NomeDaPercorso(file);
  return true;
}

}  // namespace qf17
