#!/usr/bin/env bash
# Writes the description of the exported interface, which the abi test compares every build with, for a
# change of the interface that is wanted: scripts/record-abi.sh (after a build of the dev preset).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

abidw --headers-dir include --drop-private-types --drop-undefined-syms --exported-interfaces-only \
  --no-corpus-path --no-comp-dir-path --no-elf-needed --no-show-locs --no-write-default-sizes \
  --out-file tests/header/tarvex.abi build-dev/src/libtarvex.so
sed -i "s|path='$PWD/|path='|" tests/header/tarvex.abi
