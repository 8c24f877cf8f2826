#pragma once

#include <filesystem>
#include <string>

#include "nodo/sessione.h"
#include "piattaforma/piattaforma_registrata.h"

namespace qf17::prova {

// A session with a small section library and materials table written by hand, so the node's
// tests need neither the start-up sequence nor the library files. The job folder is a fresh
// temporary folder, removed with the session.
class SessioneProva {
 public:
  SessioneProva();
  ~SessioneProva();
  SessioneProva(const SessioneProva&) = delete;
  SessioneProva& operator=(const SessioneProva&) = delete;

  PiattaformaRegistrata piattaforma;
  Sessione sessione{piattaforma};
  std::filesystem::path cartella;  // also the node's DirLavoro

  // Writes raw bytes to a file of the job folder and returns its path.
  std::filesystem::path ScriviFile(const std::string& nome, const std::string& byte) const;
};

// Rows of the hand-written library.
void RiempiProfiliProva(LibreriaProfili& libreria);
void RiempiMaterialiProva(Materiali& materiali);

// The whole content of a file, or "<manca>".
std::string ContenutoFile(const std::filesystem::path& file);
// A file of the test data folder.
std::filesystem::path DatoProva(const std::string& nome);

}  // namespace qf17::prova
