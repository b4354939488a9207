"""Removes, empties, truncates and garbles each file that the game comes with: it starts, plays a month, and tells.

    assets_test.py           each file in one of the four ways, so that ./check stays short
    assets_test.py --all     each file in all of them
"""

import importlib.machinery
import importlib.util
import json
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

sys.dont_write_bytecode = True
SOURCE = Path(os.environ['QUENVALE_SOURCE'])
ASSETS = SOURCE / 'assets'
BEGIN = ['seed 1', 'shot "/dev/null"', 'click frmlogo', 'shot "/dev/null"', 'click frmStart.Command1',
         'click frmName.Command3']
MONTH = ['set Money 900000000', 'set Strength[Guerrillas] 2', 'set EventDraw 0', 'draws 0.99 0.99 0.99',
         'click frmMain.Label5(4)', 'wait 3000', 'shot "/dev/null"', 'get MonthsInPower', 'screen']
WAYS = {
    'removed': lambda content: None,
    'emptied': lambda content: b'',
    'truncated': lambda content: content[:len(content) // 2],
    'noise': lambda content: random.Random(len(content)).randbytes(len(content)),
}

# How each file comes to be read, and where the trouble is told.
READ_BY = [
    (r'Actions/(\d+)', ['set ActionChoice {}', 'call MakeAction', 'banner']),
    (r'Actions/M(\d)', ['set RequestDraw {}', 'call ShowAction2', 'banner']),
    (r'Actions/R(\d)', [f'set Revolutionaries[{n}] 1' for n in range(1, 8)] +
     ['set Revolutionaries[{}] 0', 'call Choose', 'click frmChoose.Command1(1)', 'banner']),
    (r'Data/variants/(\d+)', ['variants on', 'set ActionChoice {}', 'call MakeAction', 'text frmStrip.lblLine']),
    (r'data/names', ['call CreateChiefs', 'banner']),
    (r'Data/Top', ['call See', 'banner']),
    (r'Data/Manual.htm', ['key F1', 'banner']),
]


class Sweep:
    def __init__(self, work):
        self.folder = work / 'game'
        self.folder.mkdir()
        for path in ASSETS.iterdir():
            if path.is_dir():
                shutil.copytree(path, self.folder / path.name)
        self.drawn = self.drawn_in_a_month()

    def ask(self, lines):
        """The replies, and what the program wrote for who started it."""
        lines = [f'start {json.dumps(str(self.folder))}'] + lines
        done = subprocess.run([os.environ['QUENVALE_CONSOLE']], input='\n'.join(lines), capture_output=True, text=True)
        assert done.returncode == 0, f'status {done.returncode}: {done.stderr[-500:]}'
        return [json.loads(line) for line in done.stdout.splitlines()], done.stderr

    def spoil(self, name, way):
        spoilt = WAYS[way]((ASSETS / name).read_bytes())
        (self.folder / name).unlink()
        if spoilt is not None:
            (self.folder / name).write_bytes(spoilt)

    def mend(self, name):
        shutil.copy(ASSETS / name, self.folder / name)

    # Every picture that is missed when all of them are.
    def drawn_in_a_month(self):
        (self.folder / 'images').rename(self.folder / 'elsewhere')
        _, told = self.ask(BEGIN + MONTH)
        (self.folder / 'elsewhere').rename(self.folder / 'images')
        return {name for name in re.findall(r'/(images/[^:]+)', told)}

    def try_file(self, name, way):
        why = f'{name} {way}'
        self.spoil(name, way)
        found = [(re.fullmatch(pattern, name), lines) for pattern, lines in READ_BY]
        lines = next(([line.format(*match.groups()) for line in lines] for match, lines in found if match), [])
        replies, told = self.ask(BEGIN + MONTH + lines)
        month, screen = replies[len(BEGIN + MONTH) - 1:len(BEGIN + MONTH) + 1]
        assert month['value'] == 2, f'{why}: no month was played'
        assert any(form['name'] == 'frmMain' and form['enabled'] for form in screen['forms']), f'{why}: no menu'
        on_screen = ' '.join(reply.get('text', '') for reply in replies[len(BEGIN + MONTH) + 1:])
        # A list that is absent is begun; the manual is only handed to its viewer.
        silent = (name, way) == ('Data/Top', 'removed') or (name == 'Data/Manual.htm' and way != 'removed')
        if lines and not silent:
            assert name in on_screen, f'{why}: told only {on_screen}'
        if name in self.drawn:
            assert name in told, f'{why}: nothing of it in "{told}"'
        self.mend(name)
        return bool(lines) or name in self.drawn

    # The gallery shows every screen, but not every newspaper and every end.
    def try_all_pictures(self, way):
        for path in (ASSETS / 'images').rglob('*.*'):
            self.spoil(path.relative_to(ASSETS), way)
        gallery = importlib.machinery.SourceFileLoader('gallery', str(SOURCE / 'tools/gallery/build'))
        module = importlib.util.module_from_spec(importlib.util.spec_from_loader('gallery', gallery))
        gallery.exec_module(module)
        start = f'start {json.dumps(str(self.folder))}'
        lines = []
        for _, requests in module.read_scenes().values():
            lines += [start, 'seed 1', *requests, 'shot "/dev/null"']
        replies, told = self.ask(lines)
        assert len(replies) > len(lines) / 2
        for path in (ASSETS / 'images').rglob('*.*'):
            self.mend(path.relative_to(ASSETS))
        return set(re.findall(r'/images/([^:/]+):', told))


def main():
    work = Path(tempfile.mkdtemp(prefix='quenvale-assets-'))
    whole = '--all' in sys.argv
    try:
        sweep = Sweep(work)
        tried, told = 0, 0
        names = sorted(str(path.relative_to(ASSETS)) for path in ASSETS.rglob('*') if path.is_file())
        for number, name in enumerate(name for name in names if '/' in name):
            ways = list(WAYS) if whole else [list(WAYS)[number % len(WAYS)]]
            for way in ways:
                told += sweep.try_file(name, way)
                tried += 1
        print(f'{tried} spoilt files, {told} of them read in that month, and told')
        pictures = {path.name for path in (ASSETS / 'images').glob('*.*')}
        for way in list(WAYS) if whole else ['truncated']:
            asked = sweep.try_all_pictures(way)
            print(f'all pictures {way}: {len(asked)} of {len(pictures)} told; not asked for: {sorted(pictures - asked)}')
            assert len(asked) > 0.6 * len(pictures)
        (sweep.folder / 'Data/Top').write_bytes(b'7' * (2 << 20))
        replies, _ = sweep.ask(BEGIN + ['call See', 'banner', 'call TopTen', 'text frmTop102.Label3'])
        for reply in replies[-3], replies[-1]:
            assert 'Data/Top' in reply['text'] and 'expected at most' in reply['text'], reply
        assert (sweep.folder / 'Data/Top').stat().st_size == 2 << 20, 'a list that is too large was written over'
    finally:
        shutil.rmtree(work)


main()
