"""Writes realistic session records below FOLDER/projects: claude_records.py FOLDER MEGABYTES [FILES]"""

import json
import random
import sys
import uuid
from datetime import datetime, timedelta, timezone
from pathlib import Path

WORDS = "the reader keeps offsets that it needs later and drops what nobody asks for in one pass over each line".split()


def text(generator, count):
    return " ".join(generator.choice(WORDS) for _ in range(count))


def lines(generator, session, cwd, size):
    """The lines of one session of about `size` bytes: turns, calls of tools, long results."""
    moment = datetime.now(timezone.utc) - timedelta(hours=generator.uniform(1, 100))
    parent, written = None, 0
    while written < size:
        call = f"toolu_{generator.getrandbits(64):016x}"
        turn = [
            ("user", {"role": "user", "content": "Please look at the reader: " + text(generator, 30)}, {}),
            ("assistant", {"role": "assistant", "content": [{"type": "text", "text": text(generator, 80)}]}, {}),
        ]
        for _ in range(generator.randint(2, 8)):
            turn += [
                ("assistant", {"role": "assistant", "content": [{"type": "tool_use", "id": call, "name": "Bash", "input": {
                    "command": "grep -rn offset src | head", "description": text(generator, 5)}}]}, {}),
                ("user", {"role": "user", "content": [{"tool_use_id": call, "type": "tool_result",
                                                       "content": text(generator, generator.randint(50, 1500))}]},
                 {"toolUseResult": {"stdout": text(generator, 20), "stderr": "", "interrupted": False}}),
            ]
        for kind, message, more in turn:
            moment += timedelta(seconds=generator.uniform(0.5, 20))
            line = {"parentUuid": parent, "isSidechain": False, "userType": "external", "cwd": cwd, "sessionId": session,
                    "version": "2.0.14", "gitBranch": "main", "type": kind, "message": message,
                    "uuid": str(uuid.UUID(int=generator.getrandbits(128))),
                    "timestamp": moment.strftime("%Y-%m-%dT%H:%M:%S.") + f"{moment.microsecond // 1000:03}Z"} | more
            parent = line["uuid"]
            whole = json.dumps(line, ensure_ascii=False, separators=(",", ":")) + "\n"
            written += len(whole)
            yield whole


def write(folder, megabytes, files):
    generator = random.Random(5)
    for number in range(files):
        session = str(uuid.UUID(int=generator.getrandbits(128), version=4))
        place = Path(folder) / "projects" / f"-home-someone-project{number % 7}"
        place.mkdir(parents=True, exist_ok=True)
        with open(place / f"{session}.jsonl", "w") as file:
            file.writelines(lines(generator, session, f"/home/someone/project{number % 7}", megabytes * 1_000_000 / files))


if __name__ == "__main__":
    write(sys.argv[1], float(sys.argv[2]), int(sys.argv[3]) if len(sys.argv) > 3 else 40)
