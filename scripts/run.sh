#!/usr/bin/env bash
# Builds the editor when needed and runs it on the bundled sample working directory. Without
# a display it shows start-up and the sample file through a script, draws the sample symbols
# into a PDF, and says how to start the window under a virtual display.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build/release --target symbols -j "$(nproc)" >/dev/null
if [ -x /usr/lib/x86_64-linux-gnu/qt6/bin/moc ] || [ -x /usr/lib/qt6/libexec/moc ]; then
  cmake --build build/release --target symbols-editor -j "$(nproc)" >/dev/null
fi
bin=build/release/bin
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] && [ -x "$bin/symbols-editor" ]; then
  cd sample
  exec env VBRunDirectory="$PWD" "../$bin/symbols-editor" "$@"
fi
echo "No display: the editor runs its demo script on sample/ instead of opening its window."
echo
"$bin/symbols" replay sample/demo.replay --workdir sample
if "$bin/symbols" render sample/EXAMPLE.SYM --workdir sample --out build/sample-symbols.pdf \
    2>/dev/null; then
  echo
  echo "The sample symbols are drawn in build/sample-symbols.pdf."
fi
echo
echo "To use the window without a screen, start it under a virtual display:"
echo "  apt-get install -y xvfb && xvfb-run -a scripts/run.sh"
echo "or under a VNC server (for example: x11vnc -create) and connect with a VNC viewer."
