"""What others see of an upload while it takes its time: not its password."""
import os
import pathlib
import re
import subprocess
import threading
import unittest

import card
import expected
import telnet
import terminal
import uploads
from ftp_server import PASSWORD

UP = "\x1b[A"  # the arrow key
ENVIRONMENT = {"TERM": "vt100", "SECRECY": "environment"}


def processes():
    """The processes there are, as paths below /proc."""
    return [path for path in pathlib.Path("/proc").iterdir() if path.name.isdecimal()]


def read(path):
    """A file below /proc, empty if its process has gone."""
    try:
        return path.read_bytes()
    except OSError:
        return b""


def family(pid):
    """A process and all that it started."""
    parents = {}
    for path in processes():
        status = re.search(rb"^PPid:\s*(\d+)", read(path / "status"), re.MULTILINE)
        parents[int(path.name)] = int(status[1]) if status else 0
    members = {pid}
    while more := {each for each, parent in parents.items() if parent in members} - members:
        members |= more
    return members


def who_shows(text, pid):
    """The processes with a text in their command line, and those of the family
    of `pid` with it in their environment."""
    shown = {int(path.name) for path in processes() if text in read(path / "cmdline")}
    return shown | {each for each in family(pid)
                    if text in read(pathlib.Path(f"/proc/{each}/environ"))}


class WaitingUpload(uploads.UploadTest):
    """The server keeps the transfer waiting until `proceed` is set."""

    def setUp(self):
        super().setUp()
        self.writing, self.proceed = threading.Event(), threading.Event()
        self.serve(before_write=self.wait)
        self.addCleanup(self.proceed.set)  # before the server is stopped

    def wait(self):
        self.writing.set()
        self.was_told = self.proceed.wait(card.PATIENCE)


class Secrecy(WaitingUpload):
    """While the transfer waits, and afterwards."""

    def check_process_list(self, pid):
        """In the middle of the transfer; then lets it go on."""
        self.assertTrue(self.writing.wait(card.PATIENCE))
        for known in (str(self.root), "SECRECY=environment"):
            self.assertIn(pid, who_shows(known.encode(), pid))
        self.assertEqual(who_shows(PASSWORD.encode(), pid), set())
        self.proceed.set()

    def terminal(self):
        shell = terminal.spawn(self, ENVIRONMENT, dimensions=(40, 120))
        shell.expect_exact("sysctx> ")
        return shell

    def enter(self, shell, keys):
        """Types a line and returns what comes up to the next prompt."""
        shell.send(keys + "\r")
        shell.expect_exact("\nsysctx> ")
        return shell.before

    def check_forgotten(self, recalled):
        """What a shell lists and recalls behind the upload."""
        self.assertIn(b"0. show context version", recalled)
        self.assertIn(b"acSupportedSoftVer = KT2200V4.1", recalled)
        self.assertNotIn(PASSWORD.encode(), recalled)
        self.assertNotIn(b"upload", recalled)

    def test_commands_from_standard_input(self):
        process = subprocess.Popen(
            [card.SYSCTX, "--root", str(self.root)], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
            stderr=subprocess.PIPE, env=dict(os.environ, **ENVIRONMENT))
        self.addCleanup(process.communicate, timeout=card.PATIENCE)
        self.addCleanup(process.kill)
        process.stdin.write(uploads.command().encode() + b"\n")
        process.stdin.flush()
        self.check_process_list(process.pid)
        output, errors = process.communicate(b"show context version | count\n",
                                             timeout=card.PATIENCE)
        self.assertTrue(output.endswith(b"\"\n" + expected.UPLOADED + b"5\r\n"), output)
        self.assertEqual((process.returncode, errors), (0, b""))
        self.assertNotIn(PASSWORD.encode(), output)
        self.assertEqual(self.files(), {"copy.ini": card.DEFINITIONS.encode()})

    def test_at_a_terminal(self):
        shell = self.terminal()
        shell.send(uploads.command() + "\r")
        shell.expect_exact("copy.ini\r\n")  # that was the echo
        self.check_process_list(shell.pid)
        shell.expect_exact("sysctx> ")
        # The terminal puts a carriage return before each line feed.
        self.assertEqual(shell.before.replace(b"\r\r\n", b"\r\n"), expected.UPLOADED + b"\r\n")
        self.assertEqual(self.files(), {"copy.ini": card.DEFINITIONS.encode()})

    def test_history_of_a_telnet_session(self):
        self.proceed.set()
        server = telnet.serve(self)
        client = telnet.connect(self, server)
        client.ask(b"show context version")
        self.assertTrue(client.ask(uploads.command().encode()).endswith(
            expected.UPLOADED + telnet.PROMPT))
        self.check_forgotten(client.ask(UP.encode()) + client.ask(b"history"))
        self.assertEqual(server.stop(), (0, b""))

    def test_history_of_a_terminal(self):
        self.proceed.set()
        shell = self.terminal()
        self.enter(shell, "show context version")
        self.assertIn(b"Upload the context file success!", self.enter(shell, uploads.command()))
        self.check_forgotten(self.enter(shell, UP) + self.enter(shell, "history"))


class OtherSessions(WaitingUpload):
    def test_they_go_on_meanwhile(self):
        server = telnet.serve(self)
        first, second = telnet.connect(self, server), telnet.connect(self, server)
        first.send(uploads.command().encode() + b"\r\n")
        self.assertTrue(self.writing.wait(card.PATIENCE))
        self.assertIn(b"acSupportedSoftVer = KT2200V4.1", second.ask(b"show context version"))
        second.send(uploads.command(name="copy.ini.2").encode() + b"\r\n")
        self.proceed.set()
        for client in first, second:
            self.assertTrue(client.read().endswith(expected.UPLOADED + telnet.PROMPT))
        text = card.DEFINITIONS.encode()
        self.assertTrue(self.was_told)
        self.assertEqual(self.files(), {"copy.ini": text, "copy.ini.2": text})
        self.assertEqual(server.stop(), (0, b""))


if __name__ == "__main__":
    unittest.main()
