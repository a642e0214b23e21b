#!/usr/bin/env bash
# Tries thoroughly what the library promises and prints a table: each promise with its result, its
# figures and the seconds that it took. About two hours in all; logs are in build-stress/.
#
#   ./stress.sh                      all promises
#   ./stress.sh PROMISE..            these
#   ./stress.sh --brief [PROMISE..]  the same as briefly as each build does it, to try the script
set -uo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")" || exit 1

readonly promises=(sanitizers fuzz libfuzzer arguments memory cycles threads soak loss load
  valgrind exports coverage static)
readonly logs=build-stress
# No cache of compiled shaders on the disk: each run is like the first.
export MESA_SHADER_CACHE_DISABLE=true
export TARVEX_STRESS=1
fuzz_seconds=600
if [[ ${1-} == --brief ]]; then
  unset TARVEX_STRESS
  fuzz_seconds=20
  shift
fi

figure() { echo "figure: $1: $2"; }
# The tests are what takes memory in the end, and hangs.
limited() { timeout -k 10 7200 scripts/with-xvfb.sh "$@"; }
build() { # PRESET [TARGET]
  cmake --preset "$1"
  cmake --build --preset "$1" ${2:+--target "$2"}
}
# Without a sanitizer, so that time and memory are the library's own. Tests print their figures.
dev() { # PROGRAM FILTER
  build dev "$1"
  (
    ulimit -v 8000000
    limited "build-dev/tests/$1" --gtest_filter="$2"
  )
}
suite() { # PRESET [CTEST_OPTION..]
  limited ctest --preset "$@" --no-tests=error -V
}
count_tests() { # LOG
  awk '/\[  PASSED  \]/ { for (i = 1; i < NF; ++i) if ($i == "]") sum += $(i + 1) } END { print sum }' "$1"
}

try_sanitizers() {
  unset TARVEX_STRESS # the thorough forms have promises of their own
  build asan
  suite asan | tee "$logs/sanitizers.tests"
  figure sanitizers "$(count_tests "$logs/sanitizers.tests") tests, 0 reports"
}
try_fuzz() {
  build asan tarvex_fuzz
  suite asan -R '^fuzz'
}
try_libfuzzer() {
  build fuzz
  # What it finds of interest stays out of the tree.
  mkdir -p "$logs/corpus"
  # Leaks are the matter of the asan preset, whose tests keep the driver loaded that is to be named.
  ASAN_OPTIONS=detect_leaks=0 limited build-fuzz/tests/tarvex_libfuzzer \
    -max_total_time="$fuzz_seconds" -max_len=8192 -detect_leaks=0 -rss_limit_mb=4000 \
    -malloc_limit_mb=1000 -artifact_prefix="$logs/" \
    "$logs/corpus" tests/fuzz/corpus 2>&1 | tee "$logs/libfuzzer.runs"
  figure libfuzzer "$(sed -n 's/^Done \([0-9]* runs in [0-9]* second(s)\)$/\1/p' "$logs/libfuzzer.runs"), 0 findings"
}
try_arguments() { dev tarvex_unit_tests 'Arguments.*'; }
try_memory() { dev tarvex_memory_tests '*'; }
try_cycles() { dev tarvex_unit_tests '*Cycles.*'; }
try_threads() {
  build tsan
  suite tsan
}
try_soak() { dev tarvex_unit_tests 'Soak.*'; }
try_loss() { dev tarvex_unit_tests 'Loss.*'; }
try_load() {
  build dev tarvex_load_tests
  limited build-dev/tests/tarvex_load_tests build-dev/src/libtarvex.so
}
try_valgrind() {
  build dev tarvex_unit_tests
  timeout -k 10 7200 scripts/valgrind.sh
}
try_exports() {
  build dev
  suite dev -R '^(exports|abi|header_c)$'
  figure exports "$(wc -l <tests/header/exports.txt) functions as recorded"
}
try_coverage() {
  unset TARVEX_STRESS
  build coverage
  find build-coverage -name '*.gcda' -delete
  suite coverage
  gcovr -r . build-coverage --filter src/ --fail-under-line 95 --print-summary | tee "$logs/coverage.lines"
  figure coverage "$(sed -n 's/^lines: //p' "$logs/coverage.lines") of the lines in src"
}
try_static() {
  build tidy
  cppcheck --std=c++20 --language=c++ --enable=warning,performance,portability --quiet \
    --suppressions-list=tests/suppressions/cppcheck.supp --error-exitcode=1 -I src -I include src
  figure static "clang-tidy and cppcheck: 0 warnings"
}

chosen=("${@:-${promises[@]}}")
for promise in "${chosen[@]}"; do
  if ! declare -F "try_$promise" >/dev/null; then
    echo "stress.sh: no promise $promise; there are: ${promises[*]}" >&2
    exit 2
  fi
done
scripts/install-packages.sh packages.txt packages-stress.txt || exit 1
mkdir -p "$logs"

failed=0
table=()
for promise in "${chosen[@]}"; do
  echo "$promise .. ($logs/$promise.log)"
  SECONDS=0
  # Not in a condition, where the first failure would not end it.
  (
    set -e
    "try_$promise"
  ) >"$logs/$promise.log" 2>&1
  status=$?
  # Its own: a suite that is run for one promise also tells those of others.
  mapfile -t figures < <(sed -nE "s/^([0-9]+: )?figure: $promise: //p" "$logs/$promise.log")
  result=held
  # A test that says nothing was not there.
  if [[ $status -ne 0 || ${#figures[@]} -eq 0 ]]; then
    result=FAILED
    failed=1
  fi
  table+=("$promise|$result|${figures[0]:-see $logs/$promise.log}|$SECONDS")
  for line in "${figures[@]:1}"; do
    table+=("||$line|")
  done
done

echo
printf '%s\n' "promise|result|figure|seconds" "${table[@]}" | column -t -s '|' -o ' | '
exit "$failed"
