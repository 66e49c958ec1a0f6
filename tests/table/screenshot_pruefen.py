"""Runs trumpona --screenshot and checks that a PNG of the window's size came out."""
import struct
import subprocess
import sys

programm, datei = sys.argv[1], sys.argv[2]
lauf = subprocess.run([programm, "--screenshot", datei, "--seed", "3"], capture_output=True, text=True, timeout=60)
if lauf.returncode != 0:
    sys.exit(f"Exit-Status {lauf.returncode}: {lauf.stderr}")
with open(datei, "rb") as f:
    kopf = f.read(24)
if kopf[:8] != b"\x89PNG\r\n\x1a\n":
    sys.exit("keine PNG-Datei")
breite, hoehe = struct.unpack(">II", kopf[16:24])
if (breite, hoehe) != (1024, 768):
    sys.exit(f"unerwartete Größe {breite}x{hoehe}")
