"""Finds assertions of the tests that have the expected value behind the actual one, and such that
join two facts, of which a failure does not tell which one it is.

Usage: assertions.py FILE...
"""

import re
import sys

ASSERTION = re.compile(r"\b(?:EXPECT|ASSERT)_(EQ|NE|STREQ|STRNE|DOUBLE_EQ|NEAR|TRUE|FALSE)\(")
# What nobody computes: numbers, texts, constants, enumerators.
LITERAL = re.compile(r"""-?\d[\w.+]*|L?"(\\.|[^"\\])*"|TRUE|FALSE|true|false|nullptr|[A-Z][A-Z0-9_]{3,}|k[A-Z]\w*
                     |ID(OK|CANCEL|YES|NO)|\w+::[A-Z]\w*""", re.X)
TOKEN = re.compile(r"""L?"(\\.|[^"\\])*"|'(\\.|[^'\\])'|[(\[{]|[)\]}]|,|&&|\|\||[^"'(\[{)\]},&|]+|.""", re.S)
JOINS = {"TRUE": "&&", "FALSE": "||"}


def parts(text, start, separator):
    """What stands between separators, up to the bracket that ends it all."""
    depth, found = 0, [""]
    for token in TOKEN.finditer(text, start):
        if token[0] in ")]}" and depth == 0:
            break
        depth += (token[0] in "([{") - (token[0] in ")]}")
        if token[0] == separator and depth == 0:
            found.append("")
        else:
            found[-1] += token[0]
    return [part.strip() for part in found]


def fault(text, assertion):
    kind = assertion[1]
    if kind in JOINS:
        return "joins facts" if len(parts(text, assertion.end(), JOINS[kind])) > 1 else None
    first, second = parts(text, assertion.end(), ",")[:2]
    if LITERAL.fullmatch(second) and not LITERAL.fullmatch(first):
        return "expects " + second + " behind what it is"
    return None


def main():
    bad = False
    for path in sys.argv[1:]:
        with open(path, encoding="utf-8") as file:
            text = file.read()
        for assertion in ASSERTION.finditer(text):
            problem = fault(text, assertion)
            if problem:
                print(f"{path}:{text.count(chr(10), 0, assertion.start()) + 1}: {problem}")
                bad = True
    return bad


sys.exit(main())
