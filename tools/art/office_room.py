"""The president's office around the window, and his desk in front of it. Places are those of the screen."""
import math

from palette import CREAM, FOAM, INK, MAROON, OCHRE, OCHRE2, RED, RED2, SHADE, SUN
from svg import circle, ellipse, fmt, group, layers, path, placed, rect, stroke, use
from texture import dots

OPENING = 'M108,446 V150 C108,92 240,62 400,62 C560,62 692,92 692,150 V446 Z'
MULLIONS = ((297, 8), (495, 8))     # x, width
TRANSOM = 146


def room():
    return layers(_wall(), _window_frame(), _curtains(), _pelmet(), _door())


def front_of_the_window():
    """All that lies in front of the view."""
    return layers(_window_frame(), _curtains(), _pelmet(), _lamp(), _telephone(), _computer())


def _wall():
    return group('wall', path('M0,50 H800 V480 H0 Z ' + OPENING, '#123A36', fill_rule='evenodd'),
                 path('M0,50 H104 V480 H0 Z', '#164440'),
                 dots(0, 50, 104, 470, 9, lambda x, y: 3.2 - math.hypot(x - 66, y - 430) / 62, '#B97A1C',
                      .45),
                 path(''.join('M%d,%d l3,5 l-3,5 l-3,-5 Z' % (x, y)
                              for y in range(64, 470, 22)
                              for x in range(8 + y // 22 % 2 * 11, 800, 22) if x < 96 or x > 704), '#0E2F2C'),
                 rect(0, 50, 800, 6, '#7A5723'), rect(0, 56, 800, 2, '#3A2A0C'))


def _window_frame():
    return group('window-frame', stroke(OPENING, '#E3C77E', 9), stroke(OPENING, '#7A5723', 3),
                 *(layers(rect(x, 62, w, 386, '#C9A558'), rect(x + w - 3, 62, 3, 386, '#7A5723')) for x, w in MULLIONS),
                 rect(104, TRANSOM, 592, 7, '#C9A558'), rect(104, TRANSOM + 5, 592, 2, '#7A5723'),
                 stroke(OPENING, '#E3C77E', 5), rect(92, 444, 616, 8, '#E3C77E'), rect(92, 452, 616, 6, '#7A5723'))


def _curtains():
    return group('curtains', _curtain(), placed(800, 0, _curtain(), flip=-1))


def _pelmet():
    return group('pelmet',
                 path('M66,56 H734 V74 C700,88 680,88 650,76 C600,92 560,92 520,76 C480,92 440,92 400,76 C360,92 '
                      '320,92 280,76 C240,92 200,92 150,76 C120,88 100,88 66,74 Z', RED2),
                 path('M66,72 C100,86 120,86 150,74 C200,90 240,90 280,74 C320,90 360,90 400,74 C440,90 480,90 '
                      '520,74 C560,90 600,90 650,74 C680,86 700,86 734,72 V77 C700,91 680,91 650,79 C600,95 560,95 '
                      '520,79 C480,95 440,95 400,79 C360,95 320,95 280,79 C240,95 200,95 150,79 C120,91 100,91 66,77 '
                      'Z', OCHRE), rect(62, 52, 676, 7, OCHRE2), rect(62, 52, 676, 2, SUN))


def _door():
    return group('door', rect(712, 128, 82, 352, '#7A5723'), rect(718, 134, 70, 346, '#4A2415'),
                 rect(718, 134, 70, 346, 'none', stroke='#2E150C', stroke_width=2), rect(752, 134, 2, 346, '#2E150C'),
                 *(layers(rect(x, y, 24, h, '#5E3019'), rect(x + 18, y, 6, h, '#3A1C10'),
                          rect(x, y, 24, 2, '#7E4526'))
                   for x in (723, 759)
                   for y, h in ((144, 92), (248, 92), (352, 118))), circle(748, 342, 3, SUN), circle(758, 342, 3, SUN),
                 path('M706,128 L753,104 L800,128 Z', '#7A5723'), use('emblem', 741, 106, 22))


def desk():
    return layers(_desk_top(), _blotter(), _papers(), _pen(), _lamp(), _ashtray(), _telephone(), _computer(),
                  _desk_edge())


def _desk_top():
    return group('desk-top', rect(0, 470, 800, 130, '#4A2415'), path('M0,470 H800 V474 H0 Z', '#8A4E2C'),
                 rect(0, 474, 800, 2, '#2E150C'),
                 path('M0,488 C200,484 420,494 800,486 V490 C420,498 200,488 0,492 Z M0,516 C240,510 500,522 800,512 '
                      'V515 C500,525 240,513 0,519 Z M0,545 C200,541 520,550 800,543 V546 C520,553 200,544 0,548 Z',
                      '#3A1A0F'),
                 dots(0, 476, 420, 566, 7,
                      lambda x, y: 3.7 - math.hypot((x - 96) * .55, (y - 520) * 1.5) / 34, OCHRE, .55))


def _blotter():
    return group('blotter', path('M236,500 H564 L604,566 H196 Z', '#0F3436'),
                 path('M236,500 H564 L568,507 H232 Z', '#1E5A5C'),
                 path('M236,500 l-40,66 h22 l22,-66 Z M564,500 l40,66 h-22 l-22,-66 Z', '#2E150C'),
                 path('M236,500 l-40,66 h4 l40,-66 Z M564,500 l40,66 h-4 l-40,-66 Z', OCHRE2))


def _papers():
    return group('papers', path('M330,512 L420,508 L436,552 L336,558 Z', SHADE),
                 path('M338,510 L428,508 L440,548 L342,553 Z', CREAM),
                 stroke('M350,518 L420,516 M352,525 L424,523 M354,532 L410,530 M356,539 L426,537', '#A8925F', 1.6))


def _pen():
    return group('pen', path('M448,548 L516,514 L519,518 L452,552 L443,554 Z', INK),
                 path('M500,522 l4,-2 l3,5 l-4,2 Z', OCHRE))


def _lamp():
    return group('lamp', path('M30,540 C30,530 104,530 104,540 L110,548 H24 Z', OCHRE2),
                 path('M67,532 C104,532 104,536 104,540 L110,548 H70 Z', '#7A5723'), rect(63, 440, 7, 96, OCHRE),
                 rect(67, 440, 3, 96, OCHRE2),
                 path('M18,440 C18,404 40,396 67,396 C94,396 116,404 116,440 Z', '#2E5B3C'),
                 path('M67,396 C94,396 116,404 116,440 H84 C88,420 82,402 67,396 Z', '#1B3B29'),
                 path('M30,434 C32,414 42,404 56,402 C44,410 40,422 40,434 Z', '#5F9468'), rect(16, 438, 102, 5, SUN),
                 circle(67, 393, 4.5, OCHRE), stroke('M88,444 V460', OCHRE, 1.5), circle(88, 462, 2.6, SUN))


def _ashtray():
    return group('ashtray', ellipse(150, 538, 25, 8.5, '#071314'), ellipse(150, 534, 25, 8.5, FOAM),
                 ellipse(150, 535, 19, 5.6, '#143F42'), path('M142,532 L190,522 L192,528 L145,538 Z', '#6B3A1E'),
                 path('M172,526 l5,-1 l1.5,6 l-5,1 Z', OCHRE), path('M142,532 l-6,1.6 l3,5.4 l6,-1.4 Z', '#E8542A'),
                 path('M136,530 C128,514 146,506 138,490 C130,474 144,466 140,450 C150,466 138,476 146,490 C154,504 '
                      '138,512 141,530 Z', CREAM, opacity='.55'))


def _telephone():
    return group('telephone', path('M572,552 C574,530 588,520 594,512 H640 C646,520 660,530 662,552 Z', RED),
                 path('M617,512 H640 C646,520 660,530 662,552 H617 C640,544 636,524 617,512 Z', RED2),
                 circle(617, 533, 14, CREAM), circle(617, 533, 6, RED2),
                 path(''.join(fmt('M%s,%sa2.2,2.2 0 1,0 4.4,0a2.2,2.2 0 1,0 -4.4,0', 617 + 10 * math.cos(a) - 2.2,
                                  533 + 10 * math.sin(a)) for a in [i * math.pi / 5 for i in range(8)]), INK),
                 path('M572,508 C570,496 584,490 592,494 C604,500 630,500 642,494 C650,490 664,496 662,508 C660,514 '
                      '646,516 644,508 C630,504 604,504 590,508 C588,516 574,514 572,508 Z', RED),
                 path('M617,498 C630,498 638,496 642,494 C650,490 664,496 662,508 C660,514 646,516 644,508 C638,506 '
                      '628,505 617,505 Z', RED2),
                 path('M576,504 C576,498 584,496 590,499 C582,499 580,502 579,506 Z', '#E0574A'))


def _computer():
    return group('computer', path('M684,556 L690,540 H790 L796,556 Z', '#1A2421'),
                 path('M686,458 C686,450 690,446 698,446 H782 C790,446 794,450 794,458 V534 C794,540 790,542 784,542 '
                      'H696 C690,542 686,540 686,534 Z', '#5A6A5E'),
                 path('M740,446 H782 C790,446 794,450 794,458 V534 C794,540 790,542 784,542 H766 C782,520 780,466 '
                      '740,446 Z', '#38463E'),
                 path('M696,462 C696,456 700,454 706,454 H770 C776,454 780,456 780,462 V514 C780,520 776,522 770,522 '
                      'H706 C700,522 696,520 696,514 Z', '#07130E'),
                 stroke('M704,466 H744 M704,476 H760 M704,486 H734 M704,496 H752', '#6FCB86', 2.6),
                 rect(704, 503, 9, 8, '#6FCB86'), circle(705, 532, 3, '#E8542A'), circle(716, 532, 3, OCHRE),
                 stroke('M736,529 h42 M736,534 h42', '#22302A', 2))


def _desk_edge():
    return group('desk-edge', rect(0, 562, 800, 38, '#23100A'), rect(0, 562, 800, 2, '#8A4E2C'),
                 path('M0,572 C200,568 420,578 800,570 V573 C420,581 200,571 0,576 Z M0,588 C240,584 500,594 800,586 '
                      'V589 C500,597 240,587 0,592 Z', '#180A06'))


def _curtain():
    return layers(path('M94,58 C150,60 176,62 196,66 C170,92 150,110 140,160 C132,206 128,260 118,300 L104,330 '
                       'C112,380 116,420 118,470 H72 C76,400 74,330 78,58 Z', RED),
                  path('M94,58 C116,60 128,62 138,64 C122,110 116,200 108,296 L96,330 C100,372 100,430 102,470 H88 '
                       'C90,400 88,330 90,300 C94,220 94,120 94,58 Z', RED2),
                  path('M158,62 C174,63 186,65 196,66 C176,86 160,100 150,126 C150,104 152,80 158,62 Z', RED2),
                  path('M112,330 C116,380 118,430 118,470 H110 C110,420 108,380 104,334 Z', MAROON),
                  path('M82,316 C96,322 108,320 121,308 L118,322 C108,332 94,334 80,328 Z', OCHRE),
                  path('M110,326 l6,-2 l3,26 l-11,2 Z', OCHRE), path('M108,352 l11,-2 l1,8 l-13,2 Z', OCHRE2))
