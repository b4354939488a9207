#!/usr/bin/python3
"""A whole game, from the title to the hall of fame, by the mouse alone and by the keyboard alone."""
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


class Hands(stage.Case):
    def play(self, kind):
        game, console = self.open_title(self.server((800, 600)), SEED)
        hand = kind(game, console)
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


if __name__ == "__main__":
    stage.main()
