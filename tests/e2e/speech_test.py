#!/usr/bin/python3
"""The game and a real Speech Dispatcher of its own, without a sound card: what is said, how soon, and when it dies.

Also a session bus of its own, on which a screen reader is told to run.

Its one module appends what it is told to say to a file; a second run has the real synthesiser speak to nobody.
"""
import array
import contextlib
import ctypes
import os
import pathlib
import signal
import socket
import statistics
import subprocess
import threading
import time
import unittest
import wave

import stage
import x11

SOON = 0.1  # seconds from a key to the dispatcher
TABS = 9
SLOW = "sleep 4; "
MONTH_PAUSE = 3  # seconds behind the banner that tells the month


def bare(lines):
    """Without blanks: a module may cut its lines anywhere."""
    return "".join("".join(lines).split())


class Dispatcher:
    """Speech Dispatcher with a module that writes down what it says, or with the one named."""

    def __init__(self, folder, module="written", first=""):
        self.folder, self.said, self.socket = folder, folder / "said", folder / "speech"
        (folder / "modules").mkdir(exist_ok=True)
        program, settings = {"written": ("sd_generic", "written.conf"),
                             "espeak-ng": ("sd_espeak-ng", "/etc/speech-dispatcher/modules/espeak-ng.conf")}[module]
        (folder / "speechd.conf").write_text(
            f'LogLevel 4\nDefaultLanguage "en"\nDefaultPunctuationMode "none"\nAudioOutputMethod "alsa"\n'
            f'AudioALSADevice "null"\nAddModule "{module}" "{program}" "{settings}"\nDefaultModule "{module}"\n')
        (folder / "modules" / "written.conf").write_text(
            f'GenericExecuteSynth "{first}printf \'%s\\\\n\' \\\'$DATA\\\' >> {self.said}"\nGenericMaxChunkLength 1000\n'
            'GenericDelimiters "\\n"\nGenericLanguage "en" "en" "utf-8"\nAddVoice "en" "MALE1" "x"\n'
            'GenericRateAdd 1\nGenericRateMultiply 1\n')
        self.process = None

    def start(self):
        self.socket.unlink(missing_ok=True)
        self.process = subprocess.Popen(
            ["speech-dispatcher", "-s", "-S", self.socket, "-C", self.folder, "-P", self.folder / "pid", "-t", "0", "-L",
             self.folder], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            start_new_session=True)

    def die(self):
        """Without a word, its modules too."""
        if self.process.poll() is None:
            os.killpg(self.process.pid, signal.SIGKILL)
            self.process.wait()

    def heard(self):
        return bare(self.said.read_text()) if self.said.exists() else ""


class Wire(threading.Thread):
    """Between the game and the dispatcher: when which words came by."""

    def __init__(self, here, there):
        super().__init__(daemon=True)
        self.there, self.words, self.replies = there, [], []
        self.listener = socket.socket(socket.AF_UNIX)
        self.listener.bind(str(here))
        self.listener.listen()
        self.start()

    def run(self):
        while True:
            near, _ = self.listener.accept()
            far = socket.socket(socket.AF_UNIX)
            far.connect(str(self.there))
            for source, target, words in ((near, far, self.words), (far, near, self.replies)):
                threading.Thread(target=self.carry, args=(source, target, words), daemon=True).start()

    @staticmethod
    def carry(source, target, words):
        with contextlib.suppress(OSError):  # either may die; that is what is tried
            while data := source.recv(65536):
                words.append((time.monotonic(), data.decode(errors="replace")))
                target.sendall(data)

    def came(self, text):
        """When a text came by first, or None."""
        return next((at for at, words in self.words if text in words), None)


class Desktop(threading.Thread):
    """Answers on the session bus like a desktop on which a screen reader runs, or does not."""

    def __init__(self, address, reads):
        super().__init__(daemon=True)
        self.bus, self.reads, self.asked = ctypes.CDLL("libdbus-1.so.3"), reads, 0
        for name in ("dbus_connection_open_private", "dbus_connection_pop_message", "dbus_message_new_method_return"):
            getattr(self.bus, name).restype = ctypes.c_void_p
        self.bus.dbus_threads_init_default()
        self.connection = ctypes.c_void_p(self.bus.dbus_connection_open_private(address.encode(), None))
        if not self.bus.dbus_bus_register(self.connection, None) or \
                self.bus.dbus_bus_request_name(self.connection, b"org.a11y.Bus", 0, None) != 1:
            raise RuntimeError("the session bus gives no name")
        self.start()

    def run(self):
        while self.bus.dbus_connection_read_write(self.connection, -1):
            while message := ctypes.c_void_p(self.bus.dbus_connection_pop_message(self.connection)):
                if self.bus.dbus_message_is_method_call(message, b"org.freedesktop.DBus.Properties", b"Get"):
                    self.asked += 1
                    self.answer(message)
                self.bus.dbus_message_unref(message)

    def answer(self, question):
        """With a truth value in a variant."""
        reply = ctypes.c_void_p(self.bus.dbus_message_new_method_return(question))
        outer, inner = (ctypes.c_void_p * 24)(), (ctypes.c_void_p * 24)()
        self.bus.dbus_message_iter_init_append(reply, outer)
        self.bus.dbus_message_iter_open_container(outer, ord("v"), b"b", inner)
        self.bus.dbus_message_iter_append_basic(inner, ord("b"), ctypes.byref(ctypes.c_uint(self.reads)))
        self.bus.dbus_message_iter_close_container(outer, inner)
        self.bus.dbus_connection_send(self.connection, reply, None)
        self.bus.dbus_connection_flush(self.connection)
        self.bus.dbus_message_unref(reply)


class Speech(stage.Case):
    def dispatcher(self, *args, **more):
        dispatcher = Dispatcher(self.scratch, *args, **more)
        dispatcher.start()
        self.addCleanup(dispatcher.die)
        self.until("the dispatcher listens", dispatcher.socket.exists)
        return dispatcher

    def play(self, address, **environment):
        game = self.game(self.server(), 7, SPEECHD_ADDRESS=f"unix_socket:{address}", **environment)
        console = self.console()
        console.ask("seed 7")
        self.until("the title shows", lambda: game.picture() and game.picture().lit())
        self.until("the game has the keyboard", game.window)
        return game, console

    @staticmethod
    def maps(game):
        return pathlib.Path(f"/proc/{game.process.pid}/maps").read_text()

    def test_what_arrives_is_what_is_said(self):
        dispatcher = self.dispatcher()
        game, console = self.play(dispatcher.socket)
        game.hands("key", "Tab")
        self.assertNotIn("libspeechd", self.maps(game), "a silent game has no voice loaded")
        expected = ""
        for key in ("F2", "Return", "Tab", "Return", "F6", "Page_Down", "Up", "Return", "4", "Return", "2", "Tab", "Tab",
                    "Return", "alt+Right", "F4"):
            if key == "2":
                time.sleep(1.5)  # just after typing a digit is none of the menu's commands
            game.hands("key", key)
            console.ask(f"key {key.replace('Page_Down', 'PageDown').replace('alt+Right', 'AltRight')}")
            expected += bare(console.ask("spoken")["spoken"])
            self.poll(lambda: len(dispatcher.heard()) >= len(expected), stage.LIMIT)
            self.assertEqual(dispatcher.heard()[-400:], expected[-400:], f"after {key}")
        self.assertIn("libspeechd", self.maps(game))

    def test_words_are_soon_on_their_way(self):
        dispatcher = self.dispatcher()
        wire = Wire(self.scratch / "wire", dispatcher.socket)
        game, console = self.play(self.scratch / "wire")
        for key in ("F2", "Return"):
            game.hands("key", key)
            console.ask(f"key {key}")
        self.until("the voice is there", lambda: wire.came("Start Game, button."))
        waits = []
        with x11.Display(game.server.name) as display:
            for _ in range(TABS):
                console.ask("spoken", "key Tab")
                line = console.ask("spoken")["spoken"][-1]
                wire.words.clear()
                at = time.monotonic()
                display.press(0xFF09)
                self.until("the word comes by", lambda line=line: wire.came(line))
                waits.append(wire.came(line) - at)
        print(f"from a key to the dispatcher: {1000 * statistics.median(waits):.1f} ms, at most {1000 * max(waits):.1f} ms")
        self.assertLess(statistics.median(waits), SOON)

    def test_dispatcher_dies_in_mid_sentence_and_is_found_again(self):
        dispatcher = self.dispatcher(first=SLOW)
        game, console = self.play(dispatcher.socket)
        game.hands("key", "F2")
        time.sleep(1)  # it has begun its slow sentence
        dispatcher.die()
        for _ in range(3):
            game.hands("key", "Tab")
        game.hands("key", "Return")
        console.ask("click frmlogo")
        self.until("the game goes on", lambda: game.place() == (0, 0, *game.server.size()))
        self.assertIsNone(game.process.poll())
        again = Dispatcher(self.scratch)
        again.start()
        self.addCleanup(again.die)
        self.until("the dispatcher listens again", again.socket.exists)

        def heard():
            game.hands("key", "Tab")
            return "button.2of6." in again.heard()

        self.until("it is found again", heard)
        self.assertEqual(game.said(), "")

    def test_without_a_dispatcher_the_message_is_printed(self):
        game, console = self.play(self.scratch / "nobody")
        game.click(stage.TITLE)
        console.ask("click frmlogo")
        self.until("the game fills the screen", lambda: game.place() == (0, 0, *game.server.size()))
        game.hands("key", "F11")
        self.until_shows(game, console, "the start screen")
        game.hands("key", "F2")
        message = console.place("frmStart.Label3")
        empty = console.picture().crop(message)
        self.until("the message is printed", lambda: game.picture() and game.picture().crop(message) != empty)
        self.assertEqual(game.said(), "")

    def test_pause_waits_and_sounds_duck(self):
        dispatcher, heard = self.dispatcher(first="sleep 1; "), self.scratch / "heard.raw"
        wire = Wire(self.scratch / "wire", dispatcher.socket)
        game, _ = self.play(self.scratch / "wire", SDL_AUDIODRIVER="disk", SDL_DISKAUDIOFILE=str(heard))
        game.hands("key", "F2")
        self.until("it is told to speak", lambda: wire.came("Narration is on."))
        game.click(stage.TITLE)
        with wave.open(str(stage.ASSETS / "sound" / "click.wav")) as file:
            click = array.array("h", file.readframes(file.getnframes()))
        ducked = array.array("h", [int(sample * 32 / 128) for sample in click]).tobytes()
        self.until("the click is heard at a quarter", lambda: heard.exists() and ducked in heard.read_bytes())
        self.assertNotIn(click.tobytes(), heard.read_bytes())
        for key, line in (("Return", "Your name"), ("Return", "The menu."), ("5", "in power for 2 months")):
            if key == "5":
                time.sleep(1.5)  # just after typing a digit is none of the menu's commands
            game.hands("key", key)
            self.until(f"it says {line}", lambda line=line: wire.came(line))
        began = wire.came("in power for 2 months")
        self.until("the month goes on", lambda: any(at > began and words == "speak\r\n" for at, words in wire.words))
        goes_on = next(at for at, words in wire.words if at > began and words == "speak\r\n")
        over = next((at for at, words in wire.replies if began < at < goes_on and "702 END" in words), goes_on)
        print(f"the sentence took {over - began:.1f} s, and the month went on {goes_on - over:.1f} s behind it")
        self.assertGreater(goes_on - over, MONTH_PAUSE - SOON, "the pause began when the sentence was over")

    def test_screen_reader_is_offered_the_voice(self):
        dispatcher = self.dispatcher()
        address = f"unix:path={self.scratch / 'session'}"
        bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address={address}"],
                               stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.addCleanup(lambda: (bus.kill(), bus.wait()))
        self.until("the session bus listens", (self.scratch / "session").exists)
        desktop = Desktop(address, reads=False)
        game, _ = self.play(dispatcher.socket, DBUS_SESSION_BUS_ADDRESS=address)
        self.until("the game asks", lambda: desktop.asked == 1)
        game.hands("key", "Tab")
        self.assertNotIn("libspeechd", self.maps(game), "who reads the screen himself is left alone")
        game.end()
        desktop.reads = True
        game, _ = self.play(dispatcher.socket, DBUS_SESSION_BUS_ADDRESS=address)
        self.until("it offers its voice", lambda: "PressF2tobegovernedbyear." in dispatcher.heard())
        game.hands("key", "F2")
        self.until("it speaks", lambda: "Narrationison." in dispatcher.heard())
        game.hands("key", "F2")
        self.until("it is silent", lambda: "Narrationisoff." in dispatcher.heard())
        game.end()
        game, _ = self.play(dispatcher.socket, DBUS_SESSION_BUS_ADDRESS=address)
        game.hands("key", "Tab")
        self.assertEqual(desktop.asked, 2, "who has been told is not told again")

    def test_real_synthesiser_ends_its_sentences(self):
        dispatcher = self.dispatcher("espeak-ng")
        wire = Wire(self.scratch / "wire", dispatcher.socket)
        game, _ = self.play(self.scratch / "wire")
        game.hands("key", "F2")
        self.until("it is told to speak", lambda: wire.came("Narration is on."))
        self.until("it has spoken", lambda: any("702 END" in words for _, words in wire.replies))
        self.assertIsNone(game.process.poll())


if __name__ == "__main__":
    stage.main()
