#include "librerie/materiali.h"
#include "nodo/nodo.h"
#include "nodo/sessione.h"

// The panel's material clicks: steel list, bolt class list, method option.
namespace qf17 {

void SceltaAcciaio(Sessione& sessione, int indiceLista) {
  Nodo& nodo = sessione.nodo;
  Materiali& m = sessione.materiali;
  if (indiceLista < 0) return;
  if (indiceLista >= static_cast<int>(m.ListaAcciai.size())) return;  // no such place
  m.ListaAcciaiScelta = indiceLista;
  // The row is the list place + 1 although the list may skip forbidden rows: kept as it is.
  nodo.acciaio = m.Acciai[indiceLista + 1];
}

void SceltaVite(Sessione& sessione, int indiceLista) {
  Nodo& nodo = sessione.nodo;
  const Materiali& m = sessione.materiali;
  if (indiceLista < 0 || indiceLista >= m.NumViti) return;
  nodo.vite = m.Viti[indiceLista + 1];
}

void CambiaMetodo(Sessione& sessione, std::int16_t tipoVer) {
  Nodo& nodo = sessione.nodo;
  if (tipoVer == nodo.TipoVer) return;
  Materiali& m = sessione.materiali;
  const bool versoSLU = tipoVer == static_cast<std::int16_t>(TipoVerifica::SLU);
  Acciaio& lasciato = versoSLU ? m.AcciaioTA : m.AcciaioSLU;
  Acciaio& ripreso = versoSLU ? m.AcciaioSLU : m.AcciaioTA;
  lasciato = nodo.acciaio;
  if (ripreso.Vuoto()) ripreso = nodo.acciaio;
  nodo.TipoVer = tipoVer;
  nodo.acciaio = ripreso;
  RiempiListaAcciai(sessione, ripreso.Nome);
}

}  // namespace qf17
