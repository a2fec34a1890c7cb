"""Builds the programs and the data files for `compare`, and runs what it compares."""
import os
import statistics
import subprocess
import sys
import time
from collections import defaultdict
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
PROGRAMS = ROOT / "build/release/bench"
DATA = ROOT / "build/bench-data"
WORDS = ROOT / "data/qx_lower.txt"
PEER = ROOT / "bench/peer_check.py"

PROPOSALS = DATA / "proposals.txt"

# The data files and how they are made. Steps is as long as huge in every district, but has a
# hundredth of them.
FILES = {
    "small": ["--preset", "small"],
    "large": ["--preset", "large"],
    "big district": ["--big", "10000", "--proposals", f"2000,{PROPOSALS}"],
    "steps": ["--districts", "10000", "--mean", "5"],
    "huge": ["--preset", "huge"],
}

PIPELINE = "tr '|' '\\n' < \"$1\" | LC_ALL=C sort -f | uniq -di"
GREP = 'LC_ALL=C grep -ci -- "$2" "$1" | cat'  # it would stop at a hit if nobody read how many there are
# The texts that the window looks for.
FOUND = {"rare": "qxq", "usual": "ash", "letter": "e"}
COPY = 'cp "$1" "$1.copy" && sync "$1.copy" && mv "$1.copy" "$1.copied"'


def path_of(name):
    """The data file of this name."""
    return DATA / f"{name.replace(' ', '-')}.txt"


def build():
    """Builds the measurements with optimisation."""
    for command in (["cmake", "--preset", "release", "-DQUEXAL_BENCH=ON"],
                    ["cmake", "--build", "--preset", "release", "-j2"]):
        done = subprocess.run(command, cwd=ROOT, capture_output=True, text=True, check=False)
        if done.returncode != 0:
            sys.exit(done.stdout[-4000:] + done.stderr[-4000:])


def make_files(names):
    """Makes the data files that are missing."""
    DATA.mkdir(parents=True, exist_ok=True)
    for name in names:
        path = path_of(name)
        if not path.exists():
            unfinished = path.with_suffix(".new")
            subprocess.run([PROGRAMS / "data/quexal-bench-data", *FILES[name], unfinished], check=True,
                           stdout=subprocess.DEVNULL)
            unfinished.rename(path)


def milliseconds(command):
    """How long a command takes that writes nothing of interest."""
    start = time.perf_counter()
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    return (time.perf_counter() - start) * 1000


def shell(script, path, *more):
    """The command that runs a script of the shell on a file."""
    return ["sh", "-c", script, "sh", str(path), *more]


class Samples:
    """What was measured, round by round, under "file.figure"."""

    def __init__(self):
        self._values = defaultdict(list)

    def median(self, name):
        """The median of a figure."""
        return statistics.median(self._values[name])

    def time(self, name, command):
        """Runs a command and keeps its time."""
        self._values[name].append(milliseconds(command))

    def window(self, scenario, file, *more):
        """Runs a scenario in the window and keeps its figures."""
        command = [PROGRAMS / "quexal-bench-window", scenario, path_of(file), *more]
        done = subprocess.run(command, check=False, capture_output=True, text=True)
        if done.returncode != 0:
            sys.exit(f"{scenario} of {file}: {done.stderr}")
        for line in done.stdout.splitlines():
            figure, value = line.split()
            self._values[f"{file}.{figure}"].append(float(value))


def measure_round(samples, with_huge):
    """Measures everything once, the program and its yardsticks in turns."""
    large = path_of("large")
    samples.time("start_ms", [PROGRAMS / "quexal-bench-window", "start"])
    samples.time("empty_ms", [PROGRAMS / "quexal-bench-window", "empty"])
    samples.window("session", "small")
    samples.time("small.pipeline_ms", shell(PIPELINE, path_of("small")))
    samples.window("session", "large")
    samples.time("large.pipeline_ms", shell(PIPELINE, large))
    samples.window("session", "large")
    samples.time("large.script_ms", [sys.executable, PEER, large, os.devnull, WORDS])
    samples.time("large.copy_ms", shell(COPY, large))
    samples.window("typing", "big district")
    samples.window("editing", "big district")
    samples.window("apply", "big district", PROPOSALS)
    samples.window("find", "large")
    for name, text in FOUND.items():
        samples.time(f"large.grep_{name}_ms", shell(GREP, large, text))
    if with_huge:
        samples.window("session", "steps")
        samples.window("session", "huge")
        samples.window("lists", "huge")
        samples.window("find", "huge")


def remove_saved():
    """Removes what the rounds have written."""
    for pattern in ("*.saved", "*.copied"):
        for path in DATA.glob(pattern):
            path.unlink()
