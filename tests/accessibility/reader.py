"""The game as a screen reader has it: what is on the screen, by role and name, what is told, and the actions. It
knows nothing of the game's rules."""

import re
import time

import pyatspi
from gi.repository import Atspi, GLib

WAIT = 20  # seconds until something that must come counts as missing


class Missing(AssertionError):
    pass


def settle(seconds=0.05):
    """Lets the events of the bus arrive."""
    context = GLib.MainContext.default()
    end = time.monotonic() + seconds
    while True:
        while context.pending():
            context.iteration(False)
        if time.monotonic() >= end:
            return
        time.sleep(0.01)


def wait_for(what, describe, seconds=WAIT, pause=0.15):
    end = time.monotonic() + seconds
    while True:
        settle(pause)
        try:
            found = what()
        except GLib.Error:
            found = None  # the screen has changed meanwhile
        if found:
            return found
        if time.monotonic() > end:
            raise Missing(f'not there after {seconds} s: {describe}')


class Node:
    """One control. Everything is asked for anew: nothing is remembered that may have changed."""

    def __init__(self, accessible):
        self.accessible = accessible

    @property
    def name(self):
        return self.accessible.get_name() or ''

    @property
    def role(self):
        return self.accessible.get_role_name()

    @property
    def is_titlebar(self):
        """The bus has no number for it, only the word."""
        return self.accessible.get_localized_role_name() == 'title bar'

    def states(self):
        return set(self.accessible.get_state_set().get_states())

    def has(self, state):
        return state in self.states()

    @property
    def enabled(self):
        return self.has(Atspi.StateType.ENABLED)

    def children(self):
        for index in range(self.accessible.get_child_count()):
            child = self.accessible.get_child_at_index(index)
            if child is not None:
                yield Node(child)

    def walk(self):
        """The control and all that is shown in it."""
        yield self
        for child in self.children():
            if Atspi.StateType.SHOWING in child.states():
                yield from child.walk()

    def actions(self):
        action = self.accessible.get_action_iface()
        if action is None:
            return []
        return [Atspi.Action.get_action_name(action, index) for index in range(Atspi.Action.get_n_actions(action))]

    def press(self):
        """Presses it, and returns the seconds until the game has answered that it will."""
        names = self.actions()
        kind = next((name for name in ('Press', 'press', 'Toggle', 'toggle') if name in names), None)
        if kind is None:
            raise Missing(f'no way to press "{self.name}" ({self.role}): {names}')
        begun = time.monotonic()
        Atspi.Action.do_action(self.accessible.get_action_iface(), names.index(kind))
        taken = time.monotonic() - begun
        settle()
        return taken

    def write(self, text):
        box = self.accessible.get_editable_text_iface()
        if box is None:
            raise Missing(f'"{self.name}" takes no text')
        Atspi.EditableText.set_text_contents(box, text)
        settle()

    def text(self):
        return Atspi.Text.get_text(self.accessible.get_text_iface(), 0, -1)

    def focus(self):
        Atspi.Component.grab_focus(self.accessible.get_component_iface())
        settle()

    def __str__(self):
        return f'{self.role} "{self.name}"'


class Reader:
    """The whole game, and all that it has told since the last `heard`."""

    def __init__(self, application):
        self.application = application
        self.told = []
        pyatspi.Registry.registerEventListener(self._shown, 'object:state-changed:showing')

    @classmethod
    def find(cls, name):
        def look():
            desktop = pyatspi.Registry.getDesktop(0)
            for index in range(desktop.get_child_count()):
                child = desktop.get_child_at_index(index)
                if child is not None and child.get_name() == name and child.get_child_count() > 0:
                    return child
            return None

        application = wait_for(look, name)
        application.set_cache_mask(Atspi.Cache.NONE)
        return cls(Node(application))

    def _shown(self, event):
        if event.detail1 and event.source.get_role() == Atspi.Role.NOTIFICATION:
            self.told.append(event.source.get_name())

    def heard(self, pattern):
        """Waits for a sentence, and forgets it and what came before."""

        def look():
            for index, sentence in enumerate(self.told):
                if re.search(pattern, sentence):
                    del self.told[: index + 1]
                    return sentence
            return None

        return wait_for(look, f'the sentence /{pattern}/, told: {self.told}')

    def everything(self):
        for window in self.application.children():
            if Atspi.StateType.SHOWING in window.states():
                yield from window.walk()

    def look(self, pattern, role=None):
        """The control of this name if it is shown, else nothing."""
        for node in self.everything():
            if re.fullmatch(pattern, node.name) and role in (None, node.role):
                return node
        return None

    def get(self, pattern, role=None, seconds=WAIT):
        return wait_for(lambda: self.look(pattern, role), f'{role or "control"} /{pattern}/', seconds)

    def usable(self, pattern, seconds=WAIT):
        """The control once it can be pressed."""

        def look():
            node = self.look(pattern)
            return node if node is not None and node.enabled and node.actions() else None

        return wait_for(look, f'usable /{pattern}/', seconds)

    def press(self, pattern):
        return self.usable(pattern).press()
