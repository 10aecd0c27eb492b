#!/usr/bin/env python3
"""Runs benchmarks and prints one table of their figures, beside the goals in Goals.json.

A row of Goals.json names a subject, our figure and the peer's in it, and what is asked, by its kind:

    timesPeer       our time is at most `bound` times the peer's
    fasterThanPeer  the peer's time is at least `bound` times ours
    perSecond       our routine runs at least `bound` times in a second; there is no peer
    bytesPerSecond  our routine takes at least `bound` bytes in a second; there is no peer
    bytes           our figure is at most `bound` bytes; there is no peer
    timesBytes      our figure is at most `bound` times the peer's, both in bytes

Where no bound is set, the ratio is shown for information.

A subject is a Google Benchmark program below (its figures are the names of its benchmarks) or one of processes.py
and shelf.py. Some
programs have a peer in Python beside them, whose figures join theirs.
"""

import argparse
import json
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
from pathlib import Path

import processes
import shelf

HERE = Path(__file__).resolve().parent
REPETITIONS = 7

# Behind the name of a benchmark: its figure in bytes per second.
BYTES = "#bytesPerSecond"

# Subject to the script in Peers and its arguments. It prints an object of figures' names and lists of seconds.
PAGES = HERE.parent / "Projects/Core/VellarkDomain/Tests/Data/HTML"
PYTHON_PEERS = {
    "html": ["html_parser.py", PAGES],
    "kinds": ["pyahocorasick.py"],
    "redaction": ["re_redaction.py", HERE.parent / "Projects/Core/VellarkDomain/Tests/Data/Redaction/ordinary.tsv"],
    "richtext": ["pygments_lexing.py", HERE / "Samples"],
    "timestamp": ["fromisoformat.py"],
}


def program_subjects(programs):
    """Subject, in lower case, to program: JSONBenchmark is "json"."""
    return {path.name.removesuffix("Benchmark").lower(): path for path in sorted(programs.glob("*Benchmark"))}


def program_figures(program, directory):
    """Times in seconds by the names of the benchmarks, one for each repetition; repetitions take turns."""
    ended = subprocess.run(
        [program, "--benchmark_format=json", f"--benchmark_repetitions={REPETITIONS}",
         "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.1"],
        env=dict(os.environ, VELLARK_BENCHMARK_DATA=str(directory)), stdout=subprocess.PIPE, check=True)
    units = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}
    figures = {}
    for run in json.loads(ended.stdout)["benchmarks"]:
        if run["run_type"] == "iteration" and not run.get("error_occurred"):
            figures.setdefault(run["run_name"], []).append(run["cpu_time"] * units[run["time_unit"]])
            if "bytes_per_second" in run:
                figures.setdefault(run["run_name"] + BYTES, []).append(run["bytes_per_second"])
    return figures


def peer_figures(subject, directory):
    """The figures of the subject's peer in Python, by the first interpreter that has the modules which it needs; none,
    and a note, where it cannot run."""
    if subject not in PYTHON_PEERS:
        return {}
    script, *arguments = PYTHON_PEERS[subject]
    for interpreter in dict.fromkeys((processes.interpreter(), shutil.which("python3", path=os.defpath))):
        try:
            ended = subprocess.run([interpreter, HERE / "Peers" / script, *arguments],
                                   env=dict(os.environ, VELLARK_BENCHMARK_DATA=str(directory)),
                                   stdout=subprocess.PIPE, check=True)
            return json.loads(ended.stdout)
        except (OSError, TypeError, subprocess.CalledProcessError) as problem:
            error = problem
    print(f"note: {script} was not measured: {error}", file=sys.stderr)
    return {}


def shown(figure, kind):
    if kind in ("bytes", "timesBytes"):
        return f"{figure / 1024:,.0f} KiB"
    for unit, seconds in (("ms", 1e-3), ("us", 1e-6)):
        if figure >= seconds:
            return f"{figure / seconds:.3f} {unit}"
    return f"{figure * 1e9:.1f} ns"


def row(goal, figures):
    """The table's row for one goal, and whether it was met; nothing where it could not be told."""
    kind, bound, peer_name = goal["kind"], goal.get("bound"), goal.get("peer", "")
    head = [goal["subject"], goal["ours"]]
    if goal["ours"] not in figures or (peer_name and peer_name not in figures):
        return head + ["", peer_name, "missing", "", "", "not measured"], None
    ours = statistics.median(figures[goal["ours"]])
    if kind == "bytes":
        met = ours <= bound
        return head + [shown(ours, kind), "", "", "", f"<= {shown(bound, kind)}", "met" if met else "NOT MET"], met
    if kind == "perSecond":
        met = 1 / ours >= bound
        return head + [shown(ours, kind), "", "", "", f">= {bound:,} a second", "met" if met else "NOT MET"], met
    if kind == "bytesPerSecond":
        speed = statistics.median(figures[goal["ours"] + BYTES])
        met = speed >= bound
        return head + [f"{speed / 1e6:,.0f} MB/s", "", "", "", f">= {bound / 1e6:,.0f} MB/s", "met" if met else "NOT MET"], met
    peer = statistics.median(figures[peer_name])
    ratio = peer / ours if kind == "fasterThanPeer" else ours / peer
    head += [shown(ours, kind), peer_name, shown(peer, kind), f"{ratio:.2f}"]
    if bound is None:
        return head + ["", "no goal"], None
    if kind == "timesPeer":
        met, wanted = ratio <= bound, f"<= {bound} x its time"
    elif kind == "timesBytes":
        met, wanted = ratio <= bound, f"<= {bound} x its size"
    else:
        met, wanted = ratio >= bound, f">= {bound} x its speed"
    return head + [wanted, "met" if met else "NOT MET"], met


def print_table(rows):
    rows = [["subject", "ours", "figure", "peer", "figure", "ratio", "goal", ""]] + rows
    widths = [max(len(cells[column]) for cells in rows) for column in range(len(rows[0]))]
    for cells in rows:
        print("  ".join(cell.ljust(width) for cell, width in zip(cells, widths)).rstrip())


def warn_when_busy():
    load, cores = os.getloadavg()[0], os.cpu_count()
    if load > 0.5 * cores:
        print(f"note: the machine is busy (load {load:.1f} on {cores} cores); ratios are less sure", file=sys.stderr)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--programs", type=Path, required=True, help="directory of the built programs")
    parser.add_argument("--list", action="store_true", help="print the subjects and end")
    parser.add_argument("--json", type=Path, help="also write all figures into this file")
    parser.add_argument("subjects", nargs="*", metavar="SUBJECT", help="all subjects when none is named")
    options = parser.parse_args()

    programs = options.programs.resolve()
    in_process = program_subjects(programs)
    of_processes = processes.SUBJECTS | shelf.SUBJECTS
    known = [*of_processes, *in_process]
    if options.list:
        print("\n".join(known))
        return 0
    if unknown := set(options.subjects) - set(known):
        parser.error(f"no such subject: {', '.join(sorted(unknown))} (there are {', '.join(known)})")
    chosen = options.subjects or known

    warn_when_busy()
    goals = json.loads((HERE / "Goals.json").read_text())
    figures = {}
    with tempfile.TemporaryDirectory(prefix="vellark-bench-") as directory:
        workplace = processes.prepare(Path(directory), programs)
        for subject in chosen:
            print(f"measuring {subject}", file=sys.stderr)
            if subject in in_process:
                figures[subject] = program_figures(in_process[subject], workplace.directory) | peer_figures(subject, workplace.directory)
            else:
                figures[subject] = of_processes[subject](workplace)
    warn_when_busy()

    results = [row(goal, figures[goal["subject"]]) for goal in goals if goal["subject"] in figures]
    print_table([cells for cells, _ in results])
    if "kinds" in figures:
        print("\naccuracy of kinds", flush=True)
        subprocess.run([in_process["kinds"], "--accuracy"], check=True)
    if "redaction" in figures:
        print("\nsecrets and ordinary lines", flush=True)
        subprocess.run([in_process["redaction"], "--tables"], check=True)
    if options.json:
        options.json.write_text(json.dumps(figures, indent=2))
    return 1 if any(met is False for _, met in results) else 0


if __name__ == "__main__":
    sys.exit(main())
