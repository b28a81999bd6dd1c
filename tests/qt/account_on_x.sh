#!/usr/bin/env bash
# The window of an account on a real X server, worked by keys alone: two parameters are changed and stored, one after the
# other. $HOST is the program with windows, $ACCOUNT an account that begins with the zones 5 and 12.
set -euo pipefail

work=$(mktemp -d)
started=()
finish() {
  ((${#started[@]})) && kill "${started[@]}" 2>/dev/null
  wait
  rm -rf "$work"
}
trap finish EXIT

fail() {
  printf '%s\n' "$@" >&2
  cat "$work"/*.log >&2
  exit 1
}

for program in Xvfb xdotool; do
  command -v "$program" >"$work/which.log" || fail "There is no $program; ./test installs it."
done

# The server takes a free number, and tells it when it is ready. It must not begin anew when a first search is gone before
# the program came.
mkfifo "$work/number"
Xvfb -displayfd 3 -noreset -nolisten tcp 3>"$work/number" >"$work/server.log" 2>&1 &
started+=($!)
read -r number <"$work/number" || fail "Xvfb does not start."
export DISPLAY=:$number QT_QPA_PLATFORM=xcb XDG_CONFIG_HOME=$work
unset WAYLAND_DISPLAY

account=$work/account.json
cp "$ACCOUNT" "$account"
"$HOST" account "$account" --language en --drives "$work" >"$work/host.log" 2>&1 &
host=$!
started+=("$host")

# Tells whether a visible window has the title. The search asks every window of the server, and is cut short where one goes
# meanwhile: then it has told nothing, and is made anew.
shows() {
  kill -0 "$host" || fail "The program ended before \"$1\"."
  while ! xdotool search --onlyvisible --name "$1" >"$work/found" 2>"$work/search.log"; do
    [[ -s $work/search.log ]] || return 1
  done
}
# Waits for a window and gives it the keyboard, as no window manager is there to do.
window_titled() {
  local end=$((SECONDS + 60))
  until shows "$1" && timeout 10 xdotool windowfocus --sync "$(head -1 "$work/found")" 2>"$work/search.log"; do
    ((SECONDS < end)) || fail "The program did not come to show \"$1\"."
  done
}
press() { xdotool key --delay 1 "$@"; }
# An editor is closed before its value is stored, and the next one opens after that.
until_closed() {
  while shows "$1"; do :; done
}
expect() { grep -qF "$1" "$account" || fail "The account holds no $1." "$(head -60 "$account")"; }
until_holds() {
  until grep -qF "$1" "$account"; do
    kill -0 "$host" || fail "The program ended."
    ((SECONDS < 60)) || expect "$1"
  done
}

window_titled '^Account of panel'
press Return
window_titled '^Zone Function$'
press Up Up Return # the first digit from 5 to 3
until_closed '^Zone Function$'
window_titled '^Account of panel'
press Down Return
window_titled '^Edit Zone 12$'
press Down Return # the type from 3 to 4
until_closed '^Edit Zone 12$'
window_titled '^Account of panel'
until_closed '^Edit Zone 12$'
window_titled '^Account of panel'
press ctrl+z
until_holds '"vType": "3"'
press ctrl+z ctrl+shift+z
until_holds '"ZoneCode": "\"3146\""'
press ctrl+shift+z
until_holds '"vType": "4"'
