// A colour: a picker, and its four numbers beside it, since they may leave 0 to 1
// and a picker knows whole steps of 255 only.

import {element} from './dom.js';
import {gestureWord} from './edits.js';
import {Field} from './fields.js';
import {Forms, plainNumber} from './texts.js';

const Form = Forms.rgba_float_t;
const Steps = 255;

/// What the picker shows: the nearest colour that it can.
function pickerText(parts) {
  return '#' + parts.slice(0, 3).map(part => {
    const step = Math.round(Math.min(Math.max(Number(part) || 0, 0), 1) * Steps);
    return step.toString(16).padStart(2, '0');
  }).join('');
}

function partsPicked(text) {
  return [1, 3, 5].map(at => plainNumber(Number((parseInt(text.slice(at, at + 2), 16) / Steps).toPrecision(6))));
}

export class ColorControl {
  constructor(label, row) {
    this.row = row;
    this.picker = element('input', {
      type: 'color', 'aria-label': `${label}, picker`, on: {input: () => this.pick()},
    });
    this.fields = Form.labels.map((part, i) => new Field({
      label: `${label}: ${part}`, numeric: true,
      send: (text, input) => row.send(text === null ? null : this.textWith(i, text), input),
    }));
    this.root = element('div', {className: 'control parts'}, this.picker,
      ...this.fields.map((field, i) => element('label', {className: 'part'},
        element('span', {'aria-hidden': 'true'}, Form.labels[i]), field.input)));
  }

  textWith(index, part) {
    return Form.join(this.fields.map((field, i) => i === index ? part : field.known));
  }

  pick() {
    partsPicked(this.picker.value).forEach((part, i) => this.fields[i].foretell(part));
    this.row.send(Form.join(this.fields.map(field => field.known)), this.picker, gestureWord());
  }

  show(text) {
    if (this.row.busy()) return;
    const parts = Form.split(text);
    parts.forEach((part, i) => this.fields[i].show(part));
    this.picker.value = pickerText(parts);
  }
}
