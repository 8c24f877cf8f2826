#include "dialogo_opzioni.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <utility>

#include "disegno/form_opzioni.h"
#include "nodo/sessione.h"

namespace qf17 {
namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

// The boxes of the form with their captions, by option row.
const std::pair<int, const char*> kCaselle[] = {
    {0, "Colore disegno nodo"},
    {1, "Colore assi sezioni"},
    {2, "Colore sezioni"},
    {3, "Colore quote"},
    {4, "Colore linee quote"},
    {5, "Colore testo"},
    {6, "Colore distinta"},
    {7, "Altezza testo quote"},
    {8, "Larghezza testo quote"},
    {9, "Altezza testi"},
    {10, "Larghezza testi"},
    {11, "Altezza testi distinta"},
    {12, "Larghezza testi distinta"},
    {13, "Distanza testo-quote"},
    {14, "Diametro indicatori quote"},
    {15, "Scala nodo/Scala part."},
    {21, "Moltiplicatore disegno particolari"},
    {23, "Distanza tra i disegni"},
    {25, "Tolleranza foro / bullone [mm]"},
    {28, "Stile testi GRB"},
    {29, "Stile quote GRB"},
};

}  // namespace

DialogoOpzioni::DialogoOpzioni(Sessione& sessione, QWidget* genitore)
    : QDialog(genitore), s_(sessione), form_(ApriFormOpzioni(sessione)) {
  setWindowTitle(QStringLiteral("Opzioni del disegno"));
  auto* v = new QVBoxLayout(this);
  auto* colonne = new QHBoxLayout;
  v->addLayout(colonne);
  auto* valori = new QGroupBox(QStringLiteral("dimensioni in mm"), this);
  auto* campi = new QFormLayout(valori);
  for (const auto& [riga, testo] : kCaselle) {
    caselle_[static_cast<std::size_t>(riga)] = new QLineEdit(valori);
    caselle_[static_cast<std::size_t>(riga)]->setFixedWidth(80);
    campi->addRow(QLatin1String(testo), caselle_[static_cast<std::size_t>(riga)]);
  }
  colonne->addWidget(valori);
  auto* scelte = new QVBoxLayout;
  colonne->addLayout(scelte);
  quote_ = new QCheckBox(QStringLiteral("Quote"), this);
  quoteSaldature_ = new QCheckBox(QStringLiteral("Quote Saldature"), this);
  distinta_ = new QCheckBox(QStringLiteral("Distinta"), this);
  areaBulloni_ = new QCheckBox(QStringLiteral("Riduzione area bullone per filettatura"), this);
  for (QCheckBox* c : {quote_, quoteSaldature_, distinta_, areaBulloni_}) scelte->addWidget(c);
  connect(quote_, &QCheckBox::clicked, this, [this](bool v) {
    Leggi();
    ImpostaCheckQuote(form_, s_, v);
    Dipingi();
  });
  connect(quoteSaldature_, &QCheckBox::clicked, this, [this](bool v) {
    Leggi();
    ImpostaQuoteCh(form_, s_, v);
    Dipingi();
  });
  auto* fori = new QGroupBox(QStringLiteral("Fori sul fazzoletto"), this);
  auto* f = new QVBoxLayout(fori);
  disegnaQuote_ = new QRadioButton(QStringLiteral("Disegna quote"), fori);
  tabellaCoordinate_ = new QRadioButton(QStringLiteral("Disegna tabella coordinate"), fori);
  f->addWidget(disegnaQuote_);
  f->addWidget(tabellaCoordinate_);
  scelte->addWidget(fori);
  auto* indicatore = new QFormLayout;
  indicatore_ = new QComboBox(this);
  indicatore_->addItems({QStringLiteral("Pallino"), QStringLiteral("Freccia")});
  indicatore->addRow(QStringLiteral("Indicatore quote"), indicatore_);
  scelte->addLayout(indicatore);
  scelte->addStretch();
  auto* nota = new QFormLayout;
  nota_ = new QLineEdit(this);
  nota->addRow(QStringLiteral("Nota aggiuntiva:"), nota_);
  v->addLayout(nota);
  auto* pulsanti = new QDialogButtonBox(this);
  auto pulsante = [&](const QString& testo, auto azione) {
    auto* b = pulsanti->addButton(testo, QDialogButtonBox::ActionRole);
    connect(b, &QPushButton::clicked, this, [this, azione] {
      Leggi();
      azione();
    });
  };
  pulsante(QStringLiteral("Salva"), [this] { Def(form_, s_); });
  pulsante(QStringLiteral("Applica"), [this] { Applica(form_, s_); });
  pulsante(QStringLiteral("Annulla"), [this] {
    Annulla(form_, s_);
    reject();
  });
  pulsante(QStringLiteral("Chiudi"), [this] {
    Chiudi(form_, s_);
    accept();
  });
  v->addWidget(pulsanti);
  Dipingi();
}

void DialogoOpzioni::Leggi() {
  for (const auto& [riga, testo] : kCaselle) {
    form_.Par_Nodo[static_cast<std::size_t>(riga)] =
        caselle_[static_cast<std::size_t>(riga)]->text().toStdString();
  }
  form_.CheckDistinta = distinta_->isChecked();
  form_.CheckAresBull = areaBulloni_->isChecked();
  form_.QuoteBull1 = disegnaQuote_->isChecked();
  form_.IndQuote = indicatore_->currentIndex();
  form_.NotaFori = nota_->text().toStdString();
}

void DialogoOpzioni::Dipingi() {
  for (const auto& [riga, testo] : kCaselle) {
    caselle_[static_cast<std::size_t>(riga)]->setText(
        Q(form_.Par_Nodo[static_cast<std::size_t>(riga)]));
  }
  quote_->setChecked(form_.CheckQuote);
  quoteSaldature_->setChecked(form_.QuoteCh);
  quoteSaldature_->setEnabled(QuoteChAbilitato(form_));
  distinta_->setChecked(form_.CheckDistinta);
  areaBulloni_->setChecked(form_.CheckAresBull);
  disegnaQuote_->setChecked(form_.QuoteBull1);
  tabellaCoordinate_->setChecked(!form_.QuoteBull1);
  indicatore_->setCurrentIndex(form_.IndQuote);
  nota_->setText(Q(form_.NotaFori));
}

}  // namespace qf17
