"""Opens the demo company with the command of the menu entry, goes through its screens by their keys, and looks at each
as a screen reader does: whatever takes the focus must have a name."""

import configparser
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

ENTRY = "/usr/share/applications/example.borlano.borfte.desktop"
APPLICATION = "example.borlano.borfte"
# From the register: the head of a new invoice, the invoice, its lines and back to it, the register, a document of it.
KEYS = ["F2", "Escape", "F3", "Escape", "Escape", "Return"]


def window():
    """The program's window on the screen; None while there is none."""
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(i)
        if application and application.get_name() == APPLICATION and application.get_child_count():
            return application.get_child_at_index(0)
    return None


def title(frame):
    """What the window is called now, not what the library remembers of it."""
    frame.clear_cache()
    return frame.get_name()


def wait_for(what, condition):
    """The first true value of `condition`; ends the test when there is none for half a minute."""
    for _ in range(150):
        value = condition()
        if value:
            return value
        time.sleep(0.2)
    sys.exit(f"{what}: waited in vain")


def on_screen(widget):
    """The widgets in view that take the focus; the cells of a table are its own matter."""
    states = widget.get_state_set()
    if not states.contains(Atspi.StateType.SHOWING):
        return
    if states.contains(Atspi.StateType.FOCUSABLE) and states.contains(Atspi.StateType.ENABLED):
        yield widget
    if widget.get_role() in (Atspi.Role.TABLE, Atspi.Role.LIST, Atspi.Role.TREE, Atspi.Role.COMBO_BOX):
        return
    for i in range(widget.get_child_count()):
        child = widget.get_child_at_index(i)
        if child:
            yield from on_screen(child)


def audit(frame):
    """How many widgets of the screen take the focus, and which of them have no name."""
    widgets = list(on_screen(frame))
    nameless = [w.get_role_name() + " " + (w.get_accessible_id() or "") for w in widgets if not w.get_name()]
    print(f"{frame.get_name()}: {len(widgets)} take the focus, {len(nameless)} of them without a name {nameless}")
    return len(widgets) > 3 and not nameless


def main():
    entry = configparser.ConfigParser(interpolation=None)
    entry.read(ENTRY)
    subprocess.run(entry["Desktop Action dimostrazione"]["Exec"].split(), check=True)
    frame = wait_for("the window", window)
    wait_for("the register", lambda: len(list(on_screen(frame))) > 3)
    # No window manager gives it the keys here.
    subprocess.run(["xdotool", "search", "--onlyvisible", "--class", APPLICATION, "windowfocus", "--sync"], check=True)
    good = audit(frame)
    for key in KEYS:
        before = title(frame)
        subprocess.run(["xdotool", "key", key], check=True)
        wait_for(f"{key} on {before}", lambda: title(frame) != before)
        time.sleep(0.5)
        good = audit(frame) and good
    sys.exit(0 if good else 1)


main()
