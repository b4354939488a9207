#!/usr/bin/python3
"""The sounds, as SDL's disk driver writes down what it is given to play; and a machine that cannot play any."""
import wave

import stage


def samples(name):
    with wave.open(str(stage.ASSETS / "sound" / name)) as file:
        return file.readframes(file.getnframes())


class Sound(stage.Case):
    def test_click_is_heard_and_then_the_device_closes(self):
        heard = self.scratch / "heard.raw"
        game, _ = self.open_title(self.server(), SDL_AUDIODRIVER="disk", SDL_DISKAUDIOFILE=str(heard))
        self.assertFalse(heard.exists(), "no device is open before anything sounds")
        game.click(stage.TITLE)
        self.until("the click is heard", lambda: heard.exists() and samples("click.wav") in heard.read_bytes())
        self.assertNotIn(samples("quake.wav")[:2000], heard.read_bytes(), "a new sound cuts the last")

        def devices():
            return [link for link in game.open_files() if link == str(heard)]

        self.assertEqual(len(devices()), 1)
        self.until("the quiet device is closed", lambda: not devices())

    def test_game_without_a_device_is_silent_and_goes_on(self):
        for driver in ("disk", "no such driver"):
            with self.subTest(driver):
                game, console = self.open_title(self.server(), SDL_AUDIODRIVER=driver,
                                                SDL_DISKAUDIOFILE=str(self.scratch / "no such folder" / "heard.raw"))
                game.click(stage.TITLE)
                console.ask("click frmlogo")
                self.until("the game fills the screen", lambda: game.place()[:2] == (0, 0))
                game.hands("key", "F11")
                self.until_shows(game, console, "the start screen")
                self.both_click(game, console, "frmStart.Command2")
                self.until_shows(game, console, "the next level")
                self.assertEqual(game.said(), "")


if __name__ == "__main__":
    stage.main()
