"""What the tests of the upload share."""
import card
import expected
import ftp_server
from ftp_server import PASSWORD, USER


def command(address="127.0.0.1", password=PASSWORD, name="copy.ini"):
    """The line that uploads."""
    return f"upload ftp context {address} {USER} {password} {name}"


class UploadTest(card.CardTest):
    """With an empty folder for the files of an FTP server."""

    def setUp(self):
        super().setUp()
        self.define()
        self.folder = self.root / "ftp"
        self.folder.mkdir()

    def serve(self, **behaviour):
        """Starts a server, which sysctx is told of."""
        server = ftp_server.Server(self.folder, **behaviour)
        self.addCleanup(server.stop)
        self.use_port(server.port)
        return server

    def use_port(self, port, more=""):
        # Less than the tests' own patience, so that a server's silence ends first.
        self.write("equipment.toml", f"{more}[ftp]\nport = {port}\ntimeout_seconds = 30\n")

    def files(self):
        """What is in the server's folder."""
        return {file.name: file.read_bytes() for file in self.folder.iterdir()}

    def upload(self, password=PASSWORD, **more):
        """Uploads by `sysctx run`; the password must not be told."""
        done = card.run("--root", self.root, "run", command(password=password, **more))
        self.assertNotIn(password.encode(), done.stdout + done.stderr)
        return done

    def check_uploaded(self, done, files):
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, expected.UPLOADED, b""))
        self.assertEqual(self.files(), files)

    def check_failed(self, done, *reasons):
        """An upload that was tried; one of the reasons goes to standard error."""
        self.assertEqual((done.returncode, done.stdout), (0, expected.NOT_UPLOADED))
        self.assertIn(done.stderr.decode(),
                      [f"sysctx: FTP upload: {reason}\n" for reason in reasons])
