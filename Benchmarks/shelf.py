"""The shelf's command on a whole road: signals collected, a library listed, beside Python and `cat` over the same bytes.

Each subject gives figures by name, each a list of seconds with one figure a round; programs take turns.
"""

import json
import os
import shutil
import subprocess
import sys
import time
import uuid
from pathlib import Path

HERE = Path(__file__).resolve().parent
DOCUMENTS = HERE.parent / "Projects/Core/VellarkDomain/Tests/Data/Summary"
ROUNDS = 5
SIGNALS = 1000

PYTHON_COLLECT = """
import hashlib, json, pathlib, sys
for signal in sorted(pathlib.Path(sys.argv[1]).glob("*.json")):
    payload = json.loads(signal.read_text())["payload"]
    content = pathlib.Path(payload["tool_input"]["file_path"]).read_bytes()
    hashlib.sha256(content).hexdigest()
    content.decode()
"""

PYTHON_LIST = """
import json, sys
documents = json.load(open(sys.argv[1]))["documents"]
documents.sort(key=lambda document: document["updatedAt"], reverse=True)
for document in documents:
    print(document["id"], document["title"], document["source"], document["updatedAt"], sep="\\t")
"""


def seconds(command, environment):
    start = time.perf_counter()
    subprocess.run([str(part) for part in command], env=environment, check=True, stdout=subprocess.DEVNULL)
    return time.perf_counter() - start


def turns(commands, environment, before=lambda: None):
    """Seconds of each command by its name, one figure a round."""
    figures = {name: [] for name in commands}
    for _ in range(ROUNDS):
        for name, command in commands.items():
            before()
            figures[name].append(seconds(command, environment))
    return figures


def write_documents(folder):
    """A thousand documents: those of the golden corpus again and again, each with a line of its own."""
    originals = sorted(path for path in DOCUMENTS.iterdir() if path.suffix in (".md", ".html"))
    folder.mkdir(parents=True, exist_ok=True)
    paths = []
    for number in range(SIGNALS):
        original = originals[number % len(originals)]
        path = folder / f"{original.stem}-{number}{original.suffix}"
        path.write_bytes(original.read_bytes() + f"\n\nCopy {number}.\n".encode())
        paths.append(path)
    return paths


def write_signals(spool, paths, cwd):
    for number, path in enumerate(paths):
        payload = {
            "hook_event_name": "PostToolUse", "session_id": "s", "cwd": str(cwd), "tool_name": "Write",
            "timestamp": "2026-01-01T00:00:00.000Z", "tool_input": {"file_path": str(path)},
        }
        signal = {"version": 1, "source": "claude", "payload": payload}
        (spool / f"1767225600.{number:06}-{uuid.UUID(int=number)}.json").write_text(json.dumps(signal))


def collect(workplace):
    vellark = workplace.programs / "vellark"
    if not vellark.exists():
        return {}
    project = workplace.home / "project"
    data = workplace.directory / "shelf"
    paths = write_documents(project)

    def prepare():
        shutil.rmtree(data, ignore_errors=True)
        (data / "signals").mkdir(parents=True, mode=0o700)
        write_signals(data / "signals", paths, project)

    prepare()
    subprocess.run([vellark, "--data", data, "collect", "--quiet"], env=workplace.environment, check=True)
    count = len(json.loads((data / "library.json").read_text())["documents"])
    if count != SIGNALS or any((data / "signals").iterdir()):
        sys.exit(f"{count} documents were collected, so there is nothing to measure")
    commands = {
        "vellark": [vellark, "--data", data, "collect", "--quiet"],
        "python": [sys.executable, "-c", PYTHON_COLLECT, data / "signals"],
        "cat": ["cat", *paths],
    }
    figures = turns(commands, workplace.environment, prepare)
    shutil.rmtree(data)
    return figures


def listing(workplace):
    vellark, maker = workplace.programs / "vellark", workplace.programs / "LibraryBenchmark"
    if not vellark.exists() or not maker.exists():
        return {}
    data = workplace.directory / "shelf"
    data.mkdir(mode=0o700)
    library = data / "library.json"
    subprocess.run([maker, "--make", library], check=True)
    command = [vellark, "--data", data, "list"]
    lines = subprocess.run(command, env=workplace.environment, check=True, capture_output=True).stdout.count(b"\n")
    if lines != 100_000:
        sys.exit(f"{lines} documents were listed, so there is nothing to measure")
    commands = {
        "vellark": command,
        "python": [sys.executable, "-c", PYTHON_LIST, library],
        "cat": ["cat", library, data / "digests.jsonl"],
    }
    figures = turns(commands, workplace.environment | {"PYTHONIOENCODING": "utf-8"})
    shutil.rmtree(data)
    return figures


def write_gigabyte(home):
    """A gigabyte of Claude's records: twenty megabytes made with care, then copied under other sessions' names."""
    subprocess.run([sys.executable, HERE / "Peers" / "claude_records.py", home, "20", "10"], check=True)
    records = sorted(home.glob("projects/*/*.jsonl"))
    for record in records:
        content = record.read_bytes()
        for _ in range(49):
            session = str(uuid.uuid4())
            record.with_name(session + ".jsonl").write_bytes(content.replace(record.stem.encode(), session.encode()))
    return sorted(home.glob("projects/*/*.jsonl"))


PYTHON_CONVERSATIONS = """
import json, sys
for path in sys.argv[1:]:
    for line in open(path, encoding="utf-8"):
        json.loads(line)
"""


def conversations(workplace):
    vellark = workplace.programs / "vellark"
    if not vellark.exists():
        return {}
    home, data = workplace.directory / "claude", workplace.directory / "shelf"
    data.mkdir(mode=0o700)
    records = write_gigabyte(home)
    environment = workplace.environment | {"CLAUDE_CONFIG_DIR": str(home)}
    command = [vellark, "--data", data, "conversations"]
    lines = subprocess.run(command, env=environment, check=True, capture_output=True).stdout.count(b"\n")
    if lines != len(records):
        sys.exit(f"{lines} conversations of {len(records)} were listed, so there is nothing to measure")

    def forget():
        (data / "sessions.json").unlink(missing_ok=True)

    one_core = ["taskset", "-c", "0"] if shutil.which("taskset") else []
    figures = turns({"vellark": one_core + command, "cat": ["cat", *records]}, environment, forget)
    subprocess.run(command, env=environment, check=True, stdout=subprocess.DEVNULL)
    figures |= turns({"vellark/again": command}, environment)
    tenth = records[:: 10]  # Python takes its time
    figures["python"] = [10 * seconds([sys.executable, "-c", PYTHON_CONVERSATIONS, *tenth], environment)]
    shutil.rmtree(home)
    shutil.rmtree(data)
    return figures


SUBJECTS = {"shelf-collect": collect, "shelf-list": listing, "shelf-conversations": conversations}
