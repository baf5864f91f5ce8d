// Undo and redo.

import {byId} from './dom.js';
import {change} from './edits.js';
import {studio} from './studio.js';

function go(way) {
  const button = byId(way);
  if (!button.disabled) change({do: way}).catch(() => {});
}

/// Whether the browser's own undo has something to take back: a text that is typed
/// and not yet handed on.
function isTyping(event) {
  return event.target.matches?.('.edited, [type=search]');
}

function press(event) {
  if (!(event.ctrlKey || event.metaKey) || event.altKey || isTyping(event)) return;
  const key = event.key.toLowerCase();
  const way = key === 'z' ? (event.shiftKey ? 'redo' : 'undo') : key === 'y' ? 'redo' : null;
  if (!way) return;
  event.preventDefault();
  go(way);
}

function show(state) {
  for (const way of ['undo', 'redo']) {
    const button = byId(way);
    button.disabled = state[way] === null;
    button.title = state[way] === null ? '' : `${way === 'undo' ? 'Undo' : 'Redo'}: ${state[way]}`;
  }
}

export function showHistory() {
  studio.on('state', show);
  for (const way of ['undo', 'redo']) byId(way).addEventListener('click', () => go(way));
  document.addEventListener('keydown', press);
}
