#!/bin/sh
# Installs what is needed, builds Orvelin in build/ and writes the applet code of
# the example project to stdout.
set -eu
cd "$(dirname "$0")/.."

scripts/install-deps.sh >&2
scripts/build.sh build -DORVELIN_BENCHMARKS=OFF >&2
exec build/bin/orvelin-cli html examples/navbar.orv
