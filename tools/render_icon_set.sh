#!/usr/bin/env bash
# Renders the icons of a set as bitmaps in the icon list's format: hard edges on the green that is not
# painted.
#
# usage: render_icon_set.sh ART_FOLDER OUTPUT_FOLDER ZOOM
set -euo pipefail
art=$1 output=$2 zoom=$3
rm -rf "$output"
mkdir -p "$output"
for picture in "$art"/*.svg; do
    rsvg-convert -z "$zoom" "$picture" -o "$output/$(basename "$picture" .svg).png"
done
cd "$output"
mogrify-im6.q16 -channel A -threshold 50% +channel -background '#00FF00' -alpha remove -alpha off \
    -type TrueColor -define bmp:format=bmp3 -format bmp ./*.png
rm -f ./*.png
