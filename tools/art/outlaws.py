"""Those who are after the president: guerrillas on the march, convicts on the run, and plotters."""
from palette import CREAM, INK, RED
from svg import circle, ellipse, layers, path, placed, rect, stroke

STRIPES = 'stripes'


def convict_cloth():
    """Definition of the striped cloth that convicts wear."""
    return ('<pattern id="%s" width="20" height="11" patternUnits="userSpaceOnUse">'
            '<rect width="20" height="11" fill="%s"/><rect y="5.5" width="20" height="5.5" fill="%s"/></pattern>'
            % (STRIPES, CREAM, INK))


def convict(x, y, scale, skin, flip=1, ball=False):
    """A convict running to the right, feet at (x, y), 110 high; the ball may fly behind him on its chain."""
    cloth = 'url(#%s)' % STRIPES
    rear_leg = 'M-8,-50 L10,-46 L-6,-26 L-34,-20 L-36,-28 L-18,-34 Z'
    front_leg = 'M-6,-50 L14,-50 L26,-28 L20,-6 L10,-8 L14,-26 L-4,-40 Z'
    trunk = 'M-10,-46 C-12,-66 -4,-84 8,-84 C18,-84 22,-78 20,-70 L14,-46 Z'
    rear_arm = 'M0,-80 L-22,-70 L-28,-52 L-20,-49 L-15,-64 L4,-68 Z'
    front_arm = 'M12,-82 L30,-72 L44,-86 L50,-80 L32,-60 L10,-66 Z'
    shoes = 'M-36,-31 l-8,-2 l-2,14 l6,2 l6,-4 Z M9,-9 h12 l12,6 v4 h-25 Z'
    hands = layers(circle(-24, -49, 5, skin), circle(48, -85, 5, skin))
    parts = [path(rear_arm, cloth), path(rear_leg, cloth), path(front_leg, cloth), path(trunk, cloth),
             path(front_arm, cloth), path(shoes, INK), hands,
             ellipse(17, -94, 9, 10.5, skin), path('M6,-96 C4,-110 26,-112 28,-100 L8,-95 Z', cloth)]
    if ball:
        parts += [stroke('M-40,-22 C-52,-30 -50,-46 -62,-50', INK, 3, stroke_dasharray='5 2'),
                  circle(-70, -54, 12, INK)]
    return placed(x, y, *parts, scale=scale, flip=flip)


def marching_rebel(x, y, scale, flip=1, fill=INK, scarf=RED):
    """A guerrilla striding down to the right with his rifle across his back; feet at (x, y), 100 high."""
    legs = 'M-10,-46 L12,-46 L22,-26 L34,-6 L42,-4 L41,1 L26,1 L8,-24 L0,-20 L-14,0 L-26,0 L-27,-5 L-19,-6 Z'
    trunk = 'M-12,-44 C-16,-66 -8,-80 4,-80 C14,-80 20,-72 18,-60 L14,-44 Z'
    arm = 'M6,-76 L24,-60 L36,-66 L39,-60 L24,-48 L6,-58 Z'
    rifle = 'M-22,-98 l4,-2 l34,58 l10,12 l-8,5 l-8,-14 Z'
    beret = 'M19,-96 L0,-94 C-10,-96 -14,-103 -6,-106 C4,-110 20,-106 19,-96 Z'
    bandolier = 'M-9,-76 L15,-50'
    return placed(x, y, path(rifle, fill), path(legs, fill), path(trunk, fill), path(arm, fill),
                  circle(9, -90, 8.5, fill), path(beret, fill), path('M-1,-88 h20 v5 c-4,7 -16,7 -20,1 Z', scarf),
                  stroke(bandolier, CREAM, 2.6, stroke_dasharray='3 1.6'), scale=scale, flip=flip)


def marksman(fill, glint):
    """A man lying on a roof behind a long rifle with a sight; 200 x 50, muzzle at the right, roof at y=0."""
    body = 'M-8,0 L-4,-10 L40,-20 C56,-26 70,-26 76,-18 L92,-6 L96,0 Z'
    arm = 'M62,-20 L80,-24 L100,-20 L112,-26 L114,-21 L100,-10 L80,-8 Z'
    rifle = 'M72,-31 L92,-31 L96,-27 L206,-27 L206,-24 L118,-24 L116,-20 L104,-20 L98,-23 L88,-22 L70,-20 Z'
    sight = 'M100,-36 h34 v6 h-34 Z M106,-31 h4 v5 h-4 Z M124,-31 h4 v5 h-4 Z'
    hat = 'M64,-46 L68,-56 C72,-60 84,-60 87,-55 L90,-44 Z M56,-44 C68,-48 90,-47 101,-41 L100,-38 L56,-41 Z'
    return layers(path(body, fill), path(arm, fill), path(rifle, fill), path(sight, fill),
                  stroke('M150,-24 L142,0 M152,-24 L160,0', fill, 2.4), circle(80, -36, 9, fill), path(hat, fill),
                  rect(133, -35.5, 2.5, 5, glint))


def blindfolded(x, y, hat, coat, skin, cloth):
    """A plotter against the wall, hands bound behind him; feet at (x, y), 104 high without the hat."""
    legs = 'M-12,-46 H12 L11,0 H2.5 L0,-38 L-2.5,0 H-11 Z'
    trunk = 'M-12,-43 L-16,-70 C-16,-77 -10,-79 -5,-80 H5 C10,-79 16,-77 16,-70 L12,-43 Z'
    arms = 'M-13,-77 C-21,-76 -23,-64 -19,-52 L-10,-46 L-9,-54 Z M13,-77 C21,-76 23,-64 19,-52 L10,-46 L9,-54 Z'
    return placed(x, y, path(legs, coat), path(arms, coat), path(trunk, coat), rect(-4, -84, 8, 8, skin),
                  ellipse(0, -92, 9, 11, skin), rect(-10, -97, 20, 6, cloth),
                  path('M9,-97 l9,-4 l-2,6 l3,5 l-10,-2 Z', cloth),
                  hat)


def cloth_cap(fill):
    return path('M-11,-99 C-12,-110 12,-110 11,-99 L17,-97 L-11,-97 Z', fill)


def straw_hat(fill, band):
    return layers(path('M-24,-97 C-12,-101 12,-101 24,-97 C14,-94 -14,-94 -24,-97 Z', fill),
                  path('M-11,-98 C-9,-114 9,-114 11,-98 Z', fill), rect(-11, -102, 22, 3.5, band))


def top_hat(fill, band):
    return layers(path('M-17,-99 H17 V-96 H-17 Z', fill), path('M-11,-98 L-12,-122 H12 L11,-98 Z', fill),
                  rect(-11, -104, 22, 4.5, band))


def peaked_cap(fill, band):
    return layers(path('M-16,-106 C-16,-118 16,-118 16,-106 L11,-98 H-11 Z', fill), rect(-11.5, -104, 23, 4.5, band),
                  path('M-12,-99 H12 L14,-96 H-14 Z', fill))


def bowler(fill, band):
    return layers(path('M-17,-99 C-8,-96 8,-96 17,-99 L15,-96 H-15 Z', fill),
                  path('M-11,-98 C-12,-116 12,-116 11,-98 Z', fill), rect(-11, -102, 22, 3, band))
