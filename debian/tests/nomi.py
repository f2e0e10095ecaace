"""Starts the command of the menu entry as a new user does, has the demo company made, opens it, goes through its screens
by their keys, and looks at each as a screen reader does: whatever takes the focus must have a name."""

import configparser
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

ENTRY = "/usr/share/applications/example.borlano.borfte.desktop"
APPLICATION = "example.borlano.borfte"
LAUNCHER = "Borlano - Aziende"
REGISTER = "Gestione fatture emesse"
# From the register: the head of a new invoice, the invoice, its lines and back to it, the register, a document of it.
KEYS = ["F2", "Escape", "F3", "Escape", "Escape", "Return"]


def window(name):
    """The program's window of that name on the screen; None while there is none."""
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(i)
        if not application or application.get_name() != APPLICATION:
            continue
        for j in range(application.get_child_count()):
            frame = application.get_child_at_index(j)
            if frame and name in frame.get_name():
                return frame
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


def press(key):
    subprocess.run(["xdotool", "key", key], check=True)


def enter(name):
    """The window of that name, once it has something to use; it gets the keys, which no window manager gives it here."""
    frame = wait_for(name, lambda: window(name))
    wait_for(f"what {name} shows", lambda: len(list(on_screen(frame))) > 3)
    subprocess.run(["xdotool", "search", "--onlyvisible", "--name", name, "windowfocus", "--sync"], check=True)
    return frame


def main():
    entry = configparser.ConfigParser(interpolation=None)
    entry.read(ENTRY)
    subprocess.Popen(entry["Desktop Entry"]["Exec"].split())
    launcher = enter(LAUNCHER)
    good = audit(launcher)
    press("Return")
    wait_for("the demo company", lambda: any(w.get_name() == "Aziende" for w in on_screen(launcher)))
    press("Return")
    frame = enter(REGISTER)
    good = audit(frame) and good
    for key in KEYS:
        before = title(frame)
        press(key)
        wait_for(f"{key} on {before}", lambda: title(frame) != before)
        time.sleep(0.5)
        good = audit(frame) and good
    sys.exit(0 if good else 1)


main()
