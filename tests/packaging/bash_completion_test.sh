#!/usr/bin/env bash
# The bash completion of tolmar-cli in bash itself, as the bash-completion
# package loads it: commands, kinds, option values and files complete, and
# every command that --help lists is offered.
. /usr/share/bash-completion/bash_completion || { echo "FAIL: no bash-completion" >&2; exit 1; }
script=$1 cli=$2
. "$script"
set -u
. "$(dirname "$0")/common.sh"

# offers WORD...: the completions of the last word, one a line, sorted.
offers() {
  COMP_WORDS=("$cli" "$@")
  COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
  COMP_LINE="${COMP_WORDS[*]}"
  COMP_POINT=${#COMP_LINE}
  COMPREPLY=()
  _tolmar_cli 2>/dev/null
  printf '%s\n' "${COMPREPLY[@]}" | sort
}

expect() {
  local want=$1
  shift
  local got
  got=$(offers "$@" | tr '\n' ' ' | sed 's/ $//')
  [ "$got" = "$want" ] || fail "tolmar-cli $* <TAB>: '$got', not '$want'"
}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
touch boat.D50 notes.txt

# Every command of the help, and nothing else, at the first place.
listed=$("$cli" --help | sed -n 's/^  tolmar-cli \([a-z0-9-]*\).*/\1/p' | sort | tr '\n' ' ' | sed 's/ $//')
[ -n "$listed" ] || fail "no command in --help"
expect "$listed" ''
expect '--help --version' --

expect 'export export-all' ex
expect 'boat.D50' open bo
expect 'lines-xyz lines2d lines3d' export boat.D50 li
expect 'plank-xyz: plates-dxf' export boat.D50 pl
expect 'data develop drawing' print boat.D50 d
expect 'A3 A4 Letter' print boat.D50 all out.pdf --paper ''
expect 'cancel lap strip' export boat.D50 plates-dxf out.dxf --overlap ''
expect 'en fr' print boat.D50 all out.pdf --lang ''
# export-all takes the options of export.
expect '--overlap' export-all boat.D50 out --ov
# After the value of an option, the places go on.
expect 'data develop drawing' print boat.D50 --lang fr d
offers hydro boat.D50 -- | grep -qx -- --disp || fail "hydro's --disp not offered"
offers hydro boat.D50 -- | grep -qx -- --help || fail "--help not offered after a command"
echo "bash completion: $(wc -w <<<"$listed") commands, kinds, values and files"
