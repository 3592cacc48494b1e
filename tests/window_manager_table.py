"""The window managers to try the program under, and what each needs to run by itself."""
import dataclasses

SECOND_WINDOW = "Event Tester"  # its title


@dataclasses.dataclass(frozen=True)
class Manager:
    name: str
    commands: tuple  # the window manager first, then what starts once it is there
    files: dict = dataclasses.field(default_factory=dict)  # in HOME
    switch: tuple = ("alt", "Tab")  # the key that is held, and the key that chooses the window


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
