// The picture of each viewer, as the program drew it.

import {byId, element, say} from './dom.js';
import {isBusy, paintEach, whenQuiet} from './edits.js';
import {oneAtATime} from './oneAtATime.js';
import {Probe} from './probe.js';
import {address, pixelsOf} from './server.js';
import {studio} from './studio.js';

class Picture {
  constructor(viewer) {
    this.name = viewer.name;
    this.revision = -1;
    this.canvas = element('canvas', {
      width: viewer.width, height: viewer.height, tabIndex: 0, role: 'img', id: `picture-${viewer.name}`,
      'aria-label': `Picture of ${viewer.name}; arrow keys ask what a pixel shows`,
    });
    // Pictures come whole, by the processor; nothing is drawn on them.
    this.context = this.canvas.getContext('2d', {willReadFrequently: true});
    this.size = element('span', {className: 'soft'});
    this.reason = element('p', {className: 'reason', role: 'status'});
    this.probe = new Probe(this.name, this.canvas);
    this.root = element('figure', {data: {viewer: viewer.name}},
      element('figcaption', {}, element('h2', {}, viewer.name), this.size,
        element('a', {
          className: 'button', href: address('picture.png', {viewer: viewer.name}),
          download: `${viewer.name}.png`, 'aria-label': `Save picture of ${viewer.name}`,
        }, 'Save picture')),
      element('div', {className: 'frame'}, this.canvas, this.probe.mark),
      this.probe.root, this.reason);
  }

  complain(text) {
    say(this.reason, text ?? '');
  }

  /// Draws what the viewer shows now. A picture that cannot be had leaves the last one.
  async draw() {
    try {
      this.paint(await pixelsOf(this.name));
      this.complain(studio.state?.viewers.find(each => each.name === this.name)?.error);
    } catch (refusal) {
      this.complain(refusal.message);
    }
  }

  /// A picture that was overtaken by a younger one is not painted.
  paint({image, revision}) {
    if (revision < this.revision) return;
    const {canvas} = this;
    if (canvas.width !== image.width || canvas.height !== image.height)
      Object.assign(canvas, {width: image.width, height: image.height});
    say(this.size, `${image.width} × ${image.height}`);
    this.context.putImageData(image, 0, 0);
    this.revision = revision;
    canvas.dataset.revision = revision;
    this.probe.ask();
  }
}

let pictures = [];

/// A picture for each viewer, in their order; those that stand remain.
function arrange(viewers) {
  if (pictures.map(each => each.name).join('\n') !== viewers.map(each => each.name).join('\n')) {
    pictures = viewers.map(viewer =>
      pictures.find(each => each.name === viewer.name) ?? new Picture(viewer));
    byId('viewers').replaceChildren(...pictures.map(each => each.root));
  }
  byId('pictures').classList.toggle('none', viewers.length === 0);
}

/// Draws the pictures that are older than the revision; while the hand moves, the
/// first one only.
const draw = oneAtATime(async revision => {
  for (const [i, picture] of pictures.entries()) {
    if (i > 0 && isBusy()) break;
    if (picture.revision < revision) await picture.draw();
  }
});

/// Each change is seen in the first picture at once, and in the others later.
function paintEachChange() {
  paintEach(() => pictures[0]?.name ?? null,
            (viewer, picture) => pictures.find(each => each.name === viewer)?.paint(picture));
}

export function showPictures() {
  paintEachChange();
  whenQuiet(draw);
  studio.on('state', state => {
    arrange(state.viewers);
    for (const {name, error} of state.viewers)
      pictures.find(each => each.name === name).complain(error);
    draw(state.revision);
  });
}
