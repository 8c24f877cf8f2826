#include <string>
#include <vector>

#include "librerie/materiali.h"
#include "nodo/avvio.h"
#include "nodo/nodo.h"
#include "nodo/sessione.h"

// The node's steel and bolt class against the tables and the method: after a load, for a new
// node, and when the materials base imposes its steel.
namespace qf17 {
namespace {

// The steel list of the node's method, shown without any selection.
std::vector<int> RifaiLista(Materiali& m, std::int16_t tipoVer) {
  std::vector<int> righe = RigheAcciaiAmmesse(m, tipoVer);
  m.ListaAcciai.clear();
  for (int riga : righe) m.ListaAcciai.push_back(m.Acciai[riga].Nome);
  m.ListaAcciaiScelta = -1;
  return righe;
}

// The first allowed row (0, the empty row, when the method allows none) becomes the steel.
void PrimoAcciaioAmmesso(Sessione& s, const std::vector<int>& righe) {
  Materiali& m = s.materiali;
  s.nodo.acciaio = m.Acciai[righe.empty() ? 0 : righe.front()];
  m.ListaAcciaiScelta = righe.empty() ? -1 : 0;
}

bool ViteAmmessa(const Materiali& m, std::int16_t tipoVer, const std::string& nome) {
  for (int i = 1; i <= m.NumViti; ++i) {
    if (m.Viti[i].Nome == nome && MaterialeAmmesso(m, tipoVer, ListaMateriale::Bulloni, i)) {
      return true;
    }
  }
  return false;
}

int PrimaViteAmmessa(const Materiali& m, std::int16_t tipoVer) {
  for (int i = 1; i <= m.NumViti; ++i) {
    if (MaterialeAmmesso(m, tipoVer, ListaMateriale::Bulloni, i)) return i;
  }
  return 0;
}

}  // namespace

void CliccaCheckMatBase(Sessione& sessione, bool spuntato) {
  sessione.materiali.CheckMatBase = spuntato;
  GestioneMaterialeBase(sessione);
}

void GestioneMaterialeBase(Sessione& sessione) {
  Materiali& m = sessione.materiali;
  if (!m.MatBaseAttivo || !m.CheckMatBase) return;
  Nodo& nodo = sessione.nodo;
  const std::vector<int> righe = RifaiLista(m, nodo.TipoVer);
  nodo.acciaio = m.AcciaioBase;
  m.ListaAcciaiScelta = PostoInLista(m, m.AcciaioBase.Nome);
  if (m.ListaAcciaiScelta >= 0 && !m.AcciaioBase.Vuoto()) return;
  sessione.piattaforma.Messaggio(
      "Materiale-Base non valido per questo tipo di verifica. Verrà impostato un altro tipo di "
      "acciaio.",
      "ATTENZIONE!", Icona::Attenzione, Pulsanti::Ok);
  m.CheckMatBase = false;
  PrimoAcciaioAmmesso(sessione, righe);
}

void ControllaMateriali(Sessione& sessione) {
  Materiali& m = sessione.materiali;
  Nodo& nodo = sessione.nodo;
  Piattaforma& p = sessione.piattaforma;
  const std::vector<int> righe = RifaiLista(m, nodo.TipoVer);
  m.ListaAcciaiScelta = PostoInLista(m, nodo.acciaio.Nome);
  if (m.ListaAcciaiScelta < 0) {
    p.Messaggio("Attenzione: tipo acciaio non accettabile (" + nodo.acciaio.Nome +
                    "). Scegliere un acciaio dalla tendina dei  materiali",
                std::string(kTitoloProgramma), Icona::Attenzione, Pulsanti::Ok);
    PrimoAcciaioAmmesso(sessione, righe);
  }
  if (!ViteAmmessa(m, nodo.TipoVer, nodo.vite.Nome)) {
    p.Messaggio("Attenzione: classe viti non accettabile (" + nodo.vite.Nome +
                    "). Scegliere una classe dalla tendina delle viti",
                std::string(kTitoloProgramma), Icona::Attenzione, Pulsanti::Ok);
    nodo.vite = m.Viti[PrimaViteAmmessa(m, nodo.TipoVer)];
  }
}

void MaterialiDefault(Sessione& sessione) {
  Materiali& m = sessione.materiali;
  Nodo& nodo = sessione.nodo;
  nodo.vite = m.Viti[4];
  nodo.acciaio = m.Acciai[1];
  if (m.MatBaseAttivo && m.CheckMatBase) GestioneMaterialeBase(sessione);
}

}  // namespace qf17
