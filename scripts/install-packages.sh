#!/usr/bin/env bash
# Installs what packages.txt lists and this machine lacks. Asks no questions; does nothing when all is there.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

missing=()
while read -r package; do
  [[ -z "$package" || "$package" == \#* ]] && continue
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done <packages.txt
[[ ${#missing[@]} -eq 0 ]] && exit 0

echo "installing: ${missing[*]}"
as_root=()
if [[ $(id -u) -ne 0 ]]; then as_root=(sudo); fi
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install -y -q --no-install-recommends "${missing[@]}"
