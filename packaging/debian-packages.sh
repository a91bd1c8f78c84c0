#!/usr/bin/env bash
# The Debian packages that Wayvane is built, run and tested with, by group; see CONTRIBUTING.md for the reasons.
# Sourced by ./demo and ./check. By hand: packaging/debian-packages.sh GROUP... installs what is missing of them.

packages_of() {
  case "$1" in
    build)   echo g++ cmake ninja-build nlohmann-json3-dev ;;
    qt)      echo qt6-base-dev qt6-tools-dev qt6-l10n-tools fonts-dejavu-core ;;
    test)    echo libgtest-dev libgmock-dev pkg-config xvfb xauth xdotool openbox ;;
    bench)   echo libbenchmark-dev ;;
    tools)   echo clang clang-tidy clang-format ccache ;;
    # Programs that nobody here wrote, as hosts for the tests.
    foreign) echo designer-qt6 focuswriter ;;
    *) echo "debian-packages.sh: no such group: $1" >&2; return 1 ;;
  esac
}

missing_packages() {
  local group names wanted=() installed
  for group in "$@"; do
    names=$(packages_of "$group") || return 1
    # shellcheck disable=SC2206
    wanted+=($names)
  done
  installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null | sed -n 's/^installed //p')
  local name
  for name in "${wanted[@]}"; do
    grep -qxF -- "$name" <<<"$installed" || echo "$name"
  done
}

install_missing() {
  if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "Not a Debian system: the packages are taken as they are."
    return 0
  fi
  local missing
  missing=$(missing_packages "$@") || return 1
  [ -n "$missing" ] || return 0

  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing, and only root can install them:" $missing >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing:" $missing
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o Acquire::Retries=3 -o Dpkg::Use-Pty=0)
  "${apt[@]}" update </dev/null &&
    "${apt[@]}" install -y --no-install-recommends $missing </dev/null >/dev/null || {
    echo "The packages could not be installed." >&2
    return 1
  }
}

if [ "${BASH_SOURCE[0]}" = "$0" ]; then
  set -euo pipefail
  [ $# -gt 0 ] || set -- build qt test foreign
  install_missing "$@"
fi
