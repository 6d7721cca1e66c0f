#!/bin/sh
# Installs the build into a scratch prefix as `cmake --install` does for a user, then
# checks the layout, validates the desktop entry, the metainfo and the file type, and
# starts the installed designer without a display.
# Usage: install_test.sh BUILD_DIR
set -u
build="$1"
for tool in desktop-file-validate appstreamcli update-mime-database; do
    command -v "$tool" >/dev/null 2>&1 ||
        { echo "install_test: $tool is not installed (scripts/install-deps.sh installs it)"; exit 77; }
done
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
prefix="$scratch/usr"
fail() {
    echo "install_test: $1"
    exit 1
}

cmake --install "$build" --prefix "$prefix" >"$scratch/install.log" ||
    { cat "$scratch/install.log"; fail "cmake --install failed"; }

share="$prefix/share"
for file in bin/orvelin bin/orvelin-cli share/orvelin/Orvel.ini share/orvelin/orvelin-player.js share/orvelin/help/help.htm \
    share/orvelin/desktop/org.orvelin.Orvelin.desktop share/man/man1/orvelin.1.gz \
    share/man/man1/orvelin-cli.1.gz share/icons/hicolor/scalable/apps/orvelin.svg \
    share/icons/hicolor/48x48/apps/orvelin.png \
    share/icons/hicolor/scalable/mimetypes/application-x-orvelin-project.svg; do
    [ -s "$prefix/$file" ] || fail "$file was not installed"
done
# The program folder's converter is a link to the program in libexec.
[ -x "$share/orvelin/SoundConv" ] || fail "share/orvelin/SoundConv does not lead to a program"

desktop-file-validate "$share/applications/org.orvelin.Orvelin.desktop" ||
    fail "the desktop entry is not valid"
appstreamcli validate --no-net "$share/metainfo/org.orvelin.Orvelin.metainfo.xml" ||
    fail "the AppStream metainfo is not valid"
update-mime-database "$share/mime" || fail "the file type package is not valid"
grep -q '^application/x-orvelin-project:\*\.orv$' "$share/mime/globs" ||
    fail "*.orv is not an Orvelin project in the installed type database"
grep -q 'Orvelin Project' "$share/mime/magic" || fail "the project files' magic is missing"

# Without a display: --version and --help answer, anything else says why in one sentence.
no_display="env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM XDG_CONFIG_HOME=$scratch/config"
version=$($no_display "$prefix/bin/orvelin" --version) || fail "orvelin --version failed"
[ "$version" = "Orvelin 1.0  Beta 6" ] || fail "orvelin --version says: $version"
$no_display "$prefix/bin/orvelin" --help | grep -q '^Usage: orvelin \[PROJECT\]' ||
    fail "orvelin --help gives no usage"
for display in "" ":97"; do
    if [ -n "$display" ]; then set -- DISPLAY="$display"; else set --; fi
    $no_display "$@" "$prefix/bin/orvelin" >"$scratch/out" 2>"$scratch/err"
    status=$?
    [ "$status" -eq 1 ] || fail "orvelin without a display (\"$display\") ended with status $status"
    [ "$(wc -l <"$scratch/err")" -eq 1 ] && grep -q "xvfb-run -a orvelin" "$scratch/err" ||
        { cat "$scratch/err"; fail "no one-sentence message without a display (\"$display\")"; }
done
echo "install_test: layout, entry, metainfo, file type and the start without a display are right"
