// The selected object: what it is, what it reads, its parameters, who reads it.

import {complaintsOf, focusBox, remove} from './network.js';
import {inputChooser, outputList} from './connections.js';
import {makeControl} from './controls.js';
import {byId, element, freshId, say} from './dom.js';
import {change, isPending, whenQuiet} from './edits.js';
import {isPort, studio} from './studio.js';
import {chosen} from './texts.js';

/// The rows that stand, and what they were made for.
let rows = [];
let madeFor = null;

/// One value of a parameter: everybody's, or that of one viewer.
class ValueRow {
  constructor(object, parameter, viewer) {
    Object.assign(this, {object, name: parameter.name, viewer});
    this.id = freshId('reason');
    this.reason = element('p', {className: 'reason', id: this.id, role: 'alert'});
    const label = viewer === undefined ? parameter.name : `${parameter.name} in ${viewer}`;
    this.control = makeControl(parameter, label, {
      send: (text, input, gesture) => this.send(text, input, gesture),
      busy: () => isPending(object, parameter.name, viewer),
    });
    this.root = element('div', {className: 'value', data: {context: viewer ?? ''}},
      this.place = element('span', {className: 'viewer-name'}, viewer === undefined ? 'elsewhere' : `in ${viewer}`),
      this.control.root, this.reason);
  }

  /// Whether the host took the text; if not, its reason stands at the field.
  async send(text, input, gesture) {
    if (text === null) {
      this.refuse('', input);
      return true;
    }
    try {
      await change({do: 'set', object: this.object, name: this.name, context: this.viewer, text, drag: gesture});
      this.refuse('', input);
      return true;
    } catch (refusal) {
      this.refuse(refusal.message, input);
      return false;
    }
  }

  refuse(text, input) {
    say(this.reason, text);
    for (const each of this.control.root.querySelectorAll('[aria-invalid]')) {
      each.removeAttribute('aria-invalid');
      each.removeAttribute('aria-describedby');
    }
    if (!text) return;
    input.setAttribute('aria-invalid', 'true');
    input.setAttribute('aria-describedby', this.id);
    this.reason.scrollIntoView({block: 'nearest'});
  }

  show(parameter) {
    const text = this.viewer === undefined ? parameter.text : parameter.contexts[this.viewer];
    this.control.show(text);
    this.place.hidden = Object.keys(parameter.contexts ?? {}).length === 0;
    const connected = this.viewer === undefined && parameter.connected;
    for (const each of this.control.root.querySelectorAll('input, select, button')) each.disabled = Boolean(connected);
  }
}

/// A parameter: its name, its values, and from where it reads instead.
class ParameterRow {
  constructor(object, parameter) {
    this.parameter = parameter.name;
    this.facts = element('span', {className: 'soft facts'});
    this.resetButton = element('button', {
      type: 'button', className: 'quiet', title: 'Back to the default, here and in each viewer',
      'aria-label': `Reset ${parameter.name}`, on: {click: () => this.reset(object)},
    }, 'reset');
    this.values = [undefined, ...Object.keys(parameter.contexts ?? {})]
      .map(viewer => new ValueRow(object, parameter, viewer));
    this.chooser = inputChooser(object, parameter, 'own value');
    this.linkButton = this.chooser && element('button', {
      type: 'button', className: 'quiet', title: 'Read the value of another object',
      'aria-label': `Connect ${parameter.name}`, on: {click: () => this.showChooser(this.chooser.root.hidden)},
    }, 'connect');
    this.root = element('div', {
      className: 'parameter', role: 'group', 'aria-label': parameter.name, data: {parameter: parameter.name},
    }, element('div', {className: 'parameter-head'}, element('b', {}, parameter.name), this.facts,
      ...(parameter.type === 'Nothing' ? [] : [this.linkButton, this.resetButton].filter(Boolean))),
      ...this.values.map(each => each.root), this.chooser?.root ?? null);
  }

  showChooser(isOpen) {
    this.chooser.root.hidden = !isOpen;
    this.linkButton.setAttribute('aria-expanded', String(isOpen));
    if (isOpen) this.chooser.root.querySelector('select').focus();
  }

  reset(object) {
    change({do: 'reset', object, name: this.parameter}).catch(refusal => this.values[0].refuse(refusal.message, this.resetButton));
  }

  show(parameter) {
    const level = parameter.expert > 0 ? `, level ${parameter.expert}` : '';
    const fallback = parameter.default === '' || parameter.default === null ? '' : `, default ${parameter.choices ? chosen(parameter.default) : parameter.default}`;
    say(this.facts, `${parameter.type}${fallback}${level}`);
    this.facts.title = parameter.default ?? '';
    for (const each of this.values) each.show(parameter);
    if (!this.chooser) return;
    this.chooser.show(parameter);
    this.linkButton.hidden = Boolean(parameter.connected);
    if (parameter.connected || this.linkButton.ariaExpanded !== 'true')
      this.chooser.root.hidden = !parameter.connected;
  }
}

/// What the rows depend on; where that has changed they are made anew.
function shapeOf(node, withExperts) {
  return JSON.stringify([node.name, node.key, node.expertLevel, withExperts, studio.state.viewers.map(each => each.name),
    node.parameters.map(each => [each.name, each.type, each.min, each.max, Object.keys(each.contexts ?? {}),
      each.choices, each.flags?.map(flag => flag.name), each.candidates, isPort(each)]),
    node.outputs, consumersOf(node)]);
}

/// Whether a parameter is above the level that the network stores for its object.
function isForExperts(parameter, node) {
  return parameter.expert > node.expertLevel;
}

function consumersOf(node) {
  return studio.connections().filter(each => each.provider === node.name);
}

function facts(node) {
  const entry = studio.entry(node.key);
  const deletable = !node.implicit;
  return [
    element('p', {className: 'node-name'}, element('b', {}, node.name),
      element('button', {
        type: 'button', id: 'delete', className: 'quiet', disabled: !deletable, 'aria-label': `Delete ${node.name}`,
        title: deletable ? 'Delete this object' : 'The host makes this object by itself',
        on: {click: () => remove(node.name)},
      }, 'delete')),
    element('p', {className: 'soft'}, element('code', {}, node.key || 'made by the host'),
      node.status === 'visible' ? '' : ` · ${node.status}`),
    entry?.description ? element('p', {className: 'description'}, entry.description) : null,
    ...complaintsOf(node).map(each => element('p', {className: 'reason'}, each)),
  ].filter(Boolean);
}

/// Gives a viewer a value of its own.
function viewerChooser(node, parameters) {
  const places = parameters.flatMap(each => studio.state.viewers
    .filter(viewer => !(viewer.name in (each.contexts ?? {})))
    .map(viewer => ({parameter: each, viewer: viewer.name})));
  if (!places.length) return null;
  const select = element('select', {
    id: 'own-value', 'aria-label': 'Give a viewer a value of its own',
    on: {change: () => {
      const {parameter, viewer} = places[select.selectedIndex - 1];
      const text = studio.node(node.name).parameters.find(each => each.name === parameter.name).text;
      change({do: 'set', object: node.name, name: parameter.name, context: viewer, text});
    }},
  }, element('option', {value: ''}, 'A value of its own for…'), ...places.map(({parameter, viewer}) =>
    element('option', {}, `${viewer}: ${parameter.name}`)));
  return element('div', {className: 'chooser'}, select);
}

function build(node, withExperts) {
  const focused = focusPlace();
  const inputs = node.parameters.filter(isPort);
  const values = node.parameters.filter(each => !isPort(each));
  const usual = values.filter(each => withExperts || !isForExperts(each, node));
  rows = usual.map(each => new ParameterRow(node.name, each));
  const choosers = inputs.map(each => ({parameter: each.name, ...portRow(node.name, each)}));
  byId('inputs').replaceChildren(...section('Reads', choosers.map(each => each.root)));
  byId('parameters').replaceChildren(...section('Parameters', rows.length ? rows.map(each => each.root)
    : [element('p', {className: 'soft'}, values.length ? 'All of them are for experts: see the switch above.' : 'It has none.')]));
  const chooser = viewerChooser(node, usual);
  if (chooser) byId('parameters').append(chooser);
  byId('outputs').replaceChildren(...section('Gives', outputList(node)));
  rows.push(...choosers);
  restoreFocus(focused);
}

function section(title, content) {
  return content.length ? [element('h3', {}, title), ...content] : [];
}

function portRow(object, parameter) {
  const chooser = inputChooser(object, parameter, 'nothing');
  const root = element('div', {className: 'port-row', data: {input: parameter.name}},
    element('span', {}, element('b', {}, parameter.name), element('span', {className: 'soft'}, ` ${parameter.type}`)),
    chooser?.root ?? element('span', {className: 'soft'}, 'nothing fits'));
  return {root, show: each => chooser?.show(each)};
}

/// Where the focus stands among all that the rows have, to be found again in new ones.
function controlsOf() {
  return [...byId('node').querySelectorAll('.scroll :is(input, select, button)')];
}
function focusPlace() {
  const held = document.activeElement;
  return byId('node').contains(held) ? held.getAttribute('aria-label') : null;
}
function restoreFocus(label) {
  if (label && document.activeElement === document.body)
    controlsOf().find(each => each.getAttribute('aria-label') === label)?.focus();
}

function show() {
  const node = studio.selectedNode;
  if (!node) {
    madeFor = null;
    for (const id of ['node-facts', 'inputs', 'parameters', 'outputs']) byId(id).replaceChildren();
    return;
  }
  const experts = node.parameters.filter(each => !isPort(each) && isForExperts(each, node)).length;
  say(byId('expert-count'), experts === 1 ? '1 expert parameter' : `${experts} expert parameters`);
  byId('show-expert').parentElement.classList.toggle('none', experts === 0);
  const focused = focusPlace();
  byId('node-facts').replaceChildren(...facts(node));
  const shape = shapeOf(node, byId('show-expert').checked);
  if (shape !== madeFor) build(node, byId('show-expert').checked);
  madeFor = shape;
  restoreFocus(focused);
  for (const row of rows) row.show(node.parameters.find(each => each.name === row.parameter));
}

export function showParameters() {
  studio.on('state', show);
  studio.on('entries', show);
  studio.on('selection', () => {
    show();
    byId('node').querySelector('.scroll').scrollTop = 0;
  });
  // A state that came while values were under way could not be shown.
  whenQuiet(revision => studio.state?.revision >= revision && show());
  byId('show-expert').addEventListener('change', show);
  byId('node').addEventListener('keydown', event => {
    if (event.key === 'Escape') focusBox();
  });
}
