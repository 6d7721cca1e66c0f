#!/bin/sh
# Installs what is needed, builds Orvelin with its tests in build/ and runs them all.
set -eu
cd "$(dirname "$0")/.."

scripts/install-deps.sh
scripts/install-node-modules.sh
scripts/build.sh build -DORVELIN_BENCHMARKS=ON
cd build
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j "${ORVELIN_JOBS:-2}"
