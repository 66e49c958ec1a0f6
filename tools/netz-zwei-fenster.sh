#!/bin/bash
# Two table windows on a private Xvfb, as two people would use them: one hosts,
# one joins, both play by keyboard (arrow keys and Enter, a wrong card answered
# like any box); the two other seats are the host's computer players. Pictures of both windows go to
# OUTDIR every 2 seconds; after SEKUNDEN the guest's program is killed in the
# middle of its game and the host's window is pictured 30 seconds more, with the
# computer in that seat. Needs: apt-get install xvfb xdotool x11-apps
# Usage: tools/netz-zwei-fenster.sh TRUMPONA OUTDIR [SEKUNDEN]
set -u
T=$1 AUS=$2 SEK=${3:-30}
D=$(mktemp -d)
mkdir -p "$AUS" "$D/h/Trumpona" "$D/g/Trumpona"
# Game messages in the status line rather than boxes.
for k in h g; do printf '[Optionen]\r\nBoxen=0\r\n' >"$D/$k/Trumpona/rupalive.ini"; done
Xvfb -displayfd 3 -screen 0 2100x800x24 3>"$D/anzeige" >/dev/null 2>&1 &
XV=$!
HP= GP=
trap 'kill $HP $GP $XV 2>/dev/null; rm -rf "$D"' EXIT
for _ in $(seq 50); do [ -s "$D/anzeige" ] && break; sleep 0.1; done
export DISPLAY=:$(cat "$D/anzeige")
PORT=$(python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
XDG_CONFIG_HOME=$D/h "$T" --host --port "$PORT" --name Wirt >"$D/host.log" 2>&1 &
HP=$!
sleep 2
XDG_CONFIG_HOME=$D/g "$T" --join "127.0.0.1:$PORT" --name Anna >"$D/gast.log" 2>&1 &
GP=$!
sleep 3
fenster() { xdotool search --all --pid "$1" --name '^Trumpona$' | head -1; }
HW=$(fenster $HP) GW=$(fenster $GP)
xdotool windowsize --sync "$HW" 1024 720 windowmove --sync "$HW" 0 0
xdotool windowsize --sync "$GW" 1024 720 windowmove --sync "$GW" 1050 0
# A word in the chat each, then back to the table.
xdotool mousemove --window "$GW" 300 680 click 1 sleep 0.3 type --window "$GW" --delay 30 'Hallo Wirt, ich bin bereit!'
xdotool key --window "$GW" Return
xdotool mousemove --window "$HW" 300 680 click 1 sleep 0.3 type --window "$HW" --delay 30 'Willkommen, Anna!'
xdotool key --window "$HW" Return
xdotool mousemove --window "$GW" 500 300 click 1 mousemove --window "$HW" 500 300 click 1
# Spiel, "Netzwerkspiel sta&rten".
xdotool windowfocus --sync "$HW" key --window "$HW" alt+s sleep 0.5 key --window "$HW" r
bild() { xwd -id "$1" -silent >"$D/b.xwd" 2>/dev/null && python3 "$(dirname "$0")/xwd2png.py" "$D/b.xwd" "$AUS/$2.png" 2; }
boxen() {  # Enter on every window of the programs but the tables
  for p in "$@"; do
    for w in $(xdotool search --pid "$p" 2>/dev/null); do
      [ "$w" = "$HW" ] || [ "$w" = "$GW" ] && continue
      [ "$(xdotool getwindowgeometry "$w" 2>/dev/null | sed -n 's/.*Geometry: //p')" = 1x1 ] && continue
      xdotool key --window "$w" Return 2>/dev/null
    done
  done
}
ENDE=$(($(date +%s) + SEK)) N=0
while [ "$(date +%s)" -lt "$ENDE" ]; do
  boxen $HP $GP
  xdotool key --window "$GW" Right Return 2>/dev/null
  xdotool key --window "$HW" Right Return 2>/dev/null
  sleep 0.3
  N=$((N + 1))
  [ $((N % 6)) -eq 0 ] && bild "$HW" "host-$N" && bild "$GW" "gast-$N"
done
kill -9 $GP
wait $GP 2>/dev/null
GP=
for i in $(seq 15); do
  for _ in 1 2 3 4 5 6; do
    boxen $HP
    xdotool key --window "$HW" Right Return 2>/dev/null
    sleep 0.3
  done
  bild "$HW" "host-nach-$i"
done
