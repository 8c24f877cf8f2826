#include "librerie/unita_lavoro.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "librerie/numeri.h"
#include "librerie/token.h"
#include "nodo/sessione.h"
#include "piattaforma/errori.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

constexpr std::size_t kNo = std::string::npos;

struct FattoreUnita {
  double fattore = 0;
  int decimali = 0;
};

bool Contiene(std::string_view nome, std::string_view parte) {
  return nome.find(parte) != std::string_view::npos;
}

// Stored centimetres times the factor give the named length.
FattoreUnita Lunghezza(std::string_view nome) {
  if (Contiene(nome, "mm")) return {10, 0};
  if (Contiene(nome, "cm")) return {1, 1};
  if (Contiene(nome, "m")) return {0.01, 3};
  return {};
}

// Stored daN times the factor give the named force. "N" comes after "daN" and "kN", which hold it.
FattoreUnita Forza(std::string_view nome, double g) {
  if (Contiene(nome, "daN")) return {1, 1};
  if (Contiene(nome, "kN")) return {1.0 / 100, 3};
  if (Contiene(nome, "N")) return {10, 0};
  if (Contiene(nome, "kgf")) return {10 / g, 1};
  if (Contiene(nome, "t")) return {(1.0 / 100) / g, 4};
  return {};
}

// A force over an area: the force before the "/", the length after it.
FattoreUnita Tensione(std::string_view nome, double g) {
  if (std::size_t barra = nome.find('/'); barra != kNo) {
    FattoreUnita f = Forza(nome.substr(0, barra), g);
    FattoreUnita l = Lunghezza(nome.substr(barra + 1));
    if (f.fattore == 0 || l.fattore == 0) return {};  // a part that fits no rule
    return {f.fattore / (l.fattore * l.fattore), std::max(0, f.decimali + 2 * (1 - l.decimali))};
  }
  if (Contiene(nome, "kPa")) return {100, 0};
  if (Contiene(nome, "MPa")) return {0.1, 2};
  return {};
}

constexpr std::array<std::string_view, 3> kLunghezze = {"mm", "cm", "m"};
constexpr std::array<std::string_view, 5> kForze = {"daN", "kN", "N", "kgf", "t"};

bool UnaDi(std::string_view nome, const auto& nomi) {
  return std::find(nomi.begin(), nomi.end(), nome) != nomi.end();
}

// A force over a length or its square ("daN/cm2", "N/mm2"), or one of the pressure names.
bool TensioneEsatta(std::string_view nome) {
  if (nome == "kPa" || nome == "MPa") return true;
  const std::size_t barra = nome.find('/');
  if (barra == kNo) return false;
  std::string_view lunghezza = nome.substr(barra + 1);
  if (!lunghezza.empty() && lunghezza.back() == '2') lunghezza.remove_suffix(1);
  return UnaDi(nome.substr(0, barra), kForze) && UnaDi(lunghezza, kLunghezze);
}

// A force followed by a length ("daNm", "kNm", "Nmm").
bool MomentoEsatto(std::string_view nome) {
  for (std::string_view forza : kForze) {
    if (nome.substr(0, forza.size()) == forza && UnaDi(nome.substr(forza.size()), kLunghezze)) {
      return true;
    }
  }
  return false;
}

// In the family's files "8" stands for "/" in unit names, which "/" would cut.
std::string NomeUnita(std::string valore) {
  std::replace(valore.begin(), valore.end(), '8', '/');
  return valore;
}

void LeggiRiga(const std::string& riga, UnitaLavoro& u) {
  const std::size_t parentesi = riga.find('[');
  if (parentesi == kNo) return;
  const std::string valore = Rifila(std::string_view(riga).substr(0, parentesi));
  const std::string minuscola = Minuscolo(riga);
  std::array<std::pair<const char*, std::string*>, 6> nomi = {{
      {"lunghezze", &u.UniLunghezze},
      {"forze", &u.UniForze},
      {"carichi_superficie", &u.UniCarichi},
      {"coppie_momenti", &u.UniMomenti},
      {"tensioni", &u.UniTensioni},
      {"dati_sezioni", &u.UniSezioni},
  }};
  if (Contiene(minuscola, "accelerazione_g")) {
    double g = NumeroIniziale(valore);
    // Gravity divides the kgf and t factors: a zero or a text would make them endless.
    if (g > 0) u.AccelG = g;
    return;
  }
  if (Contiene(minuscola, "nord_geografico")) {
    u.NordGeo = NumeroIniziale(valore);
    return;
  }
  for (auto& [chiave, campo] : nomi) {
    if (Contiene(minuscola, chiave)) {
      *campo = NomeUnita(valore);
      return;
    }
  }
}

// A title for the unit tool's "|titolo=...|" field.
std::string ParteTitolo(std::string_view titolo) {
  std::string t(titolo);
  if (t.empty() || t == "assente") return "";
  while (!t.empty() && t.front() == '|') t.erase(0, 1);
  while (!t.empty() && t.back() == '|') t.pop_back();
  if (Minuscolo(t).rfind("titolo=", 0) != 0) t.insert(0, "titolo=");
  return t + "|";
}

}  // namespace

bool LeggiParametriLavoro(const std::filesystem::path& file, UnitaLavoro& unita) {
  auto righe = LeggiRighe(file);
  if (!righe || righe->empty()) return false;
  UnitaLavoro letta = unita;
  try {
    // Line 1 is the family's header.
    for (std::size_t i = 1; i < righe->size(); ++i) LeggiRiga((*righe)[i], letta);
  } catch (const ErroreFatale&) {
    return false;
  }
  unita = letta;
  return true;
}

UnitaLavoro UnitaPredefinite() {
  UnitaLavoro u;
  u.UniLunghezze = "mm";
  u.UniForze = "daN";
  u.UniCarichi = "daN/m2";
  u.UniMomenti = "daNm";
  u.UniTensioni = "daN/cm2";
  u.UniSezioni = "cm";
  ParUni(u);
  return u;
}

double FattoreForza(std::string_view unita, double g) {
  return Forza(unita, g).fattore;
}

std::vector<std::string> UnitaNonRiconosciute(const UnitaLavoro& u) {
  const std::tuple<const char*, const std::string&, bool> unita[] = {
      {"lunghezze", u.UniLunghezze, UnaDi(u.UniLunghezze, kLunghezze)},
      {"forze", u.UniForze, UnaDi(u.UniForze, kForze)},
      {"carichi_superficie", u.UniCarichi, TensioneEsatta(u.UniCarichi)},
      {"coppie_momenti", u.UniMomenti, MomentoEsatto(u.UniMomenti)},
      {"tensioni", u.UniTensioni, TensioneEsatta(u.UniTensioni)},
      {"dati_sezioni", u.UniSezioni, UnaDi(u.UniSezioni, kLunghezze)},
  };
  std::vector<std::string> ignote;
  for (const auto& [chiave, nome, esatta] : unita) {
    if (!esatta) ignote.push_back(std::string(chiave) + " \"" + nome + "\"");
  }
  return ignote;
}

void LeggiUnitaLavoro(Sessione& sessione) {
  const std::filesystem::path file = Percorso(sessione.nodo.DirLavoro) / "parametrilavoro";
  UnitaLavoro unita;
  if (!LeggiParametriLavoro(file, unita)) {
    sessione.piattaforma.Messaggio("File " + file.string() +
                                       " errato o mancante: verranno usate le unità mm, daN, "
                                       "daN/cm2.",
                                   "ATTENZIONE", Icona::Attenzione, Pulsanti::Ok);
    sessione.unita = UnitaPredefinite();
    return;
  }
  ParUni(unita);
  sessione.unita = unita;
  // The factors stay as the rules give them, but a name that is not one of the rules' own is
  // read by a part of it ("KN" as N), or not at all, and every figure would show wrong.
  const std::vector<std::string> ignote = UnitaNonRiconosciute(unita);
  if (ignote.empty()) return;
  std::string elenco;
  for (const std::string& voce : ignote) elenco += (elenco.empty() ? "" : ", ") + voce;
  sessione.piattaforma.Messaggio("File " + file.string() + ": unità non riconosciute: " + elenco +
                                     ". Le grandezze in queste unità possono essere mostrate "
                                     "con valori errati.",
                                 "ATTENZIONE", Icona::Attenzione, Pulsanti::Ok);
}

void ParUni(UnitaLavoro& u) {
  const double g = u.AccelG;
  const FattoreUnita lunghezze = Lunghezza(u.UniLunghezze);
  u.FatLunghezze = lunghezze.fattore;
  u.DecLunghezze = lunghezze.decimali;

  const FattoreUnita forze = Forza(u.UniForze, g);
  u.FatForze = forze.fattore;
  u.DecForze = forze.decimali;

  const FattoreUnita forzaMomento = Forza(u.UniMomenti, g);
  const FattoreUnita braccio = Lunghezza(u.UniMomenti);
  u.FatMomenti = braccio.fattore * forzaMomento.fattore;
  u.DecMomenti = std::max(0, forzaMomento.decimali + braccio.decimali - 1);

  const FattoreUnita tensioni = Tensione(u.UniTensioni, g);
  u.FatTensioni = tensioni.fattore;
  u.DecTensioni = tensioni.decimali;

  const FattoreUnita sezioni = Lunghezza(u.UniSezioni);
  u.FatSezioni = sezioni.fattore;
  u.DecSezioni = sezioni.decimali;

  const FattoreUnita carichi = Tensione(u.UniCarichi, g);
  u.FatCarichi = carichi.fattore;
  u.DecCarichi = carichi.decimali;
}

std::optional<std::string> LanciaUnita(Sessione& sessione, std::string_view valore, int categoria,
                                       std::string_view unita, std::string_view titolo) {
  // The tool is told to write into the job folder, while its answer is taken from the temp
  // folder, where the family's tool leaves it.
  std::string parametri = "|primcipale=" + std::string(unita) +
                          "|uniprinctesto=" + "|categoriadiingresso=" + std::to_string(categoria) +
                          "|valoreingresso=" + std::string(valore) +
                          "|fileout=" + sessione.nodo.DirLavoro + "\\UX_unimis.tmp|" +
                          ParteTitolo(titolo);
  const std::string programma = (Percorso(sessione.cartelle.progra) / "ux_unimis.exe").string();
  if (!sessione.piattaforma.Avvia(programma, parametri, true)) {
    // This platform may have a converter of its own for forces.
    if (categoria != 4) return std::nullopt;
    return sessione.piattaforma.ConvertiForza(std::string(valore), std::string(unita),
                                              sessione.unita.AccelG);
  }
  auto righe = LeggiRighe(Percorso(sessione.cartelle.temp) / "ux_unimis.tmp");
  if (!righe || righe->empty()) return std::nullopt;
  return Rifila(righe->front());
}

std::string TbDblClick(Sessione& sessione, int casella, std::string_view testo) {
  if (casella < 1 || casella > 3) return std::string(testo);
  // Member C has always been sent with member B's title.
  const char* titolo = casella == 1 ? "|titolo=Sf_Norm_astaA|" : "|titolo=Sf_Norm_astaB|";
  auto risultato = LanciaUnita(sessione, testo, 4, sessione.unita.UniForze, titolo);
  return risultato ? *risultato : std::string(testo);
}

}  // namespace qf17
