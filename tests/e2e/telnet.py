"""sysctx as a telnet server, and a client of it."""
import signal
import socket
import struct
import subprocess
import threading

import card

PROMPT = b"\r\nsysctx> "


class Server:
    """`sysctx serve` on a port of its own choice; `report` has the lines that it
    began with."""

    def __init__(self, root):
        self.process = subprocess.Popen(
            [card.SYSCTX, "--root", str(root), "serve", "--telnet", "0"],
            stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.outcome = None
        self.report = []
        limit = threading.Timer(card.PATIENCE, self.process.kill)
        limit.start()
        try:
            self.read_report()
        finally:
            limit.cancel()
        self.port = int(self.report[-1].split()[-1])

    def read_report(self):
        while not self.report or not self.report[-1].startswith("listening on "):
            self.report.append(self.process.stdout.readline().decode())
            if self.report[-1] == "":
                raise EOFError(f"the server ended: {self.stop()}")

    def stop(self, by=signal.SIGTERM):
        """Ends the server; its status and what it wrote to standard error."""
        if self.process.returncode is None:
            self.process.send_signal(by)
            _, errors = self.process.communicate(timeout=card.PATIENCE)
            # libcli's own remark about a client that went without goodbye.
            errors = errors.replace(b"read: Connection reset by peer\n", b"")
            self.outcome = (self.process.returncode, errors)
        return self.outcome


class Client:
    def __init__(self, port):
        self.socket = socket.create_connection(("127.0.0.1", port), card.PATIENCE)
        self.greeting = self.read()

    def read(self, until=PROMPT):
        text = b""
        while not text.endswith(until):
            more = self.socket.recv(4096)
            if not more:
                raise EOFError(text)
            text += more
        return text

    def send(self, keys):
        self.socket.sendall(keys)

    def ask(self, line):
        self.send(line + b"\r\n")
        return self.read()

    def is_closed(self):
        while True:
            if not self.socket.recv(4096):
                return True

    def close(self):
        self.socket.close()

    def vanish(self):
        """Closes so that the server's next write fails."""
        self.socket.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))
        self.socket.close()


def serve(test):
    """A server on the root of a test; it ends with the test."""
    server = Server(test.root)
    test.addCleanup(server.stop)
    return server


def connect(test, server):
    """A client of it, which leaves with the test."""
    client = Client(server.port)
    test.addCleanup(client.close)
    return client
