"""A screen with a window manager, apart from all that runs on this machine."""
import contextlib
import ctypes
import os
import pathlib
import signal
import subprocess
import tempfile
import time
from unittest import mock

from desktop import has_window_manager, running, virtual_screen, wait_until, xdotool

PR_SET_CHILD_SUBREAPER = 36


@contextlib.contextmanager
def no_child_left():
    """Ends, too, what the programs started and left behind."""
    ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)
    children = pathlib.Path(f"/proc/self/task/{os.getpid()}/children")
    try:
        yield
    finally:
        while left := children.read_text().split():
            for child in map(int, left):
                os.kill(child, signal.SIGKILL)
                os.waitpid(child, 0)


def environment(folder):
    """All that the programs know of the desktop they are started from: nothing."""
    kept = {name: value for name, value in os.environ.items()
            if not name.startswith(("XDG_", "QT_", "DBUS_", "GTK_", "KDE_", "KWIN_"))}
    runtime = pathlib.Path(folder, "runtime")
    runtime.mkdir(mode=0o700)
    return kept | {"HOME": str(folder), "XDG_RUNTIME_DIR": str(runtime), "LC_ALL": "C.UTF-8",
                   "GSETTINGS_BACKEND": "memory"}


@contextlib.contextmanager
def session_bus():
    command = ["dbus-daemon", "--session", "--nofork", "--print-address"]
    with running(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True) as bus:
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        yield
    bus.stdout.close()


@contextlib.contextmanager
def session(manager, display_name=None):
    """A screen with the window manager, a bus and a home of its own."""
    with contextlib.ExitStack() as stack:
        folder = pathlib.Path(stack.enter_context(tempfile.TemporaryDirectory()))
        stack.enter_context(no_child_left())
        stack.enter_context(mock.patch.dict(os.environ, environment(folder), clear=True))
        for name, text in manager.files.items():
            path = folder / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
            path.chmod(0o755)
        stack.enter_context(virtual_screen("1280x1024x24", display_name))
        stack.enter_context(session_bus())
        log = stack.enter_context(open(folder / "log", "w+b"))
        for command in manager.commands:
            stack.enter_context(running(command, stdout=log, stderr=log))
            try:
                wait_until(has_window_manager, command[0])
            except AssertionError as error:
                error.add_note((folder / "log").read_text()[-500:])
                raise
        # At the first key the server has the keyboard read anew, and all grabs are made again.
        xdotool("key", "Shift_L")
        time.sleep(0.5)
        yield
