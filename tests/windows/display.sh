# Sourced: a display of its own for the test, in $DISPLAY; $folder is a fresh folder. Both go away at the end, with what
# the test started by `begin`. Ends with 77 where a tool is missing.
for tool in Xvfb xdotool; do
  command -v $tool >/dev/null || { echo "$tool is missing: the window is not tried"; exit 77; }
done
folder=$(mktemp -d)
exec 3<>"$folder/.display"
# A server that resets as its last client leaves would refuse the next one.
Xvfb -displayfd 3 -noreset -screen 0 "${SCREEN:-1280x800}x24" >/dev/null 2>&1 &
server=$!
running=
end() {
  [ -z "$running" ] || { kill "$running" 2>/dev/null; wait "$running" 2>/dev/null; } || true
  running=
}
cleanup() {
  end
  kill "$server" 2>/dev/null
  wait 2>/dev/null || true
  rm -rf "$folder"
}
trap cleanup EXIT
for _ in $(seq 100); do
  [ -s "$folder/.display" ] && break
  sleep 0.1
done
export DISPLAY=":$(tr -d '\n' <"$folder/.display")" QT_QPA_PLATFORM=xcb

# Runs a program in the background and waits for its window; `window` is its number.
begin() { # TITLE PROGRAM ARGUMENTS...
  local title=$1
  shift
  "$@" 2>"$folder/.errors" 3>&- &
  running=$!
  for _ in $(seq 100); do
    window=$(xdotool search --onlyvisible --name "$title" 2>/dev/null | tail -n 1) && [ -n "$window" ] && break
    kill -0 "$running" 2>/dev/null || { cat "$folder/.errors"; return 1; }
    sleep 0.1
  done
  [ -n "$window" ]
}
