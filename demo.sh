#!/usr/bin/env bash
# Builds the library and the viewer and shows measured surfaces with them.
#
#   ./demo.sh                     the laser scan in a window; without a display: pictures
#   ./demo.sh FILE [OPTION..]     another file, with options of the viewer
#   ./demo.sh --pictures [FILE..] pictures in demo-pictures/ and no window: of four measurements
#                                 or of the given file, with options of the viewer
set -euo pipefail

force_pictures=no
case ${1:-} in
  -h | --help) sed -n '2,/^set /{s/^#\( \|$\)//p}' "$0"; exit 0 ;;
  --pictures) force_pictures=yes; shift ;;
esac
# Paths on the command line are meant from where the caller stands.
arguments=()
for argument in "$@"; do
  if [[ -e $argument ]]; then
    argument=$(realpath -- "$argument")
  fi
  arguments+=("$argument")
done
set -- "${arguments[@]}"
cd "$(dirname "${BASH_SOURCE[0]}")"

readonly data=examples/data
readonly viewer=build-release/examples/tarvex_viewer
readonly pictures=demo-pictures
# One count of the laser scan is 0.1 mm in all three directions.
readonly laser_scan=("$data/cylinder1.png" --x-scale 0.1 --y-scale 0.1 --z-scale 0.1 --unit mm)
# What the viewer answers when it has no display to open a window on.
readonly no_display=2

save() { # NAME FILE [OPTION..]
  scripts/with-xvfb.sh "$viewer" "${@:2}" --print --screenshot "$pictures/$1.png"
  echo "saved $PWD/$pictures/$1.png"
  echo
}

save_pictures() { # [FILE [OPTION..]]
  mkdir -p "$pictures"
  if [[ $# -gt 0 ]]; then
    save "$(basename -- "$1")" "$@"
    return
  fi
  save laser-scan "${laser_scan[@]}"
  save elevation-tile "$data/N42E001.hgt"
  save confocal "$data/confocal_land.i16"
  save interferometer "$data/wli_height.i16" --intensity "$data/wli_intensity8.pgm"
}

scripts/install-packages.sh
cmake --preset release
cmake --build --preset release --target tarvex_viewer
echo

if [[ $force_pictures == yes ]]; then
  save_pictures "$@"
elif [[ -z ${DISPLAY:-} ]]; then
  echo "No display: pictures are saved instead of opening a window."
  save_pictures "$@"
else
  status=0
  if [[ $# -gt 0 ]]; then
    "$viewer" --print "$@" || status=$?
  else
    "$viewer" --print "${laser_scan[@]}" || status=$?
  fi
  [[ $status -eq $no_display ]] || exit "$status"
  echo "The display can't be used: pictures are saved instead of opening a window."
  save_pictures "$@"
fi
