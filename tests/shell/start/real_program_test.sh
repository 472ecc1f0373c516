#!/usr/bin/env bash
# real_program_test.sh WINDOW COMMAND PROJECT: starts the real program WINDOW on a screen of its own with a
# project, runs it by key, opens the results table by key, copies by key what the table shows, and compares the
# rating and the 21 levels with what the program COMMAND calculates from the same file.
set -euo pipefail

if [[ -z "${ON_OWN_SCREEN:-}" ]]; then
  # Without -noreset the screen starts anew, and refuses the program, when a search ends before it connects.
  exec env ON_OWN_SCREEN=1 xvfb-run -a -s "-screen 0 1366x768x24 -noreset" "$0" "$@"
fi
program=$1 command=$2 project=$3
home=$(mktemp -d)
trap 'kill "$pid" 2>/dev/null || true; rm -rf "$home"' EXIT
env HOME="$home" XDG_CONFIG_HOME="$home" XDG_DATA_HOME="$home" XDG_RUNTIME_DIR="$home" QT_QPA_PLATFORM=xcb \
  "$program" "$project" &
pid=$!

readonly patience_s=120 key_every=20  # tenths of a second between two tries of the same keys

# Waits until the command "$@" succeeds; what is to be tried again meanwhile stands in `try`.
await() {
  local end=$((SECONDS + patience_s)) round=0
  until "$@"; do
    kill -0 "$pid" 2>/dev/null || { echo "the program ended" >&2; return 1; }
    ((SECONDS < end)) || { echo "in vain: $*" >&2; return 1; }
    ((round++ % key_every)) || $try
    sleep 0.1
  done
}
nothing() { :; }

window_called() { window=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -1) && [[ -n $window ]]; }
table_copied() {
  copied=$(timeout 5 xclip -selection clipboard -o 2>/dev/null) && grep -q '^Ctr \[dB\]' <<<"$copied"
}
# The table stands in the window and takes the focus with F6.
run_show_and_copy() { xdotool windowfocus "$main" key F5 key F6 key ctrl+c || true; }

try=nothing
await window_called "VELMARpro - Calcolo previsionale elementi - $(basename "$project" .drav)"
main=$window
# What the window manager shows is the title as it stands, without another name of the product behind it.
title=$(xdotool getwindowname "$main")
if [[ $title != "VELMARpro - Calcolo previsionale elementi - $(basename "$project" .drav)" ]]; then
  echo "the title reads: $title" >&2
  exit 1
fi
try=run_show_and_copy
await table_copied

# What the table shows: whole ratings, levels with one decimal.
shown=$(cut -f2 <<<"$copied" | sed -n '2,23p')
json=$("$command" run "$project" --json --data "$home/Documents/VELMARpro")
expected=$({ grep -oP '"spectrum":\[\K[^]]*' <<<"$json" | tr ',' '\n'; grep -oP '"Rw":\K[-0-9.]+' <<<"$json" | head -1; } |
  LC_ALL=C awk '{ printf "%.1f\n", $1 }' | tr . ,)
if [[ $shown != "$expected" ]]; then
  echo "on the screen:" $shown >&2
  echo "calculated:   " $expected >&2
  exit 1
fi
echo "Rw on the screen: $(tail -1 <<<"$shown") dB"
