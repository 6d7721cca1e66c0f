#!/bin/sh
# Installs what is needed, builds Orvelin in build/ and starts the designer on the
# example project. Without a display it says so and shows the headless tool instead:
# the example's applet code on stdout and its picture in build/navbar.png.
set -eu
cd "$(dirname "$0")/.."

scripts/install-deps.sh >&2
# Only what running needs; scripts/test.sh builds the tests and benchmarks as well.
ORVELIN_TARGETS="orvelin orvelin-cli SoundConv orvelin_data" \
    scripts/build.sh build -DORVELIN_BENCHMARKS=OFF >&2

if [ -n "${WAYLAND_DISPLAY:-}" ]; then
    exec build/bin/orvelin examples/navbar.orv
fi
if [ -n "${DISPLAY:-}" ]; then
    if xdpyinfo >/dev/null 2>&1; then
        exec build/bin/orvelin examples/navbar.orv
    fi
    echo "The display \"$DISPLAY\" cannot be opened (is it running, and may you use it?)," >&2
else
    echo "No display found (neither DISPLAY nor WAYLAND_DISPLAY is set)," >&2
fi
cat >&2 <<'TXT'
so the designer cannot open its windows here. Run this script from a desktop session,
or start it under a virtual display:  xvfb-run -a build/bin/orvelin examples/navbar.orv
Meanwhile, the headless tool: the example's applet code follows, and its picture is
written to build/navbar.png.
TXT
build/bin/orvelin-cli render examples/navbar.orv -o build/navbar.png
exec build/bin/orvelin-cli html examples/navbar.orv
