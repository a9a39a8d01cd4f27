#!/usr/bin/env bash
# Installs what is missing, builds VELD and starts it: in windows where there is a display, else in this terminal.
#   ./run.sh              ./run.sh --terminal    always in this terminal
#   ./run.sh --replay FILE    plays a saved run to its last act
#   ./run.sh --cli ...        veld-cli: characters, sheets and dice at the prompt; ./run.sh --cli --help tells more
set -euo pipefail
start=$PWD
cd "$(dirname "$0")"

# build_in FOLDER TARGET...: says what it does the first time, and nothing after it.
build_in() {
  if [ -x "$1/bin/$2" ]; then
    cmake --build "$1" --target "${@:2}" -- --quiet | { grep -v '^ninja: no work to do' || true; } >&2
  else
    echo "Building VELD, about a minute the first time." >&2
    cmake --build "$1" --target "${@:2}" >&2
  fi
}

if [ "${1:-}" = --cli ]; then
  scripts/install-packages.sh g++ cmake ninja-build libcli11-dev nlohmann-json3-dev libcairo2-dev libpango1.0-dev fonts-liberation >&2
  scripts/configure.sh cli
  build_in build/cli veld-cli veld_data
  sources=$PWD
  cd "$start"  # the files are named from there
  exec "$sources/build/cli/bin/veld-cli" "${@:2}"
fi

if [ "${1:-}" = --terminal ] || { [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; }; then
  if [ ! -t 0 ] || [ ! -t 1 ]; then
    echo "VELD needs a display or a terminal: start it inside a graphical session or in a terminal, or under Xvfb with 'xvfb-run ./run.sh'." >&2
    exit 1
  fi
  scripts/install-packages.sh g++ cmake ninja-build libncurses-dev libcairo2-dev libpango1.0-dev fonts-liberation
  scripts/configure.sh terminal
  build_in build/terminal veld-terminal veld_data
  exec build/terminal/bin/veld-terminal "$@"
fi

packages=(g++ cmake ninja-build qt6-base-dev libqt6widgets6 fonts-liberation libncurses-dev libcairo2-dev libpango1.0-dev
  libcli11-dev nlohmann-json3-dev)
[ -n "${DISPLAY:-}" ] || [ -z "${WAYLAND_DISPLAY:-}" ] || packages+=(qt6-wayland)  # a session without X
scripts/install-packages.sh "${packages[@]}"
scripts/configure.sh release
build_in build/release veld veld_data
exec build/release/bin/veld "$@"
