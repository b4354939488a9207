"""Newspaper illustrations: how the chiefs of the army and of the police leave their posts."""
from lettering import NEWSPRINT, POSTER, text
from machines import helicopter, plane
from newsprint import HEIGHT, WIDTH, dashes, ground, sky, sun_shade
from palette import News
from people import crowd, dark_glasses, felt_hat, officers_cap, soldier
from scenery import blast, palm, plume
from svg import circle, fmt, group, layers, path, placed, rect, ring, stroke
from texture import dots


def falling_helicopter():
    waves = ((20, 240, 60), (110, 232, 40), (210, 250, 80), (330, 236, 50), (400, 256, 60), (60, 268, 90),
             (260, 274, 70))
    return layers(
        sky(360, 60),
        plume(250, 84, -230, -110, 14, 42, 20, News.INK, 5), plume(250, 84, -230, -106, 7, 27, 20, News.GREY, 6),
        group('helicopter', placed(424, 176, helicopter(News.INK, skids=2.6), scale=1.5, rotate=26, flip=-1)),
        blast(252, 86, 36, 4),
        path('M0,226 C90,212 180,220 260,214 C340,208 420,216 476,210 L476,292 L0,292 Z', News.GREY),
        dashes(waves, News.PAPER),
        officers_cap(96, 250, .62, -12),
        group('shark', path('M300,268 C310,246 322,232 344,226 C338,242 340,256 350,268 Z', News.INK),
              rect(286, 270, 76, 3, News.PAPER)))


def lying_in_state():
    guard = ((24, 1), (72, 1), (410, -1), (458, -1))
    return layers(
        sky(238, 120, 66),
        sun_shade(238, 120, 64, 92, 34, origin=(160, 40)),
        group('guard', *('<g transform="translate(%d,128) scale(%d,1)">%s</g>' % (x, facing, soldier(News.GREY))
                         for x, facing in guard)),
        ground(244),
        group('coffin',
              path('M116,214 L360,214 L376,232 L360,264 L116,264 L100,232 Z', News.INK),
              path('M120,218 L356,218 L368,231 L108,231 Z', News.GREY),
              path('M152,208 L324,208 L330,246 C300,256 290,240 262,250 C236,258 214,240 190,250 C172,256 160,248 '
                   '148,248 Z', News.RED),
              ring(238, 230, 11, News.LIGHT, 4), path('M239,232 l12,15 l-4,3 l-12,-15 Z', News.LIGHT)),
        officers_cap(238, 176, .78),
        *(layers(rect(x, 196, 5, 60, News.LIGHT),
                 path(fmt('M%s,196 c-5,-8 -1,-12 1,-20 c5,8 7,14 3,20 Z', x), News.RED)) for x in (70, 400)),
        crowd(-6, 490, 278, 1.2, News.INK, 12, fists=0, hats=.35))


def parachute():
    banknotes = ((318, 150, 20), (350, 200, -30), (180, 176, 40), (150, 120, -12), (300, 230, 8), (392, 146, 62),
                 (108, 220, 18), (226, 252, -24))
    return layers(
        sky(120, 190),
        group('plane', placed(470, 66, plane(News.INK), scale=2.1, rotate=174)),
        _general_in_the_air(),
        group('banknotes', *(placed(x, y, rect(-13, -7, 26, 14, News.LIGHT, stroke=News.INK, stroke_width=2),
                                    circle(0, 0, 4, News.RED), rotate=turn) for x, y, turn in banknotes)),
        group('suitcase', placed(286, 178, rect(-20, -14, 40, 30, News.INK, 3),
                                 stroke('M-8,-14 v-6 h16 v6', News.INK, 4),
                                 path('M-12,8 C-12,-6 12,-6 12,8 Z', News.RED), rotate=14)),
        path('M0,262 C110,250 200,258 300,252 C380,248 440,254 476,250 L476,292 L0,292 Z', News.INK),
        palm(34, 280, 90, 14, 46, News.INK, 2), palm(440, 280, 110, -18, 52, News.INK, 7))


def _general_in_the_air():
    return group('general', placed(
        206, 44,
        path('M0,60 C4,6 96,6 100,60 C84,52 72,52 66,60 C58,52 42,52 34,60 C28,52 16,52 0,60 Z', News.LIGHT,
             stroke=News.INK, stroke_width=3),
        path('M34,60 C36,30 42,14 50,16 C58,14 64,30 66,60 C58,52 42,52 34,60 Z', News.RED, stroke=News.INK,
             stroke_width=2),
        stroke('M1,60 L48,122 M34,60 L49,122 M66,60 L51,122 M99,60 L52,122', News.INK, 1.6),
        path('M38,124 C40,118 60,118 62,124 L66,150 L58,152 L60,176 L52,176 L50,156 L46,176 L38,176 L42,150 L34,148 Z',
             News.INK),
        circle(50, 112, 8, News.INK),
        path('M38,110 C38,98 62,98 62,110 Z', News.INK), rect(38, 110, 24, 3, News.RED)))


def exploding_car():
    shards = ((120, 60), (96, 120), (330, 70), (368, 190), (150, 200))
    return layers(
        sky(238, 150, ray_count=24),
        group('houses', *(_house(*house) for house in ((0, 100, 76), (80, 130, 62), (330, 120, 66), (400, 90, 80)))),
        blast(238, 150, 112, 7), plume(238, 60, 60, -80, 16, 46, 8, News.INK, 4),
        _car(),
        ground(248),
        felt_hat(384, 126, .5, 24),
        *(path('M%d,%d l12,4 l-5,9 Z' % shard, News.INK) for shard in shards))


def _house(x, y, wide):
    windows = (rect(x + 8 + column * 18, y + 12 + row * 26, 9, 14, News.PAPER if (column + row) % 3 else News.INK)
               for column in range((wide - 8) // 18) for row in range((230 - y) // 26))
    return layers(rect(x, y, wide, 260 - y, News.GREY), *windows)


def _car():
    return group('car', placed(
        238, 214,
        path('M-92,10 C-92,-8 -70,-12 -52,-14 L-32,-38 C-28,-42 36,-42 42,-38 L60,-14 C84,-12 94,-6 94,12 L90,22 '
             'L-88,22 Z', News.INK),
        path('M-40,-15 L-26,-34 L2,-34 L2,-15 Z M10,-15 L10,-34 L36,-34 L48,-15 Z', News.PAPER),
        *(layers(circle(x, 24, 19, News.INK), circle(x, 24, 8, News.PAPER)) for x in (-54, 58)),
        path('M-92,4 h16 v5 h-16 Z M80,4 h14 v5 h-14 Z', News.RED)))


def behind_bars():
    heights = (layers(rect(0, 26 + i * 36, WIDTH, 2, News.SHADE),
                      text(12, 22 + i * 36, str(190 - i * 10), 13, News.INK, NEWSPRINT, 700)) for i in range(7))
    hand = 'M%s,232 h34 c4,0 5,6 0,7 c5,2 5,7 0,8 c4,2 4,7 0,8 c3,2 3,7 -2,7 h-32 c-7,-6 -7,-24 0,-30 Z'
    return layers(
        rect(0, 0, WIDTH, HEIGHT, News.PAPER), *heights,
        dots(0, 0, WIDTH, HEIGHT, 6, lambda x, y: (abs(x - 238) - 110) / 46, News.INK, .55),
        _prisoner(),
        *(layers(rect(x - 7, 0, 14, HEIGHT, News.INK), rect(x - 4, 0, 3, HEIGHT, News.GREY))
          for x in range(36, WIDTH, 67)),
        rect(0, 30, WIDTH, 10, News.INK), rect(0, 32, WIDTH, 2, News.GREY),
        placed(238, 262, rect(-66, -24, 132, 46, News.LIGHT, 2, stroke=News.INK, stroke_width=3),
               text(0, 12, 'No. 1', 36, News.RED, POSTER, anchor='middle', spacing=2)),
        *(path(fmt(hand, x), News.LIGHT, stroke=News.INK, stroke_width=3) for x in (152, 286)))


def _prisoner():
    return group(
        'prisoner',
        path('M96,292 C98,246 140,224 192,210 L238,236 L284,210 C336,224 378,246 380,292 Z', News.INK),
        path('M190,212 L176,198 L204,184 L238,232 L272,184 L300,198 L286,212 L262,262 L238,240 L214,262 Z', News.GREY),
        path('M230,240 h16 l6,52 h-28 Z', News.RED),
        path('M188,92 C184,150 196,206 238,218 C280,206 292,150 288,92 Z', News.LIGHT, stroke=News.INK, stroke_width=3),
        path('M238,92 L288,92 C292,150 280,206 238,218 C262,196 258,170 252,150 Z', News.SHADE),
        path('M238,166 C222,158 200,164 188,184 C204,178 224,180 238,176 C252,180 272,178 288,184 C276,164 254,158 '
             '238,166 Z', News.INK),
        rect(222, 192, 32, 3, News.INK),
        dark_glasses(238, 126, .94), felt_hat(238, 88, 1.2))


def vanished():
    notices = ((58, 70, -8), (86, 188, 6), (418, 70, 7), (390, 188, -6))
    return layers(
        sky(238, 130, 96),
        sun_shade(238, 130, 94, 96, 44, origin=(130, 30)),
        path('M118,292 C120,250 150,224 196,212 L208,232 L238,246 L268,232 L280,212 C326,224 356,250 358,292 Z',
             News.INK),
        path('M196,212 L178,196 L206,184 L238,236 L270,184 L298,196 L280,212 L262,262 L238,240 L214,262 Z', News.GREY),
        path('M230,244 h16 l6,48 h-28 Z', News.RED),
        felt_hat(238, 88, 1.3), dark_glasses(238, 132, .98),
        *(placed(x, y, rect(-27, -34, 54, 68, News.LIGHT, stroke=News.INK, stroke_width=2.4),
                 text(0, 18, '?', 52, News.RED, POSTER, anchor='middle'), rect(-20, 22, 40, 3, News.INK), rotate=turn)
          for x, y, turn in notices))
