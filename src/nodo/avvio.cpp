#include "nodo/avvio.h"

#include <system_error>
#include <vector>

#include "disegno/file_opzioni.h"
#include "disegno/leggi_font.h"
#include "disegno/leggi_stili_grb.h"
#include "librerie/libreria_profili.h"
#include "librerie/materiali.h"
#include "librerie/token.h"
#include "librerie/unita_lavoro.h"
#include "nodo/nodo_default.h"
#include "nodo/sessione.h"
#include "piattaforma/file_testo.h"

namespace qf17 {
namespace {

constexpr char kSeparatore = static_cast<char>(std::filesystem::path::preferred_separator);

[[noreturn]] void Fine(Piattaforma& piattaforma, const std::string& testo,
                       std::string_view titolo = kTitoloProgramma) {
  piattaforma.Messaggio(testo, std::string(titolo), Icona::Critica, Pulsanti::Ok);
  throw FineProgramma(testo);
}

std::string Unisci(std::string_view cartella, std::string_view nome) {
  return std::string(cartella) + kSeparatore + std::string(nome);
}

// The root from "|diroot=...|". The key is found in any case; the path keeps its case, since
// this platform's file names are case-sensitive.
std::string RadiceDaRiga(std::string_view riga) {
  if (riga.size() <= 10) return {};
  const std::string chiave = "|diroot=";
  std::size_t p = Minuscolo(riga).find(chiave);
  if (p == std::string::npos) return {};
  std::size_t inizio = p + chiave.size();
  std::size_t fine = riga.find('|', inizio);
  return std::string(
      riga.substr(inizio, fine == std::string_view::npos ? riga.size() - inizio : fine - inizio));
}

bool FinisceCon(std::string_view testo, std::string_view coda) {
  return testo.size() >= coda.size() &&
         Minuscolo(testo.substr(testo.size() - coda.size())) == Minuscolo(coda);
}

std::string TogliSeparatoreFinale(std::string testo) {
  if (!testo.empty() && (testo.back() == '/' || testo.back() == '\\')) testo.pop_back();
  return testo;
}

std::string CartellaLavori(const std::string& impostazioni, Piattaforma& piattaforma) {
  auto righe = LeggiRighe(Unisci(impostazioni, "dirlav"));
  if (!righe) Fine(piattaforma, impostazioni + "\\dirlav errato o mancante.");
  std::string lavori = righe->empty() ? std::string() : Rifila(righe->front());
  if (lavori.size() >= 9 && lavori.back() != '/' && lavori.back() != '\\') lavori += kSeparatore;
  std::string senzaFine = TogliSeparatoreFinale(lavori);
  if (lavori.size() < 9 ||
      !(FinisceCon(senzaFine, "/lavori") || FinisceCon(senzaFine, "\\lavori"))) {
    Fine(piattaforma, "Il direttorio dei lavori deve terminare con < ...\\lavori >.");
  }
  return senzaFine;
}

std::string NomeLavoro(const std::string& impostazioni, Piattaforma& piattaforma) {
  auto righe = LeggiRighe(Unisci(impostazioni, "lavoro"));
  std::string lavoro = righe && !righe->empty() ? Rifila(righe->front()) : std::string();
  if (!righe || NumeroCaratteri(lavoro) != 6) {
    Fine(piattaforma, impostazioni + "\\lavoro errato o mancante.");
  }
  return lavoro;
}

void ControllaCartelle(const Cartelle& c, Piattaforma& piattaforma) {
  const std::vector<std::string> elenco = {c.impostazioni,
                                           c.progra,
                                           c.driver,
                                           c.custom,
                                           c.Help,
                                           c.Manuali,
                                           c.temp,
                                           Unisci(c.custom, "archivi"),
                                           Unisci(c.custom, "simboli"),
                                           Unisci(c.lavori, c.lavoro)};
  bool tutte = c.DirRoot.size() >= 3;
  for (const auto& cartella : elenco) {
    std::error_code ec;
    if (!std::filesystem::is_directory(cartella, ec)) tutte = false;
  }
  if (tutte) return;
  std::string testo = "Uno dei seguenti direttori non è presente o non è accessibile:";
  for (const auto& cartella : elenco) testo += "\n" + cartella;
  Fine(piattaforma, testo);
}

}  // namespace

Cartelle ImpostaCartelle(std::string_view rigaComando,
                         const std::filesystem::path& cartellaProgramma, Piattaforma& piattaforma) {
  Cartelle c;
  std::string radice = RadiceDaRiga(rigaComando);
  if (radice.empty()) {
    std::string programma = TogliSeparatoreFinale(cartellaProgramma.string());
    if (!FinisceCon(programma, "/progra") && !FinisceCon(programma, "\\progra")) {
      Fine(piattaforma, "Il direttorio della applicazione deve terminare con \\progra");
    }
    radice = programma.substr(0, programma.size() - 7);
  }
  c.DirRoot = TogliSeparatoreFinale(radice);
  c.impostazioni = Unisci(c.DirRoot, "impostazioni");
  c.progra = Unisci(c.DirRoot, "progra");
  c.driver = Unisci(c.DirRoot, "driver");
  c.custom = Unisci(c.DirRoot, "custom");
  c.Help = Unisci(c.DirRoot, "Help");
  c.Manuali = Unisci(c.DirRoot, "Manuali");
  c.temp = Unisci(c.DirRoot, "temp");
  if (c.DirRoot.size() < 3) ControllaCartelle(c, piattaforma);
  c.lavori = CartellaLavori(c.impostazioni, piattaforma);
  c.lavoro = NomeLavoro(c.impostazioni, piattaforma);
  ControllaCartelle(c, piattaforma);
  return c;
}

std::string ImpostaTitolo(std::string_view dirLavoro, std::string_view nomeNodo) {
  return std::string(kTitoloProgramma) + " - KORVIN Software 18 - " + std::string(dirLavoro) +
         kSeparatore + std::string(nomeNodo) + ".qf7";
}

void Avvio(Sessione& s, std::string_view rigaComando,
           const std::filesystem::path& cartellaProgramma) {
  Piattaforma& p = s.piattaforma;
  s.RigaComando = std::string(rigaComando);
  s.cartelle = ImpostaCartelle(rigaComando, cartellaProgramma, p);
  s.nodo.DirLavoro = Unisci(s.cartelle.lavori, s.cartelle.lavoro);
  s.nodo.NomeFileNodo = "Nuovo";

  s.opzioni = OpzioniPredefinite();
  s.opzioni[22] = 20.0;
  LeggiUnitaLavoro(s);

  if (!LeggiFont(s.font, Unisci(s.cartelle.progra, "font.001"))) {
    Fine(p, "Errore: file font.001 errato o mancante.", "ERRORE");
  }
  LeggiStiliGRB(s.stiliGrb, Unisci(s.cartelle.custom, "cad2dmodello.grb"), p);

  EsitoMateriali materiali =
      LeggiMateriali(s.materiali, Unisci(s.cartelle.custom, "MaterialiNTC08.tx1"));
  if (!materiali.errore.empty()) Fine(p, materiali.errore, "ERRORE");
  LeggiMaterialiBase(s);
  RiempiListaAcciai(s, "");

  std::string motivo;
  if (!LeggiProfili(s.profili, Unisci(s.cartelle.custom, "Prof_pro"), &motivo)) {
    Fine(p, "Profilario errato o mancante" + (motivo.empty() ? "" : "\n" + motivo), "ERRORE");
  }
  CompletaProfili(s.profili);

  if (!LeggiOpzioni(s.opzioni, Unisci(s.cartelle.custom, "OpzioniQf7.txt"))) {
    p.Messaggio("Errore: file " + s.cartelle.custom + "\\OpzioniQf7.txt errato o mancante.",
                "ERRORE", Icona::Critica, Pulsanti::Ok);
  }
  s.opzioni[22] = 20.0;
  s.opzioni[17] = s.opzioni[13];

  NodoDefault(s);
}

}  // namespace qf17
