#!/usr/bin/env bash
# install-packages.sh PACKAGE...: installs the Debian packages that are missing; says nothing when none is.
set -euo pipefail

missing=()
for package in "$@"; do
  [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)" = installed ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "VELD needs these packages, and only root can install them: ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi
echo "Installing ${missing[*]} ..."
log=$(mktemp)
trap 'rm -f "$log"' EXIT
install() {
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
# The package lists may be missing or old: fetch them only when a plain install fails.
if ! install >"$log" 2>&1; then
  if ! { "${as_root[@]}" apt-get update -qq && install; } >"$log" 2>&1; then
    cat "$log" >&2
    exit 1
  fi
fi
