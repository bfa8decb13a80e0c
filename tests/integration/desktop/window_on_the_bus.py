#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

"""Uses the window as assistive technology does: on a display of its own, through the accessibility bus alone. Starts a
run, answers its question about a taken name for all the rest, and reads how it ended.
  window_on_the_bus.py WINDOW VELKORA_BATCH PHOTO...

Two of three photos have results already. Both programs are given by their paths.

The display, the buses and all processes end with this one.
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

PATIENCE = 90  # seconds
FIRST_LOOK = 5  # seconds
NOT_THERE_YET = 75


class NotThere(Exception):
    """Something that has to come did not."""


def in_session():
    """Runs this file again within a display and a session of its own."""
    read_end, write_end = os.pipe()
    display = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x800x24", "-nolisten", "tcp"],
        pass_fds=[write_end], stderr=subprocess.DEVNULL)
    os.close(write_end)
    try:
        with os.fdopen(read_end) as numbers:
            number = numbers.readline().strip()
        if not number:
            raise NotThere("Xvfb did not start")
        with tempfile.TemporaryDirectory() as home:
            environment = dict(os.environ, DISPLAY=f":{number}", HOME=home, XDG_RUNTIME_DIR=home, TMPDIR=home,
                               XDG_CONFIG_HOME=f"{home}/config", XDG_DATA_HOME=f"{home}/data",
                               XDG_CACHE_HOME=f"{home}/cache", IN_SESSION="1", QT_QPA_PLATFORM="xcb",
                               QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
            return subprocess.run(["dbus-run-session", "--", sys.executable] + sys.argv, env=environment).returncode
    finally:
        display.terminate()
        display.wait()


def parts(at):
    """`at` and everything below it. What goes away meanwhile is left out."""
    from gi.repository import GLib
    try:
        yield at
        for i in range(at.get_child_count()):
            child = at.get_child_at_index(i)
            if child is not None:
                yield from parts(child)
    except GLib.Error:
        return


def find(root, role, matches):
    """The first part that is shown, has the role and whose name `matches`; None if there is none."""
    from gi.repository import Atspi, GLib
    for part in parts(root):
        try:
            if part.get_role_name() == role and matches(part.get_name()) and \
                    part.get_state_set().contains(Atspi.StateType.SHOWING):
                return part
        except GLib.Error:
            continue
    return None


def wait_for(what, look, seconds=PATIENCE):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        found = look()
        if found:
            return found
        time.sleep(0.1)
    raise NotThere(f"{what} did not come")


def press(button):
    from gi.repository import Atspi
    if not Atspi.Action.do_action(button, 0):
        raise NotThere(f"{button.get_name()} cannot be pressed")


def make_job(velkora_batch, photos):
    """The file of a job over three photos, of which two have results."""
    home = pathlib.Path(os.environ["HOME"])
    for folder, taken in (("photos", photos[:3]), ("results", photos[:2])):
        (home / folder).mkdir()
        for photo in taken:
            shutil.copy(photo, home / folder)
    job = home / "job.vbatch.xml"
    subprocess.run([velkora_batch, "create", job, home / "photos", "--output", home / "results"], check=True,
                   stdout=subprocess.DEVNULL)
    return job


def use_window(process):
    """Does with the window of `process` what its user would."""
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi, GLib

    def application():
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            try:
                child = desktop.get_child_at_index(i)
                if child is not None and child.get_process_id() == process:
                    return child
            except GLib.Error:
                continue
        return None

    def enabled(name):
        button = find(root, "push button", lambda shown: shown == name)
        return button if button and button.get_state_set().contains(Atspi.StateType.SENSITIVE) else None

    try:
        root = wait_for("the window", application, FIRST_LOOK)
    except NotThere:
        sys.exit(NOT_THERE_YET)
    press(wait_for("the button Start", lambda: enabled("Start")))
    question = wait_for("the question", lambda: find(root, "label", lambda name: "is taken" in name))
    print("asked:", question.get_name())
    press(wait_for("the answer for the rest", lambda: find(root, "check box", lambda name: "rest" in name)))
    press(wait_for("the answer Skip", lambda: enabled("Skip it")))
    end = wait_for("the end", lambda: find(root, "label", lambda name: name.startswith("Finished")))
    print("ended:", end.get_name())
    if "1 written, 2 skipped, 0 failed" not in end.get_name():
        raise NotThere("one picture was to be written")


def start_window(program, job_file):
    """Starts the window, and users of it until one finds it: one that looks too early never sees it."""
    window = subprocess.Popen([program, job_file])
    end = time.monotonic() + PATIENCE
    try:
        while window.poll() is None:
            user = subprocess.run([sys.executable, __file__, "--use", str(window.pid)]).returncode
            if user != NOT_THERE_YET:
                return user
            if time.monotonic() > end:
                raise NotThere("the window did not come")
        raise NotThere(f"the window has ended with {window.returncode}")
    finally:
        window.terminate()
        window.wait()


if __name__ == "__main__":
    try:
        if sys.argv[1] == "--use":
            use_window(int(sys.argv[2]))
        elif os.environ.get("IN_SESSION") == "1":
            sys.exit(start_window(sys.argv[1], make_job(sys.argv[2], sys.argv[3:])))
        else:
            sys.exit(in_session())
    except NotThere as problem:
        sys.exit(f"FAIL: {problem}")
