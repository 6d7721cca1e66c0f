#!/bin/sh
# Converts a 44.1 kHz stereo WAV and checks the result with soxi; a damaged file
# fails with a message and leaves no output, while the good file still converts.
# Usage: soundconv_test.sh SOUNDCONV
set -u
soundconv="$1"
command -v sox >/dev/null 2>&1 || { echo "soundconv_test: sox is not installed"; exit 77; }
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
fail() {
    echo "soundconv_test: $1"
    exit 1
}

sox -n -r 44100 -c 2 -b 16 "$scratch/chime.wav" synth 1.5 sine 440 sine 660 || fail "sox failed"
head -c 3000 /dev/urandom >"$scratch/broken.wav"
mkdir "$scratch/out"

"$soundconv" -o "$scratch/out" "$scratch/broken.wav" "$scratch/chime.wav" \
    >"$scratch/stdout" 2>"$scratch/stderr"
status=$?
[ "$status" -eq 1 ] || fail "a run with a damaged file ended with status $status"
grep -q "broken.wav" "$scratch/stderr" || fail "the damaged file is not named: $(cat "$scratch/stderr")"
[ ! -e "$scratch/out/broken.au" ] && [ ! -e "$scratch/out/broken.au.part" ] ||
    fail "the damaged file left output behind"

au="$scratch/out/chime.au"
# libsndfile writes the 24-byte header the format allows; sox would grumble about it.
soxi() { command soxi -V1 "$@"; }
[ "$(soxi -r "$au")" = "8000" ] || fail "rate $(soxi -r "$au")"
[ "$(soxi -c "$au")" = "1" ] || fail "channels $(soxi -c "$au")"
soxi -e "$au" | grep -q "u-law" || fail "encoding $(soxi -e "$au")"
[ "$(soxi -s "$au")" = "12000" ] || fail "$(soxi -s "$au") samples for 1.5 seconds"
# Loud enough to be the chime, not silence or noise.
rms=$(sox -V1 "$au" -n stat 2>&1 | awk '/RMS +amplitude/ {print $3}')
awk -v r="$rms" 'BEGIN { exit !(r > 0.3 && r < 0.8) }' || fail "RMS amplitude $rms"

# Without -o the .au lands beside its source.
"$soundconv" "$scratch/chime.wav" >/dev/null || fail "converting beside the source failed"
[ -s "$scratch/chime.au" ] || fail "no chime.au beside the source"
echo "soundconv_test: 8000 Hz mono 8-bit u-law, 1.5 s; the damaged file left nothing"
