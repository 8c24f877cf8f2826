#pragma once

#include <new>
#include <stdexcept>
#include <string>

#include "piattaforma/errori.h"
#include "piattaforma/piattaforma.h"

namespace qf17 {

// How a command ends, and the command line's exit status for it.
inline constexpr int kEsitoFatto = 0;          // done; for a verification: node verified
inline constexpr int kEsitoNonVerificato = 1;  // the report says the node is not verified
inline constexpr int kEsitoErrore = 2;         // the command could not do its work
// The report says verified, but the run gave messages (the report's "AVVERTENZE"): a figure
// may be missing, so the node is not to be called verified before they are read.
inline constexpr int kEsitoConAvvertenze = 3;

// The one boundary of every command, for the command line and the desktop program alike: what
// the command throws is told to the user through the platform under "ERRORE" and ends the
// command with kEsitoErrore. The session is still usable: a node is read into a copy, files are
// written through a temporary one, so nothing the user had is left half-changed.
// FineProgramma was told already; it goes on up, since the program must end.
template <class Comando>
int EseguiComando(Piattaforma& piattaforma, Comando&& comando) {
  auto errore = [&piattaforma](const std::string& testo) {
    piattaforma.Messaggio(testo, "ERRORE", Icona::Critica, Pulsanti::Ok);
    return kEsitoErrore;
  };
  try {
    return comando();
  } catch (const FineProgramma&) {
    throw;
  } catch (const ErroreFatale& e) {
    return errore(e.what());
  } catch (const std::bad_alloc&) {
    return errore("Memoria insufficiente: comando interrotto");
  } catch (const std::exception& e) {
    return errore(e.what());
  }
}

}  // namespace qf17
