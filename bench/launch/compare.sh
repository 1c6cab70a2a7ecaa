#!/usr/bin/env bash
# Start-up of the edit window against a plain Qt window with the same widgets.
#
#   bench/launch/compare.sh [RUNS] [BUILD_DIR]     (defaults: 10 runs, build/bench)
#
# The programs run offscreen (QT_QPA_PLATFORM=offscreen), the editor in a copy of the sample
# working directory, and each ends at its drawing widget's first paint, printing the
# wall-clock time in microseconds ("first-paint N"; the editor does so when
# QUORN_EXIT_AFTER_FIRST_PAINT is set). A run's launch time is that time less the time just
# before the program was started; its CPU time (user and system, every thread, as the shell's
# `times` reports for its children, to the millisecond) and peak memory (maximum resident set
# size, from /usr/bin/time) cover the whole run.
#
# The editor shows its start-up window for one second between its two start-up stages: a
# one-shot timer of 1000 ms, armed once the first stage has run and the edit window has been
# built, starts the second stage, which shows the edit window. Its launch time is therefore
# taken as (first paint - start) - 1000 ms: the first stage and the building of the window
# before the timer is armed, plus the second stage and the first paint after it fires. What
# is left in it of the wait is the timer's lateness: about a millisecond, a few on a busy
# machine, and the same in the plain window's like-for-like run below, which waits on the same
# kind of timer. The start-up window's painting falls inside the wait, and with it the
# one-time work of the first window on the screen (loading fonts, polishing the style), so
# the plain window is measured twice: showing the same kind of start-up window for one
# second first (--startup-window, also less 1000 ms), which is the like-for-like yardstick,
# and alone. CPU time needs no subtraction, since the wait is idle.
#
# Each program runs once first to warm the file cache; then they take turns, so a change in
# the machine's load hits all alike. Prints medians and the editor's ratios.
set -euo pipefail

runs=${1:-10}
build=${2:-build/bench}
root=$(cd "$(dirname "$0")/../.." && pwd)
case $build in /*) ;; *) build=$root/$build ;; esac
editor=$build/bin/symbols-editor
bare=$build/bench/bare_window
for program in "$editor" "$bare"; do
  [[ -x $program ]] || { echo "not built: $program (configure with -DQUORN_BENCH=ON)" >&2; exit 2; }
done
[[ -x /usr/bin/time ]] || { echo "needs /usr/bin/time (Debian package: time)" >&2; exit 2; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp -R "$root/sample" "$work/sample"

export QT_QPA_PLATFORM=offscreen QUORN_EXIT_AFTER_FIRST_PAINT=1
unset VBRunDirectory

# One run: RESULTS-FILE WAIT-MICROSECONDS DIRECTORY PROGRAM [ARGUMENTS]; appends
# "launch-microseconds cpu-seconds peak-kilobytes" to RESULTS-FILE.
run_once() {
  local results=$1 wait_us=$2 directory=$3 start painted
  shift 3
  start=${EPOCHREALTIME/./}
  (
    cd "$directory" && /usr/bin/time -f '%M' -o "$work/rss" "$@" >"$work/out" 2>/dev/null
    times >"$work/cpu"
  )
  painted=$(sed -n 's/^first-paint \([0-9]*\)$/\1/p' "$work/out")
  [[ -n $painted ]] || { echo "$1 ended without painting" >&2; exit 1; }
  # `times` prints the children's user and system time as 0m0.031s 0m0.012s.
  tail -n 1 "$work/cpu" | sed 's/[0-9]*m\([0-9.]*\)s/\1/g' |
    awk -v us="$((painted - start - wait_us))" -v kb="$(tail -n 1 "$work/rss")" \
      '{ print us, $1 + $2, kb }' >>"$results"
}

all() {
  run_once "$work/editor" 1000000 "$work/sample" "$editor"
  run_once "$work/paced" 1000000 "$work" "$bare" --startup-window
  run_once "$work/bare" 0 "$work" "$bare"
}

# Column COLUMN of FILE, median.
median() {
  cut -d' ' -f"$2" "$1" | sort -g |
    awk '{ v[NR] = $1 } END { print (NR % 2) ? v[(NR + 1) / 2] : (v[NR / 2] + v[NR / 2 + 1]) / 2 }'
}

all
rm -f "$work/editor" "$work/paced" "$work/bare"
for ((i = 0; i < runs; i++)); do all; done

row() { echo "$(median "$work/$1" 1) $(median "$work/$1" 2) $(median "$work/$1" 3)"; }
awk -v runs="$runs" -v e="$(row editor)" -v p="$(row paced)" -v b="$(row bare)" 'BEGIN {
  split(e, E); split(p, P); split(b, B)
  printf "medians of %d runs                        launch      CPU time   peak memory\n", runs
  printf "editor (less its 1000 ms wait)          %7.1f ms  %7.0f ms  %7.1f MB\n", E[1] / 1000, E[2] * 1000, E[3] / 1024
  printf "plain window after 1 s start-up window  %7.1f ms  %7.0f ms  %7.1f MB\n", P[1] / 1000, P[2] * 1000, P[3] / 1024
  printf "plain window alone                      %7.1f ms  %7.0f ms  %7.1f MB\n", B[1] / 1000, B[2] * 1000, B[3] / 1024
  printf "editor / plain with start-up window     %7.2f     %7.2f     %7.2f\n", E[1] / P[1], E[2] / P[2], E[3] / P[3]
  printf "editor / plain alone                    %7.2f     %7.2f     %7.2f\n", E[1] / B[1], E[2] / B[2], E[3] / B[3]
}'
