#!/usr/bin/env bash
# Installs what building, running and testing need on a fresh Debian
# machine. Safe to run again: it skips packages that are already there.
set -euo pipefail

PACKAGES=(
  build-essential cmake pkg-config git
  libgtest-dev
  qt6-base-dev qt6-translations-l10n  # Qt's own dialogs in Japanese
  libfluidsynth-dev timgm6mb-soundfont
  openttd-openmsx  # Standard MIDI Files from elsewhere, for the player tests
  libvorbis-dev
  libpng-dev
  fonts-ipafont-gothic
  xvfb imagemagick
  clang libfuzzer-14-dev libclang-rt-14-dev
)

# Typing Japanese: Qt carries the ibus front end itself; fcitx5 needs its
# own, and it is installed where fcitx5 is.
if command -v fcitx5 >/dev/null 2>&1 || pgrep -x fcitx5 >/dev/null 2>&1; then
  PACKAGES+=(fcitx5-frontend-qt6)
fi

missing=()
for package in "${PACKAGES[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed" || missing+=("$package")
done

if [ ${#missing[@]} -gt 0 ]; then
  SUDO=""
  [ "$(id -u)" -ne 0 ] && SUDO="sudo"
  $SUDO apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi
