#!/usr/bin/env bash
# Installs what lists of packages name and this machine lacks, by default packages.txt. Asks no
# questions; does nothing when all is there: scripts/install-packages.sh [LIST..]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

missing=()
while read -r package; do
  [[ -z "$package" || "$package" == \#* ]] && continue
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done < <(cat "${@:-packages.txt}")
[[ ${#missing[@]} -eq 0 ]] && exit 0

echo "installing: ${missing[*]}"
as_root=()
if [[ $(id -u) -ne 0 ]]; then as_root=(sudo); fi
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install -y -q --no-install-recommends "${missing[@]}"
