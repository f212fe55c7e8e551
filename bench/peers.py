#!/usr/bin/env python3
"""Sets the program beside others that do the same work on the same records.

Counting: sqlite3 counts the draws that core_bench counts. Opening: LibreOffice Calc, where it is installed, opens the
records that quillaby opens. The two take turns, so that whatever else the machine does meets both alike; printed are
medians, least times and their ratios.

Usage: bench/peers.py BUILD [--rounds N]
"""

import argparse
import csv
import json
import os
import select
import shutil
import signal
import sqlite3
import statistics
import subprocess
import sys
import tempfile
import time

RECORDS = 2001
PICKS = 6
HIGHEST = 49
HEADER_LINES = 11  # the shape and the draw days


def program(build, name):
    return os.path.join(os.path.abspath(build), "bin", name)


def made_records(build, folder):
    """A made-up lottery file and its records: number, date, numbers drawn."""
    path = os.path.join(folder, "Made.Lto")
    subprocess.run([program(build, "made_lottery"), path, str(RECORDS), str(PICKS), str(HIGHEST)], check=True)
    with open(path, encoding="latin-1", newline="") as file:
        rows = list(csv.reader(file))[HEADER_LINES:]
    return path, [[int(row[0]), row[1].strip("#")] + [int(n) for n in row[2 : 2 + PICKS]] for row in rows]


def in_sqlite(records):
    """The draws in memory, a row for each place of each record, and the index that helps."""
    database = sqlite3.connect(":memory:")
    database.execute("CREATE TABLE drawn (number INTEGER, record INTEGER)")
    places = [(number, row[0]) for row in records for number in row[2:]]
    database.executemany("INSERT INTO drawn VALUES (?, ?)", places)
    database.execute("CREATE INDEX by_number ON drawn (number, record)")
    database.commit()
    return database


def counted_by_sqlite(database, query):
    begin = time.perf_counter()
    rows = database.execute(query).fetchall()
    taken = time.perf_counter() - begin
    if len(rows) != HIGHEST:
        sys.exit("sqlite3 has not counted every number")
    return taken * 1e6


def counted_by_core(build, name):
    command = [
        program(build, "core_bench"),
        f"--benchmark_filter=^{name}/records:{RECORDS}$",
        "--benchmark_min_time=0.05",
        "--benchmark_format=json",
    ]
    told = subprocess.run(command, capture_output=True, check=True, text=True)
    return json.loads(told.stdout)["benchmarks"][0]["real_time"]


def compare_counts(build, records, rounds):
    database = in_sqlite(records)
    questions = {
        "Counting times drawn": ("GrowCounting", "SELECT number, COUNT(*) FROM drawn GROUP BY number"),
        "Counting draws since": (
            "GrowSinceLastDrawn",
            f"SELECT number, {len(records)} - MAX(record) FROM drawn GROUP BY number",
        ),
    }
    for title, (name, query) in questions.items():
        ours, theirs = [], []
        for _ in range(rounds):
            ours.append(counted_by_core(build, name))
            theirs += [counted_by_sqlite(database, query) for _ in range(20)]
        tell(title, "us", ours, theirs, f"sqlite3 {sqlite3.sqlite_version}, in memory, with an index")


def opened_by_quillaby(build, path, home):
    """From exec to the painted records, in ms, and the peak of memory there, in MiB."""
    environment = {"PATH": os.environ["PATH"], "HOME": home, "XDG_RUNTIME_DIR": home, "QT_QPA_PLATFORM": "offscreen"}
    environment["LD_PRELOAD"] = program(build, "first_paint_watch.so")
    environment["FIRST_PAINT_OF"] = "DGrid1"  # the records, not the menu
    begin = time.monotonic_ns()
    child = subprocess.Popen(
        [program(build, "quillaby"), "--folder", home, path],
        env=environment,
        stdout=subprocess.PIPE,
        stderr=subprocess.DEVNULL,
    )
    ready, _, _ = select.select([child.stdout], [], [], 20)
    line = child.stdout.readline().split() if ready else []
    child.send_signal(signal.SIGKILL)
    child.wait()
    if len(line) != 2:
        sys.exit("quillaby has not painted a window")
    return (int(line[0]) - begin) / 1e6, int(line[1]) / 1024


def opened_by_calc(path, home, out):
    """From exec to the end: the records opened without a window and written out again."""
    begin = time.monotonic_ns()
    subprocess.run(
        ["soffice", f"-env:UserInstallation=file://{home}/office", "--headless", "--convert-to", "ods", "--outdir", out, path],
        env={"PATH": os.environ["PATH"], "HOME": home},
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
        check=True,
    )
    if not os.listdir(out):
        sys.exit("LibreOffice has not opened the records")
    return (time.monotonic_ns() - begin) / 1e6


def compare_opening(build, path, records, folder, rounds):
    if shutil.which("soffice") is None:
        print("LibreOffice Calc is not installed: opening is not compared.")
        return
    sheet = os.path.join(folder, "Made.csv")
    with open(sheet, "w", encoding="ascii", newline="") as file:
        csv.writer(file).writerows(records)
    out = os.path.join(folder, "out")
    os.mkdir(out)
    opened_by_quillaby(build, path, folder)  # once for the disk's cache
    opened_by_calc(sheet, folder, out)
    ours, theirs = [], []
    for _ in range(rounds):
        ours.append(opened_by_quillaby(build, path, folder)[0])
        theirs.append(opened_by_calc(sheet, folder, out))
    tell("Start with a file named", "ms", ours, theirs, "LibreOffice Calc, start, open and convert without a window")


def tell_memory(build, path, folder):
    few = os.path.join(folder, "Few.Lto")
    subprocess.run([program(build, "made_lottery"), few, "10", str(PICKS), str(HIGHEST)], check=True)
    with_few = min(opened_by_quillaby(build, few, folder)[1] for _ in range(3))
    with_all = min(opened_by_quillaby(build, path, folder)[1] for _ in range(3))
    print(
        f"| Memory with {RECORDS} records open | {with_all:.1f} MiB | the same with 10 records: {with_few:.1f} MiB "
        f"| {with_all / with_few:.2f} |"
    )


def tell(title, unit, ours, theirs, peer):
    ratio = statistics.median(ours) / statistics.median(theirs)
    print(
        f"| {title}, {RECORDS} records | {statistics.median(ours):.1f} {unit} ({min(ours):.1f}) "
        f"| {peer}: {statistics.median(theirs):.1f} {unit} ({min(theirs):.1f}) | {ratio:.3f} |"
    )


def main():
    parser = argparse.ArgumentParser(description="Sets the program beside others that do the same work.")
    parser.add_argument("build", help="folder of a release build with its benchmarks")
    parser.add_argument("--rounds", type=int, default=5)
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        path, records = made_records(arguments.build, folder)
        print("| Medians, in brackets the least | quillaby | Beside it | Ratio |")
        print("|---|---|---|---|")
        compare_counts(arguments.build, records, arguments.rounds)
        tell_memory(arguments.build, path, folder)
        compare_opening(arguments.build, path, records, folder, arguments.rounds)


if __name__ == "__main__":
    main()
