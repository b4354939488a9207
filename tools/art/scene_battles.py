"""Pictures of coups and wars: the coup, the civil war, the war's outcome, 620 wide; and the flight."""
from machines import helicopter, tank
from palace import DAY, NIGHT, palace
from palette import CREAM, INK, MAROON, OCHRE, OCHRE2, RED, RED2, SEA, SHADE, SKIN, SKIN2, SUN, TEAL, TEAL2, TEAL3
from people import crowd, dark_glasses, officers_cap, soldier, waver
from scenery import palm, plume
from svg import circle, fmt, group, layers, path, placed, polygon, rect, ring, stroke
from texture import disc_dots, dots, glow, grain, rays

WIDTH, HEIGHT = 620, 250
BAND_HEIGHT = 160


def coup():
    """A chief rises behind the palace, and his tanks stand before it."""
    return layers(
        rect(0, 0, WIDTH, HEIGHT, RED), rays(310, 150, 24, 700, RED2, turn=.05),
        glow(WIDTH, HEIGHT, 310, 130, 8, 4.2, 76, SUN, .85),
        circle(310, 128, 140, OCHRE), circle(310, 128, 124, SUN),
        disc_dots(310, 128, 122, 7, lambda x, y: (x - 300) / 34, OCHRE),
        _chief(),
        group('palace', placed(230, 148, palace(DAY), scale=.38)),
        path('M0,240 C120,226 500,226 620,240 V250 H0 Z', INK),
        group('tanks', placed(10, 164, tank(INK, '#4A443C'), scale=1.3),
              placed(610, 164, tank(INK, '#4A443C'), scale=1.3, flip=-1),
              placed(150, 196, tank(MAROON, RED2), scale=.72),
              placed(470, 196, tank(MAROON, RED2), scale=.72, flip=-1)),
        group('infantry', *(placed(x, 178, soldier(INK), scale=.58) for x in (-6, 20)),
              *(placed(x, 178, soldier(INK), scale=.58, flip=-1) for x in (600, 626))),
        grain(WIDTH, HEIGHT, .15, .05))


def _chief():
    shoulders = 'M130,250 C136,204 190,178 266,160 L310,184 L354,160 C430,178 484,204 490,250 Z'
    face = 'M258,76 C254,132 268,172 310,186 C352,172 366,132 362,76 Z'
    return group('chief', path(shoulders, TEAL2), path('M310,184 L354,160 C430,178 484,204 490,250 H310 Z', TEAL3),
                 path(face, SKIN), path('M310,76 L362,76 C366,132 352,172 310,186 Z', SKIN2),
                 path('M257,84 C290,74 330,74 363,84 L363,98 C330,86 290,86 257,98 Z', SKIN2),
                 dark_glasses(310, 100, .98, fill=INK, glint=CREAM),
                 officers_cap(310, 54, 1.16, fill=INK, band=RED, trim=OCHRE))


def civil_war():
    """The army from the left, the people from the right, a barricade between them; 620 x 160."""
    return layers(
        rect(0, 0, WIDTH, BAND_HEIGHT, RED), rays(310, 150, 26, 520, RED2, turn=.02),
        _torn_half(),
        group('army', placed(6, 62, tank(INK, '#33403C'), scale=1.15),
              *(placed(96 + i * 34, 64 - i % 2 * 3, soldier(INK, SHADE), scale=.86) for i in range(4))),
        crowd(386, 650, 96, 1.0, MAROON, 6, fists=.5, flags=.2, flag_fill=OCHRE, step=16, depth=70),
        crowd(400, 650, 118, 1.5, INK, 17, fists=.6, flags=.1, flag_fill=RED, step=19, depth=70),
        _barricade(),
        rect(0, 150, WIDTH, 10, INK),
        grain(WIDTH, BAND_HEIGHT, .15, .05))


def _torn_half():
    """The army's half of the sheet, torn off along a zigzag."""
    edge = [(330, 0), (300, 26), (336, 48), (296, 78), (330, 102), (300, 132), (322, 160)]
    paper_edge = [(x + 8, y) for x, y in edge]
    return group(
        'torn-half', path(polygon([(0, 0)] + paper_edge + [(0, 160)]), CREAM),
        '<clipPath id="half">%s</clipPath>' % path(polygon([(0, 0)] + edge + [(0, 160)]), '#000'),
        '<g clip-path="url(#half)">%s</g>' % layers(
            rect(0, 0, 340, BAND_HEIGHT, TEAL2), rays(310, 150, 26, 520, TEAL, turn=.02),
            dots(0, 0, 340, BAND_HEIGHT, 7, lambda x, y: 3 - y / 40, TEAL3, .8)))


def _barricade():
    sacks = ((262, 142), (290, 142), (318, 142), (346, 142), (374, 142), (276, 128), (304, 128), (332, 128), (360, 128),
             (290, 114), (346, 114))
    return group(
        'barricade',
        path('M300,118 l-22,-44 l5,-2 l25,44 Z M352,120 l30,-52 l6,3 l-28,52 Z M306,96 l56,10 l-1,7 l-56,-10 Z', INK),
        placed(322, 92, ring(0, 0, 22, INK, 5),
               stroke('M-22,0 H22 M0,-22 V22 M-15,-15 L15,15 M-15,15 L15,-15', INK, 2.6)),
        *(rect(x - 14, y - 7, 28, 14, OCHRE2, 6, stroke=INK, stroke_width=2) for x, y in sacks))


def war():
    """The war is over: a helmet on a rifle, a burnt-out tank, and the army on its way home."""
    return layers(
        rect(0, 0, WIDTH, HEIGHT, '#C9401C'), rays(236, 190, 24, 700, RED, turn=.05),
        glow(WIDTH, HEIGHT, 236, 190, 8, 4.2, 78, SUN, .8),
        circle(236, 190, 126, OCHRE), circle(236, 190, 110, SUN),
        disc_dots(236, 190, 108, 7, lambda x, y: (y - 120) / 22, OCHRE),
        group('smoke', plume(520, 156, -90, -170, 12, 46, 18, MAROON, 4),
              plume(512, 150, -60, -170, 6, 26, 18, INK, 8)),
        group('far-hills', path('M0,196 C80,184 160,194 250,188 C350,180 470,196 620,180 V250 H0 Z', MAROON)),
        group('army', *(placed(28 + i * 40, 136 + i % 2 * 2, soldier(INK), scale=.5) for i in range(6))),
        path('M0,212 C100,198 260,206 400,200 C500,196 560,200 620,196 V250 H0 Z', INK),
        group('wreck', placed(590, 150, tank(INK, '#4A443C'), scale=1.15, rotate=7, flip=-1)),
        _helmet_on_a_rifle(),
        grain(WIDTH, HEIGHT, .15, .05))


def _helmet_on_a_rifle():
    return group(
        'helmet-on-a-rifle',
        placed(330, 226, rect(-3.5, -120, 7, 126, INK), path('M-3,-70 l-10,-4 l0,-30 l10,-16 Z', INK),
               rotate=-5),
        path('M276,112 C276,72 364,72 364,112 L376,118 C374,123 268,123 266,118 Z', INK),
        path('M284,104 C288,84 310,80 322,81 C304,86 294,94 292,106 Z', '#6B6046'),
        stroke('M286,118 C292,142 310,150 316,136', INK, 2.4))


def flight():
    """The president leaves by helicopter, with as much of the treasury as it can lift."""
    banknotes = ((256, 118, 20), (218, 150, -30), (300, 168, 40), (268, 196, -12), (196, 96, 62), (338, 128, 8),
                 (166, 176, 24), (360, 190, -40))
    return layers(
        rect(0, 0, WIDTH, HEIGHT, TEAL3), circle(330, 96, 210, '#12363A'), circle(330, 96, 150, '#1B4A4C'),
        glow(WIDTH, HEIGHT, 330, 96, 8, 4.2, 76, SEA, .6),
        circle(330, 92, 62, CREAM), disc_dots(330, 92, 60, 7, lambda x, y: (x - 320) / 20, SHADE),
        group('palace', placed(404, 120, palace(NIGHT), scale=.5)),
        group('helicopter', placed(180, 78, helicopter(INK), scale=1.8, rotate=-6)),
        _rope_ladder(),
        group('banknotes', *(placed(x, y, _banknote(), rotate=turn) for x, y, turn in banknotes)),
        crowd(-10, 640, 216, 1.1, MAROON, 31, fists=.6, flags=.08, flag_fill=RED, step=17),
        crowd(-10, 640, 238, 1.6, INK, 38, fists=.55, step=22),
        grain(WIDTH, HEIGHT, .15, .05))


def walk():
    """The president leaves on foot, with as much of the treasury as he can carry."""
    banknotes = ((318, 150, -24), (352, 128, 16), (386, 160, 50), (340, 196, 8), (420, 142, -40), (300, 206, 34))
    return layers(
        rect(0, 0, WIDTH, HEIGHT, TEAL3), circle(150, 96, 210, '#12363A'), circle(150, 96, 150, '#1B4A4C'),
        glow(WIDTH, HEIGHT, 150, 96, 8, 4.2, 76, SEA, .6),
        circle(150, 92, 62, CREAM), disc_dots(150, 92, 60, 7, lambda x, y: (x - 140) / 20, SHADE),
        group('palace', placed(448, 92, palace(NIGHT), scale=.36)),
        crowd(408, 640, 178, .8, MAROON, 12, fists=.7, flags=.1, flag_fill=RED, step=15),
        path('M0,206 C140,176 330,208 620,188 V250 H0 Z', TEAL2),
        path('M0,226 C150,206 380,236 620,206 V250 H0 Z', INK),
        palm(60, 236, 150, 26, 46, INK, 5), palm(22, 240, 96, -14, 34, INK, 9),
        group('president', placed(246, 220, _runner())),
        group('banknotes', *(placed(x, y, _banknote(), rotate=turn) for x, y, turn in banknotes)),
        grain(WIDTH, HEIGHT, .15, .05))


def _banknote():
    return layers(rect(-10, -5.5, 20, 11, CREAM, stroke=INK, stroke_width=1.6), circle(0, 0, 3, RED))


def _runner():
    """The president in a hurry, facing left; feet at y=0, 112 high."""
    def limb(data, width):
        return stroke(data, INK, width, stroke_linecap='round', stroke_linejoin='round')
    return layers(
        limb('M4,-46 L24,-28 L46,-26 L50,-34', 11),
        limb('M0,-46 L-24,-38 L-28,-8 L-40,-6', 11),
        limb('M2,-78 L20,-62 L34,-56', 9),
        rect(22, -56, 38, 27, OCHRE2, 3, stroke=INK, stroke_width=3), rect(22, -46, 38, 4, INK),
        path('M-18,-84 C-10,-90 4,-88 10,-80 L16,-44 C8,-38 -4,-38 -10,-42 Z', INK),
        path('M-14,-86 L-6,-88 L13,-48 L5,-46 Z', RED),
        limb('M-10,-80 L-30,-66 L-42,-78', 9),
        circle(-14, -97, 10, INK),
        path('M-29,-101 C-30,-116 4,-117 1,-102 L-1,-97 L-27,-98 Z', INK),
        path('M-29,-101 L1,-102 L0,-99 L-28,-98 Z', SUN), path('M-27,-98 L-36,-94 L-24,-95 Z', INK))


def _rope_ladder():
    rungs = ''.join(fmt('M%s,%s h14', 279 - i * 3, 98 + i * 13) for i in range(6))
    return group('ladder', stroke('M282,88 L262,176 M296,88 L276,176', INK, 1.8), stroke(rungs, INK, 1.8),
                 placed(270, 172, waver(INK, SUN), scale=1.3))
