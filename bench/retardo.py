#!/usr/bin/env python3
"""Runs a command with a slower network before PostgreSQL: each round trip takes so much longer. Within con_servidores.sh:

    tests/servidores/con_servidores.sh --solo postgresql bench/retardo.py 0.3 build/ci/bin/kestrane_caja_odbc_bench

The data source KestranePgTienda then leads to a proxy on loopback, which holds the first piece of each answer back for the given
milliseconds. What a round trip takes in all is the benchmark "ida y vuelta".
"""
import configparser
import os
import selectors
import socket
import subprocess
import sys
import tempfile
import threading
import time

DSN = "KestranePgTienda"


def forward(client, server, delay):
    """One connection, until either side closes."""
    asked = False
    with selectors.DefaultSelector() as waiting, client, server:
        for end in (client, server):
            end.setsockopt(socket.IPPROTO_TCP, socket.TCP_NODELAY, 1)
            waiting.register(end, selectors.EVENT_READ)
        while True:
            for key, _ in waiting.select():
                piece = key.fileobj.recv(1 << 16)
                if not piece:
                    return
                if key.fileobj is client:
                    asked = True
                    server.sendall(piece)
                    continue
                if asked:
                    time.sleep(delay)
                    asked = False
                client.sendall(piece)


def serve(listener, address, delay):
    while True:
        client, _ = listener.accept()
        threading.Thread(target=forward, args=(client, socket.create_connection(address), delay), daemon=True).start()


def main():
    delay = float(sys.argv[1]) / 1000
    sources = configparser.ConfigParser(interpolation=None, strict=False)
    sources.optionxform = str
    sources.read(os.environ["ODBCINI"])
    address = ("127.0.0.1", int(sources[DSN]["Port"]))
    listener = socket.create_server(("127.0.0.1", 0))
    threading.Thread(target=serve, args=(listener, address, delay), daemon=True).start()
    sources[DSN]["Port"] = str(listener.getsockname()[1])
    with tempfile.NamedTemporaryFile("w", suffix=".ini") as changed:
        sources.write(changed)
        changed.flush()
        environment = {**os.environ, "ODBCINI": changed.name}
        sys.exit(subprocess.run(sys.argv[2:], env=environment).returncode)


main()
