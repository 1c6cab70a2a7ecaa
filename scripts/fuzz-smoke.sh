#!/usr/bin/env bash
# Runs every fuzz program in BUILD_DIR for SECONDS each, seeded from fuzz/corpus/NAME when it
# exists. Usage: fuzz-smoke.sh BUILD_DIR [SECONDS]
set -euo pipefail
build=$1
seconds=${2:-20}
root="$(cd "$(dirname "$0")/.." && pwd)"
found=0
for program in "$build"/fuzz/fuzz_*; do
  [ -x "$program" ] || continue
  found=1
  name=$(basename "$program")
  work=$(mktemp -d)
  seeds=("$work")
  [ -d "$root/fuzz/corpus/$name" ] && seeds+=("$root/fuzz/corpus/$name")
  echo "== $name: ${seconds}s"
  "$program" -max_total_time="$seconds" -max_len=65536 -timeout=10 -rss_limit_mb=2048 \
    -print_final_stats=0 "${seeds[@]}" 2>"$work/log" || { tail -n 60 "$work/log"; exit 1; }
  tail -n 2 "$work/log"
  rm -rf "$work"
done
[ "$found" -eq 1 ] || { echo "no fuzz programs in $build/fuzz"; exit 1; }
echo "fuzz smoke: every target ran clean"
