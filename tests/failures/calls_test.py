"""Lets every call to the system fail that a save, a load, the hall of fame, the kept month or the settings make: with
eight errors, once and from then on, with short and empty writes, and with the process's end in it.

    calls_test.py            a sample, so that ./check stays short
    calls_test.py --all      everything

Afterwards each file is the old one or the new one, whole; who was not served reads which file and why; nothing was
put aside; and the next start leaves nothing half-written behind.
"""

import errno
import json
import mmap
import os
import shutil
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

ERRORS = [errno.EACCES, errno.EIO, errno.ENOSPC, errno.EROFS, errno.EMFILE, errno.EDQUOT, errno.ESTALE, errno.EINTR]
COUNT, ONCE, FROM_THEN_ON, SHORT, ZERO, DIE = range(6)
LETTERS = {'o': 'open', 'l': 'lstat', 's': 'fstat', 'r': 'read', 'w': 'write', 'f': 'fsync', 'c': 'close',
           'n': 'rename', 'N': 'renameat2', 'u': 'unlink', 'm': 'mkdir', 'k': 'flock'}
TOLD = ['frmMonthBanner.Label1', 'frmTop102.Label3', 'frmSave.Label2', 'frmLoad.Label2', 'frmStart.Label3']

BEGIN = ['seed 1', 'click frmlogo', 'click frmStart.Command1', 'click frmName.Command3', 'set SaveSlot 1',
         'set Money 777777']
MONTH = ['set Money 900000000', 'set Strength[Guerrillas] 2', 'set EventDraw 0', 'draws 0.99 0.99 0.99',
         'click frmMain.Label5(4)', 'wait 3000']
OPTIONS = 'click frmMain.Label5(5)'

# What is prepared, what is done while calls fail, and the file that it is about. Where nothing is written, how it is
# seen that all went well.
SAVE_BY_FORM = [OPTIONS, 'click frmOptions.Label5(6)', 'click frmSave.Option1', 'type frmSave.Text1 "New"',
                'click frmSave.Command1', 'click frmSave.Command1']
SCENARIOS = {
    'save over an older game': (BEGIN, ['call save'], 'Save/Save1', None),
    'the first save': (['# no Save'] + BEGIN, ['call save'], 'Save/Save1', None),
    'save by the form': (BEGIN, SAVE_BY_FORM, 'Save/Save1', None),
    'load': (BEGIN, ['call Load'], None, ('get Money', 4242)),
    'load by the form': (
        BEGIN, [OPTIONS, 'click frmOptions.Label5(7)', 'click frmLoad.Option1', 'click frmLoad.Command1',
                'click frmLoad.Command1'], None, ('get Money', 4242)),
    'enter the hall of fame': (BEGIN, ['call TopTen'], 'Data/Top', None),
    'look at the hall of fame': (BEGIN, ['call See'], None, ('text frmTop102.Label1(0)', None)),
    'keep a month': (['autosave on'] + BEGIN + MONTH, MONTH, 'Save/Continue', None),
    'continue': (['seed 1', 'autosave on', 'click frmlogo'], ['click frmStart.cmdContinue', 'click frmStart.cmdContinue'], None,
                 ('text frmMonthBanner.Label1', None)),
    'write the settings': (None, ['write 3'], 'quenvale/settings', None),
    'read the settings': (None, ['read'], None, ('read', 7)),
}


class Plan:
    FORMAT = '=5i1004s3072s'

    def __init__(self, path):
        path.write_bytes(bytes(4096))
        with open(path, 'r+b') as file:
            self.memory = mmap.mmap(file.fileno(), 4096)

    def arm(self, folder, at, reason, mode):
        self.memory[:] = struct.pack(self.FORMAT, 1, 0, at, reason, mode, os.fsencode(folder), b'')

    def disarm(self):
        _, seen, _, _, _, _, calls = struct.unpack(self.FORMAT, self.memory[:])
        self.memory[0:4] = struct.pack('=i', 0)
        return seen, calls[:seen].decode()


class Program:
    def __init__(self, program, plan_file, folder):
        build = Path(os.environ['QUENVALE_BUILD'])
        environment = {**os.environ, 'LD_PRELOAD': str(next(build.glob('tests/failures/*failing_calls.so'))),
                       'QUENVALE_FAILURES': str(plan_file), 'XDG_CONFIG_HOME': str(folder), 'LC_ALL': 'C'}
        self.process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True,
                                        env=environment)

    def ask(self, lines):
        """All replies; fewer when the process has ended."""
        lines = [line for line in lines if not line.startswith('#')]
        try:
            self.process.stdin.write(''.join(line + '\n' for line in lines))
            self.process.stdin.flush()
        except BrokenPipeError:
            return []
        replies = []
        for _ in lines:
            reply = self.process.stdout.readline()
            if not reply:
                break
            replies.append(json.loads(reply))
        return replies

    def end(self):
        try:
            self.process.stdin.close()
        except BrokenPipeError:
            pass
        self.process.stdout.close()
        return self.process.wait()


def sum_of(content, known={}):
    if content not in known:
        value = 0xcbf29ce484222325
        for byte in content:
            value = (value ^ byte) * 0x100000001b3 % 2**64
        known[content] = b'%016x\n' % value
    return known[content]


class Suite:
    def __init__(self, work, step):
        self.work = work
        self.step = step
        self.folder = work / 'game'
        self.plan_file = work / 'plan'
        self.plan = Plan(self.plan_file)
        self.programs = {}
        self.trials = 0
        self.seen = {}
        assets = Path(os.environ['QUENVALE_SOURCE'], 'assets')
        self.folder.mkdir()
        for name in 'Actions', 'data', 'images', 'sound':
            (self.folder / name).symlink_to(assets / name)
        self.old = {'Data/Top': (assets / 'Data/Top').read_bytes(), 'quenvale/settings': b'volume = 7\r\n# kept\r\n'}
        self.make_old_games()

    def program(self, console):
        if console not in self.programs:
            name = os.environ['QUENVALE_CONSOLE'] if console else os.environ['QUENVALE_BUILD'] + '/quenvale-settings'
            self.programs[console] = Program(name, self.plan_file, self.folder)
        return self.programs[console]

    def files(self):
        return {str(path.relative_to(self.folder)): path.read_bytes()
                for top in ('Save', 'Data', 'quenvale') for path in (self.folder / top).rglob('*') if path.is_file()}

    def restore(self, without_save=False):
        for top in 'Save', 'Data', 'quenvale':
            shutil.rmtree(self.folder / top, ignore_errors=True)
        for name, content in self.old.items():
            if not (without_save and name.startswith('Save/')):
                path = self.folder / name
                path.parent.mkdir(exist_ok=True)
                path.write_bytes(content)

    def start(self):
        return f'start {json.dumps(str(self.folder))}'

    def make_old_games(self):
        self.restore()
        lines = [self.start(), 'autosave on'] + BEGIN + MONTH + ['set Money 4242'] + SAVE_BY_FORM
        self.program(True).ask([line.replace('New', 'Old') for line in lines])
        assert self.program(True).ask(['text frmMonthBanner.Label1'])[0]['text'] == 'Game Saved'
        self.old = self.files()

    def play(self, scenario, at, reason, mode):
        """The replies, the files before and after, what was told, and how often the system was called."""
        prepare, do, _, well = SCENARIOS[scenario]
        console = prepare is not None
        self.restore(without_save=console and '# no Save' in prepare)
        program = self.program(console)
        if console:
            assert len(program.ask([self.start()] + prepare)) > 1, f'{scenario}: the console has ended'
        before = self.files()
        self.plan.arm(self.folder, at, reason, mode)
        replies = program.ask(do)
        seen, calls = self.plan.disarm()
        told = ''
        if mode != DIE:
            assert len(replies) == len(do), f'{scenario}: the program has ended'
            if console:
                told = ' '.join(reply['text'] for reply in program.ask([f'text {name}' for name in TOLD]))
            else:
                told = replies[-1]['text']
        seems_well = None
        if well and mode != DIE:
            reply = replies[-1] if not console else program.ask([well[0]])[0]
            seems_well = next(value for key, value in reply.items() if key != 'ok')
        return before, self.files(), told, seems_well, seen, calls

    def check(self, why, scenario, good, outcome, reason, mode):
        before, after, told, seems_well, _, _ = outcome
        _, new, _, well_then, _, _ = good
        _, _, file, _ = SCENARIOS[scenario]
        for name, content in after.items():
            if name.endswith('.new'):
                continue
            if name.endswith('.sum'):
                about = after.get(name[:-4])
                assert about is None or sum_of(about) in content, f'{why}: {name} makes {name[:-4]} look wrong'
                continue
            assert content in (before.get(name), new.get(name)), f'{why}: {name} is neither old nor new: {content[:80]}'
        lost = [name for name in before if name not in after]
        assert not lost, f'{why}: {lost} gone'
        if mode == DIE:
            return
        served = after.get(file) == new[file] if file else seems_well == well_then
        text = os.strerror(errno.ENOSPC if mode == ZERO else reason)
        harmless = reason == errno.EINTR or mode == SHORT
        assert served or not harmless, f'{why}: not done, though nothing was wrong: {told}'
        if not served:
            about = (file or {'l': 'Save/Save1', 'c': 'Save/Continue', 'r': 'settings'}.get(scenario[0], ''))
            if scenario.startswith('look'):
                about = 'Data/Top'
            assert Path(about).name in told and text in told, f'{why}: told only "{told}"'

    def next_start(self, why, console):
        if not console:
            return  # the settings have no start of their own: the next writing clears what is left
        self.program(True).ask([self.start()])
        left = [name for name in self.files() if name.endswith('.new')]
        assert not left, f'{why}: {left} left after the next start'

    def run(self, scenario):
        console = SCENARIOS[scenario][0] is not None
        good = self.play(scenario, 0, 0, COUNT)
        seen, calls = good[4], good[5]
        assert seen > 0, f'{scenario}: nothing was asked of the system'
        for letter in calls:
            self.seen[LETTERS[letter]] = self.seen.get(LETTERS[letter], 0) + 1
        faults = [(error, ONCE) for error in ERRORS] + [(error, FROM_THEN_ON) for error in ERRORS]
        faults += [(0, SHORT), (0, ZERO), (0, DIE)]
        number = 0
        for at in range(1, seen + 1):
            for reason, mode in faults:
                number += 1
                if (mode == ZERO and calls[at - 1] != 'w') or (mode == SHORT and calls[at - 1] not in 'rw'):
                    continue
                if number % self.step and mode != DIE or mode == DIE and self.step > 1 and at % 3:
                    continue
                self.trial(scenario, console, good, (at, LETTERS[calls[at - 1]]), reason, mode)
        print(f'{scenario}: {seen} calls')

    def trial(self, scenario, console, good, call, reason, mode):
        mode_name = ('', 'once', 'from then on', 'short', 'zero', 'the end')[mode]
        why = f'{scenario}, call {call[0]} ({call[1]}), {mode_name}, {os.strerror(reason)}'
        outcome = self.play(scenario, call[0], reason, mode)
        if mode == DIE:
            status = self.programs.pop(console).end()
            assert status == 99, f'{why}: status {status}'
        self.check(why, scenario, good, outcome, reason, mode)
        self.next_start(why, console)
        self.trials += 1


def main():
    work = Path(tempfile.mkdtemp(prefix='quenvale-failures-'))
    suite = Suite(work, 1 if '--all' in sys.argv else 7)
    try:
        for scenario in SCENARIOS:
            suite.run(scenario)
    finally:
        for program in suite.programs.values():
            program.end()
        shutil.rmtree(work)
    print(f'{suite.trials} failed or last calls; {suite.seen}')
    assert suite.trials > 200, 'hardly anything was tried'


main()
