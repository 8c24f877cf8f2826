#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace qf17 {

enum class Icona { Nessuna, Informazione, Attenzione, Critica, Domanda };
enum class Pulsanti { Ok, OkAnnulla };
enum class Risposta { Ok, Annulla };
// What a file shown to the user is: the platform picks the viewer.
enum class Vista { Relazione, Disegno, Guida };

// What an open or save dialog is asked for. `filtro` uses the family's "Text|*.ext|..." form.
struct RichiestaFile {
  std::string titolo;
  std::string filtro;
  std::string estensione;  // default extension, without the point
  std::string cartella;    // initial folder
  std::string nome;        // initial file name
  int indiceFiltro = 1;    // 1-based, as the family counts filters
  int flag = 0;            // the family's dialog flags, for a desktop that honours them
};

struct FileScelto {
  std::string percorso;
  int indiceFiltro = 1;
};

class RaccoltaMessaggi;

// The only way the core reaches the user or the operating system. The core never prints, opens a
// window or starts a process by itself.
class Piattaforma {
 public:
  virtual ~Piattaforma() = default;

  // A modal box: exact text, title, icon and buttons. Returns the button pressed. While a
  // RaccoltaMessaggi is open on this platform, the text is also kept there.
  Risposta Messaggio(const std::string& testo, const std::string& titolo, Icona icona,
                     Pulsanti pulsanti);
  // The collection open on this platform, if any.
  const RaccoltaMessaggi* Raccolta() const { return raccolta_; }
  // File choice; no value when the user cancels.
  virtual std::optional<FileScelto> ScegliFileDaAprire(const RichiestaFile& richiesta) = 0;
  virtual std::optional<FileScelto> ScegliFileDaSalvare(const RichiestaFile& richiesta) = 0;
  // Starts another program; with `attendi` it returns when that program has ended.
  // False when it could not be started.
  virtual bool Avvia(const std::string& programma, const std::string& argomenti, bool attendi) = 0;
  // Shows a file by what it is (a report, the help), not waited for. False when it cannot be
  // shown.
  virtual bool Mostra(Vista vista, const std::string& file) = 0;
  // The unit tool's place where the family's tool cannot be started: the user gives `valore`
  // of a force in another unit and gets it in the job's `unita` (`g` the job's gravity). The
  // text for the box, or no value when the user cancels or the platform has no such tool.
  virtual std::optional<std::string> ConvertiForza(const std::string& /*valore*/,
                                                   const std::string& /*unita*/, double /*g*/) {
    return std::nullopt;
  }
  // The busy pointer, on while a long command runs.
  virtual void Occupato(bool acceso) = 0;
  // Brings the running window with exactly this title to the front and sends it the keystrokes
  // `tasti` ("^v" is Ctrl+V). False when there is no such window. A platform without windows of
  // other programs never finds one.
  virtual bool AttivaFinestra(const std::string& /*titolo*/, const std::string& /*tasti*/) {
    return false;
  }

  // Shorthand for the common OK box.
  void Avviso(const std::string& testo, const std::string& titolo, Icona icona = Icona::Nessuna) {
    Messaggio(testo, titolo, icona, Pulsanti::Ok);
  }

 protected:
  // What each platform does with a box.
  virtual Risposta MostraMessaggio(const std::string& testo, const std::string& titolo, Icona icona,
                                   Pulsanti pulsanti) = 0;

 private:
  friend class RaccoltaMessaggi;
  RaccoltaMessaggi* raccolta_ = nullptr;
};

// Keeps every message shown on a platform while it lives (one command, such as a verification
// run), each text once with how many times it came, in the order of first appearance: what the
// user clicked away must still reach the report. Only the outermost of nested collections
// collects; an inner one stays empty.
class RaccoltaMessaggi {
 public:
  struct Voce {
    std::string testo;
    std::size_t volte = 0;
  };

  explicit RaccoltaMessaggi(Piattaforma& piattaforma);
  ~RaccoltaMessaggi();
  RaccoltaMessaggi(const RaccoltaMessaggi&) = delete;
  RaccoltaMessaggi& operator=(const RaccoltaMessaggi&) = delete;

  const std::vector<Voce>& Voci() const { return voci_; }
  void Aggiungi(const std::string& testo);

 private:
  Piattaforma& piattaforma_;
  bool attiva_ = false;
  std::vector<Voce> voci_;
  std::unordered_map<std::string, std::size_t> indice_;
};

}  // namespace qf17
