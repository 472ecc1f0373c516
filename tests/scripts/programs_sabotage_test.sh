#!/usr/bin/env bash
# Shows that programs_test.sh is not blind: the scripts as they are pass, and each sabotage of a copy is caught.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT
failed=0

# expect TEXT KIND: the check of the copy, which begins anew behind it, complains with TEXT; without TEXT it passes.
expect() {
  local said
  if said=$("$here/programs_test.sh" "$2" "$copy"); then
    [[ -z $1 ]] || { echo "not caught: $1"; failed=1; }
  elif [[ -z $1 || $said != *"$1"* ]]; then
    echo "instead of \"$1\": $said"
    failed=1
  fi
  begin
}
begin() {
  rm -rf "$copy"
  mkdir -p "$copy/tests"
  (cd "$here/../.." && cp -r run test .ci scripts "$copy" && cp -r tests/scripts "$copy/tests")
}

begin
expect "" tests
expect "" checks
for line in 'jq .name file' '  names=$(jq .name file)' 'cat file | jq .name' 'if ! jq -e .name file; then' 'timeout 5 jq .'; do
  echo "$line" >>"$copy/run"
  expect "jq is called, but" tests
done
echo '# jq would do' >>"$copy/run"
echo 'echo "jq would do"' >>"$copy/run"
expect "" tests
sed -i 's/ xclip / /' "$copy/scripts/install-deps"
echo 'xclip -o' >>"$copy/run"
expect "xclip comes with xclip, which" tests
sed -i 's/ clang-tidy)/)/' "$copy/scripts/install-deps"
expect "clang-tidy comes with clang-tidy, which" checks
sed -i 's/libreoffice-writer-nogui//' "$copy/scripts/install-deps"
expect "soffice comes with libreoffice-writer-nogui, which" checks
exit $failed
