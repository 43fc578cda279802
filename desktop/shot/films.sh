#!/usr/bin/env bash
# Makes the pictures and the two short films of the README anew, with what the release build has made.
# Needs ffmpeg.
set -euo pipefail
cd "$(dirname "$0")/../.."
bin=build/release/bin
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
film() { # NAME FROM TO, ms
    "$bin/film" "desktop/shot/$1.txt" "$work/$1" 480 25 "$2" "$3"
    ffmpeg -loglevel error -y -framerate 25 -i "$work/$1/%05d.png" -c:v libwebp_anim -loop 0 -quality 62 \
        -compression_level 6 "docs/$1.webp"
}
film play 550 4200
film ring 29300 40000
"$bin/panelshot" desktop/shot/panel.txt main docs/main.png 800
"$bin/panelshot" desktop/shot/board.txt feature docs/board.png 800
