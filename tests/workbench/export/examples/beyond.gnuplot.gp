# Colour map Colormaps/RedGreen, by telmbench VERSION
# Parameter startcolor = (1,0,0,1)
# Parameter endcolor = (0,1,0,1)
# Parameter blend = 0
# Parameter multiplier = 0.5
# Values from 0 to 1: 6 pieces; components from 0 to 1 are within 0.02000 of the map's
# Made by: telmbench export Colormaps/RedGreen --format gnuplot --error 0.02 --alpha
set palette model RGB maxcolors 0
set palette defined ( \
  0 1 0 0, \
  0.125 1 0.15234375 0, \
  0.3125 0.98291015625 0.44677734375 0, \
  0.5 0.75 0.75 0, \
  0.6875 0.44677734375 0.98291015625 0, \
  0.875 0.15234375 1 0, \
  1 0 1 0)
set cbrange [0:1]
