#!/usr/bin/env bash
# manual_test.sh MANUAL.pdf MANUAL.md: every heading stands in the set manual, in order, and no word of the text
# is missing.
set -euo pipefail
pdf=$1 text=$2

words() { grep -oE '[[:alpha:]]{4,}' | sort -u; }

export LC_ALL=C.UTF-8
set_text=$(pdftotext -layout "$pdf" -)
headings=$(sed -nE 's/^##+ //p' "$text" | sed -E 's/`//g')
[[ $(wc -l <<<"$headings") -ge 8 ]] || { echo "no headings in $text"; exit 1; }
awk 'NR == FNR { wanted[++count] = $0; next }
     { gsub(/^[ \t\f]+|[ \t]+$/, "") }
     next_one < count && $0 == wanted[next_one + 1] { ++next_one }
     END { if (next_one < count) { print "heading missing or out of order: " wanted[next_one + 1]; exit 1 } }' \
  <(printf '%s\n' "$headings") <(printf '%s\n' "$set_text")

missing=$(comm -23 <(sed -E 's/\]\([^)]*\)//g' "$text" | words) <(words <<<"$set_text"))
[[ -z $missing ]] || { echo "words missing:"; echo "$missing"; exit 1; }
