"""Activates one planted fault after the other and runs the tests that reach its place.

What a program's tests reach is in PROGRAM.reached.txt, written by Reach.cpp. EXPLAINED has the
faults that make no difference a test could see, a line "file | kind | code | reason" each.
Prints the survivors, and how many of how many were found.
"""
import argparse
import concurrent.futures
import json
import os
import signal
import subprocess
import sys

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
    return {tuple(part.strip() for part in line.split(" | ")[:3]) for line in lines}


def is_found(fault, tests, through):
    reaching = [test for test in tests if fault["number"] in test[3]]
    for some in (reaching[:FIRST], reaching[FIRST:]):
        for program in {test[1] for test in some}:
            if fails(fault["number"], program, [test for test in some if test[1] == program], through):
                return True
    return False


def fails(number, program, tests, through):
    limit = 20 + 10 * sum(test[0] for test in tests) / 1000
    arguments = [program, "--gtest_fail_fast", "--gtest_filter=" + ":".join(test[2] for test in tests)]
    process = subprocess.Popen(through + arguments, env=dict(os.environ, MUTANT=str(number)),
                               stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                               start_new_session=True)
    try:
        return process.wait(limit) != 0
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        process.wait()
        return True


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--through", action="append", default=[])
    parser.add_argument("--workers", type=int, default=1)
    parser.add_argument("--explained", required=True)
    parser.add_argument("faults")
    parser.add_argument("programs", nargs="+")
    options = parser.parse_args()
    faults = json.load(open(options.faults))
    tests = read_tests(options.programs)
    explained = read_explained(options.explained)
    survivors = 0
    explanations = 0
    with concurrent.futures.ThreadPoolExecutor(options.workers) as pool:
        found = pool.map(lambda fault: is_found(fault, tests, options.through), faults)
        for fault, fell in zip(faults, found):
            if fell:
                continue
            if (fault["file"], fault["kind"], fault["before"]) in explained:
                explanations += 1
                continue
            survivors += 1
            note = "" if any(fault["number"] in test[3] for test in tests) else " (no test gets there)"
            print(f"{fault['file']}:{fault['line']} | {fault['kind']} | {fault['before']}{note}", flush=True)
    print(f"{len(faults)} faults, {len(faults) - survivors - explanations} found, {explanations} explained, "
          f"{survivors} survive")
    sys.exit(survivors > 0)


main()
