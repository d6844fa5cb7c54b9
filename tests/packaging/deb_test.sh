#!/usr/bin/env bash
# The Debian package as `make package` makes it, from what is built: its
# control fields, lintian with no error, unpacked by dpkg -x into a scratch
# root that holds every installed file, and the programs run from there.
set -euo pipefail
. "$(dirname "$0")/common.sh"
build=$1 version=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cpack -G DEB -B "$scratch/out" --config "$build/CPackConfig.cmake" >"$scratch/cpack.log" 2>&1 ||
  { cat "$scratch/cpack.log"; fail "cpack"; }
deb=$scratch/out/tolmar_${version}_$(dpkg --print-architecture).deb
[ -f "$deb" ] || { ls "$scratch/out"; fail "no $(basename "$deb")"; }

field() { dpkg-deb -f "$deb" "$1"; }
[ "$(field Package)" = tolmar ] || fail "Package: $(field Package)"
[ "$(field Version)" = "$version" ] || fail "Version: $(field Version)"
depends=$(field Depends)
for lib in libqt6widgets6 libqt6printsupport6 libqt6svg6 libqt6gui6 libstdc++6 libc6; do
  grep -q "\b$lib\b" <<<"$depends" || fail "Depends lacks $lib: $depends"
done
! grep -q -- '-dev\b' <<<"$depends" || fail "Depends names a -dev package: $depends"
grep -q '<.*@.*>' <<<"$(field Maintainer)" || fail "Maintainer: $(field Maintainer)"
grep -q 'lap-strake' <<<"$(field Description)" || fail "Description: $(field Description)"

# lintian's errors fail the test; its warnings are shown.
lintian --tag-display-limit 0 "$deb" >"$scratch/lintian.log" 2>&1 || true
grep -v '^running with root privileges' "$scratch/lintian.log" || true
! grep -q '^E:' "$scratch/lintian.log" || fail "lintian reports errors"

dpkg -x "$deb" "$scratch/root"
expect_tree "$scratch/root/usr"
run_installed "$scratch/root/usr" "$version" "$scratch"
echo "package: $(basename "$deb"), $(stat -c %s "$deb") bytes; Depends: $depends"
