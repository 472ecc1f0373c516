#!/usr/bin/env bash
# programs_test.sh tests|checks: every program that the scripts name is on every Debian machine, or comes with a
# package that scripts/install-deps lists. A word counts as a program when a program of that name is installed
# here. "checks" are the scripts for which a build and its tests need nothing.
set -euo pipefail
cd "$(dirname "$0")/../.."

# install-deps itself names packages, which are called like their programs.
others=(scripts/check* scripts/report-pictures scripts/package scripts/try-package scripts/install-deps)
if [[ $1 == tests ]]; then
  mapfile -t scripts < <(find run test .ci scripts tests -type f \( ! -path 'tests/*' -o -name '*.sh' \) |
    grep -vxFf <(printf '%s\n' "${others[@]}"))
  mapfile -t listed < <(scripts/install-deps list)
else
  scripts=("${others[@]}")
  mapfile -t listed < <(scripts/install-deps list all)
fi

# The listed packages and what they bring along, and what no machine is without.
allowed=$(
  {
    printf 'want\t%s\n' "${listed[@]}"
    dpkg-query -W -f 'have\t${Package}\t${Essential}\t${Priority}\t${Pre-Depends}, ${Depends}\n'
  } | awk -F'\t' '
    $1 == "want" { want[$2]; next }
    $3 == "yes" || $4 == "required" { want[$2] }
    { needs[$2] = $5 }
    END {
      do {
        grown = 0
        for (package in want) {
          count = split(needs[package], parts, /[,|] */)
          needs[package] = ""
          for (i = 1; i <= count; ++i) {
            name = parts[i]
            sub(/[ :(].*/, "", name)
            if (name != "" && !(name in want)) { want[name]; grown = 1 }
          }
        }
      } while (grown)
      for (package in want) print package
    }'
)

words() { # without comments, texts, variables and the scripts' own functions
  sed -E -e 's/(^|[[:space:]])#.*//' -e 's/"([^"$]|\$[^(])*"//g' -e 's/\bfor [a-z_]+ in\b//' \
    -e 's/\$\{?[A-Za-z_]+//g' -e 's/\b[A-Za-z_]+=//g' "${scripts[@]}" |
    grep -oE '[A-Za-z][A-Za-z0-9_.+-]+' | sort -u |
    grep -vxFf <(sed -nE 's/^([a-z_]+)\(\).*/\1/p' "${scripts[@]}")
}

declare -A word_of # each path under which a package may know the program
while read -r word; do
  program=$(type -P -- "$word") || continue
  for path in "$program" "${program#/usr}" "$(realpath "$program")"; do word_of[$path]=$word; done
done < <(words)

failed=0
looked=0
while IFS=: read -r owner path; do
  path=${path##* }
  word=${word_of[$path]}
  looked=$((looked + 1))
  grep -qxF -- "$owner" <<<"$allowed" && continue
  echo "$word comes with $owner, which scripts/install-deps does not list. Named in:"
  grep -lw -- "$word" "${scripts[@]}"
  failed=1
done < <(dpkg-query -S "${!word_of[@]}" 2>/dev/null | grep -v '^diversion')

[[ $looked -ge 10 ]] || { echo "only $looked programs found: the test sees nothing"; exit 1; }
echo "$looked programs looked at"
exit $failed
