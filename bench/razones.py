#!/usr/bin/env python3
"""Runs a benchmark program and prints, for each pair of one run, this project's time over the bare program's.

Benchmarks are named GROUP/CASE/desnuda (bare) and GROUP/CASE/nuestra (ours); the goal of a pair stands in the label of its second
half. One that stands alone is printed with its counters. Usage: razones.py PROGRAM [benchmark options]
"""
import json
import subprocess
import sys

COUNTERS = ("ms", "MB", "filas", "paginas", "grupos", "ticket")  # the last word of a counter's name


def main():
    command = [sys.argv[1], "--benchmark_format=json", "--benchmark_repetitions=7",
               "--benchmark_enable_random_interleaving=true", "--benchmark_report_aggregates_only=true", *sys.argv[2:]]
    run = json.loads(subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout)
    medians, goals, alone = {}, {}, []
    for row in run["benchmarks"]:
        if row.get("aggregate_name", "median") != "median":
            continue
        name = row["run_name"].removesuffix("/real_time")
        if not name.endswith(("/desnuda", "/nuestra")):
            alone.append(row)
            continue
        medians[name] = row
        goals[name] = row.get("label", "")
    print("| case | bare | ours | ratio | goal |")
    print("|---|---|---|---|---|")
    for name, row in medians.items():
        if not name.endswith("/desnuda"):
            continue
        stem = name[: -len("/desnuda")]
        ours = medians.get(stem + "/nuestra")
        if ours is None:
            sys.exit(f"{stem} has no other half")
        unit = row["time_unit"]
        print(f"| {stem} | {row['real_time']:.3g} {unit} | {ours['real_time']:.3g} {unit} "
              f"| {ours['real_time'] / row['real_time']:.2f} | {goals[stem + '/nuestra']} |")
    for row in alone:
        counters = ", ".join(f"{name} {value:.4g}" for name, value in row.items() if name.split()[-1] in COUNTERS)
        print(f"{row['run_name'].split('/iterations')[0]}: {row['real_time']:.4g} {row['time_unit']}, {counters} ({row.get('label', '')})")


if __name__ == "__main__":
    main()
