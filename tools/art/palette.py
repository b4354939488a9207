"""The inks of the pictures. Everything is printed with these; a picture adds shades of its own only
where two neighbouring areas need them.
"""
INK = '#14110F'
CREAM = '#F3E7C9'
PAPER = CREAM
SHADE = '#D6C495'
RED, RED2, MAROON = '#B8261B', '#8E1B14', '#571414'
OCHRE, OCHRE2, SUN = '#E3A52F', '#B97A1C', '#F2C14E'
TEAL, TEAL2, TEAL3 = '#1E5A5C', '#143F42', '#0C2A2D'
SEA, FOAM = '#2F7A78', '#7FB3A3'
OLIVE = '#5C6032'
GREEN, GREEN2 = '#2E5B3C', '#1B3B29'
SKIN, SKIN2, SKIN3 = '#C98B52', '#7A3B22', '#E2B27C'
CARBON = '#0B100E'
BAND_TEXT = '#FFF3D6'


class News:
    """The three inks of the newspaper, and the paper under them."""
    INK = '#1B1714'
    RED = '#B0241A'
    GREY = '#6B5F50'
    PAPER = '#D9CBA6'       # inside the illustrations
    RAY = '#C2B187'
    SHADE = '#B7A57C'
    SOOT = '#2A2420'
    MUD = '#94866C'
    LIGHT = '#EFE5CB'       # the sheet itself
