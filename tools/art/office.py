"""The president's office: the empty room at night, the same in a revolt, and what of it goes on beside the screen.

The pieces that the state of the country adds are in office_layers.py; each is cut here to its place in the game's
table and to what lies in front of it.
"""
import dataclasses
import math
import pathlib
import re
from typing import Callable

import office_layers as pieces
from emblem import emblem_symbol
from office_beyond import above, below, left, right
from office_portrait import portrait
from office_room import OPENING, desk, front_of_the_window, room
from office_view import fence, outside
from outlaws import convict_cloth
from palette import INK, OCHRE, SUN
from people import crowd
from recolour import DESK_RAMP, ROOM_RAMP, in_red_light
from scenery import flame, plume
from svg import group, layers, path, placed, polygon, rect, stroke
from texture import dots, filters, grain, rays

TOP = 50                # of the scene on the screen: the menu lies above it
WIDTH, HEIGHT = 800, 550

TABLE = pathlib.Path(__file__).resolve().parents[2] / 'src' / 'office' / 'layers.cpp'
ROW = re.compile(r'\{"images/office/([\w-]+)\.png", +\{ *(-?\d+), *(-?\d+), *(\d+), *(\d+)\}')


def places():
    """Where each picture lies on the screen: x, y, width, height by name, as the game's table says."""
    return {name: tuple(map(int, place)) for name, *place in ROW.findall(TABLE.read_text(encoding='utf-8'))}


@dataclasses.dataclass(frozen=True)
class Piece:
    draw: Callable[[], str]
    mask: str = 'panes'     # what lies in front: 'panes' the room, 'desk' the desk alone, '' nothing


PIECES = {
    'searchlights': Piece(pieces.searchlights), 'warships': Piece(pieces.warships),
    'fires-weak': Piece(pieces.fires_weak), 'fires-strong': Piece(pieces.fires_strong),
    'naval-lights': Piece(pieces.naval_lights), 'air-lights': Piece(pieces.air_lights),
    'prison-some': Piece(pieces.prison_some), 'prison-full': Piece(pieces.prison_full),
    'city-rich': Piece(pieces.city_rich), 'city-poor': Piece(pieces.city_poor),
    'fog': Piece(pieces.fog),
    'crowd-some': Piece(pieces.crowd_some), 'crowd-full': Piece(pieces.crowd_full),
    'mob-some': Piece(pieces.mob_some), 'mob-full': Piece(pieces.mob_full), 'torches': Piece(pieces.torches),
    'fence': Piece(fence), 'helicopter': Piece(pieces.helicopter_layer),
    'sentries-content': Piece(pieces.sentries_content), 'sentries-sullen': Piece(pieces.sentries_sullen),
    **{'sold-%d' % (i + 1): Piece(lambda i=i: pieces.sold(i)) for i in range(3)},
    **{'banner-' + sign: Piece(lambda sign=sign: pieces.banners(sign)) for sign in pieces.SIGNS},
    **{'portrait-%d' % i: Piece(lambda i=i: portrait(i), '') for i in range(4)},
    **{'guards-%d' % i: Piece(lambda i=i: pieces.guards(i), 'desk') for i in (1, 2)},
    **{'envelopes-%d' % i: Piece(lambda i=i: pieces.envelopes(i), '') for i in range(1, 6)},
}


def night():
    return _on_screen(0, TOP, _through_the_window(outside()), group('room', room()), group('desk', desk()), _grain())


def piece(name):
    """One of PIECES, moved so that its place begins at 0, 0."""
    x, y, *_ = places()[name]
    mask = PIECES[name].mask
    attributes = {'mask': 'url(#%s)' % mask} if mask else {}
    cut = group('piece', PIECES[name].draw(), **attributes)
    return _on_screen(x, y, '<g filter="url(#printed)">\n%s\n</g>' % cut)


def piece_definitions(name):
    return layers(*(_MASKS[mask]() for mask in (PIECES[name].mask,) if mask), _PRINTED)


def _through_the_window(drawing):
    return layers('<clipPath id="opening">%s</clipPath>' % path(OPENING, '#000'),
                  '<g clip-path="url(#opening)">\n%s\n</g>' % drawing)


def _on_screen(x, y, *parts):
    return placed(-x, -y, *parts)


def _grain():
    return placed(0, TOP, grain(WIDTH, HEIGHT, .15, .05))


def _blackened(drawing):
    """Its outlines as a mask; what is half transparent, as smoke and halftone, hides nothing."""
    solid = re.sub(r'<path [^>]*opacity="[^>]*/>|<use [^>]*/>', '', drawing)
    return re.sub(r'#[0-9A-Fa-f]{6}', '#000000', re.sub(r' id="[^"]*"', '', solid))


def _panes_mask():
    return _mask('panes', path(OPENING, '#FFFFFF'), _blackened(front_of_the_window()))


def _desk_mask():
    return _mask('desk', rect(0, 0, 900, 600, '#FFFFFF'), _blackened(desk()))


def _mask(name, *parts):
    return '<mask id="%s" maskUnits="userSpaceOnUse" x="0" y="0" width="900" height="600">\n%s\n</mask>' % (
        name, layers(*parts))


_MASKS = {'panes': _panes_mask, 'desk': _desk_mask}

# The grain of the print, but only where the piece is.
_PRINTED = (
    '<filter id="printed" filterUnits="userSpaceOnUse" x="0" y="0" width="900" height="600" '
    'color-interpolation-filters="sRGB">\n'
    '<feTurbulence type="fractalNoise" baseFrequency="0.85" numOctaves="2" seed="7"/>\n'
    '<feColorMatrix type="matrix" values="0 0 0 0 0.08  0 0 0 0 0.06  0 0 0 0 0.05  0 0 0 -9 4.6"/>\n'
    '<feComponentTransfer><feFuncA type="linear" slope=".15"/></feComponentTransfer>\n'
    '<feComposite operator="in" in2="SourceAlpha" result="speck"/>\n'
    '<feMerge><feMergeNode in="SourceGraphic"/><feMergeNode in="speck"/></feMerge>\n</filter>')


def definitions():
    return layers(emblem_symbol(), filters(), convict_cloth())


def revolt():
    """The people are at the gates: fire instead of the night, and a stone through the window."""
    view = _through_the_window(layers(_red_sky(), in_red_light(_without_night(outside())), _fires(), _people()))
    return _on_screen(0, TOP, view, in_red_light(layers(room(), portrait(1)), ROOM_RAMP), _glow_on_the_walls(),
                      group('broken-pane', _through_the_window(_hole()).replace('id="opening"', 'id="opening-again"')),
                      in_red_light(desk(), DESK_RAMP), _glow_on_the_desk(), _grain())


def _without_night(view):
    return re.sub(r'<g id="(sky|stars|moon|smoke)">.*?\n</g>', '', view, flags=re.S)


def _red_sky():
    return layers(rect(100, 50, 600, 400, '#D42A1C'), rays(400, 320, 26, 460, '#F0602C', turn=.04),
                  dots(100, 54, 700, 330, 8, lambda x, y: 4.6 - math.hypot(x - 400, y - 320) / 60, SUN, .9))


def _fires():
    smoke = ((190, 300, -60, 20, 6, '#571414', 2), (196, 300, -30, 18, 4, '#2E0C09', 4),
             (610, 310, 70, 20, 7, '#571414', 5), (604, 306, 40, 18, 4, '#2E0C09', 7))
    burning = ((150, 300, .5), (190, 306, .9), (222, 300, .6), (590, 318, .7), (616, 314, 1), (650, 312, .6),
               (350, 300, .4), (470, 300, .5))
    return layers(*(plume(x, y, drift, -230, first, first * 4.4, puffs, fill, seed)
                    for x, y, drift, puffs, first, fill, seed in smoke),
                  *(flame(x, y, size) for x, y, size in burning))


def _people():
    def row(x0, x1, y, size, fill, seed, **more):
        return crowd(x0, x1, y, size, fill, seed, hats=.3, **{'fists': .5, 'step': 14, **more})
    return layers(row(310, 490, 322, .32, '#B8431F', 5, depth=14),
                  row(276, 526, 338, .42, '#8E2A16', 6, flags=.06, flag_fill=SUN, depth=18),
                  row(232, 572, 358, .56, '#6A1912', 7, flags=.05, flag_fill=OCHRE, depth=26),
                  pieces.torches(),
                  row(150, 660, 392, .86, '#8E1B14', 9, flags=.05, signs=.04, flag_fill=OCHRE, step=15, depth=60),
                  pieces.banners('peasants', 5),
                  row(100, 710, 428, 1.25, INK, 12, fists=.62, flags=.05, flag_fill=SUN, step=18, depth=80))


def _hole():
    """Where the stone went through: a star, the cracks around it and a ring that joins their ends."""
    cx, cy = 589, 194
    star = ((566, 214), (548, 196), (560, 186), (556, 168), (574, 172), (584, 152), (596, 170), (620, 160), (612, 180),
            (634, 190), (614, 200), (622, 222), (600, 214), (588, 236), (582, 216))

    def beyond(point, times):
        return cx + (point[0] - cx) * times, cy + (point[1] - cy) * times
    cracks = ''.join('M%.1f,%.1f L%.1f,%.1f ' % (*point, *beyond(point, 1.5 + .11 * (i * 7 % 5) if i % 2 else 1.16))
                     for i, point in enumerate(star))
    web = polygon([beyond(point, 1.36) for point in star[1::2]])
    edge = polygon(star)
    splinters = 'M548,196 L560,186 L570,194 Z M620,160 L612,180 L602,178 Z M588,236 L582,216 L594,214 Z'
    return layers(path(edge, INK), path(splinters, '#E8702E'), stroke(edge, '#FFE0A0', 1.6),
                  stroke(cracks, '#FFE0A0', 1.2), stroke(web, '#FFE0A0', .9))


def _glow_on_the_walls():
    return layers(dots(0, 60, 104, 470, 8, lambda x, y: 2.6 - (104 - x) / 34, '#C4301F', .6),
                  dots(696, 60, 800, 470, 8, lambda x, y: 2.6 - (x - 696) / 34, '#C4301F', .6))


def _glow_on_the_desk():
    return dots(0, 470, 800, 566, 8, lambda x, y: 3.6 - math.hypot((x - 400) * .45, (y - 470) * 1.6) / 40, '#E2542A',
                .55)


# What goes on beside the 4:3 of the screen, from where its place in the table begins.
BEYOND = {'left': left, 'right': right, 'above': above, 'below': below}


def beyond(side):
    x, y, *_ = places()['night-' + side]
    return _on_screen(x, y, BEYOND[side]())


def beyond_in_revolt(side):
    return in_red_light(beyond(side), ROOM_RAMP)
