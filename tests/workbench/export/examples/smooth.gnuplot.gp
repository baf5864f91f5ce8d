# Colour map Colormaps/Glow, by telmbench VERSION
# Parameter glow = (1,0.6,0,1)
# Parameter center = 0.5
# Parameter inverted = no{no}{yes}
# Values from 0 to 1: 8 pieces; components from 0 to 1 are within 0.02000 of the map's
# Made by: telmbench export Colormaps/Glow --format gnuplot --error 0.02
set palette model RGB maxcolors 0
set palette defined ( \
  0 0 0 0, \
  0.125 0.34375 0.16875001788139343 0, \
  0.25 0.625 0.32500001788139343 0, \
  0.375 0.84375 0.4687500298023224 0, \
  0.5 1 0.6000000238418579 0, \
  0.625 1 0.71875 0.15625, \
  0.75 1 0.8250000476837158 0.375, \
  0.875 1 0.918749988079071 0.65625, \
  1 1 1 1)
set cbrange [0:1]
