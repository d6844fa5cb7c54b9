#!/usr/bin/env bash
# The desktop entry passes desktop-file-validate, names and describes the
# program in English and French, and claims the hull file type; that type,
# compiled by shared-mime-info, takes *.D50 and *.D51 in any case, and the
# desktop database then offers Tolmar for it.
set -euo pipefail
. "$(dirname "$0")/common.sh"
desktop=$1 mime=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

desktop-file-validate "$desktop" >"$scratch/validate.log" 2>&1 ||
  { cat "$scratch/validate.log"; fail "desktop-file-validate"; }
cat "$scratch/validate.log"
! grep -q 'error:' "$scratch/validate.log" || fail "desktop-file-validate reports errors"

for key in 'Name' 'Name\[fr\]' 'GenericName' 'GenericName\[fr\]' 'Comment' 'Comment\[fr\]'; do
  grep -q "^$key=." "$desktop" || fail "no $key in $desktop"
done
[ "$(grep '^Comment=' "$desktop")" != "$(grep '^Comment\[fr\]=' "$desktop" | sed 's/\[fr\]//')" ] ||
  fail "the French comment is the English one"
grep -qx 'Categories=Graphics;Engineering;' "$desktop" || fail "categories"
grep -qx 'Exec=tolmar %f' "$desktop" || fail "Exec does not take one file"
grep -qx 'Icon=tolmar' "$desktop" || fail "Icon"

type=$(sed -n 's/.*<mime-type type="\([^"]*\)".*/\1/p' "$mime")
[ "$type" = application/x-tolmar-hull ] || fail "mime type '$type'"
grep -qx "MimeType=$type;" "$desktop" || fail "the entry does not claim $type"

mkdir -p "$scratch/mime/packages" "$scratch/applications"
cp "$mime" "$scratch/mime/packages/tolmar.xml"
# In the data folders searched, so that only real complaints are printed.
XDG_DATA_HOME=$scratch update-mime-database "$scratch/mime" 2>"$scratch/mime.log" ||
  { cat "$scratch/mime.log"; fail "update-mime-database"; }
[ ! -s "$scratch/mime.log" ] || { cat "$scratch/mime.log"; fail "update-mime-database complains"; }
for ext in d50 d51; do
  # No ":cs" flag: the glob holds for HULL.D50 and hull.d50 alike.
  grep -qx "[0-9]*:$type:\*\.$ext" "$scratch/mime/globs2" ||
    fail "*.$ext is not a $type glob: $(grep "$type" "$scratch/mime/globs2")"
done
grep -q "^$type text/plain$" "$scratch/mime/subclasses" || fail "not a kind of text/plain"

cp "$desktop" "$scratch/applications/"
XDG_DATA_HOME=$scratch update-desktop-database "$scratch/applications"
grep -qx "$type=tolmar.desktop;" "$scratch/applications/mimeinfo.cache" ||
  fail "the desktop database does not offer tolmar for $type"
echo "desktop entry valid; $type for *.D50 and *.D51, opened by tolmar.desktop"
