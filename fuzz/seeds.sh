#!/usr/bin/env bash
# Makes the first inputs of all fuzz targets, a folder for each: fuzz/seeds.sh OUTDIR [TARVE-BATCH].
# They are files of this program's own making, so they always have the present form.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
out=${1:?usage: fuzz/seeds.sh OUTDIR [TARVE-BATCH]}
batch=${2:-$here/build/fuzz/src/tarve-batch}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$batch" patterns "$here/data/hulls/pram.tvh" --into "$scratch" --text --deck --keel --soles --stem --spar \
  --frame 40 --date 11-16-2026 --time 12:34:56 >/dev/null

seeds() {  # TARGET FILE...: copies the files to the target's seeds
  mkdir -p "$out/$1"
  cp "${@:2}" "$out/$1"
}
seed() {  # TARGET NAME: standard input as a seed of the target
  mkdir -p "$out/$1"
  cat >"$out/$1/$2"
}

for target in hull chain; do
  seeds $target "$here"/data/hulls/*.tvh
  head -62 "$here/data/hulls/pram.tvh" | seed $target older.tvh
done

{ printf ' %s \r\n' 1 0 1 0 0 1 0 0 1 1; printf '/home/me/boats\r\n'; } | seed settings hull.dat

for target in leveling dxf hpgl; do
  seeds $target "$scratch"/{bhead1,transom,stem,4x8}.uc
  head -60 "$scratch/chine1.uc" | seed $target panel.uc
  printf '%s\r\n' start_plot pendown '0 0 aline' start_spline '10 -20 spline_pt' '30 40 spline_pt' end_spline \
    '1000 2000 acut' penup '/* hand plot */' '-5 .5 acut' end_plot | seed $target spline.uc
done

seeds expansion "$scratch"/{chine1,deck,keel}.tri
seeds font "$here/data/pedit.fnt"
head -12 "$here/data/pedit.fnt" | seed font short.fnt

printf '500, 500\r\n' | seed calibration usual.dat
printf -- '-1016 1016\n' | seed calibration blank.dat
printf '0\r\n1E3\r\n' | seed calibration lines.dat

seeds nest "$scratch/handplot.txt"
printf '%s\r\n' 'Hand plotting file for boat.tvh' 'X in.         Y in.' 'a.uc          ____' '0.00          0.00' \
  '300.00        0.0000' '300.00        4.0000' 'b.uc          ____' '-6.00         12.50' '' | seed nest short.txt

printf '%s' '{"sheet": {"height": 40.5, "length": 100, "count": 4}, "parts": [{"name": "deck.uc", "x": 48, "y": 24,' \
  ' "turn": 90, "flip": true, "copy": {"x": 140, "y": 24, "turn": -0.25}}]}' | seed layout copy.json
printf '%s' '{"parts": [{"name": "transom.uc", "x": 1e2, "y": -3}, {"name": "Chine1.UC", "x": 7, "y": 0}]}' |
  seed layout plain.json

seeds figures "$here/data/persons.fig"
printf '%s\r\n' start Short '1 2' 'no_blank' '-3.5 1E3' end start Last '5 6' | seed figures short.fig
