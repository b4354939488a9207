#!/usr/bin/python3
"""The player's road from the title to the third month, in a window, by mouse and keyboard."""
import subprocess

import stage

BANNER = "frmMonthBanner.Label1"
NEXT_MONTH = "frmMain.Label5(4)"
ARMY = "frmMain.Label5(3)"
MENU_BAR = (0, 0, 520, 48)  # up to "Next month", which may have the focus


class Journey(stage.Case):
    def setUp(self):
        super().setUp()
        self.x = self.server()
        # Accents are keys of their own here.
        subprocess.run(["setxkbmap", "-display", self.x.name, "us", "intl"], check=True)

    def test_title_to_month_3(self):
        game, console = self.open_start(self.x)
        self.both_click(game, console, "frmStart.Command1")
        self.until_shows(game, console, "the question for a name")
        self.give_name(game, console)
        self.look_at_army(game, console)
        console.ask(f"hover {NEXT_MONTH}", f"click {NEXT_MONTH}")
        self.play_to(2, game, console)
        console.ask("call EndOfTurn")
        self.play_to(3, game, console)
        self.assertEqual(game.said(), "")

    def give_name(self, game, console):
        game.hands("type", "Jos")
        game.hands("key", "dead_acute", "e", "space", "Q")
        console.ask('type frmName.Text1 "José Q"')
        self.until_shows(game, console, "the name", console.place("frmName.Text1"))
        game.hands("key", "Return")
        console.ask("key Return")
        self.until_shows(game, console, "the welcome")

    # The chief and the neighbours' strengths are drawn by lot.
    def look_at_army(self, game, console):
        self.both_click(game, console, ARMY)
        self.until_shows(game, console, "the army's strength", console.place("frmArmy.Label2"))
        self.until_shows(game, console, "the menu", MENU_BAR)

    # The dice fall otherwise in the window than in the console: an event of the month is answered in whatever way
    # comes first, and whom it kills starts anew.
    def play_to(self, month, game, console):
        self.assertEqual(console.ask("banner")["text"], f"You are in power for {month} months")
        expected, next_month = console.picture(), console.place(NEXT_MONTH)

        def arrived():
            return self.shows(game, expected, MENU_BAR) and self.shows(game, expected, console.place(BANNER))

        def arrived_or_tried():
            if arrived():
                return True
            game.click(next_month)
            self.poll(arrived, 1)
            if not arrived():
                game.hands("key", "Return")
            return False

        self.until(f"it is month {month}", arrived_or_tried, limit=120)


if __name__ == "__main__":
    stage.main()
