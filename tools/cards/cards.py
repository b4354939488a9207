"""Reads the card files of assets/Actions.

    card, problems = read_card(pathlib.Path("assets/Actions/7"))
    card.opposition["Army"]        # 7
    card.texts["title"].value      # "a more modest parade"

A card that cannot be read is None, and the problems say why, each with its line.
"""
import dataclasses
import re

GROUPS = ("Workers", "Peasants", "Businessmen", "Industrialists", "Landowners", "Army", "Police", "Guerrillas",
          "Prisoners")

# Which texts a kind of card has. An offer's text comes before its numbers, the others' texts after them.
TEXTS = {
    "action": ("title", "side effects", "result"),
    "request": ("request", "side effects", "result"),
    "offer": ("offer",),
}
KIND_OF_LETTER = {"": "action", "M": "request", "R": "offer"}
CARD_NUMBERS = {"action": range(1, 26), "request": range(1, 8), "offer": range(1, 8)}

ITEM = re.compile(r'"(?P<text>[^"\r\n]*)"|(?P<bare>[^",\r\n]*)')
SEPARATOR = re.compile(r",|\r\n|$")


@dataclasses.dataclass(frozen=True)
class Item:
    value: str
    quoted: bool
    line: int


@dataclasses.dataclass(frozen=True)
class Problem:
    path: object
    line: int
    what: str

    def __str__(self):
        return f"{self.path}:{self.line}: {self.what}"


@dataclasses.dataclass(frozen=True)
class Card:
    path: object
    kind: str
    number: int
    strength: dict    # group -> change of strength
    opposition: dict  # group -> change of opposition, in percent
    americans: int    # change of the Americans' hostility
    texts: dict       # name of the text -> Item
    lines: dict       # "strength", "opposition", "americans" -> line of the first number

    @property
    def name(self):
        return self.path.name


def kind_and_number(name):
    letter, digits = re.fullmatch(r"([MR]?)([1-9]\d*)", name).groups()
    return KIND_OF_LETTER[letter], int(digits)


def expected_names():
    letters = {kind: letter for letter, kind in KIND_OF_LETTER.items()}
    return [f"{letters[kind]}{number}" for kind, numbers in CARD_NUMBERS.items() for number in numbers]


def split_items(content, path):
    """The items of a record file: separated by commas or CR LF, texts in double quotes."""
    items, line, at = [], 1, 0
    while at < len(content):
        match = ITEM.match(content, at)
        quoted = match["text"] is not None
        items.append(Item(match["text"] if quoted else match["bare"].strip(), quoted, line))
        separator = SEPARATOR.match(content, match.end())
        if not separator:
            return items, [Problem(path, line, f"expected a comma or CR LF after item {len(items)}, found "
                                   f"{content[match.end():match.end() + 8]!r}")]
        line += separator[0] == "\r\n"
        at = max(separator.end(), at + 1)
    return items, []


def as_number(item, what, path, problems):
    if item.quoted or not re.fullmatch(r"-?\d{1,5}", item.value) or not -32768 <= int(item.value) <= 32767:
        problems.append(Problem(path, item.line, f"{what}: expected a whole number, found {item.value!r}"))
        return 0
    return int(item.value)


def read_card(path):
    kind, number = kind_and_number(path.name)
    try:
        # newline="" keeps CR LF, so that a bare LF is found.
        content = path.open(encoding="utf-8", newline="").read()
    except (OSError, UnicodeDecodeError) as error:
        return None, [Problem(path, 1, f"cannot be read: {error}")]

    items, problems = split_items(content, path)
    names = TEXTS[kind]
    wanted = 2 * len(GROUPS) + 1 + len(names)
    if not problems and len(items) != wanted:
        problems.append(Problem(path, items[-1].line if items else 1, f"expected {wanted} items, found {len(items)}"))
    if problems:
        return None, problems

    first = len(names) if kind == "offer" else 0
    texts = items[:first] or items[-len(names):]
    numbers = items[first:first + 2 * len(GROUPS) + 1]
    for name, item in zip(names, texts):
        if not item.quoted:
            problems.append(Problem(path, item.line,
                                    f"{name}: expected a text in double quotes, found {item.value!r}"))

    def row(items_of_row, what):
        return {group: as_number(item, f"{what} of {group}", path, problems)
                for group, item in zip(GROUPS, items_of_row)}

    strength, opposition, americans = numbers[:9], numbers[9:18], numbers[18]
    card = Card(path, kind, number, row(strength, "strength"), row(opposition, "opposition"),
                as_number(americans, "the Americans", path, problems), dict(zip(names, texts)),
                {"strength": strength[0].line, "opposition": opposition[0].line, "americans": americans.line})
    return (None if problems else card), problems
