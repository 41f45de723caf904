"""What a screen reader gets to know: conducted like a host, each answer one line of JSON.

tree      every object of the programs on the desktop: role, name, states, names of its
          labels, attributes of its text
events    what has been told since the last question: kind, detail, text, name of the object
"""
import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

KINDS = ("object:text-caret-moved", "object:text-changed", "object:text-selection-changed",
         "object:state-changed:focused", "object:property-change:accessible-name",
         "object:property-change:accessible-value")
STATES = {getattr(Atspi.StateType, name.upper()): name
          for name in ("focused", "focusable", "showing", "checked", "editable")}
told = []


def hear(event):
    text = event.any_data if isinstance(event.any_data, str) else ""
    told.append([event.type, event.detail1, text, event.source.get_name()])


def runs(text):
    """The attributes of the text, run by run, each as a dictionary with its range."""
    found, at, length = [], 0, min(text.get_character_count(), 200)
    while at < length:
        attributes, start, end = text.get_attribute_run(at, False)
        found.append(dict(attributes, range=[start, end]))
        at = max(end, at + 1)
    return found


def labels(item):
    """The names of what labels it."""
    return [relation.get_target(number).get_name() for relation in item.get_relation_set()
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
            for number in range(relation.get_n_targets())]


def states_of(item):
    """Qt tells nothing until it has found the bus: what had the focus before may only seem to."""
    if item.get_state_set().contains(Atspi.StateType.FOCUSED):
        item.clear_cache()
    states = item.get_state_set()
    return [name for state, name in STATES.items() if states.contains(state)]


def describe(item, window):
    text, role = item.get_text_iface(), item.get_role()
    counts, chosen = role == Atspi.Role.SPIN_BUTTON, role == Atspi.Role.MENU_ITEM
    return {"window": window, "role": item.get_role_name(), "name": item.get_name(),
            "states": states_of(item), "labels": labels(item),
            "runs": runs(text) if text else [],
            "value": Atspi.Value.get_current_value(item) if counts else None,
            "keys": Atspi.Action.get_key_binding(item, 0) if chosen else None}


def walk(item, window):
    """It and what it holds, but for the rows of lists, of which Qt says too much."""
    yield describe(item, window)
    if item.get_role() == Atspi.Role.LIST:
        return
    for number in range(item.get_child_count()):
        if child := item.get_child_at_index(number):
            yield from walk(child, window)


def tree():
    desktop = Atspi.get_desktop(0)
    programs = [desktop.get_child_at_index(i) for i in range(desktop.get_child_count())]
    windows = [program.get_child_at_index(i) for program in programs
               for i in range(program.get_child_count())]
    return [item for window in windows for item in walk(window, window.get_name())]


def whole_tree():
    """Begins again when something goes meanwhile."""
    while True:
        try:
            return tree()
        except GLib.Error:
            pass


def obey(*_):
    line = sys.stdin.readline()
    if not line:
        Atspi.event_quit()
        return False
    answer = whole_tree() if line.strip() == "tree" else told[:]
    if line.strip() == "events":
        told.clear()
    print(json.dumps(answer), flush=True)
    return True


Atspi.init()
listener = Atspi.EventListener.new(hear)
for kind in KINDS:
    listener.register(kind)
GLib.io_add_watch(0, GLib.IO_IN | GLib.IO_HUP, obey)
Atspi.event_main()
