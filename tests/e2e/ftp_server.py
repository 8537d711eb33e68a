"""An FTP server on loopback, in a thread of the test: so no command line has its
password, and the test decides what becomes of a file."""
import ftplib
import pathlib
import secrets
import sys
import threading

from pyftpdlib.filesystems import AbstractedFS
from pyftpdlib.ioloop import IOLoop
from pyftpdlib.servers import FTPServer

import card

sys.path.append(str(pathlib.Path(__file__).parents[1] / "support"))
from ftp_handler import make_handler  # found by the line above

USER = "operator"
PASSWORD = f"unt0ld:w@rd/{secrets.token_hex(8)}"  # in no other test's command lines
READ_ONLY = "elr"


class WatchedFile:
    """A file that is asked before each write."""

    def __init__(self, file, before_write):
        self.file, self.before_write = file, before_write

    def __getattr__(self, name):
        return getattr(self.file, name)

    def write(self, chunk):
        self.before_write()
        return self.file.write(chunk)


class Server:
    """Serves a folder. `before_open` and `before_write` are called before a file
    is opened and written to; they may raise an OSError, or wait."""

    def __init__(self, folder, before_open=lambda: None, before_write=lambda: None, **more):
        self.connections = 0
        self.server = FTPServer(("127.0.0.1", 0),
                                self.make_handler(folder, before_open, before_write, **more),
                                ioloop=IOLoop())
        self.port = self.server.address[1]
        self.running = True
        self.thread = threading.Thread(target=self.serve, daemon=True)
        self.thread.start()

    def make_handler(self, folder, before_open, before_write, **more):
        server = self

        class Files(AbstractedFS):
            def open(self, filename, mode):
                before_open()
                return WatchedFile(super().open(filename, mode), before_write)

        class Handler(make_handler(folder, USER, PASSWORD, filesystem=Files, **more)):
            def on_connect(self):
                server.connections += 1

        return Handler

    def serve(self):
        while self.running:
            self.server.ioloop.loop(timeout=0.05, blocking=False)

    def earlier_connections(self):
        """How many connections there were before this call."""
        with ftplib.FTP() as client:
            client.connect("127.0.0.1", self.port, card.PATIENCE)
        return self.connections - 1

    def stop(self):
        self.running = False
        self.thread.join(card.PATIENCE)
        if self.thread.is_alive():
            raise TimeoutError("the FTP server does not end")
        self.server.close_all()
