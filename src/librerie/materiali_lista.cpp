#include <algorithm>

#include "librerie/materiali.h"
#include "nodo/nodo.h"
#include "nodo/sessione.h"

// Which steels and bolt classes each method allows, and the panel's steel list built on it.
namespace qf17 {
namespace {

constexpr std::int16_t kMetodoSLU = static_cast<std::int16_t>(TipoVerifica::SLU);

std::string AvvisoNonAmmesso(std::int16_t tipoVer) {
  const std::string metodo =
      tipoVer == kMetodoSLU ? "agli stati limite" : "alle tensioni ammissibili";
  return "Materiale non possibile per verifiche " + metodo +
         ". Verrà impostato un altro tipo di acciaio.\n"
         "Da questo momento in poi il materiale impostato sarà ricordato anche se si cambia il "
         "metodo di verifica.";
}

}  // namespace

bool MaterialeAmmesso(const Materiali& materiali, std::int16_t tipoVer, ListaMateriale lista,
                      int riga) {
  if (lista == ListaMateriale::Bulloni) {
    if (riga < 1 || riga > materiali.NumViti) return false;
    if (tipoVer != kMetodoSLU) return true;
    const Vite& v = materiali.Viti[riga];
    return v.fdVit > 0 && v.gMViti > 0;
  }
  if (riga < 1 || riga > materiali.NumAcciai) return false;
  const Acciaio& a = materiali.Acciai[riga];
  if (tipoVer == kMetodoSLU) return a.fy > 0 && a.fy40 > 0;
  return a.SAmm > 0 && a.SAmm40 > 0;
}

std::vector<int> RigheAcciaiAmmesse(const Materiali& materiali, std::int16_t tipoVer) {
  std::vector<int> righe;
  for (int i = 1; i <= materiali.NumAcciai; ++i) {
    if (MaterialeAmmesso(materiali, tipoVer, ListaMateriale::Profili, i)) righe.push_back(i);
  }
  return righe;
}

std::vector<std::string> ListaViti(const Materiali& materiali) {
  std::vector<std::string> nomi;
  for (int i = 1; i <= materiali.NumViti; ++i) nomi.push_back(materiali.Viti[i].Nome);
  return nomi;
}

int PosizioneInLista(const Materiali& materiali, std::int16_t tipoVer, std::string_view voluto) {
  int posto = 0;
  for (int riga : RigheAcciaiAmmesse(materiali, tipoVer)) {
    const std::string& nome = materiali.Acciai[riga].Nome;
    const bool contiene = nome.find(voluto) != std::string::npos;
    const bool contenuto = voluto.find(nome) != std::string_view::npos && nome != voluto;
    if (contiene || contenuto) return posto;
    ++posto;
  }
  return -1;
}

int PostoInLista(const Materiali& materiali, std::string_view nome) {
  const auto& lista = materiali.ListaAcciai;
  for (std::size_t i = 0; i < lista.size(); ++i) {
    if (lista[i] == nome) return static_cast<int>(i);
  }
  return -1;
}

void RiempiListaAcciai(Sessione& sessione, std::string_view voluto) {
  Materiali& m = sessione.materiali;
  Nodo& nodo = sessione.nodo;
  const std::vector<int> righe = RigheAcciaiAmmesse(m, nodo.TipoVer);
  m.ListaAcciai.clear();
  for (int riga : righe) m.ListaAcciai.push_back(m.Acciai[riga].Nome);
  m.ListaAcciaiScelta = -1;
  if (!righe.empty() && !voluto.empty()) {
    m.ListaAcciaiScelta = PostoInLista(m, voluto);
    if (m.ListaAcciaiScelta < 0) {
      sessione.piattaforma.Messaggio(AvvisoNonAmmesso(nodo.TipoVer), "ATTENZIONE!",
                                     Icona::Attenzione, Pulsanti::Ok);
      m.ListaAcciaiScelta = std::max(0, PosizioneInLista(m, nodo.TipoVer, voluto));
      nodo.acciaio = m.Acciai[righe[static_cast<std::size_t>(m.ListaAcciaiScelta)]];
    }
  }
}

}  // namespace qf17
