#!/usr/bin/env python3
"""A connection to a server that can be cut: cutting-proxy.py PORT

Prints the port that it listens on, then takes lines on standard input: "cut N" ends every connection once N more
bytes have gone to the server, "pass" lets everything through again; each is answered by "ok".
"""

import socket
import sys
import threading


class Gate:
    def __init__(self):
        self.lock = threading.Lock()
        self.left = None

    def allow(self, size):
        """How many of so many bytes may pass."""
        with self.lock:
            if self.left is None:
                return size
            allowed = min(size, self.left)
            self.left -= allowed
            return allowed

    def command(self, line):
        words = line.split()
        with self.lock:
            self.left = int(words[1]) if words[0] == "cut" else None


def close(*sockets):
    for each in sockets:
        try:
            each.shutdown(socket.SHUT_RDWR)
        except OSError:
            pass


def carry(source, target, gate):
    while True:
        try:
            data = source.recv(4096)
            allowed = gate.allow(len(data)) if gate else len(data)
            target.sendall(data[:allowed])
        except OSError:
            break
        if not data or allowed < len(data):
            break
    close(source, target)


def main():
    gate = Gate()
    listener = socket.create_server(("127.0.0.1", 0))
    print(listener.getsockname()[1], flush=True)

    def accept():
        while True:
            client, _ = listener.accept()
            try:
                server = socket.create_connection(("127.0.0.1", int(sys.argv[1])))
            except OSError:
                close(client)
                continue
            threading.Thread(target=carry, args=(client, server, gate), daemon=True).start()
            threading.Thread(target=carry, args=(server, client, None), daemon=True).start()

    threading.Thread(target=accept, daemon=True).start()
    for line in sys.stdin:
        gate.command(line)
        print("ok", flush=True)


if __name__ == "__main__":
    main()
