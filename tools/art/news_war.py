"""Newspaper illustration: the army marches off to war."""
from machines import plane, tank
from newsprint import HEIGHT, WIDTH
from palette import News
from people import soldier
from svg import circle, group, layers, path, placed, rect, ring
from texture import disc_dots, dots, rays

SUN_X, SUN_Y = 330, 196


def marching_off():
    squadron = ((40, 44, 1.05), (108, 24, .8), (120, 72, .9), (182, 48, .7))
    return layers(
        _sunrise(),
        group('planes', *(placed(x, y, plane(News.INK), scale=scale, rotate=6) for x, y, scale in squadron)),
        _hills(),
        group('tanks', placed(296, 176, tank(News.INK, News.GREY), scale=1.08),
              placed(196, 186, tank('#3A332C', News.GREY), scale=.72)),
        path('M0,258 C120,240 300,240 476,250 L476,292 L0,292 Z', News.INK),
        group('rear-rank', *(placed(i * 34 - 8, 138, soldier('#4B4238'), scale=.8) for i in range(9))),
        group('front-rank', *(placed(8 + i * 52, 143 + i % 2 * 3, soldier(News.INK, News.PAPER), scale=1.1)
                              for i in range(6))),
        _flag())


def _sunrise():
    return layers(
        rect(0, 0, WIDTH, HEIGHT, News.PAPER),
        rays(SUN_X, SUN_Y, 20, 520, News.SHADE, turn=.05),
        circle(SUN_X, SUN_Y, 92, News.LIGHT), circle(SUN_X, SUN_Y, 82, News.RED),
        disc_dots(SUN_X, SUN_Y, 80, 6, lambda x, y: (y - SUN_Y + 46) / 36, News.INK, .9, (SUN_X - 84, SUN_Y - 84)),
        dots(0, 0, WIDTH, 120, 6, lambda x, y: 2.6 - y / 44, News.INK, .75))


def _hills():
    return group('hills',
                 path('M0,236 C60,196 120,214 190,206 C250,198 300,222 360,214 C410,206 450,196 476,200 L476,292 '
                      'L0,292 Z', News.GREY),
                 dots(0, 196, WIDTH, HEIGHT, 6, lambda x, y: 3.2 - (y - 200) / 26 if y > 206 else 0, News.PAPER, .55))


def _flag():
    return group('flag', rect(322, 92, 3.4, 190, News.INK),
                 path('M325,94 c26,-14 44,12 84,-2 v52 c-36,14 -58,-10 -84,2 Z', News.LIGHT, stroke=News.INK,
                      stroke_width=2),
                 ring(366, 118, 14, News.RED, 5), path('M368,121 l14,18 l-5,4 l-14,-18 Z', News.RED))
