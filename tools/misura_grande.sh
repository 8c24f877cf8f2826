#!/bin/sh
# Times whole runs of the largest node the model allows (four groups of 2000 bolts, 200 load
# sets) by both methods, in an optimised build of its own, three runs each: wall, user and
# system seconds and the peak memory. The machine should be otherwise idle.
# Usage: tools/misura_grande.sh [BUILD_FOLDER]
set -eu
cd "$(dirname "$0")/.."
BUILD=${1:-build-release}
cmake -S . -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$BUILD" --target qf17 installazione >/dev/null
radice=$(pwd)/$BUILD/installazione
lavoro=$radice/lavori/esempi
python3 tools/genera_nodo_grande.py "$lavoro/GRANDE.qf7"
programma=$(pwd)/$BUILD/cli/qf17
cd "$lavoro"
for metodo in TA SLU; do
  for prova in 1 2 3; do
    # The node fails on purpose (exit 1) and warns a million times: both are part of the run.
    /usr/bin/time -f "$metodo run $prova: %e s wall, %U s user, %S s sys, %M KB" \
      "$programma" verifica GRANDE.qf7 --metodo "$metodo" --root "$radice" \
      >/dev/null 2>"$lavoro/misura.err" || true
    tail -n 1 "$lavoro/misura.err"
  done
  ls -l "Rel${metodo}_QF17_GRANDE.txt" | awk '{print "report: " $5 " bytes"}'
done
rm -f "$lavoro/misura.err"
