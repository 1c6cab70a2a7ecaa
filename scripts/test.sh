#!/usr/bin/env bash
# Installs what is missing, builds everything and runs every test: a plain build with
# warnings as errors, then the same suite under AddressSanitizer and UndefinedBehaviorSanitizer,
# then a short run of every fuzz target.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh

jobs=$(nproc)
cmake -S . -B build/release -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUORN_WERROR=ON -DQUORN_BENCH=ON
cmake --build build/release -j "$jobs"
ctest --test-dir build/release --output-on-failure -j "$jobs"

cmake -S . -B build/sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DQUORN_WERROR=ON \
  -DQUORN_SANITIZE=ON -DCMAKE_CXX_COMPILER=clang++
cmake --build build/sanitize -j "$jobs"
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
  ctest --test-dir build/sanitize --output-on-failure -j "$jobs"

if [ -d fuzz ] && ls fuzz/*.cpp >/dev/null 2>&1; then
  cmake -S . -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DQUORN_FUZZ=ON \
    -DQUORN_TESTS=OFF -DCMAKE_CXX_COMPILER=clang++
  cmake --build build/fuzz -j "$jobs"
  scripts/fuzz-smoke.sh build/fuzz 20
fi
