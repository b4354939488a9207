"""Reads the other texts of the cards, Data/variants beside the folder of the cards, and judges each set as if it stood
on its card: the same room, the same cleanliness, the same groups named.

    variants, problems = read_variants(card, folder)     # cards with other texts; what is wrong with the file
    openings_of_their_own(cards, variants)               # what begins like another text
"""
import collections
import dataclasses
import re

from cards import TEXTS, Item, Problem, split_items
from rules import ROOM, text_names_those_concerned, texts_are_clean, texts_fit

# What changes from month to month; the police report on an action's card stays.
VARIED = {"action": ("result",), "request": ("request", "result"), "offer": ("offer",)}
# Whose result is never read: the one has no button, and to the other the Americans themselves reply.
WITHOUT = ("23", "24")
FEWEST = 2  # sets beside the card's own
# So many words at the beginning of a text, behind "Mr.President,", are nobody else's.
OPENING = 3


def read_variants(card, folder):
    path = folder / card.name
    try:
        content = path.open(encoding="utf-8", newline="").read()
    except (OSError, UnicodeDecodeError) as error:
        return [], [Problem(path, 1, f"cannot be read: {error}")]
    items, problems = split_items(content, path)
    names = VARIED[card.kind]
    if not problems and len(items) % len(names):
        problems.append(Problem(path, items[-1].line, f"expected sets of {len(names)} texts, found {len(items)}"))
    if not problems and len(items) < FEWEST * len(names):
        problems.append(Problem(path, 1, f"expected at least {FEWEST} sets beside the card's own, found "
                                f"{len(items) // len(names)}"))
    problems += [Problem(path, item.line, f"expected a text in double quotes, found {item.value!r}")
                 for item in items if not item.quoted]
    if problems:
        return [], problems
    sets = [dict(zip(names, items[at:at + len(names)])) for at in range(0, len(items), len(names))]
    variants = [with_texts(card, path, each) for each in sets]
    return variants, [problem for variant in variants for problem in problems_of_one(variant, names)]


def with_texts(card, path, varied):
    """The card as it reads in such a month; its own texts complain where the others stand."""
    line = min(item.line for item in varied.values())
    texts = {name: Item(card.texts[name].value, True, line) for name in TEXTS[card.kind]}
    return dataclasses.replace(card, path=path, texts=texts | varied)


def problems_of_one(variant, names):
    for rule in (texts_fit, texts_are_clean, text_names_those_concerned):
        yield from rule(variant)
    for name in names:
        item = variant.texts[name]
        if re.search(r"\d", item.value):
            yield Problem(variant.path, item.line, f"{name}: expected no figures, which a card's numbers could belie")


def openings_of_their_own(cards, variants):
    """No variant begins like a card or another variant, so that nothing is said twice either."""
    for name in ROOM:
        if name in ("title", "side effects"):
            continue
        seen = collections.defaultdict(list)
        for card in [*cards, *variants]:
            if name in card.texts:
                item = card.texts[name]
                words = item.value.removeprefix("Mr.President, ").lower().split()
                seen[" ".join(words[:OPENING])].append((card.path, item.line, card in variants))
        for opening, places in seen.items():
            for path, line in [place[:2] for place in places[1:] if place[2]]:
                yield Problem(path, line, f"{name}: expected an opening of its own, found {opening!r} again "
                              f"({places[0][0].name}:{places[0][1]})")
