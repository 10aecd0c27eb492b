#!/usr/bin/env python3
"""Times the matching of pyahocorasick on a benchmark's texts and prints the seconds of each run as JSON.

    VELLARK_BENCHMARK_DATA=FOLDER pyahocorasick.py

The folder holds kinds-patterns.txt, and kinds-dense.txt and kinds-sparse.txt, of one pattern or text a line. Every match
counts: no boundary is looked at. Ends with status 3 when the module is missing.
"""

import json
import os
import pathlib
import sys
import time

try:
    import ahocorasick
except ImportError:
    sys.exit(3)

REPETITIONS = 5


def lines(path):
    return path.read_text(encoding="utf-8").splitlines()


def seconds(automaton, texts):
    start = time.process_time()
    count = 0
    for text in texts:
        for _ in automaton.iter(text):
            count += 1
    return time.process_time() - start


def main():
    folder = pathlib.Path(os.environ["VELLARK_BENCHMARK_DATA"])
    automaton = ahocorasick.Automaton()
    for index, pattern in enumerate(lines(folder / "kinds-patterns.txt")):
        automaton.add_word(pattern, index)
    automaton.make_automaton()
    figures = {}
    for name in ("dense", "sparse"):
        texts = lines(folder / f"kinds-{name}.txt")
        figures[f"peer/pyahocorasick/{name}"] = [seconds(automaton, texts) for _ in range(REPETITIONS)]
    print(json.dumps(figures))


if __name__ == "__main__":
    main()
