"""The people of Quenvale as silhouettes: crowds, soldiers, rebels, and what they wear."""
import random

from palette import RED, News
from svg import circle, fmt, layers, path, placed, ring


class Crowd:
    """A row of heads and shoulders with raised fists, straw hats, flags and placards.

    The last four are shares of the people: fists=.4 raises four fists in ten. Equal seeds give equal crowds.
    """

    def __init__(self, scale, seed, fists, hats, flags, signs, depth):
        self.scale, self.depth = scale, depth
        self.fists, self.hats, self.flags, self.signs = fists, hats, flags, signs
        self.chance = random.Random(seed)
        self.bodies, self.cloth = '', ''

    def _by(self, *values):
        """Lengths of the figure of scale 1, at this crowd's scale."""
        return (value * self.scale for value in values)

    def person(self, x, y):
        self._head_and_shoulders(x, y)
        if self.chance.random() < self.hats:
            self._straw_hat(x, y)
        carries = self.chance.random()
        if carries < self.fists:
            self._fist(x, y)
        elif carries < self.fists + self.flags:
            self._flag(x, y)
        elif carries < self.fists + self.flags + self.signs:
            self._placard(x, y)

    def _head_and_shoulders(self, x, y):
        radius = 6.4 * self.scale * self.chance.uniform(.92, 1.08)
        # The head is drawn clockwise like the shoulders: where they overlap, opposite ways would leave a hole.
        self.bodies += fmt('M%s,%sa%s,%s 0 1,1 %s,0a%s,%s 0 1,1 %s,0', x - radius, y, radius, radius * 1.12,
                           2 * radius, radius, radius * 1.12, -2 * radius)
        wide, neck, top, chest, waist = self._by(11.5, 5, 7, 9, 20)
        self.bodies += fmt('M%s,%s C%s,%s %s,%s %s,%s C%s,%s %s,%s %s,%s L%s,%s L%s,%s Z',
                           x - wide, y + waist, x - wide, y + chest, x - neck, y + 8 * self.scale, x, y + top,
                           x + neck, y + 8 * self.scale, x + wide, y + chest, x + wide, y + waist,
                           x + wide, y + self.depth, x - wide, y + self.depth)

    def _straw_hat(self, x, y):
        half, brim, crown, high = self._by(13, 5, 6.5, 17)
        self.bodies += fmt('M%s,%s q%s,%s %s,0 q%s,%s %s,0 Z', x - half, y - 1.5 * self.scale, half, -brim,
                           2 * half, -half, brim, -2 * half)
        self.bodies += fmt('M%s,%s q%s,%s %s,0 Z', x - crown, y - 2.5 * self.scale, crown, -high, 2 * crown)

    def _fist(self, x, y):
        side = self.chance.choice((-1, 1))
        length = self.chance.uniform(24, 34) * self.scale
        elbow = x + side * 9 * self.scale
        hand, top = elbow + side * self.chance.uniform(0, 7) * self.scale, y + 12 * self.scale - length
        upper, lower, thin, sleeve = self._by(3.2, 3.4, 2.3, 16)
        self.bodies += fmt('M%s,%sL%s,%sL%s,%sL%s,%sZ', elbow - upper, y + sleeve, hand - thin, top,
                           hand + thin, top, elbow + lower, y + sleeve)
        self.bodies += fmt('M%s,%sl%s,%sl%s,0l%s,%sl0,%sl%s,%sl%s,0Z', hand - 4 * self.scale,
                           top - 5 * self.scale, *self._by(1.2, -2, 5.4, 1.4, 2, 6.5, -1.6, 2, -5.4))

    def _flag(self, x, y):
        high = self.chance.uniform(44, 62) * self.scale
        pole = 1.8 * self.scale
        top = y + 12 * self.scale - high
        self.bodies += fmt('M%s,%sl%s,0l0,%sl%s,0Z', x + 8 * self.scale, top, pole, high, -pole)
        self.cloth += fmt('M%s,%s c%s,%s %s,%s %s,0 l0,%s c%s,%s %s,%s %s,0 Z', x + 9.8 * self.scale, top,
                          *self._by(9, -5, 16, 6, 27, 17, -10, 6, -17, -5, -27))

    def _placard(self, x, y):
        high = self.chance.uniform(40, 50) * self.scale
        pole = 2 * self.scale
        self.bodies += fmt('M%s,%sl%s,0l0,%sl%s,0Z', x, y + 12 * self.scale - high, pole, high, -pole)
        self.cloth += fmt('M%s,%sl%s,%sl%s,%sl%s,%sZ', x - 15 * self.scale, y - 8 * self.scale - high * .6,
                          *self._by(32, -3, 1, 19, -32, 3))


def crowd(x0, x1, y, scale, fill, seed, fists=.4, hats=.3, flags=0, signs=0, flag_fill=None, step=15,
          depth=60):
    """A crowd from x0 to x1 with the heads at about y, a step apart, drawn down to depth below them."""
    row = Crowd(scale, seed, fists, hats, flags, signs, depth)
    x = x0
    while x < x1:
        row.person(x, y + row.chance.uniform(-5, 5) * scale)
        x += step * scale * row.chance.uniform(.8, 1.2)
    return layers(path(row.cloth, flag_fill or fill), path(row.bodies, fill))


def soldier(fill, cut=None):
    """A marching soldier, about 56 x 150 with the bayonet, feet at y=112, facing right."""
    bayonet = 'M33,-30 L35,-30 L36.4,-4 L32,-4 Z'
    rifle = 'M32,-5 L36.5,-5 L31,36 L27,56 L18,58 L22,46 L25,34 Z'
    helmet = 'M9,15 C8,5 15,0 22,0 C30,0 35,5 35,12 L39,14.5 C39,16 37,17 34,17 L10,17 C7,17 7,15.5 9,15 Z'
    face = 'M14,17 L32,17 L33,22 L31,28 C29,31 25,31 22,30 L15,27 Z'
    trunk = 'M9,34 C12,29 17,28 23,28 C29,28 33,31 34,36 L35,58 L34,70 L12,70 L10,58 Z'
    rear_arm = 'M9,34 C5,42 3,52 6,60 L12,63 L22,58 L20,53 L12,53 L16,40 Z'
    front_arm = 'M30,36 C37,42 41,50 42,56 L51,62 L49,67 L39,62 C34,56 31,50 29,46 Z'
    pack = 'M4,32 L12,32 L12,54 L3,52 Z'
    legs = ('M12,68 L34,68 C38,76 43,84 45,92 L48,103 L56,106 L55,111 L42,111 L37,95 L26,80 C24,88 20,94 15,98 '
            'L3,107 L-2,103 L-1,98 L9,90 C11,82 11,76 12,68 Z')
    parts = [path(part, fill) for part in (bayonet, rifle, helmet, face, trunk, rear_arm, front_arm, pack, legs)]
    if cut:
        belt_and_strap = 'M11,58 L35,58 L35,61 L11,61 Z M10,16.6 L35,16.6 L35,18 L10,18 Z'
        parts.append(path(belt_and_strap, cut))
    return layers(*parts)


def waver(fill, gold):
    """The president on his balcony, arm raised; feet at y=0, 47 high."""
    return layers(
        path('M-8,0 L-9,-20 C-9,-26 -5,-28 0,-28 C5,-28 9,-26 9,-20 L8,0 Z', fill),
        circle(0, -33, 5, fill),
        path('M-9,-36 C-8,-42 8,-42 9,-36 L6,-34 L-6,-34 Z', fill), path('M7,-24 L16,-42 L19,-40 L11,-20 Z', fill),
        circle(18, -43, 2.6, fill),
        path('M-9,-26 h6 v2.5 h-6 Z M3,-26 h6 v2.5 h-6 Z M-6,-35 h12 v1.6 h-12 Z', gold),
        path('M-5,-26 L5,-8 L2,-8 L-8,-24 Z', RED))


def rebel(x, y, scale, flip=1, fill=News.INK, scarf=News.RED):
    """A guerrilla who raises his rifle; feet at (x, y), 110 high."""
    return placed(x, y,
                  path('M-9,0 L-12,-40 C-13,-58 -8,-66 2,-66 C12,-66 17,-58 15,-42 L24,0 L13,0 L4,-30 L0,0 Z',
                       fill),
                  circle(3, -76, 9, fill),
                  path('M-10,-80 C-8,-92 14,-92 16,-80 Z', fill),
                  path('M-6,-76 h18 v6 c-4,6 -14,6 -18,0 Z', scarf),
                  path('M10,-62 L30,-92 L36,-88 L18,-52 Z', fill), path('M14,-110 l3,-1 l24,58 l-4,2 Z', fill),
                  scale=scale, flip=flip)


def officers_cap(x, y, scale, rotate=0, fill=News.INK, band=News.RED, trim=News.LIGHT):
    """An officer's peaked cap with the seal, 130 wide."""
    return placed(x, y,
                  path('M-62,-6 C-74,-34 -40,-52 0,-54 C40,-52 74,-34 62,-6 C30,4 -30,4 -62,-6 Z', fill),
                  path('M-54,-6 C-24,2 24,2 54,-6 L48,20 C24,12 -24,12 -48,20 Z', band),
                  path('M-48,18 C-24,10 24,10 48,18 C54,32 50,38 44,40 C24,30 -24,30 -44,40 C-50,38 -54,32 '
                       '-48,18 Z', fill),
                  path('M-46,38 C-24,29 24,29 46,38 L44,41 C24,32 -24,32 -44,41 Z', trim),
                  ring(0, -26, 11, trim, 4),
                  path('M1,-24 l12,15 l-4,3 l-12,-15 Z', trim),
                  scale=scale, rotate=rotate)


def felt_hat(x, y, scale, rotate=0, fill=News.INK, band=News.RED):
    """The hat of a gentleman of the secret police, 132 wide."""
    return placed(x, y,
                  path('M-34,0 L-24,-36 C-18,-48 -6,-38 0,-38 C6,-38 18,-48 24,-36 L34,0 Z', fill),
                  path('M-32,-10 L32,-10 L35,1 L-35,1 Z', band),
                  path('M-66,4 C-40,-6 40,-6 66,4 C54,16 30,12 0,12 C-30,12 -54,16 -66,4 Z', fill),
                  scale=scale, rotate=rotate)


def dark_glasses(x, y, scale, fill=News.INK, glint=News.LIGHT):
    return placed(x, y,
                  path('M-44,-10 H-4 C-3,8 -8,20 -24,20 C-40,20 -45,8 -44,-10 Z M4,-10 H44 C45,8 40,20 24,20 '
                       'C8,20 3,8 4,-10 Z M-6,-8 H6 V-3 H-6 Z M-44,-10 l-14,-3 v4 l14,4 Z M44,-10 l14,-3 v4 '
                       'l-14,4 Z', fill),
                  path('M-36,-5 l12,0 l-9,12 Z M12,-5 l12,0 l-9,12 Z', glint), scale=scale)
