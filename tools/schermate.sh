#!/bin/sh
# Pictures of the desktop program's windows (main window on a sample node, bolt editor, report
# window), drawn by its Qt tests on the offscreen platform, to be looked at.
# Usage: tools/schermate.sh [BUILD_DIR] [FOLDER]
set -e
build=${1:-build}
cartella=${2:-$build/schermate}
mkdir -p "$cartella"
QT_QPA_PLATFORM=offscreen QF17_SCHERMATE=$(cd "$cartella" && pwd) "$build/tests/gui/qf17_gui_tests" >/dev/null
ls "$cartella"/*.png
