"""Redacts the benchmark's logs with Python's re, eighteen passes and the key pass, and prints the seconds as JSON."""
import json
import re
import sys
import time
from pathlib import Path

EXPRESSIONS = [re.compile(text) for text in (
    r"-----BEGIN [A-Z0-9 ]*PRIVATE KEY(?: BLOCK)?-----[\s\S]*?(?:-----END [A-Z0-9 ]*PRIVATE KEY(?: BLOCK)?-----|\Z)",
    r"(?<![A-Za-z0-9])(?:sk|rk|pk)_(?:live|test)_[A-Za-z0-9]{8,}",
    r"(?<![A-Za-z0-9])(?:sk|pk|rk)-(?:ant-|proj-|live-|test-)?[A-Za-z0-9_\-]{16,}",
    r"(?<![A-Za-z0-9])whsec_[A-Za-z0-9+/=]{16,}",
    r"(?<![A-Za-z0-9])gh[pousr]_[A-Za-z0-9]{20,}",
    r"(?<![A-Za-z0-9])github_pat_[A-Za-z0-9_]{20,}",
    r"(?<![A-Za-z0-9])xox[abposr]-[A-Za-z0-9-]{10,}",
    r"(?<![A-Za-z0-9])npm_[A-Za-z0-9]{20,}",
    r"(?<![A-Za-z0-9])ya29\.[A-Za-z0-9_\-]{20,}",
    r"(?<![A-Za-z0-9])GOCSPX-[A-Za-z0-9_\-]{16,}",
    r"(?<![A-Za-z0-9])AKIA[0-9A-Z]{16}(?![A-Za-z0-9])",
    r"(?<![A-Za-z0-9])AIza[0-9A-Za-z_\-]{30,}",
    r"(?<![A-Za-z0-9])glpat-[A-Za-z0-9_\-]{16,}",
    r"(?<![A-Za-z0-9])hf_[A-Za-z0-9]{24,}",
    r"(?<![A-Za-z0-9])eyJ[A-Za-z0-9_\-]{8,}\.[A-Za-z0-9_\-]{8,}\.[A-Za-z0-9_\-]{8,}",
    r"(?i:\b(?:proxy-)?authorization)[\"']?[ \t]*[:=][ \t]*[\"']?(?:[A-Za-z]+[ \t]+)?((?=[A-Za-z0-9._~+/\-]*[0-9=+/])[A-Za-z0-9._~+/\-]{8,}=*)",
    r"\b(?:Bearer|Basic|Token)[ \t]+((?=[A-Za-z0-9._~+/\-]*[0-9=])[A-Za-z0-9._~+/\-]{16,}=*)",
    r"://[^/\s:@]*:([^@\s/]+)@",
)]
KEY = re.compile(r"(?<![A-Za-z0-9_.\-])[A-Za-z][A-Za-z0-9_.\-]*(?=[\"']?[ \t]*[:=])")


def logs(path: Path) -> list[str]:
    """The same texts as the benchmark makes of the ordinary lines."""
    lines = [line.split("\t", 1)[1] for line in path.read_text(encoding="utf-8").split("\n") if line and line[0] != "#"]
    texts = [""]
    for _ in range(8):
        for index in range(len(lines)):
            if len(texts[-1].encode()) > 4_000:
                texts.append("")
            texts[-1] += lines[index * 7 % len(lines)] + "\n"
    return texts


def main(path: str) -> None:
    texts = logs(Path(path))
    measured = []
    for _ in range(3):
        start = time.perf_counter()
        for text in texts:
            for expression in EXPRESSIONS:
                text = expression.sub("••••", text)
            for _key in KEY.finditer(text):
                pass
        measured.append(time.perf_counter() - start)
    print(json.dumps({"peer/python-re/logs": measured}))


main(sys.argv[1])
