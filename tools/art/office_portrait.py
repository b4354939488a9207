"""The portrait on the wall of the office, which ages as its owner does."""
import dataclasses
from typing import Callable

from emblem import star
from palette import INK, MAROON, OCHRE, OCHRE2, RED, SKIN2, SUN
from president import president
from svg import clipped, layers, path, placed, rect, stroke
from texture import rays

MOUSTACHE = '288,274 C272,250 246,248 229,256 Z'       # how its outline ends; the only hair under the cap


def portrait(stage):
    """His picture on the wall, 84 x 106 at 8,112. Stages 0 to 3: each a year or two older, the frame richer."""
    age = PORTRAITS[stage]
    lower, upper = age.frame
    return layers(rect(13, 117, 84, 106, '#000', opacity='.35'), rect(8, 112, 84, 106, lower, 2),
                  rect(8, 112, 84, 4, upper), rect(8, 112, 4, 106, upper), rect(14, 118, 72, 94, '#2E150C'),
                  placed(17, 122, clipped('portrait-frame', 66, 86, _likeness(age))), age.ornament(upper))


def _likeness(age):
    bust = president()
    moustache = '%s" fill="%%s"' % MOUSTACHE
    if moustache % INK not in bust:
        raise ValueError('the moustache is not where it was')
    bust = bust.replace(moustache % INK, moustache % age.moustache)
    ground, ray = age.sky
    return layers(rect(0, 0, 66, 86, ground), rays(33, 34, 16, 80, ray),
                  placed(-2, 5, bust, age.lines(), scale=.152), rect(0, 0, 66, 86, MAROON, opacity=age.varnish))


def _no_lines():
    return ''


def _some_lines():
    return stroke('M160,240 C164,256 168,266 172,274 M300,240 C296,256 292,266 288,274 M168,178 H212 M248,178 H292',
                  MAROON, 4)


def _many_lines():
    jowls = ('M170,300 C186,326 210,336 230,336 C250,336 274,326 290,300 C282,350 262,364 230,366 '
             'C198,364 178,350 170,300 Z')
    return layers(_some_lines(), path(jowls, SKIN2))


def _nail(_upper):
    return stroke('M50,112 L30,96 M50,112 L70,96', OCHRE2, 1)


def _plain(_upper):
    return ''


def _stars(_upper):
    return layers(*(path(star(x, y, 8), SUN) for x in (8, 92) for y in (112, 218)))


def _laurels(upper):
    return layers(_stars(upper), path('M24,112 C34,96 66,96 76,112 Z', upper),
                  path('M36,110 C42,102 58,102 64,110 Z', RED),
                  stroke('M8,226 C30,240 70,240 92,226', '#2E5B3C', 5),
                  stroke('M8,226 C30,240 70,240 92,226', OCHRE, 1.2, stroke_dasharray='2 6'))


@dataclasses.dataclass(frozen=True)
class Age:
    moustache: str
    sky: tuple          # ground and rays
    frame: tuple        # in shade and in light
    varnish: float
    lines: Callable[[], str]
    ornament: Callable[[str], str]


PORTRAITS = (
    Age(INK, ('#1E5A5C', '#2F7A78'), ('#6B3A1E', '#93562F'), 0, _no_lines, _nail),
    Age('#4A443C', ('#B97A1C', '#E3A52F'), ('#7A5723', '#B97A1C'), .04, _no_lines, _plain),
    Age('#8E8674', ('#8E1B14', '#B8261B'), ('#B97A1C', '#E3A52F'), .1, _some_lines, _stars),
    Age('#DCD5C2', ('#571414', '#8E1B14'), ('#E3A52F', '#F2C14E'), .2, _many_lines, _laurels),
)
