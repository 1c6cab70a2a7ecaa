#!/usr/bin/env bash
# Builds the editor when needed and runs it on the bundled sample working directory.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build/release --target symbols -j "$(nproc)" >/dev/null
exec build/release/bin/symbols config --workdir sample "$@"
