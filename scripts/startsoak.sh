#!/usr/bin/env bash
# scripts/startsoak.sh [STARTS] [offscreen|xvfb] [PROGRAM]
# Starts the game STARTS times (default 300) and ends each start through its
# menu after a varying time (0 to 2.5 s, so the end falls into every stage of
# the start-up), as a person would: close the open box, then "Beenden". The
# configuration folders take turns: a fresh one, one the program has used
# before (welcome screen each time), and one whose options file deals at once.
# Every start must end with status 0 within 60 s; a signal (SIGABRT, a
# sanitizer's report), a hang or any other status fails the soak. PROGRAM
# defaults to the sanitizer build, else the default build. With "xvfb" one X
# server is started for the whole soak (installed when missing).
set -euo pipefail
cd "$(dirname "$0")/.."
starts=${1:-300}
plattform=${2:-offscreen}
programm=${3:-}
if [ -z "$programm" ]; then
  programm=build/asan/src/app/trumpona
  [ -x "$programm" ] || programm=build/default/src/app/trumpona
fi
[ -x "$programm" ] || { echo "no program at $programm: build first" >&2; exit 2; }

# Under the sanitizers: every report fails the start; the libraries' own
# lasting allocations are not ours to report.
export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1:detect_stack_use_after_return=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
export LSAN_OPTIONS=${LSAN_OPTIONS:-suppressions=$PWD/scripts/lsan-ausnahmen.txt:print_suppressions=0}
# Under X, libxcb hands strndup a buffer that ends without a NUL, which is allowed;
# the strict string checks of the test preset would report it as ours.
[ "$plattform" = xvfb ] && ASAN_OPTIONS+=":strict_string_checks=0"

arbeit=$(mktemp -d)
xvfb_pid=
aufraeumen() {
  [ -n "$xvfb_pid" ] && kill "$xvfb_pid" 2>/dev/null && wait "$xvfb_pid" 2>/dev/null
  rm -rf "$arbeit"
}
trap aufraeumen EXIT

umgebung=(env -u WAYLAND_DISPLAY)
case "$plattform" in
  offscreen) umgebung+=(-u DISPLAY QT_QPA_PLATFORM=offscreen) ;;
  xvfb)
    command -v Xvfb >/dev/null || scripts/install-deps.sh xvfb
    # -displayfd hands back the display number once the server takes connections.
    Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$arbeit/anzeige" 2>"$arbeit/xvfb.log" &
    xvfb_pid=$!
    for _ in $(seq 100); do [ -s "$arbeit/anzeige" ] && break; sleep 0.1; done
    [ -s "$arbeit/anzeige" ] || { echo "Xvfb did not start" >&2; cat "$arbeit/xvfb.log" >&2; exit 2; }
    umgebung+=(-u QT_QPA_PLATFORM DISPLAY=":$(cat "$arbeit/anzeige")") ;;
  *) echo "usage: scripts/startsoak.sh [STARTS] [offscreen|xvfb] [PROGRAM]" >&2; exit 2 ;;
esac

# A folder that deals at once: no welcome screen, a computer seat leads.
mkdir -p "$arbeit/sofort/Trumpona" "$arbeit/benutzt"
printf '[Optionen]\r\nProgramm=Trumpona\r\nVersionsnr=200\r\nWillkommen=0\r\nVorhand=2\r\n' \
  >"$arbeit/sofort/Trumpona/rupalive.ini"

fehler=0
for i in $(seq 1 "$starts"); do
  case $((i % 3)) in
    1) ordner="$arbeit/frisch"; rm -rf "$ordner"; mkdir -p "$ordner" ;;
    2) ordner="$arbeit/benutzt" ;;
    0) ordner="$arbeit/sofort" ;;
  esac
  nach=$(( (i * 7919) % 2500 ))
  status=0
  # The data folder (automatic save) goes with the configuration folder, never the real one.
  "${umgebung[@]}" XDG_CONFIG_HOME="$ordner" XDG_DATA_HOME="$ordner/daten" TRUMPONA_BEENDEN_NACH="$nach" \
    timeout -k 5 60 "$programm" >"$arbeit/ausgabe" 2>&1 || status=$?
  if [ "$status" -ne 0 ]; then
    fehler=$((fehler + 1))
    case $status in
      124) grund="did not end within 60 s" ;;
      134) grund="SIGABRT" ;;
      *) grund="status $status" ;;
    esac
    echo "start $i ($(basename "$ordner") folder, quit after $nach ms): $grund" >&2
    tail -40 "$arbeit/ausgabe" >&2
  fi
done
echo "$starts starts ($plattform, $programm): $fehler failed"
[ "$fehler" -eq 0 ]
