#!/usr/bin/env bash
# scripts/fuzz.sh [SECONDS [INPUTS [TARGET...]]]
# Builds every fuzz target (preset "fuzz": clang, libFuzzer, AddressSanitizer,
# UBSan) and runs each for SECONDS (default 60), one after the other and with
# low priority; with INPUTS (0: no limit) a target stops as soon as it has run
# that many, and naming TARGETs runs only those. New inputs that reach new code are merged into the target's
# corpus under fuzz/korpus/<target>/, so the corpora grow from run to run.
# Prints each target's inputs and rate; a crash, a leak or an input slower than
# 10 s stops that target, its input is kept in build/fuzz/funde/ and the script
# ends with status 1. Targets are found, not listed: whatever the fuzz build
# puts into build/fuzz/fuzzziele/ is run.
set -euo pipefail
cd "$(dirname "$0")/.."
sekunden=${1:-60}
laeufe_hoechstens=${2:-0}
nur=("${@:3}")

[[ $sekunden =~ ^[0-9]+$ && $laeufe_hoechstens =~ ^[0-9]+$ ]] ||
  { echo "usage: scripts/fuzz.sh [SECONDS [INPUTS [TARGET...]]]" >&2; exit 2; }
laeufe_arg=$laeufe_hoechstens
[ "$laeufe_arg" -gt 0 ] || laeufe_arg=-1  # libFuzzer's "no limit"

# clang and libFuzzer's runtime are needed here only, not by the ordinary build.
scripts/install-deps.sh
scripts/install-deps.sh clang libclang-rt-14-dev

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz

ziele=build/fuzz/fuzzziele
funde=build/fuzz/funde
mkdir -p "$funde"
neu=$(mktemp -d)
trap 'rm -rf "$neu"' EXIT

fehler=()
zusammenfassung=()
for programm in "$ziele"/*; do
  [ -f "$programm" ] && [ -x "$programm" ] || continue
  name=$(basename "$programm")
  if [ ${#nur[@]} -gt 0 ] && [[ ! " ${nur[*]} " =~ " $name " ]]; then continue; fi
  korpus=fuzz/korpus/$name
  mkdir -p "$korpus"
  vorher=$(find "$korpus" -type f | wc -l)
  rm -rf "${neu:?}"/* && mkdir -p "$neu/$name"
  protokoll=$funde/$name.log
  echo "== $name: $sekunden s, corpus $korpus ($vorher files)"
  status=0
  beginn=$(date +%s.%N)
  # New inputs go to the first folder; the corpus itself is only read here.
  nice "$programm" -max_total_time="$sekunden" -runs="$laeufe_arg" -timeout=10 -print_final_stats=1 \
    -artifact_prefix="$funde/$name-" "$neu/$name" "$korpus" >"$protokoll" 2>&1 || status=$?
  laeufe=$(sed -n 's/^stat::number_of_executed_units: *//p' "$protokoll")
  dauer=$(awk -v a="$beginn" -v b="$(date +%s.%N)" 'BEGIN { printf "%.1f", b - a }')
  rate=$(awk -v n="${laeufe:-0}" -v t="$dauer" 'BEGIN { printf "%.0f", n / (t > 0 ? t : 1) }')
  # Keep only what adds coverage to the corpus.
  nice "$programm" -merge=1 "$korpus" "$neu/$name" >>"$protokoll" 2>&1 || true
  nachher=$(find "$korpus" -type f | wc -l)
  zeile="$name: ${laeufe:-?} inputs in $(printf %.0f "$dauer") s, ${rate:-?} per second, corpus $vorher -> $nachher files"
  if [ "$status" -ne 0 ]; then
    zeile="$zeile, FAILED (status $status, see $protokoll)"
    fehler+=("$name")
    grep -E '^(==[0-9]+==ERROR|SUMMARY|.*runtime error|artifact_prefix|Test unit written)' "$protokoll" | head -20 || true
  fi
  echo "$zeile"
  zusammenfassung+=("$zeile")
done

[ ${#zusammenfassung[@]} -gt 0 ] || { echo "no fuzz targets in $ziele" >&2; exit 1; }
echo
printf '%s\n' "${zusammenfassung[@]}"
[ ${#fehler[@]} -eq 0 ] || { echo "crashes in: ${fehler[*]}" >&2; exit 1; }
