#!/usr/bin/env python3
"""Times CPython's datetime.fromisoformat, bare and with the exact count of microseconds made from it.

Prints the seconds that one call takes, in JSON: a list of several measurements for each figure's name.
"""

import json
import time
from datetime import datetime, timedelta, timezone

EPOCH = datetime(1970, 1, 1, tzinfo=timezone.utc)
MICROSECOND = timedelta(microseconds=1)
TEXTS = [(EPOCH + timedelta(seconds=1_234_567 * index)).isoformat() for index in range(1024)]


def bare(texts, read=datetime.fromisoformat):
    for text in texts:
        read(text)


def exact(texts, read=datetime.fromisoformat):
    for text in texts:
        (read(text) - EPOCH) // MICROSECOND


def seconds_per_call(function):
    measured = []
    for _ in range(20):
        start = time.perf_counter()
        for _ in range(20):
            function(TEXTS)
        measured.append((time.perf_counter() - start) / (20 * len(TEXTS)))
    return measured


def main():
    print(json.dumps({
        "peer/fromisoformat": seconds_per_call(bare),
        "peer/fromisoformat-microseconds": seconds_per_call(exact),
    }))


if __name__ == "__main__":
    main()
