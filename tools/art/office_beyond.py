"""How the office goes on where a window is wider or taller than the screen's 4:3: quietly, in the dark.

Places are those of the screen: left of 0, right of 800, above 0 and below 600.
"""
from palette import CREAM, INK, MAROON, OCHRE2, RED2
from svg import circle, layers, path, placed, rect, ring
from texture import grain

WIDTH, HEIGHT = 400, 600        # left and right
FLOOR = 524
BOOKS = ('#571414', '#143F42', '#3A2A0C', '#5C6032', '#3A1C10')


def left():
    """A bookcase with the collected speeches; they fill it, there are not many others."""
    return layers(_wall(-WIDTH, '#164440'), _desk_end(-44, 44), _bookcase(-176, 150), _dusk(-WIDTH, 'left', 1, 0))


def right():
    """The flag, on a pole that has seen other flags."""
    return layers(_wall(800, '#123A36'), _desk_end(800, 44), _flag(892), _dusk(800, 'right', 0, 1))


def above():
    return layers(rect(0, -150, 800, 150, '#0A1513'), rect(0, -8, 800, 6, '#2A1D08'), rect(0, -2, 800, 2, INK))


def below():
    """The front of the desk, with its drawers, which are locked."""
    drawers = layers(*(_drawer(x) for x in (40, 230, 420, 610)))
    return layers(rect(0, 600, 800, 150, '#180A06'), rect(0, 600, 800, 3, '#0C0503'), drawers)


def _drawer(x):
    return layers(rect(x, 622, 150, 96, '#23100A'), rect(x, 622, 150, 3, '#3A1A0F'), circle(x + 75, 670, 6, '#7A5723'))


def _wall(x, paper):
    """The paper's lozenges go on where those behind the desk end."""
    lozenges = ''.join('M%d,%d l3,5 l-3,5 l-3,-5 Z' % (column, row) for row in range(64, 430, 22)
                       for column in range(x + (8 + row // 22 % 2 * 11 - x) % 22, x + WIDTH, 22))
    return layers(rect(x, 0, WIDTH, HEIGHT, paper), rect(x, 0, WIDTH, 46, '#101A17'),
                  rect(x, 46, WIDTH, 2, '#7A5723'), rect(x, 48, WIDTH, 2, '#3A2A0C'),
                  path(lozenges, '#0E2F2C'), rect(x, 50, WIDTH, 6, '#7A5723'), rect(x, 56, WIDTH, 2, '#3A2A0C'),
                  rect(x, 430, WIDTH, 94, '#2E150C'), rect(x, 430, WIDTH, 5, '#5E3019'),
                  *(rect(column, 446, 56, 66, '#23100A') for column in range(x + 6, x + WIDTH, 70)),
                  rect(x, FLOOR, WIDTH, HEIGHT - FLOOR, '#1B0D08'),
                  *(rect(x, row, WIDTH, 1.6, '#0F0704') for row in (540, 560, 584)))


def _desk_end(x, wide):
    """The desk goes on a little and ends."""
    return layers(rect(x, 470, wide, 130, '#4A2415'), rect(x, 470, wide, 4, '#8A4E2C'), rect(x, 474, wide, 2, '#2E150C'),
                  rect(x, 562, wide, 38, '#23100A'), rect(x, 562, wide, 2, '#8A4E2C'))


def _bookcase(x, wide):
    shelves = (150, 222, 294, 366)
    books = layers(*(rect(x + 10 + i * 10, y - 52 + (i * 7 + y) % 9, 8.6, 52 - (i * 7 + y) % 9, BOOKS[(i // 4 + y) % 5])
                     for y in shelves for i in range((wide - 20) // 10)))
    return layers(rect(x, 84, wide, 440, '#3A1C10'), rect(x - 6, 78, wide + 12, 8, '#5E3019'),
                  rect(x + 8, 94, wide - 16, 424, '#180A06'), books,
                  *(rect(x + 8, y, wide - 16, 6, '#4A2415') for y in shelves),
                  rect(x + 8, 384, wide - 16, 134, '#2E150C'), rect(x + wide / 2 - 1, 384, 2, 134, '#180A06'),
                  circle(x + wide / 2 - 8, 452, 3, OCHRE2), circle(x + wide / 2 + 8, 452, 3, OCHRE2))


def _flag(x):
    cloth = 'M0,150 C26,158 44,168 50,190 C58,230 40,290 52,350 C40,360 18,352 2,366 Z'
    fold = 'M20,156 C36,200 16,280 26,356 L40,352 C32,290 50,220 38,166 Z'
    return placed(x, 0, rect(-3, 132, 6, 392, OCHRE2), circle(0, 130, 7, OCHRE2),
                  path('M-26,524 h52 l-8,-12 h-36 Z', '#7A5723'), path(cloth, RED2), path(fold, MAROON),
                  ring(17, 240, 11, OCHRE2, 4), path('M18,242 l11,13 l-4,3 l-10,-13 Z', CREAM))


def _dusk(x, name, from_x, to_x):
    """Darker the farther from the lamp: a gradient from one side of the part to the other."""
    stops = ''.join('<stop offset="%s" stop-color="#000" stop-opacity="%s"/>' % stop
                    for stop in ((0, .12), (.12, .5), (.34, .66), (1, .94)))
    return layers('<linearGradient id="dusk-%s" x1="%d" x2="%d" y1="0" y2="0">%s</linearGradient>'
                  % (name, from_x, to_x, stops),
                  rect(x, 0, WIDTH, HEIGHT, 'url(#dusk-%s)' % name), placed(x, 0, grain(WIDTH, HEIGHT, .15, .05)))
