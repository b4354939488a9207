"""The six keys of the command menu, 133 x 48: normal and highlighted.

The highlighted key has a foot and a notch besides its colour, so that it is known without colours too.
"""
from lettering import POSTER, text
from machines import tank
from palette import CREAM, INK, OCHRE, OCHRE2, RED, RED2
from svg import circle, fmt, group, layers, path, placed, rect, vertical_gradient

WIDTH, HEIGHT = 133, 48
NORMAL_FACE, HOT_FACE = ('#26322E', '#121917'), ('#F4C24F', '#D8942A')      # top, bottom


def key_gradients():
    return vertical_gradient('key', *NORMAL_FACE) + vertical_gradient('key-hot', *HOT_FACE)


def rubber_stamp(main, accent, _ground):
    return layers(
        path('M14,6 C14,1 26,1 26,6 C26,10 23,12 23,16 L24,20 L34,22 L34,28 L6,28 L6,22 L16,20 L17,16 C17,12 14,10 '
             '14,6 Z', main),
        rect(6, 31, 28, 4, accent),
        rect(3, 37.6, 34, 1.6, main))


def coins(main, accent, _ground):
    piles = ((3, 34, 2), (14, 34, 5), (25, 34, 3))      # x, y of the lowest coin, coins
    return layers(
        *(path(fmt('M%s,%s h13 v4.4 h-13 Z', x, y - i * 6), accent if i % 2 else main)
          for x, y, count in piles for i in range(count)),
        rect(2, 39.6, 37, 1.6, main))


def detective(main, accent, _ground):
    return layers(
        path('M9,17 L12,6 C14,2 18,5 20,5 C22,5 26,2 28,6 L31,17 Z', main),
        path('M9.6,14.6 L30.4,14.6 L31.2,18 L8.8,18 Z', accent),
        path('M1,19 C8,16.4 32,16.4 39,19 C36,23 30,22 20,22 C10,22 4,23 1,19 Z', main),
        path('M9,24.4 h22 v3 c0,3.6 -2,5 -4.6,5 c-3,0 -4.8,-2 -5.2,-5 h-2.4 c-.4,3 -2.2,5 -5.2,5 c-2.6,0 -4.6,-1.4 '
             '-4.6,-5 Z', accent),
        path('M3,41 L9,32 L20,39 L31,32 L37,41 Z', main))


def small_tank(main, accent, ground):
    return layers(placed(-1, 12, tank(main, ground), scale=.3), rect(2, 32, 36, 2, accent))


def calendar(main, accent, ground):
    return layers(
        rect(5, 6, 30, 32, main), rect(5, 6, 30, 9, accent),
        path('M11,2 h3.4 v8 h-3.4 Z M25.6,2 h3.4 v8 h-3.4 Z', main),
        path('M12,24.4 h9 v-5 l8.4,7.4 l-8.4,7.4 v-5 h-9 Z', ground))


def cog(main, accent, ground):
    teeth = (rect(-3.6, -18.5, 7.2, 9, main, 1, transform='rotate(%d)' % (i * 45)) for i in range(8))
    return placed(20, 21, *teeth, circle(0, 0, 13, main), circle(0, 0, 6.4, accent), circle(0, 0, 3, ground))


KEYS = (
    # caption, pictogram, text x, baseline, size, spacing
    ('ACTIONS', rubber_stamp, 51, 32, 22, .8),
    ('TAXES', coins, 51, 32, 22, .8),
    ('POLICE', detective, 51, 32, 22, .8),
    ('ARMY', small_tank, 51, 32, 22, .8),
    ('NEXT MONTH', calendar, 47, 31, 20, .2),
    ('OPTIONS', cog, 51, 32, 22, .8),
)


def key(index, hot):
    caption, pictogram, x, baseline, size, spacing = KEYS[index]
    main, accent, ground = (INK, RED2, '#E6A93A') if hot else (CREAM, OCHRE, '#1B2421')
    upper_light, left_light = ('#FFE7A6', '#FFE7A6') if hot else ('#43524D', '#35423E')
    if hot:
        foot = layers(rect(0, 44, WIDTH, 4, RED), path('M60,44 l6.5,-5 l6.5,5 Z', RED))
    else:
        foot = rect(0, 46, WIDTH, 2, OCHRE2)
    return layers(
        rect(0, 0, WIDTH, HEIGHT, 'url(#key-hot)' if hot else 'url(#key)'),
        rect(0, 0, WIDTH, 1, upper_light), rect(0, 0, 1, HEIGHT, left_light), rect(WIDTH - 1, 0, 1, HEIGHT, '#000'),
        group('pictogram', placed(7.5, 4.5, pictogram(main, accent, ground), scale=.9)),
        text(x, baseline, caption, size, main, POSTER, spacing=spacing),
        foot)
