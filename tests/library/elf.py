"""A reader of ELF files: as much of the format as the tests of the built
library need, for both word sizes, so that the same tests serve the desk and
the card."""

import struct
from collections import namedtuple

Section = namedtuple("Section", "name type flags address offset size link info entry_size")
Symbol = namedtuple("Symbol", "name value size kind binding visibility section version")
Relocation = namedtuple("Relocation", "kind symbol")
ObjectRelocation = namedtuple("ObjectRelocation", "kind symbol addend")

SHF_ALLOC, SHF_EXECINSTR = 2, 4
SHT_RELA, SHT_NOBITS, SHT_REL = 4, 8, 9
STT_OBJECT, STT_FUNC, STT_SECTION = 1, 2, 3
STB_GLOBAL, STB_WEAK = 1, 2
STV_DEFAULT = 0
UNDEFINED = 0
ARM, X86_64 = 40, 62
COPY_RELOCATION = {ARM: 20, X86_64: 5}
DT_NEEDED, DT_SONAME, DT_SYMBOLIC, DT_FLAGS = 1, 14, 16, 30
DF_SYMBOLIC = 2


class Elf:
    def __init__(self, path):
        with open(path, "rb") as file:
            self.data = file.read()
        if self.data[:4] != b"\x7fELF" or self.data[5] != 1:
            raise ValueError(f"{path} is no little-endian ELF file")
        self.bits = {1: 32, 2: 64}[self.data[4]]
        self.machine = self._unpack("<H", 18)[0]
        self.sections = self._read_sections()

    def section(self, name):
        """The section of that name, or None."""
        return next((section for section in self.sections if section.name == name), None)

    def contents(self, section):
        return self.data[section.offset : section.offset + section.size]

    def bytes_at(self, address, size):
        """What the file loads at an address."""
        for section in self.sections:
            if section.address and section.address <= address < section.address + section.size:
                if section.type == SHT_NOBITS:
                    return bytes(size)
                start = section.offset + address - section.address
                return self.data[start : start + size]
        raise ValueError(f"nothing is loaded at {address:#x}")

    def symbols(self, table):
        """The symbols of ".dynsym" (with the versions of what it needs) or ".symtab"."""
        section = self.section(table)
        if section is None:
            return []
        versions = self._needed_versions() if table == ".dynsym" else {}
        numbers = self.section(".gnu.version") if table == ".dynsym" else None
        layout = "<IIIBBH" if self.bits == 32 else "<IBBHQQ"
        symbols = []
        for index in range(section.size // section.entry_size):
            fields = self._unpack(layout, section.offset + index * section.entry_size)
            if self.bits == 32:
                name, value, size, info, other, place = fields
            else:
                name, info, other, place, value, size = fields
            number = self._unpack("<H", numbers.offset + 2 * index)[0] if numbers else 0
            if self.machine == ARM and info & 15 == STT_FUNC:
                value &= ~1  # the mark of Thumb code
            symbols.append(
                Symbol(self._text(section.link, name), value, size, info & 15, info >> 4,
                       other & 3, place, versions.get(number & 0x7FFF)))
        return symbols

    def dynamic(self, tag):
        """All values of a tag of the dynamic section."""
        section = self.section(".dynamic")
        layout = "<iI" if self.bits == 32 else "<qQ"
        step = struct.calcsize(layout)
        entries = [self._unpack(layout, section.offset + at) for at in range(0, section.size, step)]
        return [value for entry, value in entries if entry == tag]

    def dynamic_texts(self, tag):
        link = self.section(".dynamic").link
        return [self._text(link, value) for value in self.dynamic(tag)]

    def dynamic_relocations(self):
        names = [symbol.name for symbol in self.symbols(".dynsym")]
        relocations = []
        for section in self.sections:
            if section.name not in (".rel.dyn", ".rela.dyn"):
                continue
            for at in range(section.offset, section.offset + section.size, section.entry_size):
                if self.bits == 32:
                    info = self._unpack("<II", at)[1]
                    relocations.append(Relocation(info & 0xFF, names[info >> 8]))
                else:
                    info = self._unpack("<QQ", at)[1]
                    relocations.append(Relocation(info & 0xFFFFFFFF, names[info >> 32]))
        return relocations

    def relocations_of(self, section):
        """Of a relocation section of an object; without addends of their own, they are 0."""
        symbols = self.symbols(".symtab")
        layout = {(32, SHT_REL): "<II", (64, SHT_RELA): "<QQq"}[self.bits, section.type]
        relocations = []
        for at in range(section.offset, section.offset + section.size, section.entry_size):
            _, info, *addend = self._unpack(layout, at)
            kind, symbol = (info & 0xFF, info >> 8) if self.bits == 32 else (
                info & 0xFFFFFFFF, info >> 32)
            relocations.append(ObjectRelocation(kind, symbols[symbol], addend[0] if addend else 0))
        return relocations

    def _unpack(self, layout, offset):
        return struct.unpack_from(layout, self.data, offset)

    def _read_sections(self):
        start, = self._unpack("<I", 32) if self.bits == 32 else self._unpack("<Q", 40)
        size, count, names = self._unpack("<HHH", 46 if self.bits == 32 else 58)
        layout = "<IIIIIIIIII" if self.bits == 32 else "<IIQQQQIIQQ"
        raw = [self._unpack(layout, start + i * size) for i in range(count)]
        sections = []
        for name, kind, flags, address, offset, length, link, info, _, entry in raw:
            at = raw[names][4] + name
            text = self.data[at : self.data.index(b"\0", at)].decode()
            sections.append(Section(text, kind, flags, address, offset, length, link, info, entry))
        return sections

    def _text(self, section, offset):
        start = self.sections[section].offset + offset
        return self.data[start : self.data.index(b"\0", start)].decode()

    def _needed_versions(self):
        """Version names by their number, of the libraries that are needed."""
        section = self.section(".gnu.version_r")
        versions = {}
        if section is None:
            return versions
        library = section.offset
        for _ in range(section.info):
            _, count, _, first, following = self._unpack("<HHIII", library)
            version = library + first
            for _ in range(count):
                _, _, number, name, step = self._unpack("<IHHII", version)
                versions[number] = self._text(section.link, name)
                version += step
            library += following
        return versions
