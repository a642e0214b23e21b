#!/usr/bin/env bash
# Compares the dynamic symbols of the library with the list of its interface: the names that begin
# with Tarvex_ must be exactly those of exports.txt, and nothing else may be visible but TarvexExt_
# functions.
#
# Usage: CheckExports.sh LIBRARY
set -eu -o pipefail
export LC_ALL=C

if [ $# -ne 1 ] || [ ! -r "$1" ]; then
    echo "usage: CheckExports.sh LIBRARY (a readable shared library)" >&2
    exit 2
fi

expected=$(dirname "${BASH_SOURCE[0]}")/exports.txt
symbols=$(nm -D --defined-only "$1")
# Symbol versions are cut off; the version node itself stands among the symbols.
found=$(awk 'NF { sub(/@.*/, "", $NF); if ($NF != "TARVEX_1") print $NF }' <<<"$symbols" | sort -u)

interface=$(grep '^Tarvex_' <<<"$found" || true)
missing=$(comm -13 <(echo "$interface") "$expected")
unlisted=$(comm -23 <(echo "$interface") "$expected")
foreign=$(grep -vE '^Tarvex(Ext)?_' <<<"$found" || true)

failed=0
report()
{
    if [ -n "$2" ]; then
        echo "CheckExports: $1" >&2
        echo "    ${2//$'\n'/$'\n'    }" >&2
        failed=1
    fi
}
report "not exported by $1:" "$missing"
report "exported by $1 but not part of the interface:" "$unlisted"
report "visible in $1 without the library's prefix:" "$foreign"

if [ "$failed" -eq 0 ]; then
    echo "CheckExports: all $(wc -l <"$expected") functions, nothing else"
fi
exit "$failed"
