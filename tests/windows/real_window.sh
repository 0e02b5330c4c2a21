#!/usr/bin/env bash
# Drives the real window: real_window.sh TRELVO. In the second of two documents: a line by mouse, one by typed
# coordinates, a text, a zoom, a save by keyboard; what was saved is read back by the scripted face.
set -euo pipefail
program=$(realpath "$1")
. "$(dirname "$0")/display.sh"

"$program" --folder "$folder" 2>"$folder/errors" &
running=$!
window=$(xdotool search --sync --onlyvisible --name 'Trelvo - ' | tail -n 1)

keys() { xdotool key --delay 60 "$@"; sleep 0.2; }
menu() { # menu ALT-KEY ITEM, from 1
  keys "alt+$1"
  for _ in $(seq 2 "$2"); do keys Down; done
  keys Return
}
point() { xdotool mousemove "$1" "$2"; sleep 0.2; xdotool click 1; sleep 0.2; }

sleep 0.5
xdotool windowfocus --sync "$window"
sleep 0.3
menu f 1                # Nuovo
sleep 0.5
menu f 1                # another one: what follows stays in it
sleep 0.5
menu d 1                # Linea
point 300 250
point 420 330
xdotool click 3; sleep 0.2
menu d 1
keys Tab                # to the drawing, which passes on what is typed
xdotool type --delay 30 '4,4'; keys Return
xdotool type --delay 30 '20,12.5'; keys Return
keys Escape
menu d 4                # Testo
point 500 450
focus_dialog() { xdotool windowfocus --sync "$(xdotool search --sync --onlyvisible --name "$1" | tail -n 1)"; sleep 0.2; }
focus_dialog 'Inserisci Testo'
xdotool type --delay 30 'Muro'; keys Return
xdotool windowfocus --sync "$window"
menu v 2                # Zoom Tutto
menu f 4                # Salva con Nome
sleep 0.5
xdotool type --delay 20 "$folder/finestra.DIS"; keys Return
for _ in $(seq 50); do
  [ -s "$folder/finestra.DIS" ] && break
  sleep 0.1
done
kill -0 "$running" || { echo "the program ended"; cat "$folder/errors"; exit 1; }

unset DISPLAY
printf 'start "%s"\nobjects\n' "$folder/finestra.DIS" | "$program" --folder "$folder" --script - >"$folder/read.txt"
cat "$folder/read.txt"
# Clicks and typed points pass through the window's own units: six decimals are what they keep.
rounded() {
  grep "^Linea $1 " "$folder/read.txt" | tr ' ' '\n' | LC_ALL=C awk -F= '/^[XY][if]=/ { printf "%s=%.4f ", $1, $2 }'
}
[ "$(grep -c '^Linea ' "$folder/read.txt")" = 2 ]
[ "$(rounded 2)" = 'Xi=4.0000 Yi=4.0000 Yf=12.5000 Xf=20.0000 ' ]
# The clicks fell on the step.
rounded 1 | grep -Eq '^Xi=[0-9]+\.0000 Yi=[0-9]+\.0000 Yf=[0-9]+\.0000 Xf=[0-9]+\.0000 $'
grep -q '^testo 1 .*carattere_testo="Arial" .*stringa_testo="Muro *"' "$folder/read.txt"
