#!/usr/bin/env bash
# Makes the pictures of the manual with the program itself: immagini.sh TRELVO. Those of windows want Xvfb, xdotool and
# ImageMagick; without them these pictures stay as they are.
set -euo pipefail
program=$(realpath "$1")
here=$(cd "$(dirname "$0")" && pwd)
samples=$here/../../samples
pictures=$here/immagini
export LC_ALL=C.UTF-8
make=$(mktemp -d)
trap 'rm -rf "$make"' EXIT

(cd "$make" && "$program" --folder "$make" --script "$here/primo.tsc" >/dev/null)
for name in appartamento mozzo prova; do
  printf 'start "%s"\nsize 15000 11250\nmenu selezoom 3\npicture "%s"\n' "$samples/$name.DIS" "$make/$name.png" |
    "$program" --folder "$make/ini" --script - >/dev/null
done
command -v mogrify >/dev/null || { echo "ImageMagick is missing: no pictures"; exit 0; }
trimmed() { mogrify -trim -bordercolor white -border 8 "$@"; }
small() { mogrify -strip +dither -colors "${COLORS:-64}" -define png:compression-level=9 -define png:format=png8 "$@"; }
# The one black point that painting leaves in the corner is no part of a picture of a drawing.
for name in primo appartamento mozzo prova; do
  mogrify -fill white -draw 'point 0,0' "$make/$name.png"
  trimmed "$make/$name.png"
  small "$make/$name.png"
done
cp "$make"/*.png "$pictures"

SCREEN=1280x800
. "$here/../../tests/windows/display.sh"
trap 'cleanup; rm -rf "$make"' EXIT
export LANG=it_IT.UTF-8
cp "$samples/appartamento.DIS" "$folder/Appartamento.DIS"
printf '\002\000' | dd of="$folder/Appartamento.DIS" bs=1 seek=970 conv=notrunc status=none
begin 'Trelvo - ' "$program" --folder "$folder" "$folder/Appartamento.DIS"
frame=$window
focus() { xdotool windowfocus --sync "$1"; sleep 0.3; }
keys() { xdotool key --delay 60 "$@"; sleep 0.3; }
shot() { import -window "$2" "$folder/$1.png"; small "$folder/$1.png"; cp "$folder/$1.png" "$pictures"; }
dialog() { # PICTURE TITLE: takes the dialog that opens, and leaves it
  local found
  found=$(timeout 20 xdotool search --sync --onlyvisible --name "$2" | tail -n 1)
  focus "$found"
  shot "$1" "$found"
  keys Escape
  focus "$frame"
}
menu() { # ALT-KEY ITEM [SUB-ITEM]
  keys "alt+$1"
  for _ in $(seq 2 "$2"); do keys Down; done
  if [ $# -gt 2 ]; then
    keys Right
    for _ in $(seq 2 "$3"); do keys Down; done
  fi
  keys Return
}
sleep 1
focus "$frame"
menu d 1
xdotool mousemove 500 400 click 1; sleep 0.3
xdotool mousemove 640 300; sleep 0.5
COLORS=96 shot finestra root
keys Escape
menu a 1
dialog impostazioni 'Impostazioni Generali'
menu a 2 1
dialog linee 'Linee, Polilinee, Archi'
menu a 2 2
dialog superfici 'Superfici, Rettangoli, Cerchi'
menu d 4
xdotool mousemove 300 300 click 1; sleep 0.5
focus "$(timeout 20 xdotool search --sync --onlyvisible --name 'Inserisci Testo' | tail -n 1)"
xdotool type --delay 20 'Terrazza'
dialog testo 'Inserisci Testo'
menu f 7
focus "$(timeout 20 xdotool search --sync --onlyvisible --name 'Gestione stampa' | tail -n 1)"
keys ctrl+a
xdotool type --delay 30 '0.15'
dialog stampa 'Gestione stampa'

end
begin 'Programma di Videoscrittura' "$program" --folder "$folder" --relazione
sleep 0.5
xdotool windowsize "$window" 900 420
focus "$window"
text() { xdotool type --delay 15 "$1"; }
keys ctrl+e ctrl+b
text 'Relazione tecnica'
keys ctrl+b Return ctrl+l
text 'Appartamento tipo A, piano primo. Superficie utile: 63 m'
keys ctrl+shift+p
text '2'
keys ctrl+shift+p
text '. La tavola A.01 riporta:'
keys Return ctrl+shift+l
text 'la pianta arredata, in scala 1:50;'
keys Return
text 'le misure delle stanze, in centimetri.'
shot relazione "$window"
