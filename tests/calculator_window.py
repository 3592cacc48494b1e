"""The program, and its window as the X server has it. The body is what is seen of the window without
its drawers; whatever else the window is made of is the program's business."""
import os
import plistlib
import subprocess
import time
from typing import NamedTuple

from Xlib import X, display, error
from Xlib.ext.shape import SK

from desktop import save_state, state_file, wait_until, xdotool

TITLE_BAR = 22
WHOLE_BODY = (404, 211 + TITLE_BAR)


class Rect(NamedTuple):
    x: int
    y: int
    width: int
    height: int

    def moved(self, x, y):
        return Rect(self.x + x, self.y + y, self.width, self.height)

    def within(self, width, height):
        left, top = max(self.x, 0), max(self.y, 0)
        return Rect(left, top, min(self.x + self.width, width) - left,
                    min(self.y + self.height, height) - top)

    def __str__(self):
        return f"{self.width}x{self.height} at ({self.x}, {self.y})"


def around(rects):
    x, y = min(rect.x for rect in rects), min(rect.y for rect in rects)
    return Rect(x, y, max(rect.x + rect.width for rect in rects) - x,
                max(rect.y + rect.height for rect in rects) - y)


def rest_of(question, seconds=0.4):
    """The answer when it has not changed for a while."""
    answers = [(question(), time.monotonic())]

    def rests():
        answer, now = question(), time.monotonic()
        if answer != answers[-1][0]:
            answers.append((answer, now))
        return now - answers[-1][1] > seconds

    wait_until(rests, "the screen to come to rest")
    return answers[-1][0]


class Desk:
    """The screen, as a client of its own sees it."""

    def __init__(self, program, switch):
        self.program = program
        self.switch = switch  # the key of the window manager that is held, and the one that chooses
        self.display = display.Display()
        self.root = self.display.screen().root

    def _property(self, name):
        answer = self.root.get_full_property(self.display.intern_atom(name), X.AnyPropertyType)
        return list(answer.value) if answer else []

    def free_area(self):
        geometry = self.root.get_geometry()
        area = self._property("_NET_WORKAREA")[:4] or (0, 0, geometry.width, geometry.height)
        return Rect(*area)

    def window(self, title):
        """The managed window that is seen, by its title."""
        for number in self._property("_NET_CLIENT_LIST"):
            window = self.display.create_resource_object("window", number)
            try:
                is_seen = window.get_attributes().map_state == X.IsViewable
                if is_seen and window.get_wm_name() == title:
                    return window
            except error.XError:
                pass  # it has gone
        return None

    def has_keyboard(self, window):
        return getattr(self.display.get_input_focus().focus, "id", None) == window.id

    def pixels(self, points):
        return [self.root.get_image(x, y, 1, 1, X.ZPixmap, 0xFFFFFF).data for x, y in points]


class Calculator:
    def __init__(self, desk, state=None):
        self.desk = desk
        save_state(os.environ["HOME"], {"helpPanelVisible": False} | (state or {}))
        self.start()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.end()

    def start(self):
        self.process = subprocess.Popen([self.desk.program], stderr=subprocess.DEVNULL)
        self.window = wait_until(lambda: self.desk.window("Talvex"), "the window to come")
        wait_until(self.pieces, "the window to be seen")

    def end(self):
        """What it has saved."""
        self.process.terminate()
        self.process.wait(10)
        wait_until(lambda: self.desk.window("Talvex") is None, "the window to go")
        return plistlib.loads(state_file(os.environ["HOME"]).read_bytes())

    def size_of_window(self):
        place = self.window.get_geometry()
        return place.width, place.height

    def pieces(self):
        """What is left of the parts of the window in all the frames around it."""
        try:
            rects = [Rect(each.x, each.y, each.width, each.height) for each in
                     self.window.shape_get_rectangles(SK.Bounding).rectangles]
            window = self.window
            while window.id != self.desk.root.id:
                frame = window.get_geometry()
                x, y = frame.x + frame.border_width, frame.y + frame.border_width
                rects = [rect.within(frame.width, frame.height).moved(x, y) for rect in rects]
                window = window.query_tree().parent
            return [rect for rect in rects if rect.width > 0 and rect.height > 0]
        except error.XError:
            return []

    def seen(self):
        """All that is seen, drawers too; nothing at (0, 0) if that is nothing."""
        return around(self.pieces() or [Rect(0, 0, 0, 0)])

    def corner(self):
        """The body's upper left corner: the title bar is as wide as the body, and drawers at its
        sides begin below it."""
        bars = [piece for piece in self.pieces() if piece.width == WHOLE_BODY[0]]
        return min((bar.y, bar.x) for bar in bars)[::-1] if bars else None

    def place(self):
        """The corner once it rests."""
        return rest_of(self.corner) or self.seen()[:2]

    def has_keyboard(self):
        return self.desk.has_keyboard(self.window)

    def click(self, x, y):
        """At a place within the body."""
        left, top = self.corner() or self.seen()[:2]
        xdotool("mousemove", left + x, top + y, "click", 1)

    def move(self, x, y):
        """Brings the body there as far as the window manager lets it, and says where it then is."""
        place = self.place()
        origin = self.desk.root.translate_coords(self.window, 0, 0)
        asked = [origin.x, origin.y]
        for _ in range(3):
            if place == (x, y):
                return place
            asked = [asked[0] + x - place[0], asked[1] + y - place[1]]
            xdotool("windowmove", self.window.id, *asked)
            place = self.place()
        grip = (place[0] + WHOLE_BODY[0] // 2, place[1] + TITLE_BAR // 2)
        xdotool("mousemove", *grip, "mousedown", 1)
        for step in (1, 2, 3, 4):  # as a hand does it, for the window manager to take hold
            xdotool("sleep", 0.05, "mousemove", grip[0] + (x - place[0]) * step // 4,
                    grip[1] + (y - place[1]) * step // 4)
        xdotool("sleep", 0.05, "mouseup", 1)
        return self.place()
