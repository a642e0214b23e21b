#!/usr/bin/env bash
# The exports that answer STATUS_NOT_SUPPORTED because their feature is not built.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# The name of a function stands on a line of its own signature, at the first column or after int32_t.
awk '/^(int32_t )?Tarvex[A-Za-z0-9_]*\(/ { sub(/^int32_t /, ""); sub(/\(.*/, ""); name = $0 }
     /return NotBuilt/ { print name }' src/frame/Exports*.cpp | sort -u
