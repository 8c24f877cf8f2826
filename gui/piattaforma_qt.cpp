#include "piattaforma_qt.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QProcess>
#include <QStringList>
#include <QUrl>

#include "finestra_disegno.h"
#include "finestra_relazione.h"

namespace qf17 {
namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

QMessageBox::Icon IconaQt(Icona icona) {
  switch (icona) {
    case Icona::Nessuna:
      return QMessageBox::NoIcon;
    case Icona::Informazione:
      return QMessageBox::Information;
    case Icona::Attenzione:
      return QMessageBox::Warning;
    case Icona::Critica:
      return QMessageBox::Critical;
    case Icona::Domanda:
      return QMessageBox::Question;
  }
  return QMessageBox::NoIcon;
}

// The place of the chosen filter among the family's, 1-based.
int IndiceFiltro(const QString& filtri, const QString& scelto) {
  const QStringList elenco = filtri.split(QStringLiteral(";;"));
  const auto i = elenco.indexOf(scelto);
  return i < 0 ? 1 : static_cast<int>(i) + 1;
}

QString FiltroIniziale(const QString& filtri, int indice) {
  const QStringList elenco = filtri.split(QStringLiteral(";;"));
  return indice >= 1 && indice <= elenco.size() ? elenco[indice - 1] : QString();
}

QString CartellaENome(const RichiestaFile& r) {
  QString percorso = Q(r.cartella);
  if (!r.nome.empty()) percorso += QStringLiteral("/") + Q(r.nome);
  return percorso;
}

}  // namespace

QString PiattaformaQt::FiltroQt(const std::string& filtro) {
  const QStringList parti = Q(filtro).split(QLatin1Char('|'));
  QStringList filtri;
  for (qsizetype i = 0; i + 1 < parti.size(); i += 2) {
    const QString& testo = parti[i];
    filtri << (testo.contains(QLatin1Char('('))
                   ? testo
                   : testo + QStringLiteral(" (") + parti[i + 1] + QStringLiteral(")"));
  }
  return filtri.join(QStringLiteral(";;"));
}

Risposta PiattaformaQt::MostraMessaggio(const std::string& testo, const std::string& titolo,
                                        Icona icona, Pulsanti pulsanti) {
  QApplication::setOverrideCursor(Qt::ArrowCursor);
  QMessageBox box(
      IconaQt(icona), Q(titolo), Q(testo),
      pulsanti == Pulsanti::OkAnnulla ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::Ok,
      finestra_);
  const int risposta = box.exec();
  QApplication::restoreOverrideCursor();
  return risposta == QMessageBox::Cancel ? Risposta::Annulla : Risposta::Ok;
}

std::optional<FileScelto> PiattaformaQt::ScegliFileDaAprire(const RichiestaFile& r) {
  const QString filtri = FiltroQt(r.filtro);
  QString scelto = FiltroIniziale(filtri, r.indiceFiltro);
  const QString file =
      QFileDialog::getOpenFileName(finestra_, Q(r.titolo), CartellaENome(r), filtri, &scelto);
  if (file.isEmpty()) return std::nullopt;
  return FileScelto{file.toStdString(), IndiceFiltro(filtri, scelto)};
}

std::optional<FileScelto> PiattaformaQt::ScegliFileDaSalvare(const RichiestaFile& r) {
  const QString filtri = FiltroQt(r.filtro);
  QString scelto = FiltroIniziale(filtri, r.indiceFiltro);
  QFileDialog dialogo(finestra_, Q(r.titolo), CartellaENome(r), filtri);
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setDefaultSuffix(Q(r.estensione));
  dialogo.selectNameFilter(scelto);
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) {
    return std::nullopt;
  }
  return FileScelto{dialogo.selectedFiles().front().toStdString(),
                    IndiceFiltro(filtri, dialogo.selectedNameFilter())};
}

bool PiattaformaQt::Avvia(const std::string& programma, const std::string& argomenti,
                          bool attendi) {
  const QStringList parametri = argomenti.empty() ? QStringList() : QStringList{Q(argomenti)};
  if (!attendi) return QProcess::startDetached(Q(programma), parametri);
  QProcess processo;
  processo.start(Q(programma), parametri);
  if (!processo.waitForStarted()) return false;
  processo.waitForFinished(-1);
  return true;
}

bool PiattaformaQt::Mostra(Vista vista, const std::string& file) {
  switch (vista) {
    case Vista::Relazione:
      return FinestraRelazione::Apri(Q(file), finestra_);
    case Vista::Disegno:
      return FinestraDisegno::Apri(Q(file), finestra_);
    case Vista::Guida:
      return QDesktopServices::openUrl(QUrl::fromLocalFile(Q(file)));
  }
  return false;
}

void PiattaformaQt::Occupato(bool acceso) {
  if (acceso) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

}  // namespace qf17
