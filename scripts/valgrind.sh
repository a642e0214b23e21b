#!/usr/bin/env bash
# Runs one test of the unit suite under valgrind's memory checker, by default the session with all
# elements in both kinds of view: scripts/valgrind.sh [GTEST_FILTER [PRESET]]
# Fails for any error and any memory that is lost for good. Needs the preset to be built and the
# package valgrind.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
filter=${1:-LossProcess.*Context}
preset=${2:-dev}

# Mesa's plain driver instead of the one that makes code while it runs: three times faster here, and
# valgrind sees what it does. It stays loaded to the end, or its leaks could not be told apart.
driver=/usr/lib/x86_64-linux-gnu/dri/swrast_dri.so
MESA_SHADER_CACHE_DISABLE=true GALLIUM_DRIVER=softpipe scripts/with-xvfb.sh \
  env LD_PRELOAD="$driver" valgrind --quiet --leak-check=full --show-leak-kinds=definite --errors-for-leak-kinds=definite \
  --error-exitcode=1 --num-callers=30 --suppressions=tests/suppressions/valgrind.supp \
  "build-$preset/tests/tarvex_unit_tests" --gtest_filter="$filter" --gtest_brief=1 \
  --gtest_also_run_disabled_tests
echo "figure: valgrind: 0 errors, 0 bytes definitely lost in $filter"
