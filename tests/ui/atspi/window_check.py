"""Reads the simulated-plotter window through AT-SPI, the interface screen readers
use, and checks what a blind owner meets: every control the keyboard reaches has a
name in words, the log is a read-only text that reports its new lines, the progress
bar is named after its stage and has a value, the status line announces its changes, a result banner is an
alert that announces itself, and Tab goes from the Update button through the
banner's offers to the log.

    window_check.py PROGRAM LANGUAGE

Runs PROGRAM once, in the locale of LANGUAGE, makes its plotter restart in a loop
and updates it, so that the red banner with its "Repair…" offer appears."""

import os
import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

# What the window says, by language: the checks take every word from here.
EXPECTED = {
    "C": {
        "locale": "C",
        "connected": "Device connected",
        "update": "Update Firmware",
        "starts_in_a_loop": "Starts: boot-loop",
        "stages": ["Writing firmware", "Checking that the machine starts"],
        "headline": "Firmware written, but the machine does not start: it restarts in a loop.",
        "log": "Log",
        "tab_order": ["Update Firmware", "Repair…", "Dismiss", "Log", "Copy Log"],
    },
}

problems = []
events = []


def check(condition, problem):
    if not condition:
        problems.append(problem)
    return condition


def pump(seconds):
    """Lets the bus deliver events for `seconds`."""
    context = GLib.MainContext.default()
    end = time.monotonic() + seconds
    while True:
        while context.iteration(False):
            pass
        if time.monotonic() >= end:
            return
        time.sleep(0.02)


def wait_for(find, seconds, what):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        found = find()
        if found:
            return found
        pump(0.05)
    sys.exit(f"FAILED: {what} within {seconds} s; {problems}")


def has(accessible, state):
    return accessible.getState().contains(state)


def descendants(accessible, menus=False):
    for index in range(accessible.childCount):
        child = accessible.getChildAtIndex(index)
        if child is None or (child.getRoleName() == "menu bar" and not menus):
            continue
        yield child
        yield from descendants(child, menus)


def first(root, role, name=None, showing=True, menus=False):
    for accessible in descendants(root, menus):
        if (accessible.getRoleName() == role and (name is None or accessible.name == name)
                and (not showing or has(accessible, pyatspi.STATE_SHOWING))):
            return accessible
    return None


def focused(root):
    for accessible in descendants(root):
        if accessible.getRoleName() != "filler" and has(accessible, pyatspi.STATE_FOCUSED):
            return accessible
    return None


def in_words(name):
    return any(character.isalpha() for character in name)


def check_names(window, when):
    for accessible in descendants(window):
        if has(accessible, pyatspi.STATE_FOCUSABLE) and has(accessible, pyatspi.STATE_SHOWING):
            check(in_words(accessible.name),
                  f"{when}: a {accessible.getRoleName()} has no name in words "
                  f"({accessible.name!r})")


def check_log(window, words):
    log = first(window, "text", words["log"])
    if not check(log is not None, f"no text named {words['log']!r}"):
        return
    check(has(log, pyatspi.STATE_READ_ONLY) and not has(log, pyatspi.STATE_EDITABLE),
          "the log is not read-only")
    text = log.queryText()
    content = text.getText(0, -1)
    check(words["headline"] in content, "the log's text does not hold the result")
    check(text.caretOffset == len(content) - len(content.split("\n")[-1]),
          "the caret is not at the start of the newest line")
    check(("object:text-changed:insert", log) in events, "new lines were not reported")


def update_until_the_banner(window, words):
    """Presses Update Firmware with the plotter set to restart in a loop; returns the
    progress bar's (name, value, maximum) as seen while it showed."""
    menu_item = first(window, "menu item", words["starts_in_a_loop"], showing=False, menus=True)
    menu_item.queryAction().doAction(0)
    first(window, "push button", words["update"]).queryAction().doAction(0)
    seen = []

    def banner():
        bar = first(window, "progress bar")
        if bar is not None:
            value = bar.queryValue()
            seen.append((bar.name, value.currentValue, value.maximumValue))
        headline = first(window, "label", words["headline"])
        return headline and headline.parent

    return wait_for(banner, 180, "the result banner's headline"), seen


def tab_order(window, words):
    """The names focus visits from the Update button, pressing Tab until it is back."""
    update = first(window, "push button", words["update"])
    update.queryComponent().grabFocus()
    wait_for(lambda: focused(window) == update, 10, "focus on the Update button")
    names = []
    for _ in range(len(words["tab_order"]) + 2):
        names.append(focused(window).name)
        before = focused(window)
        pyatspi.Registry.generateKeyboardEvent(0xFF09, None, pyatspi.KEY_SYM)  # Tab
        after = wait_for(lambda: focused(window) not in (None, before) and focused(window),
                         10, f"focus to move on from {before.name!r}")
        if after == update:
            break
    return names


def main(program, language):
    words = EXPECTED[language]
    # The accessibility bus is up before the program looks for it.
    desktop = pyatspi.Registry.getDesktop(0)
    desktop.childCount
    environment = dict(os.environ, LANG=words["locale"], LC_ALL=words["locale"])
    window_program = subprocess.Popen([program], env=environment)
    try:

        def window():
            for index in range(desktop.childCount):
                app = desktop.getChildAtIndex(index)
                if app is not None and app.get_process_id() == window_program.pid:
                    return first(app, "frame")
            return None

        frame = wait_for(window, 60, "the window on the accessibility bus")
        update = wait_for(lambda: first(frame, "push button", words["update"]), 30,
                          "the Update button")
        wait_for(lambda: has(update, pyatspi.STATE_ENABLED), 30, "a connected plotter")
        check_names(frame, "ready")
        status = first(frame, "label", words["connected"])

        pyatspi.Registry.registerEventListener(
            lambda event: events.append((event.type, event.source)),
            "object:state-changed:showing", "object:property-change:accessible-name",
            "object:text-changed:insert")
        banner, progress = update_until_the_banner(frame, words)
        pump(0.5)

        check(banner.getRoleName() == "alert", f"the banner is a {banner.getRoleName()}")
        check(banner.name == words["headline"], f"the banner is named {banner.name!r}")
        check(("object:state-changed:showing", banner) in events,
              "the banner's appearance was not announced")
        check(any(event == ("object:property-change:accessible-name", status)
                  for event in events), "the status line announced no change")
        check(any(name in words["stages"] and 0 < value <= maximum
                  for name, value, maximum in progress),
              f"no named progress with a value was seen: {sorted(set(progress))[:5]}")
        check(all(name in words["stages"] for name, _, _ in progress),
              f"the progress bar was named {sorted({name for name, _, _ in progress})}")
        check_names(frame, "banner")
        check_log(frame, words)
        order = tab_order(frame, words)
        check(order == words["tab_order"], f"Tab goes {order}")
    finally:
        window_program.terminate()
        try:
            window_program.wait(10)
        except subprocess.TimeoutExpired:
            window_program.kill()
    if problems:
        sys.exit("FAILED:\n  " + "\n  ".join(problems))
    print(f"{language}: names, roles, announcements and Tab order as expected")


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
