#include "dialogo_materiali.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "librerie/materiali.h"
#include "librerie/numeri.h"
#include "nodo/sessione.h"

namespace qf17 {
namespace {

QString Q(const std::string& s) {
  return QString::fromStdString(s);
}

}  // namespace

DialogoMateriali::DialogoMateriali(Sessione& sessione, QWidget* genitore)
    : QDialog(genitore), s_(sessione) {
  setWindowTitle(QStringLiteral("Proprietà dei materiali"));
  auto* v = new QVBoxLayout(this);
  base_ = new QCheckBox(QStringLiteral("Imposta da Materiali-Base"), this);
  connect(base_, &QCheckBox::clicked, this, [this](bool spuntata) {
    CliccaCheckMatBase(s_, spuntata);
    Dipingi();
    emit MaterialiCambiati();
  });
  v->addWidget(base_);
  auto* riquadro = new QGroupBox(this);
  valori_ = new QGridLayout(riquadro);
  titoloAcciaio_ = new QLabel(riquadro);
  titoloViti_ = new QLabel(riquadro);
  v->addWidget(riquadro);
  auto* chiudi = new QDialogButtonBox(QDialogButtonBox::Close, this);
  chiudi->button(QDialogButtonBox::Close)->setText(QStringLiteral("Chiudi"));
  connect(chiudi, &QDialogButtonBox::rejected, this, &QDialog::reject);
  v->addWidget(chiudi);
  Dipingi();
}

void DialogoMateriali::Dipingi() {
  base_->setEnabled(s_.materiali.MatBaseAttivo);
  base_->setChecked(s_.materiali.CheckMatBase);
  const ValoriMateriali m = SettaMateriali(s_);
  const QString tensioni = QStringLiteral(" ") + Q(s_.unita.UniTensioni);
  auto testo = [this](double valore) {
    return Q(TestoNumero(ArrotondaPari(valore, std::max(0, s_.unita.DecTensioni))));
  };
  while (QLayoutItem* voce = valori_->takeAt(0)) {
    if (voce->widget() != titoloAcciaio_ && voce->widget() != titoloViti_) delete voce->widget();
    delete voce;
  }
  int riga = 0;
  auto intestazione = [&](QLabel* titolo, const std::string& t) {
    titolo->setText(QStringLiteral("<b>") + Q(t).toHtmlEscaped() + QStringLiteral("</b>"));
    valori_->addWidget(titolo, riga++, 0, 1, 2);
  };
  auto valore = [&](const char* nome, double v, bool tensione) {
    valori_->addWidget(new QLabel(QLatin1String(nome)), riga, 0);
    valori_->addWidget(new QLabel(tensione ? testo(v) + tensioni : Q(TestoNumero(v))), riga++, 1);
  };
  intestazione(titoloAcciaio_, m.titoloAcciaio);
  valore("fk", m.fk, true);
  valore("gM", m.gM, false);
  valore("gMT", m.gMT, false);
  valore("fd = fk / gM", m.fd, true);
  valore("fdt = fk / gMT", m.fdt, true);
  valore("fd (sp > 40 mm)", m.fd40, true);
  valore("fdt (sp > 40 mm)", m.fdt40, true);
  valore("S_adm, comb. car. I", m.SAmmI, true);
  valore("S_adm, comb. car. II", m.SAmmII, true);
  intestazione(titoloViti_, m.titoloViti);
  valore("fy", m.fyViti, true);
  valore("fyd = fy / gM", m.fydViti, true);
  valore("ft", m.ftViti, true);
  valore("ftd = ft / gM", m.ftdViti, true);
  valore("S_adm, comb. car. I", m.SAmmIViti, true);
  valore("S_adm, comb. car. II", m.SAmmIIViti, true);
  valore("Tau_adm, comb. car. I", m.TauAmmIViti, true);
  valore("Tau_adm, comb. car. II", m.TauAmmIIViti, true);
  valore("gM", m.gMViti, false);
}

}  // namespace qf17
