#!/usr/bin/env bash
# configure.sh PRESET: makes build/PRESET ready for ninja, from the folder of the sources. A build folder that is ready
# is left alone; one of another generator, one copied here with the sources or one left half made starts afresh.
set -euo pipefail

folder=build/$1
sources=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$folder/CMakeCache.txt" 2>/dev/null || true)
if [ -f "$folder/build.ninja" ] && [ "$sources" -ef . ]; then exit 0; fi
cmake --fresh --preset "$1" -G Ninja >/dev/null
