#include "dialogo_bulloni.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "nodo/sessione.h"
#include "vista_primitive.h"

namespace qf17 {
namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

// Hints come up after the pointer has rested this long.
constexpr int kRitardoSuggerimentoMs = 700;

}  // namespace

DialogoBulloni::DialogoBulloni(FormBulloni form, Sessione& sessione, QWidget* genitore)
    : QDialog(genitore), form_(std::move(form)), s_(sessione) {
  setWindowTitle(Q(form_.Caption));
  setModal(true);
  auto* colonne = new QHBoxLayout(this);
  auto* sinistra = new QVBoxLayout;
  colonne->addLayout(sinistra);

  auto* info = new QGroupBox(QStringLiteral("Informazioni"), this);
  auto* griglia = new QGridLayout(info);
  tolleranza_ = new QLabel(info);
  griglia->addWidget(tolleranza_, 0, 0, 1, 3);
  griglia->addWidget(new QLabel(QStringLiteral("Passo corrente"), info), 1, 0);
  griglia->addWidget(new QLabel(QStringLiteral("Passo min"), info), 2, 0);
  for (int i = 0; i < 2; ++i) {
    passo_[i] = Casella();
    fi3_[i] = Casella();
    passo_[i]->setReadOnly(true);
    fi3_[i]->setReadOnly(true);
    griglia->addWidget(passo_[i], 1, 1 + i);
    griglia->addWidget(fi3_[i], 2, 1 + i);
  }
  sinistra->addWidget(info);

  auto* lista = new QGroupBox(QStringLiteral("Caratteristiche dei bulloni"), this);
  auto* tabella = new QGridLayout(lista);
  const char* intestazioni[] = {"N.", "x [mm]", "y [mm]", "Diametro [mm]"};
  for (int c = 0; c < 4; ++c) tabella->addWidget(new QLabel(QLatin1String(intestazioni[c])), 0, c);
  for (int r = 0; r < 5; ++r) {
    Riga& riga = righe_[r];
    riga.numero = new QPushButton(lista);
    riga.numero->setFlat(true);
    riga.numero->setToolTip(QStringLiteral("Doppio clic: toglie il bullone che segue"));
    riga.numero->installEventFilter(this);
    riga.x = Casella();
    riga.y = Casella();
    riga.fi = Casella();
    suggerimenti_.push_back({riga.x, ControlloConSuggerimento::Xbul});
    suggerimenti_.push_back({riga.y, ControlloConSuggerimento::Ybul});
    suggerimenti_.push_back({riga.fi, ControlloConSuggerimento::Fibul});
    QLineEdit* caselle[] = {riga.x, riga.y, riga.fi};
    for (int c = 0; c < 3; ++c) {
      tabella->addWidget(caselle[c], r + 1, c + 1);
      connect(caselle[c], &QLineEdit::editingFinished, this, [this, r, c, caselle] {
        CasellaBullone(form_, s_.nodo, r, c, caselle[c]->text().toStdString());
      });
    }
    tabella->addWidget(riga.numero, r + 1, 0);
  }
  scroll_ = new QScrollBar(Qt::Vertical, lista);
  tabella->addWidget(scroll_, 1, 4, 5, 1);
  connect(scroll_, &QScrollBar::valueChanged, this, [this](int v) {
    Scroll1Cambia(form_, s_.nodo, v);
    Dipingi();
  });
  auto* azioni = new QHBoxLayout;
  auto pulsante = [&](const QString& testo, ControlloConSuggerimento c, auto azione) {
    auto* b = new QPushButton(testo, lista);
    suggerimenti_.push_back({b, c});
    connect(b, &QPushButton::clicked, this, [this, azione] {
      azione();
      Dipingi();
    });
    azioni->addWidget(b);
  };
  pulsante(QStringLiteral("Agg. singolo"), ControlloConSuggerimento::Singolo,
           [this] { Singolo(form_, s_.nodo); });
  pulsante(QStringLiteral("Rimuovi ultimo"), ControlloConSuggerimento::Rimuovi,
           [this] { Rimuovi(form_, s_.nodo); });
  pulsante(QStringLiteral("Rimuovi tutto"), ControlloConSuggerimento::RimuoviT,
           [this] { RimuoviT(form_, s_.nodo, s_.piattaforma); });
  pulsante(QStringLiteral("Disegna bulloni"), ControlloConSuggerimento::DisegnaBp,
           [this] { DisegnaBp(form_, s_.nodo); });
  tabella->addLayout(azioni, 6, 0, 1, 5);
  sinistra->addWidget(lista);

  auto* matrice = new QGroupBox(QStringLiteral("Aggiungi matrice di bulloni"), this);
  auto* campi = new QFormLayout(matrice);
  const char* nomi[] = {"Diametro bulloni", "Numero righe", "Numero colonne"};
  for (int i = 0; i < 3; ++i) {
    mbp_[i] = Casella();
    campi->addRow(QLatin1String(nomi[i]), mbp_[i]);
    // Enter in these boxes works out the margins and pitches again.
    connect(mbp_[i], &QLineEdit::returnPressed, this, [this] {
      for (int k = 0; k < 3; ++k) form_.MbpTxt[k] = mbp_[k]->text().toStdString();
      CalcolaValori(form_, s_.nodo, s_.opzioni);
      Dipingi();
    });
  }
  margSx_ = Casella();
  margDx_ = Casella();
  margSu_ = Casella();
  margIn_ = Casella();
  campi->addRow(QStringLiteral("Distanza dal margine sinistro"), margSx_);
  campi->addRow(QStringLiteral("Distanza dal margine destro"), margDx_);
  campi->addRow(QStringLiteral("Distanza dal margine superiore"), margSu_);
  campi->addRow(QStringLiteral("Distanza dal margine inferiore"), margIn_);
  auto* aggiungi = new QPushButton(QStringLiteral("Aggiungi"), matrice);
  campi->addRow(aggiungi);
  connect(aggiungi, &QPushButton::clicked, this, [this] {
    for (int k = 0; k < 3; ++k) form_.MbpTxt[k] = mbp_[k]->text().toStdString();
    form_.MargSx = margSx_->text().toStdString();
    form_.MargDx = margDx_->text().toStdString();
    form_.MargSu = margSu_->text().toStdString();
    form_.MargIn = margIn_->text().toStdString();
    Matrice(form_, s_.nodo, s_.piattaforma);
    Dipingi();
  });
  sinistra->addWidget(matrice);

  auto* destra = new QVBoxLayout;
  colonne->addLayout(destra, 1);
  anteprima_ = new VistaPrimitive(this);
  anteprima_->setMinimumSize(420, 260);
  destra->addWidget(anteprima_, 1);
  help_ = new QLabel(this);
  help_->setFrameShape(QFrame::StyledPanel);
  help_->setMinimumHeight(help_->fontMetrics().height() + 8);
  destra->addWidget(help_);
  auto* bottoni = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  bottoni->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("Annulla"));
  connect(bottoni, &QDialogButtonBox::accepted, this, [this] {
    MatBulOK(form_, s_.nodo);
    accept();
  });
  connect(bottoni, &QDialogButtonBox::rejected, this, &QDialog::reject);
  destra->addWidget(bottoni);

  for (auto& [w, c] : suggerimenti_) w->installEventFilter(this);
  anteprima_->installEventFilter(this);
  timer_.setSingleShot(true);
  timer_.setInterval(kRitardoSuggerimentoMs);
  connect(&timer_, &QTimer::timeout, this, [this] {
    Timer1(form_);
    help_->setText(Q(form_.Help));
  });
  Dipingi();
  mbp_[0]->setFocus();
}

QLineEdit* DialogoBulloni::Casella(const QString& tooltip) {
  auto* e = new QLineEdit(this);
  e->setToolTip(tooltip);
  e->setMaximumWidth(110);
  e->installEventFilter(this);
  return e;
}

bool DialogoBulloni::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::FocusIn) {
    if (auto* e = qobject_cast<QLineEdit*>(oggetto))
      QTimer::singleShot(0, e, &QLineEdit::selectAll);
  }
  if (evento->type() == QEvent::MouseButtonDblClick) {
    for (int r = 0; r < 5; ++r) {
      if (oggetto != righe_[r].numero) continue;
      LbulDblClick(form_, s_.nodo, r);
      Dipingi();
      return true;
    }
  }
  if (evento->type() == QEvent::Enter) {
    for (auto& [w, c] : suggerimenti_) {
      if (w == oggetto) {
        PuntatoreSu(form_, c);
        timer_.start();
      }
    }
    if (oggetto == anteprima_) {
      NascondiSuggerimento(form_);
      help_->clear();
    }
  }
  return QDialog::eventFilter(oggetto, evento);
}

void DialogoBulloni::Dipingi() {
  tolleranza_->setText(Q(form_.TollForoBull));
  for (int i = 0; i < 2; ++i) {
    passo_[i]->setText(Q(form_.Passo[i]));
    fi3_[i]->setText(Q(form_.Fi3[i]));
  }
  for (int r = 0; r < 5; ++r) {
    const RigaBullone& riga = form_.righe[r];
    for (QWidget* w : {static_cast<QWidget*>(righe_[r].numero), static_cast<QWidget*>(righe_[r].x),
                       static_cast<QWidget*>(righe_[r].y), static_cast<QWidget*>(righe_[r].fi)}) {
      w->setVisible(riga.visibile);
    }
    righe_[r].numero->setText(Q(riga.Lbul));
    righe_[r].x->setText(Q(riga.Xbul));
    righe_[r].y->setText(Q(riga.Ybul));
    righe_[r].fi->setText(Q(riga.Fibul));
  }
  const QSignalBlocker blocco(scroll_);
  scroll_->setVisible(form_.Scroll1.visibile);
  scroll_->setRange(form_.Scroll1.minimo, form_.Scroll1.massimo);
  scroll_->setPageStep(form_.Scroll1.grande);
  scroll_->setSingleStep(form_.Scroll1.piccolo);
  scroll_->setValue(form_.Scroll1.valore);
  for (int i = 0; i < 3; ++i) mbp_[i]->setText(Q(form_.MbpTxt[i]));
  margSx_->setText(Q(form_.MargSx));
  margDx_->setText(Q(form_.MargDx));
  margSu_->setText(Q(form_.MargSu));
  margIn_->setText(Q(form_.MargIn));
  const AreaEditor& a = form_.area;
  anteprima_->Imposta(form_.anteprima,
                      QRectF(QPointF(a.sinistra, a.basso), QPointF(a.destra, a.alto)));
}

}  // namespace qf17
