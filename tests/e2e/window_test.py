#!/usr/bin/python3
"""The window in other sizes, and full screen on a display that has no mode for the game."""
import stage

SCREEN = (1700, 1300)
BANNER = "frmMonthBanner.Label1"
ARMY = "frmMain.Label5(3)"
TAXES = "frmMain.Label5(1)"


def grey_share(picture):
    """How much of white letters on black is neither: the smoothed rim, which a blurred picture has more of."""
    lit = [value for value in picture.rgb[::3] if value > 40]
    return sum(1 for value in lit if value < 215) / len(lit)


class Window(stage.Case):
    def setUp(self):
        super().setUp()
        self.x = self.server(SCREEN)

    def resize(self, game, width, height):
        game.hands("windowmove", game.window(), 40, 30, "windowsize", game.window(), width, height)
        self.until("the window has its size", lambda: game.place()[2:] == (width, height))

    def banner(self, game, console):
        scale = game.view()[2] / stage.SPACE[0]
        picture = game.picture()
        place = [round(edge * scale) for edge in console.place(BANNER)]
        return picture.crop(place) if picture.width == round(stage.SPACE[0] * scale) else None

    def test_larger_window_is_sharp_and_takes_clicks(self):
        game, console = self.open_main(self.x)
        at_one = grey_share(self.banner(game, console))
        self.resize(game, 1600, 1200)
        # A little more than half as much rim to the area; an enlarged picture keeps its rim at least.
        self.until("the letters are sharp at twice the size",
                   lambda: 0 < grey_share(self.banner(game, console)) < 0.75 * at_one)
        self.both_click(game, console, ARMY)
        self.resize(game, *stage.SPACE)
        self.until_shows(game, console, "the army", console.place("frmArmy.Label2"))

    def test_wide_window_has_the_picture_in_its_middle_and_drops_clicks_beside_it(self):
        game, console = self.open_main(self.x)
        self.resize(game, 1000, 600)
        self.until_shows(game, console, "the welcome in its middle")
        left, top, width, height = game.place()
        for bar in ((left, top, 100, height), (left + width - 100, top, 100, height)):
            self.assertGreater(self.x.picture(bar).lit(), 0, "the office goes on in the bars")
        # A command of the menu would clear the welcome.
        for x in (left + 2, left + 98, left + width - 98, left + width - 2):
            game.hands("mousemove", x, top + 24, "click", 1)
        self.until_shows(game, console, "the welcome still")
        # It has been read with the first click within the picture.
        game.click(console.place(BANNER))
        console.ask("click frmMain", f"hover {TAXES}")
        game.point_at(*console.place(TAXES)[:2])
        self.until_shows(game, console, "the welcome folded, and the light on the menu")

    def test_full_screen_and_back(self):
        game, console = self.open_title(self.x)
        before = game.place()
        for keys in (("F11", "F11"), ("alt+Return", "alt+Return"), ("F11", "alt+Return")):
            with self.subTest(keys):
                game.hands("key", keys[0])
                self.until("the window fills the screen", lambda: game.place() == (0, 0, *SCREEN))
                self.until("the whole screen is painted", lambda: self.fills(game))
                game.hands("key", keys[1])
                self.until("the window is back", lambda: game.place() == before)
                self.until_shows(game, console, "the title")

    # The title has a light frame all around; beside it the screen is black.
    def fills(self, game):
        left, top, width, height = game.view()
        picture = self.x.picture()
        bars = [self.x.picture((0, 0, SCREEN[0], top))] if top else [self.x.picture((0, 0, left, SCREEN[1]))]
        inside = picture.pixel(left + width // 2, top + height // 2)
        corners = [picture.pixel(x, y) for x in (left + 12, left + width - 12) for y in (top + 40, top + height - 40)]
        return (0, 0, 0) not in [inside, *corners] and not any(bar.lit() for bar in bars)


if __name__ == "__main__":
    stage.main()
