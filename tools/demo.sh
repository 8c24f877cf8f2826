#!/bin/sh
# The main job on the shipped sample installation, as an engineer would run it.
# Usage: tools/demo.sh BUILD_DIR
set -e
build=${1:-build}
radice=$(cd "$build/installazione" && pwd)
qf17=$radice/progra/qf17
lavoro=$radice/lavori/esempi

echo "== qf17 nodo ANGUPN.qf7"
"$qf17" nodo ANGUPN.qf7
echo
echo "== qf17 converti VECCHIO2.qf7 (old positional file) -> VECCHIO2-convertito.qf7"
"$qf17" converti "$lavoro/VECCHIO2.qf7" -o "$lavoro/VECCHIO2-convertito.qf7"
head -12 "$lavoro/VECCHIO2-convertito.qf7" | tr -d '\r'
echo
# Exit status 1 means "not verified": the report says where.
verifica() {
  echo "== qf17 verifica $1.qf7 --metodo $2"
  esito=0
  "$qf17" verifica "$1.qf7" --metodo "$2" || esito=$?
  case $esito in
    0) echo "   nodo verificato" ;;
    1) echo "   nodo NON verificato" ;;
    3) echo "   verificato dalla relazione, ma con AVVERTENZE da leggere in fondo" ;;
    *) echo "   verifica non eseguita (esito $esito)"; exit "$esito" ;;
  esac
}
for nodo in ANGUPN DOPPIO HEASALD MOLTESOLL; do
  verifica "$nodo" TA
done
# The same joints by limit states.
for nodo in ANGUPN HEASALD; do
  verifica "$nodo" SLU
done
echo
echo "== Relazione di ANGUPN"
tr -d '\r' < "$lavoro/RelTA_QF17_ANGUPN.txt"
echo
echo "== Relazione SLU di HEASALD, first load set"
tr -d '\r' < "$lavoro/RelSLU_QF17_HEASALD.txt" | awk '/^Combinazione/ { n++ } n == 1'
echo
# The executive sheet: the DIS file the family's viewer opens, and a preview for a browser.
for formato in dis svg; do
  echo "== qf17 disegna DOPPIO.qf7 --formato $formato"
  "$qf17" disegna DOPPIO.qf7 --formato "$formato"
done
echo "   $(sed -n 5p "$lavoro/DOPPIO.dis" | tr -d '\r ') coordinates; head of the DIS file:"
head -4 "$lavoro/DOPPIO.dis" | tr -d '\r'
