"""Text in the pictures: the five type faces, their files, measuring and wrapping.

The faces come from Debian packages and are measured with the same files that the renderer uses, so
a line that is spread to a column's width ends exactly at the column's edge.
"""
import functools

from PIL import ImageFont

from svg import attributes, num

POSTER, SANS, NEWSPRINT, MASTHEAD = 'Bebas Neue', 'Cabin', 'Old Standard TT', 'Blankenburg_UNZ1A'

USUAL_WEIGHT = {POSTER: 700, SANS: 600, NEWSPRINT: 400, MASTHEAD: 400}
FILES = {
    # face, weight     file                                                                    package
    (POSTER, 700): '/usr/share/fonts/opentype/bebas-neue/BebasNeue-Bold.otf',                # fonts-bebas-neue
    (SANS, 600): '/usr/share/fonts/opentype/cabin/Cabin-SemiBold.otf',                       # fonts-cabin
    (NEWSPRINT, 400): '/usr/share/fonts/truetype/fonts-oldstandard/OldStandard-Regular.ttf',  # fonts-oldstandard
    (NEWSPRINT, 700): '/usr/share/fonts/truetype/fonts-oldstandard/OldStandard-Bold.ttf',
    (MASTHEAD, 400): '/usr/share/fonts/truetype/blankenburg/Blankenburg_UNZ1A.ttf',          # fonts-blankenburg
}
MEASURED_AT = 200       # pixels: large, so that hinting does not blur the measure


def text(x, y, words, size, fill, face=SANS, weight=None, anchor='start', italic=False, spacing=None,
         **attrs):
    """One line of text; y is its baseline, anchor 'start', 'middle' or 'end'."""
    style = {'font-weight': weight or USUAL_WEIGHT[face]}
    if anchor != 'start':
        style['text-anchor'] = anchor
    if italic:
        style['font-style'] = 'italic'
    if spacing is not None:
        style['letter-spacing'] = spacing
    style.update(attrs)
    escaped = words.replace('&', '&amp;').replace('<', '&lt;').replace('>', '&gt;')
    return '<text x="%s" y="%s" font-family="%s" font-size="%s" fill="%s"%s xml:space="preserve">%s</text>' % (
        num(x), num(y), face, num(size), fill, attributes(style), escaped)


@functools.lru_cache(maxsize=None)
def _measuring_font(face, weight):
    return ImageFont.truetype(FILES[face, weight], MEASURED_AT)


def width(words, size, face, weight):
    return _measuring_font(face, weight).getlength(words) * size / MEASURED_AT


def largest(lines, room, face, weight, start, step):
    """The largest size, going down from start in steps, at which every line fits into the room."""
    size = start
    while max(width(line, size, face, weight) for line in lines) > room:
        size -= step
    return size


def wrap(words, size, measure, face, weight):
    lines, current = [], ''
    for word in words.split():
        longer = (current + ' ' + word).strip()
        if not current or width(longer, size, face, weight) <= measure:
            current = longer
        else:
            lines.append(current)
            current = word
    return lines + [current]


def justified(x, y, words, size, leading, measure, fill, most_lines):
    """A newspaper column: every line but the last is spread to the column's width."""
    lines = wrap(words, size, measure, NEWSPRINT, 400)
    if len(lines) > most_lines:
        raise ValueError('%d lines, %d fit: %s' % (len(lines), most_lines, words))
    spread = []
    for row, line in enumerate(lines):
        attrs = {}
        blanks = line.count(' ')
        if blanks and row < len(lines) - 1:
            attrs['word_spacing'] = num((measure - width(line, size, NEWSPRINT, 400)) / blanks)
        spread.append(text(x, y + row * leading, line, size, fill, NEWSPRINT, **attrs))
    return '\n'.join(spread)
