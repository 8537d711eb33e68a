"""`sysctx serve`: telnet clients, several at once, and what they may do to the
server."""
import signal
import socket
import struct
import subprocess
import threading
import unittest

import card

PROMPT = b"\r\nsysctx> "
VERSION_OUTPUT = (
    b"\r\nVersion:\r\nSupportedSoftwareVer:\r\ngstVersionInformation.ulSupportedSoftVerNum = 2"
    b"\r\n 0. ulSupportedSoftVerLen = 11, acSupportedSoftVer = KT2200V4.0"
    b"\r\n 1. ulSupportedSoftVerLen = 11, acSupportedSoftVer = KT2200V4.1\r\n\r\n")


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


class Telnet(card.CardTest):
    def setUp(self):
        super().setUp()
        self.define()
        self.start()

    def start(self):
        self.server = subprocess.Popen(
            [card.SYSCTX, "--root", str(self.root), "serve", "--telnet", "0"],
            stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.addCleanup(self.stop)
        self.report = []
        while not self.report or not self.report[-1].startswith("listening on "):
            self.report.append(self.server.stdout.readline().decode())
            self.assertNotEqual(self.report[-1], "", "the server ended")
        self.port = int(self.report[-1].split()[-1])

    def stop(self, by=signal.SIGTERM):
        """Ends the server; it must go cleanly and have said nothing."""
        if self.server.returncode is None:
            self.server.send_signal(by)
            _, errors = self.server.communicate(timeout=card.PATIENCE)
            # libcli's own remark about a client that went without goodbye.
            errors = errors.replace(b"read: Connection reset by peer\n", b"")
            self.assertEqual((self.server.returncode, errors), (0, b""))

    def client(self):
        client = Client(self.port)
        self.addCleanup(client.close)
        return client

    def test_start_up_report(self):
        self.assertIn(card.LOADED, "".join(self.report))
        self.assertEqual(self.report[-1], f"listening on 127.0.0.1 port {self.port}\n")

    def test_only_the_loopback_address_is_served(self):
        with self.assertRaises(OSError):
            socket.create_connection(("127.0.0.2", self.port), card.PATIENCE)

    def test_greeting(self):
        self.assertIn(b"Simulated control card. Type ? for help.\r\n", self.client().greeting)

    def test_command(self):
        answer = self.client().ask(b"show context version")
        self.assertEqual(answer, b"show context version\r\n" + VERSION_OUTPUT + PROMPT)

    def test_listing_with_pauses(self):
        rows = b"".join(
            b"\r\n%2d. ulPortType =   2, ulNameLen =  5, acName =                 GPON, "
            b"ulSplittingRatio = 128" % number for number in range(17))
        self.stop()
        self.define(card.DEFINITIONS.replace(
            "SupportedOltPortTypeNum=1\nSupportedOltPortType1=Port_GPON\n",
            "SupportedOltPortTypeNum=17\n" + "".join(
                f"SupportedOltPortType{number}=Port_GPON\n" for number in range(1, 18))))
        self.start()
        answer = self.client().ask(b"show context olt_port")
        self.assertEqual(
            answer,
            b"show context olt_port\r\n\r\n\r\nSupportedOltPort:"
            b"\r\ngstSupportedOltPortType.ulSupportedOltPortTypeNum = 17" + rows + b"\r\n\r\n"
            + PROMPT)

    def test_completion_help_abbreviation_and_filter(self):
        client = self.client()
        client.send(b"show con\t")
        client.read(b"context ")
        client.send(b"?")
        help_text = client.read(b"sysctx> show context ")
        self.assertIn(b"  module_all           all module info.\r\n", help_text)
        self.assertIn(b"  olt_port             olt port info.\r\n", help_text)
        client.send(b"\x15")
        answer = client.ask(b"sh con ver | inc 4.1")
        self.assertTrue(answer.endswith(
            b"\r\n 1. ulSupportedSoftVerLen = 11, acSupportedSoftVer = KT2200V4.1\r\n" + PROMPT))

    def test_two_clients_at_once(self):
        first, second = self.client(), self.client()
        first.send(b"show context ver")
        self.assertIn(b"acName = OMCI", second.ask(b"show context module_all"))
        self.assertIn(VERSION_OUTPUT, first.ask(b"sion"))
        self.assertNotIn(b"module_all", first.ask(b"history"))

    def test_many_commands_at_once(self):
        failures = []

        def work():
            try:
                client = Client(self.port)
                for _ in range(20):
                    if VERSION_OUTPUT not in client.ask(b"show context version"):
                        failures.append("wrong output")
                client.close()
            except (OSError, EOFError) as error:
                failures.append(error)

        threads = [threading.Thread(target=work) for _ in range(6)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(failures, [])

    def test_leaving(self):
        for keys in (b"quit\r\n", b"exit\r\n", b"\x04"):
            with self.subTest(keys=keys):
                client = self.client()
                client.send(keys)
                self.assertTrue(client.is_closed())

    def test_clients_that_vanish(self):
        for _ in range(5):
            client = self.client()
            client.send(b"show context version\r\n" * 50)
            client.vanish()
        self.assertIn(VERSION_OUTPUT, self.client().ask(b"show context version"))

    def test_too_many_clients(self):
        clients = [self.client() for _ in range(32)]
        with socket.create_connection(("127.0.0.1", self.port), card.PATIENCE) as refused:
            self.assertEqual(refused.recv(100), b"Too many sessions\r\n")
        clients[0].send(b"quit\r\n")
        self.assertTrue(clients[0].is_closed())

    def test_signals_end_the_server_and_its_sessions(self):
        for number in (signal.SIGINT, signal.SIGTERM):
            with self.subTest(signal=number):
                client = self.client()
                self.stop(number)
                try:
                    self.assertTrue(client.is_closed())
                except ConnectionResetError:
                    pass
                if number == signal.SIGINT:
                    self.setUp()


class FailedStart(card.CardTest):
    def test_server_says_so_and_serves(self):
        self.define("[Version]\n")
        server = subprocess.Popen(
            [card.SYSCTX, "--root", str(self.root), "serve", "--telnet", "0"],
            stdout=subprocess.PIPE)
        try:
            report = [server.stdout.readline().decode()]
            while not report[-1].startswith("listening on "):
                report.append(server.stdout.readline().decode())
                self.assertNotEqual(report[-1], "")
            self.assertIn("ddInit failed with -31: tables behind the failure are empty\n", report)
            client = Client(int(report[-1].split()[-1]))
            self.assertIn(b"ulSupportedSoftVerNum = 0", client.ask(b"show context version"))
            client.close()
        finally:
            server.terminate()
            server.communicate(timeout=card.PATIENCE)
        self.assertEqual(server.returncode, 0)


if __name__ == "__main__":
    unittest.main()
