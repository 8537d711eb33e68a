"""The output that docs/operating.md shows is what sysctx shows on the small sample.

A block begins with "sysctx> COMMAND"; a line "..." stands for any lines. Blanks at the
ends of lines are not compared. The upload needs a server: upload_test.py."""
import re
import unittest

import card
import expected

PAGE = card.SOURCE / "docs" / "operating.md"
SAMPLE = card.sample("kt2200-a")


def blocks():
    """The command and the lines shown of each block."""
    found = []
    inside = False
    for line in PAGE.read_text().split("\n"):
        if line.startswith("    sysctx> "):
            found.append((line.removeprefix("    sysctx> "), []))
            inside = True
        elif inside:
            inside = line == "" or line.startswith("    ")
            if inside:
                found[-1][1].append(line[4:])
    return found


def name_of(command, names):
    """The one of the names that a command begins with, or else the command."""
    return next((name for name in names if f"{command} ".startswith(f"{name} ")), command)


def trimmed(lines):
    while lines and not lines[-1]:
        lines = lines[:-1]
    return lines


def output(command):
    done = card.run("--root", SAMPLE, "run", command)
    return trimmed([line.rstrip() for line in done.stdout.decode().split("\n")])


def fits(shown, lines):
    pattern = "".join("(?:.*\n)*" if line == "..." else re.escape(line) + "\n" for line in shown)
    return re.fullmatch(pattern, "".join(line + "\n" for line in lines)) is not None


class OperatingPage(unittest.TestCase):
    def test_every_block_is_what_the_command_shows(self):
        for command, shown in blocks():
            if command.startswith("upload"):
                continue
            with self.subTest(command=command):
                lines = output(command)
                self.assertTrue(fits(trimmed(shown), lines),
                                f"the page shows\n{shown}\nbut the command\n{lines}")

    def test_every_command_has_a_block(self):
        names = expected.installed()
        self.assertEqual({name_of(command, names) for command, _ in blocks()}, set(names))


if __name__ == "__main__":
    unittest.main()
