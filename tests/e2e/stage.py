"""The stage of the end-to-end tests: an X server of its own for each test, the game on it, eyes and hands.

    class Title(stage.Case):
        def test_picture(self):
            server = self.server()                          # Xvfb; or self.server_with_modes("1280x1024", "800x600")
            game = self.game(server)
            self.until("the title shows", lambda: server.picture().lit())
            game.hands("key", "F11")                        # words of xdotool

What a test starts ends with it, however it ends. Nothing sleeps for a fixed time: `until` looks again and again,
with a limit that a slow machine under the sanitizers does not reach. When a test fails, what the screen showed lies
in the build folder's e2e/.

The console plays the same steps beside the game: it knows where controls are, and what the window should show.
"""
import json
import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import time
import unittest

sys.dont_write_bytecode = True

from x11 import Display, Picture

HERE = pathlib.Path(__file__).resolve().parent
QUENVALE = os.environ["QUENVALE"]
SEEDED = str(pathlib.Path(os.environ["QUENVALE_BUILD"], "quenvale-seeded"))  # the game with told dice
CONSOLE = os.environ["QUENVALE_CONSOLE"]
ASSETS = pathlib.Path(os.environ["QUENVALE_SOURCE"], "assets")
FAILURES = pathlib.Path(os.environ["QUENVALE_BUILD"], "e2e")
XDUMMY = HERE / "xdummy.sh"

LIMIT = 40  # seconds until something that must happen has not
LOOK = 0.05  # seconds between two looks

SPACE = (800, 600)
TITLE = (0, 0, *SPACE)  # one big button


def alive(pid):
    try:
        state = pathlib.Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()[0]
    except OSError:
        return False
    return state != "Z"


def children_of(pid):
    """Of the process itself, by their parent's number."""
    found = []
    for stat in pathlib.Path("/proc").glob("[0-9]*/stat"):
        try:
            if int(stat.read_text().rpartition(")")[2].split()[1]) == pid:
                found.append(int(stat.parent.name))
        except OSError:
            pass  # it ended meanwhile
    return found


def environment_of(home, server=None, **more):
    """What the game sees: a home of its own, no sound device of the machine, no input method."""
    kept = {key: value for key, value in os.environ.items() if key in ("PATH", "LD_LIBRARY_PATH", "UBSAN_OPTIONS")}
    sanitizers = {
        "ASAN_OPTIONS": f"{os.environ.get('ASAN_OPTIONS', '')}:suppressions={HERE / 'asan.supp'}",
        "LSAN_OPTIONS": f"suppressions={HERE / 'lsan.supp'}:print_suppressions=0"}
    display = {"DISPLAY": server.name} if server else {}
    settings = pathlib.Path(home) / ".config" / "quenvale" / "settings"
    if not settings.exists():  # a player who needs no hints, so that the console's picture is the window's
        settings.parent.mkdir(parents=True, exist_ok=True)
        settings.write_text("hints = off\n")
    return {**kept, **sanitizers, "HOME": str(home), "XDG_RUNTIME_DIR": str(home), "LC_ALL": "C.UTF-8",
            "XMODIFIERS": "@im=none", "SDL_AUDIODRIVER": "dummy", **display, **more}


class Server:
    """An X server, its screen and its pointer."""

    def __init__(self, name, stop):
        self.name, self.stop = name, stop

    def picture(self, place=None):
        with Display(self.name) as display:
            return display.picture(place)

    def size(self):
        with Display(self.name) as display:
            return display.size()

    def mode(self):
        """The mode that is set, as 1280x1024."""
        return subprocess.run([XDUMMY, "mode", self.name], capture_output=True, text=True, check=True).stdout.strip()


def start_xvfb(size):
    """A server with one mode only, on a free number."""
    readable, writable = os.pipe()
    process = subprocess.Popen(
        ["Xvfb", "-displayfd", str(writable), "-screen", "0", f"{size[0]}x{size[1]}x24", "-nolisten", "tcp",
         "-noreset"],
        pass_fds=[writable], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    os.close(writable)

    def stop():
        process.kill()
        process.wait()

    with os.fdopen(readable) as number:
        return Server(f":{int(number.readline())}", stop)


def start_server_with_modes(modes):
    """A real server that can switch its mode; the first one is set."""
    started = subprocess.run([XDUMMY, "start", *modes], capture_output=True, text=True, check=True)
    values = dict(line.split("=") for line in started.stdout.split())

    def stop():
        if alive(values["XDUMMY_PID"]):
            subprocess.run([XDUMMY, "stop", values["XDUMMY_PID"]], check=True)

    return Server(values["DISPLAY"], stop)


class Console:
    """quenvale-console. Its requests are written as they stand in a session."""

    def __init__(self, scratch):
        self._shot = scratch / "shot.png"
        # A home of its own too: what a game leaves behind at its end must not meet the next one.
        home = scratch / "console"
        home.mkdir(exist_ok=True)
        self.process = subprocess.Popen([CONSOLE], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
                                        env=environment_of(home))
        self.ask("start")

    def ask(self, *requests):
        for request in requests:
            self.process.stdin.write(request + "\n")
            self.process.stdin.flush()
            reply = json.loads(self.process.stdout.readline())
            assert reply["ok"], f"{request}: {reply}"
        return reply

    def place(self, control):
        """Left, top, width, height of a control of a shown screen, in the 800 x 600 picture space."""
        screen, name = control.split(".")
        for form in self.ask("screen")["forms"]:
            for found in form["controls"]:
                if (form["name"], found["name"]) == (screen, name):
                    return tuple(found[key] for key in ("left", "top", "width", "height"))
        raise AssertionError(f"the console does not show {control}")

    def picture(self):
        self.ask(f"shot {json.dumps(str(self._shot))}")
        return Picture.read_png(self._shot)


class Game:
    """The real program, and who sits before it. With a seed its dice fall as in a console with that seed."""

    def __init__(self, server, environment, seed=None):
        self.server = server
        self._said = tempfile.TemporaryFile("w+")
        command = [QUENVALE] if seed is None else [SEEDED, str(seed)]
        self.process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=self._said,
                                        stderr=self._said)

    def said(self):
        self._said.seek(0)
        return self._said.read()

    def end(self):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
        self._said.close()

    def hands(self, *words):
        run = subprocess.run(["xdotool", *map(str, words)], env={**os.environ, "DISPLAY": self.server.name},
                             capture_output=True, text=True, check=False)
        return run.stdout.strip()

    def window(self):
        """Its number, or None while it has none."""
        found = self.hands("search", "--onlyvisible", "--class", "^quenvale").split()
        return int(found[0]) if found else None

    def place(self):
        """Left, top, width and height of the window's inside."""
        words = self.hands("getwindowgeometry", "--shell", self.window()).split()
        values = dict(word.split("=") for word in words if "=" in word)
        return tuple(int(values[key]) for key in ("X", "Y", "WIDTH", "HEIGHT"))

    def view(self):
        """Where the 800 x 600 picture lies on the screen: as large as fits the window, in its middle."""
        left, top, width, height = self.place()
        scale = min(width / SPACE[0], height / SPACE[1])
        across, down = round(SPACE[0] * scale), round(SPACE[1] * scale)
        return left + (width - across) // 2, top + (height - down) // 2, across, down

    def picture(self):
        """What the window shows of the 800 x 600 picture; None while it has no place on the screen."""
        return self.server.picture(self.view()) if self.window() else None

    def point_at(self, x, y):
        """A place of the picture space."""
        left, top, across, _ = self.view()
        scale = across / SPACE[0]
        self.hands("mousemove", left + round(x * scale), top + round(y * scale))

    def click(self, control_place):
        left, top, width, height = control_place
        self.point_at(left + width // 2, top + height // 2)
        self.hands("click", 1)

    def open_files(self):
        found = []
        for link in pathlib.Path(f"/proc/{self.process.pid}/fd").glob("*"):
            try:
                found.append(os.readlink(link))
            except OSError:
                pass  # closed meanwhile
        return found

    def guards(self):
        return children_of(self.process.pid)


class Case(unittest.TestCase):
    """A test with servers, games and consoles that end with it."""

    def setUp(self):
        scratch = tempfile.TemporaryDirectory(prefix="quenvale-e2e.")
        self.addCleanup(scratch.cleanup)
        self.scratch = pathlib.Path(scratch.name)
        self.servers, self.games = [], []
        for number in (signal.SIGTERM, signal.SIGINT):  # whoever is impatient lets us tidy up
            signal.signal(number, lambda *_: sys.exit("ended from outside"))

    @staticmethod
    def poll(condition, limit):
        """What the condition gives as soon as that is true, or when the time is over."""
        end = time.monotonic() + limit
        while not (result := condition()) and time.monotonic() < end:
            time.sleep(LOOK)
        return result

    def until(self, what, condition, limit=LIMIT):
        result = self.poll(condition, limit)
        if not result:
            self.keep_screens()
            games = "".join(f"\nGame: status {game.process.poll()}, said: {game.said()}" for game in self.games)
            self.fail(f"waited {limit} seconds in vain until {what}{games}")
        return result

    def keep_screens(self):
        FAILURES.mkdir(exist_ok=True)
        for number, server in enumerate(self.servers):
            server.picture().write_png(FAILURES / f"{self.id()}-{number}.png")

    def server(self, size=(1280, 1024)):
        return self._keep(start_xvfb(size))

    def server_with_modes(self, *modes):
        return self._keep(start_server_with_modes(modes))

    def _keep(self, server):
        self.addCleanup(server.stop)
        self.servers.append(server)
        return server

    def game(self, server=None, seed=None, **environment):
        game = Game(server, environment_of(self.scratch, server, **environment), seed)
        self.games.append(game)
        self.addCleanup(game.end)
        return game

    def console(self):
        console = Console(self.scratch)

        def end():
            console.process.communicate()

        self.addCleanup(end)
        return console

    def shows(self, game, expected, place=(0, 0, *SPACE)):
        """Whether a part of the picture is, pixel for pixel, as expected. For a window of 800 x 600."""
        picture = game.picture()
        return bool(picture) and (picture.width, picture.height) == SPACE and \
            picture.crop(place) == expected.crop(place)

    def until_shows(self, game, console, what, place=(0, 0, *SPACE)):
        """The window shows what the console draws."""
        expected = console.picture()
        self.until(f"the window shows {what}", lambda: self.shows(game, expected, place))

    def open_title(self, server, seed=None, **environment):
        game, console = self.game(server, seed, **environment), self.console()
        if seed is not None:
            console.ask(f"seed {seed}")
        self.until_shows(game, console, "the title")
        return game, console

    def open_start(self, server, seed=None):
        """The start screen, in a window again on a server that has no mode for the game."""
        game, console = self.open_title(server, seed)
        self.leave_title(server, game, console)
        return game, console

    def leave_title(self, server, game, console):
        game.click(TITLE)
        console.ask("click frmlogo")
        self.until("the game fills the screen", lambda: game.place() == (0, 0, *server.size()))
        game.hands("key", "F11")
        self.until_shows(game, console, "the start screen")

    def open_main(self, server):
        """The main screen with its welcome."""
        game, console = self.open_start(server)
        self.both_click(game, console, "frmStart.Command1")
        self.until_shows(game, console, "the question for a name")
        self.both_click(game, console, "frmName.Command3")
        self.until_shows(game, console, "the welcome")
        return game, console

    @staticmethod
    def both_click(game, console, control):
        """The same click in the window and in the console."""
        game.click(console.place(control))
        console.ask(f"hover {control}", f"click {control}")

    def until_ended(self, game, guards, status=0):
        """The game ends with this status, says nothing, and leaves no guard behind."""
        self.assertEqual(len(guards), 1)
        self.until("the game has ended", lambda: game.process.poll() is not None)
        self.until("its guard has ended", lambda: not any(map(alive, guards)))
        self.assertEqual(game.said(), "")
        self.assertEqual(game.process.returncode, status)


def main():
    unittest.main(failfast=True)
