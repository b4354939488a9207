"""What makes a picture look printed: halftone dots, sun rays, the grain of ink and of paper."""
import math

from palette import PAPER
from svg import disc, fmt, group, layers, path, rect

SMALLEST_DOT = .35      # pixels; a smaller one would only grey the paper


def filters():
    """Definitions that grain() and fibre() refer to. The seeds are fixed: the grain never changes."""
    def fixed(name, body):
        return ('<filter id="%s" x="0" y="0" width="100%%" height="100%%" '
                'color-interpolation-filters="sRGB">\n%s\n</filter>' % (name, body))

    def noise(frequency, octaves, seed, matrix, name):
        return (' <feTurbulence type="fractalNoise" baseFrequency="%s" numOctaves="%d" seed="%d" '
                'result="%s"/>\n <feColorMatrix in="%s" type="matrix" values="%s" result="%s-inked"/>'
                % (frequency, octaves, seed, name, name, matrix, name))

    dark = noise('0.85', 2, 7, '0 0 0 0 0.08  0 0 0 0 0.06  0 0 0 0 0.05  0 0 0 -9 4.6', 'speck')
    light = noise('0.7', 2, 21, '0 0 0 0 0.95  0 0 0 0 0.90  0 0 0 0 0.79  0 0 0 -9 4.2', 'fleck')
    blotches = noise('0.0117 0.0156', 3, 3, '0 0 0 0 0.45  0 0 0 0 0.32  0 0 0 0 0.12  0 0 0 0.5 -0.20', 'blotch')
    fibres = noise('0.75 0.6', 2, 11, '0 0 0 0 0.32  0 0 0 0 0.22  0 0 0 0 0.08  0 0 0 1.1 -0.5', 'hair')
    merged = '\n <feMerge><feMergeNode in="blotch-inked"/><feMergeNode in="hair-inked"/></feMerge>'
    return '\n'.join([fixed('grain', dark), fixed('grain-light', light),
                      fixed('fibre', blotches + '\n' + fibres + merged)])


def grain(width, height, dark, light=0.0):
    """Specks where the ink did not take, over the whole picture."""
    specks = [rect(0, 0, width, height, '#000', filter='url(#grain)', opacity=dark)]
    if light:
        specks.append(rect(0, 0, width, height, '#000', filter='url(#grain-light)', opacity=light))
    return group('print-grain', *specks)


def fibre(width, height, opacity):
    """The blotches and hairs of cheap paper."""
    return rect(0, 0, width, height, '#000', filter='url(#fibre)', opacity=opacity)


def dots(x0, y0, x1, y1, step, radius_at, fill, opacity=1):
    """A halftone screen: dots on a grid turned by 45 degrees, their radius given by radius_at(x, y)."""
    data, row, y = [], 0, y0
    while y <= y1:
        x = x0 + (step / 2 if row % 2 else 0)
        while x <= x1:
            radius = radius_at(x, y)
            if radius > SMALLEST_DOT:
                data.append(disc(x, y, radius))
            x += step
        y += step * .5
        row += 1
    return path(''.join(data), fill, opacity=opacity)


def disc_dots(cx, cy, radius, step, radius_at, fill, opacity=1, origin=None):
    """A halftone screen inside a disc, such as the shaded half of a sun; the grid begins at origin."""
    x0, y0 = origin or (cx - radius, cy - radius)

    def inside(x, y):
        return 0 if math.hypot(x - cx, y - cy) > radius else radius_at(x, y)
    return dots(x0, y0, cx + radius, cy + radius, step, inside, fill, opacity)


def glow(width, height, cx, cy, step, largest, fade, fill, opacity):
    """Dots that shrink with the distance from (cx, cy): largest - distance / fade."""
    return dots(0, 0, width, height, step,
                lambda x, y: largest - math.hypot(x - cx, y - cy) / fade, fill, opacity)


def rays(cx, cy, count, length, fill, turn=0.0):
    """Sun rays as wide as the gaps between them."""
    wide = math.pi / count

    def tip(angle):
        return cx + length * math.cos(angle), cy + length * math.sin(angle)
    data = []
    for i in range(count):
        angle = turn + 2 * wide * i
        data.append(fmt('M%s,%sL%s,%sL%s,%sZ', cx, cy, *tip(angle), *tip(angle + wide)))
    return path(''.join(data), fill)


def paper():
    """The paper of all forms, 800 x 600: a form shows the part that lies at its place on the screen."""
    return layers(rect(0, 0, 800, 600, PAPER), fibre(800, 600, .55))
