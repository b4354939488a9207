#!/usr/bin/python3
"""The display's mode: the game's own from the title's click on, and the old one again whatever ends the game."""
import signal

import stage

DESKTOP = "1280x1024"
OURS = "800x600"
QUIT = "frmStart.Command3"


class Modes(stage.Case):
    def switched(self, server):
        """The game on its start screen, in its own mode."""
        game, console = self.open_title(server)
        self.assertEqual(server.mode(), DESKTOP)
        game.click(stage.TITLE)
        console.ask("click frmlogo")
        self.until("the game's mode is set", lambda: server.mode() == OURS)
        self.until_shows(game, console, "the start screen")
        self.assertEqual(game.place(), (0, 0, *stage.SPACE))
        return game, console

    def ask_to_close(self, game):
        with stage.Display(game.server.name) as display:
            display.ask_to_close(game.window())

    # What ends the game, and its status then (below 0: the signal that killed it).
    def ends(self):
        return (
            ("Quit Game", lambda game, console: game.click(console.place(QUIT)), 0),
            ("the window is closed", lambda game, _: self.ask_to_close(game), 0),
            ("the window is destroyed", lambda game, _: game.hands("windowclose", game.window()), 0),
            ("the connection is cut", lambda game, _: game.hands("windowkill", game.window()), 1),
            ("SIGTERM", lambda game, _: game.process.send_signal(signal.SIGTERM), 128 + signal.SIGTERM),
            ("SIGINT", lambda game, _: game.process.send_signal(signal.SIGINT), 128 + signal.SIGINT),
            ("SIGHUP", lambda game, _: game.process.send_signal(signal.SIGHUP), 128 + signal.SIGHUP),
            ("SIGKILL", lambda game, _: game.process.send_signal(signal.SIGKILL), -signal.SIGKILL),
            ("abort", lambda game, _: game.process.send_signal(signal.SIGABRT), -signal.SIGABRT),
        )

    def test_mode_comes_back_whatever_ends_the_game(self):
        server = self.server_with_modes(DESKTOP, OURS)
        for what, end, status in self.ends():
            with self.subTest(what):
                game, console = self.switched(server)
                guards = game.guards()
                end(game, console)
                self.until_ended(game, guards, status)
                self.until("the old mode is back", lambda: server.mode() == DESKTOP)

    def test_crash_of_the_real_kind(self):
        """Under a sanitizer its own handler ends the game, with a report and a status of its own."""
        server = self.server_with_modes(DESKTOP, OURS)
        game, _ = self.switched(server)
        game.process.send_signal(signal.SIGSEGV)
        self.until("the game has ended", lambda: game.process.poll() is not None)
        self.until("the old mode is back", lambda: server.mode() == DESKTOP)

    def test_desktop_that_looks_like_the_game_is_not_switched(self):
        server = self.server_with_modes(OURS, DESKTOP)
        game, console = self.open_title(server)
        game.click(stage.TITLE)
        console.ask("click frmlogo")
        self.until_shows(game, console, "the start screen")
        self.assertEqual((server.mode(), game.place()), (OURS, (0, 0, *stage.SPACE)))

    def test_display_without_our_mode_is_filled(self):
        server = self.server_with_modes(DESKTOP, "1024x768")
        game, console = self.open_start(server)
        self.assertEqual(server.mode(), DESKTOP)
        guards = game.guards()
        game.click(console.place(QUIT))
        self.until_ended(game, guards)

    def test_full_screen_key_switches_and_goes_back(self):
        server = self.server_with_modes(DESKTOP, OURS)
        game, console = self.switched(server)
        game.hands("key", "F11")
        self.until("the old mode is back", lambda: server.mode() == DESKTOP)
        self.until_shows(game, console, "the start screen in a window")
        guards = game.guards()
        game.process.send_signal(signal.SIGKILL)
        self.until_ended(game, guards, -signal.SIGKILL)
        self.assertEqual(server.mode(), DESKTOP)

    def test_full_screen_key_before_the_title_is_clicked(self):
        """The click asks for full screen again; what came first is still what a crash gives back."""
        server = self.server_with_modes(DESKTOP, OURS)
        game, console = self.open_title(server)
        game.hands("key", "F11")
        self.until("the game's mode is set", lambda: server.mode() == OURS)
        game.click(stage.TITLE)
        console.ask("click frmlogo")
        self.until_shows(game, console, "the start screen")
        guards = game.guards()
        game.process.send_signal(signal.SIGKILL)
        self.until_ended(game, guards, -signal.SIGKILL)
        self.until("the old mode is back", lambda: server.mode() == DESKTOP)


if __name__ == "__main__":
    stage.main()
