# Colour map Colormaps/HypoxiaLegend, by telmbench VERSION
# A colormap specifically useful for Bathymetric and topographic displays, providing bluish colors for low values and green/yellow/brownish tones for large values.
# Values from 0 to 7: 7 pieces of one colour each, exactly as in the map
# Made by: telmbench export Colormaps/HypoxiaLegend --format gnuplot --range 0,7
set palette model RGB maxcolors 0
set palette defined ( \
  0 0.20000000298023224 0.5 0, \
  0.4999999999999999 0.20000000298023224 0.5 0, \
  0.49999999999999994 0 1 0, \
  1.4999999999999998 0 1 0, \
  1.5 1 1 0, \
  2.4999999999999996 1 1 0, \
  2.5 0.8999999761581421 0.5 0, \
  3.4999999999999996 0.8999999761581421 0.5 0, \
  3.5 0.6000000238418579 0.15000000596046448 0.10000000149011612, \
  4.499999999999999 0.6000000238418579 0.15000000596046448 0.10000000149011612, \
  4.5 0.800000011920929 0.800000011920929 0.8999999761581421, \
  5.499999999999999 0.800000011920929 0.800000011920929 0.8999999761581421, \
  5.5 0.5 0 0.5, \
  7 0.5 0 0.5)
set cbrange [0:7]
