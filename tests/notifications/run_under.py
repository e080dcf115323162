#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
"""run_under.py xvfb|weston PROGRAM: runs a test program on a window system that has no screen.

Ends with the program's exit code, or with 77 (skipped) where the window system or Qt's plugin is missing.
"""
import glob
import os
import shutil
import subprocess
import sys
import tempfile
import time

SKIPPED = 77
START_SECONDS = 20


def wait_until(ready, server):
    deadline = time.monotonic() + START_SECONDS
    while not ready():
        if server.poll() is not None or time.monotonic() > deadline:
            sys.exit("the window system did not start")
        time.sleep(0.05)


def start_xvfb(directory):
    """Lets the server choose a free display; it writes the number when it is ready."""
    reader, writer = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", "1280x1024x24", "-nolisten", "tcp"],
                              pass_fds=[writer], stderr=subprocess.DEVNULL)
    os.close(writer)
    with os.fdopen(reader) as numbers:
        number = numbers.readline().strip()
    if not number:
        sys.exit("Xvfb did not start")
    return server, {"QT_QPA_PLATFORM": "xcb", "DISPLAY": ":" + number}


def start_weston(directory):
    socket = os.path.join(directory, "wayland-test")
    environment = dict(os.environ, XDG_RUNTIME_DIR=directory)
    with open(os.path.join(directory, "weston.log"), "w", encoding="utf-8") as log:
        server = subprocess.Popen(["weston", "--backend=headless-backend.so", "--socket=wayland-test", "--idle-time=0",
                                   "--no-config", "--width=1280", "--height=1024"],
                                  env=environment, stdout=log, stderr=log)
    wait_until(lambda: os.path.exists(socket), server)
    return server, {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": "wayland-test", "XDG_RUNTIME_DIR": directory,
                    "QT_WAYLAND_DISABLE_WINDOWDECORATION": "1"}


def main():
    display, program = sys.argv[1:]
    command, plugin, start = {"xvfb": ("Xvfb", "libqxcb.so", start_xvfb),
                              "weston": ("weston", "libqwayland-generic.so", start_weston)}[display]
    if shutil.which(command) is None or not glob.glob("/usr/lib/*/qt5/plugins/platforms/" + plugin):
        print(f"skipped: {command} or Qt's {plugin} is not installed")
        return SKIPPED
    with tempfile.TemporaryDirectory() as directory:
        server, environment = start(directory)
        # Qt's plugins and their libraries leak at exit; without a window system the same program is checked for leaks.
        sanitizer = os.environ.get("ASAN_OPTIONS", "")
        environment["ASAN_OPTIONS"] = ":".join(filter(None, [sanitizer, "detect_leaks=0"]))
        try:
            return subprocess.run([program], env={**os.environ, **environment}, check=False).returncode
        finally:
            server.terminate()
            server.wait()


if __name__ == "__main__":
    sys.exit(main())
