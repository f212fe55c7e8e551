#!/usr/bin/env python3
"""Measures the start of quillaby: from exec to the first painted window, and the peak memory there.

Runs quillaby and start_baseline in turn, so that whatever else the machine does meets both alike, and prints
medians, minima and their ratios: first on the offscreen platform, then, where Xvfb is installed, on an X server.

Usage: bench/start_time.py BUILD [--rounds N]
"""

import argparse
import os
import select
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

HANGS_AFTER = 20  # seconds


class Program:
    def __init__(self, name, command):
        self.name = name
        self.command = command
        self.times = []  # milliseconds
        self.cpu = []  # milliseconds
        self.peaks = []  # KiB

    def start(self, environment):
        """Starts the program once; the watch loaded with it ends it when its window is painted."""
        reading, writing = os.pipe()
        complaints = os.path.join(environment["HOME"], "complaints")
        actions = [
            (os.POSIX_SPAWN_DUP2, writing, 1),
            (os.POSIX_SPAWN_OPEN, 2, complaints, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600),
        ]
        begin = time.monotonic_ns()
        child = os.posix_spawn(self.command[0], self.command, environment, file_actions=actions)
        os.close(writing)
        ready, _, _ = select.select([reading], [], [], HANGS_AFTER)
        line = os.read(reading, 100).split() if ready else []
        os.close(reading)
        if not ready:
            os.kill(child, signal.SIGKILL)
        _, _, used = os.wait4(child, 0)
        if len(line) != 2:
            with open(complaints, encoding="utf-8", errors="replace") as file:
                sys.exit(f"{self.command[0]} has not painted a window\n{file.read()}")
        self.times.append((int(line[0]) - begin) / 1e6)
        self.cpu.append((used.ru_utime + used.ru_stime) * 1e3)
        self.peaks.append(int(line[1]))

    def forget(self):
        self.times.clear()
        self.cpu.clear()
        self.peaks.clear()

    def libraries(self, environment):
        """The shared libraries the program is linked with, as the loader finds them."""
        listed = subprocess.run(
            self.command[:1], env=dict(environment, LD_TRACE_LOADED_OBJECTS="1"), capture_output=True, check=True, text=True
        )
        return {line.split()[0] for line in listed.stdout.splitlines()}


def measure(title, build, rounds, environment):
    bin_folder = os.path.join(os.path.abspath(build), "bin")
    baseline = os.path.join(bin_folder, "start_baseline")
    programs = [
        Program("a button in a small window", [baseline]),
        Program("a button in a window of equal size", [baseline, "equal"]),
        Program("twelve plain buttons and a title", [baseline, "menu"]),
        Program("quillaby", [os.path.join(bin_folder, "quillaby")]),
    ]
    if programs[0].libraries(environment) != programs[-1].libraries(environment):
        sys.exit("The baseline is not linked with the libraries of quillaby.")
    watched = dict(environment, LD_PRELOAD=os.path.join(bin_folder, "first_paint_watch.so"))
    for program in programs:  # once for the disk's cache
        program.start(watched)
        program.forget()
    for turn in range(rounds):
        order = programs if turn % 2 == 0 else reversed(programs)
        for program in order:
            program.start(watched)

    print(f"{title}, {rounds} rounds")
    print(f"  {'':40} {'ms median':>10} {'ms least':>9} {'ms of CPU':>10} {'MiB peak':>9}")
    for program in programs:
        print(
            f"  {program.name:40} {statistics.median(program.times):10.2f} {min(program.times):9.2f}"
            f" {statistics.median(program.cpu):10.2f} {statistics.median(program.peaks) / 1024:9.2f}"
        )
    quillaby = programs[-1]
    for program in programs[:-1]:
        print(
            f"  {'quillaby / ' + program.name:40} {ratio(quillaby.times, program.times):10.3f}"
            f" {min(quillaby.times) / min(program.times):9.3f} {ratio(quillaby.cpu, program.cpu):10.3f}"
            f" {ratio(quillaby.peaks, program.peaks):9.3f}"
        )


def ratio(values, others):
    return statistics.median(values) / statistics.median(others)


def x_server(folder):
    """An X server that does not start anew between two programs, and its display."""
    reading, writing = os.pipe()
    command = ["Xvfb", "-displayfd", str(writing), "-noreset", "-screen", "0", "1280x800x24", "-nolisten", "tcp"]
    server = subprocess.Popen(command, pass_fds=[writing], stderr=subprocess.DEVNULL, cwd=folder)
    os.close(writing)
    with open(reading, encoding="ascii") as told:
        display = told.readline().strip()  # the whole line: a server that cannot write its end gives up
    if not display:
        server.wait()
        sys.exit("Xvfb does not start")
    return server, ":" + display


def main():
    parser = argparse.ArgumentParser(description="Measures the start of quillaby beside the smallest program with a window.")
    parser.add_argument("build", help="folder of a release build with its benchmarks")
    parser.add_argument("--rounds", type=int, default=40)
    arguments = parser.parse_args()

    with tempfile.TemporaryDirectory() as home:
        kept = ("PATH", "LANG", "LC_ALL")
        environment = {name: os.environ[name] for name in kept if name in os.environ}
        environment.update(HOME=home, XDG_RUNTIME_DIR=home)
        measure("Offscreen", arguments.build, arguments.rounds, dict(environment, QT_QPA_PLATFORM="offscreen"))
        if shutil.which("Xvfb") is None:
            print("Xvfb is not installed: no figures for an X server")
            return
        server, display = x_server(home)
        try:
            measure("Xvfb", arguments.build, arguments.rounds, dict(environment, QT_QPA_PLATFORM="xcb", DISPLAY=display))
        finally:
            server.terminate()
            server.wait()


if __name__ == "__main__":
    main()
