#!/usr/bin/env bash
# Installs what the build, the editor and the tests need from Debian; silent when nothing is missing.
set -euo pipefail

packages=(
  g++ cmake ninja-build ccache pkg-config git ca-certificates
  qt6-base-dev qt6-qpa-plugins libgl1-mesa-dri libegl1 libegl-dev libgl-dev libepoxy-dev libx11-dev
  libassimp-dev zlib1g-dev libcli11-dev nlohmann-json3-dev
  fonts-liberation
)
tests=(clang libgtest-dev libgmock-dev xvfb xauth x11-xkb-utils xdotool openbox x11-utils imagemagick)
case "${1:-}" in
  tests) packages+=("${tests[@]}") ;;
  lint) packages+=("${tests[@]}" clang-tidy clang-format) ;;
esac

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${as_root[@]}" apt-get update -q
"${as_root[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}"
