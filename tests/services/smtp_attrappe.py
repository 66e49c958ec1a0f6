#!/usr/bin/env python3
"""A mail server that misbehaves on purpose, for the upload tests.

  smtp_attrappe.py PORT ART ORDNER

ART "einmal550": answers like a server, but "550" to the first "rcpt to:" it gets;
later mails are taken. ART "stumm": takes connections and never answers.
Every command line goes to ORDNER/befehle.txt, the bytes of each mail's data
(up to and with the closing ".") to ORDNER/mail-N.bin.
"""
import os
import socketserver
import sys
import threading

port, art, ordner = int(sys.argv[1]), sys.argv[2], sys.argv[3]
sperre = threading.Lock()
stand = {"rcpt": 0, "mails": 0}


class Sitzung(socketserver.StreamRequestHandler):
    def handle(self):
        if art == "stumm":
            while self.request.recv(65536):
                pass
            return
        self.wfile.write(b"220 attrappe\r\n")
        while True:
            zeile = self.rfile.readline(4096)
            if not zeile:
                return
            with sperre, open(os.path.join(ordner, "befehle.txt"), "ab") as f:
                f.write(zeile)
            befehl = zeile.strip().lower()
            if befehl.startswith(b"rcpt to:"):
                with sperre:
                    stand["rcpt"] += 1
                    erster = stand["rcpt"] == 1
                self.wfile.write(b"550 no such user\r\n" if erster else b"250 OK\r\n")
            elif befehl == b"data":
                self.wfile.write(b"354 go ahead\r\n")
                daten = b""
                while not daten.endswith(b"\r\n.\r\n"):
                    stueck = self.rfile.readline(65536)
                    if not stueck:
                        return
                    daten += stueck
                with sperre:
                    stand["mails"] += 1
                    name = "mail-%d.bin" % stand["mails"]
                with open(os.path.join(ordner, name), "wb") as f:
                    f.write(daten)
                self.wfile.write(b"250 queued\r\n")
            elif befehl == b"quit":
                self.wfile.write(b"221 bye\r\n")
                return
            else:
                self.wfile.write(b"250 OK\r\n")


class Server(socketserver.ThreadingTCPServer):
    allow_reuse_address = True
    daemon_threads = True


with Server(("127.0.0.1", port), Sitzung) as server:
    server.serve_forever()
