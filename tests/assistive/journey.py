#!/usr/bin/python3
"""Works the program as a screen reader's user does, from outside, over AT-SPI, with no mouse and no key.

Opens a copy of the sample, adds a draw in the editor, makes sets of numbers in the Selectorium, and leaves through
the question about the draw that was not saved. Ends with 77 and says why where the machine cannot do this.

Usage: tests/assistive/journey.py PROGRAM SAMPLE.Lto
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import time
import warnings

warnings.simplefilter("ignore", DeprecationWarning)  # newer names are missing on the systems we build for

PATIENCE = 15  # seconds for anything to appear; nothing waits that long when all is well
SKIPPED = 77


def skip(reason):
    print("Skipped: " + reason)
    sys.exit(SKIPPED)


def check_the_machine():
    for tool, package in (("Xvfb", "xvfb"), ("dbus-run-session", "dbus")):
        if shutil.which(tool) is None:
            skip(f"{tool} is missing; it comes with the package {package}")
    if not any(os.path.exists(f"/usr/{place}/at-spi-bus-launcher") for place in ("libexec", "lib/at-spi2-core")):
        skip("the accessibility bus is missing; it comes with the package at-spi2-core")
    try:
        import gi

        gi.require_version("Atspi", "2.0")
    except (ImportError, ValueError):
        skip(f"python3-gi or gir1.2-atspi-2.0 is missing for {sys.executable}")


def on_a_display_and_bus_of_our_own(arguments):
    """Runs this script again with an X server and a session bus that nobody else uses."""
    reading, writing = os.pipe()
    with tempfile.TemporaryDirectory() as home:
        server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-noreset", "-nolisten", "tcp", "-screen", "0", "1280x800x24"],
            pass_fds=[writing],
            stderr=subprocess.DEVNULL,
        )
        os.close(writing)
        try:
            with os.fdopen(reading) as told:
                display = told.readline().strip()
            if not display:
                skip("Xvfb does not start")
            environment = {name: os.environ[name] for name in ("PATH", "LD_LIBRARY_PATH") if name in os.environ}
            environment |= {"DISPLAY": ":" + display, "HOME": home, "LC_ALL": "C.UTF-8", "QUILLABY_JOURNEY": "1"}
            environment |= {"XDG_RUNTIME_DIR": home, "NO_AT_BRIDGE": "0"}
            inside = subprocess.run(
                ["dbus-run-session", "--", sys.executable, os.path.abspath(__file__), *arguments],
                env=environment,
                stderr=subprocess.PIPE,
                text=True,
                check=False,
                timeout=4 * PATIENCE,
            )
            if inside.returncode and inside.stderr:  # the buses' chatter is of no interest when all is well
                print(inside.stderr)
            return inside.returncode
        finally:
            server.terminate()
            server.wait()


class Journey:
    def __init__(self, program, sample):
        from gi.repository import Atspi

        self.atspi = Atspi
        self.folder = os.path.join(os.environ["HOME"], "lottery")
        os.mkdir(self.folder)
        self.file = os.path.join(self.folder, "Journey.Lto")
        shutil.copyfile(sample, self.file)
        os.chmod(self.file, 0o600)
        self.process = subprocess.Popen(
            [program, "--folder", self.folder, self.file],
            env=os.environ | {"QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"},
        )
        Atspi.init()
        Atspi.set_timeout(3000, 3000)

    def everything(self, node, depth=0):
        """All that is showing below a node."""
        if node is None or depth > 12:
            return
        if depth > 1 and not node.get_state_set().contains(self.atspi.StateType.SHOWING):
            return
        yield node
        if node.get_role() in (self.atspi.Role.TABLE, self.atspi.Role.MENU):
            return  # a grid's cells are asked for one by one
        for i in range(node.get_child_count()):
            yield from self.everything(node.get_child_at_index(i), depth + 1)

    def application(self):
        desktop = self.atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child is not None and child.get_process_id() == self.process.pid:
                return child
        return None

    def wait_for(self, what, look):
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            try:
                found = look()
                if found:
                    return found
            except self.error():
                pass  # it changed while it was looked at
            if self.process.poll() is not None:
                sys.exit(f"The program ended with {self.process.returncode} before there was {what}")
            time.sleep(0.05)
        sys.exit(f"There is no {what}. There is:\n" + self.what_is_there())

    @staticmethod
    def error():
        from gi.repository import GLib

        return GLib.Error

    def what_is_there(self):
        try:
            return "\n".join(
                f"  {node.get_role_name()}: {node.get_name()}" for node in self.everything(self.application())
            )
        except self.error() as fault:
            return str(fault)

    def find(self, role, name):
        def look():
            for node in self.everything(self.application()):
                if node.get_role() == role and re.fullmatch(name, node.get_name().strip()):
                    return node
            return None

        return self.wait_for(f"{role.value_nick} \"{name}\"", look)

    def press(self, name):
        """By the action that the button itself offers."""
        button = self.find(self.atspi.Role.PUSH_BUTTON, name)
        actions = button.get_action_iface()
        names = [actions.get_action_name(i) for i in range(actions.get_n_actions())]
        if "Press" not in names:
            sys.exit(f"The button {name} offers {names}")
        actions.do_action(names.index("Press"))
        print("pressed " + name)

    def write(self, name, text):
        box = self.find(self.atspi.Role.TEXT, name)
        box.get_component_iface().grab_focus()
        box.get_editable_text_iface().set_text_contents(text)
        now = box.get_text_iface().get_text(0, -1).strip()
        if now != text:
            sys.exit(f"The box {name} holds {now!r} and not {text!r}")

    def cell(self, table, row, column):
        cell = table.get_table_iface().get_accessible_at(row, column)
        return cell.get_name().strip()

    def take(self):
        role = self.atspi.Role
        records = self.find(role.TABLE, "Records")
        before = int(self.wait_for("record", lambda: self.cell(records, 0, 0)))
        for i, number in enumerate((3, 11, 19, 27, 35, 43), start=1):
            self.write(f"Number {i} of the new draw", str(number))
        self.press("Add Record")
        self.wait_for("added record", lambda: int(self.cell(self.find(role.TABLE, "Records"), 0, 0)) == before + 1)
        print(f"{before} draws are {before + 1} now")

        self.press("Exit to Menu")
        grouped = f"{before + 1:,}".replace(",", ",?")
        facts = self.find(role.LABEL, f"Journey\\.Lto.*6 of 49.*{grouped} draws.*not saved yet")
        print(facts.get_name())

        self.press("Selectorium")
        self.press("Calculate")
        sets = self.find(role.TABLE, "Sets")
        first = self.wait_for("set", lambda: [self.cell(sets, 0, column) for column in range(1, 7)])
        self.wait_for("set of numbers", lambda: self.cell(sets, 0, 1))
        first = [int(self.cell(sets, 0, column)) for column in range(1, 7)]
        if first != sorted(set(first)) or not 1 <= first[0] <= first[-1] <= 49:
            sys.exit(f"That is no set of six numbers: {first}")
        print(f"the first set is {first}")

        self.press("Exit to Menu")
        self.press("Exit from Program")
        self.find(role.LABEL, ".*Do you wish to go back and save it to Disk.*")
        self.press("No")
        if self.process.wait(PATIENCE) != 0:
            sys.exit(f"The program ended with {self.process.returncode}")
        print("left through the question")

    def end(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    program, sample = (os.path.abspath(argument) for argument in sys.argv[1:])
    check_the_machine()
    if "QUILLABY_JOURNEY" not in os.environ:
        return on_a_display_and_bus_of_our_own([program, sample])
    journey = Journey(program, sample)
    try:
        journey.take()
    finally:
        journey.end()
    return 0


if __name__ == "__main__":
    sys.exit(main())
