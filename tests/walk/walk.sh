#!/usr/bin/env bash
# The first walk through the program: walk.sh TRELVO
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
program=$(realpath "$1")
command -v python3 >/dev/null || { echo "python3 is missing: the file cannot be checked"; exit 77; }
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
python3 "$here/dis_file.py" make sette.DIS
"$program" --folder "$folder" --script "$here/walk.tsc" >output.txt

sed -n '/^--- drawn/,/^filedialog/p' output.txt | grep -E '^[A-Za-z]+ [0-9]+ stato' >drawn.txt
sed -n '/^--- read again/,$p' output.txt | grep -E '^[A-Za-z]+ [0-9]+ stato' >again.txt
[ "$(wc -l <drawn.txt)" = 19 ] || { echo "19 objects wanted"; cat output.txt; exit 1; }
diff drawn.txt again.txt
python3 "$here/dis_file.py" check salvato.DIS
grep -qx 'rapscala = 0.5' output.txt
grep -qx 'distipo.Caption = "salvato.DIS"' output.txt
