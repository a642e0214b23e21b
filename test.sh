#!/usr/bin/env bash
# Installs what is missing, builds the library with its tests and runs the whole suite under Xvfb.
#
#   ./test.sh            the dev preset
#   ./test.sh asan       the same under the address, undefined behaviour and leak sanitizers
#   ./test.sh tsan       the tests of several threads under the thread sanitizer
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
preset=${1:-dev}

scripts/install-packages.sh
cmake --preset "$preset"
cmake --build --preset "$preset"
# No cache of compiled shaders on the disk: each run is like the first.
MESA_SHADER_CACHE_DISABLE=true scripts/with-xvfb.sh ctest --preset "$preset"
