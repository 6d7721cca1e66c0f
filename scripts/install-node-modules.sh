#!/bin/sh
# Installs the pinned npm packages of the browser tests (playwright-core, which
# drives Debian's chromium; it never downloads a browser of its own).
# Safe to run again: it does nothing while node_modules matches the lockfile.
set -eu
cd "$(dirname "$0")/.."

stamp=node_modules/.orvelin-lock
if [ -f "$stamp" ] && cmp -s package-lock.json "$stamp"; then
    exit 0
fi
PLAYWRIGHT_SKIP_BROWSER_DOWNLOAD=1 npm ci --no-audit --no-fund --loglevel=error
cp package-lock.json "$stamp"
