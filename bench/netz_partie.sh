#!/bin/sh
# Benchmark of the network table: a host and three guests on the loopback play
# N games (default 20) at the fastest pump (--tick 0), against headless
# --autoplay of as many games. Prints games per second for both, best of R runs.
# Usage: bench/netz_partie.sh [TRUMPONA] [N] [R]
set -eu
T=${1:-build/default/src/app/trumpona}
N=${2:-20}
R=${3:-5}
D=$(mktemp -d)
trap 'rm -rf "$D"' EXIT

jetzt() { date +%s.%N; }

netz() {
  timeout 120 "$T" --host --port 0 --auto --guests 3 --games "$N" --seed "$1" --tick 0 >"$D/host.out" 2>"$D/host.err" &
  host=$!
  until grep -q "^Tisch offen auf Port [0-9]*$" "$D/host.err" 2>/dev/null; do sleep 0.01; done
  port=$(sed -n 's/^Tisch offen auf Port //p' "$D/host.err")
  start=$(jetzt)
  pids=
  for n in Anna Bert Carla; do
    timeout 120 "$T" --join "127.0.0.1:$port" --name "$n" --auto --games "$N" --tick 0 >"$D/$n.out" 2>&1 &
    pids="$pids $!"
  done
  wait $host $pids
  ende=$(jetzt)
  for n in Anna Bert Carla; do
    [ "$(cat "$D/$n.out")" = "$(tail -n 1 "$D/host.out")" ] || { echo "stand weicht ab" >&2; exit 1; }
  done
  awk "BEGIN { print $ende - $start }"
}

autoplay() {
  start=$(jetzt)
  "$T" --autoplay "$N" --seed "$1" >/dev/null
  ende=$(jetzt)
  awk "BEGIN { print $ende - $start }"
}

best() { sort -n | head -n 1; }
netzzeit=$(for r in $(seq "$R"); do netz "$r"; done | best)
autozeit=$(for r in $(seq "$R"); do autoplay "$r"; done | best)
awk -v n="$N" -v t="$netzzeit" 'BEGIN { printf "netz:     %d Spiele in %.3f s = %.0f Spiele/s (4 Prozesse, --tick 0)\n", n, t, n / t }'
awk -v n="$N" -v t="$autozeit" 'BEGIN { printf "autoplay: %d Spiele in %.3f s = %.0f Spiele/s\n", n, t, n / t }'
