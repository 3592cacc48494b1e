"""The window managers to try the program under, what each needs to run by itself, and what of the
program's behaviour under it is accepted."""
import dataclasses

SECOND_WINDOW = "Event Tester"  # its title


@dataclasses.dataclass(frozen=True)
class Manager:
    name: str
    commands: tuple  # the window manager first, then what starts once it is there
    files: dict = dataclasses.field(default_factory=dict)  # in HOME
    switch: tuple = ("alt", "Tab")  # the key that is held, and the key that chooses the window


@dataclasses.dataclass(frozen=True)
class Accepted:
    manager: str
    column: str
    fault: str  # a regular expression
    reason: str


I3 = f"""# i3 config file (v4)
font pango:monospace 8
bindsym Mod1+Tab focus next
for_window [title="{SECOND_WINDOW}"] floating enable
"""
SXHKD = """
alt + Tab
    bspc node -f next.local.window
"""

MANAGERS = (
    Manager("kwin", (["kwin_x11"],)),
    Manager("mutter", (["mutter", "--x11"],)),
    Manager("xfwm4", (["xfwm4"],)),
    Manager("marco", (["marco"],)),
    Manager("icewm", (["icewm"],)),
    Manager("fluxbox", (["fluxbox"],)),
    Manager("i3", (["i3"],), {".config/i3/config": I3}),
    Manager("openbox", (["openbox"],)),
    Manager("metacity", (["metacity"],)),
    Manager("awesome", (["awesome"],), switch=("super", "Tab")),
    Manager("bspwm", (["bspwm"], ["bspc", "rule", "-a", "*:*", "state=floating"], ["sxhkd"]),
            {".config/bspwm/bspwmrc": "", ".config/sxhkd/sxhkdrc": SXHKD}),
    Manager("picom", (["openbox"], ["picom", "--shadow"])),
)

ACCEPTED = (
    Accepted("marco", "start", r"saved place: \(213, 78\)",
             "moves the whole top level onto the screen"),
    Accepted("marco", "restarts", r"(top|bottom) (left|right): \((363|-210), (0|-293)\)",
             "moves the whole top level onto the screen"),
    Accepted("marco", "restarts", r"top (left|right): not nearer than \(0, 198\)",
             "lets no window's upper edge above the screen"),
    Accepted("marco", "drawers", r"(top|bottom) (left|right): \(-?\d+, -?\d+\) after \w+",
             "moves the whole top level onto the screen"),
    Accepted("icewm", "drawers", r"(top|bottom) (left|right): \(-?\d+, -?\d+\) after \w+",
             "refuses moves by the program that put some of the top level off the screen"),
    Accepted("bspwm", "drawers", r"(top|bottom) (left|right): \(-?\d+, -?\d+\) after \w+",
             "puts its border where the window asks to be, which so counts as moved"),
    Accepted("picom", "start", "(middle|saved place): shade 70 px beside it",
             "draws its shadow around the top level and not around what is seen of it"),
)
