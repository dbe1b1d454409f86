"""Coefficient figures typed for the recalculation alone.

Walls, flat roofs and free-standing walls: BS 6399-2:1997 with Amendment 1 (2002). Pitched roofs: the recommended
cpe,10 of EN 1991-1-4:2005 in the zone letters of BS 6399-2, which stand in. None: no such value at that pitch.
"""

# Table 5: walls. Windward by D/H; side zones isolated and in a funnel; 2.4.1.4: the funnel's share by gap/b.
WINDWARD = ((1, 4), (0.85, 0.6))
LEEWARD = -0.5
SIDE = {"A": (-1.3, -1.6), "B": (-0.8, -0.9), "C": (-0.5, -0.9)}
FUNNEL = ((0.25, 0.5, 1.0), (0.0, 1.0, 0.0))

# Table 8: flat roofs, zones A, B and C by eaves; D is -0.2 and +0.2 throughout.
SHARP = (-2.0, -1.4, -0.7)
PARAPET = ((0.05, 0.1, 0.2), ((-1.8, -1.75, -1.4), (-1.25, -1.2, -1.0), (-0.7, -0.7, -0.7)))
CURVED_EAVES = ((0.05, 0.1, 0.2), ((-1.0, -0.75, -0.55), (-1.2, -0.8, -0.55), (-0.4, -0.3, -0.3)))
MANSARD = ((30, 45, 60), ((-0.95, -1.2, -1.3), (-1.0, -1.3, -1.25), (-0.3, -0.4, -0.6)))
FLAT_D = 0.2

# Table 21: free-standing walls of solidity 1, without and with a return corner.
NO_RETURN = {"A": 3.4, "B": 2.1, "C": 1.7, "D": 1.2}
RETURN = {"A": 2.1, "B": 1.8, "C": 1.4, "D": 1.2}

PITCHES = (5, 15, 30, 45, 60, 75)
DUO_PITCHES = (-45, -30, -15, -5, 5, 15, 30, 45, 60, 75)

# Mono-pitched: wind on the low eaves (0), on the high eaves (180), along the eaves (90 and 270).
MONO_LOW = {"suction": {
    "A": (-1.7, -0.9, -0.5, 0, None, None),
    "B": (-1.2, -0.8, -0.5, 0, None, None),
    "C": (-0.6, -0.3, -0.2, 0, None, None),
}, "pressure": {
    "A": (0, 0.2, 0.7, 0.7, 0.7, 0.8),
    "B": (0, 0.2, 0.7, 0.7, 0.7, 0.8),
    "C": (0, 0.2, 0.4, 0.6, 0.7, 0.8),
}}
MONO_HIGH = {"suction": {
    "A": (-2.3, -2.5, -1.1, -0.6, -0.5, -0.5),
    "B": (-1.3, -1.3, -0.8, -0.5, -0.5, -0.5),
    "C": (-0.8, -0.9, -0.8, -0.7, -0.5, -0.5),
}}
MONO_ALONG = {"suction": {
    "AU": (-2.1, -2.4, -2.1, -1.5, -1.2, -1.2),
    "AL": (-2.1, -1.6, -1.3, -1.3, -1.2, -1.2),
    "B": (-1.8, -1.9, -1.5, -1.4, -1.2, -1.2),
    "C": (-0.6, -0.8, -1, -1, -1, -1),
    "D": (-0.5, -0.7, -0.8, -0.9, -0.7, -0.5),
}}

# Duo-pitched: wind across the ridge (0 and 180) and along it (90 and 270).
DUO_ACROSS = {"suction": {
    "A": (-0.6, -1.1, -2.5, -2.3, -1.7, -0.9, -0.5, 0, None, None),
    "B": (-0.6, -0.8, -1.3, -1.2, -1.2, -0.8, -0.5, 0, None, None),
    "C": (-0.8, -0.8, -0.9, -0.8, -0.6, -0.3, -0.2, 0, None, None),
    "E": (-1, -0.8, -0.7, -0.6, -0.6, -1, -0.5, -0.3, -0.3, -0.3),
    "F": (-1, -0.8, -0.7, -0.6, -0.6, -1, -0.5, -0.3, -0.3, -0.3),
    "G": (-0.7, -0.6, -0.5, -0.6, -0.6, -0.4, -0.4, -0.2, -0.2, -0.2),
}, "pressure": {
    "A": (None, None, None, None, 0, 0.2, 0.7, 0.7, 0.7, 0.8),
    "B": (None, None, None, None, 0, 0.2, 0.7, 0.7, 0.7, 0.8),
    "C": (None, None, None, None, 0, 0.2, 0.4, 0.6, 0.7, 0.8),
    "E": (None, None, None, 0.2, 0.2, 0, 0, 0, None, None),
    "F": (None, None, None, 0.2, 0.2, 0, 0, 0, None, None),
    "G": (None, None, None, 0.2, None, 0, 0, 0, None, None),
}}
DUO_ALONG = {"suction": {
    "A": (-1.4, -1.5, -1.9, -1.8, -1.6, -1.3, -1.1, -1.1, -1.1, -1.1),
    "B": (-1.2, -1.2, -1.2, -1.2, -1.3, -1.3, -1.4, -1.4, -1.2, -1.2),
    "C": (-1, -1, -0.8, -0.7, -0.7, -0.6, -0.8, -0.9, -0.8, -0.8),
    "D": (-0.9, -0.9, -0.8, -0.6, -0.6, -0.5, -0.5, -0.5, -0.5, -0.5),
}}

# Hipped: the same at every angle.
HIPPED = {"suction": {
    "A": (-1.7, -0.9, -0.5, 0, None, None),
    "B": (-1.2, -0.8, -0.5, 0, None, None),
    "C": (-0.6, -0.3, -0.2, 0, None, None),
    "E": (-0.6, -1, -0.7, -0.6, -0.6, -0.6),
    "F": (-0.6, -1.2, -0.5, -0.3, -0.3, -0.3),
    "G": (-0.3, -0.5, -0.4, -0.3, -0.3, -0.3),
    "H": (-1.2, -1.4, -1.4, -1.3, -1.2, -1.2),
    "I": (-0.6, -0.6, -0.8, -0.8, -0.4, -0.4),
    "J": (-0.4, -0.3, -0.2, -0.2, -0.2, -0.2),
}, "pressure": {
    "A": (0, 0.2, 0.5, 0.7, 0.7, 0.8),
    "B": (0, 0.2, 0.7, 0.7, 0.7, 0.8),
    "C": (0, 0.2, 0.4, 0.6, 0.7, 0.8),
}}
