"""The pieces of a map, as the forms for any program have them."""
import bisect
import math


def colors(pieces, below, above, missing, values):
    """Pieces are (from, to, start, end)."""
    starts = [piece[0] for piece in pieces]
    return [[255 * min(1.0, max(0.0, part)) for part in color(pieces, starts, below, above,
                                                               missing, value)[:3]]
            for value in values]


def color(pieces, starts, below, above, missing, value):
    if math.isnan(value):
        return missing
    if value < starts[0]:
        return below
    if value > pieces[-1][1]:
        return above
    first, last, start, end = pieces[bisect.bisect_right(starts, value) - 1]
    part = (value - first) / (last - first) if last > first else 0.0
    return [a * (1 - part) + b * part for a, b in zip(start, end)]
