#!/usr/bin/env bash
# programs_test.sh tests|checks [ROOT]: every program that the scripts under ROOT call comes with a package that
# scripts/install-deps lists, or is on every Debian machine. programs.txt says which package brings which program;
# nothing is asked of this machine, which may have more or less than another. "checks" are the scripts for which
# a build and its tests need nothing.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
cd "${2:-$here/../..}"

# install-deps itself names packages, which are called like their programs.
others=(scripts/check* scripts/report-pictures scripts/package scripts/try-package scripts/coverage scripts/install-deps)
if [[ $1 == tests ]]; then
  mapfile -t scripts < <(find run test .ci scripts tests -type f \( ! -path 'tests/*' -o -name '*.sh' \) |
    grep -vxFf <(printf '%s\n' "${others[@]}" tests/scripts/programs_sabotage_test.sh))
  mapfile -t listed < <(scripts/install-deps list)
else
  scripts=("${others[@]}")
  mapfile -t listed < <(scripts/install-deps list all)
fi

# Every word that is no part of a path.
words() { sed -E 's/(^|[[:space:]])#.*//' "${scripts[@]}" | grep -oP '(?<![\w./-])[A-Za-z][\w.+-]+(?![\w/])' | sort -u; }

# What stands where a command may stand: texts, variables and redirections are taken out, then lines end wherever
# a command can begin. What is no small word, or belongs to the shell or to the scripts themselves, is no program.
commands_of() {
  sed -E 's/(^|[[:space:]])#.*//' "$1" | tr '\n' '\001' |
    sed -E -e 's/\\\x01/ /g' -e "s/\"([^\"\$\x01]|\\\$[^(\x01])*\"|\\\$?'[^']*'/_/g" -e 's/[a-z_]+\+?=\([^()]*\)/_/g' \
      -e 's/\$\(\(([^()]|\([^()]*\))*\)\)/_/g' | tr '\001' '\n' |
    sed -E -e 's/\$\{[^}]*\}/_/g' -e 's/\$[A-Za-z_0-9@*#?!]+/_/g' \
      -e 's/[0-9]?[<>]+&?[0-9-]?[[:space:]]*[^[:space:];|&()<>]*//g' \
      -e 's/\$\(|[;|&({}!"`]|\]\]|\b(then|do|else|if|elif|while|until|exec|nice|setsid|timeout [0-9]+)\b/\n/g' \
      -e 's/\)/ _/g' |
    sed -nE -e 's/^[[:space:]]*//' -e 's/^([A-Za-z_]+=[^[:space:]]*[[:space:]]+)+//' \
      -e 's/^([a-z][a-z0-9.-]+)([[:space:]].*|$)/\1/p'
}
commands() {
  for script in "${scripts[@]}"; do commands_of "$script"; done | sort -u |
    grep -vxFf <(compgen -b; compgen -k) |
    grep -vxFf <(sed -nE 's/^([a-z_]+)\(\).*/\1/p' "${scripts[@]}")
}

declare -A package_of
while read -r program package; do package_of[$program]=$package; done < <(grep -vE '^#|^$' "$here/programs.txt")

failed=0
looked=0
while read -r word; do
  package=${package_of[$word]:-}
  [[ -n $package ]] || continue
  looked=$((looked + 1))
  [[ $package == - ]] && continue
  printf '%s\n' "${listed[@]}" | grep -qxF -- "$package" && continue
  echo "$word comes with $package, which scripts/install-deps does not list. Named in:"
  grep -lw -- "$word" "${scripts[@]}"
  failed=1
done < <(words)
while read -r command; do
  [[ -n ${package_of[$command]:-} ]] && continue
  echo "$command is called, but tests/scripts/programs.txt does not say which package brings it. Named in:"
  grep -lw -- "$command" "${scripts[@]}"
  failed=1
done < <(commands)

echo "$looked programs looked at"
exit $failed
