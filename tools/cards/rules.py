"""What a card must keep to besides its format: the bounds of its numbers, the room of its texts, and that its text
says what its numbers do. Each rule is a generator of problems; `problems_of` runs those for one card, and
`problems_between` those that compare cards.
"""
import re
import textwrap

from cards import GROUPS, Problem

# Largest change of one number. Revolts begin at a strength of 12 to 30 and an opposition of 65, so more than this
# would decide a game with one click.
BOUNDS = {"strength": 10, "opposition": 15, "americans": 30}

# words: fewest and most. chars: most, so that the text fits its place on the screen.
ROOM = {
    # text           words     chars
    "title":        ((2, 8),   40),   # one line of the band, after "Police report for "
    "request":      ((30, 60), 330),  # four lines above the table
    "offer":        ((30, 60), 330),
    "side effects": ((25, 60), 330),
    "result":       ((3, 25),  150),  # the banner
}
# The note beside the table is 24 typed characters wide; a request's text above the table takes three lines from it.
NOTE_WIDTH = 24
NOTE_LINES = {"action": 13, "request": 10}

# From which change on the text must name the group. An offer only has its price to tell.
NAMED_FROM = {
    # kind:      opposition, strength, the Americans
    "action":   (5,  4,  5),
    "request":  (5,  4,  5),
    "offer":    (10, 5,  7),
}
STEMS = {group: group.lower() for group in GROUPS}  # "Army" is found in "the army", whatever the case

ASKER = dict(enumerate(GROUPS[:7], start=1))  # who makes offer number n

BUDGET_PAIRS = [(str(n), str(n + 1)) for n in range(1, 12, 2)]  # decrease, increase of the same line
REPEATABLE = "24"  # asking for aid is not barred after the first time in a month


def within_bounds(card):
    for what, rows in (("strength", card.strength), ("opposition", card.opposition),
                       ("americans", {"the Americans": card.americans})):
        for group, change in rows.items():
            if abs(change) > BOUNDS[what]:
                yield Problem(card.path, card.lines[what],
                              f"{what} of {group}: expected {-BOUNDS[what]}..{BOUNDS[what]}, found {change}")


def texts_fit(card):
    for name, item in card.texts.items():
        (fewest, most), chars = ROOM[name]
        words = len(item.value.split())
        if not fewest <= words <= most:
            yield Problem(card.path, item.line, f"{name}: expected {fewest} to {most} words, found {words}")
        if len(item.value) > chars:
            yield Problem(card.path, item.line,
                          f"{name}: expected at most {chars} characters, found {len(item.value)}")
        if name == "side effects":
            lines = len(textwrap.wrap(item.value, NOTE_WIDTH))
            if lines > NOTE_LINES[card.kind]:
                yield Problem(card.path, item.line, f"{name}: expected at most {NOTE_LINES[card.kind]} lines of "
                              f"{NOTE_WIDTH} characters, found {lines}")


def texts_are_clean(card):
    for name, item in card.texts.items():
        odd = sorted(set(re.findall(r"[^ -~]", item.value)))
        if odd:
            yield Problem(card.path, item.line, f"{name}: expected plain ASCII, found {''.join(odd)!r}")
        if "  " in item.value or item.value != item.value.strip():
            yield Problem(card.path, item.line, f"{name}: expected single blanks, found too many")
        if re.search(r"(?i)mr\.? +president|mr\.president", item.value.replace("Mr.President", "")):
            yield Problem(card.path, item.line, f'{name}: expected "Mr.President", found it spelt otherwise')
        if name == "title":
            if item.value.endswith(".") or item.value[:1].isupper():
                yield Problem(card.path, item.line, 'title: expected the end of "Police report for ...", '
                              f"found {item.value!r}")
        elif item.value[-1:] not in (".", "?"):
            yield Problem(card.path, item.line, f"{name}: expected a full stop at its end")
    result = card.texts.get("result")
    if result and not result.value.startswith("Mr.President, "):
        yield Problem(card.path, result.line, 'result: expected "Mr.President, ..." from the secretary')


def text_names_those_concerned(card):
    said = " ".join(item.value for name, item in card.texts.items() if name != "result").lower()
    opposition_from, strength_from, americans_from = NAMED_FROM[card.kind]
    speaker = ASKER[card.number] if card.kind == "offer" else None
    last = max(item.line for item in card.texts.values())

    def missing(group, what, change):
        return Problem(card.path, last, f"expected the text to name {group}, whose {what} changes by {change}")

    for group in GROUPS:
        if group == speaker or STEMS[group] in said:
            continue
        if abs(card.opposition[group]) >= opposition_from:
            yield missing(group, "opposition", card.opposition[group])
        elif abs(card.strength[group]) >= strength_from:
            yield missing(group, "strength", card.strength[group])
    if abs(card.americans) >= americans_from and "american" not in said:
        yield missing("the Americans", "hostility", card.americans)


def problems_of(card):
    for rule in (within_bounds, texts_fit, texts_are_clean, text_names_those_concerned):
        yield from rule(card)


def problems_between(cards):
    """Cards that could be played in turns for nothing."""
    for down, up in BUDGET_PAIRS:
        for group in GROUPS:
            total = cards[down].opposition[group] + cards[up].opposition[group]
            if total < 0:
                yield Problem(cards[up].path, cards[up].lines["opposition"], f"opposition of {group}: expected no "
                              f"gain from card {down} and card {up} in turns, found {total}")
    asked = cards[REPEATABLE]
    for what, changes in (("opposition", asked.opposition.values()), ("americans", [asked.americans])):
        if min(changes) < 0:
            yield Problem(asked.path, asked.lines[what], f"{what}: expected no gain, as this action can be repeated "
                          f"within a month, found {min(changes)}")
