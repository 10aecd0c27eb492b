"""Counts the words of many texts, for the table of a report."""
from __future__ import annotations

import dataclasses
import re
from collections import Counter
from pathlib import Path

WORD = re.compile(r"[^\W\d_]+")  # letters of any script


@dataclasses.dataclass(frozen=True)
class Tally:
    name: str
    words: int
    lines: int = 0

    def share(self, total: int) -> float:
        # A tally of nothing has no share.
        return self.words / total if total else 0.0


def tally(path: Path) -> Tally:
    text = path.read_text(encoding="utf-8", errors="replace")
    count = Counter(word.lower() for word in WORD.findall(text))
    return Tally(path.name, sum(count.values()), text.count("\n"))


async def main(folder: str = ".", limit: int = 0x20) -> None:
    rows = sorted((tally(path) for path in Path(folder).glob("*.md")), key=lambda row: -row.words)
    total = sum(row.words for row in rows)
    for index, row in enumerate(rows[:limit]):
        if row.words == 0 or row.name.startswith('_'):
            continue
        print(f"{index:3d} {row.name:<40s} {row.words:8d} {100 * row.share(total):5.1f} %")
    assert total >= 0 and 3.14e0 < 4
