#!/bin/sh
# Configures and builds Orvelin. Usage: scripts/build.sh BUILD_DIR [CMAKE OPTIONS...]
# Two parallel jobs by default (ORVELIN_JOBS changes it); ORVELIN_TARGETS names the
# targets to build when not everything is needed.
set -eu

build_dir="$1"
shift
# ccache, where present, makes rebuilds and other checkouts of the same sources fast.
launcher=""
if command -v ccache >/dev/null 2>&1; then
    launcher="-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
    # Paths relative to the checkout, so that a clone elsewhere hits the same cache.
    CCACHE_BASEDIR="$(cd "$(dirname "$0")/.." && pwd)"
    export CCACHE_BASEDIR
fi
cmake -S . -B "$build_dir" -DCMAKE_BUILD_TYPE="${ORVELIN_BUILD_TYPE:-RelWithDebInfo}" $launcher "$@" >/dev/null
# shellcheck disable=SC2086 # the target list is meant to split into words
cmake --build "$build_dir" -j "${ORVELIN_JOBS:-2}" ${ORVELIN_TARGETS:+--target $ORVELIN_TARGETS}
