#!/bin/sh
# Starts the real designer under a virtual X display with a project, lets it quit as
# soon as its windows are shown and idle, and checks that both windows appeared, the
# project was opened and the program ended cleanly.
# Usage: smoke.sh ORVELIN_PROGRAM PROJECT
set -u

program="$1"
project="$2"

if ! command -v xvfb-run >/dev/null 2>&1; then
    echo "smoke: xvfb-run is not installed (scripts/install-deps.sh installs it)"
    exit 77
fi

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
log="$scratch/stderr"

# A settings store of its own, so the run neither reads nor changes the user's. The
# offscreen platform the unit tests use is dropped: this test wants a real display.
# In a sanitizer build, leaks of the desktop libraries a real display brings in are
# not the designer's.
suppressions="$(dirname "$0")/../lsan.supp"
env -u QT_QPA_PLATFORM \
    LSAN_OPTIONS="${LSAN_OPTIONS:+$LSAN_OPTIONS:}suppressions=$suppressions" \
    XDG_CONFIG_HOME="$scratch/config" \
    ORVELIN_QUIT_AFTER_STARTUP=1 \
    ORVELIN_REPORT_WINDOWS=1 \
    timeout 120 xvfb-run -a -s "-screen 0 1280x1024x24" "$program" "$project" 2>"$log"
status=$?
cat "$log"

fail() {
    echo "smoke: $1"
    exit 1
}

[ "$status" -eq 0 ] || fail "the designer ended with status $status"
grep -q '^orvelin: window shown: frmMain ' "$log" || fail "the main editor window was not shown"
grep -q '^orvelin: window shown: frmDesign ' "$log" || fail "the design window was not shown"
grep -qF "frmMain \"Orvelin 1.0  Beta 6 $project\"" "$log" ||
    fail "the main editor's caption does not name the project"
grep -q '^orvelin: idle$' "$log" || fail "the designer did not reach idle"
echo "smoke: both windows shown, project opened, clean exit"
