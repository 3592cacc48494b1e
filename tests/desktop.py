"""A virtual desktop for tests and benchmarks of the real program: an X server, a window manager,
real key and mouse events, the screen's pixels and the sound of its bell."""
import contextlib
import ctypes
import os
import pathlib
import plistlib
import subprocess
import tempfile
import time

BELL_NOTIFY = 8
USE_CORE_KEYBOARD = 0x100
Z_PIXMAP = 2


def wait_until(question, what, seconds=10.0, pause=0.02):
    """Asks until the answer is true, and returns it; fails with `what` was waited for."""
    end = time.monotonic() + seconds
    while True:
        answer = question()
        if answer:
            return answer
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(pause)


class XImage(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int),
                ("format", ctypes.c_int), ("data", ctypes.c_void_p), ("byte_order", ctypes.c_int),
                ("bitmap_unit", ctypes.c_int), ("bitmap_bit_order", ctypes.c_int),
                ("bitmap_pad", ctypes.c_int), ("depth", ctypes.c_int),
                ("bytes_per_line", ctypes.c_int)]


class Screen:
    """A connection of our own to the X server."""

    def __init__(self, name):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x11.XGetImage.restype = ctypes.c_void_p
        self.x11.XGetPixel.restype = ctypes.c_ulong
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(name.encode()))
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display))
        numbers = [ctypes.c_int() for _ in range(5)]
        self.x11.XkbQueryExtension(self.display, *[ctypes.byref(number) for number in numbers])
        mask = ctypes.c_ulong(1 << BELL_NOTIFY)
        self.x11.XkbSelectEvents(self.display, USE_CORE_KEYBOARD, mask, mask)

    def bells(self):
        """How often the bell has rung since the last question."""
        count = 0
        self.x11.XSync(self.display, 0)
        event = (ctypes.c_char * 256)()
        while self.x11.XPending(self.display):
            self.x11.XNextEvent(self.display, event)
            count += 1
        return count

    def take_clipboard(self):
        """Whoever asks for what is in it waits for an answer: we are like a program that hangs."""
        self.x11.XCreateSimpleWindow.restype = ctypes.c_ulong
        window = self.x11.XCreateSimpleWindow(self.display, self.root, 0, 0, 1, 1, 0, 0, 0)
        clipboard = self.x11.XInternAtom(self.display, b"CLIPBOARD", 0)
        self.x11.XSetSelectionOwner(self.display, clipboard, ctypes.c_ulong(window), 0)
        self.x11.XSync(self.display, 0)

    def close(self):
        self.x11.XCloseDisplay(self.display)

    def pixels(self, x, y, width, height):
        """Four bytes for each, row by row."""
        address = ctypes.c_void_p(self.x11.XGetImage(
            self.display, self.root, x, y, width, height, ctypes.c_ulong(0xFFFFFF), Z_PIXMAP))
        image = ctypes.cast(address, ctypes.POINTER(XImage)).contents
        data = ctypes.string_at(image.data, image.bytes_per_line * image.height)
        self.x11.XDestroyImage(address)
        return data

    def pixel(self, x, y):
        return int.from_bytes(self.pixels(x, y, 1, 1), "little") & 0xFFFFFF


@contextlib.contextmanager
def running(command, **options):
    """A program that is ended when the block ends."""
    process = subprocess.Popen(command, **options)
    try:
        yield process
    finally:
        process.terminate()
        try:
            process.wait(10)
        except subprocess.TimeoutExpired:
            process.kill()
            process.wait()


@contextlib.contextmanager
def virtual_screen(size, name=None):
    """An X server with the display of that name or a free one; DISPLAY leads to it."""
    reader, writer = os.pipe()
    server = ["Xvfb", *([name] if name else []), "-displayfd", str(writer), "-screen", "0", size,
              "-nolisten", "tcp", "-noreset"]
    with running(server, pass_fds=[writer], stderr=subprocess.DEVNULL):
        os.close(writer)
        with os.fdopen(reader) as numbers:
            os.environ["DISPLAY"] = ":" + numbers.readline().strip()
        yield


def has_window_manager():
    """Windows that are mapped before it is ready may stay unmanaged."""
    answer = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True)
    return b"window id" in answer.stdout


def state_file(home):
    return pathlib.Path(home, "Library/Preferences/com.Quondel.TalvexV1.2.data.plist")


def save_state(home, state):
    state_file(home).parent.mkdir(parents=True, exist_ok=True)
    state_file(home).write_bytes(plistlib.dumps(state))


@contextlib.contextmanager
def desktop(size="1280x1024x24"):
    """An X server with a window manager; DISPLAY leads to it. HOME is a folder with a saved state
    that says no more than that the help was closed and digits are copied without groups."""
    with tempfile.TemporaryDirectory() as home, virtual_screen(size):
        os.environ["HOME"] = home
        save_state(home, {"helpPanelVisible": False, "includeDigitGroupingWhenCopying": False})
        with running(["openbox"], stderr=subprocess.DEVNULL):
            wait_until(has_window_manager, "the window manager")
            yield Screen(os.environ["DISPLAY"])


def xdotool(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True)
