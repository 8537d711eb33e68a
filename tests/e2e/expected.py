"""What the commands print on the samples, byte for byte."""
import pathlib
import re

import card

GOLDEN = pathlib.Path(__file__).parent / "golden"
# The commands that need no server, in the order in which they are installed,
# without "show context".
CONTEXT_COMMANDS = (
    "version", "module_all", "sys_support_func", "main_board", "olt_port", "board_all", "frame",
    "onu_pon", "onu_lan", "onu_pots", "onu_special_port", "onu_type_all", "onu_detail index 8",
    "onu_all", "device_all", "file")
# The words of all commands, in the order of installation.
COMMANDS = (*(f"show context {command.removesuffix(' 8')}" for command in CONTEXT_COMMANDS),
            "upload ftp context", "show optmodule fileinfo index")
OPTICAL_MODULES = {"kt3300-l": 26, "kt2200-a": 8}
# What the report of the device, device_all, is made of.
BEGIN = b"\r\n\r\n/***************** System device describe begin! *****************/\r\n"
REPORT = ("version", "module_all", "sys_support_func", "main_board", "olt_port", "board_all",
          "frame", "onu_pon", "onu_lan", "onu_pots", "onu_special_port", "onu_all")
END = (b"\r\n\r\n/***************** System device describe end! *****************/\r\n"
       + b" " * 64 + b"\r\n")
# What an upload says, and what it says of its end.
WAIT = b"\r\nThis will need seconds of time, please wait...\r\n"
UPLOADED = WAIT + b"Upload the context file success!\r\n"
NOT_UPLOADED = WAIT + b"Fail to upload the context file, please check the ftp setting!\r\n"


def context(sample, command):
    """The bytes of "show context COMMAND"."""
    if command == "device_all":
        return BEGIN + b"".join(context(sample, each) for each in REPORT) + END
    if command == "file":
        return b"\r\n" + card.definition_file(sample).read_bytes() + b"\r\n"
    return (GOLDEN / f"{sample}-{command.split()[0]}.txt").read_bytes()


def installed():
    """The words of the commands that `help` lists in front of the shell's own."""
    lines = card.run("run", "help").stdout.decode().splitlines()[1:]
    lines = [line.strip().split("  ")[0] for line in lines]
    return [line.split(" <")[0] for line in lines[:lines.index("help")]]


def optical_modules(sample):
    """The bytes of "show optmodule fileinfo index INDEX" by index: from 1 to one
    too many, and 0."""
    text = (GOLDEN / f"{sample}-optmodule.txt").read_bytes()
    texts = re.split(rb"(?m)^(?=... ... Optical Module Index |index )", text)[1:]
    count = OPTICAL_MODULES[sample]
    return dict(zip([*range(1, count + 1), 0, count + 1], texts, strict=True))
