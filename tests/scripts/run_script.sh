#!/usr/bin/env bash
# run_script.sh TRELVO NAME.tsc: runs the program on a script in a fresh folder, without a window system, and compares
# what it prints with NAME.out. The files of a folder NAME, if there is one, are there for it. A script whose first line
# is "# exit N" has to end with that status, and what it complains of with NAME.err.
set -u
program=$1
script=$(realpath "$2")
expected=${script%.tsc}
status=0
first=$(head -n 1 "$script")
[[ $first =~ ^#\ exit\ ([0-9]+)$ ]] && status=${BASH_REMATCH[1]}

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 1
if [ -d "$expected" ]; then cp "$expected"/* .; fi
env -u DISPLAY -u WAYLAND_DISPLAY XDG_RUNTIME_DIR="$folder" LC_ALL=C.UTF-8 "$program" --folder "$folder" --script "$script" \
  >"$folder/.out" 2>"$folder/.err"
got=$?

failed=0
if [ "$got" -ne "$status" ]; then
  echo "exit status $got instead of $status"
  cat "$folder/.err"
  failed=1
fi
diff -u "$expected.out" "$folder/.out" || failed=1
if [ -e "$expected.err" ]; then
  diff -u "$expected.err" "$folder/.err" || failed=1
fi
exit $failed
