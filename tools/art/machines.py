"""Machines of war as silhouettes, each in its own box; the pictures place and scale them."""
from svg import fmt, layers, path, ring, stroke


def helicopter(fill, skids=2.2):
    """138 x 45, nose to the left; skids is the thickness of its skids."""
    return layers(
        path('M0,-19 L96,-21 L96,-19 L0,-17 Z M46,-20 l4,0 l0,9 l-4,0 Z', fill),
        path('M20,6 C20,-8 32,-12 48,-12 L66,-11 C72,-9 78,-7 84,-6 L128,-10 L132,-22 L138,-22 L137,-4 L131,0 '
             'L84,4 C78,10 70,13 58,13 L34,13 C26,13 20,11 20,6 Z', fill),
        stroke('M30,13 L27,20 M56,13 L60,20 M16,20 L72,20 M16,20 L12,17', fill, skids, stroke_linecap='round'),
        ring(134, -13, 9, fill, 1.6))


def tank(fill, cut):
    """146 x 54 with the gun, which points to the right; cut is the colour of its wheels."""
    axles = [18 + i * 14 for i in range(6)]
    wheels = ''.join(fmt('M%s,40a5.2,5.2 0 1,0 10.4,0a5.2,5.2 0 1,0 -10.4,0', x - 5.2) for x in axles)
    hubs = ''.join(fmt('M%s,40a2,2 0 1,0 4,0a2,2 0 1,0 -4,0', x - 2) for x in axles)
    return layers(
        path('M4,36 C4,30 8,28 14,28 L22,20 L96,20 L108,28 C114,29 116,32 116,37 C116,45 110,49 102,49 L18,49 '
             'C9,49 4,45 4,36 Z', fill),
        path('M34,20 L40,6 C42,2 46,1 52,1 L74,1 C80,1 82,4 84,8 L88,20 Z M82,6 L140,2 L140,6 L86,11 Z M138,1 '
             'l8,-.6 l0,6.4 l-8,.6 Z M48,1 l0,-5 l14,0 l0,5 Z', fill),
        path(wheels, cut),
        path(hubs, fill),
        stroke('M70,-4 L66,-34', fill, 1.2))


def gunboat(fill):
    """176 x 66, water line at y=42."""
    return layers(
        path('M0,30 L18,26 L160,26 L176,22 L166,42 L10,42 Z', fill),
        path('M44,26 L44,18 L58,18 L58,10 L92,10 L96,18 L118,18 L118,26 Z M70,10 l2,-34 l2,0 l2,34 Z M64,-8 '
             'l16,0 l0,2 l-16,0 Z M60,-16 l24,0 l0,2 l-24,0 Z', fill),
        path('M98,18 l0,-12 l12,0 l0,12 Z M124,26 l0,-5 l12,-1 l0,6 Z M132,21 l22,-5 l.5,2 l-22,5.5 Z M24,26 '
             'l0,-5 l12,0 l0,5 Z M26,22 l-18,-4 l.5,-2 l18,4 Z', fill))


def plane(fill):
    """75 x 40, nose at (0, 0) to the left."""
    return path('M0,0 C4,-3 12,-4 20,-3.5 L34,-3 L44,-20 L49,-20 L46,-2.6 L66,-2 L71,-9 L75,-9 L74,0 L75,3 '
                'L66,2.5 L46,4 L50,20 L45,20 L34,4 L18,4 C10,4 4,3 0,0 Z', fill)
