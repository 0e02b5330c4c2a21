#!/usr/bin/env bash
# Opens a drawing named on the command line in each way: open_files.sh TRELVO. Its name shows in the title, since the
# drawing was saved maximised.
set -euo pipefail
program=$(realpath "$1")
. "$(dirname "$0")/display.sh"

cd "$folder"
name='Casa à Forlì, 2° piano.DIS'
mkdir 'due parole'
printf 'menu gestfile 1\nmenu opdis 1\nleft 1 2\nleft 5 6\nright 0 0\nfile "%s"\nmenu opfile 4\n' "$folder/due parole/$name" |
  "$program" --folder "$folder" --script - >/dev/null
printf '\002\000' | dd of="due parole/$name" bs=1 seek=970 conv=notrunc status=none
cp "due parole/$name" -- '-strano.dis'

failed=0
try() { # TITLE ARGUMENTS...
  local title=$1
  shift
  if begin "Trelvo - .*$title" "$program" --folder "$folder" "$@"; then echo "opened: $*"; else
    echo "not opened: $*"
    xdotool search --onlyvisible --name Trelvo getwindowname || true
    failed=1
  fi
  end
}
try 'Casa à Forlì, 2° piano' "due parole/$name"
try 'Casa à Forlì, 2° piano' "$folder/due parole/$name"
try 'Casa à Forlì, 2° piano' "\"$folder/due parole/$name\""
try 'Casa à Forlì, 2° piano' "\"due parole/$name\""
try 'Casa à Forlì, 2° piano' "./due parole/../due parole/$name"
(cd 'due parole' && ln -s "$name" collegamento.DIS)
try collegamento 'due parole/collegamento.DIS'
try strano -- '-strano.dis'
# What is not there starts the program without a drawing.
try 'Versione [0-9.]*$' 'non esiste.DIS'
exit $failed
