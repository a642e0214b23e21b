#!/usr/bin/env python3
"""Runs the surface benchmarks and prints medians and ratios against the goals.

usage: ratios.py PROGRAM [--sizes 1M,4M,8M] [--repetitions 9]

Library, floor (bare OpenGL) and literal use of VTK take turns in random order, so that whatever
else the machine does falls on all three. Times are medians in milliseconds; the ratios are those of
the medians, once of the time on the clock and once of the processor time of all threads, which is
the steadier one on a busy machine. Memory is measured in a process of its own for each figure.
"""
import argparse
import json
import os
import re
import statistics
import subprocess
import sys

# Library / floor at most, literal / library at least.
GOALS = {
    "Add": (1.3, 2.5),
    "Replace": (1.3, 2.5),
    "Palette": (1.2, None),
    "Range": (1.2, None),
    "Camera": ({"1M": 1.15, "4M": 1.2, "8M": 1.2}, None),
}
BYTES_PER_SAMPLE = 80


def run(program, pattern, repetitions):
    command = [program, f"--benchmark_filter={pattern}", "--benchmark_format=json",
               f"--benchmark_repetitions={repetitions}",
               "--benchmark_enable_random_interleaving=true"]
    answer = subprocess.run(command, stdout=subprocess.PIPE, check=True)
    rows = json.loads(answer.stdout)["benchmarks"]
    return [row for row in rows if row["run_type"] == "iteration"]


def medians(rows, value):
    collected = {}
    for row in rows:
        operation, kind = row["name"].split("/")[:2]
        collected.setdefault((operation, kind), []).append(row[value])
    return {key: statistics.median(values) for key, values in collected.items()}


def verdict(ratio, goal, at_most):
    if goal is None:
        return ""
    return "ok" if (ratio <= goal if at_most else ratio >= goal) else "MISSED"


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("program")
    parser.add_argument("--sizes", default="1M,4M,8M")
    parser.add_argument("--repetitions", type=int, default=9)
    arguments = parser.parse_args()

    print(f"load before: {os.getloadavg()[0]:.1f} on {os.cpu_count()} processors")
    print(f"{'':14}{'library':>9}{'floor':>9}{'literal':>9}   {'library/floor':^28}"
          f"{'literal/library':^28}")
    print(f"{'':14}{'ms':>9}{'ms':>9}{'ms':>9}   {'clock':>6}{'cpu':>6}{'goal':>7}{'':9}"
          f"{'clock':>6}{'cpu':>6}{'goal':>7}")
    for size in arguments.sizes.split(","):
        pattern = f"^({'|'.join(GOALS)})/.*/{re.escape(size)}/"
        rows = run(arguments.program, pattern, arguments.repetitions)
        clock = medians(rows, "real_time")
        cpu = medians(rows, "cpuMilliseconds")
        for operation, (floor_goal, literal_goal) in GOALS.items():
            if isinstance(floor_goal, dict):
                floor_goal = floor_goal[size]
            times = [clock[operation, kind] for kind in ("Library", "Floor", "Literal")]
            to_floor = [of[operation, "Library"] / of[operation, "Floor"] for of in (clock, cpu)]
            to_literal = [of[operation, "Literal"] / of[operation, "Library"]
                          for of in (clock, cpu)]
            print(f"{operation + ' ' + size:14}{times[0]:9.1f}{times[1]:9.1f}{times[2]:9.1f}   "
                  f"{to_floor[0]:6.2f}{to_floor[1]:6.2f}{floor_goal:7.2f} "
                  f"{verdict(to_floor[0], floor_goal, True):8}"
                  f"{to_literal[0]:6.2f}{to_literal[1]:6.2f}{literal_goal or '':>7} "
                  f"{verdict(to_literal[0], literal_goal, False)}", flush=True)
        figures = []
        for kind in ("Library", "Floor", "Literal"):
            rows = run(arguments.program, f"^Memory/{kind}/{re.escape(size)}/", 1)
            figures.append(rows[0]["bytesPerSample"])
        print(f"{'Memory ' + size:14}{figures[0]:9.1f}{figures[1]:9.1f}{figures[2]:9.1f}   "
              f"bytes a sample, goal {BYTES_PER_SAMPLE}: "
              f"{verdict(figures[0], BYTES_PER_SAMPLE, True)}", flush=True)
    print(f"load after: {os.getloadavg()[0]:.1f}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
