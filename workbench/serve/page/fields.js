// The parts of controls: a field of text and a slider. Both hold what the program
// told last, and neither takes away what a hand is about to set.

import {element} from './dom.js';
import {gestureWord} from './edits.js';
import {plainNumber} from './texts.js';

/// A line of text. A text that the host refuses stays to be mended, with its
/// reason beside it; Escape takes back what the program knows.
export class Field {
  /// `send(text, input)` hands on what was typed; it is kept if the host took it.
  constructor({label, id, send, numeric = false}) {
    this.known = '';
    this.send = send;
    this.input = element('input', {
      type: 'text', id, spellcheck: false, autocomplete: 'off', 'aria-label': label, title: label,
      inputMode: numeric ? 'decimal' : 'text', className: numeric ? 'number' : '',
      on: {change: () => this.commit(), input: () => this.mark(), keydown: event => this.press(event)},
    });
  }

  show(text) {
    const edited = this.input.value !== this.known;
    this.known = text;
    if (!edited) this.input.value = text;
    this.mark();
  }

  /// A text that the program does not have yet is marked: undo belongs to it.
  mark() {
    this.input.classList.toggle('edited', this.input.value !== this.known);
  }

  /// What a slider beside it is about to set.
  foretell(text) {
    this.known = this.input.value = text;
    this.mark();
  }

  async commit() {
    const typed = this.input.value;
    const taken = await this.send(typed, this.input);
    if (taken && this.input.value === typed) this.foretell(typed);
  }

  press(event) {
    if (event.key === 'Escape' && this.input.value !== this.known) {
      event.stopPropagation();
      this.foretell(this.known);
      this.send(null, this.input);
    }
  }
}

/// A slider between two numbers. Each value on its way is handed on.
export class Slider {
  /// `send(text, input, gesture)`, and `busy()`: whether a value is still under way.
  constructor({label, min, max, step, send, busy}) {
    this.held = false;
    this.busy = busy;
    this.input = element('input', {
      type: 'range', min, max, step: step ?? stepWithin(min, max), 'aria-label': label,
      on: {
        pointerdown: () => {
          this.held = true;
          gestureWord(true);
        },
        input: () => send(this.input.value, this.input, gestureWord()),
        change: () => { this.held = false; },
        pointerup: () => { this.held = false; },
      },
    });
  }

  show(text) {
    if (!this.held && !this.busy()) this.input.value = text;
  }
}

/// A step of about a thousandth, a power of ten.
function stepWithin(min, max) {
  return plainNumber(10 ** Math.floor(Math.log10((max - min) / 500 || 1)));
}
