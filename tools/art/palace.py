"""The presidential palace, 420 x 250 with its base line at y=250, and a flag 84 above y=0.

    palace(DAY)      palace(NIGHT)      palace(PRINT)

Light falls from the left. At night some windows are lit; PRINT is the palace in the newspaper's inks.
"""
import dataclasses

from palette import CREAM, INK, MAROON, OCHRE, RED, SUN, TEAL, TEAL2, TEAL3, News
from svg import circle, fmt, layers, path, rect, ring, stroke


@dataclasses.dataclass(frozen=True)
class Paint:
    wall: str
    shaded_wall: str
    shadow: str
    trim: str
    openings: str
    hall: str           # the window behind the balcony
    lamp: str           # a lit window; empty by day
    dome: str
    shaded_dome: str
    pole: str
    cloth: str
    gold: str
    door: str


DAY = Paint('#E9D9AE', '#CDB888', '#A58D58', CREAM, MAROON, MAROON, '', TEAL, TEAL2, INK, RED, OCHRE, INK)
NIGHT = Paint('#D9B368', '#B98C3F', '#7A5723', '#F3D58E', TEAL3, SUN, '#FBE6A2', TEAL, TEAL2, INK, RED, OCHRE, INK)
PRINT = Paint('#E9D9AE', '#CDB888', '#A58D58', CREAM, News.INK, News.INK, '', News.INK, News.INK, INK, News.RED,
              News.LIGHT, INK)


def palace(paint=DAY):
    return layers(_wing(0, paint.wall, paint), _wing(280, paint.shaded_wall, paint), _front(paint), _dome(paint),
                  _columns(paint), _hall_and_door(paint), _balcony(paint))


def _wing(x, wall, paint):
    balusters = ''.join(fmt('M%s,104 l0,-12 l6,0 l0,12 Z', x + i * 15.2 - 4) for i in range(10))
    parts = [
        rect(x, 112, 140, 138, wall),
        rect(x - 6, 104, 152, 9, paint.trim),
        rect(x - 6, 113, 152, 3, paint.shadow),
        path(balusters + fmt('M%s,90 h152 v4 h-152 Z', x - 6), paint.trim),
    ]
    for i in range(4):
        left = x + 14 + i * 32
        lit = paint.lamp and (i + x) % 3 == 1
        parts += [
            path(fmt('M%s,150 v-14 a8,8 0 0,1 16,0 v14 Z', left), paint.lamp if lit else paint.openings),
            rect(left - 3, 150, 22, 3, paint.trim),
            path(fmt('M%s,246 v-44 a12,12 0 0,1 24,0 v44 Z', left - 4), paint.openings),
            rect(left - 6, 200, 3, 46, paint.trim),
            rect(left + 19, 200, 3, 46, paint.trim),
        ]
    parts.append(rect(x - 2, 176, 144, 4, paint.trim))
    return layers(*parts)


def _front(paint):
    return layers(
        rect(126, 78, 168, 172, paint.wall),
        path('M210,78 H294 V250 H210 Z', paint.shaded_wall),
        rect(118, 70, 184, 10, paint.trim),
        rect(118, 80, 184, 3, paint.shadow),
        path('M122,70 L210,36 L298,70 Z', paint.trim),
        path('M140,66 L210,42 L280,66 Z', paint.shaded_wall),
        circle(210, 57, 8, paint.cloth),
        ring(210, 57, 8, paint.gold, 2))


def _dome(paint):
    return layers(
        rect(176, 22, 68, 14, paint.shaded_wall),
        path('M180,22 C180,-8 195,-24 210,-26 C225,-24 240,-8 240,22 Z', paint.dome),
        path('M212,-26 C227,-22 240,-8 240,22 L222,22 C224,2 220,-14 212,-26 Z', paint.shaded_dome),
        rect(207, -44, 6, 20, paint.trim),
        rect(209, -84, 2, 44, paint.pole),
        path('M211,-84 c12,-5 20,5 36,-1 v22 c-14,6 -24,-4 -36,1 Z', paint.cloth),
        circle(228, -72, 6, paint.gold),
        circle(228, -72, 3, paint.cloth))


def _columns(paint):
    parts = []
    for x in (134, 164, 244, 274):
        parts += [rect(x, 84, 12, 166, paint.trim), rect(x + 8, 84, 4, 166, paint.shadow),
                  rect(x - 3, 84, 18, 4, paint.trim), rect(x - 3, 244, 18, 6, paint.trim)]
    return layers(*parts)


def _hall_and_door(paint):
    arch = 'M188,172 v-62 a22,22 0 0,1 44,0 v62 Z'
    parts = [path(arch, paint.hall)]
    if paint.lamp:
        parts.append(path('M192,172 v-60 a18,18 0 0,1 36,0 v60 Z', paint.lamp))
    parts += [stroke(arch, paint.trim, 3), path('M190,250 v-36 a20,20 0 0,1 40,0 v36 Z', paint.door)]
    return layers(*parts)


def _balcony(paint):
    rails = ''.join(fmt('M%s,172 h4 v14 h-4 Z', 166 + i * 8.6) for i in range(11))
    return layers(
        path('M160,186 H260 V192 H160 Z M164,168 H256 V172 H164 Z', paint.trim),
        path(rails, paint.trim),
        path('M182,172 H238 V206 L210,216 L182,206 Z', paint.cloth),
        path('M182,172 H238 V178 H182 Z', paint.gold),
        ring(210, 192, 9, paint.gold, 3),
        path('M211,193 l9,11 l-3,2 l-8,-10 Z', paint.gold))
