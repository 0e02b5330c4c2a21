#!/usr/bin/env bash
# A program that is killed costs no drawing: killed_window.sh TRELVO. What was drawn and not saved is offered at the next
# start, as is the copy that a broken save left; a program that ends as it should leaves nothing behind.
set -euo pipefail
program=$(realpath "$1")
. "$(dirname "$0")/display.sh"

fail() { echo "$1"; find "$folder" -path '*recupero*'; exit 1; }
keys() { xdotool key --delay 60 "$@"; sleep 0.3; }
start() { # ARGUMENTS...
  begin 'Trelvo - ' "$program" --folder "$folder/programma" "$@"
  sleep 0.5
  xdotool windowfocus --sync "$window"
  sleep 0.3
}
line() { # typed, from 0,0
  keys alt+d Return
  xdotool type --delay 30 '0,0'; keys Return
  xdotool type --delay 30 "$1"; keys Return
  keys Escape
}
dies() { # SIGNAL
  kill "-$1" "$running"
  wait "$running" 2>/dev/null || true
  running=
}
leaves() { # the program ends as it should
  keys alt+f Up Return
  for _ in $(seq 50); do
    kill -0 "$running" 2>/dev/null || break
    sleep 0.1
  done
  wait "$running" || fail 'the program did not end'
  running=
  [ ! -e "$folder/programma/recupero" ] || fail 'something is left behind'
}
saves_as() {
  keys alt+f Down Down Down Return
  sleep 0.5
  xdotool type --delay 20 "$1"; keys Return
  sleep 0.5
  xdotool windowfocus --sync "$window"
  sleep 0.3
}
lines_in() {
  printf 'start "%s"\nobjects\n' "$1" | "$program" --folder "$folder" --script - | grep -c '^Linea ' || true
}
expect_lines() { # FILE LINES WHEN
  [ "$(lines_in "$1")" = "$2" ] || fail "$1 has $(lines_in "$1") lines, not $2: $3"
}
drawing=$folder/muro.DIS

start
keys alt+f Return
line '4,4'
line '8,4'
dies TERM
start
keys alt+r
saves_as "$drawing"
expect_lines "$drawing" 2 'a drawing without a name, ended by the system'

line '12,4'
sleep 11
dies KILL
expect_lines "$drawing" 2 'the file itself is as it was saved'
start
keys alt+p
dies KILL
start "$drawing"
keys alt+r
keys alt+f Down Down Return
expect_lines "$drawing" 3 'later changes, killed, put off once, with the file open'
[ ! -e "$drawing~" ] || fail 'the file that was known is kept aside'

# What a kill in the midst of a save leaves.
dies KILL
mv "$drawing" "$drawing~"
(umask 0555 && : >"$drawing")
start
keys alt+r
keys alt+f Down Down Return
expect_lines "$drawing" 3 'a broken save'

line '16,4'
dies TERM
start
keys alt+m
leaves
expect_lines "$drawing" 3 'changes that were given up'
