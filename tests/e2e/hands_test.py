#!/usr/bin/python3
"""A whole game, from the title to the hall of fame, by the mouse alone, by the keyboard alone and by a gamepad alone."""
import os
import time

import stage

NEXT_MONTH = "frmMain.Label5(4)"
HALL = "frmTop102"
# With these dice the guerrillas rise in the third month, and the flight from them ends the game.
SEED = 6
READ = 1.5  # seconds until a pause may be ended


class Mouse:
    def __init__(self, game, console):
        self.game, self.console = game, console

    def begin(self, button):
        self.answer(button)

    def answer(self, button):
        stage.Case.both_click(self.game, self.console, button)

    def end_month(self):
        self.answer(NEXT_MONTH)

    def end_pause(self):
        self.game.point_at(400, 560)
        self.game.hands("click", 1)


class Keyboard:
    def __init__(self, game, console):
        self.game, self.console = game, console

    def press(self, key, name=None):
        self.game.hands("key", key)
        self.console.ask(f"key {name or key}")

    def begin(self, _):
        self.press("Return")

    # None of the answers on this road has the focus at first.
    def answer(self, _):
        self.press("Tab")
        self.press("Return")

    # Not just behind the name: there the digit would still be meant for it.
    def end_month(self):
        time.sleep(READ)
        self.press("5")

    def end_pause(self):
        self.game.hands("key", "Return")


class Gamepad(Keyboard):
    """A presses, the cross moves: the keys that mean the same are the console's."""
    BUTTONS = {"Return": 0, "Escape": 1, "Up": 11, "Down": 12, "Left": 13, "Right": 14}

    def __init__(self, game, console, pipe):
        super().__init__(game, console)
        self.pipe = pipe

    def push(self, key):
        self.pipe.write(f"{self.BUTTONS[key]}\n")
        self.pipe.flush()
        time.sleep(0.2)  # until it was let go

    def press(self, key, name=None):
        self.push(key)
        self.console.ask(f"key {name or key}")

    def answer(self, _):
        self.press("Down")
        self.press("Return")

    def end_month(self):
        for _ in range(5):  # along the menu
            self.press("Right")
        self.press("Return")

    def end_pause(self):
        self.push("Return")


class Hands(stage.Case):
    def play(self, kind):
        pad = self.scratch / "pad"
        os.mkfifo(pad)
        pipe = open(os.open(pad, os.O_RDWR), "w", encoding="ascii")
        self.addCleanup(pipe.close)
        more = {"QUENVALE_PAD": str(pad)} if kind is Gamepad else {}
        game, console = self.open_title(self.server((800, 600)), SEED, **more)
        hand = kind(game, console, pipe) if kind is Gamepad else kind(game, console)
        if kind is Mouse:
            game.click(stage.TITLE)
            console.ask("click frmlogo")
        else:
            hand.press("Return")
        for button, what in (("frmStart.Command1", "the start screen"), ("frmName.Command3", "the question for a name")):
            self.until_shows(game, console, what)
            hand.begin(button)
        for _ in range(20):
            form = console.ask("screen")["forms"][0]
            self.until_shows(game, console, form["name"])
            if form["name"] == HALL:
                return game
            buttons = [each["name"] for each in form["controls"] if each["kind"] == "CommandButton" and each["enabled"]]
            if console.ask("timers")["timers"]:
                time.sleep(READ)
                hand.end_pause()
                console.ask("skip")
            elif form["name"] != "frmMain" and buttons:
                hand.answer(f"{form['name']}.{buttons[0]}")
            else:
                hand.end_month()
        return self.fail("the game does not end")

    def test_mouse_alone(self):
        self.assertEqual(self.play(Mouse).said(), "")

    def test_keyboard_alone(self):
        self.assertEqual(self.play(Keyboard).said(), "")

    def test_gamepad_alone(self):
        self.assertEqual(self.play(Gamepad).said(), "")


if __name__ == "__main__":
    stage.main()
