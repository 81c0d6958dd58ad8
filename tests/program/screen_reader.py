"""The trainer as a screen reader meets it: another process, on the accessibility bus.

To be run by screen_reader.sh, which gives it a display, a bus and a home folder.
"""

import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

REST_SECONDS = 3
FLIGHT_SECONDS = 6
ANSWER_SECONDS = 1
ANNOUNCE_SECONDS = 20
START_SECONDS = 60
faults = []
events = []


def expect(holds, what):
    if not holds:
        faults.append(what)


def hear(event):
    try:
        events.append((event.type, event.source.getRoleName(), event.source.name))
    except GLib.Error:
        pass  # what it came from is gone already, such as a menu


def listen(seconds):
    """Lets events come for a time, and returns those since they were last cleared."""
    GLib.timeout_add(int(seconds * 1000), pyatspi.Registry.stop)
    pyatspi.Registry.start()
    return list(events)


def window_of_trainer():
    end = time.time() + START_SECONDS
    while time.time() < end:
        for application in pyatspi.Registry.getDesktop(0):
            if application and application.name == "tarnel" and application.childCount:
                return application[0]
        time.sleep(0.2)
    sys.exit("the trainer is not on the bus")


def shows(node):
    return node.getState().contains(pyatspi.STATE_SHOWING)


def walk(node):
    yield node
    for child in node:
        if child:
            yield from walk(child)


def find(role, name, shown=True):
    for node in walk(window):
        if node.getRole() == role and node.name == name and (shows(node) or not shown):
            return node
    sys.exit(f"nothing is called {name}")


def press(role, name, shown=True):
    find(role, name, shown).queryAction().doAction(0)
    listen(ANSWER_SECONDS)


def announced_by_press(words, role, name, shown=True):
    """Whether a press has `words` announced, which may take a moment."""
    pressed = find(role, name, shown)
    events.clear()  # some may come before the press returns
    pressed.queryAction().doAction(0)
    end = time.time() + ANNOUNCE_SECONDS
    while time.time() < end:
        for kind, from_role, said in listen(ANSWER_SECONDS):
            if (from_role == "notification" and kind.startswith("object:state-changed:showing")
                    and words in said):
                return True
    return False


def is_on(node):
    return node.getState().contains(pyatspi.STATE_CHECKED)


def look_over_the_tree():
    usable = (pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_PUSH_BUTTON,
              pyatspi.ROLE_PAGE_TAB, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_DIAL)
    for node in walk(window):
        said = f"{node.getRoleName()} '{node.name}'"
        expect(node.getRole() not in (pyatspi.ROLE_FILLER, pyatspi.ROLE_UNKNOWN), said)
        if shows(node) and node.getRole() in usable:
            expect(node.name and node.queryAction().nActions, said + " can't be named and pressed")
        if shows(node) and node.getRole() == pyatspi.ROLE_DIAL:
            value = node.queryValue()
            expect(value.maximumValue > value.minimumValue, said + " has no range")
    hsi = find(pyatspi.ROLE_IMAGE, "HSI").description
    expect("course 000" in hsi and "FROM" in hsi, "the HSI says: " + hsi)


def expect_silence(when):
    events.clear()
    said = listen(REST_SECONDS)
    expect(not said, f"{when}: {said}")


def use_the_controls():
    press(pyatspi.ROLE_CHECK_BOX, "Hide aircraft")
    expect(is_on(find(pyatspi.ROLE_CHECK_BOX, "Hide aircraft")), "a box takes no press")
    press(pyatspi.ROLE_RADIO_BUTTON, "x 4")
    fast = find(pyatspi.ROLE_RADIO_BUTTON, "x 4")
    expect(is_on(fast) and fast.description.startswith("4 of 4"), "an option takes no press")
    press(pyatspi.ROLE_PAGE_TAB, "Wind")
    find(pyatspi.ROLE_RADIO_BUTTON, "Random")
    heading = find(pyatspi.ROLE_DIAL, "Autopilot heading").queryValue()
    heading.currentValue = 90
    listen(ANSWER_SECONDS)
    expect(heading.currentValue == 90, f"the heading dial stands at {heading.currentValue}")


def fly_and_read():
    hsi = find(pyatspi.ROLE_IMAGE, "HSI")
    before = hsi.description
    press(pyatspi.ROLE_PUSH_BUTTON, "Start SIM")
    events.clear()
    readings = [said for kind, _, said in listen(FLIGHT_SECONDS) if said == "HSI"]
    press(pyatspi.ROLE_PUSH_BUTTON, "Stop SIM")
    expect(1 <= len(readings) <= FLIGHT_SECONDS + 1, f"{len(readings)} readings of the HSI in flight")
    expect(hsi.description != before, "the HSI says the same after a flight")
    listen(REST_SECONDS)


def answer_a_question():
    press(pyatspi.ROLE_MENU_ITEM, "HSI Holding", shown=False)
    expect(announced_by_press("Holding", pyatspi.ROLE_PUSH_BUTTON, "Next"),
           "a question is not announced")
    expect(announced_by_press("Entry: ", pyatspi.ROLE_RADIO_BUTTON, "Entry: Direct"),
           "a verdict is not announced")
    listen(REST_SECONDS)
    expect_silence("beside an open question")


pyatspi.Registry.registerEventListener(hear, "object", "window", "focus")
trainer = subprocess.Popen(sys.argv[1:])
try:
    window = window_of_trainer()
    listen(REST_SECONDS)
    look_over_the_tree()
    expect_silence("at rest")
    use_the_controls()
    fly_and_read()
    expect(announced_by_press("Welcome", pyatspi.ROLE_MENU_ITEM, "Introduction 1", shown=False),
           "a comment is not announced")
    listen(REST_SECONDS)
    expect_silence("while a comment's mark blinks")
    answer_a_question()
finally:
    trainer.terminate()
    trainer.wait()
for fault in faults:
    print(fault)
sys.exit(1 if faults else 0)
