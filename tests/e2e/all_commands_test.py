"""A telnet session with all eighteen commands on the large sample, byte for byte."""
import shutil
import unittest

import card
import expected
import telnet
import uploads

SAMPLE = "kt3300-l"
# What libcli asks of a telnet client, and the banner.
GREETING = (b"\xff\xfb\x03\xff\xfb\x01\xff\xfd\x03\xff\xfd\x01"
            b"Simulated control card. Type ? for help.\r\n")


def texts():
    """What each command prints, by its line, in the order of installation."""
    lines = {f"show context {command}": expected.context(SAMPLE, command)
             for command in expected.CONTEXT_COMMANDS}
    lines[uploads.command()] = expected.UPLOADED
    lines.update((f"show optmodule fileinfo index {index}", text)
                 for index, text in expected.optical_modules(SAMPLE).items())
    return lines


class AllCommands(uploads.UploadTest):
    def define(self):
        """The sample is what defines the card."""
        shutil.copytree(card.sample(SAMPLE), self.root, dirs_exist_ok=True)

    def use_port(self, port):
        """In the equipment of the sample."""
        equipment = (self.root / "equipment.toml").read_text()
        self.assertIn("\nport = 21\n", equipment)
        self.write("equipment.toml", equipment.replace("\nport = 21\n", f"\nport = {port}\n"))

    def test_session(self):
        self.serve()
        server = telnet.serve(self)
        client = telnet.connect(self, server)
        transcript = client.greeting
        for line in texts():
            transcript += client.ask(line.encode())
        self.check_bytes(transcript, GREETING + telnet.PROMPT + b"".join(
            line.encode() + b"\r\n" + text + telnet.PROMPT for line, text in texts().items()))
        self.assertEqual((self.folder / "copy.ini").read_bytes(),
                         card.definition_file(SAMPLE).read_bytes())
        self.assertEqual(server.stop(), (0, b""))

    def test_every_command_is_in_the_session(self):
        """As the help of sysctx names them, in its order."""
        words = expected.installed()
        self.assertEqual(tuple(words), expected.COMMANDS)
        places = [next((place for place, line in enumerate(texts()) if line.startswith(each)), None)
                  for each in words]
        self.assertNotIn(None, places)
        self.assertEqual(places, sorted(places))


if __name__ == "__main__":
    unittest.main()
