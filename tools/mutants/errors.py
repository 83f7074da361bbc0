"""The keys of the faults on lines that a compiler complains of.

    errors.py COMPILER_OUTPUT BUILD_FOLDER TREE FAULTS
"""
import json
import os
import re
import sys

log, folder, tree, faults = sys.argv[1:]
places = set()
for path, line in re.findall(r"^(?:In file included from )?(\S+?):(\d+):\d+:", open(log).read(), re.MULTILINE):
    places.add((os.path.relpath(os.path.normpath(os.path.join(folder, path)), tree), int(line)))
left_out = {fault["key"] for fault in json.load(open(faults)) if (fault["file"], fault["line"]) in places}
print("\n".join(sorted(left_out)))
