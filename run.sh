#!/usr/bin/env bash
# Installs what is missing, builds VELD and starts it: in windows where there is a display, else in this terminal.
#   ./run.sh              ./run.sh --terminal    always in this terminal
#   ./run.sh --replay FILE    plays a saved run to its last act
set -euo pipefail
cd "$(dirname "$0")"

if [ "${1:-}" = --terminal ] || { [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; }; then
  if [ ! -t 0 ] || [ ! -t 1 ]; then
    echo "VELD needs a display or a terminal: start it inside a graphical session or in a terminal, or under Xvfb with 'xvfb-run ./run.sh'." >&2
    exit 1
  fi
  scripts/install-packages.sh g++ cmake ninja-build libncurses-dev libcairo2-dev libpango1.0-dev fonts-liberation
  scripts/configure.sh terminal
  if [ -x build/terminal/bin/veld-terminal ]; then
    cmake --build build/terminal --target veld-terminal veld_data -- --quiet
  else
    echo "Building VELD, about a minute the first time."
    cmake --build build/terminal --target veld-terminal veld_data
  fi
  exec build/terminal/bin/veld-terminal "$@"
fi

packages=(g++ cmake ninja-build qt6-base-dev libqt6widgets6 fonts-liberation libncurses-dev libcairo2-dev libpango1.0-dev)
[ -n "${DISPLAY:-}" ] || [ -z "${WAYLAND_DISPLAY:-}" ] || packages+=(qt6-wayland)  # a session without X
scripts/install-packages.sh "${packages[@]}"
scripts/configure.sh release
if [ -x build/release/bin/veld ]; then
  cmake --build build/release --target veld veld_data -- --quiet
else
  echo "Building VELD, about a minute the first time."
  cmake --build build/release --target veld veld_data
fi
exec build/release/bin/veld "$@"
