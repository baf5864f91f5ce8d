"""Gradients that are drawn: a pixel for each of as many parts."""
import math

WIDTH = 257


def colors(pixels, values):
    """The colour of the pixel in whose middle a value lies; what has none is not tried."""
    result = []
    for value in values:
        place = value * WIDTH - 0.5
        isMiddle = not math.isnan(value) and abs(place - round(place)) < 1e-6
        result.append(pixels[round(place)] if isMiddle and 0 <= round(place) < WIDTH
                      else "untried")
    return result
