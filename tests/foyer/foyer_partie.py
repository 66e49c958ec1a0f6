#!/usr/bin/env python3
"""Four trumpona processes meet in the foyer of a real ngircd: one opens a table,
three take its seats, they play N games, and every process prints the same
stand line. Everything started here is stopped again, within a time limit."""
import os
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import time

FRIST = 240  # seconds for the whole Partie


def freier_port():
    with socket.socket() as s:
        s.bind(("127.0.0.1", 0))
        return s.getsockname()[1]


def ngircd_starten(ordner):
    programm = shutil.which("ngircd") or shutil.which("ngircd", path="/usr/sbin")
    if not programm:
        sys.exit("ngircd ist nicht installiert (Debian-Paket ngircd)")
    port = freier_port()
    conf = os.path.join(ordner, "ngircd.conf")
    with open(conf, "w") as f:
        f.write(f"""[Global]
Name = irc.test
Info = Trumpona-Test
Listen = 127.0.0.1
Ports = {port}
ServerUID = {os.getuid()}
ServerGID = {os.getgid()}
PidFile = {ordner}/ngircd.pid
MotdPhrase = Test
[Limits]
MaxNickLength = 12
MaxPenaltyTime = 0
[Options]
PAM = no
DNS = no
Ident = no
""")
    server = subprocess.Popen([programm, "-n", "-f", conf], stdout=subprocess.DEVNULL, stderr=subprocess.STDOUT)
    ende = time.time() + 10
    while time.time() < ende:
        try:
            socket.create_connection(("127.0.0.1", port), timeout=0.2).close()
            return server, port
        except OSError:
            time.sleep(0.1)
    server.kill()
    sys.exit("ngircd hört nicht")


def main():
    trumpona, spiele = sys.argv[1], sys.argv[2]
    ordner = tempfile.mkdtemp(prefix="foyer-partie-")
    umgebung = dict(os.environ, XDG_CONFIG_HOME=ordner)
    server, port = ngircd_starten(ordner)
    prozesse = []
    try:
        adresse = f"127.0.0.1:{port}"
        gemeinsam = ["--foyer", adresse, "--auto", "--games", spiele, "--tick", "0"]
        prozesse.append(subprocess.Popen([trumpona, *gemeinsam, "--name", "Tischherr", "--open-table", "--port", "0",
                                          "--seed", "7"], stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=umgebung))
        for i in range(1, 4):
            prozesse.append(subprocess.Popen([trumpona, *gemeinsam, "--name", f"Gast{i}", "--take-seat"],
                                             stdout=subprocess.PIPE, stderr=subprocess.PIPE, env=umgebung))
        ende = time.time() + FRIST
        ausgaben = []
        for p in prozesse:
            out, err = p.communicate(timeout=max(1, ende - time.time()))
            ausgaben.append((p.returncode, out.decode(), err.decode()))
        staende = []
        for code, out, err in ausgaben:
            zeilen = re.findall(r"^stand 1=-?\d+ 2=-?\d+ 3=-?\d+ 4=-?\d+$", out, re.M)
            if code != 0 or len(zeilen) != 1:
                sys.exit(f"Status {code}, Ausgabe:\n{out}\n{err}")
            staende.append(zeilen[0])
        print("\n".join(staende))
        if len(set(staende)) != 1:
            sys.exit("Die Stände weichen ab")
    finally:
        for p in prozesse:
            if p.poll() is None:
                p.kill()
                p.wait()
        server.terminate()
        try:
            server.wait(timeout=5)
        except subprocess.TimeoutExpired:
            server.kill()
            server.wait()
        shutil.rmtree(ordner, ignore_errors=True)


if __name__ == "__main__":
    main()
