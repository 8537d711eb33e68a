"""The upload of the device definition file to a real FTP server."""
import errno
import os
import socket
import unittest

import card
import ftp_server
from uploads import UploadTest

OLDER = b"an older copy\n"


class Upload(UploadTest):
    def test_the_file_arrives(self):
        self.serve()
        self.check_uploaded(self.upload(), {"copy.ini": card.DEFINITIONS.encode()})

    def test_a_file_of_that_name_is_replaced_and_no_other(self):
        self.serve()
        (self.folder / "copy.ini").write_bytes(OLDER * 1000)
        (self.folder / "other.ini").write_bytes(OLDER)
        self.check_uploaded(self.upload(),
                            {"copy.ini": card.DEFINITIONS.encode(), "other.ini": OLDER})

    def test_a_sample_arrives(self):
        self.serve()
        file = card.definition_file("kt3300-l").read_bytes()
        self.define(file.decode())
        self.check_uploaded(self.upload(), {"copy.ini": file})

    def test_a_name_with_signs(self):
        self.serve()
        self.check_uploaded(self.upload(name="a%20#c?d;type=a"),
                            {"a%20#c?d;type=a": card.DEFINITIONS.encode()})

    def test_the_file_itself_is_left_alone(self):
        self.serve()
        self.upload()
        file = self.root / "mnt/work/device_definition.ini"
        self.assertEqual(file.read_text(), card.DEFINITIONS)


class FailedUpload(UploadTest):
    def setUp(self):
        super().setUp()
        for name in ("copy.ini", "other.ini"):
            (self.folder / name).write_bytes(OLDER)

    def check_nothing_changed(self):
        self.assertEqual(self.files(), {"copy.ini": OLDER, "other.ini": OLDER})

    def test_wrong_password(self):
        self.serve()
        self.check_failed(self.upload(password="wr0ng:word"), "Login denied")
        self.check_nothing_changed()

    def test_server_is_down(self):
        with socket.socket() as bound:  # but nobody listens
            bound.bind(("127.0.0.1", 0))
            self.use_port(bound.getsockname()[1])
            self.check_failed(self.upload(), "Couldn't connect to server")

    def test_no_permission_to_store(self):
        self.serve(permissions=ftp_server.READ_ONLY)
        self.check_failed(self.upload(), "Upload failed (at start/before it took off)")
        self.check_nothing_changed()

    def test_missing_folder(self):
        self.serve()
        self.check_failed(self.upload(name="missing/copy.ini"), "Access denied to remote resource")
        self.check_nothing_changed()

    def test_disk_is_full_from_the_start(self):
        self.serve(before_open=self.fill_disk)
        self.check_failed(self.upload(), "Upload failed (at start/before it took off)")
        self.check_nothing_changed()

    def test_disk_gets_full(self):
        """What is left of the file is the server's business."""
        self.define(card.DEFINITIONS + "; more\n" * 100000)
        written = []

        def take_two():
            written.append(None)
            if len(written) > 2:
                self.fill_disk()

        self.serve(before_write=take_two)
        # As sysctx is done with sending, or is not, when the server gives up.
        self.check_failed(self.upload(), "Transferred a partial file",
                          "Failed sending data to the peer")
        self.assertEqual(len(written), 3)
        self.assertEqual(self.files()["other.ini"], OLDER)
        self.assertEqual(sorted(self.files()), ["copy.ini", "other.ini"])

    def test_disk_is_full_at_the_last_moment(self):
        """All of a small file was sent before the server says so."""
        self.serve(before_write=self.fill_disk)
        self.check_failed(self.upload(), "Transferred a partial file")
        self.assertEqual(self.files()["other.ini"], OLDER)

    def fill_disk(self):
        raise OSError(errno.ENOSPC, os.strerror(errno.ENOSPC))


class RefusedAddress(UploadTest):
    """The card's own addresses: nothing is said, nothing sent."""

    def test_refused(self):
        server = self.serve()
        for key in ("management_addresses", "outband_addresses"):
            with self.subTest(key=key):
                self.use_port(server.port, f'[upload]\n{key} = ["10.1.2.3", "127.0.0.1"]\n')
                done = self.upload()
                self.assertEqual((done.returncode, done.stdout, done.stderr), (255, b"", b""))
                self.assertEqual((server.connections, self.files()), (0, {}))
        self.assertEqual(server.earlier_connections(), 0)

    def test_refused_before_the_arguments_are_counted(self):
        self.use_port(1, '[upload]\nmanagement_addresses = ["127.0.0.1"]\n')
        done = card.run("--root", self.root, "run", "upload ftp context 127.0.0.1")
        self.assertEqual((done.returncode, done.stdout, done.stderr), (255, b"", b""))

    def test_other_addresses_are_not(self):
        server = self.serve()
        self.use_port(server.port, '[upload]\nmanagement_addresses = ["127.0.0.2"]\n'
                                   'outband_addresses = ["10.10.0.1"]\n')
        self.check_uploaded(self.upload(), {"copy.ini": card.DEFINITIONS.encode()})
        self.assertEqual(server.earlier_connections(), 1)


if __name__ == "__main__":
    unittest.main()
