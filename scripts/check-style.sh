#!/usr/bin/env bash
# Formatting and the few rules of the house that a program can test. Prints what it objects to.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
status=0

mapfile -t sources < <(git ls-files '*.cpp' '*.h' '*.c')
if ! clang-format --dry-run --Werror "${sources[@]}"; then
  echo "check-style: run clang-format -i on the files above" >&2
  status=1
fi
if LC_ALL=C grep -nP '[^\x00-\x7F]' "${sources[@]}"; then
  echo "check-style: sources are ASCII" >&2
  status=1
fi
while read -r lines file; do
  if [[ $file != total && $lines -gt 500 ]]; then
    echo "check-style: $file has $lines lines, more than 500" >&2
    status=1
  fi
done < <(git ls-files 'src/*.cpp' 'src/*.h' 'tests/*.cpp' 'tests/*.h' 'examples/*.cpp' 'examples/*.h' | xargs wc -l)
# Only src/platform knows the window system.
if git grep -nE '#include <(X11|GL)/' -- src ':!src/platform'; then
  echo "check-style: X11 and GLX belong into src/platform" >&2
  status=1
fi
exit "$status"
