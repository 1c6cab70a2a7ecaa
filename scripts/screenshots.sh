#!/usr/bin/env bash
# Draws the screenshots in docs/screenshots/ again: the edit window with a sample symbol on its
# grid and each of its dialogs, painted offscreen, so no display is needed. QUORN_BUILD_DIR
# names another build directory than build/release.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
build=${QUORN_BUILD_DIR:-build/release}
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" --target ui_screenshots -j "$(nproc)" >/dev/null
QT_QPA_PLATFORM=offscreen "$build/tests/ui_screenshots" docs/screenshots
