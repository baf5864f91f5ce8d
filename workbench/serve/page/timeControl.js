// A time: where it stands between its ends, one step on or back, and playing.

import {element} from './dom.js';
import {gestureWord} from './edits.js';
import {Field, Slider} from './fields.js';
import {Forms, plainNumber} from './texts.js';

const Form = Forms.VTime;
const Frame = 100;  // milliseconds from one step of playing to the next, at least

export class TimeControl {
  constructor(label, row) {
    this.row = row;
    this.label = label;
    this.playing = false;
    this.fields = Form.labels.map((part, i) => new Field({
      label: `${label}: ${part}`, numeric: true,
      send: (text, input) => row.send(text === null ? null : this.textWith(i, text), input),
    }));
    this.slider = new Slider({
      label: `${label}, slider`, min: 0, max: 1, step: 'any', busy: row.busy,
      send: (text, input, gesture) => this.go(Number(text), input, gesture),
    });
    const button = (name, text, act) =>
      element('button', {type: 'button', 'aria-label': `${label}: ${name}`, title: name, on: {click: act}}, text);
    this.playButton = button('play', '▶', () => this.play(!this.playing));
    this.root = element('div', {className: 'control time'},
      element('div', {className: 'row'},
        button('step back', '◂', () => this.step(-1)), this.playButton,
        button('step on', '▸', () => this.step(1)), this.slider.input),
      element('div', {className: 'parts'}, ...this.fields.map((field, i) =>
        element('label', {className: 'part'}, element('span', {'aria-hidden': 'true'}, Form.labels[i]), field.input))));
  }

  get numbers() {
    return this.fields.map(field => Number(field.known));
  }

  textWith(index, part) {
    return Form.join(this.fields.map((field, i) => i === index ? part : field.known));
  }

  go(value, input, gesture) {
    const text = this.textWith(0, plainNumber(value));
    this.fields[0].foretell(plainNumber(value));
    this.slider.input.value = value;
    return this.row.send(text, input, gesture);
  }

  /// A step on or back; behind an end it goes on at the other.
  step(direction, gesture) {
    const [value, min, max, step] = this.numbers;
    const next = value + direction * (step > 0 ? step : (max - min) / 10);
    const dust = 1e-9 * Math.abs(max - min);
    const wrapped = next > max + dust ? min : next < min - dust ? max : next;
    return this.go(wrapped, this.fields[0].input, gesture);
  }

  async play(on) {
    this.playing = on;
    this.playButton.textContent = on ? '❚❚' : '▶';
    this.playButton.setAttribute('aria-label', `${this.label}: ${on ? 'pause' : 'play'}`);
    this.playButton.title = on ? 'pause' : 'play';
    gestureWord(true);
    while (this.playing && this.root.isConnected) {
      const pause = new Promise(resolve => setTimeout(resolve, Frame));
      if (!await this.step(1, gestureWord())) break;
      await pause;
    }
    if (on && this.playing) this.play(false);
  }

  show(text) {
    if (this.row.busy()) return;
    const parts = Form.split(text);
    parts.forEach((part, i) => this.fields[i].show(part));
    this.slider.input.min = parts[1];
    this.slider.input.max = parts[2];
    this.slider.show(parts[0]);
  }
}
