#!/usr/bin/env bash
# Plays sounds of trumpona.wav for real through a PulseAudio null sink, records
# the sink's monitor and prints the audible length of each sound beside its
# length in the sound table. Needs pulseaudio, pulseaudio-utils and sox
# (for the measurement only) and a built klangprobe.
#   tools/klang-messen.sh [NUMMER...]        (default: 48 62 61 1)
set -euo pipefail
cd "$(dirname "$0")/.."
probe=${KLANGPROBE:-build/default/src/sound/klangprobe}
nummern=("${@:-48}")
[[ $# -gt 0 ]] || nummern=(48 62 61 1)

tmp=$(mktemp -d)
export PULSE_SERVER="unix:$tmp/pulse.sock"
cat > "$tmp/pa.pa" <<PA
load-module module-null-sink sink_name=messung rate=44100 channels=2
set-default-sink messung
load-module module-native-protocol-unix auth-anonymous=1 socket=$tmp/pulse.sock
PA
pulseaudio -n -F "$tmp/pa.pa" --exit-idle-time=-1 --use-pid-file=no --daemonize=no \
  --log-target=file:"$tmp/pa.log" & pa=$!
trap 'kill $pa 2>/dev/null; wait $pa 2>/dev/null || true; rm -rf "$tmp"' EXIT
for _ in $(seq 50); do pactl info >/dev/null 2>&1 && break; sleep 0.1; done

# A 2 kHz beep wakes the monitor (it delivers only once the sink has played);
# the analysis drops it. A stream running alongside would not do: joining a
# running sink rewinds it, and the monitor then records pieces twice.
sox -n -r 44100 -c 1 "$tmp/beep.wav" synth 0.1 sine 2000 vol 0.3
parec -d messung.monitor --format=s16le --rate=44100 --channels=1 --latency-msec=5 "$tmp/aufnahme.raw" & rec=$!
sleep 0.3
paplay "$tmp/beep.wav"
sleep 0.3
"$probe" assets/trumpona.wav "${nummern[@]}"
sleep 0.3
kill $rec; wait $rec 2>/dev/null || true

python3 - "$tmp/aufnahme.raw" assets/klaenge.txt "${nummern[@]}" <<'PY'
import array, sys
RATE = 44100
a = array.array("h")
a.frombytes(open(sys.argv[1], "rb").read())
schwelle = int(32768 * 10 ** (-45 / 20))   # -45 dBFS counts as audible
luecke = int(0.08 * RATE)                  # pauses inside one sound are shorter
laeufe, anfang, letzter = [], None, None
for i, x in enumerate(a):
    if abs(x) > schwelle:
        if anfang is None:
            anfang = i
        elif i - letzter > luecke:
            laeufe.append((anfang, letzter)); anfang = i
        letzter = i
if anfang is not None:
    laeufe.append((anfang, letzter))
def beep(lauf):
    s, e = lauf
    wechsel = sum(1 for i in range(s + 1, e) if (a[i - 1] < 0) != (a[i] < 0))
    return (e - s) < 0.15 * RATE and 1800 < wechsel / 2 / ((e - s) / RATE) < 2200
laeufe = [l for l in laeufe if not beep(l)]
tabelle, ende = {}, -10
for z in open(sys.argv[2], encoding="utf-8"):
    t = z.split(None, 5)
    if not t or t[0].startswith("#"):
        continue
    s = e = None
    if t[1] != "-":
        s, e = ende + 10, int(t[1]) * 10; ende = e
    if t[2] != "-":
        s, e = (int(x) for x in t[2].split("-"))
    tabelle[int(t[0])] = (s, e, t[3], t[5].strip() if len(t) > 5 else "")
for nr, (s, e) in zip(sys.argv[3:], laeufe):
    a0, a1, art, inhalt = tabelle[int(nr)]
    hoerbar = (e - s + 1) * 1000 / RATE
    if art == "sprache":  # speech is shorter than its segment by design
        urteil = "passt hinein" if hoerbar <= a1 - a0 else "ZU LANG"
    else:
        urteil = f"Abweichung {hoerbar - (a1 - a0):+.1f} ms"
    print(f"Klang {nr:>2} ({art}, {inhalt}): Tabelle {a1 - a0} ms, hörbar {hoerbar:.1f} ms, {urteil}")
if len(laeufe) != len(sys.argv) - 3:
    print(f"Achtung: {len(laeufe)} hörbare Abschnitte für {len(sys.argv) - 3} Klänge")
PY
