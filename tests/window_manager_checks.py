"""What the program has to do under every window manager. Each check runs the program anew and
answers with its faults, none if all is well."""
import struct
import subprocess
import time

from calculator_window import TITLE_BAR, WHOLE_BODY, Calculator, Rect, rest_of
from desktop import running, wait_until, xdotool
from window_manager_table import SECOND_WINDOW

SUM = ("1", "2", "Return", "3", "plus")
KEEPS_SIZE = 20  # changes of layout
ROUNDS_OF_SWITCHING = 3  # each leaves its sum in the stack
RESTARTS = 3
SHADE = 70  # nothing of the window is seen so far from the body


def number(state, key):
    return struct.unpack(">d", state[key])[0]


def places(area):
    right, bottom = area.x + area.width - WHOLE_BODY[0], area.y + area.height - WHOLE_BODY[1]
    return {"middle": ((area.x + right) // 2, (area.y + bottom) // 2), "top left": area[:2],
            "top right": (right, area.y), "bottom left": (area.x, bottom),
            "bottom right": (right, bottom)}


def way(place, from_place):
    return place[0] - from_place[0], place[1] - from_place[1]


def is_near(step):
    return max(map(abs, step)) <= 1


def happens(question, seconds=3.0):
    try:
        return wait_until(question, "it", seconds)
    except AssertionError:
        return False


def check_start(desk):
    area = desk.free_area()
    saved = (area.x + 150, area.y + 120)
    bottom_of_screen = desk.root.get_geometry().height
    frame = (saved[0], bottom_of_screen - saved[1] - WHOLE_BODY[1], *WHOLE_BODY)
    faults = []
    for name, place, state in (
            ("middle", places(area)["middle"], {}),
            ("saved place", saved, {"calculatorFrame": struct.pack(">4f", *frame)})):
        points = [(place[0] - SHADE, place[1] + SHADE), (place[0] + SHADE, place[1] - SHADE)]
        before = rest_of(lambda: desk.pixels(points))
        with Calculator(desk, state) as calculator:
            if not happens(calculator.has_keyboard):
                faults.append(f"{name}: no keyboard")
            step = way(calculator.place(), place)
            if not is_near(step):
                faults.append(f"{name}: {step}")
            elif desk.pixels(points) != before:
                faults.append(f"{name}: shade {SHADE} px beside it")
    return faults


# By the keys of the saved state.
LAYOUT_BUTTONS = {"showStatusLine": lambda width: width - 37,
                  "displayViewMode": lambda width: width - 18,
                  "keyPadHidden": lambda width: 53}


def size_of(layout):
    rows = 60 * layout["displayViewMode"]
    if layout["keyPadHidden"]:
        return 274, TITLE_BAR + 45 + rows
    return WHOLE_BODY[0], WHOLE_BODY[1] + rows + 17 * layout["showStatusLine"]


def check_layouts(desk):
    layout = dict.fromkeys(LAYOUT_BUTTONS, False)
    with Calculator(desk) as calculator:
        corner, canvas = calculator.place(), calculator.size_of_window()
        for step in range(KEEPS_SIZE):
            name = list(layout)[step % 3]
            calculator.click(LAYOUT_BUTTONS[name](size_of(layout)[0]), 11)
            layout[name] = not layout[name]
            wanted = Rect(*corner, *size_of(layout))
            happens(lambda: calculator.seen() == wanted, 1.5)
            seen, window = rest_of(calculator.seen, 0.15), calculator.size_of_window()
            if seen != wanted:
                return [f"change {step + 1}, {name}: {seen}, not {wanted}"]
            if window != (wanted[2:] if canvas == WHOLE_BODY else canvas):
                return [f"change {step + 1}, {name}: the window is {window[0]}x{window[1]}"]
        state = calculator.end()
    kept = {name: bool(state[name]) for name in layout}
    return [] if kept == layout else [f"saved as {kept}"]


def switch(desk, window, holds):
    """Presses the window manager's own keys; `holds` lets go when the other window has the focus."""
    held, chooses = desk.switch
    xdotool("keydown", held, "key", chooses)
    if holds:
        happens(lambda: desk.has_keyboard(window), 0.5)
    xdotool("keyup", held)
    return happens(lambda: desk.has_keyboard(window))


# How long the other window has the keyboard, and whether the key is held until the focus has come. A
# toolkit may wait half a second before it believes that the focus has gone.
SWITCHING = {"at once": (0.0, False), "after a rest": (0.7, False), "held": (0.7, True)}


def check_switching(desk):
    faults = []
    for name, (rest, holds) in SWITCHING.items():
        with Calculator(desk) as calculator, running(["xev", "-geometry", "200x150+30+40"],
                                                    stdout=subprocess.DEVNULL):
            other = wait_until(lambda: desk.window(SECOND_WINDOW), "the second window")
            happens(lambda: desk.has_keyboard(other), 1.0)
            xdotool("windowactivate", calculator.window.id)
            happens(calculator.has_keyboard)
            for _ in range(ROUNDS_OF_SWITCHING):
                for window, fault in ((other, "stays"), (calculator.window, "doesn't come back")):
                    time.sleep(rest)
                    if not switch(desk, window, holds):
                        faults.append(f"{name}: the focus {fault}")
                xdotool("key", *SUM)
            state = calculator.end()
        stack = [number(state, f"reg[{index}]") for index in range(ROUNDS_OF_SWITCHING)]
        stored = [key for key in state if key.startswith("mem[") and number(state, key) != 0]
        faults += [f"{name}: the stack is {stack}"] if set(stack) != {15} else []
        faults += [f"{name}: {stored} were stored"] if stored else []
    return faults


def check_restarts(desk):
    faults = []
    with Calculator(desk) as calculator:
        for name, place in places(desk.free_area()).items():
            left = calculator.move(*place)
            if not is_near(way(left, place)):
                faults.append(f"{name}: not nearer than {way(left, place)}")
            for _ in range(RESTARTS):
                calculator.end()
                calculator.start()
                happens(lambda: calculator.corner() == left, 1.0)
                calculator.place()
            step = way(calculator.place(), left)
            if not is_near(step):
                faults.append(f"{name}: {step}")
    return faults


DRAWER_KEYS = {"constants": 55, "units": 153, "functions": 251, "memory": 349}  # from the left


def check_drawers(desk):
    """Opens and closes each drawer, and then all together; where the screen has no room the window
    may make some, but has to come back."""
    clicks = [name for name in DRAWER_KEYS for _ in range(2)] + [*DRAWER_KEYS, *DRAWER_KEYS]
    faults = []
    for where in places(desk.free_area()):
        with Calculator(desk) as calculator:
            corner = calculator.move(*places(desk.free_area())[where])
            are_open = set()
            for name in clicks:
                seen = calculator.seen()
                calculator.click(DRAWER_KEYS[name], WHOLE_BODY[1] - 11)
                are_open ^= {name}
                if not happens(lambda: calculator.seen()[2:] != seen[2:]):
                    faults.append(f"{where}: {name} doesn't move")
                    break
                rest_of(calculator.seen, 0.25)
                step = way(calculator.corner() or (0, 0), corner)
                if not is_near(step) and (where == "middle" or not are_open):
                    faults.append(f"{where}: {step} after {name}")
                    break
    return faults


def check_open_drawers(desk):
    """Drawers that are open at the end are at the next start, and the window stands still meanwhile."""
    with Calculator(desk) as calculator:
        corner, faults = calculator.place(), []
        for what in ("opened", "restarted", "closed"):
            if what == "restarted":
                calculator.end()
                calculator.start()
                time.sleep(0.5)
            else:
                for key in DRAWER_KEYS.values():
                    calculator.click(key, WHOLE_BODY[1] - 11)
                    rest_of(calculator.seen)
            step = way(calculator.place(), corner)
            faults += [] if is_near(step) else [f"{what}: {step}"]
            is_body = calculator.seen()[2:] == WHOLE_BODY
            faults += [f"{what}: {calculator.seen()}"] if is_body != (what == "closed") else []
    return faults


def drag(from_place, to_place):
    """As a hand does it, for the window manager to take hold and to offer what it has there."""
    xdotool("mousemove", *from_place, "mousedown", 1)
    for step in (1, 2, 3, 4):
        xdotool("sleep", 0.1, "mousemove", *(start + (end - start) * step // 4
                                             for start, end in zip(from_place, to_place)))
    xdotool("sleep", 0.4, "mouseup", 1)


def check_tiling(desk):
    """Tiled to a half of the screen by keys or at an edge, the window keeps its size."""
    faults, area = [], desk.free_area()
    with Calculator(desk) as calculator:
        middle = calculator.move(*places(area)["middle"])
        for drawers in ((), DRAWER_KEYS):
            for name in drawers:
                calculator.click(DRAWER_KEYS[name], WHOLE_BODY[1] - 11)
                rest_of(calculator.seen)
            size = calculator.seen()[2:]
            for how in ("super+Left", "super+Right", "super+Up", "left edge", "upper edge"):
                grip = tuple(map(sum, zip(calculator.place(), (WHOLE_BODY[0] // 2, TITLE_BAR // 2))))
                edge = {"left edge": (area.x, grip[1]), "upper edge": (grip[0], area.y)}.get(how)
                drag(grip, edge) if edge else xdotool("key", how)
                if (seen := rest_of(calculator.seen))[2:] != size:
                    faults.append(f"{len(drawers)} drawers, {how}: {seen}")
                if not is_near(way(calculator.move(*middle), middle)):
                    faults.append(f"{len(drawers)} drawers, {how}: doesn't come back")
    return faults
