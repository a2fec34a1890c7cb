#!/usr/bin/python3
"""Uses the running editor as a screen reader does: through its accessible objects alone.

Finds every control by its name, opens a file, chooses a district, reads the state of a
row, adds a variation, and goes through a long list. Expects the editor to be started on
the same accessibility bus.

usage: walk.py FILE LONG_FILE
"""
import subprocess
import sys
import time

import pyatspi

WAIT_SECONDS = 20
PAUSE_SECONDS = 0.1

CONTROLS = {
    pyatspi.ROLE_PUSH_BUTTON: [
        "Open File", "Save", "Undo", "Process File", "Complete Variation Check", "Add", "Delete", "Add !",
        "Add Date%", "Save Selected Variations", "Ok", "Cancel", "Apply Selected", "Apply All", "Edit", "Clear"],
    pyatspi.ROLE_CHECK_BOX: [
        "Variation", "Spelling Mistake", "Only valid in year", "Only if Volume matches"],
    pyatspi.ROLE_TEXT: ["Variation text"],
    pyatspi.ROLE_TREE: ["Districts", "Variations", "Change File", "Comments", "Comment types"],
}


def wait_for(find, what):
    """What find() returns as soon as that is neither None nor False."""
    end = time.monotonic() + WAIT_SECONDS
    while time.monotonic() < end:
        try:
            found = find()
        except (LookupError, RuntimeError):
            found = None  # it went away while it was looked at
        if found is not None and found is not False:
            return found
        time.sleep(PAUSE_SECONDS)
    sys.exit(f"walk: there is no {what}")


def require(condition, what):
    """Ends the walk unless the condition holds."""
    if not condition:
        sys.exit(f"walk: {what}")


def windows(name):
    """The editor's windows with this title."""
    desktop = pyatspi.Registry.getDesktop(0)
    return [window for app in desktop if app and app.name == "quexal-editor"
            for window in app if window and window.name == name]


def window_of(name):
    """The window with this title, as soon as there is one."""
    return wait_for(lambda: next(iter(windows(name)), None), f"window {name}")


def inner(parent, accept, depth=12):
    """The first object inside that is accepted; rows of lists are not looked at."""
    for child in parent:
        if child is None:
            continue
        if accept(child):
            return child
        if depth > 0 and child.getRole() not in (pyatspi.ROLE_TREE, pyatspi.ROLE_LIST):
            found = inner(child, accept, depth - 1)
            if found:
                return found
    return None


def control(parent, role, name):
    """A control by its role and name."""
    return wait_for(lambda: inner(parent, lambda x: x.getRole() == role and x.name == name), f"{role} {name}")


def press(parent, name):
    """Presses a button, without waiting for what it opens."""
    button = control(parent, pyatspi.ROLE_PUSH_BUTTON, name)
    require(button.getState().contains(pyatspi.STATE_ENABLED), f"the button {name} is disabled")
    actions = button.queryAction()
    names = [actions.getName(i) for i in range(actions.nActions)]
    actions.doAction(next(i for i, n in enumerate(names) if n.lower() == "press"))


def cells(tree):
    """The rows of a list as lists of cells."""
    table = tree.queryTable()
    return [[table.getAccessibleAt(row, column) for column in range(table.nColumns)] for row in range(table.nRows)]


def row_named(tree, text):
    """The number of the row whose first cell says this."""
    table = tree.queryTable()
    for row in range(table.nRows):
        cell = table.getAccessibleAt(row, 0)
        if cell and cell.name.startswith(text):  # none: the list has just been filled anew
            return row
    return None


def choose(tree, text):
    """Selects the row with this text."""
    row = wait_for(lambda: row_named(tree, text), f"row {text}")
    require(tree.queryTable().addRowSelection(row), f"the row {text} cannot be selected")
    return row


def open_file(form, path):
    """Opens a data file by the dialogue, and puts reports away."""
    press(form, "Open File")
    dialogue = window_of("Open")
    name = control(dialogue, pyatspi.ROLE_TEXT, "File name:")
    name.queryEditableText().setTextContents(path)
    press(dialogue, "Open")
    wait_for(lambda: not windows("Open"), "end of the dialogue")
    report = wait_for(lambda: windows("Read File Results") or control(form, pyatspi.ROLE_TREE, "Districts"),
                      "report")
    if isinstance(report, list):
        press(report[0], "Close")
        wait_for(lambda: not windows("Read File Results"), "end of the report")


def find(form):
    """Finds a variation in the whole file, hears how many there are, and goes there."""
    subprocess.run(["xdotool", "key", "ctrl+f"], check=True)  # it has no button
    box = control(form, pyatspi.ROLE_TEXT, "Find in the whole file")
    wait_for(lambda: box.getState().contains(pyatspi.STATE_FOCUSED), "focus in the find box")
    box.queryEditableText().setTextContents("elm")
    wait_for(lambda: box.description == "1 variation", "number of what was found")
    found = control(form, pyatspi.ROLE_TREE, "Found")
    row = [cell.name for cell in cells(found)[0]]
    require(row == ["Variation", "Beta", "1", "Elm"], f"the row that was found says {row}")
    control(form, pyatspi.ROLE_CHECK_BOX, "Whole spelling")
    press(form, "Close Find")
    wait_for(lambda: not box.getState().contains(pyatspi.STATE_SHOWING), "end of the find bar")
    print(f"walk: what is found says \"{' '.join(row)}\"")


def main():
    """The walk."""
    path, long_path = sys.argv[1:]
    form = window_of("Quexal Editor")
    for role, names in CONTROLS.items():
        for name in names:
            control(form, role, name)
    print("walk: every control is there")

    open_file(form, path)
    districts = control(form, pyatspi.ROLE_TREE, "Districts")
    choose(districts, "Alpha")
    variations = control(form, pyatspi.ROLE_TREE, "Variations")
    wait_for(lambda: variations.queryTable().nRows == 2, "list of variations")
    state = cells(variations)[row_named(variations, "! bad")][0].name
    require("invalid" in state.lower(), f"the row's state is not in its text: {state}")
    print(f"walk: a row says \"{state}\"")

    press(form, "Add")
    text = control(form, pyatspi.ROLE_TEXT, "Variation text")
    wait_for(lambda: text.getState().contains(pyatspi.STATE_FOCUSED), "focus in the edit box")
    text.queryEditableText().setTextContents("Birch")
    press(form, "Ok")
    wait_for(lambda: row_named(variations, "Birch") is not None, "variation that was added")
    print("walk: a variation was added")
    find(form)

    press(form, "Open File")
    question = wait_for(lambda: next((w for w in windows("Quexal Editor") if w != form), None), "question")
    press(question, "Yes")
    name = control(window_of("Open"), pyatspi.ROLE_TEXT, "File name:")
    name.queryEditableText().setTextContents(long_path)
    press(window_of("Open"), "Open")
    table = wait_for(lambda: districts.queryTable().nRows > 99_999 and districts.queryTable(), "long list")
    count = table.nRows
    for row in list(range(0, count, count // 200)) + [count - 1]:
        require(table.getAccessibleAt(row, 0).name.startswith("District"), f"row {row} has no name")
    require(table.addRowSelection(count - 1), "the last row cannot be selected")
    wait_for(lambda: table.isRowSelected(count - 1), "selection at the end")
    print(f"walk: a list of {count} rows was walked")


if __name__ == "__main__":
    main()
