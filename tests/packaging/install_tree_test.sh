#!/usr/bin/env bash
# `cmake --install` into a scratch prefix: both programs in bin/, the manual
# pages, desktop entry, icons, hull file type, completion and documents in
# their standard places, and the programs run from there.
set -euo pipefail
. "$(dirname "$0")/common.sh"
build=$1 version=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cmake --install "$build" --prefix "$scratch/prefix" >"$scratch/install.log" 2>&1 ||
  { cat "$scratch/install.log"; fail "cmake --install"; }
expect_tree "$scratch/prefix"
run_installed "$scratch/prefix" "$version" "$scratch"
echo "install tree: ${#installed_files[@]} files under the prefix, programs run"
