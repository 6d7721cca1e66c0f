#!/bin/sh
# Configures and builds Orvelin. Usage: scripts/build.sh BUILD_DIR [CMAKE OPTIONS...]
# Two parallel jobs by default (ORVELIN_JOBS changes it).
set -eu

build_dir="$1"
shift
cmake -S . -B "$build_dir" -DCMAKE_BUILD_TYPE="${ORVELIN_BUILD_TYPE:-RelWithDebInfo}" "$@" >/dev/null
cmake --build "$build_dir" -j "${ORVELIN_JOBS:-2}"
