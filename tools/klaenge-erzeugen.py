#!/usr/bin/env python3
"""Lays out assets/trumpona.wav from the sound table assets/klaenge.txt.

German speech comes from espeak-ng (voice "de"), the effects are synthesised
with sox. Run once by a developer after changing the table or a sound; the
output is committed, so neither tool is needed to build or run the program.

    tools/klaenge-erzeugen.py [--ausgabe DATEI]
"""
import argparse
import array
import os
import shutil
import subprocess
import sys
import tempfile
import wave

RATE = 22050
ABSTAND_MS = 10        # silence between two sounds of the consecutive run
LAUF_ENDE = 57         # sounds 1..57 run one after the other
SPRACHRAND_MS = 20     # speech starts this late and ends at least this early
EFFEKTRAND_MS = 2      # effects fill their slice up to this margin
PEGEL = 0.5            # peak level of speech and effects (about -6 dBFS)

WURZEL = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def tabelle_lesen(pfad):
    """Rows of the sound table with their start and end in ms, as the program builds them."""
    eintraege = []
    lauf_ende = -ABSTAND_MS
    with open(pfad, encoding="utf-8") as f:
        for zeile in f:
            if not zeile.strip() or zeile.lstrip().startswith("#"):
                continue
            teile = zeile.split(None, 5)
            nr, ende, fest, art, name = teile[:5]
            inhalt = teile[5].strip() if len(teile) > 5 else ""
            nr = int(nr)
            if nr != len(eintraege) + 1:
                sys.exit(f"Klangtabelle: Nummer {len(eintraege) + 1} erwartet, {nr} gefunden")
            start = stop = None
            if ende != "-":
                start, stop = lauf_ende + ABSTAND_MS, int(ende) * 10
                lauf_ende = stop
            if fest != "-":
                start, stop = (int(x) for x in fest.split("-"))
            eintraege.append(dict(nr=nr, start=start, ende=stop, art=art, name=name, inhalt=inhalt))
    if len(eintraege) != 63 or any(e["nr"] <= LAUF_ENDE and e["ende"] is None for e in eintraege):
        sys.exit("Klangtabelle unvollständig")
    return eintraege


def sox_roh(argumente):
    """Runs sox with mono 16-bit raw output at RATE and returns the samples."""
    ausgabe = subprocess.run(["sox", "-R"] + argumente[:-1] + ["-r", str(RATE), "-c", "1", "-b", "16", "-e", "signed",
                                                          "-t", "raw", "-"] + argumente[-1],
                             check=True, capture_output=True).stdout
    werte = array.array("h")
    werte.frombytes(ausgabe)
    if sys.byteorder != "little":
        werte.byteswap()
    return werte


def sprache(text, dauer_ms, tmp):
    """The spoken text, trimmed, fitted into dauer_ms without its margins."""
    roh = os.path.join(tmp, "sprache.wav")
    subprocess.run(["espeak-ng", "-v", "de", "-s", "150", "-w", roh, text], check=True)
    trim = ["silence", "1", "0.01", "0.5%", "reverse", "silence", "1", "0.01", "0.5%", "reverse"]
    werte = sox_roh([roh, trim])
    platz = (dauer_ms - 2 * SPRACHRAND_MS) * RATE // 1000
    if len(werte) > platz:
        werte = sox_roh([roh, trim + ["tempo", "-s", "%.3f" % (len(werte) / platz * 1.02)]])
    return werte[:platz]


def toene(noten, dauer):
    """Notes (frequency, share of the length) as triangle tones, each held to its end."""
    teile, summe = [], sum(a for _, a in noten)
    for frequenz, anteil in noten:
        d = dauer * anteil / summe
        teile.append(["synth", "%.4f" % d, "triangle", str(frequenz), "fade", "q", "0.004", "%.4f" % d, "0.008"])
    werte = array.array("h")
    for t in teile:
        werte.extend(sox_roh(["-n", t]))
    return werte


def effekt(name, dauer_ms):
    d = (dauer_ms - 2 * EFFEKTRAND_MS) / 1000
    dd = "%.4f" % d
    if name == "karte":  # a card snapped onto the table
        return sox_roh(["-n", ["synth", dd, "pinknoise", "band", "2500", "1500", "fade", "h", "0.001", dd, "0.02"]])
    if name == "stich":  # the cards of a trick pushed together
        return sox_roh(["-n", ["synth", dd, "pinknoise", "band", "1200", "900", "fade", "h", "0.06", dd, "0.08"]])
    if name == "spieler-kommt":
        return toene([(659, 1), (880, 1.2)], d)
    if name == "spieler-geht":
        return toene([(880, 1), (659, 1.2)], d)
    if name == "verloren":
        return toene([(392, 1), (311, 1), (262, 1.4)], d)
    if name == "gewonnen":
        return toene([(523, 1), (659, 1), (784, 1), (1047, 3)], d)
    if name == "signal":
        return toene([(659, 1), (523, 1.2)], d)
    sys.exit(f"kein Rezept für den Effekt {name}")


def normieren(werte):
    spitze = max((abs(w) for w in werte), default=0)
    if spitze == 0:
        return werte
    f = PEGEL * 32767 / spitze
    return array.array("h", (int(w * f) for w in werte))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--tabelle", default=os.path.join(WURZEL, "assets", "klaenge.txt"))
    parser.add_argument("--ausgabe", default=os.path.join(WURZEL, "assets", "trumpona.wav"))
    args = parser.parse_args()
    for programm in ("espeak-ng", "sox"):
        if not shutil.which(programm):
            sys.exit(f"{programm} fehlt (apt-get install espeak-ng sox)")

    eintraege = tabelle_lesen(args.tabelle)
    laenge_ms = max(e["ende"] for e in eintraege)
    spur = array.array("h", bytes(2 * (-(-laenge_ms * RATE // 1000))))  # up to the last frame begun
    with tempfile.TemporaryDirectory() as tmp:
        for e in eintraege:
            dauer = e["ende"] - e["start"]
            if e["art"] == "sprache":
                werte, rand = sprache(e["inhalt"], dauer, tmp), SPRACHRAND_MS
            elif e["art"] == "effekt":
                werte, rand = effekt(e["name"], dauer), EFFEKTRAND_MS
            else:
                continue  # frei, leer, or a cut out of another sound
            werte = normieren(werte)
            anfang = (e["start"] + rand) * RATE // 1000
            grenze = e["ende"] * RATE // 1000
            if anfang + len(werte) > grenze:
                sys.exit(f"Klang {e['nr']} passt nicht in sein Segment")
            spur[anfang:anfang + len(werte)] = werte
            print(f"{e['nr']:2} {e['start']:6}-{e['ende']:<6} {e['art']:8} {1000 * len(werte) // RATE:5} ms  "
                  f"{e['inhalt']}")

    if sys.byteorder != "little":
        spur.byteswap()
    with wave.open(args.ausgabe, "wb") as w:
        w.setnchannels(1)
        w.setsampwidth(2)
        w.setframerate(RATE)
        w.writeframes(spur.tobytes())
    print(f"{args.ausgabe}: {laenge_ms} ms, {RATE} Hz, mono, 16 bit")


if __name__ == "__main__":
    main()
