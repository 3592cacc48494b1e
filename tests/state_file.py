#!/usr/bin/python3
"""Looks at the saved state from outside: with another reader and writer of property lists, with a
program that is killed while it writes, and with a disk that is full. Usage: state_file.py STATE_TOOL"""
import os
import pathlib
import plistlib
import random
import resource
import signal
import stat
import struct
import subprocess
import sys
import tempfile
import time
import unittest

TOOL = sys.argv.pop()
NAME = "Library/Preferences/com.Quondel.TalvexV1.2.data.plist"
KILLS = int(os.environ.get("TALVEX_KILLS", "100"))


def data(number):
    return struct.pack(">d", number)


def full_state(number):
    """A state with a value of its own under each of the 61 keys."""
    state = {f"reg[{index}]": data(number + index) for index in range(4)}
    state |= {f"mem[{index}]": data(-number - index / 8) for index in range(21)}
    state["lastX"] = data(float("nan"))
    integers = """outputDisplayMode inputDisplayMode inputState angleMode digits helpTag displayViewMode
        decimalMode digitGroupingSeparatorMode digitGroupingDigitsMode fontMode helpViewTextSize
        memoryDrawerState constantsDrawerState conversionDrawerState functionsDrawerState
        conversionTabSelection"""
    state |= {key: place - 3 for place, key in enumerate(integers.split())}
    booleans = """memoryWasOpen constantsWasOpen conversionWasOpen functionsWasOpen animateWindow
        useHPStylePowerAndLogs reduceCarpentryFractions unlockInputAndOutputModes displayIrrationals
        helpPanelVisible keyPadHidden registerLabelsHidden autoHideXLabel statusLinesEnabled
        showStatusLine includeDigitGroupingWhenCopying"""
    state |= {key: place % 2 == 0 for place, key in enumerate(booleans.split())}
    state["calculatorFrame"] = struct.pack(">4f", 10, 20.5, 404, 229)
    state["helpFrame"] = struct.pack(">4f", -1, 2, 300, 400)
    return state


class StateFile(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = pathlib.Path(folder.name)
        self.file = self.home / NAME

    def rewrite(self, **options):
        return subprocess.run([TOOL, "rewrite", self.home], **options).returncode

    def put(self, content):
        self.file.parent.mkdir(parents=True, exist_ok=True)
        self.file.write_bytes(content)

    def test_every_key_goes_through_both_flavours(self):
        state = full_state(1.5)
        self.assertEqual(len(state), 61)
        for flavour in (plistlib.FMT_XML, plistlib.FMT_BINARY):
            self.put(plistlib.dumps(state, fmt=flavour))
            self.assertEqual(self.rewrite(), 0)
            self.assertEqual(plistlib.loads(self.file.read_bytes()), state)
        self.assertEqual(stat.S_IMODE(self.file.stat().st_mode), 0o600)

    def test_a_kill_at_any_moment_leaves_a_whole_state(self):
        wholes = {data(1.0), data(2.0)}
        for _ in range(KILLS):
            writer = subprocess.Popen([TOOL, "alternate", self.home], stdout=subprocess.PIPE)
            writer.stdout.readline()
            time.sleep(random.random() * 0.02)
            writer.kill()
            writer.communicate()
            state = plistlib.loads(self.file.read_bytes())
            self.assertEqual(len(state), 59 + 2)
            self.assertIn(state["reg[0]"], wholes)
            self.assertEqual(state["reg[0]"], state["mem[20]"])
        self.put(plistlib.dumps({}))
        self.assertEqual(self.rewrite(), 0)
        self.assertEqual([path.name for path in self.file.parent.iterdir()], [self.file.name])

    def test_two_programs_at_once_leave_a_whole_state(self):
        writers = [subprocess.Popen([TOOL, "alternate", self.home], stdout=subprocess.DEVNULL)
                   for _ in range(2)]
        time.sleep(0.3)
        for _ in range(200):
            state = plistlib.loads(self.file.read_bytes())
            self.assertEqual(state["reg[0]"], state["mem[20]"])
        for writer in writers:
            writer.kill()
            writer.wait()

    def test_a_write_that_fails_leaves_the_file_as_it_was(self):
        before = plistlib.dumps(full_state(2.5))
        self.put(before)

        def allow_small_files_only():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (1000, 1000))

        self.assertEqual(self.rewrite(preexec_fn=allow_small_files_only), 1)
        self.assertEqual(self.file.read_bytes(), before)
        self.assertEqual(len(list(self.file.parent.iterdir())), 1)


if __name__ == "__main__":
    unittest.main()
