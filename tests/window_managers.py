#!/usr/bin/python3
"""Tries the real program under each window manager of window_manager_table.py, and prints a table of
what was wrong. Ends with 1 if a fault is none of those that are known and accepted."""
import argparse
import contextlib
import os
import re
import signal
import sys
import traceback

from calculator_window import Desk
from window_manager_checks import (check_drawers, check_layouts, check_restarts, check_start,
                                   check_switching)
from window_manager_session import session
from window_manager_table import ACCEPTED, MANAGERS

COLUMNS = {"start": check_start, "layouts": check_layouts, "switching": check_switching,
           "restarts": check_restarts, "drawers": check_drawers}
SECONDS_FOR_A_ROW = 300


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


def accepted(manager, column, fault):
    return [each for each in ACCEPTED if (each.manager, each.column) == (manager.name, column)
            and re.fullmatch(each.fault, fault)]


def cell(manager, column, faults):
    return "; ".join(f"({fault})" if accepted(manager, column, fault) else fault
                     for fault in faults) or "ok"


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
    is_right, reasons = True, {}
    for manager in MANAGERS:
        if options.managers and manager.name not in options.managers:
            continue
        faults = row(manager, options)
        cells = [cell(manager, name, faults[name]) if name in faults else "-"
                 for name in options.columns]
        print("|", " | ".join([manager.name, *cells]), "|", flush=True)
        for name in options.columns:
            known = [accepted(manager, name, fault) for fault in faults.get(name, [])]
            reasons |= dict.fromkeys(sum(known, []))
            is_right &= name in faults and all(known)
    for each in reasons:
        print(f"(accepted of {each.manager}, {each.column}: it {each.reason})")
    return 0 if is_right else 1


if __name__ == "__main__":
    sys.exit(main())
