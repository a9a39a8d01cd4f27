#!/usr/bin/env bash
# Builds the program and takes pictures of its pages, without a screen.
#   docs/pictures/make.sh            those of the handbook, into docs/screenshots
#   docs/pictures/make.sh FOLDER     every page as it opens and in use, into FOLDER: on a screen of 1024 x 768, light and
#                                    dark, at the usual size and twice as fine, with sheets of nine to be looked through;
#                                    and as text in FOLDER/terminal, as it stands at a terminal of 80 x 24, with its help
set -euo pipefail
cd "$(dirname "$0")/../.."

scripts/install-packages.sh g++ cmake ninja-build qt6-base-dev libqt6widgets6 fonts-liberation libgtest-dev libncurses-dev \
  libxml2-dev libcairo2-dev libpango1.0-dev imagemagick
build=${VELD_BUILD:-build/sanitize}
[ -n "${VELD_BUILD:-}" ] || scripts/configure.sh sanitize
cmake --build "$build" --target veld_pictures veld_terminal_pages -- --quiet
programs=$PWD/$build/bin
export ASAN_OPTIONS=detect_leaks=0
screen=$(mktemp)
trap 'rm -f "$screen"' EXIT

# take SCALE FOLDER SCHEME WHAT: at scale 2 the screen has twice as many dots, and as much room as before.
take() {
  printf '{"screens":[{"name":"desk","x":0,"y":0,"width":%d,"height":%d,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]}' \
    $((1024 * $1)) $((768 * $1)) >"$screen"
  mkdir -p "$2"
  QT_QPA_PLATFORM=offscreen:configfile=$screen QT_SCALE_FACTOR=$1 QT_LOGGING_RULES='*.warning=false' \
    timeout 300 "$programs/veld_pictures" "$2" "$3" "$4"
}

if [ $# -eq 0 ]; then
  new=$(mktemp -d)
  take 1 "$new" light handbook
  for picture in "$new"/*.png; do
    convert "$picture" -strip -colors 256 "PNG8:docs/screenshots/$(basename "$picture")"
  done
  rm -r "$new"
  exit 0
fi

folder=$(realpath -m "$1")
for scale in 1 2; do
  for scheme in light dark; do
    take $scale "$folder/$scheme-$scale" $scheme forms
    pictures_taken=("$folder/$scheme-$scale"/*.png)
    for ((at = 0; at < ${#pictures_taken[@]}; at += 9)); do
      montage -label %t "${pictures_taken[@]:at:9}" -tile 3x3 -geometry "$((760 * scale))x$((560 * scale))>+8+8" \
        -background '#777777' "$(printf '%s/sheet-%s-%d-%02d.png' "$folder" $scheme $scale $((at / 9)))"
    done
  done
done
timeout 600 "$programs/veld_terminal_pages" "$folder/terminal"
