#pragma once

#include <chrono>
#include <filesystem>
#include <string>

#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"
#include "supporto/cartella_prova.h"

namespace qf17::prova {

// A session with a small section library and materials table written by hand, so the node's
// tests need neither the start-up sequence nor the library files. The job folder is a fresh
// temporary folder, removed with the session.
class SessioneProva {
 public:
  SessioneProva();

  PiattaformaRegistrata piattaforma;
  Sessione sessione{piattaforma};
  CartellaProva lavoro;
  const std::filesystem::path cartella = lavoro.percorso();  // also the node's DirLavoro

  // Writes raw bytes to a file of the job folder and returns its path.
  std::filesystem::path ScriviFile(const std::string& nome, const std::string& byte) const {
    return lavoro.Scrivi(nome, byte);
  }
};

// The header line of a keyed node file of this release, with its CR LF.
inline const std::string kTestataNodo =
    "KORVINWIN [QuestoProgramma=QF17 - NODO DI TRAVATURA RETICOLARE] [Descrizione=file_QF17] "
    "[ReleaseKorvin=18] [ReleaseQuestoFile=1]\r\n";

// One degree in radians, as the expected angles of the node tests are written.
inline constexpr double kGrado = 3.14159265358979 / 180;

// Rows of the hand-written library.
void RiempiProfiliProva(LibreriaProfili& libreria);
void RiempiMaterialiProva(Materiali& materiali);

// A wall-clock time of the local zone, month 1-12, for save times written into files.
std::chrono::system_clock::time_point OraLocale(int anno, int mese, int giorno, int ora,
                                                int minuto);

// A file of the test data folder.
std::filesystem::path DatoProva(const std::string& nome);

}  // namespace qf17::prova
