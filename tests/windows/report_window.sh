#!/usr/bin/env bash
# Drives the window of the report editor: report_window.sh TRELVO. Text, formats and a bullet by keyboard, an undo, a
# save, the end of the program; what was saved is read back by the scripted face.
set -euo pipefail
program=$(realpath "$1")
. "$(dirname "$0")/display.sh"

keys() { xdotool key --delay 60 "$@"; sleep 0.2; }
words() { xdotool type --delay 30 "$1"; sleep 0.2; }

"$program" --folder "$folder" --relazione 2>"$folder/errors" &
running=$!
window=$(xdotool search --sync --onlyvisible --name 'Programma di Videoscrittura' | tail -n 1)
sleep 0.5
xdotool windowfocus --sync "$window"
sleep 0.3
words 'uno '
keys ctrl+b
words 'due'
keys ctrl+b Return ctrl+shift+l
words 'tre'
keys Return Return # an empty point ends the list
words 'quattro'
keys ctrl+a ctrl+c ctrl+End ctrl+v ctrl+z
keys ctrl+s
sleep 0.5
words "$folder/prova.RTF"
keys Return
for _ in $(seq 50); do
  [ -s "$folder/prova.RTF" ] && break
  sleep 0.1
done
sleep 0.3
xdotool windowfocus --sync "$window"
keys ctrl+q
for _ in $(seq 50); do
  kill -0 "$running" 2>/dev/null || break
  sleep 0.1
done
if kill -0 "$running" 2>/dev/null; then
  echo "the program has not ended"
  exit 1
fi
wait "$running"
running=

cat >"$folder/read.tsc" <<'END'
report "prova.RTF"
get videoscritt.RichTextBox1.Text
set videoscritt.RichTextBox1.SelStart 4
set videoscritt.RichTextBox1.SelLength 3
get videoscritt.RichTextBox1.SelBold
set videoscritt.RichTextBox1.SelLength 4
get videoscritt.RichTextBox1.SelBold
set videoscritt.RichTextBox1.SelStart 9
get videoscritt.RichTextBox1.SelBullet
set videoscritt.RichTextBox1.SelStart 14
get videoscritt.RichTextBox1.SelBullet
END
cat >"$folder/expected" <<'END'
videoscritt.RichTextBox1.Text = "uno due\ntre\nquattro"
videoscritt.RichTextBox1.SelBold = -1
videoscritt.RichTextBox1.SelBold = 0
videoscritt.RichTextBox1.SelBullet = -1
videoscritt.RichTextBox1.SelBullet = 0
END
cd "$folder"
"$program" --folder "$folder" --script read.tsc >got
diff -u expected got
