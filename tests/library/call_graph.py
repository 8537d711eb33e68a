"""The call graph of the library, from what GCC writes beside every object under
-fcallgraph-info=su: which function calls which, and the bytes of its frame."""

from __future__ import annotations

import re
from dataclasses import dataclass, field
from pathlib import Path

import elf

NODE = re.compile(r'^node: \{ title: "(?P<title>[^"]*)" label: "(?P<label>[^"]*)"(?P<rest>.*)\}$')
EDGE = re.compile(r'^edge: \{ sourcename: "([^"]*)" targetname: "([^"]*)"(?: label: "([^"]*)")?')
FRAME = re.compile(r"(\d+) bytes \(([\w,]+)\)")
INDIRECT = "__indirect_call"
# Of these, the target is called or jumped to. All others take an address.
CALLS = {
    elf.ARM: {1, 10, 19, 28, 29, 30, 51, 102, 103},  # with Thumb's jumps
    elf.X86_64: {4},
}
TABLES_OF_UNWINDING = (".eh_frame", ".ARM.exidx", ".ARM.extab")

# What can be called through a pointer, by the file of the call: functions with these
# parameters whose address is taken anywhere. A call in another file is refused.
NUMBER_OUT = r"uint32_t, uint32_t\*"
NAME_LOOKUP = r"const char\*, uint32_t\*, uint32_t\*"
CALLED_THROUGH_POINTERS = {
    "catalog/frame/frame_reader.cpp": r"const char\*, const char\*",
    "catalog/frame/logic_port_lists.cpp": NUMBER_OUT,
    "catalog/frame/logic_port_readers.cpp":
        r"uint32_t, uint32_t&|(\w+|Entry)&, uint32_t, bool, uint32_t",
    "catalog/frame/slot_ranges.cpp": r"uint32_t, uint32_t",
    "catalog/onu/onu_port_counts.cpp": NUMBER_OUT,
    "catalog/onu/onu_port_queries.cpp": r"uint32_t, uint32_t, uint32_t\*",
    "catalog/onu/port_types.cpp": r"const char\*, const char\*, \w+\*\*",
    "cfgfile/letter_case.cpp": r"int",
    "cfgfile/named_sections.h": r"|const Source&, const char\*, \w+\*\*",
    "cfgfile/port_list.h": NAME_LOOKUP + r"|const char\*, \w+\*\*",
    "cfgfile/port_owner.h": r"const char\*, const char\*, int32_t, \w+\*|\w+\*",
    "cfgfile/text.cpp": r"std::string_view",
    "cli/report.cpp": r"void\*",
    "common/card_kinds.h": r"int16_t",
    "common/table_queries.h": NAME_LOOKUP,
    "context/startup.cpp": r"const char\*|void\*, int, size_t",
    "optmodule/module_reader.cpp": r"OptModuleInfo&, int32_t",
}
# And by the caller, those of them whose symbols are such.
CALLED_BY = {
    "ReadTables": r"ddRead\w+|read_\w+",  # the exported readers; it has their parameters itself
}
# These calls go out of the library, by what their line has.
CALLED_OUTSIDE = {
    "catalog/onu/onu_port_queries.cpp": "query.ask_platform(",  # the platform's
    "cfgfile/letter_case.cpp": "letters.convert(",  # the C library's
}


@dataclass
class Function:
    symbol: str
    parameters: str
    frame: int | None = None  # bytes; None: it is somebody else's
    calls: set[str] = field(default_factory=set)
    calls_through_pointers: set[str] = field(default_factory=set)  # where, as FILE:LINE:COLUMN


def parameters_of(declaration: str) -> str:
    """What stands between its last outer parentheses, without namespaces."""
    declaration = re.sub(r" \[with .*\]$", "", declaration)
    depth, end = 0, declaration.rfind(")")
    for at in range(end, -1, -1):
        depth += {")": 1, "(": -1}.get(declaration[at], 0)
        if depth == 0:
            return re.sub(r"sys_context::|\{anonymous\}::", "", declaration[at + 1 : end])
    return ""


class CallGraph:
    """Of objects, some of which are of assembler; what it cannot tell goes to `failures`."""

    def __init__(self, root: Path, objects: list[Path]) -> None:
        self.root = root
        self.functions: dict[str, Function] = {}
        self.failures: list[str] = []
        taken: set[str] = set()
        for path in objects:
            file = elf.Elf(path)
            described = path.with_suffix(".ci")
            if not described.exists():
                if not path.name.endswith(".S.o"):
                    self.failures.append(f"{path} has no {described.name} beside it")
                continue
            titles = self._read(described)
            self._add_aliases(file, titles)
            self._add_calls_by_the_compiler(file)
            taken |= {titles.get(name, name) for name in addresses_taken(file)}
        self._resolve_pointers(taken & self.functions.keys())
        called = {title for function in self.functions.values() for title in function.calls}
        for title in sorted(called - self.functions.keys()):
            self.failures.append(f"{title} is called, but not described")

    def _read(self, path: Path) -> dict[str, str]:
        """Returns the titles of the object's functions, by their symbols."""
        titles = {}
        for line in path.read_text(encoding="utf-8").splitlines():
            if (node := NODE.match(line)) and node["title"] != INDIRECT:
                self._add(node["title"], node["label"])
                titles[node["title"].rpartition(":")[2]] = node["title"]
            elif edge := EDGE.match(line):
                caller, callee, place = edge.groups()
                if callee == INDIRECT:
                    self.functions[caller].calls_through_pointers.add(place)
                else:
                    self.functions[caller].calls.add(callee)
        return titles

    def _add(self, title: str, label: str) -> None:
        parameters = parameters_of(label.split("\\n")[0])
        symbol = title.rpartition(":")[2]
        function = self.functions.setdefault(title, Function(symbol, parameters))
        if frame := FRAME.search(label):
            function.parameters = parameters
            function.frame = max(int(frame[1]), function.frame or 0)
            if frame[2] not in ("static", "dynamic,bounded"):
                self.failures.append(f"the frame of {symbol} has no fixed size")

    def _add_aliases(self, file: elf.Elf, titles: dict[str, str]) -> None:
        """A constructor has two names, one of which GCC describes."""
        described = {}
        symbols = [symbol for symbol in file.symbols(".symtab")
                   if symbol.kind == elf.STT_FUNC and symbol.section != elf.UNDEFINED]
        for symbol in symbols:
            title = titles.get(symbol.name)
            if title is not None and self.functions[title].frame is not None:
                described[symbol.section, symbol.value] = title
        for symbol in symbols:
            title = described.get((symbol.section, symbol.value))
            if title is not None and titles.get(symbol.name) != title:
                alias = Function(symbol.name, self.functions[title].parameters, 0, {title})
                self.functions[symbol.name] = alias
                self.functions[f"{title.rpartition(':')[0]}:{symbol.name}"] = alias

    def _add_calls_by_the_compiler(self, file: elf.Elf) -> None:
        """Such as of a division on ARM, without its caller: frames of its own are not known."""
        for section in file.sections:
            if section.type in (elf.SHT_REL, elf.SHT_RELA):
                for relocation in file.relocations_of(section):
                    symbol = relocation.symbol
                    if relocation.kind in CALLS[file.machine] and symbol.section == elf.UNDEFINED:
                        self.functions.setdefault(symbol.name, Function(symbol.name, ""))

    def _resolve_pointers(self, taken: set[str]) -> None:
        for function in self.functions.values():
            for place in function.calls_through_pointers:
                file = str(Path(place.rsplit(":", 2)[0]).relative_to(self.root))
                if file not in CALLED_THROUGH_POINTERS:
                    self.failures.append(
                        f"{file} calls through a pointer, but is not listed in call_graph.py")
                    continue
                callees = {title for title in taken if self._fits(title, file, function)}
                if not callees and not self._goes_outside(file, place):
                    self.failures.append(f"{place}: no function fits this call through a pointer")
                function.calls |= callees

    def _goes_outside(self, file: str, place: str) -> bool:
        line = int(place.rsplit(":", 2)[1])
        text = (self.root / file).read_text(encoding="utf-8").splitlines()[line - 1]
        return file in CALLED_OUTSIDE and CALLED_OUTSIDE[file] in text

    def _fits(self, title: str, file: str, caller: Function) -> bool:
        callee = self.functions[title]
        if not re.fullmatch(CALLED_THROUGH_POINTERS[file], callee.parameters):
            return False
        return all(re.fullmatch(wanted, callee.symbol)
                   for name, wanted in CALLED_BY.items() if name in caller.symbol)


def addresses_taken(file: elf.Elf) -> set[str]:
    """The symbols of the functions whose address an object uses otherwise than to call them."""
    at_places = {(symbol.section, symbol.value): symbol.name
                 for symbol in file.symbols(".symtab") if symbol.kind == elf.STT_FUNC}
    names = set()
    for section in file.sections:
        if section.type not in (elf.SHT_REL, elf.SHT_RELA):
            continue
        target = file.sections[section.info]
        if not target.flags & elf.SHF_ALLOC or target.name.startswith(TABLES_OF_UNWINDING):
            continue
        for relocation in file.relocations_of(section):
            if relocation.kind in CALLS[file.machine]:
                continue
            symbol = relocation.symbol
            if symbol.kind != elf.STT_SECTION:
                names.add(symbol.name)
                continue
            # The place itself; an address in an instruction counts from four bytes behind it.
            for step in (0, 4):
                names.add(at_places.get((symbol.section, relocation.addend + step), ""))
    return names - {""}
