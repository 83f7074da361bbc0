"""Plants faults into a copy of a folder's sources: each place that can be spoiled becomes a
call of a function of Mutant.h, which spoils it when the fault's number is the active one.

    plant.py COMPILE_COMMANDS TREE COPY FOLDER[,FILE...] LEFT_OUT -- COMPILER_ARGUMENTS

LEFT_OUT has the keys of places that do not compile in that form (constant expressions).
Writes the changed sources into COPY and the list of the faults to standard output as JSON.
"""
import json
import os
import re
import sys

from clang import cindex
from clang.cindex import CursorKind as Kind, TypeKind

BINARY = {
    "<": "less",
    "<=": "less_equal",
    ">": "greater",
    ">=": "greater_equal",
    "==": "equal",
    "!=": "not_equal",
    "+": "plus",
    "-": "minus",
    "*": "times",
    "/": "swapped_divide",
    "&&": "both",
    "||": "either",
}
LITERALS = {Kind.INTEGER_LITERAL, Kind.FLOATING_LITERAL}
TRUTHS = re.compile(r"TRUE|FALSE|true|false")
# Statements made of one expression, which can be left out.
DROPPED = {Kind.CALL_EXPR, Kind.COMPOUND_ASSIGNMENT_OPERATOR, Kind.UNARY_OPERATOR, Kind.CXX_DELETE_EXPR}
FUNCTIONS = {Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.CONSTRUCTOR, Kind.DESTRUCTOR, Kind.FUNCTION_TEMPLATE,
             Kind.CONVERSION_FUNCTION}


class Edit:
    """A place and how it is written when spoiled; parts are its operands' places."""

    def __init__(self, start, end, kind, parts, before, children):
        self.start, self.end, self.kind, self.parts = start, end, kind, parts
        self.before, self.children = before, children
        self.number = 0
        self.function = ""


class Source:
    def __init__(self, path, left_out):
        self.path = path
        self.text = open(path, "rb").read().decode("utf-8")
        # libclang counts bytes.
        self.bytes = self.text.encode("utf-8")
        self.left_out = left_out
        self.skipped = 0
        self.roots = {}
        self.seen = set()

    def part(self, start, end):
        return self.bytes[start:end].decode("utf-8")

    def line(self, offset):
        return self.bytes.count(b"\n", 0, offset) + 1

    def key(self, edit):
        return f"{os.path.basename(self.path)}:{edit.start}:{edit.end}:{edit.kind}"

    # --- Where something can be spoiled -------------------------------------------------

    def walk(self, cursor, constant=False):
        """The edits in and at a cursor. `constant`: inside an expression the compiler evaluates."""
        children = list(cursor.get_children())
        kind = cursor.kind
        if kind in FUNCTIONS:
            head = self.part(cursor.extent.start.offset, cursor.extent.end.offset).split("{")[0]
            constant = "constexpr" in head
            children = [child for child in children if child.kind != Kind.PARM_DECL]
        elif kind in (Kind.VAR_DECL, Kind.FIELD_DECL):
            text = self.part(cursor.extent.start.offset, cursor.extent.end.offset)
            constant = constant or bool(re.match(r"(inline )?(constexpr|static const)\b", text))
        elif kind in (Kind.ENUM_DECL, Kind.STATIC_ASSERT, Kind.TEMPLATE_NON_TYPE_PARAMETER):
            constant = True
        edits = []
        for i, child in enumerate(children):
            fixed = constant or (kind == Kind.CASE_STMT and i == 0) or self.is_if_constexpr(cursor, i)
            fixed = fixed or self.is_array_bound(cursor, child)
            edits += self.walk(child, fixed)
        if kind in FUNCTIONS:
            for edit in edits:
                edit.function = edit.function or cursor.spelling
        if constant:
            return edits
        for make in (self.binary, self.negative, self.literal, self.swapped):
            edits = make(cursor, children, edits)
        edits = self.dropped(cursor, children, edits)
        return self.condition(cursor, children, edits)

    def is_array_bound(self, cursor, child):
        before = self.bytes[:child.extent.start.offset].rstrip()
        return cursor.kind in (Kind.VAR_DECL, Kind.FIELD_DECL) and before.endswith(b"[")

    def is_if_constexpr(self, cursor, index):
        is_head = self.bytes.startswith(b"if constexpr", cursor.extent.start.offset)
        return cursor.kind == Kind.IF_STMT and index == 0 and is_head

    @staticmethod
    def range_of(cursor):
        return cursor.extent.start.offset, cursor.extent.end.offset

    def is_here(self, cursor):
        start = cursor.extent.start
        return start.file is not None and os.path.samefile(start.file.name, self.path)

    def wrap(self, cursor, edits, kind, parts, before):
        start, end = self.range_of(cursor)
        edit = Edit(start, end, kind, parts, before, edits)
        if self.key(edit) in self.left_out:
            self.skipped += 1
            return edits
        return [edit]

    def binary(self, cursor, children, edits):
        if cursor.kind != Kind.BINARY_OPERATOR or len(children) != 2:
            return edits
        (start, left_end), (right, end) = self.range_of(children[0]), self.range_of(children[1])
        operator = self.part(left_end, right).strip() if left_end < right else ""
        if operator not in BINARY or self.range_of(cursor) != (start, end):
            return edits
        if operator == "-" and all(child.type.get_canonical().kind == TypeKind.POINTER for child in children):
            return edits  # pointers have no sum
        operands = [(start, left_end), (right, end)]
        return self.wrap(cursor, edits, BINARY[operator], operands, self.part(start, end))

    def negative(self, cursor, children, edits):
        start, end = self.range_of(cursor)
        if cursor.kind != Kind.UNARY_OPERATOR or self.part(start, start + 1) != "-" or len(children) != 1:
            return edits
        if self.part(start, start + 2) == "--":
            return edits
        operand = self.range_of(children[0])
        return self.wrap(cursor, edits, "negative", [operand], self.part(start, end))

    def literal(self, cursor, children, edits):
        start, end = self.range_of(cursor)
        text = self.part(start, end)
        if cursor.kind in LITERALS or cursor.kind == Kind.CXX_BOOL_LITERAL_EXPR:
            if TRUTHS.fullmatch(text):
                return self.wrap(cursor, [], "negated", [(start, end)], text)
            if text[:1].isdigit() or text[:1] == ".":
                return self.wrap(cursor, [], "constant", [(start, end)], text)
        if cursor.kind == Kind.DECL_REF_EXPR and cursor.referenced is not None:
            declared = cursor.referenced
            named = declared.kind == Kind.VAR_DECL and declared.type.is_const_qualified()
            number = declared.type.get_canonical().kind in (TypeKind.DOUBLE, TypeKind.INT, TypeKind.UINT)
            if named and number and re.fullmatch(r"[A-Z_0-9]+|k[A-Z]\w+", text):
                return self.wrap(cursor, [], "constant", [(start, end)], text)
        return edits

    def swapped(self, cursor, _, edits):
        """Two neighbouring arguments of one type."""
        start, end = self.range_of(cursor)
        text = self.part(start, end)
        if cursor.kind != Kind.CALL_EXPR or cursor.spelling in ("min", "max") or not re.match(
                r"[\w:.>\-\[\]]*\b%s\(" % re.escape(cursor.spelling), text):
            return edits
        arguments = list(cursor.get_arguments())
        for first, second in zip(arguments, arguments[1:]):
            places = [self.range_of(first), self.range_of(second)]
            same = first.type.get_canonical().spelling == second.type.get_canonical().spelling
            inside = start < places[0][0] < places[0][1] < places[1][0] < places[1][1] < end
            if same and inside and self.part(*places[0]) != self.part(*places[1]):
                return self.wrap(cursor, edits, "swapped", places, text)
        return edits

    def dropped(self, cursor, children, edits):
        """Statements of one expression, directly in a block."""
        if cursor.kind != Kind.COMPOUND_STMT:
            return edits
        for child in children:
            inner = child
            while inner.kind == Kind.UNEXPOSED_EXPR and len(list(inner.get_children())) == 1:
                inner = next(inner.get_children())
            start, end = self.range_of(child)
            assigns = inner.kind == Kind.BINARY_OPERATOR and re.search(r"[^=!<>]=[^=]", self.part(start, end))
            if inner.kind not in DROPPED and not assigns:
                continue
            within = [edit for edit in edits if start <= edit.start and edit.end <= end]
            text = self.part(start, end)
            if not text or text.startswith(("ASSERT", "VERIFY", "TRACE")):
                continue
            drop = self.wrap(child, within, "dropped", [(start, end)], text)
            edits = [edit for edit in edits if edit not in within] + drop
        return sorted(edits, key=lambda edit: edit.start)

    def condition(self, cursor, children, edits):
        if cursor.kind not in (Kind.IF_STMT, Kind.WHILE_STMT, Kind.CONDITIONAL_OPERATOR) or not children:
            return edits
        first = children[0]
        if first.kind in (Kind.DECL_STMT, Kind.VAR_DECL) or self.is_if_constexpr(cursor, 0):
            return edits
        start, end = self.range_of(first)
        text = self.part(start, end)
        within = [edit for edit in edits if start <= edit.start and edit.end <= end]
        # Comparisons are turned round by their own faults.
        own = {self.key(Edit(start, end, kind, [], text, [])) for kind in ("equal", "not_equal")}
        if own & (self.left_out | {self.key(edit) for edit in within}):
            return edits
        turned = self.wrap(first, within, "condition", [(start, end)], text)
        return sorted([edit for edit in edits if edit not in within] + turned, key=lambda edit: edit.start)

    # --- Writing --------------------------------------------------------------------------

    def emit(self, start, end, edits):
        pieces, at = [], start
        for edit in edits:
            if edit.start < at or edit.end > end:
                continue
            spoiled = self.spoiled(edit)
            # Lines keep their numbers, by which the compiler's complaints are found.
            lost = self.part(edit.start, edit.end).count("\n") - spoiled.count("\n")
            pieces += [self.part(at, edit.start), spoiled, "\n" * max(0, lost)]
            at = edit.end
        return "".join(pieces) + self.part(at, end)

    def swap(self, edit):
        (first, first_end), (second, second_end) = edit.parts
        pieces = [(edit.start, first), (second, second_end), (first_end, second), (first, first_end),
                  (second_end, edit.end)]
        spoiled = "".join(self.part(*piece) for piece in pieces)
        if "//" not in spoiled:
            spoiled = spoiled.replace("\n", " ") # in the other form they keep their lines
        return f"(fkmutant::Is({edit.number}) ? {spoiled} : {self.emit(edit.start, edit.end, edit.children)})"

    def spoiled(self, edit):
        if edit.kind == "swapped":
            return self.swap(edit)
        parts = []
        for start, end in edit.parts:
            inner = [child for child in edit.children if start <= child.start and child.end <= end]
            parts.append(self.emit(start, end, inner))
        number = edit.number
        if edit.kind == "dropped":
            return f"(fkmutant::Is({number}) ? void() : void({parts[0]}))"
        if edit.kind == "condition":
            return f"fkmutant::negated({number}, static_cast<bool>({parts[0]}))"
        if edit.kind in ("both", "either"):
            parts = [f"[&] {{ return static_cast<bool>({part}); }}" for part in parts]
        return f"fkmutant::{edit.kind}({number}, {', '.join(parts)})"


def number_all(edits, counter):
    for edit in edits:
        counter[0] += 1
        edit.number = counter[0]
        number_all(edit.children, counter)


def listed(source, edits, tree, function=""):
    for edit in edits:
        within = function or edit.function
        yield {
            "number": edit.number,
            "file": os.path.relpath(source.path, tree),
            "line": source.line(edit.start),
            "function": within,
            "key": source.key(edit),
            "kind": edit.kind,
            "before": " ".join(edit.before.split()),
        }
        yield from listed(source, edit.children, tree, within)


def definitions(unit, path):
    """Top-level cursors that lie in a file, those in namespaces and classes included."""
    for cursor in unit.cursor.get_children():
        if cursor.location.file is not None and os.path.samefile(cursor.location.file.name, path):
            yield cursor


def main():
    split = sys.argv.index("--")
    commands, tree, copy, folder, left_out_path = sys.argv[1:split]
    arguments = sys.argv[split + 1:]
    left_out = set(open(left_out_path).read().split()) if os.path.exists(left_out_path) else set()
    index = cindex.Index.create()
    sources, counter, faults = {}, [0], []
    places = [os.path.join(tree, place) for place in folder.split(",")]
    prefixes = tuple(place if place.endswith((".h", ".cpp")) else place + os.sep for place in places)
    for entry in json.load(open(commands)):
        path = entry["file"]
        if not path.startswith(prefixes) or not path.endswith(".cpp") or path in sources:
            continue
        options = [word for word in entry["command"].split() if re.match(r"-[DI]|-std=", word)]
        unit = index.parse(entry["file"], args=options + arguments)
        errors = [str(found) for found in unit.diagnostics if found.severity == cindex.Diagnostic.Fatal]
        if errors:
            sys.exit("\n".join(errors))
        folder_files = {entry["file"]} | {
            include.include.name for include in unit.get_includes()
            if os.path.abspath(include.include.name).startswith(prefixes)}
        for path in sorted(map(os.path.abspath, folder_files)):
            if path in sources:
                continue
            source = sources[path] = Source(path, left_out)
            edits = [edit for cursor in definitions(unit, path) for edit in source.walk(cursor)]
            edits.sort(key=lambda edit: edit.start)
            number_all(edits, counter)
            # What is left out keeps the numbers of other sources, which are not compiled again.
            counter[0] += source.skipped
            faults += listed(source, edits, tree)
            target = os.path.join(copy, os.path.relpath(path, tree))
            text = source.emit(0, len(source.bytes), edits)
            if not os.path.exists(target) or open(target).read() != text:
                with open(target, "w") as file:
                    file.write(text)
    json.dump(faults, sys.stdout, indent=0)


main()
