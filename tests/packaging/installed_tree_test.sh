#!/usr/bin/env bash
# Installs what was built into a folder of its own and uses it there.
#   installed_tree_test.sh CMAKE BUILD
set -euo pipefail
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
"$1" --install "$2" --prefix "$tree/velmar pro" >/dev/null
cd "$tree/velmar pro"
export HOME=$tree/home XDG_CONFIG_HOME=$tree/home/.config
mkdir -p "$HOME"

missing=0
for file in "bin/velmar" "bin/velmarpro" "lib/velmarpro/velmar-access-reader" \
  "share/doc/velmarpro/VELMARpro - Manuale d'uso.pdf" share/doc/velmarpro/manuale/manuale.md "share/doc/velmarpro/copyright" \
  "share/doc/velmarpro/changelog.gz" "share/velmarpro/Databases/InterfMess.mdb" \
  "share/velmarpro/Templates/Formato_drav.xlsx" "share/velmarpro/Examples/parete-forato-intonacata.drav" \
  "share/applications/velmarpro.desktop" "share/mime/packages/velmarpro.xml" \
  "share/metainfo/velmarpro.metainfo.xml" "share/icons/hicolor/16x16/apps/velmarpro.png" \
  "share/icons/hicolor/512x512/apps/velmarpro.png" "share/icons/hicolor/scalable/apps/velmarpro.svg" \
  "share/icons/hicolor/48x48/mimetypes/application-x-velmarpro-project.png" "share/man/man1/velmar.1.gz" \
  "share/man/man1/velmarpro.1.gz" "share/man/it/man1/velmar.1.gz" "share/man/it/man1/velmarpro.1.gz" \
  "share/bash-completion/completions/velmar" "share/zsh/vendor-completions/_velmar" \
  "share/fish/vendor_completions.d/velmar.fish"; do
  [[ -s $file ]] || { echo "not installed: $file"; missing=1; }
done
[[ $missing -eq 0 ]]

said=$(bin/velmar run share/velmarpro/Examples/parete-forato-intonacata.drav)
grep -q 'Rw *44' <<<"$said" || { echo "$said"; exit 1; }
[[ -f $HOME/Documents/VELMARpro/Databases/Database/Database.mdb ]] || { echo "no data folder was made"; exit 1; }

# Every command and option that the program tells stands in the completions and in the manual page.
page=$(zcat share/man/it/man1/velmar.1.gz | sed 's/\\-/-/g')
commands_of() { bin/velmar "$@" --help | sed -n '/^Comandi:/,/^$/s/^  \([a-z]*\) .*/\1/p'; }
check_command() {  # COMMAND...
  grep -qx ".SS velmar $*" <<<"$page" || { echo "no manual page for: $*"; exit 1; }
  local option section
  section=$(sed -n "/^\.SS velmar $*\$/,/^\.S[SH] /p" <<<"$page")
  for option in $(bin/velmar "$@" --help | grep -oP '^  (-[a-z],)?\K--[a-z-]+'); do
    [[ $option == --help ]] || grep -q -- "$option" <<<"$section" ||
      { echo "the manual page does not know: $* $option"; exit 1; }
    for file in bash-completion/completions/velmar zsh/vendor-completions/_velmar; do
      grep -q -- "$option" "share/$file" || { echo "$file does not know: $* $option"; exit 1; }
    done
    grep -q "from ${*: -1}'.* -l ${option#--} " share/fish/vendor_completions.d/velmar.fish ||
      { echo "fish does not know: $* $option"; exit 1; }
  done
}
for command in $(commands_of); do
  parts=$(commands_of "$command")
  [[ -n $parts ]] || check_command "$command"
  for part in $parts; do check_command "$command" "$part"; done
done
