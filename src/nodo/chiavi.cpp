#include "nodo/chiavi.h"

#include <ctime>

#include "librerie/numeri.h"
#include "librerie/token.h"
#include "piattaforma/file_testo.h"

namespace qf17 {

std::string ScriviChiave(std::string_view valore, std::string_view chiave,
                         std::initializer_list<int> indici, std::string_view commento) {
  std::string riga(valore);
  std::size_t larghezza = std::max<std::size_t>(40, NumeroCaratteri(valore) + 1);
  riga.append(larghezza - NumeroCaratteri(valore), ' ');
  riga += "[" + Rifila(chiave);
  for (int i : indici) riga += " " + std::to_string(i);
  riga += "] ";
  riga += commento;
  return Rifila(riga);
}

bool LeggiChiave(std::string_view riga, std::string_view chiave, std::string& valore,
                 IndiciChiave& indici) {
  const std::string cerca = "[" + Minuscolo(chiave);
  const std::string rifilata = Rifila(riga);
  const std::string minuscola = Minuscolo(rifilata);
  std::size_t p = minuscola.find(cerca);
  if (p == std::string::npos) return false;
  std::size_t dopo = p + cerca.size();
  char c = dopo < minuscola.size() ? minuscola[dopo] : '\0';
  if (c != ' ' && c != ']') return false;
  valore = Rifila(std::string_view(rifilata).substr(0, p));
  std::string resto = minuscola.substr(dopo);
  std::size_t chiusa = resto.find(']');
  if (chiusa == std::string::npos) return false;
  resto = Rifila(resto.substr(0, chiusa));
  for (std::size_t k = 0; k < indici.size(); ++k) {
    std::string campo = ProssimoToken(resto);
    if (campo.empty()) break;
    indici[k] = InI16(NumeroIniziale(campo));
  }
  return true;
}

bool ValoreDaTestata(std::string_view testo, std::string_view chiave, std::string& valore,
                     std::string_view separatore, std::string_view delimitatori) {
  std::string t(testo);
  for (char& c : t) {
    if (delimitatori.find(c) != std::string_view::npos) c = '|';
  }
  std::string k(chiave);
  if (k.empty() || k.front() != '|') k.insert(0, "|");
  if (k.size() < separatore.size() ||
      k.compare(k.size() - separatore.size(), separatore.size(), separatore) != 0) {
    k += separatore;
  }
  t = Rifila(t);
  if (t.size() < 4) return false;
  if (t.front() != '|') t.insert(0, "|");
  if (t.back() != '|') t += '|';
  std::size_t p = Minuscolo(t).find(Minuscolo(k));
  if (p == std::string::npos) return false;
  std::size_t inizio = p + k.size();
  valore = t.substr(inizio, t.find('|', inizio) - inizio);
  return true;
}

std::string TestataRelease(std::string_view descrizione, int releaseFile) {
  return "KORVINWIN [QuestoProgramma=" + std::string(kTitoloFamiglia) +
         "] [Descrizione=" + std::string(descrizione) +
         "] [ReleaseKorvin=" + std::to_string(kReleaseFamiglia) +
         "] [ReleaseQuestoFile=" + std::to_string(releaseFile) + "]";
}

Release LeggiRelease(const std::filesystem::path& file, Piattaforma& piattaforma, bool mostra) {
  Release r;
  auto righe = LeggiRighe(file);
  if (!righe) {
    r.ok = false;
    if (mostra) {
      piattaforma.Messaggio("Errore in lettura del file:\n" + file.string(), "LETTURA RELEASE",
                            Icona::Critica, Pulsanti::Ok);
    }
    return r;
  }
  const std::string prima = righe->empty() ? std::string() : righe->front();
  std::string valore;
  if (ValoreDaTestata(prima, "RELEASE", valore) ||
      ValoreDaTestata(prima, "ReleaseKorvin", valore)) {
    r.famiglia = NumeroIniziale(valore);
  }
  if (ValoreDaTestata(prima, "ReleaseQuestoFile", valore)) r.file = NumeroIniziale(valore);
  return r;
}

std::string Sostituisci(std::string_view testo, std::string_view vecchio, std::string_view nuovo,
                        bool ignoraMaiuscole) {
  if (vecchio.empty()) return std::string(testo);
  const std::string dove = ignoraMaiuscole ? Minuscolo(testo) : std::string(testo);
  const std::string cosa = ignoraMaiuscole ? Minuscolo(vecchio) : std::string(vecchio);
  std::string risultato;
  std::size_t da = 0;
  for (std::size_t p = dove.find(cosa); p != std::string::npos; p = dove.find(cosa, da)) {
    risultato.append(testo.substr(da, p - da));
    risultato.append(nuovo);
    da = p + cosa.size();
  }
  risultato.append(testo.substr(da));
  return risultato;
}

std::string SoloNomeFile(std::string_view percorso) {
  std::size_t p = percorso.find_last_of("\\/");
  return std::string(p == std::string_view::npos ? percorso : percorso.substr(p + 1));
}

std::string SenzaEstensione(std::string_view nome) {
  std::size_t p = nome.rfind('.');
  return std::string(p == std::string_view::npos ? nome : nome.substr(0, p));
}

std::string DataOraSalvataggio(std::chrono::system_clock::time_point istante) {
  std::time_t t = std::chrono::system_clock::to_time_t(istante);
  std::tm locale{};
  localtime_r(&t, &locale);
  char testo[32];
  std::strftime(testo, sizeof testo, "%Y_%m_%d_%H_%M", &locale);
  return testo;
}

}  // namespace qf17
