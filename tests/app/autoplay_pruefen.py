#!/usr/bin/env python3
"""Reads `trumpona --autoplay N --json -` from stdin and checks every line."""
import json
import sys

SCHLUESSEL = {"partie", "spiel", "vorhand", "spieltyp", "solist", "hochzeit", "schweine", "regeln", "karten",
              "stiche", "ansagen", "partei", "augen_re", "augen_kontra", "gewinner", "spielwert", "faktor",
              "sonderpunkte", "punkte", "stand", "bock", "text"}

erwartet = int(sys.argv[1])
karten = int(sys.argv[2]) if len(sys.argv) > 2 else None  # cards in the game, when the rules fix it
zeilen = sys.stdin.read().splitlines()
assert len(zeilen) == erwartet, f"{len(zeilen)} Zeilen statt {erwartet}"
stand = [0, 0, 0, 0]
partie = 0
for zeile in zeilen:
    s = json.loads(zeile)
    fehlt = SCHLUESSEL - s.keys()
    assert not fehlt, fehlt
    if s["partie"] != partie:
        partie, stand = s["partie"], [0, 0, 0, 0]
    n = 40 if s["regeln"]["Scharfer_Rupa"] == -1 else 48
    assert karten is None or n == karten, n
    assert len(s["karten"]) == 48 and all(c == 0 for c in s["karten"][n:]), s["karten"]
    assert len(s["stiche"]) == n // 4
    assert sum(t["augen"] for t in s["stiche"]) == 240
    assert s["augen_re"] + s["augen_kontra"] == 240
    for t in s["stiche"]:
        assert [k["sitz"] for k in t["karten"]][0] == t["aufspieler"]
        for k in t["karten"]:
            assert s["karten"][k["pos"] - 1] == k["code"]
    stand = [a + b for a, b in zip(stand, s["punkte"])]
    assert stand == s["stand"], (stand, s["stand"])
    assert s["gewinner"] in ("Re", "Kontra") and 1 <= s["spieltyp"] <= 8
print(f"{len(zeilen)} Spiele geprüft")
