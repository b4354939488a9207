#!/usr/bin/python3
"""A display that is not there, and one that goes away."""
import stage


class Ends(stage.Case):
    def test_game_without_a_display_says_so_in_one_line(self):
        for what, environment in (
                ("no display at all", {}),
                ("a display that nobody serves", {"DISPLAY": ":59999"}),
                ("a Wayland display that nobody serves", {"WAYLAND_DISPLAY": "wayland-59999"})):
            with self.subTest(what):
                game = self.game(**environment)
                self.until("the game has ended", lambda: game.process.poll() is not None)
                self.assertEqual(game.process.returncode, 1)
                self.assertRegex(game.said(), r"\Aquenvale: [^\n]*display[^\n]*\n\Z")

    def test_game_ends_with_its_server(self):
        for what, open_screen in (("on the title", self.open_title), ("on the main screen", self.open_main)):
            with self.subTest(what):
                server = self.server()
                game, _ = open_screen(server)
                guards = game.guards()
                self.servers.remove(server)  # there is nothing to see any more
                server.stop()
                self.until_ended(game, guards, status=1)

    def test_game_ends_with_a_server_that_had_its_mode_switched(self):
        server = self.server_with_modes("1280x1024", "800x600")
        game, _ = self.open_title(server)
        game.click(stage.TITLE)
        self.until("the game's mode is set", lambda: server.mode() == "800x600")
        guards = game.guards()
        self.servers.remove(server)
        server.stop()
        self.until_ended(game, guards, status=1)


if __name__ == "__main__":
    stage.main()
