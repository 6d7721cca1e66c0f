#!/bin/sh
# Installs everything Orvelin needs to build, test and run on Debian 12.
# Safe to run again: it only calls apt-get when a package is missing.
set -eu

PACKAGES="build-essential cmake g++ pkg-config
    libgtest-dev libgmock-dev libbenchmark-dev
    qt6-base-dev qt6-base-dev-tools libgl-dev qt6-translations-l10n
    xvfb xauth xdotool x11-utils fonts-liberation fonts-dejavu-core imagemagick
    chromium sox libsndfile1-dev libsamplerate0-dev
    desktop-file-utils appstream shared-mime-info xdg-utils libfile-mimeinfo-perl ccache"
# Node.js may come from elsewhere than Debian (a newer nodejs package bundles
# npm); Debian's own packages are installed only where the commands are missing.
command -v node >/dev/null 2>&1 || PACKAGES="$PACKAGES nodejs"
command -v npm >/dev/null 2>&1 || PACKAGES="$PACKAGES npm"

missing=""
for package in $PACKAGES; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "ok installed"; then
        missing="$missing $package"
    fi
done

if [ -z "$missing" ]; then
    echo "install-deps: all packages are installed"
    exit 0
fi

if [ "$(id -u)" -eq 0 ]; then
    run_as_root=""
elif command -v sudo >/dev/null 2>&1; then
    run_as_root="sudo"
else
    echo "install-deps: these packages are missing and neither root nor sudo is available:$missing" >&2
    exit 1
fi

echo "install-deps: installing$missing"
export DEBIAN_FRONTEND=noninteractive
$run_as_root env DEBIAN_FRONTEND=noninteractive apt-get update -qq
# shellcheck disable=SC2086 # the list is meant to split into words
$run_as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends $missing >/dev/null
echo "install-deps: done"
