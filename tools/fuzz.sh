#!/bin/sh
# Runs every fuzz target for a bounded time, starting from the sample files of the installation.
# Usage: tools/fuzz.sh BUILD_DIR SECONDS
set -e
build=$1
secondi=${2:-60}
radice=$(cd "$(dirname "$0")/.." && pwd)
uscita=$radice/fuzz-out
mkdir -p "$uscita"
for bersaglio in "$build"/fuzz/fuzz_*; do
  [ -x "$bersaglio" ] || continue
  nome=$(basename "$bersaglio")
  corpus=$uscita/$nome
  mkdir -p "$corpus"
  semi=$radice/fuzz/semi/$nome
  [ -d "$semi" ] && cp -n "$semi"/* "$corpus"/ 2>/dev/null || true
  echo "== $nome: $secondi s"
  "$bersaglio" -max_total_time="$secondi" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
    "$corpus" 2>"$uscita/$nome.log" || { tail -40 "$uscita/$nome.log"; exit 1; }
  grep -E 'stat::number_of_executed_units|Done' "$uscita/$nome.log" | tail -2
done
