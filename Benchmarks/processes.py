"""Whole processes: the helper beside the least that its system calls cost, and beside a hook in Python.

Every subject gives figures by name, each a list with one figure a round. Programs take turns, so that a machine that
slows down slows all of them.
"""

import json
import os
import statistics
import subprocess
import sys
from pathlib import Path

import payloads

HERE = Path(__file__).resolve().parent
ROUNDS = 9
MAXIMUM_PENDING = 512

CONFIGURATION = {
    "settings.json": {
        "disabledConnectors": ["cursor"],
        "advanced": {"agentHomes": {"codex": "~/.codex-work"}},
        "language": "ko",
    },
    "integration-preferences.json": {"disconnectedAgents": ["windsurf"]},
    "capture-policy.json": {"includeAssistantResponses": False},
}


def interpreter():
    """The system's own Python, which starts faster than most; a version manager's wrapper would count against it."""
    system = Path("/usr/bin/python3")
    return system if system.exists() else sys.executable


class Workplace:
    """A home, a data directory with its configuration, and the payloads, all below one directory."""

    def __init__(self, directory, programs):
        self.directory = directory
        self.programs = programs
        self.data = directory / "data"
        self.spool = self.data / "signals"
        self.home = directory / "home"
        self.agent = self.home / ".claude"
        self.agent.mkdir(parents=True, exist_ok=True)
        self.spool.mkdir(parents=True, mode=0o700, exist_ok=True)
        for name, content in CONFIGURATION.items():
            (self.data / name).write_text(json.dumps(content, indent=2))
        self.commands = {
            "helper": [programs / "VellarkCapture", "--source", "claude", "--data", self.data],
            "floor": [programs / "SignalFloor", self.data, self.agent],
            "python": [interpreter(), HERE / "Peers" / "signal_hook.py", "claude", self.data],
        }
        self.timer = programs / "ProcessTimer"

    @property
    def environment(self):
        return {"PATH": os.environ["PATH"], "HOME": str(self.home), "LANG": "C.UTF-8"}

    def fill_spool(self, count):
        """Leaves `count` signals pending. They are empty, which tells them from those that a run writes."""
        for signal in self.spool.iterdir():
            signal.unlink()
        for number in range(count):
            name = f"1700000000.{number:06}-00000000-0000-4000-8000-{number:012}.json"
            (self.spool / name).touch()

    def command(self, name):
        return [str(part) for part in self.commands[name]]

    def runs(self, name, payload, count):
        """Wall time in seconds and peak memory in bytes of each of some runs, which all meet the same spool."""
        return self.timed_runs(self.command(name), payload, count)

    def timed_runs(self, command, payload, count):
        ended = subprocess.run([self.timer, str(count), payload, self.spool, *command],
                               env=self.environment, check=True, capture_output=True, text=True)
        lines = [line.split() for line in ended.stdout.splitlines()]
        return [(int(wall) * 1e-9, int(peak)) for wall, peak in lines]

    def check(self, name, payload):
        """Every program must do the job before its time means anything: one signal, and the answer to the agent."""
        self.fill_spool(MAXIMUM_PENDING - 1)
        with open(payload) as file:
            ended = subprocess.run(self.command(name), stdin=file, env=self.environment, check=True,
                                   capture_output=True, text=True)
        pending = len(list(self.spool.glob("*.json")))
        if ended.stdout != "{}\n" or pending != MAXIMUM_PENDING:
            sys.exit(f"{name}: wrote {ended.stdout!r} and left {pending} signals, so there is nothing to measure")


def timed(payload_name, pending, runs):
    """A subject that times all programs; `runs` says how often each runs in a round."""

    def measure(workplace):
        payload = workplace.directory / payload_name
        for name in runs:
            workplace.check(name, payload)
        workplace.fill_spool(pending)
        figures = {name: [] for name in runs}
        for _ in range(ROUNDS):
            for name, count in runs.items():
                figures[name].append(statistics.median(wall for wall, _ in workplace.runs(name, payload, count)))
        return figures

    return measure


def memory(workplace):
    workplace.fill_spool(0)
    return {
        f"helper/{size}": [peak for _, peak in workplace.runs("helper", workplace.directory / f"{size}.json", 5)]
        for size in ("small", "large")
    }


def library_memory(workplace):
    """Peak memory of reading a library, and the size of its file, both in bytes."""
    program, path = workplace.programs / "LibraryBenchmark", workplace.directory / "library.json"
    if not program.exists():
        return {}
    subprocess.run([program, "--make", path], check=True)
    size = path.stat().st_size
    peaks = [peak for _, peak in workplace.timed_runs([program, "--read", path], os.devnull, 5)]
    path.unlink()
    return {"peak": peaks, "file": [size]}


SUBJECTS = {
    "helper-small": timed("small.json", 0, {"helper": 80, "floor": 80, "python": 8}),
    "helper-small-full": timed("small.json", MAXIMUM_PENDING - 1, {"helper": 80, "floor": 80, "python": 8}),
    "helper-large": timed("large.json", 0, {"helper": 20, "floor": 40, "python": 5}),
    "helper-memory": memory,
    "library-memory": library_memory,
}


def prepare(directory, programs):
    payloads.write(directory)
    return Workplace(directory, programs)
