"""Whether the texts in the pictures, and those that the game writes on the paper, can be read.

    failures()      # one line for each pair of colours that is too close; empty if all is well

The measure is the usual ratio of relative luminances, from 1 for equal colours to 21 for black on white.
"""
from country_map import LAND_INK
from menu import HOT_FACE, NORMAL_FACE
from palette import BAND_TEXT, CARBON, CREAM, INK, PAPER, RED, RED2, News

SMALL_TEXT = 4.5        # the smallest ratio for text
LARGE = 3.0             # for bold text of 19 pixels or more and for shapes such as the focus ring


def luminance(colour):
    channels = [int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5)]
    red, green, blue = [c / 12.92 if c <= .03928 else ((c + .055) / 1.055) ** 2.4 for c in channels]
    return .2126 * red + .7152 * green + .0722 * blue


def ratio(one, other):
    darker, lighter = sorted((luminance(one), luminance(other)))
    return (lighter + .05) / (darker + .05)


def hatched(colour, opacity):
    """A land's colour where a hatching line covers it."""
    over = [round(int(colour[i:i + 2], 16) * (1 - opacity) + int(INK[i:i + 2], 16) * opacity) for i in (1, 3, 5)]
    return '#%02X%02X%02X' % tuple(over)


def pairs():
    """(what, colour, colour of the ground, smallest ratio)"""
    found = [
        ('text on paper', INK, PAPER, SMALL_TEXT),
        ('text on the secret sheet', CREAM, CARBON, SMALL_TEXT),
        ('Sold! stamp', RED, BAND_TEXT, SMALL_TEXT),
        ('newspaper text', News.INK, News.LIGHT, SMALL_TEXT),
        ('newspaper headline', News.RED, News.LIGHT, SMALL_TEXT),
        ('map: Quenvale', RED2, LAND_INK['quenvale'], SMALL_TEXT),
    ]
    for ground in NORMAL_FACE:
        found.append(('menu key', CREAM, ground, SMALL_TEXT))
    for ground in HOT_FACE:
        found.append(('highlighted menu key', INK, ground, SMALL_TEXT))
    for land in ('hermosita', 'feraz', 'descalza'):
        found.append(('map: ' + land, INK, hatched(LAND_INK[land], .2), LARGE))
    return found


def failures():
    return ['%s: %s on %s is %.2f, %.1f wanted' % (what, colour, ground, ratio(colour, ground), wanted)
            for what, colour, ground, wanted in pairs() if ratio(colour, ground) < wanted]
