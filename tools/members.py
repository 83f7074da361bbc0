#!/usr/bin/env python3
"""Writes docs/members.md: per class of the framework's public headers the members that are there.
"members.py ROOT" prints the page."""
import pathlib
import re
import sys

HEAD = """# Members of the framework layer

Written by `tools/members.py` from the headers in `framework/`; `./run docs` renews it. A class has the members of the class behind its colon as well, and a name stands for all its forms. What a member does says the reference that `./run docs` makes.
"""
# Classes that exist for the headers' sake only, the inner ones last.
PARTS = (("CWndHandlers", "CWnd"), ("CWndSystem", "CWnd"), ("CDCState", "CDC"))


def plain(text):
    """Without comments, texts in quotes and preprocessor lines; of two branches the first remains."""
    text = re.sub(r"^#else\b.*?^#endif", "", text, flags=re.S | re.M)
    text = re.sub(r'"(?:[^"\\\n]|\\.)*"|//[^\n]*', lambda found: '""' if found[0][0] == '"' else "", text)
    text = re.sub(r"^[ \t]*#(?:[^\n]*\\\n)*[^\n]*", "", text, flags=re.M)
    text = re.sub(r"^[ \t]*(?:friend class|friend struct|using)[^;]*;", "", text, flags=re.M)
    text = re.sub(r"\bDECLARE_\w+\([^)]*\)", "", text)
    return text


def block_end(text, start):
    """Behind the brace that closes the one at start."""
    depth = 0
    for index in range(start, len(text)):
        depth += (text[index] == "{") - (text[index] == "}")
        if depth == 0:
            return index + 1
    raise ValueError("a brace is not closed")


def without_internals(text):
    while (found := text.find("namespace fieldkit::detail {")) >= 0:
        text = text[:found] + text[block_end(text, text.index("{", found)):]
    return text


def statements(body):
    """The declarations of a class body, with the access that holds for each; functions lose their bodies."""
    access, begin, index = "private", 0, 0
    while index < len(body):
        label = re.compile(r"\s*(public|protected|private)\s*:(?!:)").match(body, begin)
        if label and not body[begin:index].strip():
            access, begin = label[1], label.end()
            index = begin
            continue
        char = body[index]
        if char == "(":
            depth = 0
            while True:
                depth += (body[index] == "(") - (body[index] == ")")
                index += 1
                if depth == 0:
                    break
            continue
        if char == "{":
            end = block_end(body, index)
            declaration = body[begin:index]
            yield access, declaration, body[index + 1:end - 1]
            index = end
            head = declaration.split("(")[0]
            if re.match(r"\s*(class|struct|enum)\b", head) or ("=" in head and "operator" not in head):
                index = body.index(";", end) + 1
            begin = index
            continue
        if char == ";":
            yield access, body[begin:index], ""
            begin = index + 1
        index += 1


def member_name(declaration, class_name):
    declaration = re.sub(r"template\s*<[^{;]*?>\s*(?=\w)", "", declaration.strip())
    if not declaration or declaration.startswith(("friend", "static_assert")):
        return None
    if declaration.startswith("enum"):
        return None
    conversion = re.search(r"\boperator\b\s*(.*?)\s*\(", declaration)
    if conversion:
        return "operator " + (conversion[1] or "()")
    head = declaration.split("=")[0] if "(" not in declaration.split("=")[0] else declaration.split("(")[0]
    names = re.findall(r"~?\w+", re.sub(r"\[[^\]]*\]", "", head))
    if not names or names[-1] in ("const", class_name, "~" + class_name):
        return None
    return names[-1]


def classes(text):
    """Name, bases and public and protected members of each class."""
    pattern = re.compile(r"\bclass\s+(?:AFX_\w+\s+)?(\w+)\s*(?::\s*public\s+([\w<>, *]+?)\s*)?\{")
    for match in pattern.finditer(text):
        name, base = match[1], match[2] or ""
        body = text[match.end():block_end(text, match.end() - 1) - 1]
        members = set()
        for access, declaration, inner in statements(body):
            if access == "private":
                continue
            if re.match(r"\s*enum\b(?!\s+\w+\s+\w)", declaration):
                members.update(re.findall(r"(\w+)\s*(?:=[^,]*)?(?:,|$)", inner.strip()))
                continue
            found = member_name(declaration, name)
            if found:
                members.add(found)
        yield name, base, members


def functions(text):
    """Functions of the framework outside of classes; what only its own headers call is left out."""
    found = re.findall(r"\b(Afx\w+|DD[XV]_\w+)\s*\(", text)
    return {name for name in found if not re.match(r"Afx(Send|Erase|Format[A]|CallG|TraceT|ReadO|Assert)", name)}


def made(text):
    """Classes that a macro makes from a template."""
    pattern = re.compile(r"^AFX_\w+_(ARRAY|LIST|MAP)\((C\w+), ", flags=re.M)
    return {name: "C" + kind.capitalize() for kind, name in pattern.findall(text)}


def lines_of_maps(text):
    return set(re.findall(r"^#define (ON_\w+)\(", text, flags=re.M))


def key(name):
    return (re.sub(r"^(m_[a-z]*|operator )", "", name).lower(), name)


def listed(names):
    return ", ".join(f"`{name}`" for name in sorted(names, key=key))


def is_told(name):
    """Whether a member is a program's business."""
    return not re.match(r"Handle[A-Z]|DefaultAs$|WordsOf$|Change$|[GS]et$|Join$|operator =$|~", name)


def public_headers(root):
    return [header.read_text(encoding="utf-8") for header in sorted((root / "framework").glob("*.h"))]


def page(root):
    found, free, lines = {}, set(), set()
    for raw in public_headers(root):
        lines |= lines_of_maps(raw)
        text = without_internals(plain(raw))
        found.update({name: (base, set()) for name, base in made(text).items()})
        found.update({name: (base, members) for name, base, members in classes(text)})
        free |= functions(text)
    for part, whole in PARTS:
        base, members = found.pop(part)
        found[whole] = (base, found[whole][1] | members)
    out = [HEAD]
    for name in sorted((name for name in found if name.startswith("C")), key=str.lower):
        base, members = found[name]
        out.append(f"**{name}**{' : ' + base if base.startswith('C') else ''}  \n{listed(filter(is_told, members))}\n")
    out.append("## Functions\n\n" + listed(free - found.keys()) + "\n")
    out.append("## Lines of message maps\n\n" + listed(lines))
    return "\n".join(out) + "\n"


sys.stdout.write(page(pathlib.Path(sys.argv[1])))
