#!/usr/bin/env python3
"""Amounts are written as the user's country writes them, and what is written into files is the same everywhere.

The locales are made here, by localedef, so that the machine need not have them. Names in any script are kept as typed.
"""
import json
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

# The treasury of fifty million, and the guerrillas' share of all strength.
WRITTEN = {
    "C": ("50,000,000", "4.6%"),
    "de_DE": ("50.000.000", "4,6%"),
    "fr_FR": ("50\u202f000\u202f000", "4,6%"),
    "tr_TR": ("50.000.000", "4,6%"),
}
NAME = "Ğ Ülkü Иван 大統領 İı"


class Locales(unittest.TestCase):
    def setUp(self):
        self.scratch = pathlib.Path(tempfile.mkdtemp(prefix="quenvale-locales."))
        self.addCleanup(shutil.rmtree, self.scratch)
        for name in WRITTEN:
            if name != "C":
                subprocess.run(["localedef", "-i", name, "-f", "UTF-8", self.scratch / f"{name}.UTF-8"],
                               check=True, stdout=subprocess.DEVNULL)

    def play(self, name):
        """Texts from the screens, and every byte that was written."""
        folder = self.scratch / f"play-{name}"
        shutil.copytree(pathlib.Path(os.environ["QUENVALE_SOURCE"]) / "assets", folder,
                        ignore=shutil.ignore_patterns("images", "sound", "manual"))
        language = "C" if name == "C" else f"{name}.UTF-8"
        requests = [f"start {json.dumps(str(folder))}", "autosave on", "seed 3", "click frmlogo", "click frmStart.Command1",
                    f"type frmName.Text1 {json.dumps(NAME, ensure_ascii=False)}", "click frmName.Command3", "click frmMain.Label5(1)",
                    "text frmTaxes.Label22", "click frmMain.Label5(2)", "text frmPolice.lblPER(8)", "get PlayerName",
                    "click frmMain.Label5(5)", "click frmOptions.Label5(6)", "click frmSave.Option1", "click frmSave.Command1",
                    "click frmMain.Label5(4)", "set SwissBank 2000000000", "call TopTen"]
        environment = {**os.environ, "LOCPATH": str(self.scratch), "LC_ALL": language}
        answers = subprocess.run([os.environ["QUENVALE_CONSOLE"]], input="".join(line + "\n" for line in requests), text=True,
                                 encoding="utf-8", capture_output=True, check=True, env=environment).stdout.splitlines()
        replies = [json.loads(line) for line in answers]
        for request, reply in zip(requests, replies, strict=True):
            self.assertTrue(reply["ok"], f"{request}: {reply}")
        self.assertEqual(replies[11]["value"], NAME)
        written = {str(file.relative_to(folder)): file.read_bytes() for part in ("Save", "Data")
                   for file in sorted((folder / part).rglob("*")) if file.is_file()}
        return (replies[8]["text"], replies[10]["text"]), written

    def test_separators_and_files(self):
        played = {name: self.play(name) for name in WRITTEN}
        for name, (texts, written) in played.items():
            self.assertEqual(texts, WRITTEN[name], name)
            self.assertEqual(written, played["C"][1], name)
        self.assertIn(NAME.encode(), written["Data/Top"])


if __name__ == "__main__":
    unittest.main()
