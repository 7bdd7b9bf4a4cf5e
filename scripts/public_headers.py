"""Reads the public headers: functions with their arguments, constants, texts. Knows the form in which these headers are
written and no more, and stops at anything else (the form is described in include/tandekor/common.h)."""
import re
from pathlib import Path

INCLUDE = Path(__file__).resolve().parent.parent / "include" / "tandekor"
FAMILIES = ["library", "at", "obex", "ftm", "procedures"]
SCALARS = {"uint8_t", "int8_t", "uint16_t", "int16_t", "uint32_t", "int32_t", "ResourceContext",
           "TandekorCallback", "TandekorUploadArgument"}
POINTED = SCALARS | {"char", "void", "double"}

MARK = re.compile(r"\[(in|out|in,out)(, or null)?\] +(\w+(?:\[[^\]]+\])?(?:, \w+(?:\[[^\]]+\])?)*)(?: +(.*))?$")


class HeaderError(Exception):
    """A header holds something that this reader does not understand."""


class Argument:
    def __init__(self, name, ctype, pointer, const, row):
        self.name, self.ctype, self.pointer, self.const, self.row = name, ctype, pointer, const, row
        self.direction, self.nullable, self.size, self.text = "in", False, None, ""


class Function:
    def __init__(self, name, result, arguments, header, section, text):
        self.name, self.result, self.arguments = name, result, arguments
        self.header, self.section, self.text = header, section, text


class Header:
    def __init__(self, name):
        self.name, self.text, self.functions, self.constants = name, "", [], []


def comment_lines(comment):
    inner = comment.strip()[2:-2]
    return [re.sub(r"^ *\* ?", "", line).rstrip() if index else line.strip()
            for index, line in enumerate(inner.split("\n"))]


def split_comment(comment, where):
    """The free text of a comment, and its lines about arguments as name -> (direction, nullable, size, text)."""
    free, marks, current = [], {}, None
    for line in comment_lines(comment):
        match = MARK.match(line)
        if match:
            direction, null, names, text = match.groups()
            current = []
            for item in names.split(", "):
                name, _, size = item.partition("[")
                if name in marks:
                    raise HeaderError(f"{where}: {name} is described twice")
                marks[name] = (direction, bool(null), size.rstrip("]") or None, current)
            current.append(text or "")
        elif re.search(r"\[(in|out|in,out)(, or null)?\] ", line):
            raise HeaderError(f"{where}: not understood: {line}")
        elif current is not None and line.startswith("  ") and line.strip():
            current.append(line.strip())
        else:
            current = None
            free.append(line)
    return "\n".join(free).strip(), marks


def parse_argument(text, where):
    match = re.fullmatch(r"(const )?(\w+)(\*)? (\w+)", text)
    if match:
        const, ctype, pointer, name = match.groups()
        row = None
    else:
        match = re.fullmatch(r"(char) \(\*(\w+)\)\[(\d+)\]", text)
        if not match:
            raise HeaderError(f"{where}: argument not understood: {text}")
        ctype, name, row = match.groups()
        const, pointer, row = None, "*", int(row)
    if ctype not in (POINTED if pointer else SCALARS):
        raise HeaderError(f"{where}: unknown type: {text}")
    return Argument(name, ctype, bool(pointer), bool(const), row)


def describe(function, scopes, where):
    """Puts the lines about arguments on the arguments; the nearest scope wins."""
    for argument in function.arguments:
        for marks in scopes:
            if argument.name in marks:
                argument.direction, argument.nullable, argument.size, lines = marks[argument.name]
                argument.text = " ".join(line for line in lines if line)
                break
        else:
            if argument.name == "hResourceContext":
                argument.text = "handle of the connection"
            elif not (function.header == "simulator" and simulator_argument(function, argument)):
                raise HeaderError(f"{where}: {function.name}: nothing is said of {argument.name}")
        if argument.direction != "in" and (not argument.pointer or argument.const):
            raise HeaderError(f"{where}: {function.name}: {argument.name} cannot be written")
        if argument.ctype == "void" and argument.size is None:
            raise HeaderError(f"{where}: {function.name}: {argument.name} has no size")
        names = {other.name for other in function.arguments}
        if argument.size and not re.fullmatch(r"\d+|TANDEKOR_\w+", argument.size):
            if argument.size.lstrip("*") not in names:
                raise HeaderError(f"{where}: {function.name}: size {argument.size} of {argument.name}")


def simulator_argument(function, argument):
    """The simulator's header says it once for all: bytes and texts are followed by their size."""
    names = [other.name for other in function.arguments]
    if argument.pointer and not argument.const:
        argument.direction = "out"
        if not argument.name.startswith("pi"):
            argument.size = "iSize" if "iSize" in names else "iLength"
            return argument.size in names
    elif argument.pointer and argument.ctype != "char":
        argument.size = "iLength"
        return "iLength" in names
    return True


def read(name):
    """Reads one header, from its first comment to its last declaration."""
    source = (INCLUDE / f"{name}.h").read_text()
    header = Header(name)
    macro = "PHONE_API" if name == "simulator" else "TANDEKOR_API"
    source = re.sub(r"^#if defined\(_WIN32\).*?^#endif\n", "", source, flags=re.S | re.M)
    file_marks, section_marks, section = {}, {}, ""
    comment, position, first = "", 0, True
    token = re.compile(r"\s*(?:(/\*.*?\*/)|(#[^\n]*)|(extern \"C\"\s*\{|\})|(enum (\w+)\s*\{(.*?)\};)|(typedef [^;]*;)|("
                       + macro + r" [^;]*;))", re.S)
    while source[position:].strip():
        match = token.match(source, position)
        if not match:
            raise HeaderError(f"{name}.h: not understood: {source[position:position + 80].strip()!r}")
        position = match.end()
        remark, directive, _, enum, enum_name, body, _, declaration = match.groups()
        where = f"{name}.h"
        if remark:
            if first:
                header.text, file_marks = split_comment(remark, where)
                first = False
            elif remark.startswith("/* --- "):
                text, section_marks = split_comment(remark, where)
                section, comment = text[4:], ""
            else:
                comment = remark
            if source.startswith("\n\n", position):
                comment = ""
        elif enum:
            header.constants.append((enum_name, enum_values(body, where), split_comment(comment, where)[0]))
            comment = ""
        elif declaration:
            header.functions.append(parse_function(declaration, macro, header, section, comment,
                                                   [section_marks, file_marks], where))
            if not re.match(r"\n *(" + macro + "|/)", source[position:]):
                comment = ""
    check_marks(header)
    return header


def enum_values(body, where):
    values = []
    for line in re.sub(r"/\*.*?\*/", "", body, flags=re.S).split(","):
        match = re.fullmatch(r"\s*(TANDEKOR_\w+) = (-?\d+)\s*", line)
        if not match:
            raise HeaderError(f"{where}: constant not understood: {line.strip()}")
        values.append((match.group(1), int(match.group(2))))
    return values


def parse_function(declaration, macro, header, section, comment, outer, where):
    flat = re.sub(r"\s+", " ", declaration).replace("( ", "(")
    match = re.fullmatch(macro + r" (uint8_t|uint32_t|void|ResourceContext|const char\*) (?:TANDEKOR_CALL |PHONE_CALL )?"
                         r"(\w+)\((.*)\);", flat)
    if not match:
        raise HeaderError(f"{where}: declaration not understood: {flat}")
    result, name, arguments = match.groups()
    if not comment:
        raise HeaderError(f"{where}: {name} has no comment")
    text, marks = split_comment(comment, where)
    parsed = [] if arguments == "void" else [parse_argument(part, where) for part in arguments.split(", ")]
    function = Function(name, result, parsed, header.name, section, text)
    function.own_marks = marks
    describe(function, [marks] + outer, where)
    return function


def check_marks(header):
    """A line about an argument that no function of its comment has is an error."""
    groups = {}
    for function in header.functions:
        group = groups.setdefault(id(function.own_marks), (function, set()))
        group[1].update(argument.name for argument in function.arguments)
        if function.own_marks:
            groups.setdefault(tuple(function.own_marks), (function, set()))[1].update(
                argument.name for argument in function.arguments)
    for key, (function, names) in groups.items():
        if isinstance(key, tuple):
            for name in key:
                if name not in names:
                    raise HeaderError(f"{header.name}.h: {function.name}: there is no argument {name}")


def version():
    text = (INCLUDE / "version.h").read_text()
    return re.search(r'TANDEKOR_VERSION_TEXT "([\d.]+)"', text).group(1)


def read_all():
    names = ["common"] + FAMILIES + (["simulator"] if (INCLUDE / "simulator.h").exists() else [])
    return [read(name) for name in names]
