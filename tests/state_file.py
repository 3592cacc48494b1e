#!/usr/bin/python3
"""Looks at the saved state from outside: with another reader and writer of property lists, with a
program that is killed while it writes, and with disks that fail. Usage: state_file.py STATE_TOOL"""
import datetime
import errno
import os
import pathlib
import plistlib
import random
import stat
import struct
import subprocess
import sys
import tempfile
import time
import unittest

TOOL = sys.argv.pop()
NAME = "Library/Preferences/com.Quondel.TalvexV1.2.data.plist"
# The first of the calls that CALL names fails with ERROR.
FAULTS = rb"""
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <stdlib.h>
#include <string.h>
#include <sys/types.h>
static int fails(const char* name) {
    static int done;
    if (done || strcmp(name, getenv("CALL"))) return 0;
    errno = atoi(getenv("ERROR"));
    return done = 1;
}
#define FAIL(type, name, parameters, arguments) type name parameters { \
    return fails(#name) ? -1 : ((type (*) parameters)dlsym(RTLD_NEXT, #name)) arguments; }
FAIL(int, open, (const char* path, int flags, mode_t mode), (path, flags, mode))
FAIL(ssize_t, read, (int file, void* bytes, size_t size), (file, bytes, size))
FAIL(ssize_t, write, (int file, const void* bytes, size_t size), (file, bytes, size))
FAIL(int, fsync, (int file), (file))
FAIL(int, rename, (const char* from, const char* to), (from, to))
"""
KILLS = int(os.environ.get("TALVEX_KILLS", "100"))


def data(number):
    return struct.pack(">d", number)


def full_state(number):
    """A state with a value of its own under each key."""
    state = {f"reg[{index}]": data(number + index) for index in range(4)}
    state |= {f"mem[{index}]": data(-number - index / 8) for index in range(21)}
    state["lastX"] = data(float("nan"))
    integers = """outputDisplayMode inputDisplayMode inputState angleMode digits helpTag
        displayViewMode decimalMode digitGroupingSeparatorMode digitGroupingDigitsMode fontMode helpViewTextSize
        memoryDrawerState constantsDrawerState conversionDrawerState functionsDrawerState
        conversionTabSelection"""
    state |= {key: place - 3 for place, key in enumerate(integers.split())}
    booleans = """memoryWasOpen constantsWasOpen conversionWasOpen functionsWasOpen animateWindow
        alwaysOnTop useHPStylePowerAndLogs reduceCarpentryFractions unlockInputAndOutputModes displayIrrationals
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

    def expect_written(self, state, path=None):
        """Newer settings may stand beside it."""
        written = plistlib.loads((path or self.file).read_bytes())
        self.assertEqual(written, written | state)

    def put(self, content):
        self.file.parent.mkdir(parents=True, exist_ok=True)
        self.file.write_bytes(content)

    def state(self):
        return plistlib.loads(self.file.read_bytes())

    def expect_whole(self, numbers=(1.0, 2.0)):
        state = self.state()
        self.assertLessEqual(full_state(0).keys(), state.keys())
        self.assertIn(state["reg[0]"], map(data, numbers))
        self.assertEqual(state["reg[0]"], state["mem[20]"])

    def test_every_key_goes_through_both_flavours(self):
        for flavour in (plistlib.FMT_XML, plistlib.FMT_BINARY):
            self.put(plistlib.dumps(full_state(1.5), fmt=flavour))
            self.assertEqual(self.rewrite(), 0)
            self.expect_written(full_state(1.5))

    def test_what_is_unknown_costs_nothing_beside_it(self):
        nested = []
        for _ in range(200):
            nested = [nested, {"reg[0]": nested}]
        odd = [nested, plistlib.UID(7), datetime.datetime(2001, 1, 1), "\U0001F5A9\xe9"]
        more = [{"angle\0Mode": None}, *({"helpTag2": value, "a": value} for value in odd)]
        for content in [plistlib.dumps(full_state(1.5)).decode().encode("utf-16"),
                        *(plistlib.dumps(full_state(1.5) | each, fmt=plistlib.FMT_BINARY)
                          for each in more)]:
            self.put(content)
            self.assertEqual(self.rewrite(), 0)
            self.expect_written(full_state(1.5))

    def test_a_kill_at_any_moment_leaves_a_whole_state(self):
        for _ in range(KILLS):
            writer = subprocess.Popen([TOOL, "alternate", self.home], stdout=subprocess.PIPE)
            writer.stdout.readline()
            time.sleep(random.random() * 0.02)
            writer.kill()
            writer.communicate()
            self.expect_whole()
        long_ago = time.time() - 4000
        for path in self.file.parent.iterdir():
            os.utime(path, (long_ago, long_ago))
        (self.file.parent / f".{self.file.name}.999999.new").touch()  # of somebody who writes now
        self.assertEqual(self.rewrite(), 0)
        self.assertEqual(len(list(self.file.parent.iterdir())), 2)

    def test_two_programs_at_once_leave_a_whole_state(self):
        writers = [subprocess.Popen([TOOL, "alternate", self.home], stdout=subprocess.DEVNULL)
                   for _ in range(2)]
        time.sleep(0.3)
        for _ in range(200):
            self.expect_whole()
        for writer in writers:
            writer.kill()
            writer.wait()

    def test_an_error_of_the_disk_loses_nothing(self):
        kept = [self.file.name, self.file.name + ".other"]
        for call, error, status, names in [
                ("read", errno.EIO, 0, kept),
                ("open", errno.ENFILE, 0, kept),
                ("open", errno.EINTR, 0, kept[:1]),
                ("read", errno.EINTR, 0, kept[:1]),
                ("write", errno.EINTR, 0, kept[:1]),
                ("fsync", errno.EINTR, 0, kept[:1]),
                ("rename", errno.EINTR, 0, kept[:1]),
                ("write", errno.ENOSPC, 1, kept[:1]),
                ("fsync", errno.EIO, 1, kept[:1]),
                ("rename", errno.EROFS, 1, kept[:1])]:
            with self.subTest(call=call, error=errno.errorcode[error]):
                self.put(plistlib.dumps(full_state(2.5)))
                faults = {"LD_PRELOAD": SHIM, "CALL": call, "ERROR": str(error)}
                self.assertEqual(self.rewrite(env=os.environ | faults), status)
                files = sorted(self.file.parent.iterdir())
                self.assertEqual([path.name for path in files], names)
                self.expect_written(full_state(2.5), files[-1])
                for path in files:
                    path.unlink()

    def test_what_is_made_is_for_the_user_alone_and_links_stay(self):
        self.assertEqual(self.rewrite(), 0)
        for made, mode in ((self.file, 0o600), (self.file.parent, 0o700),
                           (self.file.parent.parent, 0o700)):
            self.assertEqual(stat.S_IMODE(made.stat().st_mode), mode)
        there = self.home / "Library/there"
        self.file.unlink()
        self.file.symlink_to("../there")
        self.assertEqual(self.rewrite(), 0)
        self.assertLessEqual(full_state(0).keys(), plistlib.loads(there.read_bytes()).keys())
        there.unlink()
        os.mkfifo(there)
        self.assertEqual(self.rewrite(), 1)
        self.assertTrue(there.is_fifo() and self.file.is_symlink())


with tempfile.TemporaryDirectory() as folder:
    SHIM = folder + "/faults.so"
    subprocess.run(["cc", "-x", "c", "-w", "-shared", "-fPIC", "-o", SHIM, "-"], input=FAULTS,
                   check=True)
    unittest.main()
