#include "piattaforma_cli.h"

#include <cstdio>
#include <iostream>
#include <string>

namespace qf17 {

namespace {

// A large node can give a warning per bolt and load set, a million lines: standard error gets
// a buffer, so that a line is a copy and not a system call. The C library writes it out at exit,
// and everything else the program says there goes through the same buffer, in order.
void BufferizzaErrori() {
  static const bool fatto = [] {
    static char buffer[1 << 16];
    std::setvbuf(stderr, buffer, _IOFBF, sizeof buffer);
    std::cerr.unsetf(std::ios_base::unitbuf);
    return true;
  }();
  (void)fatto;
}

}  // namespace

Risposta PiattaformaCli::MostraMessaggio(const std::string& testo, const std::string& titolo, Icona,
                                         Pulsanti pulsanti) {
  BufferizzaErrori();
  // One write of the whole line: the stream would flush standard output before each piece.
  std::string riga;
  riga.reserve(titolo.size() + testo.size() + 3);
  riga.append(titolo).append(": ").append(testo).push_back('\n');
  std::fwrite(riga.data(), 1, riga.size(), stderr);
  if (pulsanti == Pulsanti::OkAnnulla && annulla_) return Risposta::Annulla;
  return Risposta::Ok;
}

std::optional<FileScelto> PiattaformaCli::ScegliFileDaAprire(const RichiestaFile&) {
  return std::nullopt;
}

std::optional<FileScelto> PiattaformaCli::ScegliFileDaSalvare(const RichiestaFile&) {
  return std::nullopt;
}

// A viewer handed a file is the command's own business: it prints the file's path instead.
// A tool whose answer the caller waits for cannot be started from here.
bool PiattaformaCli::Avvia(const std::string&, const std::string&, bool attendi) {
  return !attendi;
}

}  // namespace qf17
