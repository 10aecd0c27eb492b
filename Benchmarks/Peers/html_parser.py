#!/usr/bin/env python3
"""Times CPython's html.parser on the files of a folder.

    html_parser.py FOLDER

Prints the seconds that it takes for all of them, in JSON: a list of several measurements.
"""

import json
import pathlib
import sys
import time
from html.parser import HTMLParser


class Counter(HTMLParser):
    """Looks at every event, and does no more."""

    count = 0

    def handle_starttag(self, tag, attrs):
        self.count += 1

    handle_startendtag = handle_starttag

    def handle_endtag(self, tag):
        self.count += 1

    def handle_data(self, data):
        self.count += 1


def parse(page):
    parser = Counter(convert_charrefs=True)
    try:
        parser.feed(page)
        parser.close()
    except AssertionError:
        pass


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__.strip())
    pages = [path.read_bytes().decode() for path in sorted(pathlib.Path(sys.argv[1]).iterdir())]
    measured = []
    for _ in range(40):
        start = time.perf_counter()
        for page in pages:
            parse(page)
        measured.append(time.perf_counter() - start)
    print(json.dumps({"peer/html.parser": measured}))


if __name__ == "__main__":
    main()
