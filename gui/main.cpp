// qf17-gui ["|diroot=PATH|" | --root PATH] [NODO.qf7]: the desktop program, started as the
// family starts its program.
#include <QApplication>
#include <QDir>
#include <QStringList>
#include <filesystem>
#include <memory>

#include "finestra_principale.h"
#include "librerie/token.h"
#include "nodo/avvio.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma/confine_comando.h"
#include "piattaforma_qt.h"

namespace {

struct Argomenti {
  std::string rigaFamiglia;
  std::string nodo;
};

Argomenti LeggiArgomenti(const QStringList& argomenti) {
  Argomenti a;
  for (qsizetype i = 1; i < argomenti.size(); ++i) {
    const std::string testo = argomenti[i].toStdString();
    if (qf17::Minuscolo(testo).find("|diroot=") != std::string::npos) {
      a.rigaFamiglia += testo;
    } else if (testo == "--root" && i + 1 < argomenti.size()) {
      // Every --root is taken as given, made absolute.
      a.rigaFamiglia = "|diroot=" + QDir(argomenti[++i]).absolutePath().toStdString() + "|";
    } else {
      a.nodo = testo;
    }
  }
  return a;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("QF17"));
  QApplication::setApplicationName(QStringLiteral("qf17-gui"));
  const Argomenti argomenti = LeggiArgomenti(QApplication::arguments());
  qf17::PiattaformaQt piattaforma;
  auto sessione = std::make_unique<qf17::Sessione>(piattaforma);
  try {
    qf17::Avvio(*sessione, argomenti.rigaFamiglia,
                std::filesystem::path(QApplication::applicationDirPath().toStdString()));
  } catch (const qf17::FineProgramma&) {
    return qf17::kEsitoErrore;  // the message has been shown
  }
  qf17::FinestraPrincipale finestra(*sessione);
  piattaforma.ImpostaFinestra(&finestra);
  if (!argomenti.nodo.empty()) {
    qf17::EseguiComando(piattaforma, [&] {
      return qf17::ApriNodoDaFile(*sessione, argomenti.nodo) ? qf17::kEsitoFatto
                                                             : qf17::kEsitoErrore;
    });
    finestra.Aggiorna();
  }
  finestra.show();
  return QApplication::exec();
}
