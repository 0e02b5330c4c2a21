#!/usr/bin/env bash
# Makes the sample drawings again by their scripts, and the tour's exports: samples.sh TRELVO. They have to be the same to
# the byte.
set -euo pipefail
program=$(realpath "$1")
samples=$(realpath "$(dirname "$0")/../samples")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
made=0
for script in "$samples"/*.tsc; do
  name=$(basename "$script" .tsc)
  [ "$name" = tour ] && continue
  mkdir "$name"
  (cd "$name" && "$program" --folder . --script "$script" >../output.txt) || { tail -n 5 output.txt; exit 1; }
  ! grep -E '^(error|disabled|msgbox|beep)' output.txt || { echo "$name did not go well"; exit 1; }
  cmp "$samples/$name.DIS" "$name/$name.DIS"
  made=$((made + 1))
done
[ "$made" = 3 ]

mkdir tour
cd tour
cat "$samples/appartamento.tsc" "$samples/tour.tsc" | "$program" --folder . --script - >output.txt
grep -q 'DISTANZA = 794[.,]04' output.txt || { tail -n 5 output.txt; exit 1; }
for result in appartamento.png bagno.png appartamento.dxf appartamento.bmp appartamento.pdf; do
  [ "$(stat -c %s $result)" -gt 1000 ] || { echo "$result is missing"; exit 1; }
done
