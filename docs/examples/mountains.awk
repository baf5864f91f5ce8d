# Makes a grid of mountains at a coast, heights in metres in cells of 200 m:
#   awk -f docs/examples/mountains.awk >mountains.asc
# Five layers of noise on lattices, each half as coarse and as high as the one
# before, folded into ridges; the land falls to the lower right.
function noise(column, row, layer, value) {  # 0 to 1, the same on every machine
    value = (column * 7919 + row * 104729 + layer * 1299721) % 65536
    value = (value * 25173 + 13849) % 65536
    value = (value * 25173 + 13849 + column * 31 + row * 17) % 65536
    return value / 65536
}
function smooth(part) { return part * part * part * (part * (part * 6 - 15) + 10) }
function blend(from, to, part) { return from + (to - from) * part }
function layered(x, y, layer, column, row, right, down) {
    column = int(x); row = int(y)
    right = smooth(x - column); down = smooth(y - row)
    return blend(blend(noise(column, row, layer), noise(column + 1, row, layer), right),
                 blend(noise(column, row + 1, layer), noise(column + 1, row + 1, layer), right), down)
}
BEGIN {
    width = 480; height = 320
    print "ncols " width; print "nrows " height
    print "xllcorner 400000"; print "yllcorner 5200000"; print "cellsize 200"
    print "NODATA_value -9999"
    for (y = 0; y < height; y++) {
        line = ""
        for (x = 0; x < width; x++) {
            h = 0; size = 150; weight = 1
            for (layer = 0; layer < 5; layer++) {
                ridge = 1 - 2 * layered(x / size, y / size, layer)
                ridge = 1 - (ridge < 0 ? -ridge : ridge)
                h += ridge * ridge * weight
                size /= 2; weight /= 2.4
            }
            h = h * 1550 - 2300 * (x / width) * (y / height) - 350
            line = line (x > 0 ? " " : "") int(h)
        }
        print line
    }
}
