// The network: a box for each object, a curve for each connection.

import {byId, element, say} from './dom.js';
import {change} from './edits.js';
import {around, boxOf, curve, pathText, portPlace, storedPlace} from './layout.js';
import {address} from './server.js';
import {isPort, outputsOf, studio} from './studio.js';
import {View} from './view.js';
import {neighbour} from './walk.js';

const Svg = 'http://www.w3.org/2000/svg';
const Tail = 9;  // letters at the end of a long name that stay: there names differ
const Slack = 4; // pixels that a hand may shake without moving a box

const view = new View(byId('plane'), byId('sheet'));
const boxes = new Map();   // by name: the element of each object that is shown
let shown = [];

/// The inputs of an object that have a port: those without a text, and all that
/// are connected.
function inputsOf(node) {
  return node.parameters.filter(each => isPort(each) || each.connected);
}

function nameOf(key) {
  return key.slice(key.lastIndexOf('/') + 1);
}

// Boxes

function makeBox(name) {
  const box = element('button', {type: 'button', className: 'box', tabIndex: -1, data: {name}});
  box.parts = {
    head: element('span', {className: 'head'}),
    tail: element('span'),
    kind: element('span', {className: 'kind'}),
    icon: element('img', {className: 'icon', alt: '', hidden: true}),
    faults: element('span', {className: 'count', hidden: true}),
    ports: element('span', {className: 'ports'}),
  };
  const {head, tail, kind, icon, faults, ports} = box.parts;
  box.append(element('span', {className: 'name'}, head, tail), kind, icon, faults, ports);
  box.addEventListener('click', () => studio.select(name));
  box.addEventListener('focus', () => studio.select(name));
  box.addEventListener('pointerdown', event => beginMove(event, box));
  box.addEventListener('keydown', event => press(event, name));
  return box;
}

function fillBox(box, node) {
  const {head, tail, kind, faults} = box.parts;
  const cut = node.name.length > Tail + 4 ? node.name.length - Tail : node.name.length;
  say(head, node.name.slice(0, cut));
  say(tail, node.name.slice(cut));
  say(kind, node.key ? nameOf(node.key) : 'of the host');
  const complaints = complaintsOf(node);
  faults.hidden = complaints.length === 0;
  say(faults, String(complaints.length));
  box.className = ['box', node.status, node.isMap ? 'map' : '', node.isViewer ? 'viewer' : '',
                   node.missing ? 'missing' : ''].join(' ').trim();
  box.title = [node.name, node.key, ...complaints].filter(Boolean).join('\n');
  box.setAttribute('aria-label', describe(node, complaints));
  fillPorts(box.parts.ports, node);
  placeBox(box, boxOf(node));
}

/// All that is wrong at an object.
export function complaintsOf(node) {
  const told = studio.state.complaints.filter(each => each.object === node.name).map(each => each.reason);
  return [...new Set([...node.faults, ...told])];
}

function describe(node, complaints) {
  const readsFrom = node.parameters.filter(each => each.connected)
    .map(each => `${each.name} from ${each.connected.object}`);
  return [
    node.name, node.key && nameOf(node.key) !== node.name ? nameOf(node.key) : '',
    node.status === 'visible' ? '' : node.status, node.missing ? 'could not be made' : '',
    readsFrom.length ? 'reads ' + readsFrom.join(', ') : '', ...complaints,
  ].filter(Boolean).join('; ');
}

function placeBox(box, {x, y, width, height}) {
  Object.assign(box.style, {left: `${x}px`, top: `${y}px`, width: `${width}px`, height: `${height}px`});
}

function fillPorts(place, node) {
  const inputs = inputsOf(node);
  const outputs = outputsOf(node);
  const port = (side, index, {name, connected, type}, all) => {
    const made = element('i', {className: `port ${side}${connected ? ' joined' : ''}`,
                               title: `${name} (${type})`});
    made.style.top = `${portPlace(index, all.length) * 100}%`;
    return made;
  };
  place.replaceChildren(...inputs.map((each, i) => port('in', i, each, inputs)),
                        ...outputs.map((each, i) => port('out', i, each, outputs)));
}

/// A map wears the icon that its object drew at its last update.
async function refreshIcon(box, node, revision) {
  const {icon} = box.parts;
  if (!node.isMap || !node.icon) {
    icon.hidden = true;
    return;
  }
  const fresh = new Image();
  fresh.src = address('icon', {object: node.name, revision});
  try {
    await fresh.decode();
    icon.src = fresh.src;
    icon.hidden = false;
  } catch {
    icon.hidden = true;
  }
}

// Curves

function drawCurves() {
  const places = new Map([...boxes].map(([name, {offsetLeft, offsetTop, offsetWidth, offsetHeight}]) =>
    [name, {x: offsetLeft, y: offsetTop, width: offsetWidth, height: offsetHeight}]));
  const all = [...places.values()];
  const at = (name, side, index, count) => {
    const {x, y, width, height} = places.get(name);
    return {x: side === 'out' ? x + width : x, y: y + portPlace(index, count) * height};
  };
  const curves = studio.connections().filter(each => boxes.has(each.consumer) && boxes.has(each.provider));
  byId('curves').replaceChildren(...curves.map(each => {
    const outputs = outputsOf(studio.node(each.provider));
    const inputs = inputsOf(studio.node(each.consumer));
    const output = Math.max(outputs.findIndex(one => one.name === each.output), 0);
    const path = document.createElementNS(Svg, 'path');
    path.setAttribute('d', pathText(curve(
      at(each.provider, 'out', output, Math.max(outputs.length, 1)),
      at(each.consumer, 'in', inputs.findIndex(one => one.name === each.input), inputs.length), all)));
    path.dataset.from = `${each.provider}.${each.output}`;
    path.dataset.to = `${each.consumer}.${each.input}`;
    const selected = [each.consumer, each.provider].includes(studio.selected);
    path.classList.toggle('selected', selected);
    return path;
  }));
}

// By hand

function beginMove(event, box) {
  if (event.button !== 0) return;
  const start = {x: event.clientX, y: event.clientY, left: box.offsetLeft, top: box.offsetTop};
  let moved = false;
  const move = each => {
    const x = (each.clientX - start.x), y = (each.clientY - start.y);
    moved ||= Math.hypot(x, y) > Slack;
    if (!moved) return;
    box.classList.add('moved');
    box.style.left = `${start.left + x / view.scale}px`;
    box.style.top = `${start.top + y / view.scale}px`;
    drawCurves();
  };
  const end = () => {
    box.removeEventListener('pointermove', move);
    box.classList.remove('moved');
    if (moved) moveTo(box.dataset.name, storedPlace(box.offsetLeft, box.offsetTop));
  };
  box.setPointerCapture(event.pointerId);
  box.addEventListener('pointermove', move);
  for (const type of ['pointerup', 'pointercancel']) box.addEventListener(type, end, {once: true});
}

function moveTo(object, {x, y}) {
  change({do: 'move', object, x, y}).catch(() => show(studio.state));
}

// By keyboard

const Directions = {ArrowLeft: 'left', ArrowRight: 'right', ArrowUp: 'up', ArrowDown: 'down',
                    PageUp: 'previous', PageDown: 'next', Home: 'first', End: 'last'};
const Move = 10;  // units of the stored places
const Moves = {ArrowLeft: [-Move, 0], ArrowRight: [Move, 0], ArrowUp: [0, -Move], ArrowDown: [0, Move]};

function press(event, name) {
  if (event.ctrlKey || event.altKey || event.metaKey) return;
  const node = studio.node(name);
  const {key, shiftKey} = event;
  if (shiftKey && Moves[key]) moveTo(name, {x: node.x + Moves[key][0], y: node.y + Moves[key][1]});
  else if (Directions[key]) focusBox(neighbour(shown, studio.connections(), name, Directions[key]));
  else if (key === 'Enter') enterParameters();
  else if (key === 'Delete' && !node.implicit) remove(name);
  else if (key === '+' || key === '-') view.zoom(key === '+' ? 1.25 : 0.8);
  else if (key === '0') fit();
  else return;
  event.preventDefault();
}

/// Deletes an object.
export function remove(object) {
  return change({do: 'delete', object});
}

function enterParameters() {
  byId('node').querySelector('.scroll :is(input, select, button, textarea):not(:disabled)')?.focus();
}

/// Brings the focus to the box of the selected object.
export function focusBox(name = studio.selected) {
  boxes.get(name)?.focus({preventScroll: true});
}

// All of it

function fit() {
  if (shown.length) view.fit(around(shown.map(boxOf)));
}

function show(state) {
  const hidden = state.nodes.filter(each => each.status === 'hidden');
  say(byId('hidden-count'), `${hidden.length} hidden`);
  shown = byId('show-hidden').checked ? state.nodes : state.nodes.filter(each => each.status !== 'hidden');
  const first = boxes.size === 0;
  for (const [name, box] of boxes)
    if (!shown.some(each => each.name === name)) {
      boxes.delete(name);
      box.remove();
    }
  for (const node of shown) {
    if (!boxes.has(node.name)) {
      boxes.set(node.name, makeBox(node.name));
      byId('nodes').append(boxes.get(node.name));
    }
    const box = boxes.get(node.name);
    if (!box.classList.contains('moved')) fillBox(box, node);
    refreshIcon(box, node, state.revision);
  }
  if (first) fit();
  mark();
}

/// Shows which object is selected. One box can be reached by Tab: that one.
function mark() {
  const name = boxes.has(studio.selected) ? studio.selected : shown[0]?.name;
  for (const [each, box] of boxes) {
    box.tabIndex = each === name ? 0 : -1;
    box.setAttribute('aria-pressed', String(each === studio.selected));
  }
  drawCurves();
  const node = shown.find(each => each.name === studio.selected);
  if (node) view.reveal(boxOf(node));
}

/// A free place for a new object, in the middle of what is seen.
export function freePlace() {
  const middle = {x: (view.plane.clientWidth / 2 - view.x) / view.scale,
                  y: (view.plane.clientHeight / 2 - view.y) / view.scale};
  const taken = shown.map(boxOf);
  for (let step = 0; ; ++step) {
    const x = middle.x + (step % 5) * 40 - 80, y = middle.y + Math.floor(step / 5) * 30 - 60;
    const free = taken.every(box => Math.abs(box.x - x) > box.width || Math.abs(box.y - y) > 60);
    if (free || step > 60) return storedPlace(x, y);
  }
}

export function showNetwork() {
  studio.on('state', show);
  studio.on('selection', () => studio.state && mark());
  byId('show-hidden').addEventListener('change', () => {
    show(studio.state);
    fit();
  });
  byId('zoom-in').addEventListener('click', () => view.zoom(1.25));
  byId('zoom-out').addEventListener('click', () => view.zoom(0.8));
  byId('zoom-fit').addEventListener('click', fit);
  new ResizeObserver(() => view.isFitted && fit()).observe(byId('plane'));
}
