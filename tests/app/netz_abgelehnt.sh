#!/bin/sh
# Refused starts end with status 2 and the German message; a host lost in the
# middle of a game ends the guest with status 3. Usage: netz_abgelehnt.sh TRUMPONA PYTHON
set -u
T=$1 PY=$2
D=$(mktemp -d)
HOST1=
HOST2=
trap 'kill $HOST1 $HOST2 2>/dev/null; rm -rf "$D"' EXIT
FEHLER=0

# erwarte STATUS TEXT BEFEHL...: runs the command, compares exit status and standard error.
erwarte() {
  soll=$1 text=$2
  shift 2
  timeout 30 "$@" >"$D/out" 2>"$D/err"
  ist=$?
  if [ "$ist" -ne "$soll" ] || ! grep -qF "$text" "$D/err"; then
    echo "FEHLER: $* -> Status $ist, erwartet $soll mit: $text"
    cat "$D/err"
    FEHLER=1
  fi
}

offen() {  # waits for the port line of a host writing to $1
  for _ in $(seq 200); do
    P=$(sed -n 's/^Tisch offen auf Port //p' "$1" 2>/dev/null || true)
    [ -n "$P" ] && return 0
    sleep 0.05
  done
  return 1
}

# A host that waits for a guest who never comes holds the port.
timeout 30 "$T" --host --port 0 --auto --guests 3 --games 1 --name Gastgeber >/dev/null 2>"$D/host1.err" &
HOST1=$!
offen "$D/host1.err" || { echo "Host startet nicht"; exit 1; }
erwarte 2 "Netzwerkfehler! " "$T" --host --port "$P" --auto --guests 1 --games 1
erwarte 2 "gastgeber ist bereits vergeben!" "$T" --join "127.0.0.1:$P" --name gastgeber --auto
erwarte 2 "Spieler2 ist kein gülter Name bei Netzwerkspielen!" "$T" --join "127.0.0.1:$P" --name Spieler2 --auto
erwarte 2 "Bitte nicht mehr als 13 Zeichen für Ihren Namen eingeben!" "$T" --join "127.0.0.1:$P" --name Computerfreund --auto
erwarte 2 "computer1 ist kein gültiger Name!" "$T" --join "127.0.0.1:$P" --name computer1 --auto

FREI=$("$PY" -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
erwarte 2 "Der Rechner 127.0.0.1 konnte nicht erreicht werden!" "$T" --join "127.0.0.1:$FREI" --name Anna --auto

# The host goes away in the middle of the first game: at one message per 200 ms
# the game has only begun half a second after it started.
"$T" --host --port 0 --auto --guests 1 --games 50 --tick 200 >/dev/null 2>"$D/host2.err" &
HOST2=$!
offen "$D/host2.err" || { echo "Host startet nicht"; exit 1; }
(
  for _ in $(seq 400); do grep -q "Die Partie beginnt" "$D/host2.err" && break; sleep 0.05; done
  sleep 0.5
  kill -9 "$HOST2"
) &
erwarte 3 "Die Verbindung zum Tischinhaber ist unterbrochen!" "$T" --join "127.0.0.1:$P" --name Anna --auto --tick 1
exit $FEHLER
