"""Activates one planted fault after the other and runs the tests that reach its place.

What a program's tests reach is in PROGRAM.reached.txt, written by Reach.cpp. A PROGRAM may be followed
by "@" and the size of the screen that it runs on. EXPLAINED has the
faults that make no difference a test could see, a line "file | function | kind | code | reason"
each; * stands for all functions, kinds or codes. Prints the survivors, and how many of how many
were found. With --each all tests run that reach a fault, not just up to the first that finds it,
and those assertions are listed that find a fault which no other finds. With --one-in N a sample is
tried, which the places decide: the same one before a change of the tests and after it.
"""
import argparse
import collections
import concurrent.futures
import json
import os
import queue
import re
import signal
import subprocess
import sys
import tempfile
import zlib

FIRST = 8  # the quickest tests find most faults


def read_tests(programs):
    """Time, program, name and the faults that it reaches of each test, the quickest first."""
    tests = []
    for program in programs:
        for line in open(program + ".reached.txt"):
            name, milliseconds, *faults = line.split()
            tests.append((int(milliseconds), program, name, set(map(int, faults))))
    return sorted(tests, key=lambda test: test[0])


def read_explained(path):
    lines = [line for line in open(path) if line.strip() and not line.startswith("#")]
    return [[part.strip() for part in line.split(" | ")[:4]] for line in lines]


def explains(pattern, fault):
    here = (fault["file"], fault["function"], fault["kind"], fault["before"])
    return all(part in ("*", own) for part, own in zip(pattern, here))


def read_screens(words):
    """The environment of each size; the usual one has no name."""
    places = {size: {"DISPLAY": display, "WINEPREFIX": prefix}
              for size, display, prefix in zip(words[::3], words[1::3], words[2::3])}
    return dict(places, **{"": next(iter(places.values()), {})})


def find(fault, tests, options):
    """The assertions that fail, test and line each; the first of them do without --each."""
    reaching = [test for test in tests if fault["number"] in test[3]]
    found = set()
    place = options.places.get()
    try:
        for some in (reaching[:FIRST], reaching[FIRST:]):
            for program in sorted({test[1] for test in some}):
                own = [test for test in some if test[1] == program]
                found |= failing(fault["number"], program, own, place, options)
                if found and not options.each:
                    return found
        return found
    finally:
        options.places.put(place)


def failing(number, program, tests, place, options):
    found = set()
    path, _, size = program.partition("@")
    settings = dict(place[size], MUTANT=str(number))
    while tests:
        limit = (20 if options.through else 5) + 10 * sum(test[0] for test in tests) / 1000
        arguments = [path, "--gtest_filter=" + ":".join(test[2] for test in tests)]
        arguments += [] if options.each else ["--gtest_fail_fast"]
        ended, output = run(options.through + arguments, settings, limit)
        name = ""
        for line in output.splitlines():
            if match := re.match(r"\[ RUN      \] (\S+)", line):
                name = match[1]
            elif match := re.search(r"([\w.]+:\d+|unknown file): Failure", line[:300]):
                found.add(f"{name} {match[1]}")
        if ended is True:
            break
        # It has died in one of the tests: those after it have their turn.
        found.add(f"{name} {'hangs' if ended is None else 'dies'}")
        names = [test[2] for test in tests]
        if not options.each or ended is None or name not in names:
            break
        tests = tests[:names.index(name)] + tests[names.index(name) + 1:]
    return found


def run(arguments, settings, limit):
    """Whether the program comes to its end, None if it hangs, and what it has said."""
    # In a folder of its own: programs that run at the same time use files of the same names.
    with tempfile.TemporaryFile() as output, tempfile.TemporaryDirectory() as folder:
        # Wine has a folder for temporary files in its prefix; in another TMPDIR it would start all over.
        settings = settings if "WINEPREFIX" in settings else dict(settings, TMPDIR=folder)
        process = subprocess.Popen(arguments, env=dict(os.environ, **settings), cwd=folder,
                                   stdin=subprocess.DEVNULL, stdout=output, stderr=subprocess.STDOUT,
                                   start_new_session=True)
        try:
            ended = process.wait(limit) in (0, 1)
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.wait()
            ended = None
        output.seek(0)
        said = output.read().decode(errors="replace")
        # Of a program that crashes Wine's debugger makes one that ends well.
        return ended and " ran. (" in said, said


def print_survivor(fault, tests):
    note = "" if any(fault["number"] in test[3] for test in tests) else " (no test gets there)"
    place = f"{fault['file']}:{fault['line']} | {fault['function']}"
    print(f"{place} | {fault['kind']} | {fault['before']}{note}", flush=True)


def print_lone(found):
    """How many faults each assertion, and each test, is the only one to find."""
    lone = collections.Counter(next(iter(places)) for places in found if len(places) == 1)
    lone_tests = collections.Counter()
    reaching = collections.Counter()
    for places in found:
        tests = {place.split()[0] for place in places}
        reaching.update(tests)
        if len(tests) == 1:
            lone_tests.update(tests)
    print("faults that only one assertion finds:")
    for place, count in lone.most_common():
        print(f"{count:5} {place}")
    print("faults that a test finds, and that only it finds:")
    for test, count in reaching.most_common():
        print(f"{count:5} {lone_tests[test]:5} {test}")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--through", action="append", default=[])
    parser.add_argument("--workers", type=int, default=1)
    parser.add_argument("--screens", action="append",
                        help="of a worker: size, display and Wine prefix of each, the first is the usual one")
    parser.add_argument("--explained", required=True)
    parser.add_argument("--each", help="where the assertions that fail are written, as JSON")
    parser.add_argument("--folder", default="", help="faults of files whose names begin so")
    parser.add_argument("--one-in", type=int, default=1)
    parser.add_argument("faults")
    parser.add_argument("programs", nargs="+")
    options = parser.parse_args()
    faults = [fault for fault in json.load(open(options.faults))
              if fault["file"].startswith(options.folder) and zlib.crc32(fault["key"].encode()) % options.one_in == 0]
    tests = read_tests(options.programs)
    explained = read_explained(options.explained)
    options.places = queue.SimpleQueue()
    for screens in options.screens or [""] * options.workers:
        options.places.put(read_screens(screens.split()))
    found = []
    used = []
    survivors = 0
    with concurrent.futures.ThreadPoolExecutor(options.places.qsize()) as pool:
        for fault, places in zip(faults, pool.map(lambda fault: find(fault, tests, options), faults)):
            found.append(places)
            patterns = [pattern for pattern in explained if explains(pattern, fault)]
            used += patterns if not places else []
            if not places and not patterns:
                survivors += 1
                print_survivor(fault, tests)
    files = {fault["file"] for fault in faults}
    for pattern in explained:
        if pattern[0] in files and pattern not in used:
            print("explains nothing: " + " | ".join(pattern))
    if options.each:
        json.dump([dict(fault, found=sorted(places)) for fault, places in zip(faults, found)],
                  open(options.each, "w"), indent=0)
        print_lone(found)
    fallen = sum(map(bool, found))
    print(f"{len(faults)} faults, {fallen} found, {len(faults) - fallen - survivors} explained, "
          f"{survivors} survive")
    sys.exit(survivors > 0)


main()
