#!/usr/bin/env bash
# Installs what is missing, builds everything with the sanitizers and runs all tests.
set -euo pipefail
cd "$(dirname "$0")"

scripts/install-packages.sh g++ cmake ninja-build qt6-base-dev libqt6widgets6 fonts-liberation libgtest-dev libncurses-dev libxml2-dev \
  libcairo2-dev libpango1.0-dev poppler-utils libcli11-dev nlohmann-json3-dev
scripts/configure.sh sanitize
cmake --build build/sanitize -- --quiet

export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=strict_string_checks=1
export UBSAN_OPTIONS=print_stacktrace=1
ctest --test-dir build/sanitize --output-on-failure -j "$(nproc)" "$@"
