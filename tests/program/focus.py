#!/usr/bin/python3
"""Prints, as it happens, what assistive tools are told to have the keyboard: role "name". Runs until it is ended."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi


def note(event):
    if event.detail1 == 1:
        print(f'{event.source.get_role_name()} "{event.source.get_name().strip()}"', flush=True)


listener = Atspi.EventListener.new(note)
listener.register("object:state-changed:focused")
print("listening", flush=True)
Atspi.event_main()
