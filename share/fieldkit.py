"""How gdb shows the objects of Fieldkit: source this file, in ~/.gdbinit or by hand.

The text of a window is asked of the system by a call in the program that is debugged, which lets
its threads run meanwhile; so only after "set print fieldkit-window-text on".
"""

import datetime

import gdb
import gdb.printing

NULL_MEMBER = 1e-37  # of CCoordinate


class WindowText(gdb.Parameter):
    """Whether windows are shown with their text."""

    set_doc = "Set whether windows are shown with their text, by a call in the program."
    show_doc = "Show whether windows are shown with their text."

    def __init__(self):
        super().__init__("print fieldkit-window-text", gdb.COMMAND_DATA, gdb.PARAM_BOOLEAN)
        self.value = False

    def get_show_string(self, value):
        return "Windows are shown " + ("with" if self.value else "without") + " their text."


window_text = WindowText()


class StringPrinter:
    """CString, CStringA and CStringW."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        head = self.value["m_pData"]
        length = int(head["nDataLength"])
        if not 0 <= length <= max(int(head["nAllocLength"]), 0):
            return "<not a string>"
        char = self.value.type.strip_typedefs().template_argument(0)
        # A view of its characters: how many of them are shown is gdb's own setting.
        return (head + 1).cast(char.pointer()).lazy_string(length=length)

    def display_hint(self):
        return "string"


class CollectionPrinter:
    """What arrays, lists and maps have in common: a head line and children."""

    hint = "array"

    def __init__(self, value):
        self.value = value
        self.element = pointed_type(value)

    def to_string(self):
        count = self.count()
        return f"{self.value.type} of {count}" if count >= 0 else "<not a collection>"

    def count(self):
        return int(self.value["m_nCount"])

    def typed(self, element):
        return element if self.element is None else element.cast(self.element)

    def chain(self, first):
        node = self.value[first]
        for _ in range(self.count()):
            if int(node) == 0:
                return
            yield node
            node = node["pNext"]

    def children(self):
        for index, element in enumerate(self.elements()):
            yield f"[{index}]", element

    def display_hint(self):
        return self.hint


class ArrayPrinter(CollectionPrinter):
    """CArray, the ready-made arrays and CTypedPtrArray."""

    def bounds(self):
        slots = self.value["m_slots"]
        try:
            return slots["_M_impl"]["_M_start"], slots["_M_impl"]["_M_finish"]
        except gdb.error:  # another standard library
            return slots["__begin_"], slots["__end_"]

    def count(self):
        first, end = self.bounds()
        return int(end - first)

    def elements(self):
        first, end = self.bounds()
        for index in range(int(end - first)):
            yield self.typed(first[index]["value"])


class ListPrinter(CollectionPrinter):
    """CList, the ready-made lists and CTypedPtrList."""

    def elements(self):
        for node in self.chain("m_pHead"):
            yield self.typed(node["data"])


class MapPrinter(CollectionPrinter):
    """CMap, the ready-made maps and CTypedPtrMap."""

    hint = "map"

    def elements(self):
        for node in self.chain("m_pFirst"):
            yield node["key"]
            yield self.typed(node["value"])


def pointed_type(value):
    """What the elements of CTypedPtrArray and its like are; None for other collections."""
    kind = value.type.strip_typedefs()
    if not (kind.name or "").startswith("CTypedPtr"):
        return None
    return kind.template_argument(2 if kind.name.startswith("CTypedPtrMap<") else 1)


class LinePrinter:
    """A value that is one line of text."""

    def __init__(self, text):
        self.text = text

    def to_string(self):
        return self.text


def coordinate(value):
    flags = int(value["m_wExist"])

    def member(name, flag):
        number = float(value["m_d" + name])
        return f"{name} {number:.10g}" if flags & flag and number != NULL_MEMBER else f"{name} missing"

    return LinePrinter(f"{member('N', 1)}, {member('E', 1)}, {member('Z', 2)}")


def vector(value):
    return LinePrinter(f"({float(value['m_dX']):.10g}, {float(value['m_dY']):.10g})")


def time(value):
    seconds = int(value["m_time"])
    try:
        start = datetime.datetime(1970, 1, 1)
        return LinePrinter(f"{start + datetime.timedelta(seconds=seconds)} UTC")
    except OverflowError:
        return LinePrinter(f"<{seconds} seconds since 1970>")


def time_span(value):
    seconds = int(value["m_nSeconds"])
    minutes, rest = divmod(abs(seconds), 60)
    hours, minutes = divmod(minutes, 60)
    days, hours = divmod(hours, 24)
    return LinePrinter(f"{'-' if seconds < 0 else ''}{days} d {hours:02}:{minutes:02}:{rest:02}")


def rectangle(value):
    left, top, right, bottom = (int(value[name]) for name in ("left", "top", "right", "bottom"))
    return LinePrinter(f"({left}, {top})-({right}, {bottom}), {right - left} x {bottom - top}")


class HandlePrinter:
    """An object of a window or of another thing of the system: class, handle, the class's own members."""

    def __init__(self, value, root, handle):
        self.value = value.cast(value.dynamic_type)
        self.root = root
        self.handle = value[handle]

    def to_string(self):
        kind = self.value.type.strip_typedefs().name
        if int(self.handle) == 0:
            return f"{kind}, no handle"
        line = f"{kind} {int(self.handle):#x}"
        return f"{line} {text_of_window(self.handle)}" if self.root == "CWnd" and window_text.value else line

    def children(self):
        return own_fields(self.value, self.root)


def own_fields(value, root):
    """The members from a class down to, and without, those of the root."""
    for field in value.type.strip_typedefs().fields():
        if field.is_base_class:
            if field.type.name != root:
                yield from own_fields(value[field], root)
        elif hasattr(field, "bitpos") and not field.artificial:
            yield field.name, value[field]


def text_of_window(handle):
    """By the one call that sends no message, so that a window of a stopped thread does not block it."""
    room = 256
    buffer = None
    try:
        wide = gdb.lookup_type("wchar_t")
        buffer = gdb.parse_and_eval(f"((void *(*)(unsigned long long)) malloc)({room * wide.sizeof})")
        text = buffer.cast(wide.pointer())
        length = int(
            gdb.parse_and_eval(
                f"((int (*)(void *, void *, int)) InternalGetWindowText)"
                f"((void *) {int(handle)}, (void *) {int(text)}, {room})"
            )
        )
        return '"' + text.string(length=length) + '"'
    except (gdb.error, UnicodeError) as problem:
        return f"<{problem}>"
    finally:
        if buffer is not None and int(buffer) != 0:
            gdb.parse_and_eval(f"((void (*)(void *)) free)((void *) {int(buffer)})")


PRINTERS = {"CCoordinate": coordinate, "CVector": vector, "CTime": time, "CTimeSpan": time_span, "CRect": rectangle}

# The first part of a template's name, and the ready-made classes.
COLLECTIONS = (
    (ArrayPrinter, "CArray CTypedPtrArray CByteArray CWordArray CDWordArray CUIntArray CStringArray CObArray CPtrArray"),
    (ListPrinter, "CList CTypedPtrList CStringList CObList CPtrList"),
    (
        MapPrinter,
        "CMap CTypedPtrMap CMapStringToString CMapStringToOb CMapWordToOb CMapStringToPtr CMapPtrToPtr"
        " CMapPtrToWord CMapWordToPtr",
    ),
)
PRINTERS.update({name: printer for printer, names in COLLECTIONS for name in names.split()})
PRINTERS["CStringT"] = StringPrinter

# The classes of handles: what is derived from them is shown alike.
HANDLES = {
    "CWnd": "m_hWnd",
    "CMenu": "m_hMenu",
    "CGdiObject": "m_hObject",
    "CDC": "m_hDC",
    "CImageList": "m_hImageList",
    "CSyncObject": "m_hObject",
}


def root_of(kind):
    """The class of HANDLES that a class is or is derived from; None if there is none."""
    if kind.name in HANDLES:
        return kind.name
    for field in kind.fields():
        if field.is_base_class:
            root = root_of(field.type.strip_typedefs())
            if root is not None:
                return root
    return None


class Lookup(gdb.printing.PrettyPrinter):
    """Finds the printer of a value by its class."""

    def __init__(self):
        super().__init__("fieldkit")

    def __call__(self, value):
        kind = value.type.strip_typedefs().unqualified()
        if kind.code != gdb.TYPE_CODE_STRUCT or kind.name is None:
            return None
        printer = PRINTERS.get(kind.name.split("<")[0])
        if printer is not None:
            return printer(value)
        root = root_of(kind)
        return None if root is None else HandlePrinter(value, root, HANDLES[root])


gdb.printing.register_pretty_printer(None, Lookup(), replace=True)
