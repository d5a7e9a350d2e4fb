#!/usr/bin/python3
"""Checks every screen over the accessibility bus, using only the keyboard."""

import contextlib
import os
import re
import subprocess
import time
import unittest

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

TAB, RETURN, ESCAPE = 0xFF09, 0xFF0D, 0xFF1B  # X11 key symbols
ENTRIES_READ = 3
PATIENCE, PAUSE = 10, 0.02  # seconds
ANSWER_IN = 5000  # milliseconds

DASHBOARD, TIMETABLE = "Durvela 2", ("Timetable", "Durvela")
INFORMATION = ["What is Durvela", "Calculation of Durvela", "Products", "Sitara Desk",
               "Yama Ghantak", "Gulika Kaal"]
OK = ["push button: OK"]
PREFERENCES = ("Preferences", "Preferences")

# What to press in each window, starting from the dashboard, and the title of the next one; the role
# of the last window and its tab stops.
SCREENS = [
    ([], "frame",
     ["push button: What is Durvela", "push button: Timetable", "push button: About us",
      "push button: Calculation of Durvela", "push button: Products", "push button: Sitara Desk",
      "push button: Yama Ghantak", "push button: Gulika Kaal", "push button: Preferences"]),
    *[([(title, title)], "dialog", OK) for title in INFORMATION],
    ([("About us", "About Durvela")], "frame", OK + ["push button: System Info..."]),
    ([("About us", "About Durvela"), ("System Info...", "Durvela")], "alert", OK),
    ([PREFERENCES], "dialog",
     ["combo box: Clock", "push button: Zone…", "push button: Defaults", "push button: Close"]),
    ([PREFERENCES, ("Zone…", "Zone")], "dialog",
     ["text: Search", "list: Zones", "push button: The place's zone", "push button: Cancel",
      "push button: Choose"]),
    ([TIMETABLE], "frame",
     ["spin button: Starting Date", "spin button: Ending Date", "spin button: Time",
      "push button: Edit Place", "push button: Save as Default", "push button: < Quick View",
      "push button: Generate Report >", "push button: Minimise", "push button: Close",
      "scroll bar: Rows of the page"]),
    ([TIMETABLE, ("Edit Place", "Select City and Press Enter/Double Click")], "dialog",
     ["text: City", "list: Places", "combo box: Country"]),
    ([TIMETABLE, ("Generate Report >", "Durvela - Print Preview")], "frame",
     ["combo box: Page", "push button: >>", "push button: Print this page",
      "push button: Print All", "push button: »", "push button: <<"]),
]


@contextlib.contextmanager
def running_program():
    with subprocess.Popen([os.environ["DURVELA"]]) as program:
        try:
            yield
        finally:
            program.kill()


def until(condition):
    """The first true result of the condition, or its last one after a while."""
    end = time.monotonic() + PATIENCE
    while True:
        found = None
        with contextlib.suppress(GLib.Error):  # the object does not exist yet or any more
            found = condition()
        if found or time.monotonic() > end:
            return found
        time.sleep(PAUSE)


def press(symbol):
    Atspi.generate_keyboard_event(symbol, None, Atspi.KeySynthType.SYM)


def type_text(text):
    Atspi.generate_keyboard_event(0, text, Atspi.KeySynthType.STRING)


def children(node):
    """All children, but only the first of a list."""
    count = node.get_child_count()
    if node.get_role_name() == "list":
        count = min(count, ENTRIES_READ)
    return [child for i in range(count) if (child := node.get_child_at_index(i))]


def has(node, state):
    return node.get_state_set().contains(state)


def caret(node):
    return Atspi.Text.get_caret_offset(node) if "Text" in node.get_interfaces() else None


def is_stop(node):
    """Excludes list entries, which claim the focus without their list, and message texts."""
    focusable = has(node, Atspi.StateType.FOCUSABLE)
    return focusable and node.get_role_name() not in ("list item", "label")


def name_of(node):
    """The name of its label, if it has one."""
    labels = [relation.get_target(0) for relation in node.get_relation_set()
              if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]
    return (labels or [node])[0].get_name()


def find_window(title, role=None):
    """The newest window of that title."""
    windows = [window for program in children(Atspi.get_desktop(0)) for window in children(program)]
    fitting = [window for window in windows
               if window.get_name() == title and role in (None, window.get_role_name())
               and has(window, Atspi.StateType.SHOWING)]
    return fitting[-1] if fitting else None


def read(node):
    """The node and its visible descendants."""
    if not has(node, Atspi.StateType.SHOWING):
        return []
    return [node] + [each for child in children(node) for each in read(child)]


class Screen:
    """A window and its keyboard focus."""

    def __init__(self, title, role=None, stops=None):
        """Waits for the focus and, if given, for that many stops."""
        self.window = until(lambda: find_window(title, role))
        assert self.window, f"{title} does not show"
        until(lambda: self.read() and stops in (None, len(self.stops)))

    def read(self):
        self.nodes = read(self.window)
        self.stops = [node for node in self.nodes if is_stop(node)]
        return self.focused()

    def focused(self):
        return next((node for node in self.stops if has(node, Atspi.StateType.FOCUSED)), None)

    def tab(self):
        """Moves to the next stop, through all parts of a picker."""
        before = self.focused()
        part = caret(before)
        press(TAB)
        moved = until(lambda: self.focused() not in (None, before) or caret(before) != part)
        if moved and self.focused() == before:
            self.tab()

    def ring(self):
        """All stops in order, starting with the first."""
        ring = []
        while (stop := f"{self.focused().get_role_name()}: {name_of(self.focused())}") not in ring:
            ring.append(stop)
            if len(self.stops) > 1:
                self.tab()
        return ring

    def open(self, name):
        until(lambda: name_of(self.focused()) == name or self.tab())
        press(RETURN)


class Screens(unittest.TestCase):
    def test_name_their_controls_and_cycle_the_focus(self):
        for way, role, ring in SCREENS:
            title = DASHBOARD
            with self.subTest(way=way), running_program():
                for control, following in way:
                    Screen(title).open(control)
                    title = following
                screen = Screen(title, role, len(ring))
                self.assertEqual(screen.ring(), ring)
                for node in screen.nodes:
                    self.assertTrue(node.get_name() or node.get_role_name() == "panel", node)
                if way:
                    press(ESCAPE)
                    self.assertTrue(
                        until(lambda: not has(screen.window, Atspi.StateType.SHOWING)))

    def test_accept_typed_dates_and_explain_invalid_ones(self):
        with running_program():
            Screen(DASHBOARD).open("Timetable")
            screen = Screen("Durvela")
            start, end, clock = [stop for stop in screen.stops
                                 if stop.get_role_name() == "spin button"]
            self.assertEqual(Atspi.Text.get_text(clock, 0, -1), "12:00 PM")
            type_text("1/12/2026")
            press(TAB)
            typed = lambda: Atspi.Text.get_text(start, 0, -1)
            self.assertTrue(until(lambda: typed() == "1/दिसंबर/2026"), typed())
            type_text("soon")
            press(RETURN)
            self.assertTrue(until(lambda: end.get_description().startswith("Not a date")))
            self.assertIn("Not a date", [node.get_name() for node in read(screen.window)])

    def test_describe_the_page_of_a_report(self):
        """In words, one line per day, although the page is a picture."""
        with running_program():
            Screen(DASHBOARD).open("Timetable")
            Screen("Durvela").open("Generate Report >")
            page = next(node for node in Screen("Durvela - Print Preview").nodes
                        if node.get_name() == "The page")
            today = rf"{time.localtime().tm_mday}-\S+( \d\d:\d\d:\d\d){{9}}"
            self.assertTrue(until(lambda: re.search(today, page.get_description())))

    def test_open_by_an_action(self):
        """Does not wait for the window, which stays open."""
        with running_program():
            stops = {stop.get_name(): stop for stop in Screen(DASHBOARD).stops}
            self.assertTrue(Atspi.Action.do_action(stops["Gulika Kaal"], 0))
            self.assertTrue(until(lambda: find_window("Gulika Kaal")))


if __name__ == "__main__":
    Atspi.set_timeout(ANSWER_IN, ANSWER_IN)
    unittest.main()
