import gimp
import job


def sample(name, file, values):
    gimp.install(file, "palettes")
    # Colours as GIMP reads them, and the values that are their names.
    lines = gimp.run(f'''
(define name "telmbench {name}")
(define count (car (gimp-palette-get-info name)))
(let loop ((i 0))
  (if (< i count)
      (begin (say (list (car (gimp-palette-entry-get-color name i))
                        (car (gimp-palette-entry-get-name name i))))
             (loop (+ i 1)))))''')
    entries = []
    for line in lines:
        color, label = line.split('"')[0], line.split('"')[1]
        start, end = map(float, label.split(" to "))
        entries.append((start, end, gimp.numbers(color)))
    return [entry(entries, value) for value in values]


def entry(entries, value):
    """A palette is a row: below and above there are its ends, and nothing else."""
    if value != value:
        return None
    for start, end, color in reversed(entries):
        if value >= start:
            return color
    return entries[0][2]


job.run("GIMP " + gimp.VERSION, sample)
