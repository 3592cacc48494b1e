#!/usr/bin/python3
"""Drives the real program on a virtual desktop with real keys and clicks, and reads its display as
a screen reader does. Usage: end_to_end.py PROGRAM, within a D-Bus session of its own."""
import contextlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time
import unittest

import gi

from desktop import Screen, desktop, running, wait_until, xdotool

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402  the version comes first

PROGRAM = sys.argv.pop()
BUTTON_ROLES = ("push button", "check box", "toggle button")
ROOT = pathlib.Path(__file__).resolve().parent.parent
MANUAL = (ROOT / "packaging/talvex.1.in").read_text().replace("\\", "")
THIN = "\u2009"
INVERSE = "inverse of the next function"
CARET_ON_A_GERMAN_KEYBOARD = 49  # a dead key


def focus(*window):
    xdotool("search", *window, "windowfocus")


def children(node):
    return filter(None, map(node.get_child_at_index, range(node.get_child_count())))


class Calculator:
    def __init__(self):
        self.application = wait_until(self.application_on_the_bus, "the program to show up")
        self.application.set_cache_mask(Atspi.Cache.NONE)
        wait_until(lambda: self.find("X: "), "the display")

    @staticmethod
    def application_on_the_bus():
        named = (child for child in children(Atspi.get_desktop(0)) if child.get_name() == "talvex")
        return next(named, None)

    def _walk(self, node):
        yield node
        for child in children(node):
            yield from self._walk(child)

    def find(self, start):
        return next((node for node in self._walk(self.application)
                     if node.get_name().startswith(start)), None)

    def key(self, name):
        for node in self._walk(self.application):
            if node.get_name() == name and node.get_role_name() in BUTTON_ROLES:
                return node
        raise AssertionError(f"no key {name}")

    def place(self, name):
        """The middle of a key on the screen."""
        box = self.key(name).get_extents(Atspi.CoordType.SCREEN)
        return box.x + box.width // 2, box.y + box.height // 2

    def line(self, label):
        return self.find(label + ": ").get_name()

    def is_lit(self, name):
        return self.key(name).get_state_set().contains(Atspi.StateType.CHECKED)

    def click(self, *names):
        for name in names:
            xdotool("mousemove", *self.place(name), "click", 1)


class EndToEnd(unittest.TestCase):
    @classmethod
    def start(cls):
        cls.process = subprocess.Popen([PROGRAM])
        cls.calculator = Calculator()

    @classmethod
    def end(cls):
        cls.process.terminate()
        cls.process.wait()
        wait_until(lambda: Calculator.application_on_the_bus() is None, "the program to go")

    setUpClass, tearDownClass = start, end

    def restart(self):
        self.end()
        self.start()

    def setUp(self):
        focus("--sync", "--onlyvisible", "--class", "talvex")
        xdotool("key", "Delete")
        self.expect_x("0.0000")
        SCREEN.bells()

    def expect_x(self, text):
        def shown():
            return self.calculator.line("X").replace(THIN, "")

        wait_until(lambda: shown() == "X: " + text, f"X to be {text!r}, it is {shown()!r}")

    def expect_inverse(self, is_lit):
        wait_until(lambda: self.calculator.is_lit(INVERSE) == is_lit, f"INV to be lit: {is_lit}")

    @staticmethod
    def windows():
        search = ["xdotool", "search", "--onlyvisible", "--class", "talvex"]
        return subprocess.check_output(search).split()

    def wait_for_windows(self, count):
        wait_until(lambda: len(self.windows()) == count, f"{count} windows")

    def choose_input_mode(self, number):
        self.calculator.click("input mode")
        self.wait_for_windows(2)
        xdotool("key", *["Down"] * (number + 1), "Return")

    def test_a_clicked_shift_key_reaches_a_typed_function(self):
        xdotool("key", "1")
        self.calculator.click(INVERSE)
        self.expect_inverse(True)
        xdotool("key", "s")
        self.expect_x("1.5708")
        self.calculator.click("clear X")
        self.expect_inverse(False)

    def test_a_refused_key_sounds_and_changes_nothing(self):
        xdotool("key", "7")
        self.expect_x("7")
        self.assertEqual(SCREEN.bells(), 0)
        self.choose_input_mode(10)
        self.expect_x("7 oct")
        xdotool("key", "9")
        wait_until(SCREEN.bells, "the bell")
        self.expect_x("7 oct")
        self.choose_input_mode(0)
        self.expect_x("7")

    def test_a_modifier_key_held_while_the_focus_goes_leaves_nothing_lit(self):
        with running(["xev"], stdout=subprocess.DEVNULL):
            xdotool("search", "--sync", "--name", "Event Tester")
            focus("--sync", "--onlyvisible", "--class", "talvex")
            xdotool("keydown", "shift")
            self.expect_inverse(True)
            focus("--name", "Event Tester")
            self.expect_inverse(False)
            xdotool("keyup", "shift")
            focus("--onlyvisible", "--class", "talvex")
        xdotool("key", "2")
        self.expect_x("2")
        self.expect_inverse(False)

    def test_a_dead_key_of_another_layout_is_a_key(self):
        subprocess.run(["setxkbmap", "de"], check=True)
        try:
            xdotool("key", "2", "Return", "1", "0")
            xdotool("key", CARET_ON_A_GERMAN_KEYBOARD)
            self.expect_x("1,024.0000")
        finally:
            subprocess.run(["setxkbmap", "us"], check=True)

    def test_x_travels_through_the_clipboard(self):
        xdotool("key", "2", "period", "5", "Return", "ctrl+Insert")
        clipboard = ["xclip", "-selection", "clipboard"]
        wait_until(lambda: subprocess.run([*clipboard, "-o"], capture_output=True).stdout ==
                   b"2.5000", "the copied number")
        text = b"-7,25" + b" and so on" * 1000000
        subprocess.run(clipboard, input=text, check=True)
        xdotool("key", "shift+Insert")
        self.expect_x("-7.2500")
        again = subprocess.run([*clipboard, "-o"], capture_output=True, timeout=10).stdout
        self.assertEqual(again, text)

    def test_a_hung_program_that_owns_the_clipboard_holds_up_nothing(self):
        with contextlib.closing(Screen(os.environ["DISPLAY"])) as program:
            program.take_clipboard()
            xdotool("key", "shift+Insert")
            wait_until(lambda: self.calculator.find("paste: no answer"), "the word", seconds=2)
            wait_until(SCREEN.bells, "the bell")
            xdotool("key", "shift+Insert", "7")
            self.expect_x("7")
            wait_until(SCREEN.bells, "the bell")
            self.expect_x("7")

    def test_the_first_start_shows_the_help_and_leaves_the_keys_with_the_calculator(self):
        self.end()
        shutil.rmtree(pathlib.Path(os.environ["HOME"], "Library"))
        self.start()
        self.wait_for_windows(2)
        time.sleep(0.5)  # for the window manager to settle whose the keyboard is
        for window in self.windows():
            self.assertIn(b"Icon (64 x 64)",
                          subprocess.check_output(["xprop", "-id", window, "_NET_WM_ICON"]))
        xdotool("key", "7")
        self.expect_x("7")
        xdotool("key", "F1")
        self.wait_for_windows(1)

    def test_a_smaller_screen_brings_the_window_back_into_sight(self):
        def xrandr(*arguments):
            subprocess.run(["xrandr", *arguments], check=True)

        xdotool("windowmove", int(self.windows()[0]), 850, 650)
        wait_until(lambda: self.calculator.place("enter") > (800, 600), "the window to move away")
        xrandr("--newmode", "small", *"38.25 800 832 912 1024 600 603 607 624".split())
        xrandr("--addmode", "screen", "small")
        try:
            xrandr("--output", "screen", "--mode", "small")
            wait_until(lambda: self.calculator.place("enter") < (800, 600), "the window to be back")
            self.assertLess(self.calculator.place("enter")[1], 600)
        finally:
            xrandr("--output", "screen", "--mode", "1280x1024")

    def open_drawer(self, name, key):
        self.calculator.click(f"open or close the drawer of {name}")
        wait_until(lambda: self.calculator.find(key), key)
        time.sleep(0.5)  # for the drawer to come to rest

    def test_drawers_hold_constants_and_units_and_come_back(self):
        self.open_drawer("constants", "speed of light in vacuum")
        self.open_drawer("unit conversions", "Length")
        self.calculator.click("speed of light in vacuum")
        self.expect_x("299,792,458.0000")
        self.calculator.click("Length", "5", "foot", "metre")
        self.expect_x("1.5240")
        self.calculator.click("inch")
        self.expect_x("60.0000")
        self.calculator.click("Temperature", "clear X", "degree Celsius", "degree Fahrenheit")
        self.expect_x("32.0000")

        def places():
            return [self.calculator.place(name)
                    for name in ("speed of light in vacuum", "degree Celsius", "enter")]

        before = places()
        self.restart()
        wait_until(lambda: places() == before, "everything where it was")
        self.expect_x("32.0000")
        self.calculator.click("open or close the drawer of constants",
                              "open or close the drawer of unit conversions")

    def test_without_a_screen_it_answers_options_or_says_so(self):
        no_screen = "talvex: there is no screen to open a window on\n"
        for options, status, answer, complaint in (
                ([], 1, "", no_screen),
                (["-display", ":7777"], 1, "", no_screen),
                (["-style=fusion", "--platform", "xcb", "-reverse"], 1, "", no_screen),
                (["-style", "fusion", "--version"], 0, r"talvex \d[.\d]*\n", ""),
                (["--help"], 0, r"Usage: talvex(.*\n)+", ""),
                (["-reverse", "--nonsense"], 2, "", r"talvex: .*--nonsense.*\n")):
            result = subprocess.run([PROGRAM, *options], env={**os.environ, "DISPLAY": ""},
                                    capture_output=True, text=True, timeout=20)
            self.assertEqual(result.returncode, status, options)
            self.assertRegex(result.stdout, f"^{answer}$")
            self.assertRegex(result.stderr, f"^{complaint}$")
            for option in re.findall(r"^  (-[-a-z, ]*[a-z])", result.stdout, re.MULTILINE):
                self.assertIn(option, MANUAL)

    def test_four_lines_show_the_stack(self):
        self.calculator.click("show the registers Y, Z and T")
        xdotool("key", "4", "Return", "5", "Return", "6", "Return", "7")
        wait_until(lambda: self.calculator.line("T") == "T: 4.000" + THIN + "0", "4 in T")
        self.expect_x("7")
        self.calculator.click("show the registers Y, Z and T")


if __name__ == "__main__":
    os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
    os.environ["LC_ALL"] = "C.UTF-8"
    os.environ.pop("QT_QPA_PLATFORM", None)
    with desktop() as SCREEN, \
            running(["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"]):
        unittest.main()
