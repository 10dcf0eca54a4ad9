#!/usr/bin/python3
"""Prints what assistive tools are told of what the running program shows, one line each, and below it what it contains:

    role "name", labelled by "name", rows 2, columns "name" "name", focused, selected

Ends with 1 while no program is on the bus that tells of its window.
"""

import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi


def quoted(text):
    return f'"{text.strip()}"'


def labels(told):
    for relation in told.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            for target in range(relation.get_n_targets()):
                yield quoted(relation.get_target(target).get_name())


def sizes(told):
    table = told.get_table_iface()
    if table is not None and told.get_role() == Atspi.Role.TABLE:
        names = (quoted(table.get_column_description(column) or "") for column in range(table.get_n_columns()))
        yield f"rows {table.get_n_rows()}"
        yield "columns " + " ".join(names)


def line(told):
    words = [f"{told.get_role_name()} {quoted(told.get_name())}"]
    label = " ".join(labels(told))
    if label:
        words.append("labelled by " + label)
    words.extend(sizes(told))
    states = told.get_state_set()
    for what, state in (("focused", Atspi.StateType.FOCUSED), ("selected", Atspi.StateType.SELECTED)):
        if states.contains(state):
            words.append(what)
    return ", ".join(words)


def show(told, depth=0):
    print("  " * depth + line(told))
    for number in range(told.get_child_count()):
        child = told.get_child_at_index(number)
        if child is not None and (depth == 0 or child.get_state_set().contains(Atspi.StateType.SHOWING)):
            show(child, depth + 1)


desktop = Atspi.get_desktop(0)
applications = [desktop.get_child_at_index(number) for number in range(desktop.get_child_count())]
ours = [each for each in applications if each is not None and each.get_name() == "Ballhaven" and each.get_child_count()]
for application in ours:
    show(application)
sys.exit(0 if ours else 1)
