// The desktop windows driven as a user drives them, on a private copy of the sample
// installation, under the offscreen platform. With QF17_SCHERMATE=FOLDER each window is also
// grabbed to a PNG there, to be looked at.
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <filesystem>
#include <fstream>
#include <memory>

#include "dialogo_bulloni.h"
#include "dialogo_materiali.h"
#include "dialogo_opzioni.h"
#include "finestra_disegno.h"
#include "finestra_principale.h"
#include "finestra_relazione.h"
#include "nodo/avvio.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma_qt.h"
#include "vista_primitive.h"

namespace qf17 {

class TestFinestre : public QObject {
  Q_OBJECT

 private slots:
  void init();
  void cleanup();
  void OgniEsempioNelPannello();
  void CaselleInvioEdEsc();
  void SezioneEModoOpposto();
  void SollecitazioniFinoAlLimite();
  void VerificaMostraLaRelazione();
  void EditorDeiBulloniDalloSchema();
  void DisegnoNellaSuaFinestra();
  void OpzioniApplicaESalva();
  void ProprietaDeiMateriali();
  void ConvertitoreDelleForze();

 private:
  template <class T>
  T* W(const char* nome, int indice = -1) {
    return qobject_cast<T*>(finestra->Widget(nome, indice));
  }
  // Answers the next modal box or dialog with `azione` once it is up.
  void Poi(std::function<void(QWidget*)> azione);
  void Schermata(QWidget* w, const QString& nome);

  std::unique_ptr<QTemporaryDir> radice;
  std::unique_ptr<PiattaformaQt> piattaforma;
  std::unique_ptr<Sessione> s;
  std::unique_ptr<FinestraPrincipale> finestra;
};

void TestFinestre::init() {
  radice = std::make_unique<QTemporaryDir>();
  namespace fs = std::filesystem;
  const fs::path r = radice->path().toStdString();
  fs::copy(fs::path(QF17_SORGENTI) / "installazione", r, fs::copy_options::recursive);
  std::ofstream(r / "impostazioni" / "dirlav") << (r / "lavori").string() << "\r\n";
  piattaforma = std::make_unique<PiattaformaQt>();
  s = std::make_unique<Sessione>(*piattaforma);
  Avvio(*s, "|diroot=" + r.string() + "|", r / "progra");
  QVERIFY(ApriNodoDaFile(*s, r / "lavori" / "esempi" / "ANGUPN.qf7"));
  finestra = std::make_unique<FinestraPrincipale>(*s);
  piattaforma->ImpostaFinestra(finestra.get());
  finestra->show();
  QVERIFY(QTest::qWaitForWindowExposed(finestra.get()));
}

void TestFinestre::cleanup() {
  finestra.reset();
  s.reset();
}

void TestFinestre::Poi(std::function<void(QWidget*)> azione) {
  QTimer::singleShot(0, this, [azione] {
    QWidget* modale = QApplication::activeModalWidget();
    QVERIFY(modale != nullptr);
    azione(modale);
  });
}

void TestFinestre::Schermata(QWidget* w, const QString& nome) {
  const QString cartella = qEnvironmentVariable("QF17_SCHERMATE");
  if (cartella.isEmpty()) return;
  QDir().mkpath(cartella);
  QVERIFY(w->grab().save(cartella + QStringLiteral("/") + nome + QStringLiteral(".png")));
}

// Each sample opened with the open button (the dialog answered with its file): the window's
// title names it and the combos show its sections.
void TestFinestre::OgniEsempioNelPannello() {
  const std::pair<const char*, const char*> esempi[] = {
      {"ANGUPN", "UPN160"}, {"DOPPIO", "LU100x10"}, {"HEASALD", "HEA200"}, {"MOLTESOLL", "UPN200"}};
  for (const auto& [nome, corrente] : esempi) {
    const QString file = radice->path() + QStringLiteral("/lavori/esempi/") + QLatin1String(nome) +
                         QStringLiteral(".qf7");
    Poi([file](QWidget* w) {
      auto* dialogo = qobject_cast<QFileDialog*>(w);
      QVERIFY(dialogo != nullptr);
      // As a user types the name and presses Enter.
      auto* nome = dialogo->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
      QVERIFY(nome != nullptr);
      nome->setText(file);
      QTest::keyClick(nome, Qt::Key_Return);
    });
    W<QPushButton>("Car_Nodo")->click();
    QVERIFY(finestra->windowTitle().endsWith(QLatin1String(nome) + QStringLiteral(".qf7")));
    QCOMPARE(W<QComboBox>("Cb_Asta", 0)->currentText(), QLatin1String(corrente));
    Schermata(finestra.get(), QStringLiteral("principale_") + QLatin1String(nome));
  }
  // MOLTESOLL's load sets: four rows and the scroll bar.
  auto* schede = finestra->findChild<QTabWidget*>(QStringLiteral("SSTab"));
  schede->setCurrentIndex(2);
  QVERIFY(W<QScrollBar>("VScrollSoll")->isEnabled());
  QCOMPARE(W<QPushButton>("Lb_sol_num", 3)->text(), QStringLiteral("4"));
  Schermata(finestra.get(), QStringLiteral("sollecitazioni_MOLTESOLL"));
  schede->setCurrentIndex(0);
}

// A gusset size typed and Enter: the node takes it. Escape on another box puts the node's value
// back.
void TestFinestre::CaselleInvioEdEsc() {
  Schermata(finestra.get(), QStringLiteral("principale_ANGUPN"));
  auto* a = W<QLineEdit>("FzTxt", 0);
  QVERIFY(a != nullptr);
  QCOMPARE(a->text(), QStringLiteral("150"));
  a->setFocus();
  a->selectAll();
  QTest::keyClicks(a, QStringLiteral("175,5"));
  QTest::keyClick(a, Qt::Key_Return);
  QCOMPARE(s->nodo.Fz_a, 175.0);
  auto* b = W<QLineEdit>("FzTxt", 1);
  b->setFocus();
  b->selectAll();
  QTest::keyClicks(b, QStringLiteral("999"));
  QTest::keyClick(b, Qt::Key_Escape);
  QCOMPARE(b->text(), QStringLiteral("250"));
  QCOMPARE(s->nodo.Fz_b, 250.0);
}

// A channel for member B from its combo, then "Opposta": the channel stays single, turned.
void TestFinestre::SezioneEModoOpposto() {
  auto* combo = W<QComboBox>("Cb_Asta", 2);
  const int upn160 = combo->findText(QStringLiteral("UPN160"));
  QVERIFY(upn160 >= 0);
  combo->setCurrentIndex(upn160);
  emit combo->activated(upn160);
  QCOMPARE(QString::fromStdString(s->nodo.Aste[2].Nome), QStringLiteral("UPN160"));
  W<QRadioButton>("OpB_aste_c", 5)->click();
  QCOMPARE(s->nodo.Ast_modo[2], std::int16_t{0});
  QCOMPARE(s->nodo.Ast_lato[2], std::int16_t{1});
  QVERIFY(W<QRadioButton>("OpB_aste_c", 3)->isChecked());
}

// Sets added to the button's limit: the last press gets the box, answered OK.
void TestFinestre::SollecitazioniFinoAlLimite() {
  s->nodo.nSollAg = 198;
  finestra->Aggiorna();
  W<QPushButton>("Bt_agg_sing_sol")->click();
  QCOMPARE(s->nodo.nSollAg, std::int16_t{199});
  QCOMPARE(W<QPushButton>("Lb_sol_num", 3)->text(), QStringLiteral("199"));
  QString testo;
  Poi([&testo](QWidget* box) {
    testo = qobject_cast<QMessageBox*>(box)->text();
    qobject_cast<QMessageBox*>(box)->accept();
  });
  W<QPushButton>("Bt_agg_sing_sol")->click();
  QCOMPARE(testo, QStringLiteral("E' stato raggiunto il numero massimo di sollecitazioni."));
  QCOMPARE(s->nodo.nSollAg, std::int16_t{199});
}

// The verify button writes the report and shows it in the report window.
void TestFinestre::VerificaMostraLaRelazione() {
  s->nodo.TipoVer = 0;
  W<QPushButton>("VerificaButt")->click();
  FinestraRelazione* relazione = nullptr;
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (auto* f = qobject_cast<FinestraRelazione*>(w); f && f->isVisible()) relazione = f;
  }
  QVERIFY(relazione != nullptr);
  QVERIFY(relazione->windowTitle().startsWith(QStringLiteral("RelTA_QF17_ANGUPN.txt")));
  QVERIFY(relazione->Testo()->toPlainText().contains(QStringLiteral("NODO VERIFICATO")));
  Schermata(relazione, QStringLiteral("relazione_ANGUPN"));
  relazione->close();
}

// The schema's area of member B opens its editor: a matrix generated and cancelled leaves the
// group as it was; generated again and confirmed, the group has it. B is a UPN120 inserted 120:
// a web 102 high, margins of two 16.5 mm holes, so a 2 x 2 matrix of 16 mm bolts stands at
// x 33 and 87, y 33 and 69.
void TestFinestre::EditorDeiBulloniDalloSchema() {
  const auto prima = s->nodo.nBull[2];
  const double x1 = s->nodo.xBull(2, 1);
  auto* schema = W<VistaPrimitive>("Sezioni");
  QVERIFY(schema != nullptr);
  const QPoint sopraB = schema->InPixel(200, 250).toPoint();
  auto genera = [this](bool conferma) {
    Poi([this, conferma](QWidget* w) {
      auto* dialogo = qobject_cast<DialogoBulloni*>(w);
      QVERIFY(dialogo != nullptr);
      QCOMPARE(dialogo->windowTitle(), QStringLiteral("Inserimento bulloni sull'asta B"));
      auto caselle = dialogo->findChildren<QLineEdit*>();
      // After the 2 + 2 readouts and the 15 boxes of the list: diameter, rows, columns.
      caselle[19]->setText(QStringLiteral("16"));
      caselle[20]->setText(QStringLiteral("2"));
      caselle[21]->setText(QStringLiteral("2"));
      QTest::keyClick(caselle[21], Qt::Key_Return);
      QCOMPARE(caselle[22]->text(), QStringLiteral("33"));  // left margin: 2 x 16.5
      for (QPushButton* b : dialogo->findChildren<QPushButton*>()) {
        if (b->text() == QStringLiteral("Aggiungi")) b->click();
      }
      if (conferma) Schermata(dialogo, QStringLiteral("editor_bulloni_B"));
      for (QPushButton* b : dialogo->findChildren<QPushButton*>()) {
        if (b->text() == (conferma ? QStringLiteral("OK") : QStringLiteral("Annulla"))) {
          b->click();
          return;
        }
      }
      QFAIL("no OK or Annulla button");
    });
  };
  QTest::mouseMove(schema, sopraB);
  QCOMPARE(finestra->Pannello().GruppoEditor, std::int16_t{3});
  QCOMPARE(schema->cursor().shape(), Qt::PointingHandCursor);
  genera(false);
  QTest::mouseClick(schema, Qt::LeftButton, {}, sopraB);
  QCOMPARE(s->nodo.nBull[2], prima);
  genera(true);
  QTest::mouseClick(schema, Qt::LeftButton, {}, sopraB);
  QCOMPARE(s->nodo.nBull[2], prima + 4);
  QCOMPARE(s->nodo.xBull(2, 1), x1);  // appended after the sample's bolts
  QCOMPARE(s->nodo.xBull(2, prima + 2), 87.0);
  QCOMPARE(s->nodo.yBull(2, prima + 4), 69.0);
}

// "Mostra il disegno": the sheet in the program's own drawing window, fitted; the wheel zooms
// round the pointer.
void TestFinestre::DisegnoNellaSuaFinestra() {
  W<QPushButton>("ApriVis")->click();
  FinestraDisegno* disegno = nullptr;
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (auto* f = qobject_cast<FinestraDisegno*>(w); f && f->isVisible()) disegno = f;
  }
  QVERIFY(disegno != nullptr);
  QVERIFY(disegno->Vista()->Disegno().isValid());
  QVERIFY(std::filesystem::exists(std::filesystem::path(radice->path().toStdString()) / "temp" /
                                  "nodo.svg"));
  const double adattata = disegno->Vista()->Scala();
  QWheelEvent rotella(QPointF(200, 200), disegno->Vista()->mapToGlobal(QPointF(200, 200)), QPoint(),
                      QPoint(0, 120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(disegno->Vista(), &rotella);
  QCOMPARE(disegno->Vista()->Scala(), adattata * 1.25);
  disegno->Vista()->Adatta();
  Schermata(disegno, QStringLiteral("disegno_ANGUPN"));
  disegno->close();
}

// The options form: "Quote" unticked takes "Quote Saldature" with it; a dimension text height
// typed and "Applica" reaches the options and shows the sheet; "Salva" writes the options file.
void TestFinestre::OpzioniApplicaESalva() {
  const auto file =
      std::filesystem::path(radice->path().toStdString()) / "custom" / "OpzioniQf7.txt";
  std::filesystem::remove(file);
  Poi([this, &file](QWidget* w) {
    auto* dialogo = qobject_cast<DialogoOpzioni*>(w);
    QVERIFY(dialogo != nullptr);
    Schermata(dialogo, QStringLiteral("opzioni"));
    QCheckBox *quote = nullptr, *saldature = nullptr;
    for (QCheckBox* c : dialogo->findChildren<QCheckBox*>()) {
      if (c->text() == QStringLiteral("Quote")) quote = c;
      if (c->text() == QStringLiteral("Quote Saldature")) saldature = c;
    }
    QVERIFY(quote && saldature);
    if (!quote->isChecked()) quote->click();
    saldature->click();
    QVERIFY(saldature->isChecked());
    quote->click();
    QVERIFY(!saldature->isChecked());
    QVERIFY(!saldature->isEnabled());
    auto caselle = dialogo->findChildren<QLineEdit*>();
    caselle[7]->setText(QStringLiteral("5"));  // "Altezza testo quote"
    auto premi = [dialogo](const char* testo) {
      for (QPushButton* b : dialogo->findChildren<QPushButton*>()) {
        if (b->text() == QLatin1String(testo)) b->click();
      }
    };
    premi("Applica");
    QCOMPARE(s->opzioni[7], 5.0);
    QCOMPARE(s->opzioni[15], 0.0);
    premi("Salva");
    QVERIFY(std::filesystem::exists(file));
    premi("Chiudi");
  });
  W<QPushButton>("Opz")->click();
  bool disegno = false;
  for (QWidget* w : QApplication::topLevelWidgets()) {
    if (auto* f = qobject_cast<FinestraDisegno*>(w); f && f->isVisible()) disegno = true;
  }
  QVERIFY(disegno);
}

// The materials' properties of ANGUPN's S 275 and 8.8 in daN/cm2, to the job's one decimal:
// fy40 / gM = 2550 / 1.05 = 2428.57 -> 2428.6, S_adm II = 1900 x 1.125 = 2137.5; the bolts'
// ftd = 8000 / 1.25 = 6400.
void TestFinestre::ProprietaDeiMateriali() {
  QStringList testi;
  Poi([this, &testi](QWidget* w) {
    auto* dialogo = qobject_cast<DialogoMateriali*>(w);
    QVERIFY(dialogo != nullptr);
    for (QLabel* l : dialogo->findChildren<QLabel*>()) testi << l->text();
    Schermata(dialogo, QStringLiteral("materiali"));
    dialogo->reject();
  });
  W<QPushButton>("PropMatButton")->click();
  QVERIFY(testi.contains(QStringLiteral("2428.6 daN/cm2")));
  QVERIFY(testi.contains(QStringLiteral("2137.5 daN/cm2")));
  QVERIFY(testi.contains(QStringLiteral("6400 daN/cm2")));
}

// A double click on a force box with no unit tool installed: the built-in converter takes 2 kN
// and gives 200 daN (1 daN = 1/100 kN) into the box, which is taken on Enter.
void TestFinestre::ConvertitoreDelleForze() {
  W<QPushButton>("Bt_agg_sing_sol")->click();
  const int j = s->nodo.nSollAg;
  auto* box = W<QLineEdit>("Txt1", 3);
  QVERIFY(box != nullptr);
  Poi([this](QWidget* w) {
    auto* numero = w->findChild<QLineEdit*>();
    auto* unita = w->findChild<QComboBox*>();
    QVERIFY(numero && unita);
    numero->setText(QStringLiteral("2"));
    unita->setCurrentText(QStringLiteral("kN"));
    Schermata(w, QStringLiteral("convertitore"));
    for (QPushButton* b : w->findChildren<QPushButton*>()) {
      if (b->text() == QStringLiteral("OK") || b->text() == QStringLiteral("&OK")) b->click();
    }
  });
  box->setFocus();
  QTest::mouseDClick(box, Qt::LeftButton);
  QCOMPARE(box->text(), QStringLiteral("200"));
  QTest::keyClick(box, Qt::Key_Return);
  QCOMPARE(s->nodo.SforzoNormale(1, j), 200.0);
}

}  // namespace qf17

QTEST_MAIN(qf17::TestFinestre)
#include "test_finestre.moc"
