"""Reads the simulated-plotter window through AT-SPI, as a screen reader does:
every control the keyboard reaches has a name in words, the log is a read-only text
that reports its new lines, the progress bar is named after its stage and has a
value, the status line and a result banner (an alert) announce themselves, and Tab
goes from the Update button through the banner's offers to the log.

    window_check.py PROGRAM LANGUAGE

Runs PROGRAM once in the locale of LANGUAGE and updates its plotter, set to restart
in a loop, so that the red banner with its "Repair…" offer appears."""

import os
import pathlib
import subprocess
import sys
import time
import xml.etree.ElementTree as ET

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

# The other languages' words are the C ones as their translation files give them.
LOCALES = {"de": "de_DE.UTF-8", "fr": "fr_FR.UTF-8", "es": "es_ES.UTF-8",
           "ja": "ja_JP.UTF-8", "zh_CN": "zh_CN.UTF-8"}
TRANSLATIONS = pathlib.Path(__file__).resolve().parents[3] / "translations"

problems = []
events = []


def words_in(language):
    if language == "C":
        return EXPECTED["C"]
    ts_file = TRANSLATIONS / f"teskal-firmware-updater_{language}.ts"
    table = {}
    for message in ET.parse(ts_file).getroot().iter("message"):
        table.setdefault(message.findtext("source"), message.findtext("translation"))

    def say(source):
        if isinstance(source, list):
            return [say(each) for each in source]
        if source.startswith("Starts: "):
            return table["Starts: %1"].replace("%1", source[len("Starts: "):])
        return table[source]

    words = {key: say(value) for key, value in EXPECTED["C"].items() if key != "locale"}
    words["locale"] = LOCALES[language]
    return words


def check(condition, problem):
    if not condition:
        problems.append(problem)


def wait_for(find, seconds, what):
    """Polls `find` while the bus delivers events, until it returns something."""
    context = GLib.MainContext.default()
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        while context.iteration(False):
            pass
        found = find()
        if found:
            return found
        time.sleep(0.05)
    sys.exit(f"FAILED: {what} within {seconds} s; {problems}")


def has(accessible, state):
    return accessible.getState().contains(state)


def descendants(accessible, menus=False):
    for index in range(accessible.childCount):
        child = accessible.getChildAtIndex(index)
        if child is not None and (menus or child.getRoleName() != "menu bar"):
            yield child
            yield from descendants(child, menus)


def first(root, role, name=None, showing=True, menus=False):
    return next((accessible for accessible in descendants(root, menus)
                 if accessible.getRoleName() == role and name in (None, accessible.name)
                 and (not showing or has(accessible, pyatspi.STATE_SHOWING))), None)


def focused(root):
    return next((accessible for accessible in descendants(root)
                 if accessible.getRoleName() != "filler"
                 and has(accessible, pyatspi.STATE_FOCUSED)), None)


def check_names(window, when):
    for accessible in descendants(window):
        if has(accessible, pyatspi.STATE_FOCUSABLE) and has(accessible, pyatspi.STATE_SHOWING):
            check(any(character.isalpha() for character in accessible.name),
                  f"{when}: a {accessible.getRoleName()} is named {accessible.name!r}")


def check_log(window, words):
    log = first(window, "text", words["log"])
    if log is None:
        return check(False, f"no text named {words['log']!r}")
    check(has(log, pyatspi.STATE_READ_ONLY) and not has(log, pyatspi.STATE_EDITABLE),
          "the log is not read-only")
    text = log.queryText()
    content = text.getText(0, -1)
    check(words["headline"] in content, "the log's text does not hold the result")
    check(text.caretOffset == len(content) - len(content.split("\n")[-1]),
          "the caret is not at the start of the newest line")
    check(("object:text-changed:insert", log) in events, "new lines were not reported")


def update_until_the_banner(window, words):
    """Returns the banner and the progress bar's (name, value, maximum) while it showed."""
    first(window, "menu item", words["starts_in_a_loop"], False, True).queryAction().doAction(0)
    first(window, "push button", words["update"]).queryAction().doAction(0)
    progress = []

    def banner():
        bar = first(window, "progress bar")
        if bar is not None:
            value = bar.queryValue()
            progress.append((bar.name, value.currentValue, value.maximumValue))
        return first(window, "alert", words["headline"])

    return wait_for(banner, 180, "the result banner, an alert named after its headline"), progress


def tab_order(window, words):
    """The names the focus visits from the Update button until Tab brings it back."""
    update = first(window, "push button", words["update"])
    update.queryComponent().grabFocus()
    names = [wait_for(lambda: focused(window) == update and update, 10, "focus on Update").name]
    while len(names) <= len(words["tab_order"]):
        before = focused(window)
        pyatspi.Registry.generateKeyboardEvent(0xFF09, None, pyatspi.KEY_SYM)  # Tab
        after = wait_for(lambda: focused(window) not in (None, before) and focused(window), 10,
                         f"focus to leave {before.name!r}")
        if after == update:
            break
        names.append(after.name)
    return names


def main(program, language):
    words = words_in(language)
    # The accessibility bus is up before the program looks for it.
    desktop = pyatspi.Registry.getDesktop(0)
    desktop.childCount
    window_program = subprocess.Popen(
        [program], env=dict(os.environ, LANG=words["locale"], LC_ALL=words["locale"]))
    try:
        def window():
            apps = (desktop.getChildAtIndex(index) for index in range(desktop.childCount))
            return next((first(app, "frame") for app in apps
                         if app is not None and app.get_process_id() == window_program.pid), None)

        frame = wait_for(window, 60, "the window on the accessibility bus")
        update = wait_for(lambda: first(frame, "push button", words["update"]), 30, "Update")
        wait_for(lambda: has(update, pyatspi.STATE_ENABLED), 30, "a connected plotter")
        check_names(frame, "ready")
        status = first(frame, "label", words["connected"])
        pyatspi.Registry.registerEventListener(
            lambda event: events.append((event.type, event.source)),
            "object:state-changed:showing", "object:property-change:accessible-name",
            "object:text-changed:insert")

        banner, progress = update_until_the_banner(frame, words)
        wait_for(lambda: ("object:state-changed:showing", banner) in events, 30,
                 "the banner's announcement")
        check(("object:property-change:accessible-name", status) in events,
              "the status line announced no change")
        check(any(name in words["stages"] and 0 < value <= maximum
                  for name, value, maximum in progress), "no progress bar with a value was seen")
        check({name for name, _, _ in progress} <= set(words["stages"]),
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
