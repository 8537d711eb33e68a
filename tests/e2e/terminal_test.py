"""The shell on a terminal, as somebody types at it."""
import re
import unittest

import pexpect

import card
import terminal

PROMPT = "sysctx> "


class Screen:
    """The current line of a terminal: text as it would be seen, for the few
    controls that a line editor sends."""

    CONTROL = re.compile(r"\x1b\[(\d*)([A-Za-z])")

    def __init__(self):
        self.line, self.column = [], 0

    def feed(self, text):
        place = 0
        while place < len(text):
            control = self.CONTROL.match(text, place)
            if control:
                self.control(control[2], int(control[1] or 1))
                place = control.end()
            else:
                self.character(text[place])
                place += 1
        return "".join(self.line)

    def control(self, letter, count):
        if letter == "C":
            self.column += count
        elif letter == "D":
            self.column = max(0, self.column - count)
        elif letter in "JK":
            del self.line[self.column:]
        elif letter == "P":
            del self.line[self.column:self.column + count]
        elif letter == "@":
            self.line[self.column:self.column] = [" "] * count

    def character(self, character):
        if character == "\r":
            self.column = 0
        elif character == "\n":
            self.line, self.column = [], 0
        elif character == "\b":
            self.column = max(0, self.column - 1)
        elif character >= " ":
            self.line += [" "] * (self.column + 1 - len(self.line))
            self.line[self.column] = character
            self.column += 1


class Terminal(card.CardTest):
    def setUp(self):
        super().setUp()
        self.define()
        self.shell = terminal.spawn(self, {"TERM": "vt100", "COLUMNS": "120"}, encoding="utf-8",
                                    dimensions=(40, 120))
        self.screen = Screen()
        self.report = self.wait_for_line(PROMPT)

    def wait_for_line(self, line, behind=""):
        """Reads until the current line looks like `line`, and `behind` has
        come before it; returns what came."""
        came = ""
        while True:
            text = self.shell.read_nonblocking(4096, card.PATIENCE)
            came += text
            if self.screen.feed(text).rstrip() == line.rstrip() and behind in came:
                return came

    def type(self, keys, line, behind=""):
        self.shell.send(keys)
        return self.wait_for_line(PROMPT + line, behind)

    def enter(self, line):
        """Types a whole line and returns its output."""
        self.shell.send(line)
        self.wait_for_line(PROMPT + line)
        self.shell.send("\r")
        return self.wait_for_line(PROMPT)

    def leave(self, keys):
        self.shell.send(keys)
        self.shell.expect(pexpect.EOF)
        self.shell.close()
        self.assertEqual((self.shell.exitstatus, self.shell.signalstatus), (0, None))

    def test_start_up_report(self):
        self.assertIn("simulated control card", self.report)
        self.assertIn(f"root: {self.root}", self.report)
        self.assertIn(card.LOADED, self.report.replace("\r\n", "\n"))

    def test_completion(self):
        self.type("sh\t", "show ")
        self.type("c\t", "show context ")
        self.type("mod\t", "show context module_all ")
        output = self.type("\r", "")
        self.assertIn("acName = OMCI", output)
        self.type("show context ma\t", "show context main_board ")
        output = self.type("\r", "")
        self.assertIn("acName = MCXA", output)
        self.type("show context onu_d\t", "show context onu_detail ")
        self.type("i\t", "show context onu_detail index ")
        output = self.type("1\r", "")
        self.assertIn("SupportedOneOnuInformation: KT-G112C", output)
        self.type("show o\t", "show optmodule ")
        self.type("f\ti\t", "show optmodule fileinfo index ")
        output = self.type("2\r", "")
        self.assertIn("ONU PON Optical Module Index 2:", output)

    def test_completion_goes_as_far_as_the_words_agree(self):
        self.type("show context \t", "show context ",
                  behind="  sys_support_func     sys support func info.")
        self.type("\x15", "")
        output = self.type("h\t", "h", behind="  help                 Show available commands")
        self.assertIn("  history              Show a list of previously run commands", output)

    def test_help(self):
        self.type("?", "", behind="  show                 show info.")
        self.type("sh?", "sh", behind="  show                 show info.")
        output = self.type("ow context ?", "show context ",
                           behind="  version              version info.")
        self.assertIn("  module_all           all module info.", output)
        self.type("version ?", "show context version ", behind="  <cr>")

    def test_help_on_arguments(self):
        self.type("upload ftp context ?", "upload ftp context ",
                  behind="  <A.B.C.D>            Please input ftp server's IP address, "
                         "such as A.B.C.D")
        self.type("127.0.0.1 ?", "upload ftp context 127.0.0.1 ",
                  behind="  <username>           Please input ftp user name.")

    def test_the_definition_file(self):
        output = self.enter("show context file")
        self.assertIn("\r\n" + card.DEFINITIONS.replace("\n", "\r\n"), output)

    def test_abbreviation_and_filter(self):
        output = self.enter("sh con ver | inc 4.1")
        self.assertIn("acSupportedSoftVer = KT2200V4.1", output)
        self.assertNotIn("acSupportedSoftVer = KT2200V4.0", output)

    def test_wrong_commands(self):
        self.assertIn('Invalid command "hide"', self.enter("hide"))
        self.assertIn('Ambiguous command "h": help history', self.enter("h"))
        self.assertIn("Incomplete command", self.enter("show"))

    def test_history(self):
        self.enter("show context version")
        self.enter("help")
        self.type("\x1b[A", "help")
        self.type("\x1b[A", "show context version")
        self.assertIn("KT2200V4.0", self.type("\r", ""))
        output = self.enter("history")
        self.assertIn("  0. show context version", output)
        self.assertIn("  2. show context version", output)

    def test_line_editing(self):
        self.type("context version", "context version")
        self.type("\x01show ", "show context version")
        self.assertIn("KT2200V4.0", self.type("\x05\r", ""))

    def test_abandoned_line(self):
        self.type("show con", "show con")
        self.type("\x03", "")
        self.assertIn("KT2200V4.0", self.enter("show context version"))

    def test_leaving(self):
        self.leave("quit\r")

    def test_leaving_by_exit(self):
        self.leave("exit\r")

    def test_leaving_by_end_of_input(self):
        self.leave("\x04")


class FailedStart(card.CardTest):
    def test_shell_is_usable(self):
        self.define("[Version]\n")
        shell = terminal.spawn(self, encoding="utf-8")
        shell.expect_exact("ddInit failed with -31: tables behind the failure are empty")
        shell.expect_exact(PROMPT)
        shell.send("show context version\r")
        shell.expect_exact("ulSupportedSoftVerNum = 0")
        shell.expect_exact(PROMPT)


if __name__ == "__main__":
    unittest.main()
