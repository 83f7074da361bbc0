"""What compiled programs know of the DLLs: exported names, and of each public class its size and the
order of its virtual members.

abi.py list ROOT FOLDER         prints it, from the DLLs in FOLDER and the headers in ROOT
abi.py compare FILE ROOT FOLDER tells what is gone or changed since FILE was made (exit status 1),
                                and how much is new
"""

import glob
import os
import re
import subprocess
import sys
import tempfile
import zlib

TARGET = "x86_64-w64-mingw32-"
DLLS = ("FieldkitFx", "Fieldkit", "Tesuvo")
FOLDERS = ("framework", "controls", "dialogs", "geometry", "survey", "util")
OPTIONS = ("-std=c++20", "-fsyntax-only", "-fdump-lang-class", "-DUNICODE", "-D_UNICODE", "-DNOMINMAX", "-D_AFXDLL")


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def exports(dll):
    """The names of a DLL's export table."""
    table = output(TARGET + "objdump", "-p", dll).split("[Ordinal/Name Pointer] Table", 1)[1]
    return re.findall(r"^\s*\[ *\d+\].*?(\S+)$", table.split("\n\n", 1)[0], re.MULTILINE)


def class_name(symbol):
    """The class or function of a mangled name, for grouping; "" for what is neither."""
    found = re.match(r"_ZT[VISh]?N?K?(\d+)|_ZN?K?(\d+)|_ZTI?(\d+)", symbol)
    if not found:
        return ""
    length = int(next(group for group in found.groups() if group))
    return symbol[found.end() : found.end() + length] if "N" in found.group(0) or "ZT" in found.group(0) else ""


def grouped_exports(dll):
    """A line a class: the mangled names with ~ in place of the class, which is most of their text."""
    groups = {}
    for symbol in exports(dll):
        name = class_name(symbol)
        groups.setdefault(name, []).append(symbol.replace(f"{len(name)}{name}", "~", 1) if name else symbol)
    return groups


def layouts(root):
    """Class to size, alignment and virtual members, of what public headers define."""
    headers = [name for folder in FOLDERS for name in sorted(glob.glob(f"{root}/{folder}/*.h"))]
    text = "".join(open(name, encoding="utf-8").read() for name in headers)
    own = set(re.findall(r"^(?:class|struct) (?:[A-Z_]+ )?(\w+)\s*(?:final )?[:{]", text, re.MULTILINE))
    own |= set(re.findall(r"^AFX_\w+\((\w+),", text, re.MULTILINE))
    with tempfile.TemporaryDirectory() as folder:
        source = os.path.join(folder, "all.cpp")
        with open(source, "w", encoding="utf-8") as file:
            file.write("#include <afxwin.h>\n" + "".join(f'#include "{name}"\n' for name in headers))
        includes = (f"-I{root}", f"-I{root}/framework", f"-I{root}/companion")
        subprocess.run((TARGET + "g++-posix", *OPTIONS, *includes, source), check=True, cwd=folder)
        with open(glob.glob(folder + "/*.class")[0], encoding="utf-8") as file:
            dump = file.read()
    tables = {}
    for name, table in re.findall(r"^Vtable for (\S+)\n(.*?)\n\n", dump, re.MULTILINE | re.DOTALL):
        # As many as entries, and their names; addresses in them differ from run to run.
        lines = [re.sub(r"0x\w+|^\d+ +", "", line) for line in table.splitlines()[1:]]
        tables[name] = f" {len(lines)} {zlib.crc32(chr(10).join(lines).encode()):08x}"
    sizes = re.findall(r"^Class (\S+)\n +size=(\d+) align=(\d+)", dump, re.MULTILINE)
    return {name: f"{size} {align}{tables.get(name, '')}" for name, size, align in sizes if name in own}


def lines_of(root, folder):
    yield "# What compiled programs rely on; ./run abi renews it, ./run test compares."
    yield "# class: size, alignment, entries of its virtual table and their checksum"
    for name, layout in sorted(layouts(root).items()):
        yield f"class {name}: {layout}"
    for dll in DLLS:
        yield f"# {dll}.dll exports, ~ is the class"
        for name, symbols in sorted(grouped_exports(f"{folder}/{dll}.dll").items()):
            yield f"{dll} {name}: {' '.join(sorted(symbols))}"


def entries(lines):
    """Each line as facts that are there or not."""
    for line in lines:
        if line.startswith("#"):
            continue
        head, rest = line.rstrip("\n").split(": ", 1)
        for item in [rest] if head.startswith("class ") else rest.split(" "):
            yield head, item


def readable(entry):
    head, item = entry
    if head.startswith("class "):
        return f"{head}: {item}"
    name = head.split(" ", 1)[1]
    return output(TARGET + "c++filt", item.replace("~", f"{len(name)}{name}", 1)).strip()


def compare(known, now):
    gone = sorted(known - now)
    for entry in gone:
        print("  gone or changed:", readable(entry))
    classes = {head for head, _ in known if head.startswith("class ")}
    new = [entry for entry in now - known if entry[0] not in classes]
    print(len(known), "as they were," if not gone else "known,", len(gone), "gone or changed,", len(new), "new")
    return 1 if gone or not known else 0


def main(arguments):
    lines = list(lines_of(*arguments[-2:]))
    if arguments[0] == "list":
        print("\n".join(lines))
        return 0
    with open(arguments[1], encoding="utf-8") as file:
        return compare(set(entries(file)), set(entries(lines)))


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
