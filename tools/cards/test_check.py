#!/usr/bin/python3
"""Spoils a copy of the real cards, one fault at a time, and expects `check` to find it where it is."""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
ASSETS = HERE.parents[1] / "assets"

# why, card, what is replaced, by what, the line of the complaint, a part of the complaint
FAULTS = (
    ("a letter among the numbers", "7", "0,0,0,0,0,-4", "0,0,0,0,0,-x", 1, "strength of Army: expected a whole"),
    ("a number beyond 16 bits", "7", "\r\n2\r\n", "\r\n40000\r\n", 3, "the Americans: expected a whole number"),
    ("a number out of bounds", "7", "1,3,8,", "1,3,80,", 2, "opposition of Army: expected -15..15, found 80"),
    ("a number too many", "7", "\r\n2\r\n", "\r\n2,2\r\n", 6, "expected 22 items, found 23"),
    ("a number in quotes", "7", "\r\n2\r\n", '\r\n"2"\r\n', 3, "the Americans: expected a whole number"),
    ("a text without quotes", "7", '"a more modest parade"', "a more modest parade", 4, "title: expected a text"),
    ("a quote within a text", "7", "a more", 'a "more', 4, "expected a comma or CR LF"),
    ("a line end without CR", "7", "\r\n2\r\n", "\n2\r\n", 2, "expected a comma or CR LF"),
    ("an odd character", "7", "a more", "a\u00a0more", 4, "title: expected plain ASCII"),
    ("the president's title spelt otherwise", "7", "Mr.President", "Mr. President", 6, 'expected "Mr.President"'),
    ("side effects too long for the note", "7", "The landowners ask",
     "The landowners ask by letter, by telegram and by telephone", 5, "side effects: expected at most 13 lines"),
    ("the angriest left out", "7", "The army gives", "It gives", 6, "name Army, whose opposition changes by 8"),
    ("a title of one word", "7", "a more modest parade", "parades", 4, "title: expected 2 to 8 words, found 1"),
    ("the price of an offer left out", "R7", "from the army", "from them", 1, "name Army, whose opposition"),
    ("a gain from two cards in turns", "8", "2,2,1", "2,1,1", 2, "opposition of Peasants: expected no gain"),
    ("a variant that forgets who pays", "../Data/variants/R7", "of the army's money", "of their money", 1, "name Army"),
    ("a variant of another size", "../Data/variants/M4", '."\r\n"Mr.President, the decree', '. Mr.President, the decree', 5,
     "expected sets of 2 texts, found 5"),
    ("a variant with a figure", "../Data/variants/21", "twenty thousand", "20,021", 2, "expected no figures"),
    ("a variant too long for the banner", "../Data/variants/10", "It breathes", "It breathes" + ", slowly" * 15, 2,
     "result: expected at most 150 characters"),
    ("a variant that begins like another card's", "../Data/variants/7", "the cavalry has", "the army has", 1,
     "expected an opening of its own"),
    ("a gain from asking again and again", "24", "3,2,0", "3,-2,0", 2, "this action can be repeated"),
)


def complaints(folder):
    run = subprocess.run([sys.executable, HERE / "check", "--folder", folder], capture_output=True, text=True,
                         check=False)
    return run.returncode, run.stderr


class Check(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name) / "Actions"
        for name in ("Actions", "Data/variants"):
            shutil.copytree(ASSETS / name, self.folder.parent / name)

    def test_finds_each_fault_where_it_is(self):
        for why, name, old, new, line, complaint in FAULTS:
            with self.subTest(why):
                card = self.folder / name
                good = card.read_bytes()
                self.assertEqual(good.count(old.encode()), 1, "the card no longer holds what this case spoils")
                card.write_bytes(good.replace(old.encode(), new.encode()))
                status, said = complaints(self.folder)
                card.write_bytes(good)
                self.assertEqual(status, 1)
                self.assertIn(f"{card.name}:{line}: ", said)
                self.assertIn(complaint, said)

    def test_finds_missing_files_and_strangers(self):
        (self.folder / "M3").rename(self.folder / "M8")
        (self.folder.parent / "Data/variants/9").unlink()
        status, said = complaints(self.folder)
        self.assertEqual(status, 1)
        self.assertIn("M3:1: cannot be read", said)
        self.assertIn("M8:1: expected no other file", said)
        self.assertIn("variants/9:1: cannot be read", said)

    def test_accepts_the_cards_of_the_game(self):
        self.assertEqual(complaints(self.folder), (0, ""))


if __name__ == "__main__":
    unittest.main()
