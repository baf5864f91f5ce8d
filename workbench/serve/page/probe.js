// What stands under the pointer: the pixel, the sample of the data, the scalar
// that the map was asked for, and its answer. On the keyboard arrows move it.

import {element} from './dom.js';
import {oneAtATime} from './oneAtATime.js';
import {probe} from './server.js';

const Steps = {ArrowLeft: [-1, 0], ArrowRight: [1, 0], ArrowUp: [0, -1], ArrowDown: [0, 1]};

export class Probe {
  constructor(viewer, canvas) {
    this.viewer = viewer;
    this.canvas = canvas;
    this.place = null;
    this.mark = element('div', {className: 'mark', hidden: true});
    this.root = element('dl', {className: 'probe', role: 'status', 'aria-label': `Under the pointer in ${viewer}`});
    this.look = oneAtATime(() => this.lookNow());
    this.show(null);
    canvas.addEventListener('pointermove', event => this.move(...this.pixelAt(event)));
    canvas.addEventListener('pointerdown', event => this.move(...this.pixelAt(event)));
    canvas.addEventListener('pointerleave', () => this.leave());
    canvas.addEventListener('keydown', event => this.step(event));
    canvas.addEventListener('blur', () => this.leave());
  }

  pixelAt(event) {
    const box = this.canvas.getBoundingClientRect();
    return [(event.clientX - box.left) * this.canvas.width / box.width,
            (event.clientY - box.top) * this.canvas.height / box.height].map(Math.floor);
  }

  step(event) {
    const step = Steps[event.key];
    if (!step || event.ctrlKey || event.altKey || event.metaKey) return;
    event.preventDefault();
    const length = event.shiftKey ? 10 : 1;
    const [x, y] = this.place ?? [this.canvas.width >> 1, this.canvas.height >> 1];
    this.move(x + step[0] * length, y + step[1] * length);
  }

  move(x, y) {
    const within = (value, size) => Math.min(Math.max(value, 0), size - 1);
    this.place = [within(x, this.canvas.width), within(y, this.canvas.height)];
    this.markPlace();
    this.ask();
  }

  leave() {
    this.place = null;
    this.mark.hidden = true;
    this.show(null);
  }

  markPlace() {
    this.mark.hidden = false;
    this.mark.style.left = `${(this.place[0] + 0.5) / this.canvas.width * 100}%`;
    this.mark.style.top = `${(this.place[1] + 0.5) / this.canvas.height * 100}%`;
  }

  /// Asks again, at the same place: the picture may have changed.
  ask() {
    if (this.place) this.look();
  }

  async lookNow() {
    if (!this.place) return;
    try {
      const found = await probe(this.viewer, ...this.place);
      if (this.place) this.show(found);
    } catch (refusal) {
      this.show({error: refusal.message});
    }
  }

  show(found) {
    const rows = !found ? [['Under the pointer', 'point at the picture, or walk it by arrow keys']]
      : found.error ? [['Under the pointer', found.error]]
      : [['pixel', found.pixel.join(', ')], ['on screen', found.color.join(' ')],
         ['sample', found.sample], ['scalar', found.scalar], ['map', found.map],
         ['value, red, green, blue, alpha', found.lookup]];
    this.root.classList.toggle('empty', !found?.pixel);
    this.root.replaceChildren(...rows.filter(([, text]) => text !== null && text !== undefined)
      .map(([name, text]) => element('div', {}, element('dt', {}, name), element('dd', {}, text))));
  }
}
