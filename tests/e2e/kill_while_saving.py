"""Kills the console while it saves, again and again: the slot must hold one whole game every time.

    kill_while_saving.py TIMES
"""

import json
import os
import random
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

LINES = 250
MONEY = 64  # the line, counted from 0, that tells one game from the next
SAVES = 60  # a process saves at most so often


class Console:
    def __init__(self, folder):
        self.process = subprocess.Popen([os.environ['QUENVALE_CONSOLE']], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True)
        self.ask(f'start {json.dumps(str(folder))}')
        for line in 'click frmlogo', 'click frmStart.Command1', 'click frmName.Command3', 'set SaveSlot 1':
            self.ask(line)

    def send(self, lines):
        self.process.stdin.write(''.join(line + '\n' for line in lines))
        self.process.stdin.flush()

    def ask(self, line):
        self.send([line])
        reply = json.loads(self.process.stdout.readline())
        assert reply['ok'], (line, reply)
        return reply

    def kill(self):
        self.process.kill()
        self.process.wait()
        self.process.stdin.close()
        self.process.stdout.close()


def money_of(slot):
    content = slot.read_bytes()
    lines = content.split(b'\r\n')
    assert len(lines) == LINES + 1 and lines[-1] == b'', f'{len(lines)} lines: {content!r}'
    return int(lines[MONEY])


def main():
    times = int(sys.argv[1])
    pause = random.Random(500)
    folder = Path(tempfile.mkdtemp(prefix='quenvale-kill-'))
    shutil.copytree(Path(os.environ['QUENVALE_SOURCE'], 'assets', 'data'), folder / 'data')
    slot = folder / 'Save' / 'Save1'
    middle = 0  # kills that left an unfinished file beside the slot
    try:
        saved = 0  # the oldest game that may be in the slot
        for n in range(times):
            console = Console(folder)
            if n == 0:
                console.ask('set Money 0')
                console.ask('call save')
            base = n * SAVES
            requests = []
            for i in range(1, SAVES + 1):
                requests += [f'set Money {base + i}', 'call save']
            console.send(requests)
            time.sleep(pause.uniform(0, 0.03))
            console.kill()
            money = money_of(slot)
            assert money == saved or base < money <= base + SAVES, f'kill {n}: {money} after {saved}'
            saved = money
            middle += Path(f'{slot}.new').exists()
        console = Console(folder)
        console.ask('call Load')
        assert console.ask('get Money')['value'] == saved
        assert console.ask('text frmGameLoaded.lblLevel')['text'] == 'Normal'
        console.kill()
    finally:
        shutil.rmtree(folder)
    print(f'{times} kills, {middle} of them in the middle of a file')
    assert middle > times // 50, 'hardly any kill hit a save: this test shows nothing'


main()
