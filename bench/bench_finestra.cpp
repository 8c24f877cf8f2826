// The desktop program's main window: from start-up to a painted window on a sample node, and an
// event of the panel with its repaint on the largest node (200 load sets, 4 x 2000 bolts), on
// the offscreen platform.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <filesystem>
#include <memory>

#include "finestra_principale.h"
#include "nodo/avvio.h"
#include "nodo/file_nodo.h"
#include "nodo/sessione.h"
#include "piattaforma_qt.h"

namespace qf17 {
namespace {

const std::filesystem::path kRadice = QF17_INSTALLAZIONE;

void BM_AvvioFinoAllaFinestraDipinta(benchmark::State& stato) {
  for (auto _ : stato) {
    PiattaformaQt piattaforma;
    auto s = std::make_unique<Sessione>(piattaforma);
    Avvio(*s, "|diroot=" + kRadice.string() + "|", kRadice / "progra");
    ApriNodoDaFile(*s, kRadice / "lavori" / "esempi" / "DOPPIO.qf7");
    FinestraPrincipale finestra(*s);
    finestra.show();
    benchmark::DoNotOptimize(finestra.grab());
  }
}
BENCHMARK(BM_AvvioFinoAllaFinestraDipinta)->Unit(benchmark::kMillisecond);

void BM_EventoDelPannello(benchmark::State& stato) {
  PiattaformaQt piattaforma;
  auto s = std::make_unique<Sessione>(piattaforma);
  Avvio(*s, "|diroot=" + kRadice.string() + "|", kRadice / "progra");
  Nodo& n = s->nodo;
  for (int g = 0; g <= 3; ++g) {
    n.nBull[g] = kMaxBulloni;
    for (int k = 1; k <= kMaxBulloni; ++k) n.xBull(g, k) = k, n.FiBull(g, k) = 16;
  }
  n.nSollAg = kMaxSollecitazioni - 1;
  FinestraPrincipale finestra(*s);
  finestra.show();
  auto* aggiungi = qobject_cast<QPushButton*>(finestra.Widget("Bt_agg_sing_sol"));
  auto* togli = qobject_cast<QPushButton*>(finestra.Widget("RimuoviUltSoll"));
  auto* fz = qobject_cast<QLineEdit*>(finestra.Widget("FzTxt", 0));
  int i = 0;
  for (auto _ : stato) {
    // A load set added and taken away, a gusset size committed: each event repaints the panel.
    (++i % 2 ? togli : aggiungi)->click();
    fz->setText(QString::number(100 + i % 7));
    emit fz->editingFinished();
    benchmark::DoNotOptimize(finestra.grab());
  }
}
BENCHMARK(BM_EventoDelPannello)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qf17

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
