# Shared by the packaging tests: failing with a reason, and the files that an
# install puts under its prefix, all of them and nothing else.
fail() {
  echo "FAIL: $*" >&2
  exit 1
}

installed_files=(
  bin/tolmar
  bin/tolmar-cli
  share/applications/tolmar.desktop
  share/bash-completion/completions/tolmar-cli
  share/doc/tolmar/changelog.gz
  share/doc/tolmar/copyright
  share/icons/hicolor/256x256/apps/tolmar.png
  share/icons/hicolor/256x256/mimetypes/application-x-tolmar-hull.png
  share/icons/hicolor/scalable/apps/tolmar.svg
  share/icons/hicolor/scalable/mimetypes/application-x-tolmar-hull.svg
  share/man/man1/tolmar-cli.1.gz
  share/man/man1/tolmar.1.gz
  share/mime/packages/tolmar.xml
)

# expect_tree PREFIX: every file above and no other.
expect_tree() {
  local prefix=$1 f
  for f in "${installed_files[@]}"; do
    [ -f "$prefix/$f" ] || fail "$prefix/$f is missing"
  done
  local extra
  extra=$(cd "$prefix" && find . -type f -o -type l | sed 's|^\./||' | sort |
    grep -vxF -f <(printf '%s\n' "${installed_files[@]}") || true)
  [ -z "$extra" ] || fail "files nobody asked for under $prefix: $extra"
  [ -x "$prefix/bin/tolmar" ] && [ -x "$prefix/bin/tolmar-cli" ] || fail "programs not executable"
}

# png_size FILE: "WIDTH HEIGHT" from the PNG header.
png_size() {
  local b
  b=($(od -An -tu1 -j16 -N8 "$1"))
  echo "$(((b[0] << 24) | (b[1] << 16) | (b[2] << 8) | b[3])) $(((b[4] << 24) | (b[5] << 16) | (b[6] << 8) | b[7]))"
}

# run_installed PREFIX VERSION: the programs of an install tree answer with
# the build's version, and tolmar-cli works from there: a new hull, dumped.
run_installed() {
  local prefix=$1 version=$2 scratch=$3
  local line
  line=$("$prefix/bin/tolmar-cli" --version | head -n1)
  [ "$line" = "tolmar-cli $version" ] || fail "tolmar-cli --version says '$line'"
  line=$("$prefix/bin/tolmar" --version | head -n1)
  [ "$line" = "tolmar $version" ] || fail "tolmar --version says '$line'"
  "$prefix/bin/tolmar-cli" new "$scratch/BOAT.D50" --set bouchain1.Text1\(0\)=7.5 >/dev/null ||
    fail "tolmar-cli new from $prefix"
  "$prefix/bin/tolmar-cli" dump "$scratch/BOAT.D50" >"$scratch/dump.json" ||
    fail "tolmar-cli dump from $prefix"
  grep -q '"nChines": 5' "$scratch/dump.json" || fail "the dump from $prefix holds no hull"
  local status=0
  "$prefix/bin/tolmar" one.D50 two.D50 2>/dev/null || status=$?
  [ "$status" = 2 ] || fail "tolmar with two files: status $status, not 2"
  [ "$(png_size "$prefix/share/icons/hicolor/256x256/apps/tolmar.png")" = "256 256" ] ||
    fail "the PNG icon is not 256 x 256"
}
