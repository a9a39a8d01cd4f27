#!/usr/bin/env bash
# Installs what is missing, builds VELD and starts it.
set -euo pipefail
cd "$(dirname "$0")"

if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] && [ -z "${QT_QPA_PLATFORM:-}" ]; then
  echo "VELD needs a desktop to show its windows on: start it inside a graphical session, or under Xvfb with 'xvfb-run ./run.sh'." >&2
  exit 1
fi

scripts/install-packages.sh g++ cmake ninja-build qt6-base-dev libqt6widgets6 fonts-liberation
[ -f build/release/build.ninja ] || cmake --preset release -G Ninja >/dev/null
cmake --build build/release --target veld veld_data -- --quiet
exec build/release/bin/veld "$@"
