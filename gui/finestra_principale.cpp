#include "finestra_principale.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSettings>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "dialogo_bulloni.h"
#include "dialogo_materiali.h"
#include "dialogo_opzioni.h"
#include "disegno/esporta_disegno.h"
#include "librerie/materiali.h"
#include "librerie/unita_lavoro.h"
#include "nodo/panel/pannello.h"
#include "nodo/panel/profili_pannello.h"
#include "nodo/sessione.h"
#include "vista_primitive.h"

namespace qf17 {
namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

const char* const kLettere[] = {"", "A", "B", "C"};

}  // namespace

FinestraPrincipale::FinestraPrincipale(Sessione& sessione, QWidget* genitore)
    : QMainWindow(genitore), s_(sessione) {
  auto* centro = new QWidget(this);
  auto* righe = new QHBoxLayout(centro);
  auto* schede = new QTabWidget(centro);
  schede->setObjectName(QStringLiteral("SSTab"));
  schede->addTab(PaginaSezioni(), QStringLiteral("Sezioni [mm]"));
  schede->addTab(PaginaMateriali(), QStringLiteral("Materiali"));
  schede->addTab(PaginaSollecitazioni(), QStringLiteral("Sollecitazioni agenti [daN]"));
  righe->addWidget(schede, 1);
  righe->addWidget(Comandi());
  setCentralWidget(centro);
  Menu();
  QSettings impostazioni;
  if (!restoreGeometry(impostazioni.value(QStringLiteral("finestra/geometria")).toByteArray())) {
    resize(1180, 720);
  }
  Aggiorna();
}

void FinestraPrincipale::Registra(QWidget* w, const std::string& nome, int indice) {
  w->setObjectName(Q(Controlli::Chiave(nome, indice)));
  widget_[Controlli::Chiave(nome, indice)] = w;
}

QWidget* FinestraPrincipale::Widget(const std::string& nome, int indice) const {
  const auto trovato = widget_.find(Controlli::Chiave(nome, indice));
  return trovato == widget_.end() ? nullptr : trovato->second;
}

QLineEdit* FinestraPrincipale::NuovaCasella(FamigliaCasella famiglia, int indice) {
  auto* e = new QLineEdit(this);
  if (famiglia != FamigliaCasella::Tb_sol_descr) e->setFixedWidth(80);
  Registra(e, std::string(NomeCasella(famiglia)), indice);
  caselle_[e] = {famiglia, indice};
  e->installEventFilter(this);
  // Enter and leaving the box both commit it; a second commit changes nothing.
  connect(e, &QLineEdit::editingFinished, this, [this, e, famiglia, indice] {
    p_.c(NomeCasella(famiglia), indice).testo = e->text().toStdString();
    TbValuta(p_, s_.nodo, s_.unita, {famiglia, indice});
  });
  return e;
}

QWidget* FinestraPrincipale::PaginaSezioni() {
  auto* pagina = new QWidget(this);
  auto* colonne = new QHBoxLayout(pagina);
  auto* aste = new QVBoxLayout;
  colonne->addLayout(aste, 3);
  for (int m = 0; m <= 3; ++m) {
    auto* riquadro = new QGroupBox(m == 0 ? QStringLiteral("Corrente (D)") : QString(), pagina);
    auto* g = new QGridLayout(riquadro);
    if (m > 0) {
      auto* presenza = new QCheckBox(riquadro);
      Registra(presenza, "AstaCh", m);
      connect(presenza, &QCheckBox::clicked, this, [this, m](bool v) {
        AstaCh_Click(p_, s_, m, v);
        Dipingi();
      });
      g->addWidget(presenza, 0, 0);
    }
    auto* combo = new QComboBox(riquadro);
    combo->setMinimumContentsLength(10);
    Registra(combo, "Cb_Asta", m);
    connect(combo, qOverload<int>(&QComboBox::activated), this, [this, m](int posto) {
      Cb_Asta_Click(p_, s_, m, posto);
      Dipingi();
    });
    g->addWidget(combo, 0, 1);
    g->addWidget(new QLabel(QStringLiteral("Angolo [°]"), riquadro), 1, 0);
    g->addWidget(NuovaCasella(FamigliaCasella::TetaTxt, m), 1, 1);
    if (m > 0) {
      const char* modi[] = {"Singola", "Doppia", "Opposta"};
      auto* modo = new QHBoxLayout;
      for (int scelta = 0; scelta < 3; ++scelta) {
        const int k = 3 * (m - 1) + scelta;
        auto* b = new QRadioButton(QLatin1String(modi[scelta]), riquadro);
        Registra(b, "OpB_aste_c", k);
        connect(b, &QRadioButton::toggled, this, [this, k](bool acceso) {
          if (!acceso) return;
          OpB_aste_c_Click(p_, s_, k);
          Dipingi();
        });
        modo->addWidget(b);
      }
      g->addLayout(modo, 2, 0, 1, 2);
      g->addWidget(new QLabel(QStringLiteral("Inserimento [mm]"), riquadro), 3, 0);
      g->addWidget(NuovaCasella(FamigliaCasella::FzTxt, 7 + m), 3, 1);
      g->addWidget(new QLabel(QStringLiteral("Coeff. B eff."), riquadro), 4, 0);
      g->addWidget(NuovaCasella(FamigliaCasella::BeffTxt, m), 4, 1);
      const char* lati[] = {"", "L", "L2", "L4"};
      auto* lato = new QPushButton(QStringLiteral("Ribalta la sezione"), riquadro);
      Registra(lato, lati[m]);
      connect(lato, &QPushButton::clicked, this, [this, m] {
        Cambia_lato_asta_L(p_, s_, m - 1);
        Dipingi();
      });
      g->addWidget(lato, 5, 0, 1, 2);
    }
    auto* schizzo = new VistaPrimitive(riquadro);
    schizzo->setMinimumSize(130, 110);
    Registra(schizzo, "Pic", m);
    g->addWidget(schizzo, 0, 2, 6, 1);
    auto* dati = new QGridLayout;
    for (int k = 0; k < 6; ++k) {
      auto* etichetta = new QLabel(riquadro);
      Registra(etichetta, "geom", 6 * m + k);
      auto* valore = new QLabel(riquadro);
      valore->setMinimumWidth(54);
      Registra(valore, "geomp", 6 * m + k);
      dati->addWidget(etichetta, k, 0);
      dati->addWidget(valore, k, 1);
    }
    g->addLayout(dati, 0, 3, 6, 1);
    aste->addWidget(riquadro);
  }
  auto* destra = new QVBoxLayout;
  colonne->addLayout(destra, 2);
  schema_ = new VistaPrimitive(pagina);
  schema_->setMinimumSize(300, 220);
  Registra(schema_, "Sezioni");
  connect(schema_, &VistaPrimitive::PuntatoreMosso, this, [this](double x, double y) {
    Sezioni_MouseMove(p_, s_.nodo, x, y);
    schema_->setCursor(p_.manina ? Qt::PointingHandCursor : Qt::ArrowCursor);
  });
  connect(schema_, &VistaPrimitive::Cliccato, this, [this] { ApriEditor(Sezioni_Click(p_, s_)); });
  destra->addWidget(schema_, 1);
  auto* fazzoletto = new QGroupBox(QStringLiteral("Fazzoletto [mm]"), pagina);
  auto* f = new QGridLayout(fazzoletto);
  for (int i = 0; i < 8; ++i) {
    f->addWidget(new QLabel(QString(QChar('a' + i)) + QStringLiteral(":"), fazzoletto), i / 4,
                 2 * (i % 4));
    f->addWidget(NuovaCasella(FamigliaCasella::FzTxt, i), i / 4, 2 * (i % 4) + 1);
  }
  f->addWidget(new QLabel(QStringLiteral("Spessore:"), fazzoletto), 2, 0);
  f->addWidget(NuovaCasella(FamigliaCasella::SpessTxt, -1), 2, 1);
  f->addWidget(new QLabel(QStringLiteral("Lato saldatura:"), fazzoletto), 2, 2, 1, 2);
  f->addWidget(NuovaCasella(FamigliaCasella::TextSald, -1), 2, 4);
  destra->addWidget(fazzoletto);
  return pagina;
}

QWidget* FinestraPrincipale::PaginaMateriali() {
  auto* pagina = new QWidget(this);
  auto* g = new QGridLayout(pagina);
  auto combo = [&](const char* nome, const QString& etichetta, int riga) {
    auto* c = new QComboBox(pagina);
    Registra(c, nome);
    g->addWidget(new QLabel(etichetta, pagina), riga, 0);
    g->addWidget(c, riga, 1);
    return c;
  };
  connect(combo("Cb_Acciaio", QStringLiteral("Acciaio"), 0), qOverload<int>(&QComboBox::activated),
          this, [this](int i) {
            Cb_Acciaio_Click(p_, s_, i);
            Dipingi();
          });
  auto* norma = new QLabel(pagina);
  Registra(norma, "LabNorma");
  g->addWidget(norma, 1, 1);
  connect(combo("Cb_Vite", QStringLiteral("Classe dei bulloni"), 2),
          qOverload<int>(&QComboBox::activated), this, [this](int i) {
            Cb_Vite_Click(p_, s_, i);
            Dipingi();
          });
  connect(combo("ComboEsposizione", QStringLiteral("Esposizione"), 3),
          qOverload<int>(&QComboBox::activated), this, [this](int i) {
            ComboEsposizione_Click(p_, s_, i);
            Dipingi();
          });
  auto* proprieta = new QPushButton(QStringLiteral("Proprietà"), pagina);
  Registra(proprieta, "PropMatButton");
  connect(proprieta, &QPushButton::clicked, this, [this] {
    DialogoMateriali dialogo(s_, this);
    connect(&dialogo, &DialogoMateriali::MaterialiCambiati, this, [this] {
      pnn1_aggiorna_materiali(p_, s_);
      Dipingi();
    });
    dialogo.exec();
  });
  g->addWidget(proprieta, 4, 1);
  g->setRowStretch(5, 1);
  g->setColumnStretch(2, 1);
  return pagina;
}

QWidget* FinestraPrincipale::PaginaSollecitazioni() {
  auto* pagina = new QWidget(this);
  auto* v = new QVBoxLayout(pagina);
  auto* tabella = new QGridLayout;
  const char* intestazioni[] = {"N.", "Descrizione", "Asta A", "Asta B", "Asta C"};
  for (int c = 0; c < 5; ++c) tabella->addWidget(new QLabel(QLatin1String(intestazioni[c])), 0, c);
  auto* caso = new QLabel(QStringLiteral("C.c. II"), pagina);
  Registra(caso, "Lb_CasCar");
  tabella->addWidget(caso, 0, 5);
  for (int r = 0; r < 4; ++r) {
    auto* numero = new QPushButton(pagina);
    numero->setFlat(true);
    numero->setToolTip(QStringLiteral("Cliccare per eliminare la sollecitazione"));
    Registra(numero, "Lb_sol_num", r);
    connect(numero, &QPushButton::clicked, this, [this, r] {
      Lb_sol_num_Click(p_, s_.nodo, s_.unita, r);
      Dipingi();
    });
    tabella->addWidget(numero, r + 1, 0);
    tabella->addWidget(NuovaCasella(FamigliaCasella::Tb_sol_descr, r), r + 1, 1);
    const FamigliaCasella carichi[] = {FamigliaCasella::Txt1, FamigliaCasella::Txt2,
                                       FamigliaCasella::Txt3};
    for (int i = 0; i < 3; ++i) tabella->addWidget(NuovaCasella(carichi[i], r), r + 1, 2 + i);
    auto* cc = new QCheckBox(pagina);
    Registra(cc, "CasCar", r);
    connect(cc, &QCheckBox::clicked, this, [this, r](bool v) {
      CasCar_Click(p_, s_.nodo, r, v);
      Dipingi();
    });
    tabella->addWidget(cc, r + 1, 5);
  }
  auto* barra = new QScrollBar(Qt::Vertical, pagina);
  Registra(barra, "VScrollSoll");
  connect(barra, &QScrollBar::valueChanged, this, [this](int valore) {
    VScrollSoll_Change(p_, s_.nodo, s_.unita, valore);
    Dipingi();
  });
  tabella->addWidget(barra, 1, 6, 4, 1);
  tabella->setColumnStretch(1, 1);
  v->addLayout(tabella);
  auto* conteggio = new QHBoxLayout;
  conteggio->addWidget(new QLabel(QStringLiteral("Sollecitazioni:"), pagina));
  auto* numero = new QLabel(pagina);
  Registra(numero, "Lb_nrosol");
  conteggio->addWidget(numero);
  conteggio->addStretch();
  v->addLayout(conteggio);
  auto* pulsanti = new QHBoxLayout;
  auto pulsante = [&](const char* nome, const QString& testo, auto azione) {
    auto* b = new QPushButton(testo, pagina);
    Registra(b, nome);
    connect(b, &QPushButton::clicked, this, [this, azione] {
      azione();
      Dipingi();
    });
    pulsanti->addWidget(b);
  };
  pulsante("Bt_agg_sing_sol", QStringLiteral("Agg. sing."),
           [this] { Bt_agg_sing_sol(p_, s_.nodo, s_.unita, s_.piattaforma); });
  pulsante("RimuoviUltSoll", QStringLiteral("Rim. ultimo"),
           [this] { RimuoviUltSoll(p_, s_.nodo, s_.unita); });
  pulsante("RimuoviTutteSoll", QStringLiteral("Rim. tutto"),
           [this] { RimuoviTutteSoll(p_, s_.nodo, s_.unita, s_.piattaforma); });
  pulsante("RimuoviDoppieSoll", QStringLiteral("Rim. doppi"),
           [this] { RimuoviDoppieSoll(p_, s_); });
  pulsante("MaxMinSoll", QStringLiteral("Max e min"), [this] { MaxMinSoll(p_, s_); });
  v->addLayout(pulsanti);
  v->addStretch();
  return pagina;
}

QWidget* FinestraPrincipale::Comandi() {
  auto* colonna = new QWidget(this);
  auto* v = new QVBoxLayout(colonna);
  auto* metodo = new QGroupBox(QStringLiteral("Tipo di verifica"), colonna);
  auto* m = new QVBoxLayout(metodo);
  const char* metodi[] = {"Tensioni ammissibili (CNR 10011/88)", "Stati limite (NTC 2008)"};
  for (int k = 0; k < 2; ++k) {
    auto* b = new QRadioButton(QLatin1String(metodi[k]), metodo);
    Registra(b, "TipoVer", k);
    connect(b, &QRadioButton::toggled, this, [this, k](bool acceso) {
      if (!acceso) return;
      TipoVer_Click(p_, s_, static_cast<std::int16_t>(k));
      Dipingi();
    });
    m->addWidget(b);
  }
  v->addWidget(metodo);
  auto pulsante = [&](const char* nome, const QString& testo, auto azione) {
    auto* b = new QPushButton(testo, colonna);
    Registra(b, nome);
    connect(b, &QPushButton::clicked, this, azione);
    v->addWidget(b);
  };
  pulsante("Bt_bul_corr", QStringLiteral("Bulloni corrente"),
           [this] { ApriEditor(Bt_bul_Click(p_, s_, 1)); });
  for (int g = 2; g <= 4; ++g) {
    pulsante((std::string("Bt_bul_asta_") + kLettere[g - 1]).c_str(),
             QStringLiteral("Bulloni asta ") + QLatin1String(kLettere[g - 1]),
             [this, g] { ApriEditor(Bt_bul_Click(p_, s_, static_cast<std::int16_t>(g))); });
  }
  v->addSpacing(12);
  pulsante("VerificaButt", QStringLiteral("Verifica"), [this] { Verifica(); });
  pulsante("ApriVis", QStringLiteral("Mostra il disegno"), [this] { ApriVis(s_); });
  pulsante("Opz", QStringLiteral("Opzioni"), [this] {
    DialogoOpzioni dialogo(s_, this);
    dialogo.exec();
  });
  pulsante("Gen_Dis", QStringLiteral("Disegno esecutivo..."), [this] { GeneraDisegno(s_); });
  pulsante("LegendaButt", QStringLiteral("Legenda della relazione di calcolo"),
           [this] { LegendaButt(s_); });
  v->addSpacing(12);
  pulsante("Car_Nodo", QStringLiteral("Apri nodo..."), [this] {
    if (Car_Nodo(p_, s_)) Dipingi();
  });
  pulsante("Bt_salva", QStringLiteral("Salva nodo"), [this] {
    if (Bt_salva(p_, s_)) Dipingi();
  });
  pulsante("Bt_salva_con_nome", QStringLiteral("Salva con nome..."), [this] {
    if (Bt_salva_con_nome(p_, s_)) Dipingi();
  });
  v->addStretch();
  pulsante("Chiudi", QStringLiteral("Chiudi"), [this] { close(); });
  return colonna;
}

void FinestraPrincipale::Menu() {
  QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
  auto voce = [&](const QString& testo, QKeySequence tasti, const char* pulsante) {
    QAction* a = file->addAction(testo);
    a->setShortcut(tasti);
    connect(a, &QAction::triggered, this, [this, pulsante] {
      if (auto* b = qobject_cast<QPushButton*>(Widget(pulsante))) b->click();
    });
  };
  voce(QStringLiteral("&Apri nodo..."), QKeySequence::Open, "Car_Nodo");
  voce(QStringLiteral("&Salva"), QKeySequence::Save, "Bt_salva");
  voce(QStringLiteral("Salva &con nome..."), QKeySequence(QStringLiteral("Ctrl+Shift+S")),
       "Bt_salva_con_nome");
  file->addSeparator();
  voce(QStringLiteral("&Esci"), QKeySequence(QStringLiteral("Ctrl+Q")), "Chiudi");
  QMenu* nodo = menuBar()->addMenu(QStringLiteral("&Nodo"));
  QAction* verifica = nodo->addAction(QStringLiteral("&Verifica"));
  verifica->setShortcut(QKeySequence(QStringLiteral("F5")));
  connect(verifica, &QAction::triggered, this, [this] { Verifica(); });
  nodo->addAction(QStringLiteral("&Disegno esecutivo..."), this, [this] { GeneraDisegno(s_); });
}

void FinestraPrincipale::Aggiorna() {
  AggiornaPannello(p_, s_);
  Dipingi();
}

void FinestraPrincipale::ApriEditor(std::optional<FormBulloni> form) {
  if (!form) return;
  DialogoBulloni dialogo(std::move(*form), s_, this);
  dialogo.exec();
  FormBulloniChiusa(p_, s_);
  Dipingi();
}

void FinestraPrincipale::Verifica() {
  // A box being typed in is committed first, as leaving it would.
  if (auto* e = qobject_cast<QLineEdit*>(focusWidget())) emit e->editingFinished();
  VerificaButt(p_, s_);
  Dipingi();
}

bool FinestraPrincipale::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Escape) {
    const auto trovata = caselle_.find(oggetto);
    if (trovata != caselle_.end()) {
      TbRipristina(p_, s_.nodo, s_.unita, s_.piattaforma, trovata->second);
      Dipingi();
      return true;
    }
  }
  if (evento->type() == QEvent::MouseButtonDblClick) {
    // The unit tool on a load box: its answer stands in the box until the box is left.
    const auto trovata = caselle_.find(oggetto);
    const FamigliaCasella f =
        trovata == caselle_.end() ? FamigliaCasella::FzTxt : trovata->second.famiglia;
    if (f == FamigliaCasella::Txt1 || f == FamigliaCasella::Txt2 || f == FamigliaCasella::Txt3) {
      auto* box = static_cast<QLineEdit*>(oggetto);
      const int casella = static_cast<int>(f) - static_cast<int>(FamigliaCasella::Txt1) + 1;
      box->setText(Q(TbDblClick(s_, casella, box->text().toStdString())));
      return true;
    }
  }
  if (evento->type() == QEvent::FocusIn && caselle_.count(oggetto) != 0) {
    QTimer::singleShot(0, static_cast<QLineEdit*>(oggetto), &QLineEdit::selectAll);
  }
  return QMainWindow::eventFilter(oggetto, evento);
}

void FinestraPrincipale::closeEvent(QCloseEvent* evento) {
  QSettings().setValue(QStringLiteral("finestra/geometria"), saveGeometry());
  evento->accept();
}

void FinestraPrincipale::Dipingi() {
  for (auto& [chiave, w] : widget_) {
    const size_t parentesi = chiave.find('(');
    const std::string nome = chiave.substr(0, parentesi);
    const int indice =
        parentesi == std::string::npos ? -1 : std::stoi(chiave.substr(parentesi + 1));
    const Controllo* c = p_.c.Trova(nome, indice);
    if (c == nullptr) continue;
    w->setEnabled(c->abilitato);
    w->setVisible(c->visibile);
    w->setToolTip(Q(c->tooltip));
    const QSignalBlocker blocco(w);
    if (auto* e = qobject_cast<QLineEdit*>(w)) {
      if (!e->hasFocus() || e->text() != Q(c->testo)) e->setText(Q(c->testo));
    } else if (auto* l = qobject_cast<QLabel*>(w)) {
      l->setText(Q(c->testo));
    } else if (auto* b = qobject_cast<QCheckBox*>(w)) {
      b->setChecked(c->valore == 1);
      if (!c->testo.empty()) b->setText(Q(c->testo));
    } else if (auto* r = qobject_cast<QRadioButton*>(w)) {
      r->setChecked(c->valore == 1);
    } else if (auto* cb = qobject_cast<QComboBox*>(w)) {
      std::vector<std::string>& mostrate = vociMostrate_[cb];
      if (mostrate != c->voci) {
        cb->clear();
        for (const std::string& v : c->voci) cb->addItem(Q(v));
        mostrate = c->voci;
      }
      cb->setCurrentIndex(c->selezione);
    } else if (auto* sb = qobject_cast<QScrollBar*>(w)) {
      sb->setRange(c->minimo, c->massimo);
      sb->setPageStep(4);
      sb->setValue(c->valore);
    } else if (auto* pb = qobject_cast<QPushButton*>(w)) {
      if (nome == "Lb_sol_num") pb->setText(Q(c->testo));
    } else if (auto* v = qobject_cast<VistaPrimitive*>(w)) {
      v->Imposta(c->disegno);
    }
  }
  if (const Controllo* titolo = p_.c.Trova("InsDati")) setWindowTitle(Q(titolo->testo));
}

}  // namespace qf17
