"""All pictures of the game: name, size, how to draw it, and the definitions its SVG needs.

The name is the path of the files without their ending: art/NAME.svg is rendered to assets/images/NAME.bmp, or
to NAME.png, and at twice the size to assets/images/2x/NAME.png.
"""
import dataclasses
from typing import Callable

import country_map
import farewell
import menu
import newspaper
import office
import officer
import poster
import scene_battles
import scene_endings
import scene_plots
import scene_revolts
from emblem import emblem_symbol
from outlaws import convict_cloth
from stories import STORIES
from svg import document, use
from texture import filters, paper


@dataclasses.dataclass(frozen=True)
class Picture:
    name: str
    title: str
    width: int
    height: int
    draw: Callable[[], str]
    definitions: Callable[[], str] = str        # str() is the empty text
    alpha: bool = False                         # keeps soft edges; otherwise laid over black
    palette: bool = False                       # a PNG also at the size of the layout
    colours: int = 128                          # of its PNG files

    def svg(self):
        return document(self.width, self.height, self.draw(), self.definitions(), self.title)


NEWSPRINT = 16          # three inks and their edges; the grain of the paper needs no more
PLAIN = 24              # one ink
QUIET = 64              # what lies at the edge of the eye


def _emblem_and_filters():
    return emblem_symbol() + '\n' + filters()


def _map_definitions():
    return country_map.hatch_patterns() + '\n' + filters()


def _screens():
    return [
        Picture('title', 'Title picture', 800, 600, poster.title, _emblem_and_filters),
        Picture('start', 'Start screen', 800, 600, poster.start, filters),
        Picture('map', 'Map of Quenvale and its neighbours', country_map.WIDTH, country_map.HEIGHT,
                country_map.country_map, _map_definitions, colours=QUIET),
        Picture('officer', 'An unknown officer', officer.WIDTH, officer.HEIGHT, officer.unknown_officer),
        Picture('paper', 'Paper', 800, 600, paper, filters, colours=PLAIN),
    ]


def _convicts_and_filters():
    return convict_cloth() + '\n' + filters()


def _scenes():
    return [
        Picture('revolution', 'Revolution', 620, 250, scene_revolts.revolution, filters),
        Picture('guerrillas', 'Guerrillas', 620, 250, scene_revolts.guerrillas, filters),
        Picture('prisoners', 'Prison break', 620, 250, scene_revolts.prisoners, _convicts_and_filters),
        Picture('coup', 'Coup', 620, 250, scene_battles.coup, filters),
        Picture('war', 'The war is over', 620, 250, scene_battles.war, filters),
        Picture('flight', 'Flight', 620, 250, scene_battles.flight, filters),
        Picture('walk', 'Flight on foot', 620, 250, scene_battles.walk, filters),
        Picture('civilwar', 'Civil war', 620, 160, scene_battles.civil_war, filters),
        Picture('assassination', 'Attempt on the president', 495, 150, scene_plots.assassination, filters),
        Picture('plotters', 'The plotters', 495, 150, scene_plots.plotters, filters),
        Picture('about', 'Postage stamp', scene_plots.STAMP_SIDE, scene_plots.STAMP_SIDE, scene_plots.postage_stamp,
                _emblem_and_filters, alpha=True),
    ]


def _newspapers():
    return [Picture(name, 'Newspaper: ' + story.headline, newspaper.WIDTH, newspaper.HEIGHT,
                    lambda story=story: newspaper.newspaper_page(story), filters, colours=NEWSPRINT)
            for name, story in STORIES.items()]


def _farewell():
    pictures = {'executed': farewell.executed, 'basement': farewell.found_in_the_basement,
                'assassinated': farewell.assassinated, 'escaped': farewell.escaped}
    return [Picture('farewell', 'Newspaper: the last page', newspaper.WIDTH, newspaper.HEIGHT, farewell.page, filters,
                    palette=True, colours=NEWSPRINT)] + \
        [Picture('farewell-' + end, 'The end: ' + end, farewell.WIDTH, farewell.FRAME_HEIGHT,
                 lambda draw=draw: farewell.framed(draw()), filters, palette=True,
                 colours=NEWSPRINT) for end, draw in pictures.items()]


def _endings():
    return [
        Picture('civilwar-won', 'The civil war is won', 620, 250, scene_endings.civil_war_won, filters, palette=True),
        Picture('execution', 'Execution', 620, 250, scene_endings.execution, filters, palette=True),
        Picture('dead', 'Lying in state', 620, 250, scene_endings.dead, filters, palette=True),
    ]


def _office():
    places = office.places()

    def picture(name, draw, definitions, **more):
        return Picture('office/' + name, 'Office: ' + name, *places[name][2:], draw, definitions, palette=True, **more)
    return [picture('night', office.night, office.definitions), picture('revolt', office.revolt, office.definitions)] + \
        [picture('%s-%s' % (hour, side), lambda draw=draw, side=side: draw(side), office.definitions,
                 colours=QUIET)
         for hour, draw in (('night', office.beyond), ('revolt', office.beyond_in_revolt)) for side in office.BEYOND] + \
        [picture(name, lambda name=name: office.piece(name), lambda name=name: office.piece_definitions(name), alpha=True)
         for name in office.PIECES]


def _menu_keys():
    return [Picture('%d%s' % (index, letter), menu.KEYS[index][0], menu.WIDTH, menu.HEIGHT,
                    lambda index=index, hot=hot: menu.key(index, hot), menu.key_gradients)
            for index in range(len(menu.KEYS)) for letter, hot in (('a', True), ('b', False))]


def _marks():
    return [
        Picture('mark-air', 'Air base', 34, 34, country_map.air_mark, alpha=True),
        Picture('mark-naval', 'Naval base', 34, 34, country_map.naval_mark, alpha=True),
        Picture('mark-guerrillas', 'Guerrillas', 34, 34, country_map.guerrillas_mark, alpha=True),
        Picture('stamp-sold', 'Stamp', 96, 40, country_map.sold_stamp, alpha=True),
        Picture('emblem', 'Emblem', 112, 112, lambda: use('emblem', 0, 0, 112), emblem_symbol, alpha=True),
    ]


def pictures():
    return _screens() + _scenes() + _newspapers() + _farewell() + _endings() + _office() + _menu_keys() + _marks()
