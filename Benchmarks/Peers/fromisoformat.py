#!/usr/bin/env python3
"""Times CPython's datetime.fromisoformat, bare and with the exact count of microseconds made from it; prints JSON."""

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


def calls_per_second(function):
    best = float("inf")
    for _ in range(50):
        start = time.perf_counter()
        for _ in range(10):
            function(TEXTS)
        best = min(best, time.perf_counter() - start)
    return 10 * len(TEXTS) / best


def main():
    print(json.dumps({
        "subject": "datetime.fromisoformat",
        "callsPerSecond": calls_per_second(bare),
        "microsecondCallsPerSecond": calls_per_second(exact),
    }))


if __name__ == "__main__":
    main()
