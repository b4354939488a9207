"""SVG 1.1 text, element by element.

    document(133, 48, layers(rect(0, 0, 133, 48, INK), circle(20, 20, 8, RED)), title='Menu')

Every function returns text. Numbers are written with one decimal, so that a picture built twice
is the same text twice. A keyword argument becomes an attribute: stroke_width=2 is stroke-width="2".
"""


def num(value):
    """A number as SVG text: one decimal, none for a whole number. Text stays as it is."""
    if isinstance(value, str):
        return value
    shown = '%.1f' % value
    return shown[:-2] if shown.endswith('.0') else shown


def fmt(template, *values):
    """Fills the %s of a piece of path data."""
    return template % tuple(num(value) for value in values)


def attributes(given):
    return ''.join(' %s="%s"' % (name.replace('_', '-'), value) for name, value in given.items())


def document(width, height, body, defs='', title=''):
    return ('<?xml version="1.0" encoding="UTF-8"?>\n'
            '<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
            'version="1.1" width="%d" height="%d" viewBox="0 0 %d %d">\n'
            '<title>%s</title>\n<defs>\n%s\n</defs>\n%s\n</svg>\n'
            % (width, height, width, height, title, defs, body))


def layers(*parts):
    """Puts pieces above each other, the last one on top."""
    return '\n'.join(parts)


def group(name, *parts, **attrs):
    return '<g id="%s"%s>\n%s\n</g>' % (name, attributes(attrs), layers(*parts))


def placed(x, y, *parts, scale=None, rotate=None, flip=1):
    """Moves a piece to (x, y); it turns and grows around its own origin. flip=-1 mirrors it."""
    move = fmt('translate(%s,%s)', x, y)
    if rotate:
        move += ' rotate(%g)' % rotate
    if scale or flip != 1:
        size = scale or 1
        move += ' scale(%g,%g)' % (size * flip, size) if flip != 1 else ' scale(%g)' % size
    return '<g transform="%s">\n%s\n</g>' % (move, layers(*parts))


def clipped(name, width, height, *parts):
    """Cuts a piece to the rectangle 0, 0, width, height."""
    return layers('<clipPath id="%s">%s</clipPath>' % (name, rect(0, 0, width, height, '#000')),
                  '<g clip-path="url(#%s)">\n%s\n</g>' % (name, layers(*parts)))


def rect(x, y, width, height, fill, radius=0, **attrs):
    corner = fmt(' rx="%s"', radius) if radius else ''
    return fmt('<rect x="%s" y="%s" width="%s" height="%s"', x, y, width, height) + \
        '%s fill="%s"%s/>' % (corner, fill, attributes(attrs))


def frame(x, y, width, height, stroke, stroke_width, radius=0):
    """An empty rectangle drawn with a line."""
    return rect(x, y, width, height, 'none', radius, stroke=stroke, stroke_width=num(stroke_width))


def path(data, fill='none', **attrs):
    return '<path d="%s" fill="%s"%s/>' % (data, fill, attributes(attrs))


def stroke(data, colour, width, **attrs):
    return path(data, stroke=colour, stroke_width='%g' % width, **attrs)


def polyline(points):
    """Path data of an open line through the points."""
    return 'M' + 'L'.join(fmt('%s,%s', x, y) for x, y in points)


def polygon(points):
    """Path data of a closed line through the points."""
    return polyline(points) + 'Z'


def disc(x, y, radius, radius_y=None):
    """Path data of a full circle or ellipse, for a path that holds many of them."""
    high = radius if radius_y is None else radius_y
    return fmt('M%s,%sa%s,%s 0 1,0 %s,0a%s,%s 0 1,0 -%s,0',
               x - radius, y, radius, high, 2 * radius, radius, high, 2 * radius)


def circle(x, y, radius, fill, **attrs):
    return fmt('<circle cx="%s" cy="%s" r="%s"', x, y, radius) + ' fill="%s"%s/>' % (fill, attributes(attrs))


def ring(x, y, radius, colour, width):
    return circle(x, y, radius, 'none', stroke=colour, stroke_width='%g' % width)


def ellipse(x, y, radius_x, radius_y, fill, **attrs):
    return fmt('<ellipse cx="%s" cy="%s" rx="%s" ry="%s"', x, y, radius_x, radius_y) + \
        ' fill="%s"%s/>' % (fill, attributes(attrs))


def rim(draw, fill, edge, shift):
    """A silhouette with light on one side of it: the same, in the colour of the edge, a little off behind it."""
    return layers(placed(*shift, draw(edge)), draw(fill))


def use(symbol, x, y, size):
    return fmt('<use xlink:href="#%s" x="%s" y="%s" width="%s" height="%s"/>', symbol, x, y, size, size)


def vertical_gradient(name, top, bottom):
    return ('<linearGradient id="%s" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="%s"/>'
            '<stop offset="1" stop-color="%s"/></linearGradient>' % (name, top, bottom))
