"""Lexes the samples with Pygments and prints, as JSON, the seconds that each took, by the benchmark's name."""
import json
import sys
import time
from pathlib import Path

try:
    from pygments.lexers import get_lexer_by_name
except ImportError:
    sys.exit("python3-pygments is missing")

SAMPLES = {"python": "sample.py", "typescript": "sample.ts", "shell": "sample.sh", "swift": "sample.swift", "json": "sample.json"}


def seconds(language: str, text: str) -> list[float]:
    lexer = get_lexer_by_name(language)
    measured = []
    for _ in range(3):
        start = time.perf_counter()
        for _token in lexer.get_tokens(text):
            pass
        measured.append(time.perf_counter() - start)
    return measured


def main(folder: str) -> None:
    result = {}
    for language, name in SAMPLES.items():
        sample = Path(folder, name).read_text(encoding="utf-8")
        text = sample
        while len(text.encode()) < 30_000:
            text += sample
        result[f"peer/pygments/{language}"] = seconds(language, text.encode()[:39_000].decode(errors="ignore"))
    print(json.dumps(result))


main(sys.argv[1])
