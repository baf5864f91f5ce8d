// Making and cutting connections, by choosing among those that fit.

import {element} from './dom.js';
import {change} from './edits.js';
import {outputsOf, studio} from './studio.js';

const nameOf = ({object, parameter}) => parameter ? `${object}.${parameter}` : object;

/// Carries out an edit; a refusal is told at the control.
function carryOut(edit, select) {
  select.setCustomValidity('');
  change(edit).catch(refusal => {
    select.setCustomValidity(refusal.message);
    select.reportValidity();
  });
}

/// From where an input reads: one of the outputs that fit, or nothing. There is
/// none to choose where nothing fits.
export function inputChooser(object, parameter, nothing) {
  const places = [...(parameter.candidates ?? [])];
  const {connected} = parameter;
  if (connected && !places.some(each => nameOf(each) === nameOf(connected))) places.unshift(connected);
  if (!places.length || parameter.connectable === false) return null;
  const select = element('select', {
    'aria-label': `${parameter.name} reads from`,
    on: {change: () => {
      const place = places[select.selectedIndex - 1];
      carryOut(place ? {do: 'connect', object, input: parameter.name, provider: place.object, parameter: place.parameter}
                     : {do: 'disconnect', object, input: parameter.name}, select);
    }},
  }, element('option', {}, nothing), ...places.map(place => element('option', {}, nameOf(place))));
  return {
    root: element('div', {className: 'chooser'}, element('span', {className: 'soft', 'aria-hidden': 'true'}, 'from'), select),
    show(now) {
      select.selectedIndex = 1 + places.findIndex(each => now.connected && nameOf(each) === nameOf(now.connected));
      select.title = select.value;
    },
  };
}

/// The outputs of an object, who reads each of them, and who else could.
export function outputList(node) {
  return outputsOf(node).map(output => {
    const readers = studio.connections()
      .filter(each => each.provider === node.name && each.output === output.name);
    const free = studio.state.nodes.flatMap(other => other.parameters
      .filter(input => input.candidates?.some(each => each.object === node.name && each.parameter === output.name))
      .filter(input => !readers.some(each => each.consumer === other.name && each.input === input.name))
      .map(input => ({object: other.name, input: input.name})));
    return element('div', {className: 'output', data: {output: output.name}},
      element('div', {}, element('b', {}, output.name), element('span', {className: 'soft'}, ` ${output.type}`)),
      ...readers.map(reader), joiner(node, output, free));
  });
}

function reader({consumer, input}) {
  const cut = element('button', {
    type: 'button', className: 'quiet', 'aria-label': `Cut the connection to ${consumer}.${input}`,
    on: {click: () => carryOut({do: 'disconnect', object: consumer, input}, cut)},
  }, 'cut');
  return element('div', {className: 'reader'}, element('span', {className: 'soft'}, 'to'),
    element('button', {type: 'button', className: 'link', on: {click: () => studio.select(consumer)}}, `${consumer}.${input}`), cut);
}

function joiner(node, output, free) {
  if (!free.length) return null;
  const select = element('select', {
    'aria-label': `Connect ${output.name} to`,
    on: {change: () => {
      const {object, input} = free[select.selectedIndex - 1];
      carryOut({do: 'connect', object, input, provider: node.name, parameter: output.name}, select);
    }},
  }, element('option', {}, 'Connect to…'), ...free.map(each => element('option', {}, `${each.object}.${each.input}`)));
  return element('div', {className: 'chooser'}, select);
}
