#!/usr/bin/python3
"""The player's road from the title to the third month, in a window, by mouse and keyboard."""
import subprocess

import stage

BANNER = "frmMonthBanner.Label1"
NEXT_MONTH = "frmMain.Label5(4)"
ARMY = "frmMain.Label5(3)"
# The dice fall the same way in the window and in the console: a newspaper after the first month, a request after
# the second.
SEED = 5


class Journey(stage.Case):
    def setUp(self):
        super().setUp()
        self.x = self.server()
        # Accents are keys of their own here.
        subprocess.run(["setxkbmap", "-display", self.x.name, "us", "intl"], check=True)

    def test_title_to_month_3(self):
        game, console = self.open_start(self.x, SEED)
        self.both_click(game, console, "frmStart.Command1")
        self.until_shows(game, console, "the question for a name")
        self.give_name(game, console)
        self.look_at_army(game, console)
        self.end_month(2, "frmNewspaper", game, console)
        self.both_press("Return", game, console)
        self.until_shows(game, console, "the main screen again")
        self.end_month(3, "frmShow2", game, console)
        self.assertEqual(game.said(), "")

    # The light goes out after the first month; the next run of the program begins with its end.
    def test_killed_and_continued(self):
        game, console = self.open_start(self.x, SEED)
        console.ask("autosave on")
        self.both_click(game, console, "frmStart.Command1")
        self.give_name(game, console)
        self.end_month(2, "frmNewspaper", game, console)
        self.both_press("Return", game, console)
        self.until_shows(game, console, "the main screen again")
        self.both_click(game, console, NEXT_MONTH)
        game.process.kill()
        game.process.wait()

        console.ask("start", "autosave on")
        game = self.game(self.x, SEED)
        self.until_shows(game, console, "the title again")
        self.leave_title(self.x, game, console)
        self.both_click(game, console, "frmStart.cmdContinue")
        self.assertEqual(console.ask("get MonthsInPower")["value"], 2)
        self.until_shows(game, console, "the office as it was")
        self.assertEqual(game.said(), "")

    def give_name(self, game, console):
        game.hands("type", "Jos")
        game.hands("key", "dead_acute", "e", "space", "Q")
        console.ask('type frmName.Text1 "José Q"')
        self.until_shows(game, console, "the name", console.place("frmName.Text1"))
        self.both_press("Return", game, console)
        self.until_shows(game, console, "the welcome")

    def look_at_army(self, game, console):
        self.both_click(game, console, ARMY)
        self.until_shows(game, console, "the army screen")

    # The month's event stands over the main screen as soon as the pause is over.
    def end_month(self, month, event, game, console):
        self.both_click(game, console, NEXT_MONTH)
        self.assertEqual(console.ask("banner")["text"], f"You are in power for {month} months")
        self.until_shows(game, console, f"the banner of month {month}", console.place(BANNER))
        console.ask("wait 3000")
        self.assertEqual(console.ask("screen")["forms"][0]["name"], event)
        self.until_shows(game, console, f"{event} in month {month}")

    @staticmethod
    def both_press(key, game, console):
        game.hands("key", key)
        console.ask(f"key {key}")


if __name__ == "__main__":
    stage.main()
