#!/usr/bin/env python3
"""Runs every benchmark of a release build and prints the tables of docs/performance.md.

The parts of each program take turns several times over, so that a machine with other work disturbs all of them alike;
printed is the least time of each, which other work disturbs least.

Usage: bench/run_all.py BUILD [--rounds N] [--least SECONDS]
"""

import argparse
import json
import os
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
RECORDS = (10, 100, 500, 1000, 2001)

# What is done, which part of the benchmarks does it, and which stands beside it.
BESIDE = [
    ("Reading a file, 6 picks", "ReadLottery/picks:6", "SplitAndConvert/picks:6", "splitting the bytes, `toInt` of each field"),
    ("Opening it from the disk", "OpenLotteryFromDisk/picks:6", "SplitAndConvert/picks:6", "the same, without a disk"),
    ("Writing it", "WriteLottery/picks:6", "JoinPlainNumbers/picks:6", "joining `QByteArray::number` of each"),
    ("Fingerprint for the recovery copy", "GrowFingerprint/records:2001", "GrowWriting/records:2001", "writing the file to compare"),
    ("Saving it durably", "SaveDurably/picks:6/real_time", "SaveInPlace/picks:6/real_time", "writing over the old file"),
    ("Counting, times drawn", "Count/TimesDrawn/records:2000", "NaiveTimesDrawn", "three nested loops"),
    ("Counting, since last drawn", "Count/SinceLastDrawn/records:2000", "NaiveTimesDrawn", "three nested loops"),
    ("Sorting 60 counts", "Sort/Counts", "SortWithLibrary/Counts", "`std::stable_sort`"),
    ("Sorting records by date", "GrowDateSort/records:2001/manual_time", "GrowLibrarySort/records:2001/manual_time",
     "`std::stable_sort` of the records"),
    ("Hot, cold and due lists, 6 picks", "Lists/picks:6", "NaiveLists/picks:6", "every number in every place"),
    ("Search for winners, at least 3", "Winners/minimum:3", "NaiveWinnersInCells/minimum:3", "comparing each with each"),
    ("One draw of the generator", "DrawWithoutClock", "LibraryDraw", "`std::mt19937_64`"),
    ("Ten sets of ten", "TenSetsOfTenFromSixty", None, ""),
    ("File name to painted editor", "OpenFileFirst/records:2001/manual_time", "ShowPlainGrid/records:2001/manual_time",
     "plain grid of as many items"),
    ("Press of \"Check Numbers\" to painted grid", "CheckWinners/records:2001/manual_time",
     "ShowPlainGrid/records:2001/manual_time", "plain grid of as many items"),
    ("\"Show Graph\" to painted chart", "OpenGraphsFirst/manual_time", None, ""),
    ("Painting a chart", "RedrawChart/blocks:0/large:0", "PaintPlainBoxes/large:0", "60 rectangles and 120 texts"),
    ("Printing the database to PDF", "PrintDatabaseToPdf/records:2001/font:0", "PrintPlainTextToPdf/2001", "`QTextDocument`"),
]

# How the work grows with the records.
GROWING = [
    ("Reading a file", "GrowReading"),
    ("Writing it", "GrowWriting"),
    ("Fingerprint for the recovery copy", "GrowFingerprint"),
    ("Counting, times drawn", "GrowCounting"),
    ("Counting, since last drawn", "GrowSinceLastDrawn"),
    ("Hot, cold and due lists", "GrowHotColdDue"),
    ("Search for winners", "GrowWinnerSearch"),
    ("Sorting by date, from disorder", "GrowDateSort"),
    ("The same by `std::stable_sort`", "GrowLibrarySort"),
    ("Deleting the first record", "GrowDeletion"),
    ("Extracting all but two", "GrowExtract"),
    ("File name to painted editor", "OpenFileFirst"),
    ("The same, editor open before", "OpenFileAgain"),
    ("\"Add Record\" to repainted editor", "AddRecord"),
    ("A correction to repainted editor", "CorrectRecordInEditor"),
    ("A deletion to repainted editor", "DeleteRecordInEditor"),
    ("A sort to repainted editor", "SortRecordsInEditor"),
    ("A plain grid of as many items", "ShowPlainGrid"),
    ("Check of numbers to painted grid", "CheckWinners"),
    ("Printing the database to PDF", "PrintDatabaseToPdf"),
]

UNITS = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}


def least_times(build, name, rounds, least):
    """The least time of every part of a benchmark program, in seconds."""
    command = [
        os.path.join(os.path.abspath(build), "bin", name),
        "--benchmark_format=json",
        "--benchmark_enable_random_interleaving=true",
        f"--benchmark_repetitions={rounds}",
        f"--benchmark_min_time={least}",
    ]
    told = subprocess.run(command, capture_output=True, text=True, check=False)
    if told.returncode != 0:
        sys.exit(f"{name} ends with {told.returncode}\n{told.stderr}")
    times = {}
    for one in json.loads(told.stdout)["benchmarks"]:
        if one.get("run_type") != "iteration":
            continue
        if one.get("error_occurred"):
            sys.exit(f"{one['name']}: {one['error_message']}")
        taken = one["real_time"] * UNITS[one["time_unit"]]
        times[one["name"]] = min(taken, times.get(one["name"], taken))
    return times


def shown(seconds):
    for unit, factor in (("ns", 1e-9), ("us", 1e-6), ("ms", 1e-3)):
        if seconds < factor * 1000:
            return f"{seconds / factor:.3g} {unit}"
    return f"{seconds:.3g} s"


def print_beside(times):
    print("| 2,000 or 2,001 records | Time | Plain code in the same run | Ratio |")
    print("|---|---|---|---|")
    for title, ours, peer, words in BESIDE:
        if peer is None:
            print(f"| {title} | {shown(times[ours])} | | |")
        else:
            print(f"| {title} | {shown(times[ours])} | {words}: {shown(times[peer])} | {times[ours] / times[peer]:.2g} |")


def print_growing(times):
    print("| Records | " + " | ".join(f"{n:,}" for n in RECORDS) + " | 2,001 beside 10 |")
    print("|---" * (len(RECORDS) + 2) + "|")
    for title, name in GROWING:
        row = []
        for records in RECORDS:
            plain = f"{name}/records:{records}"
            row.append(times.get(plain, times.get(plain + "/manual_time")) or times[f"{plain}/font:0"])
        print(f"| {title} | " + " | ".join(shown(t) for t in row) + f" | {row[-1] / row[0]:.3g} |")


def main():
    parser = argparse.ArgumentParser(description="Runs every benchmark and prints the tables of docs/performance.md.")
    parser.add_argument("build", help="folder of a release build with its benchmarks")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--least", type=float, default=0.1, help="seconds that each part runs in each round")
    arguments = parser.parse_args()

    times = least_times(arguments.build, "core_bench", arguments.rounds, arguments.least)
    times.update(least_times(arguments.build, "form_bench", arguments.rounds, arguments.least))
    print("## Beside plain code\n")
    print_beside(times)
    print("\n## Growth\n")
    print_growing(times)
    print("\n## Beside other programs\n", flush=True)
    subprocess.run([os.path.join(HERE, "peers.py"), arguments.build], check=True)
    print("\n## Start\n", flush=True)
    subprocess.run([os.path.join(HERE, "start_time.py"), arguments.build], check=True)


if __name__ == "__main__":
    main()
