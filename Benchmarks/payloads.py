"""Payloads as agents send them when a tool has written a file: the same bytes in every run."""

import json
import random

SEED = 20240611
SMALL_BYTES = 4_096
LARGE_BYTES = 4_194_304 - 64

WORDS = (
    "the agent writes a plan before it changes the parser and the tests then run again with `ctest --output-on-failure` "
    "so that every \"quoted\" name stays as it was in src\\lib\\reader.cpp and the review shows what moved"
).split()
KOREAN = (
    "이 문서는 다음 작업의 계획을 설명한다 먼저 현재 상태를 확인하고 필요한 변경을 정리한 뒤 테스트를 실행한다 "
    "결과는 표로 남기며 남은 문제는 다음 회의에서 다룬다 “인용” — 그리고 결론 🚀"
).split()
CODE = (
    "def read(path: str) -> dict:\n\twith open(path, encoding=\"utf-8\") as file:\n\t\treturn json.load(file)\n",
    "if (text.find(\"\\n\") == npos) {\n    return {\"empty\", '\\0'};\n}\n",
    "grep -rn \"TODO\" src | awk -F: '{print $1\":\"$2}' | sort -u\n",
)


def _paragraph(random_source):
    words = KOREAN if random_source.random() < 0.35 else WORDS
    return " ".join(random_source.choice(words) for _ in range(random_source.randint(12, 60))) + ".\n\n"


def _piece(random_source):
    """A heading, a list, a block of code or a paragraph of Markdown."""
    kind = random_source.random()
    if kind < 0.1:
        return f"## {random_source.choice(KOREAN)} {random_source.choice(WORDS)}\n\n"
    if kind < 0.25:
        return "".join(f"- [ ] {random_source.choice(WORDS)} {random_source.choice(KOREAN)}\n" for _ in range(4)) + "\n"
    if kind < 0.45:
        return f"```\n{random_source.choice(CODE)}```\n\n"
    return _paragraph(random_source)


def _patch(random_source, content):
    """How agents describe what the write changed: hunks of lines."""
    lines = content.splitlines()
    hunks = []
    for _ in range(max(1, len(lines) // 400)):
        start = random_source.randrange(max(1, len(lines) - 3))
        changed = [sign + line for line in lines[start:start + 3] for sign in "-+"]
        hunks.append({"oldStart": start + 1, "oldLines": 3, "newStart": start + 1, "newLines": 3, "lines": changed})
    return hunks


def _payload(random_source, content):
    path = "/Users/mina/Work/atlas/docs/계획.md"
    return {
        "session_id": "6f0c1b9e-4f53-4f6e-9c0d-2f0f6f3f9a11",
        "transcript_path": "/Users/mina/.claude/projects/-Users-mina-Work-atlas/6f0c1b9e.jsonl",
        "cwd": "/Users/mina/Work/atlas",
        "permission_mode": "acceptEdits",
        "hook_event_name": "PostToolUse",
        "tool_name": "Write",
        "tool_input": {"file_path": path, "content": content},
        "tool_response": {
            "success": True,
            "type": "update",
            "filePath": path,
            "structuredPatch": _patch(random_source, content),
        },
        "tool_use_id": "toolu_01D7FLrfh4GYq7yT1ULFeyMV",
    }


def _encoded(pieces):
    payload = _payload(random.Random(SEED), "".join(pieces))
    return json.dumps(payload, ensure_ascii=False, separators=(",", ":")).encode()


def payload(byte_count):
    """The longest payload of at most `byte_count` bytes."""
    random_source = random.Random(SEED)
    pieces = []
    size = 0
    while size < byte_count:
        pieces.append(_piece(random_source))
        size += len(pieces[-1].encode())
    # The largest number of pieces that fits: the escapes and the patch make the payload longer than its text.
    fits, too_many = 0, len(pieces)
    while too_many - fits > 1:
        middle = (fits + too_many) // 2
        if len(_encoded(pieces[:middle])) <= byte_count:
            fits = middle
        else:
            too_many = middle
    return _encoded(pieces[:fits])


def write(directory):
    """Writes small.json and large.json into the directory."""
    (directory / "small.json").write_bytes(payload(SMALL_BYTES))
    (directory / "large.json").write_bytes(payload(LARGE_BYTES))
