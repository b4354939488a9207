"""The president: a bust in the box 0..460 x 0..520, facing us, light from the left.

He is always drawn whole, from the shoulders up to the smoke of his cigar. SVGs that use him must define
the emblem symbol, which is the badge of his cap.
"""
from emblem import medal, star
from palette import (CREAM, FOAM, INK, MAROON, OCHRE, OCHRE2, OLIVE, RED, RED2, SEA, SKIN, SKIN2, SKIN3, SUN, TEAL,
                     TEAL2, TEAL3)
from svg import circle, ellipse, fmt, layers, path, placed, rect, ring, stroke, use

RIBBONS = (RED, CREAM, SEA, SUN, MAROON, FOAM, OLIVE)


def president():
    return layers(_tunic(), _collar(), _sash(), _epaulette(66, lit=True), _epaulette(394, lit=False), _ribbons(),
                  _medals(), _order(), _head(), _nose_and_mouth(), _glasses(), _cap(), _visor(), _badge(),
                  _cigar())


def officer():
    """Anybody in uniform: the same bust without badge, orders and cigar."""
    return layers(_tunic(), _collar(), _epaulette(66, lit=True), _epaulette(394, lit=False), _head(), _cap(), _visor())


def cigar_smoke():
    """Where the cigar of a president at (340, 22), scale .95, sends its smoke."""
    return path('M656,324 C668,300 650,286 664,262 C676,240 662,226 676,202 C670,228 684,240 674,266 C664,288 '
                '680,302 662,326 Z', CREAM, opacity=.8)


def _tunic():
    return layers(
        path('M-10,520 C-6,440 10,392 70,366 C120,346 160,340 180,330 L280,330 C300,340 340,346 390,366 C450,392 '
             '466,440 470,520 Z', TEAL2),
        path('M280,330 C300,340 340,346 390,366 C450,392 466,440 470,520 L250,520 L238,400 Z', TEAL3),
        path('M230,372 L236,520 L226,520 Z', INK),
        *(circle(243, y, 5, OCHRE) for y in (420, 452, 484, 516)))


def _collar():
    pips = ((172, 353), (182, 363), (192, 373), (288, 353), (278, 363), (268, 373))
    return layers(
        path('M168,318 C180,350 210,372 230,380 C250,372 280,350 292,318 L300,352 L246,402 L230,386 L214,402 '
             'L160,352 Z', TEAL),
        path('M292,318 L300,352 L246,402 L230,386 C252,374 280,352 292,318 Z', TEAL3),
        path('M166,340 L205,380 L196,388 L160,352 Z', RED),
        path('M294,340 L255,380 L264,388 L300,352 Z', RED2),
        *(circle(x, y, 3, OCHRE) for x, y in pips))


def _sash():
    return layers(
        path('M92,358 L140,346 L330,520 L262,520 Z', RED),
        path('M104,355 L112,353 L283,520 L271,520 Z', SUN),
        path('M126,349.5 L133,348 L321,520 L309,520 Z', SUN))


def _epaulette(cx, lit):
    gold, shaded, stars = (OCHRE, OCHRE2, CREAM) if lit else (OCHRE2, '#8A5A14', SUN)
    slope = 1 if lit else -1
    fringe = ''.join(fmt('M%s,%s l5,0 l0,%s l-5,0 Z', cx - 56 + i * 8, 392 + (i - 7) ** 2 * .28, 34 + i % 2 * 5)
                     for i in range(15))
    board = layers(ellipse(0, 0, 62, 19, gold), ellipse(0, -3, 46, 11, shaded))
    return layers(
        path(fringe, shaded),
        placed(cx, 388, board, rotate=-10 * slope),
        *(path(star(cx + i * 24, 385 - i * 4.2 * slope, 7.5), stars) for i in (-1, 0, 1)))


def _ribbons():
    drawn = []
    for row in range(3):
        for column in range(4 if row == 0 else 5):
            x, y = 302 + column * 24 + row * 2, 404 + row * 11
            drawn += [rect(x, y, 22, 9, RIBBONS[(row * 3 + column * 2) % 7]),
                      rect(x + 7, y, 8, 9, RIBBONS[(row * 5 + column + 1) % 7])]
    return layers(*drawn)


def _medals():
    drawn = []
    for row in range(2):
        for column in range(5):
            x, y = 306 + column * 25 + row * 6, 441 + row * 42
            drawn += [
                path(fmt('M%s,%s h17 v13 l-8.5,6 l-8.5,-6 Z', x, y), RIBBONS[(row * 2 + column * 3 + 1) % 7]),
                path(fmt('M%s,%s h5 v16.5 l-2.5,2 l-2.5,-2 Z', x + 6, y), RIBBONS[(column + row * 4 + 2) % 7]),
            ]
            if (column + row) % 2:
                drawn.append(medal(x + 8.5, y + 27, 9, OCHRE, OCHRE2))
            else:
                drawn += [path(star(x + 8.5, y + 28, 11), OCHRE), circle(x + 8.5, y + 28, 3.4, RED)]
    return layers(*drawn)


def _order():
    """The great star on his right breast, which he awarded to himself."""
    return layers(
        path(star(150, 462, 27), OCHRE),
        path(star(150, 462, 27, turn=36), OCHRE2),
        path(star(150, 462, 20), SUN),
        circle(150, 462, 9, RED),
        ring(150, 462, 4.6, SUN, 2))


def _head():
    neck = 'M178,280 L180,326 C196,352 214,366 230,374 C246,366 264,352 280,326 L282,280 Z'
    left_ear = 'M146,170 C136,166 128,178 132,196 C135,212 142,224 152,222 Z'
    right_ear = 'M314,170 C324,166 332,178 328,196 C325,212 318,224 308,222 Z'
    face = ('M146,140 L314,140 C318,180 316,222 308,254 C302,282 286,306 266,322 C252,331 208,331 194,322 '
            'C174,306 158,282 152,254 C144,222 142,180 146,140 Z')
    shaded_half = ('M246,140 L314,140 C318,180 316,222 308,254 C302,282 286,306 266,322 C256,329 240,330 228,329 '
                   'C246,324 256,318 262,306 C252,300 246,292 250,282 C262,276 268,268 262,254 L252,244 C262,232 '
                   '258,212 248,200 Z')
    visors_shadow = 'M145,150 L315,150 L315,184 C260,172 200,172 145,186 Z'
    cheek = 'M158,216 C160,240 166,262 176,276 C170,276 158,258 154,236 Z'
    bridge = 'M214,206 C210,222 204,234 206,242 C212,240 216,228 220,210 Z'
    chin = 'M208,312 C218,318 236,318 246,311 C238,325 216,325 208,312 Z'
    return layers(path(neck, SKIN2), path(left_ear, SKIN), path(right_ear, SKIN2), path(face, SKIN),
                  path(shaded_half, SKIN2), path(visors_shadow, SKIN2), path(cheek, SKIN3), path(bridge, SKIN3),
                  path(chin, SKIN2))


def _nose_and_mouth():
    nose = ('M226,200 C228,222 236,236 244,242 C240,254 220,256 208,250 C204,246 206,242 210,241 C216,243 224,243 '
            '228,240 Z')
    fold = 'M192,240 C184,248 178,258 176,270 C184,262 192,254 196,244 Z'
    moustache = ('M229,256 C214,248 190,252 174,276 C188,270 206,272 229,268 C252,272 272,270 288,274 C272,250 '
                 '246,248 229,256 Z')
    mouth = 'M200,281 C216,277 244,277 262,283 C246,286 216,287 200,281 Z'
    lower_lip = 'M212,292 C224,296 238,296 248,291 C240,300 220,300 212,292 Z'
    return layers(path(nose, SKIN2), path(fold, SKIN2), path(moustache, INK), path(mouth, MAROON),
                  path(lower_lip, SKIN2))


def _glasses():
    """Sunglasses in which a burning town is mirrored."""
    left = 'M160,186 C180,178 206,180 220,186 C224,206 214,228 194,230 C172,230 158,212 160,186 Z'
    right = 'M240,186 C256,180 282,178 302,186 C304,212 290,230 268,230 C248,228 236,206 240,186 Z'
    bridge = 'M219,188 C226,183 234,183 241,188 M219,196 C226,192 234,192 241,196'
    mirrored = layers(
        path('M166,208 C180,204 202,203 217,207 C213,219 205,226 194,227 C178,226 168,218 166,208 Z', MAROON),
        path('M168,212 l5,-9 l3,5 l5,-12 l5,10 l4,-15 l6,15 l4,-8 l5,8 l3,-4 l4,10 C208,218 200,220 192,219 '
             'C180,218 174,216 168,212 Z', RED),
        path('M175,213 l4,-7 l4,3 l4,-9 l5,8 l4,-5 l4,7 l6,3 C200,219 182,219 175,213 Z', SUN),
        path('M168,190 L184,188 L176,198 L166,199 Z', CREAM, opacity=.85))
    return layers(
        path(left, INK, stroke=OCHRE, stroke_width=3.4),
        path(right, INK, stroke=OCHRE2, stroke_width=3.4),
        stroke(bridge, OCHRE, 3),
        mirrored, placed(80, 0, mirrored))


def _cap():
    return layers(
        path('M150,150 C168,132 292,132 310,150 L316,120 L144,120 Z', TEAL3),
        path('M108,94 C90,56 124,18 230,8 C336,18 370,56 352,94 C320,108 290,112 230,112 C170,112 140,108 108,94 Z',
             TEAL),
        path('M236,8 C340,20 370,56 352,94 C322,107 292,112 236,112 C262,90 268,40 236,8 Z', TEAL2),
        path('M290,22 C350,40 366,68 352,94 C338,100 326,103 312,106 C328,82 322,48 290,22 Z', TEAL3),
        path('M126,40 C150,22 186,14 220,11 C180,24 148,40 130,66 C116,60 116,50 126,40 Z', SEA),
        path('M122,99 C150,112 190,116 230,116 C270,116 310,112 338,99 L326,140 C292,128 168,128 134,140 Z', RED),
        path('M240,116 C280,115 312,111 338,99 L326,140 C306,133 274,129 240,129 Z', RED2),
        path('M133,132 C170,120 290,120 327,132 L325,141 C290,129 170,129 135,141 Z', OCHRE),
        path('M240,123 C280,124 308,127 327,132 L325,141 C308,135 280,131 240,131 Z', OCHRE2))


def _visor():
    return layers(
        path('M134,140 C168,128 292,128 326,140 C336,160 330,172 318,178 C286,164 174,164 142,178 C130,172 124,160 '
             '134,140 Z', INK),
        path('M146,144 C176,136 214,134 240,134 C200,142 170,150 150,166 C142,162 140,150 146,144 Z', '#4A443C'),
        path('M137,172 C176,157 284,157 323,172 L318,178 C286,164 174,164 142,178 Z', OCHRE),
        circle(136, 139, 5.5, SUN),
        circle(324, 139, 5.5, SUN))


def _badge():
    return use('emblem', 185, 33, 90)


def _cigar():
    return layers(
        path('M254,280 L322,300 L318,314 L250,292 Z', '#6B3A1E'),
        path('M254,280 L322,300 L320.6,305 L252.6,285 Z', '#93562F'),
        path('M270,285 l7,2 l-4,12.6 l-7,-2 Z', OCHRE),
        path('M318,299 l8,2.4 l-4,14 l-8,-2.4 Z', CREAM),
        path('M322,300.5 l5,1.4 l-4,14 l-5,-1.4 Z', '#E8542A'))
