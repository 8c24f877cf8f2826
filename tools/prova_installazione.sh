#!/bin/sh
# cmake --install into a temporary prefix, then the installed programs used through their links
# on the path: the root is found from the program's real folder.
# Usage: tools/prova_installazione.sh BUILD_DIR
set -e
prefisso=$(mktemp -d)
trap 'rm -rf "$prefisso"' EXIT
cmake --install "$1" --prefix "$prefisso" >/dev/null
cd "$prefisso"
test "$(bin/qf17 nodo ANGUPN.qf7 | head -1)" = "Nodo: ANGUPN"
test "$(cat lib/qf17/impostazioni/dirlav | tr -d '\r')" = "$prefisso/lib/qf17/lavori"
if [ -e lib/qf17/progra/qf17-gui ]; then
  grep -q '^Exec=qf17-gui %f$' share/applications/qf17.desktop
  grep -q 'glob pattern="\*.qf7"' share/mime/packages/qf17-nodo.xml
  test -L bin/qf17-gui
fi
