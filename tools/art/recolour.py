"""A finished drawing in other inks: every colour of its SVG is replaced by where it stands on a ramp.

    printed(palace(PRINT))      # in the newspaper's three inks
    in_red_light(room())        # as a burning city lights it
"""
import re

from palette import News

PRINT_RAMP = ((.0, News.INK), (.16, News.SOOT), (.30, News.GREY), (.48, News.MUD), (.64, News.PAPER), (1.0, News.LIGHT))
CITY_RAMP = ((.0, '#14110F'), (.10, '#2E0C09'), (.17, '#571414'), (.27, '#8E1B14'), (.42, '#C4301F'), (.58, '#E8702E'),
             (.74, '#F2C14E'), (1.0, '#FFF0C4'))
ROOM_RAMP = ((.0, '#14110F'), (.10, '#3A0D0A'), (.17, '#6A1410'), (.27, '#9A1C14'), (.42, '#C9281B'), (.58, '#E04024'),
             (.74, '#F07A30'), (1.0, '#FFD98A'))
DESK_RAMP = ((.0, '#14110F'), (.10, '#2A0A08'), (.17, '#4A100D'), (.27, '#7A1712'), (.42, '#B8261B'), (.58, '#DC3C22'),
             (.74, '#E8702E'), (1.0, '#FFE0A0'))

COLOUR = re.compile('#[0-9A-Fa-f]{6}')


def _channels(colour):
    return [int(colour[i:i + 2], 16) for i in (1, 3, 5)]


def _lightness(colour):
    red, green, blue = _channels(colour)
    return (.3 * red + .59 * green + .11 * blue) / 255


def _on_ramp(lightness, ramp):
    for (low, dark), (high, light) in zip(ramp, ramp[1:]):
        if lightness <= high:
            part = (lightness - low) / (high - low)
            return '#' + ''.join('%02X' % round(a * (1 - part) + b * part)
                                 for a, b in zip(_channels(dark), _channels(light)))
    return ramp[-1][1]


def printed(drawing):
    """Reds stay the newspaper's red; the rest goes by its lightness."""
    def ink(match):
        red, green, blue = _channels(match.group())
        if red > 120 and red > 2.2 * green and red > 2 * blue:
            return News.RED
        return _on_ramp(_lightness(match.group()), PRINT_RAMP)
    return COLOUR.sub(ink, drawing)


def in_red_light(drawing, ramp=CITY_RAMP):
    return COLOUR.sub(lambda match: _on_ramp(_lightness(match.group()), ramp), drawing)
