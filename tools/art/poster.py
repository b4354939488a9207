"""The two full-screen pictures, 800 x 600: the title and the ground of the start screen."""
import math
import random

from emblem import seal
from lettering import POSTER, text
from machines import gunboat, helicopter
from palace import NIGHT, palace
from palette import (CREAM, FOAM, GREEN, GREEN2, INK, MAROON, OCHRE, RED, RED2, SEA, SHADE, SUN, TEAL, TEAL3)
from people import crowd, waver
from president import cigar_smoke, president
from scenery import palm, smoke, volcano
from svg import circle, fmt, frame, group, layers, path, placed, rect
from texture import disc_dots, dots, glow, grain, rays

WIDTH, HEIGHT = 800, 600


def title():
    """The president before the sun, his palace, his volcano and his people."""
    chance = random.Random(4)
    return layers(
        _red_sky(556, 262),
        _eruption(chance),
        group('volcano', volcano(216, 420, 420, 222, '#8A2A18', MAROON, '#B0411D', SUN)),
        _bay(chance),
        _headland(),
        group('president', placed(340, 22, president(), scale=.95)),
        group('cigar-smoke', placed(-4, -18, cigar_smoke())),
        group('helicopters', placed(262, 66, helicopter(INK), scale=.92, rotate=4),
              placed(352, 132, helicopter(MAROON), scale=.42, rotate=4)),
        _title_crowd(),
        group('palm', palm(-14, 620, 420, 50, 150, INK, 14)),
        _lettering(),
        grain(WIDTH, HEIGHT, .15, .06),
        group('border', frame(6, 6, 788, 588, CREAM, 3), frame(0, 0, WIDTH, HEIGHT, INK, 9)))


def _red_sky(cx, cy):
    def towards_the_edge(x, y):
        return (math.hypot(x - cx, y - cy) - 90) / 30
    return group('sky', rect(0, 0, WIDTH, HEIGHT, RED), rays(cx, cy, 22, 900, RED2, turn=.07),
                 glow(WIDTH, 470, cx, cy, 9, 4.4, 92, SUN, .9),
                 circle(cx, cy, 216, OCHRE), circle(cx, cy, 192, SUN),
                 disc_dots(cx, cy, 190, 8, towards_the_edge, OCHRE, origin=(cx - 200, cy - 200)))


def _eruption(chance):
    cloud, shaded = [], []
    for i in range(26):
        t = i / 25
        x = 214 - 150 * t ** 1.4 + chance.uniform(-12, 12) * (.4 + t)
        y = 196 - 176 * t ** .8 + chance.uniform(-10, 10) * (.4 + t)
        radius = 11 + 44 * t
        cloud.append((x, y, radius))
        shaded.append((x + radius * .30, y + radius * .16, radius * .78))
    cores = [(x + radius * .42, y + radius * .2, radius * .62) for x, y, radius in cloud]

    def in_a_core(x, y):
        return 2.1 if any(math.hypot(x - cx, y - cy) < radius for cx, cy, radius in cores) else 0
    return group('eruption', smoke(cloud, MAROON), smoke(shaded, '#7A1F19'),
                 dots(0, 0, 260, 210, 7, in_a_core, RED, .75))


def _bay(chance):
    glitter = ''
    for _ in range(46):
        x, y, long = chance.uniform(0, 380), chance.uniform(392, 470), chance.uniform(14, 60)
        glitter += fmt('M%s,%s h%s v2.4 h%s Z', x, y, long, -long)
    return layers(
        group('sea', rect(0, 384, WIDTH, 120, TEAL), rect(0, 384, WIDTH, 8, SEA), path(glitter, FOAM, opacity=.55),
              path('M0,384 C60,372 110,376 150,384 Z', TEAL3)),
        group('gunboat', placed(14, 356, gunboat(TEAL3), scale=.74)))


def _headland():
    return layers(
        group('headland',
              path('M92,470 C120,424 170,410 236,404 C310,398 360,404 420,420 L440,520 L80,520 Z', GREEN2),
              path('M200,408 C236,402 300,400 350,407 C330,420 240,424 200,408 Z', GREEN)),
        group('palace', placed(158, 293, palace(), scale=.47)),
        group('figure-on-balcony', placed(256.7, 372, waver(INK, SUN), scale=.44)),
        group('gardens', palm(148, 424, 62, -8, 27, GREEN2, 5), palm(366, 428, 70, 10, 30, GREEN2, 8),
              palm(386, 436, 54, 16, 26, TEAL3, 9)))


def _title_crowd():
    return group(
        'crowd',
        crowd(-10, 820, 448, .8, '#7E2318', 11, fists=.36, hats=.30, flags=.09, signs=.04, flag_fill=RED),
        crowd(-10, 820, 468, 1.1, '#4A1413', 23, fists=.38, hats=.28, flags=.05, signs=.045, flag_fill=OCHRE, step=17),
        crowd(-16, 820, 494, 1.5, INK, 41, fists=.30, hats=.30, depth=100, step=23))


def _lettering():
    return group(
        'lettering', rect(0, 520, WIDTH, 80, INK), rect(0, 517, WIDTH, 3.5, OCHRE),
        text(29, 587, 'QUENVALE', 85, RED2, POSTER, spacing=4), text(26, 584, 'QUENVALE', 85, CREAM, POSTER, spacing=4),
        text(360, 553, 'HE WON EVERY ELECTION.', 30, SUN, POSTER, spacing=1.4),
        text(360, 584, 'HE COUNTED THEM HIMSELF.', 30, CREAM, POSTER, spacing=1.4))


def start():
    """The palace by night, searchlights, the president on his balcony. The right third is kept quiet:
    there the game puts its panel."""
    return layers(
        group('sky', rect(0, 0, WIDTH, HEIGHT, '#0B2226'), circle(300, 196, 330, '#12363A'),
              circle(300, 196, 236, '#1B4A4C'), glow(WIDTH, 470, 300, 196, 9, 4.3, 84, SEA, .55)),
        _moon_and_stars(),
        group('volcano', volcano(600, 470, 620, 268, '#12312F', '#0D2528', '#184240')),
        _night_smoke(),
        _searchlights(),
        group('square', rect(0, 462, WIDTH, 138, '#241410'), rect(0, 462, WIDTH, 5, '#5B3A1B')),
        group('palace', placed(22, 166, palace(NIGHT), scale=1.2)),
        group('banners', _banner(38), _banner(474)),
        group('figure-on-balcony', placed(274, 374, waver(INK, SUN), scale=1.22)),
        group('palms', palm(-2, 476, 190, 26, 82, '#0C1D18', 4), palm(556, 480, 250, -34, 100, '#0C1D18', 6),
              palm(590, 486, 170, 22, 80, '#0A1613', 7)),
        group('crowd',
              crowd(-10, 820, 494, 1.0, '#8A2E1C', 51, fists=.34, hats=.30, flags=.09, signs=.04, flag_fill=RED),
              crowd(-10, 820, 522, 1.35, '#571A14', 63, fists=.34, hats=.28, flags=.04, signs=.03, flag_fill=OCHRE,
                    step=18),
              crowd(-16, 820, 562, 1.9, INK, 77, fists=.30, hats=.30, depth=120, step=24)),
        grain(WIDTH, HEIGHT, .15, .05))


def _moon_and_stars():
    sky = ''
    for i in range(60):
        sky += fmt('M%s,%sh2v2h-2Z', random.Random(i).uniform(10, 790), random.Random(i + 99).uniform(12, 240))
    shade = disc_dots(118, 104, 44, 7, lambda x, y: (x - 108) / 17, SHADE, origin=(72, 58))
    return layers(group('moon', circle(118, 104, 46, CREAM), shade), group('stars', path(sky, CREAM, opacity=.7)))


def _night_smoke():
    chance = random.Random(9)
    return group('smoke', smoke([(602 + 120 * (i / 20) ** 1.3 + chance.uniform(-9, 9), 198 - 170 * (i / 20) ** .8,
                                  9 + 38 * i / 20) for i in range(21)], '#0D2A2C'))


def _searchlights():
    beams = ''
    for foot, degrees in ((70, -78), (150, -100), (430, -70), (500, -104)):
        left, right = math.radians(degrees - 4.5), math.radians(degrees + 4.5)
        beams += fmt('M%s,470 L%s,%s L%s,%s Z', foot, foot + 900 * math.cos(left), 470 + 900 * math.sin(left),
                     foot + 900 * math.cos(right), 470 + 900 * math.sin(right))
    return group('searchlights', path(beams, SUN, opacity=.13))


def _banner(x):
    return layers(rect(x, 288, 36, 128, RED), rect(x, 288, 36, 5, OCHRE), path(fmt('M%s,416 l18,12 l18,-12 Z', x), RED),
                  seal(x + 18, 340, 11, SUN, 4))
