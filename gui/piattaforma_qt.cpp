#include "piattaforma_qt.h"

#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QStringList>
#include <QUrl>

#include "finestra_disegno.h"
#include "finestra_relazione.h"
#include "librerie/numeri.h"
#include "librerie/unita_lavoro.h"

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
  QFileDialog dialogo(finestra_, Q(r.titolo), CartellaENome(r), filtri);
  dialogo.setAcceptMode(QFileDialog::AcceptOpen);
  dialogo.setFileMode(QFileDialog::ExistingFile);
  dialogo.selectNameFilter(FiltroIniziale(filtri, r.indiceFiltro));
  if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) {
    return std::nullopt;
  }
  return FileScelto{dialogo.selectedFiles().front().toStdString(),
                    IndiceFiltro(filtri, dialogo.selectedNameFilter())};
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

// The unit tool's place: a value in one of the force units, shown in the job's unit as it is
// typed.
std::optional<std::string> PiattaformaQt::ConvertiForza(const std::string& valore,
                                                        const std::string& unita, double g) {
  QDialog dialogo(finestra_);
  dialogo.setWindowTitle(QStringLiteral("Conversione di unità"));
  auto* campi = new QFormLayout(&dialogo);
  auto* numero = new QLineEdit(Q(valore), &dialogo);
  auto* unitaDi = new QComboBox(&dialogo);
  for (std::string_view u : kUnitaForze) unitaDi->addItem(Q(std::string(u)));
  unitaDi->setCurrentText(Q(unita));
  auto* risultato = new QLabel(&dialogo);
  campi->addRow(QStringLiteral("Valore"), numero);
  campi->addRow(QStringLiteral("Unità del valore"), unitaDi);
  campi->addRow(QStringLiteral("In ") + Q(unita), risultato);
  auto* bottoni = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialogo);
  bottoni->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Annulla"));
  campi->addRow(bottoni);
  std::string testo;
  auto converti = [&] {
    const double da = FattoreForza(unitaDi->currentText().toStdString(), g);
    const double a = FattoreForza(unita, g);
    const bool valido = da > 0 && a > 0;
    testo = valido ? TestoNumero(NumeroIniziale(numero->text().toStdString()) / da * a) : "";
    risultato->setText(Q(testo));
    bottoni->button(QDialogButtonBox::Ok)->setEnabled(valido);
  };
  QObject::connect(numero, &QLineEdit::textChanged, &dialogo, converti);
  QObject::connect(unitaDi, &QComboBox::currentTextChanged, &dialogo, converti);
  QObject::connect(bottoni, &QDialogButtonBox::accepted, &dialogo, &QDialog::accept);
  QObject::connect(bottoni, &QDialogButtonBox::rejected, &dialogo, &QDialog::reject);
  converti();
  if (dialogo.exec() != QDialog::Accepted) return std::nullopt;
  return testo;
}

void PiattaformaQt::Occupato(bool acceso) {
  if (acceso) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

}  // namespace qf17
