"""Operates the running editor, with the demonstration record open, as a screen reader does."""
import subprocess
import time

import pyatspi
from gi.repository import GLib

FOCUSABLE = {
    pyatspi.ROLE_COMBO_BOX: "Record phase to edit|Caldera style|Eruption Type|Side thrown down|Lava flow",
    pyatspi.ROLE_CHECK_BOX: "Caldera|Directed|Explosive bursts",
    pyatspi.ROLE_RADIO_BUTTON: "Large|Normal|Small",
    pyatspi.ROLE_PUSH_BUTTON: "Delete|Add|Stratigraphic File|Close|Save|Reset|Open|Help",
    pyatspi.ROLE_TEXT: "Fault magnitude|Vent location|Strength|Wind|Mass Flux|Number of bursts|Scarp top|"
            "Scarp base|Fault dip|Erosion duration|Flow duration|Straticgraphic File|Flow length|"
            "3D Position|Growth|Crater Size|Vent Position|Speed|Mid Radius|Deposit Angle|"
            "Left Angle|Right Angle",
}


def soon(wanted, get):
    for _ in range(200):
        GLib.MainContext.default().iteration(False)
        if get() == wanted:
            return
        time.sleep(0.05)
    raise AssertionError(f"{get()!r} instead of {wanted!r}")


def press(keys, wanted, get):
    """Sends keys again if nothing happens: on a busy machine they get lost while a window opens."""
    for tries_left in reversed(range(4)):
        subprocess.run(["xdotool", "key", "--delay", "50", *keys.split()], check=True)
        try:
            return soon(wanted, get)
        except AssertionError:
            if not tries_left:
                raise


def own_focus(node):
    return (node.getState().contains(pyatspi.STATE_FOCUSABLE)
            and node.parent.getRole() not in (pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_LIST))


def states(state, *names):
    return [found[name].getState().contains(state) for name in names]


def text(control):
    box = control[1] if control.getRole() == pyatspi.ROLE_COMBO_BOX else control
    return box.queryText().getText(0, -1)


def do_action(control, name):
    actions = control.queryAction()
    actions.doAction([actions.getName(i) for i in range(actions.nActions)].index(name))


def choose_type(entry):
    types = found["Eruption Type"]
    do_action(types, "ShowMenu")
    do_action(next(each for each in types[0] if each.name == entry), "Toggle")
    soon(entry, lambda: text(types))


soon(1, lambda: len(list(pyatspi.Registry.getDesktop(0))))
found = {each.name: each
         for each in pyatspi.findAllDescendants(pyatspi.Registry.getDesktop(0)[0], own_focus)}
soon({name: role for role, names in FOCUSABLE.items() for name in names.split("|")},
     lambda: {name: each.getRole() for name, each in found.items()})
heard = []
pyatspi.Registry.registerEventListener(
    lambda event: heard.append((event.source.getRole(), event.source.name)),
    "object:property-change:accessible-name", "window:activate")
said = []
pyatspi.Registry.registerEventListener(
    lambda event: said.append((event.source.name, event.any_data)), "object:text-changed:insert")
strength = found["Strength"]
soon("Edit the eruption strength", lambda: strength.description)
soon(["8.50", "Faulting"], lambda: [text(found[name]) for name in ("Vent location", "Eruption Type")])
soon([True, False, False], lambda: states(pyatspi.STATE_CHECKED, "Normal", "Small", "Caldera"))
soon([False, False], lambda: states(pyatspi.STATE_ENABLED, "Strength", "Save"))

# Dictated: the range lowers the number, and the last text announced is that of the box.
found["Fault magnitude"].queryEditableText().setTextContents("99")
soon(("Fault magnitude", "20"), lambda: said and said[-1])
soon([True], lambda: states(pyatspi.STATE_ENABLED, "Save"))
choose_type("Plinian")
soon([True, True], lambda: states(pyatspi.STATE_ENABLED, "Strength", "Save"))
do_action(found["Caldera"], "Toggle")
soon([True], lambda: states(pyatspi.STATE_CHECKED, "Caldera"))
do_action(strength, "SetFocus")
soon([True], lambda: states(pyatspi.STATE_FOCUSED, "Strength"))
subprocess.run(["xdotool", "type", "--delay", "20", "1.25"], check=True)
soon("1.25", lambda: text(strength))
choose_type("Fumarolic/Phreatic")
subprocess.run(["xdotool", "key", "ctrl+s"], check=True)
for news in (pyatspi.ROLE_TEXT, "Burst Frequency"), \
        (pyatspi.ROLE_LABEL, "Phase 1 Maximum Fumarolic strength exceeded."), \
        (pyatspi.ROLE_ALERT, "TephrexEdit"):
    soon(True, lambda: news in heard)
press("Return", [True], lambda: states(pyatspi.STATE_FOCUSED, "Strength"))

# The help is a document in a separate window; the text found is on the caret's line.
app = pyatspi.Registry.getDesktop(0)[0]
press("F1", [(pyatspi.ROLE_FRAME, "Edit Tephrex Record"), (pyatspi.ROLE_FRAME, "TephrexEdit Help")],
      lambda: sorted((each.getRole(), each.name) for each in app))
page = pyatspi.findDescendant(app, lambda each: each.getRole() == pyatspi.ROLE_DOCUMENT_FRAME)
soon(True, lambda: page.getState().contains(pyatspi.STATE_FOCUSED))
press("ctrl+f k m Return", True, lambda: "km" in page.queryText().getTextAtOffset(
    page.queryText().caretOffset, pyatspi.TEXT_BOUNDARY_LINE_START)[0])
press("Escape", True, lambda: page.getState().contains(pyatspi.STATE_FOCUSED))
subprocess.run(["xdotool", "key", "ctrl+w"], check=True)
