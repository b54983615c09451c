#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""A list of guests that plays a tutorial: a host without Qt.

    guests.py [--tutorial PROGRAM] [SCENARIO]

It ends by itself, with 0, when the tutorial was played to its end.
"""

import argparse
import operator
import os
import sys
import tkinter

import scenario
from link import Link

MAIN_WINDOW = 0
NO_ICON = 6
NO_COORDINATE = -9999
ICONS = {"click": 0, "doubleClick": 1, "rightClick": 2, "eye": 3, "wait": 4, "keyboard": 5}
NEXT, YES_NO, HIDE_ARROW = 1, 2, 4
# From the point that is sent to the arrow's tip, and to the middle of a hint.
TIP = (38, 165)
HINT_MIDDLE = (204, 100)
ALIVE_MS = 1000
RECLAIM_MS = 2000
CONNECT_TICKS = 10  # of ALIVE_MS
SILENT_TICKS = 5
COMPARISONS = {"=": operator.eq, "!=": operator.ne, "<": operator.lt, "<=": operator.le,
               ">": operator.gt, ">=": operator.ge}


class Guests(tkinter.Tk):
    """The window: a line for a name, a button and the list."""

    def __init__(self):
        super().__init__(className="Guests")
        self.title("Guests")
        self.geometry("420x320+160+240")
        self.name = tkinter.StringVar(self)
        entry = tkinter.Entry(self, textvariable=self.name)
        entry.place(x=20, y=20, width=250, height=28)
        entry.bind("<Return>", lambda event: self.add())
        entry.focus_set()
        button = tkinter.Button(self, text="Add", command=self.add)
        button.place(x=290, y=20, width=110, height=28)
        self.guests = tkinter.Listbox(self)
        self.guests.place(x=20, y=64, width=380, height=236)
        self.on_added = lambda: None

    def add(self):
        if self.name.get():
            self.guests.insert("end", self.name.get())
            self.name.set("")
            self.on_added()


class Player:
    """Plays the steps of a scenario in the window."""

    def __init__(self, window, steps, program):
        self.window = window
        self.steps = steps
        self.exit_code = 1
        self.current = -1
        self.ticks = 0  # since the tutorial was heard last
        self.tells = False  # "start" was sent, and no "stop" since
        self.reclaims = False  # whatever takes the activation has to give it back
        self.link = Link(program)
        window.createfilehandler(self.link.server, tkinter.READABLE, self.on_connected)
        window.name.trace_add("write", lambda *names: self.judge())
        window.on_added = self.on_added
        window.bind("<Configure>", lambda event: self.tell_place())
        window.bind("<FocusOut>", lambda event: self.reclaims and self.activate())
        window.bind("<Unmap>", lambda event: event.widget == window and self.stop())
        window.bind("<Map>", lambda event: event.widget == window and self.show())
        window.protocol("WM_DELETE_WINDOW", window.quit)
        window.after(ALIVE_MS, self.tick)

    # The link

    def on_connected(self, *_):
        self.window.deletefilehandler(self.link.server)
        self.link.accept()
        self.ticks = 0
        self.window.createfilehandler(self.link.connection, tkinter.READABLE, self.on_received)
        self.enter(0)

    def on_received(self, *_):
        messages = self.link.receive()
        if messages is None:
            self.fail("the tutorial has left")
            return
        self.ticks = 0
        for fields in messages:
            if fields[0] in ("next", "yes", "no"):
                self.reclaim()
                self.on_answer(fields[0])

    def tick(self):
        self.ticks += 1
        if self.ticks > (SILENT_TICKS if self.link.connection else CONNECT_TICKS):
            self.fail("the tutorial gives no sign of life")
            return
        if self.link.process.poll() is not None:
            self.fail("the tutorial has ended")
            return
        self.link.send(("alive",))
        self.window.after(ALIVE_MS, self.tick)

    def fail(self, reason):
        print(f"guests: {reason}", file=sys.stderr)
        self.window.quit()

    # The windows

    def place(self):
        return self.window.winfo_rootx(), self.window.winfo_rooty()

    def point(self, step):
        """Where the balloon has to go for this step."""
        offset = (step.get("x", NO_COORDINATE), step.get("y", NO_COORDINATE))
        tip = TIP
        if NO_COORDINATE in offset:
            offset = (self.window.winfo_width() // 2, self.window.winfo_height() // 2)
            tip = HINT_MIDDLE
        return [place + at - to for place, at, to in zip(self.place(), offset, tip)]

    def tell_place(self):
        if self.tells:
            self.link.send(("windowPosition", MAIN_WINDOW, *self.place()),
                           ("indicator", "updateXy", *self.point(self.steps[self.current])))

    def activate(self):
        self.window.after_idle(lambda: self.window.focus_lastfor().focus_force())

    def reclaim(self):
        """The learner's next key is for this window, whatever takes it now."""
        self.reclaims = True
        self.activate()
        self.window.after(RECLAIM_MS, lambda: setattr(self, "reclaims", False))

    def stop(self):
        """Out of sight, as the window is."""
        self.tells = False
        self.link.send(("stop",))

    # The scenario

    def enter(self, index):
        self.current = index
        if index == len(self.steps):
            self.exit_code = 0
            self.window.quit()
            return
        self.show()
        self.judge()

    def show(self):
        if not 0 <= self.current < len(self.steps) or self.window.state() != "normal":
            return
        step = self.steps[self.current]
        messages = []
        if not self.tells:
            self.tells = True
            self.reclaim()
            area = (0, 0, self.window.winfo_screenwidth(), self.window.winfo_screenheight())
            messages = [("start", *area), ("state", "show"), ("windowStack", "push", MAIN_WINDOW),
                        ("windowPosition", MAIN_WINDOW, *self.place())]
        condition = self.condition()[0]
        flags = HIDE_ARROW if step.get("option") == 1 else 0
        if condition == "yesNo":
            flags |= YES_NO
        elif condition not in ("textLength", "action"):  # what nothing else can end
            flags |= NEXT
        self.link.send(
            *messages,
            ("indicator", "update", step.get("x", NO_COORDINATE), step.get("y", NO_COORDINATE),
             MAIN_WINDOW, step.get("hint", ""), flags, ICONS.get(step.get("icon"), NO_ICON)),
            ("indicator", "updateXy", *self.point(step)))

    def condition(self):
        """The name of the step's condition, and its parameters."""
        if not 0 <= self.current < len(self.steps):
            return [""]
        return self.steps[self.current].get("condition", "").split(",")

    def judge(self):
        """Goes on when the text is as the step asks for."""
        name, *parameters = self.condition()
        if name == "textLength" and len(parameters) == 2 and parameters[1].isdecimal():
            compare = COMPARISONS.get(parameters[0], operator.ge)
            if compare(len(self.window.name.get()), int(parameters[1])):
                self.enter(self.current + 1)

    def on_added(self):
        if self.condition()[:2] == ["action", "Add"]:
            self.enter(self.current + 1)

    def on_answer(self, answer):
        name, *labels = self.condition()
        if name == "yesNo" and answer in ("yes", "no"):
            label = dict(zip(("yes", "no"), labels)).get(answer)
            found = [i for i, step in enumerate(self.steps) if label and step.get("label") == label]
            self.enter(found[0] if found else self.current + 1)
        elif answer == "next" and name not in ("yesNo", "textLength", "action"):
            self.enter(self.current + 1)


def main():
    folder = os.path.dirname(os.path.abspath(__file__))
    parser = argparse.ArgumentParser(description="A list of guests that plays a tutorial.")
    parser.add_argument("--tutorial", default="tutorial", help="the tutorial's executable")
    parser.add_argument("scenario", nargs="?", default=os.path.join(folder, "guests.js"))
    arguments = parser.parse_args()
    try:
        steps = scenario.read(arguments.scenario)
        window = Guests()
        player = Player(window, steps, arguments.tutorial)
    except (OSError, ValueError, tkinter.TclError) as error:
        print(f"guests: {error}", file=sys.stderr)
        return 1
    window.mainloop()
    player.link.close()
    return player.exit_code


if __name__ == "__main__":
    sys.exit(main())
