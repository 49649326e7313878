#!/bin/sh
# Renders the PNG and ICO files of this folder from its SVG files again.
# Needs rsvg-convert and icotool (Debian: librsvg2-bin, icoutils).
set -eu

cd "$(dirname "$0")"

for tool in rsvg-convert icotool; do
    if ! command -v "$tool" >/dev/null; then
        echo "render_icons.sh: $tool is missing (Debian: librsvg2-bin, icoutils)" >&2
        exit 1
    fi
done

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# render SVG SIZE PNG
render() {
    rsvg-convert --width "$2" --height "$2" --output "$3" "$1"
}

for size in 16 32 48 64 128 256; do
    render vemosud2.svg $size vemosud2-$size.png
done
# The largest image of an application icon is stored as PNG, the way Windows wants it.
icotool --create --output vemosud2.ico \
    vemosud2-16.png vemosud2-32.png vemosud2-48.png --raw=vemosud2-256.png

for size in 32 48 64; do
    render brush.svg $size "$scratch/brush-$size.png"
done
icotool --create --output Brush.ico "$scratch"/brush-*.png
