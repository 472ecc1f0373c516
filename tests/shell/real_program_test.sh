#!/usr/bin/env bash
# real_program_test.sh PROGRAM PROJECT: starts the real program on a screen of its own with a project, runs it
# by key and opens the results table, which only exists when there is a result.
set -euo pipefail

if [[ -z "${ON_OWN_SCREEN:-}" ]]; then
  exec env ON_OWN_SCREEN=1 xvfb-run -a -s "-screen 0 1366x768x24" "$0" "$@"
fi
program=$1 project=$2
home=$(mktemp -d)
trap 'kill "$pid" 2>/dev/null || true; rm -rf "$home"' EXIT
env HOME="$home" XDG_CONFIG_HOME="$home" XDG_DATA_HOME="$home" XDG_RUNTIME_DIR="$home" QT_QPA_PLATFORM=xcb \
  "$program" "$project" &
pid=$!

await() {  # name of a window
  for _ in $(seq 100); do
    window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -1) && [[ -n $window ]] && return 0
    kill -0 "$pid" || { echo "the program ended" >&2; return 1; }
    sleep 0.1
  done
  echo "no window called $1" >&2
  return 1
}

await "VELMARpro - Calcolo previsionale elementi - $(basename "$project" .drav)"
xdotool windowfocus --sync "$window"
xdotool key F5
xdotool key F6
await "Risultati calcolo"
