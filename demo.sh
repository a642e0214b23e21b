#!/usr/bin/env bash
# Builds the library and the viewer and shows measured surfaces with them.
#
#   ./demo.sh                     the laser scan in a window; without a display: pictures
#   ./demo.sh FILE [OPTION..]     another file, with options of the viewer
#   ./demo.sh --pictures [FILE..] pictures in demo-pictures/ and no window: of all kinds of
#                                 measurements, or of the given file with options of the viewer
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
# In decimetres, in which the handles on geometric elements have a handy size.
readonly laser_scan_dm=("$data/cylinder1.png" --x-scale 0.001 --y-scale 0.001 --z-scale 0.001 --unit dm)
# What stands around a measurement: scale frame, bar of the colours, orientation marker.
readonly furniture=(--frame --bar --marker)
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
  save laser-scan "${laser_scan[@]}" "${furniture[@]}"
  save elevation-tile "$data/N42E001.hgt" "${furniture[@]}"
  save confocal "$data/confocal_land.i16" "${furniture[@]}"
  save interferometer-heights "$data/wli_height.i16" --range 1% "${furniture[@]}"
  save interferometer-intensity "$data/wli_height.i16" --intensity "$data/wli_intensity8.pgm" \
    "${furniture[@]}"
  # Without the few outliers, which would take most of the colours.
  save weld-beads "$data/clad_nonuniform_x.i16" --trim 0.05 --profiles 12 "${furniture[@]}"
  save stylus-profile "$data/stylus_profile.i16" "${furniture[@]}"
  save charts-dark "${laser_scan[@]}" --charts --line 800 "${furniture[@]}"
  save charts-light "$data/N42E001.hgt" --charts --layout light --palette 3 "${furniture[@]}"
  save charts-intensity "$data/wli_height.i16" --intensity "$data/wli_intensity8.pgm" --charts \
    "${furniture[@]}"
  # After some pictures of the live mode: the plate has moved under the sensor.
  save charts-live "$data/clad_nonuniform_x.i16" --trim 0.05 --charts --frame --live 2
  save chart-elements "${laser_scan[@]}" --scene charts
  save geometry "${laser_scan_dm[@]}" --scene geometry --palette 5 "${furniture[@]}"
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
    "$viewer" --print "${laser_scan[@]}" "${furniture[@]}" || status=$?
  fi
  [[ $status -eq $no_display ]] || exit "$status"
  echo "The display can't be used: pictures are saved instead of opening a window."
  save_pictures "$@"
fi
