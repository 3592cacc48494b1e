#!/usr/bin/python3
"""Tries the real program under each window manager of window_manager_table.py, and prints a table of
what was wrong. Ends with 1 if anything was."""
import argparse
import contextlib
import os
import signal
import sys
import traceback

from calculator_window import Desk
from window_manager_checks import (check_drawers, check_layouts, check_open_drawers,
                                   check_restarts, check_start, check_switching, check_tiling)
from window_manager_session import session
from window_manager_table import MANAGERS

COLUMNS = {"start": check_start, "layouts": check_layouts, "switching": check_switching,
           "restarts": check_restarts, "drawers": check_drawers,
           "open": check_open_drawers, "tiling": check_tiling}
SECONDS_FOR_A_ROW = 400


@contextlib.contextmanager
def time_limit(seconds):
    def give_up(*_):
        raise TimeoutError(f"gave up after {seconds} s")

    signal.signal(signal.SIGALRM, give_up)
    signal.alarm(seconds)
    try:
        yield
    finally:
        signal.alarm(0)


def row(manager, options):
    """The faults of each column; those it didn't come to are missing."""
    faults = {}
    try:
        with time_limit(SECONDS_FOR_A_ROW), session(manager, options.display):
            desk = Desk(options.program, manager.switch)
            for name in options.columns:
                try:
                    faults[name] = COLUMNS[name](desk)
                except AssertionError as error:
                    faults[name] = [str(error)]
            desk.display.close()
    except Exception:
        traceback.print_exc()  # the other window managers have their turn
    return faults


def arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    names = [manager.name for manager in MANAGERS]
    parser.add_argument("managers", nargs="*", help="all if none: " + " ".join(names))
    parser.add_argument("--program", default="build/release/talvex", type=os.path.abspath)
    parser.add_argument("--columns", nargs="+", default=list(COLUMNS), choices=COLUMNS)
    parser.add_argument("--display", help="the X display to use, as :90, instead of a free one")
    options = parser.parse_args()
    if unknown := set(options.managers) - set(names):
        parser.error(f"unknown: {' '.join(unknown)}")
    if not os.access(options.program, os.X_OK):
        parser.error(f"no program {options.program}")
    return options


def main():
    options = arguments()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    print("|", " | ".join(["", *options.columns]), "|")
    print("|", " | ".join("---" for _ in ["", *options.columns]), "|")
    is_right = True
    for manager in MANAGERS:
        if options.managers and manager.name not in options.managers:
            continue
        faults = row(manager, options)
        cells = ["; ".join(faults[name]) or "ok" if name in faults else "-"
                 for name in options.columns]
        print("|", " | ".join([manager.name, *cells]), "|", flush=True)
        is_right &= set(cells) == {"ok"}
    return 0 if is_right else 1


if __name__ == "__main__":
    sys.exit(main())
