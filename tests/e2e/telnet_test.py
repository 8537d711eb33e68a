"""`sysctx serve`: telnet clients, several at once, and what they may do to the
server."""
import signal
import socket
import threading
import unittest

import card
import telnet
from telnet import PROMPT

VERSION_OUTPUT = (
    b"\r\nVersion:\r\nSupportedSoftwareVer:\r\ngstVersionInformation.ulSupportedSoftVerNum = 2"
    b"\r\n 0. ulSupportedSoftVerLen = 11, acSupportedSoftVer = KT2200V4.0"
    b"\r\n 1. ulSupportedSoftVerLen = 11, acSupportedSoftVer = KT2200V4.1\r\n\r\n")


class Telnet(card.CardTest):
    def setUp(self):
        super().setUp()
        self.define()
        self.start()

    def start(self):
        self.server = telnet.serve(self)
        self.addCleanup(self.stop)

    def stop(self, by=signal.SIGTERM):
        """Ends the server; it must go cleanly and have said nothing."""
        self.assertEqual(self.server.stop(by), (0, b""))

    def client(self):
        return telnet.connect(self, self.server)

    def test_start_up_report(self):
        self.assertIn(card.LOADED, "".join(self.server.report))
        self.assertEqual(self.server.report[-1],
                         f"listening on 127.0.0.1 port {self.server.port}\n")

    def test_only_the_loopback_address_is_served(self):
        with self.assertRaises(OSError):
            socket.create_connection(("127.0.0.2", self.server.port), card.PATIENCE)

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
                client = telnet.Client(self.server.port)
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
        with socket.create_connection(("127.0.0.1", self.server.port), card.PATIENCE) as refused:
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
        server = telnet.serve(self)
        self.assertIn("ddInit failed with -31: tables behind the failure are empty\n",
                      server.report)
        client = telnet.connect(self, server)
        self.assertIn(b"ulSupportedSoftVerNum = 0", client.ask(b"show context version"))
        client.close()
        status, _ = server.stop()
        self.assertEqual(status, 0)


if __name__ == "__main__":
    unittest.main()
