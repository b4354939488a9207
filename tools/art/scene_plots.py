"""Pictures of small dialogs: the attempt on the president, the plotters, and his portrait as a stamp."""
from lettering import POSTER, text
from outlaws import blindfolded, bowler, cloth_cap, marksman, peaked_cap, straw_hat, top_hat
from palette import BAND_TEXT, CREAM, INK, MAROON, OCHRE, OLIVE, RED, RED2, SKIN, SKIN2, SKIN3, SUN, TEAL, TEAL2
from people import waver
from president import president
from svg import circle, clipped, disc, fmt, frame, group, layers, path, placed, rect, ring, stroke
from texture import disc_dots, dots, glow, grain, rays

WIDTH, HEIGHT = 495, 150
STAMP_SIDE = 300


def assassination():
    """A marksman on a roof; in his sight the president, who waves."""
    return layers(
        rect(0, 0, WIDTH, HEIGHT, RED), rays(392, 78, 22, 600, RED2, turn=.05),
        glow(WIDTH, HEIGHT, 392, 78, 7, 3.8, 66, SUN, .8),
        _roof(),
        group('marksman', placed(16, 104, marksman(INK, SUN), scale=1.12)),
        stroke('M252,75 H330', CREAM, 1.6, stroke_dasharray='7 5'),
        _view_through_the_sight(396, 75, 66),
        grain(WIDTH, HEIGHT, .15, .05))


def _roof():
    tiles = ''.join('M%d,%d h22 v3 h-22 Z' % (x, y)
                    for x0, y in ((6, 116), (-7, 130), (6, 144)) for x in range(x0, 232, 26))
    return group('roof', path('M0,104 H246 L268,150 H0 Z', MAROON), path(tiles, RED2), rect(0, 102, 250, 5, INK),
                 rect(6, 64, 24, 40, INK), rect(2, 60, 32, 6, INK))


def _view_through_the_sight(cx, cy, radius):
    view = layers(
        rect(-70, -70, 140, 140, SUN), rays(0, -6, 18, 110, OCHRE, turn=.05),
        placed(0, 34, waver(INK, OCHRE), scale=1.72), path('M-30,32 H30 V66 H-30 Z', RED), rect(-34, 28, 68, 6, CREAM))
    return group(
        'sight', circle(cx, cy, radius + 5, INK),
        '<clipPath id="lens">%s</clipPath>' % circle(0, 0, radius, '#000'),
        '<g transform="translate(%d,%d)"><g clip-path="url(#lens)">%s</g></g>' % (cx, cy, view),
        ring(cx, cy, radius, INK, 3), ring(cx, cy, 26, RED, 2.4),
        stroke(fmt('M%s,%s h%s M%s,%s v%s', cx - radius, cy - 20, 2 * radius, cx, cy - radius, 2 * radius), INK, 1.6))


def plotters():
    """Five plotters of five classes before a wall; the firing squad waits for the word."""
    return layers(
        _wall(),
        group('plotters',
              blindfolded(58, 124, cloth_cap(INK), TEAL2, SKIN, CREAM),
              blindfolded(152, 126, straw_hat(OCHRE, RED), OLIVE, SKIN2, CREAM),
              blindfolded(248, 124, bowler(INK, RED), '#4A443C', SKIN3, CREAM),
              blindfolded(344, 126, top_hat(INK, RED), INK, SKIN, CREAM),
              blindfolded(438, 124, peaked_cap(TEAL2, RED), TEAL, SKIN3, CREAM)),
        _firing_squad(),
        grain(WIDTH, HEIGHT, .15, .05))


def _wall():
    joints = ''
    for row in range(10):
        y = row * 14
        joints += fmt('M0,%s h%s v2 h%s Z', y, WIDTH, -WIDTH)
        joints += ''.join(fmt('M%s,%s h2 v14 h-2 Z', x, y) for x in range(18 - row % 2 * 18, WIDTH, 36))
    return group('wall', rect(0, 0, WIDTH, HEIGHT, '#C98B52'), path(joints, '#A86E3A'),
                 dots(0, 0, WIDTH, HEIGHT, 7, lambda x, y: (abs(x - 248) - 120) / 40, MAROON, .55),
                 rect(0, 118, WIDTH, 32, '#7A5723'))


def _firing_squad():
    """Helmets and bayonets, seen from behind."""
    helmet = 'M-19,4 C-19,-20 19,-20 19,4 L25,9 C25,12 -25,12 -25,9 Z'
    shoulders = 'M-34,40 C-34,22 -20,14 0,14 C20,14 34,22 34,40 Z'
    rifle = 'M27,40 V-20 H25 V-22.5 H28 L29.4,-56 L30.8,-22.5 H34 V-20 H32 V40 Z'
    return group('firing-squad', *(placed(x, 136, path(rifle, INK), path(shoulders, INK), path(helmet, INK),
                                          stroke('M-19,4 C-19,-20 19,-20 19,4', '#4A443C', 1.6))
                                   for x in (20, 96, 172, 248, 324, 400, 476)))


def postage_stamp():
    """The president's portrait on the stamp that every letter needs; its perforated edge is transparent."""
    teeth = range(0, STAMP_SIDE + 1, 20)
    holes = ''.join(disc(along, edge, 6) + disc(edge, along, 6) for along in teeth for edge in (0, STAMP_SIDE))
    portrait = layers(
        rect(0, 0, 252, 252, RED), rays(126, 118, 22, 300, RED2, turn=.07),
        glow(252, 252, 126, 118, 7, 3.8, 60, SUN, .85),
        circle(126, 116, 92, OCHRE), circle(126, 116, 81, SUN),
        disc_dots(126, 116, 79, 7, lambda x, y: (x - 110) / 28, OCHRE),
        placed(8, 30, president(), scale=.51))
    stamp = _perforated(
        rect(0, 0, STAMP_SIDE, STAMP_SIDE, BAND_TEXT),
        placed(24, 24, clipped('portrait', 252, 252, portrait), frame(0, 0, 252, 252, INK, 3)),
        rect(24, 232, 252, 44, INK), rect(24, 230, 252, 3, OCHRE),
        text(34, 268, 'QUENVALE', 40, CREAM, POSTER, spacing=2),
        text(266, 268, '5 PESOS', 24, SUN, POSTER, anchor='end', spacing=1),
        text(36, 52, 'COMPULSORY MAIL', 19, CREAM, POSTER, spacing=1))
    shadow = _perforated(rect(0, 0, STAMP_SIDE, STAMP_SIDE, '#A8925F'))
    return layers(
        '<mask id="perforation">%s</mask>' % layers(rect(0, 0, STAMP_SIDE, STAMP_SIDE, '#fff'), path(holes, '#000')),
        placed(4, 4, shadow, scale=.985), placed(0, 0, stamp, scale=.985), _cancellation())


def _perforated(*parts):
    return '<g mask="url(#perforation)">%s</g>' % layers(*parts)


def _cancellation():
    return group('cancellation', placed(
        56, 190, ring(0, 0, 44, INK, 2.6), ring(0, 0, 34, INK, 1.4),
        text(0, -4, 'READ', 19, INK, POSTER, anchor='middle', spacing=1),
        text(0, 17, 'AND APPROVED', 11.5, INK, POSTER, anchor='middle', spacing=.4),
        rotate=-14))
