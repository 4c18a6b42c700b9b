"""What every screen owes to who does not see it, whatever the screen is."""

import subprocess

import pyatspi
from gi.repository import Atspi

from reader import Missing, Node, settle, wait_for

# Nothing that can be reached may be of a kind that says nothing.
NO_ROLES = {'filler', 'unknown', 'panel', 'invalid', 'redundant object'}
TEXTS = {'text', 'password text', 'entry'}
LONGEST_ROUND = 80  # stops of Tab on one screen


def faults_of(node):
    if node.has(Atspi.StateType.FOCUSABLE):
        if node.role in NO_ROLES - {'panel'}:  # a screen has the keys while nothing on it has
            yield f'{node} can be reached and is nothing'
        if not node.name.strip():
            yield f'{node} can be reached and has no name'
        yield from faults_of_value(node)
    elif node.role in ('label', 'title bar', 'frame') and not node.name.strip():
        yield f'{node} says nothing'


def faults_of_value(node):
    if node.role in TEXTS and node.accessible.get_text_iface() is None:
        yield f'{node} does not tell its text'
    if node.role == 'list' and node.enabled:
        items = list(node.children())
        for item in items:
            if not item.name.strip():
                yield f'{node} has an item without a name'
        if items and not any(item.has(Atspi.StateType.SELECTED) for item in items):
            yield f'{node} does not tell what is chosen'


class Checker:
    def __init__(self, reader):
        self.reader = reader
        self.faults = []
        self.focused = None
        self.rounds = set()
        self.screens = 0
        pyatspi.Registry.registerEventListener(self._focused, 'object:state-changed:focused')

    def _focused(self, event):
        if event.detail1:
            self.focused = Node(event.source)

    def look(self, screen, title, tab):
        """Everything on it, and if `tab` a whole round of Tab, which must be heard at each stop."""
        self.screens += 1
        nodes = list(self.reader.everything())
        found = [fault for node in nodes for fault in faults_of(node)]
        bars = [node.name for node in nodes if node.is_titlebar]
        if bars and bars != [title]:
            found.append(f'the title bar says {bars}')
        if tab and title not in self.rounds:
            self.rounds.add(title)  # the order of the controls is no matter of style
            found += self.tab_round()
        self.faults += [f'{screen}: {fault}' for fault in found]

    def tab_round(self):
        found = []
        stops = []
        while len(stops) < LONGEST_ROUND:
            self.focused = None
            key('Tab')
            try:
                stop = wait_for(lambda: self.focused, 'the focus', 2, 0.01)
            except Missing:
                return found + [f'Tab after {stops[-1:]} leads to nothing that is told']
            told = str(stop)
            if told in stops:
                break
            stops.append(told)
            if stop.role in NO_ROLES or not stop.name.strip():
                found.append(f'Tab stops at {told}')
        return found


def key(name):
    subprocess.run(['xdotool', 'key', '--delay', '0', name], check=True)
    settle(0.02)
