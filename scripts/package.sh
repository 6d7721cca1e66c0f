#!/bin/sh
# Builds Orvelin's Debian package: configures and builds BUILD_DIR (build-deb/ by
# default, without tests or benchmarks) as scripts/build.sh does, then runs
# `cpack -G DEB` there. The package's dependencies come from the programs' shared
# libraries (dpkg-shlibdeps). Install it with
#   sudo apt-get install ./build-deb/orvelin_*.deb
set -eu
cd "$(dirname "$0")/.."

build_dir="${1:-build-deb}"
if ! command -v dpkg-shlibdeps >/dev/null 2>&1; then
    echo "package: dpkg-shlibdeps is missing; install the package dpkg-dev" >&2
    exit 1
fi
# Debian's hardening flags (stack protector, fortified functions, full RELRO).
export DEB_BUILD_MAINT_OPTIONS=hardening=+all
scripts/build.sh "$build_dir" -DBUILD_TESTING=OFF -DORVELIN_BENCHMARKS=OFF \
    -DCMAKE_CXX_FLAGS="$(dpkg-buildflags --get CPPFLAGS) $(dpkg-buildflags --get CXXFLAGS)" \
    -DCMAKE_EXE_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS)" >&2
cd "$build_dir"
cpack -G DEB >&2
ls "$PWD"/orvelin_*.deb
