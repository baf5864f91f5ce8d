# Makes hills.asc, heights in metres around a bay, in cells of 250 m:
#   awk -f docs/examples/hills.awk >docs/examples/hills.asc
# Each hill and the bay is height / (1 + distance^2 / width), distances in cells.
# The cells of one corner have no data.
function bump(height, column, row, width) {
    return height / (1 + ((x - column) ^ 2 + (y - row) ^ 2) / width)
}
BEGIN {
    print "ncols 72"; print "nrows 48"
    print "xllcorner 0"; print "yllcorner 0"; print "cellsize 250"
    print "NODATA_value -9999"
    for (y = 0; y < 48; y++) {
        line = ""
        for (x = 0; x < 72; x++) {
            h = bump(1500, 18, 14, 60) + bump(900, 34, 30, 40) + bump(700, 58, 10, 30) \
                - bump(1600, 60, 36, 180) - 40
            whole = h < 0 ? -int(-h) : int(h)
            line = line (x > 0 ? " " : "") (x + y < 9 ? -9999 : whole)
        }
        print line
    }
}
