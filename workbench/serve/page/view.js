// Pans and zooms a sheet within a plane.

const Smallest = 0.2;
const Largest = 3;

export class View {
  constructor(plane, sheet) {
    Object.assign(this, {plane, sheet, x: 0, y: 0, scale: 1, isFitted: true});
    plane.addEventListener('pointerdown', event => this.beginPan(event));
    plane.addEventListener('wheel', event => this.wheel(event), {passive: false});
  }

  place(x, y, scale = this.scale) {
    Object.assign(this, {x, y, scale});
    this.sheet.style.transform = `translate(${x}px, ${y}px) scale(${scale})`;
  }

  /// A grip on the empty plane moves the sheet.
  beginPan(event) {
    if (event.button !== 0 || event.target.closest('button')) return;
    event.preventDefault();
    this.isFitted = false;
    const start = {x: this.x - event.clientX, y: this.y - event.clientY};
    const move = each => this.place(start.x + each.clientX, start.y + each.clientY);
    const end = () => {
      this.plane.classList.remove('panned');
      this.plane.removeEventListener('pointermove', move);
    };
    this.plane.classList.add('panned');
    this.plane.setPointerCapture(event.pointerId);
    this.plane.addEventListener('pointermove', move);
    for (const type of ['pointerup', 'pointercancel']) this.plane.addEventListener(type, end, {once: true});
  }

  wheel(event) {
    event.preventDefault();
    const box = this.plane.getBoundingClientRect();
    this.zoom(Math.exp(-event.deltaY / 600), event.clientX - box.left, event.clientY - box.top);
  }

  /// Larger or smaller, with one point of the plane staying where it is.
  zoom(factor, x = this.plane.clientWidth / 2, y = this.plane.clientHeight / 2) {
    this.isFitted = false;
    const scale = Math.min(Math.max(this.scale * factor, Smallest), Largest);
    const grown = scale / this.scale;
    this.place(x - (x - this.x) * grown, y - (y - this.y) * grown, scale);
  }

  /// Shows the whole box, if that leaves letters large enough to be read; else its
  /// beginning.
  fit(box) {
    this.isFitted = true;
    const {clientWidth: width, clientHeight: height} = this.plane;
    const margin = 14;
    const whole = Math.min((width - 2 * margin) / box.width, (height - 2 * margin) / box.height);
    const scale = Math.min(Math.max(whole, 0.72), 1.15);
    const middle = (space, from, length) => Math.max((space - length * scale) / 2, margin) - from * scale;
    this.place(middle(width, box.x, box.width), middle(height, box.y, box.height), scale);
  }

  /// Moves the sheet as little as shows the box.
  reveal(box) {
    const margin = 14;
    const shift = (at, length, space) =>
      at < margin ? margin - at : Math.min(0, space - margin - at - length);
    const x = box.x * this.scale + this.x;
    const y = box.y * this.scale + this.y;
    this.place(this.x + shift(x, box.width * this.scale, this.plane.clientWidth),
               this.y + shift(y, box.height * this.scale, this.plane.clientHeight));
  }
}
