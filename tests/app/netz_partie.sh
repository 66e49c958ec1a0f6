#!/bin/sh
# Four processes on the loopback: a host and three guests, all played by the
# computer, five games. Every process prints the same stand line and the host's
# JSON passes the referee. Usage: netz_partie.sh TRUMPONA PYTHON PRUEFSKRIPT
set -eu
T=$1 PY=$2 PRUEF=$3
D=$(mktemp -d)
PIDS=
HOST=
trap 'kill $HOST $PIDS 2>/dev/null || true; rm -rf "$D"' EXIT

timeout 50 "$T" --host --port 0 --auto --guests 3 --games 5 --seed 3 --json "$D/host.json" --tick 1 \
  >"$D/host.out" 2>"$D/host.err" &
HOST=$!
P=
for _ in $(seq 200); do
  P=$(sed -n 's/^Tisch offen auf Port //p' "$D/host.err" 2>/dev/null || true)
  [ -n "$P" ] && break
  sleep 0.05
done
[ -n "$P" ] || { echo "Der Tisch wurde nicht geöffnet"; cat "$D/host.err"; exit 1; }

for n in Anna Bert Carla; do
  timeout 50 "$T" --join "127.0.0.1:$P" --name "$n" --auto --games 5 --tick 1 >"$D/$n.out" 2>"$D/$n.err" &
  PIDS="$PIDS $!"
done
STATUS=0
wait "$HOST" || { echo "Host: Status $?"; STATUS=1; }
for p in $PIDS; do wait "$p" || { echo "Gast: Status $?"; STATUS=1; }; done

STAND=$(tail -n 1 "$D/host.out")
echo "Host:  $STAND"
case "$STAND" in stand\ 1=*) ;; *) echo "keine stand-Zeile"; STATUS=1 ;; esac
for n in Anna Bert Carla; do
  echo "$n: $(cat "$D/$n.out")"
  [ "$(cat "$D/$n.out")" = "$STAND" ] || STATUS=1
  if grep -q . "$D/$n.err"; then echo "$n meldet:"; cat "$D/$n.err"; STATUS=1; fi
done
"$PY" "$PRUEF" 5 <"$D/host.json" || STATUS=1
exit $STATUS
