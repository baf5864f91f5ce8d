// A control fit for each type of value. All take and give the host's texts.
//
// A control has `root`, and `show(text)` for what the program has told. It is made
// with the parameter, a label, and `row`: `row.send(text, input, gesture)` hands a
// text on (null: what was refused is taken back), `row.busy()` tells whether one is
// under way.

import {ColorControl} from './colorControl.js';
import {element, freshId} from './dom.js';
import {Field, Slider} from './fields.js';
import {chosen, flagsOn, flagsText, Forms} from './texts.js';
import {TimeControl} from './timeControl.js';

class TextControl {
  constructor(parameter, label, row) {
    this.field = new Field({label, send: row.send});
    this.root = element('div', {className: 'control'}, this.field.input);
  }

  show(text) {
    this.field.show(text);
  }
}

/// A number, with a slider where its least and largest value are told; beyond them
/// it may be typed.
class NumberControl {
  constructor(parameter, label, row) {
    const {min, max, type} = parameter;
    this.field = new Field({label, send: row.send, numeric: true});
    this.root = element('div', {className: 'control'});
    if (min !== null && max !== null && Number(min) < Number(max)) {
      this.slider = new Slider({
        label: `${label}, slider`, min: Number(min), max: Number(max),
        step: type === 'double' ? undefined : 1, busy: row.busy,
        send: (text, input, gesture) => {
          this.field.foretell(text);
          row.send(text, input, gesture);
        },
      });
      this.root.append(this.slider.input);
    }
    this.root.append(this.field.input);
  }

  show(text) {
    if (this.slider && this.slider.busy()) return;
    this.slider?.show(text);
    this.field.show(text);
  }
}

class ChoiceControl {
  constructor(parameter, label, row) {
    this.select = element('select', {
      'aria-label': label, on: {change: () => row.send(this.select.value, this.select)},
    }, ...parameter.choices.map(choice => element('option', {value: choice}, choice)));
    this.root = element('div', {className: 'control'}, this.select);
  }

  show(text) {
    this.select.value = chosen(text);
  }
}

class FlagsControl {
  constructor(parameter, label, row) {
    this.names = parameter.flags.map(each => each.name);
    this.boxes = this.names.map(name => element('input', {
      type: 'checkbox', id: freshId('flag'), 'aria-label': `${label}: ${name}`,
      on: {change: () => row.send(this.text(), this.boxes[0])},
    }));
    this.root = element('div', {className: 'control flags'}, ...this.boxes.map((box, i) =>
      element('label', {}, box, ' ' + this.names[i])));
  }

  text() {
    return flagsText(this.names, new Set(this.names.filter((_, i) => this.boxes[i].checked)));
  }

  show(text) {
    const on = flagsOn(text);
    this.boxes.forEach((box, i) => { box.checked = on.has(this.names[i]); });
  }
}

class SwitchControl {
  constructor(parameter, label, row) {
    this.box = element('input', {
      type: 'checkbox', 'aria-label': label,
      on: {change: () => row.send(String(this.box.checked), this.box)},
    });
    this.root = element('div', {className: 'control flags'}, element('label', {}, this.box, ' on'));
  }

  show(text) {
    this.box.checked = text === 'true';
  }
}

/// Several numbers in one text, a field for each.
class PartsControl {
  constructor(form, label, row) {
    this.form = form;
    this.fields = form.labels.map((part, i) => new Field({
      label: `${label}: ${part}`, numeric: true,
      send: (text, input) => row.send(text === null ? null : this.textWith(i, text), input),
    }));
    this.root = element('div', {className: 'control parts'}, ...this.fields.map((field, i) =>
      element('label', {className: 'part'}, element('span', {'aria-hidden': 'true'}, form.labels[i]), field.input)));
  }

  textWith(index, part) {
    return this.form.join(this.fields.map((field, i) => i === index ? part : field.known));
  }

  show(text) {
    this.form.split(text).forEach((part, i) => this.fields[i].show(part));
  }
}

/// An action or a status: there is nothing to set.
class EmptyControl {
  constructor() {
    this.root = element('div', {className: 'control soft'}, 'has no value');
  }

  show() {}
}

export function makeControl(parameter, label, row) {
  const {type, choices, flags} = parameter;
  if (choices) return new ChoiceControl(parameter, label, row);
  if (flags) return new FlagsControl(parameter, label, row);
  switch (type) {
    case 'double':
    case 'int': return new NumberControl(parameter, label, row);
    case 'bool': return new SwitchControl(parameter, label, row);
    case 'rgba_float_t': return new ColorControl(label, row);
    case 'VTime': return new TimeControl(label, row);
    case 'Nothing': return new EmptyControl();
  }
  return Forms[type] ? new PartsControl(Forms[type], label, row) : new TextControl(parameter, label, row);
}
