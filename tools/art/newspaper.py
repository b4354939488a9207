"""The pages of "El Faro de Quenvale", 760 x 532, the only newspaper of the republic.

All pages have one layout; a Story fills it. The lower right corner stays empty on every page: there the
game puts its "Oh!" button, 106 x 30 at 636, 493.
"""
import dataclasses
from typing import Callable

from lettering import MASTHEAD, NEWSPRINT, POSTER, justified, largest, text, width
from palette import News
from svg import clipped, frame, group, layers, placed, rect
from texture import fibre

WIDTH, HEIGHT = 760, 532
PICTURE_WIDTH, PICTURE_HEIGHT = 476, 292
COLUMN_X, COLUMN = 508, 236
HEADLINE_ROOM = 330         # the longest headline; the deck has the rest of the line
RIGHT_EDGE = 744
CAPTION_ROOM = 590
ITALIC_IS_NARROWER = .97    # italics are measured with the roman


@dataclasses.dataclass(frozen=True)
class Story:
    headline: str
    deck: tuple                     # two lines beside the headline
    below: str                      # the italic line under them
    illustration: Callable[[], str]
    caption: str
    title: str
    body: str
    second_title: str
    second_body: str
    number: str


def newspaper_page(story):
    return blank_page(story.number, _headline(story), _illustration(story), _columns(story))


def blank_page(number, *printed):
    """The page with its masthead and ears, and what is printed below them."""
    return layers(
        group('paper', rect(0, 0, WIDTH, HEIGHT, News.LIGHT), fibre(WIDTH, HEIGHT, .9)),
        _masthead(),
        group('ears', _ear(18, 'WEATHER', 'Sunny, by order', 'of the Palace'),
              _ear(WIDTH - 130, number, 'Final edition,', 'as usual')),
        *printed,
        group('fold', rect(0, HEIGHT - 7, WIDTH, 7, '#C9BB96'), rect(0, HEIGHT - 7, WIDTH, 1, '#A8966A'),
              rect(0, 0, WIDTH, HEIGHT, '#000', filter='url(#grain)', opacity=.09)))


def _masthead():
    def rule(y, height):
        return rect(16, y, WIDTH - 32, height, News.INK)
    return group(
        'masthead', text(WIDTH / 2, 54, 'El Faro de Quenvale', 54, News.INK, MASTHEAD, anchor='middle'),
        rule(68, 2.4), rule(72, .8),
        text(18, 86, 'THE ONLY NEWSPAPER OF THE REPUBLIC', 11.5, News.INK, NEWSPRINT, 700, spacing=.8),
        text(WIDTH / 2 + 40, 86, 'Reading is compulsory', 12.5, News.INK, NEWSPRINT, anchor='middle', italic=True),
        text(WIDTH - 18, 86, 'PRICE: YOUR ATTENTION', 11.5, News.INK, NEWSPRINT, 700, 'end', spacing=.8),
        rule(91, .8), rule(93.4, 2.4))


def _ear(x, heading, first, second):
    """One of the boxes left and right of the masthead."""
    return layers(frame(x, 14, 112, 44, News.INK, 1.2),
                  text(x + 56, 28, heading, 10.5, News.INK, NEWSPRINT, 700, 'middle'),
                  text(x + 56, 40, first, 10.5, News.INK, NEWSPRINT, anchor='middle', italic=True),
                  text(x + 56, 52, second, 10.5, News.INK, NEWSPRINT, anchor='middle', italic=True))


def _headline(story):
    def spread(size):
        return width(story.headline, size, POSTER, 700) + 2 * len(story.headline)
    size = min(122, 122 * HEADLINE_ROOM / spread(122))
    x = 20 + spread(size) + 18
    room = RIGHT_EDGE - x
    deck_size = largest(story.deck, room, NEWSPRINT, 700, start=33, step=.5)
    below_size = largest([story.below], room / ITALIC_IS_NARROWER, NEWSPRINT, 400, start=15.5, step=.25)
    return group(
        'headline', text(20, 147 + size * .35, story.headline, size, News.RED, POSTER, spacing=2),
        *(text(x, 134 + i * 32, line, deck_size, News.INK, NEWSPRINT, 700) for i, line in enumerate(story.deck)),
        text(x, 190, story.below, below_size, News.INK, NEWSPRINT, italic=True))


def _illustration(story):
    if width(story.caption, 13, NEWSPRINT, 400) * ITALIC_IS_NARROWER > CAPTION_ROOM:
        raise ValueError('the caption runs into the button: ' + story.caption)
    return layers(
        placed(18, 204, clipped('picture', PICTURE_WIDTH, PICTURE_HEIGHT, story.illustration()),
               frame(0, 0, PICTURE_WIDTH, PICTURE_HEIGHT, News.INK, 3)),
        text(20, 512, story.caption, 13, News.INK, NEWSPRINT, italic=True))


def _columns(story):
    title_size = 17.5 if width(story.title, 17.5, NEWSPRINT, 700) < COLUMN else 16
    return group(
        'columns', text(COLUMN_X, 221, story.title, title_size, News.INK, NEWSPRINT, 700),
        justified(COLUMN_X, 240, story.body, 13.6, 15.8, COLUMN, News.INK, most_lines=11),
        rect(COLUMN_X, 408, COLUMN, 1, News.INK),
        text(COLUMN_X, 425, story.second_title, 15.5, News.INK, NEWSPRINT, 700),
        justified(COLUMN_X, 441, story.second_body, 13, 14.2, COLUMN, News.INK, most_lines=4),
        rect(500.5, 206, .9, 290, News.INK))
