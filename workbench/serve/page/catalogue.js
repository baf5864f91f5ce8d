// All that can be made: maps with their colours, and other objects.

import {byId, element, say} from './dom.js';
import {change} from './edits.js';
import {freePlace} from './network.js';
import {address, catalogue} from './server.js';
import {studio} from './studio.js';

let age = null;

/// When the plug-ins were loaded: the catalogue and its ramps are as old.
function ageOf(state) {
  return state.plugins.map(each => each.loaded).join(' ');
}

function matches(entry, words) {
  const text = [entry.key, entry.name, entry.description, ...entry.tags].join(' ').toLowerCase();
  return words.every(word => text.includes(word));
}

/// The selected object, if an entry can take its place.
function replaceable() {
  const node = studio.selectedNode;
  return node?.isMap ? node : null;
}

function item(entry) {
  const isMap = entry.kind === 'map';
  const replaces = isMap && replaceable();
  const current = replaces && replaces.key === entry.key;
  const content = [
    isMap ? element('img', {alt: '', loading: 'lazy', src: address('ramp', {key: entry.key, age}), width: 256, height: 16}) : null,
    element('span', {className: 'entry-name'}, entry.name),
  ];
  const main = replaces
    ? element('button', {
      type: 'button', className: 'entry', title: entry.description || entry.key,
      'aria-label': `${entry.name}: put it in the place of ${replaces.name}`, 'aria-pressed': String(current),
      on: {click: () => put(entry, replaces)},
    }, ...content)
    : element('span', {className: 'entry', title: entry.description || entry.key}, ...content);
  return element('li', {data: {key: entry.key}}, main, element('button', {
    type: 'button', className: 'quiet add', 'aria-label': `Add ${entry.name} as an object`, title: 'Add it as an object',
    on: {click: () => add(entry)},
  }, 'add'));
}

function complain(refusal) {
  say(byId('catalogue-hint'), refusal.message);
  byId('catalogue-hint').classList.add('reason');
}

function put(entry, node) {
  change({do: 'replace', object: node.name, key: entry.key}).catch(complain);
}

async function add(entry) {
  const before = new Set(studio.state.nodes.map(each => each.name));
  awaitNew = names => names.find(name => !before.has(name));
  change({do: 'create', key: entry.key, ...freePlace()}).catch(refusal => {
    awaitNew = null;
    complain(refusal);
  });
}

/// Finds the object that was just added among all names, to select it.
let awaitNew = null;

function list() {
  const words = byId('search').value.toLowerCase().split(/\s+/).filter(Boolean);
  const found = studio.entries.filter(each => matches(each, words));
  const held = document.activeElement?.getAttribute('aria-label');
  const within = byId('entries').contains(document.activeElement);
  const top = byId('entries').scrollTop;
  const groups = [['map', 'Colour maps'], ['node', 'Other objects']].flatMap(([kind, title]) => {
    const some = found.filter(each => each.kind === kind);
    return some.length ? [element('li', {className: 'group-title', role: 'presentation'}, title), ...some.map(item)] : [];
  });
  byId('entries').replaceChildren(...groups);
  byId('entries').scrollTop = top;
  if (within)
    [...byId('entries').querySelectorAll('button')].find(each => each.getAttribute('aria-label') === held)?.focus();
  const node = replaceable();
  byId('catalogue-hint').classList.remove('reason');
  say(byId('catalogue-hint'), found.length === 0 ? 'No entry has these words.'
    : node ? `A click on a map puts it in the place of ${node.name}.`
    : 'Select a colour map of the network to put another in its place.');
}

async function update(state) {
  const name = awaitNew?.(state.nodes.map(each => each.name));
  if (name) {
    awaitNew = null;
    studio.select(name);
  }
  if (ageOf(state) === age) return relist();
  try {
    const entries = await catalogue();
    age = ageOf(state);
    studio.acceptEntries(entries);
  } catch {
    // The next state tries again.
  }
}

/// Lists again where something that the list depends on has changed.
let listedFor = null;
function relist() {
  const node = replaceable();
  const now = JSON.stringify([age, node?.name, node?.key, byId('search').value]);
  if (now !== listedFor) list();
  listedFor = now;
}

export async function showCatalogue() {
  studio.on('state', update);
  studio.on('selection', relist);
  studio.on('entries', relist);
  byId('search').addEventListener('input', relist);
}
