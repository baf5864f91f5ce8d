import gimp
import job


def sample(name, file, values):
    gimp.install(file, "gradients")
    numbers = [value for value in values if value == value]
    lines = gimp.run(f'''
(define (mine names)
  (cond ((null? names) #f)
        ((and (> (string-length (car names)) 20)
              (string=? (substring (car names) 0 11) "Colour map ")) (car names))
        (else (mine (cdr names)))))
(define name (mine (cadr (gimp-gradients-get-list ""))))
(define samples (cadr (gimp-gradient-get-custom-samples name {len(numbers)}
  #({" ".join(repr(min(1.0, max(0.0, value))) for value in numbers)}) FALSE)))
(let loop ((i 0))
  (if (< i (* 4 {len(numbers)}))
      (begin (say (vector-ref samples i)) (loop (+ i 1)))))''')
    parts = [255 * float(line) for line in lines]
    colors = iter([parts[i:i + 3] for i in range(0, len(parts), 4)])
    return [next(colors) if value == value else None for value in values]


job.run("GIMP " + gimp.VERSION, sample)
