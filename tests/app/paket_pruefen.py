"""Builds the Debian package with CPack, unpacks it into a temporary root and starts
the installed program the way its desktop entry does: --version and --screenshot."""
import glob
import os
import shutil
import struct
import subprocess
import sys
import tempfile

bauordner, version = sys.argv[1], sys.argv[2]
APP = "de.trumpona.Trumpona"


def lauf(befehl, **kw):
    ergebnis = subprocess.run(befehl, capture_output=True, text=True, timeout=300, **kw)
    if ergebnis.returncode != 0:
        sys.exit(f"{' '.join(befehl)}: Exit-Status {ergebnis.returncode}\n{ergebnis.stdout}\n{ergebnis.stderr}")
    return ergebnis.stdout


with tempfile.TemporaryDirectory() as tmp:
    lauf(["cpack", "-G", "DEB", "--config", os.path.join(bauordner, "CPackConfig.cmake"), "-B", os.path.join(tmp, "cpack")])
    pakete = glob.glob(os.path.join(tmp, "cpack", "trumpona_*.deb"))
    if len(pakete) != 1:
        sys.exit(f"kein Paket gebaut: {pakete}")
    paket = pakete[0]
    if f"trumpona_{version}_" not in os.path.basename(paket):
        sys.exit(f"falsche Version im Namen: {paket}")

    # The dependencies a clean Debian 12 needs to run it.
    abhaengig = lauf(["dpkg-deb", "-f", paket, "Depends"])
    for noetig in ("libqt6widgets6", "libqt6multimedia6", "libqt6svg6", "libqt6network6", "libc6"):
        if noetig not in abhaengig:
            sys.exit(f"Depends ohne {noetig}: {abhaengig}")
    if "kdegames-card-data-kf5" not in lauf(["dpkg-deb", "-f", paket, "Recommends"]):
        sys.exit("Recommends ohne die Kartendecks")

    wurzel = os.path.join(tmp, "wurzel")
    lauf(["dpkg-deb", "-x", paket, wurzel])
    dateien = [
        "usr/bin/trumpona",
        "usr/share/trumpona/trumpona.wav",
        f"usr/share/applications/{APP}.desktop",
        f"usr/share/icons/hicolor/scalable/apps/{APP}.svg",
        f"usr/share/metainfo/{APP}.metainfo.xml",
    ]
    for d in dateien:
        if not os.path.isfile(os.path.join(wurzel, d)):
            sys.exit(f"fehlt im Paket: {d}")
    metainfo = open(os.path.join(wurzel, dateien[4]), encoding="utf-8").read()
    if f'version="{version}"' not in metainfo:
        sys.exit("AppStream-Daten ohne die Version des Programms")
    if shutil.which("desktop-file-validate"):
        lauf(["desktop-file-validate", os.path.join(wurzel, dateien[2])])
    if shutil.which("appstreamcli"):
        lauf(["appstreamcli", "validate", "--no-net", os.path.join(wurzel, dateien[4])])

    # The command of the desktop entry, found on the PATH as the desktop would.
    befehl = None
    for zeile in open(os.path.join(wurzel, dateien[2]), encoding="utf-8"):
        if zeile.startswith("Exec="):
            befehl = zeile.strip()[len("Exec="):].split()
    if not befehl:
        sys.exit("Desktop-Eintrag ohne Exec")
    umgebung = {k: v for k, v in os.environ.items() if k not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    umgebung["PATH"] = os.path.join(wurzel, "usr", "bin") + os.pathsep + umgebung.get("PATH", "")
    umgebung["XDG_CONFIG_HOME"] = os.path.join(tmp, "konfiguration")
    ausgabe = lauf(befehl + ["--version"], env=umgebung)
    if not ausgabe.startswith(f"trumpona {version}"):
        sys.exit(f"--version: {ausgabe!r}")
    bild = os.path.join(tmp, "bild.png")
    lauf(befehl + ["--screenshot", bild, "--seed", "5"], env=umgebung)
    with open(bild, "rb") as f:
        kopf = f.read(24)
    if kopf[:8] != b"\x89PNG\r\n\x1a\n" or struct.unpack(">II", kopf[16:24]) != (1024, 768):
        sys.exit("--screenshot gab kein Bild des Fensters")
print("Paket in Ordnung:", os.path.basename(paket))
