// The clean-up of the drawing before it is written as DIS: the sorted and gridded passes on a
// drawing at the tables' limits (50000 coordinates and lines, 15000 arcs and texts), against the
// plain passes, which are quadratic: several sizes of the same make show the growth, and the
// full drawing is run once.
#include <benchmark/benchmark.h>

#include <cstdint>

#include "disegno/archivio_disegno.h"
#include "disegno/formati/pulisci_disegno.h"
#include "disegno/formati/salva_dis.h"
#include "oracolo_pulizia.h"

namespace qf17 {
namespace {

const ArchivioDisegno& Disegno(std::int32_t linee) {
  static std::int32_t fatto = -1;
  static ArchivioDisegno disegno;
  if (fatto != linee) {
    prova::RiempiDisegnoPieno(disegno, linee, 17);
    fatto = linee;
  }
  return disegno;
}

template <void (*Pulisci)(ArchivioDisegno&)>
void Pulizia(benchmark::State& stato) {
  const ArchivioDisegno& origine = Disegno(static_cast<std::int32_t>(stato.range(0)));
  ArchivioDisegno copia;
  for (auto _ : stato) {
    stato.PauseTiming();
    copia = origine;
    stato.ResumeTiming();
    Pulisci(copia);
    benchmark::DoNotOptimize(copia.NumCoord);
  }
  stato.counters["coordinate"] = origine.NumCoord;
  stato.counters["linee"] = origine.NumLinee;
  stato.counters["restano"] = copia.NumLinee;
}

void PulisciVeloce(ArchivioDisegno& a) {
  PulisciDisegno(a);
}
void PulisciOracolo(ArchivioDisegno& a) {
  prova::PulisciDisegnoOracolo(a);
}

// The whole writer but the disk: extents, clean-up and the text of the file.
void Dis(benchmark::State& stato) {
  const ArchivioDisegno& origine = Disegno(static_cast<std::int32_t>(stato.range(0)));
  ArchivioDisegno copia;
  std::size_t byte = 0;
  for (auto _ : stato) {
    stato.PauseTiming();
    copia = origine;
    stato.ResumeTiming();
    const EstensioniDis e = EstensioniDisegno(copia);
    PulisciDisegno(copia);
    byte = TestoDis(copia, e, 4).size();
    benchmark::DoNotOptimize(byte);
  }
  stato.counters["byte"] = static_cast<double>(byte);
}

BENCHMARK(Pulizia<PulisciVeloce>)
    ->Name("PulisciDisegno")
    ->Arg(2000)
    ->Arg(5000)
    ->Arg(10000)
    ->Arg(50000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Pulizia<PulisciOracolo>)
    ->Name("PulisciDisegnoOracolo")
    ->Arg(2000)
    ->Arg(5000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(2);
BENCHMARK(Pulizia<PulisciOracolo>)
    ->Name("PulisciDisegnoOracolo")
    ->Arg(50000)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);
BENCHMARK(Dis)->Name("SalvaDisSenzaDisco")->Arg(50000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace qf17

BENCHMARK_MAIN();
