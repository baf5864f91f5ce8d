// Changes on their way to the program: one at a time, each with the picture that
// it makes. A value that waits is replaced by a later one of the same place.

import {sendEdit} from './server.js';

const waiting = new Map();
let underWay = null;
let running = false;
let screen = {viewer: () => null, paint: () => {}};
const quiet = [];

/// The last revision that an edit of this page has made.
export let lastRevision = 0;

/// Names the viewer whose picture comes with each edit, and the one who paints it,
/// before the next edit goes out.
export function paintEach(viewer, paint) {
  screen = {viewer, paint};
}

/// What is done once no edit is left.
export function whenQuiet(work) {
  quiet.push(work);
}

/// Which edits replace each other: those that set the same value.
let unique = 0;
function placeOf(edit) {
  return edit.do === 'set' ? JSON.stringify([edit.object, edit.name, edit.context ?? null])
                           : `edit ${++unique}`;
}

/// Whether a value is not yet known to the program, or not yet painted.
export function isPending(object, name, context) {
  const place = placeOf({do: 'set', object, name, context});
  return underWay === place || waiting.has(place);
}

export function isBusy() {
  return running;
}

/// Hands an edit on. The promise is kept once the program has it, or a later one
/// in its place; it is broken by a `Refusal`.
export function change(edit) {
  const place = placeOf(edit);
  const replaced = waiting.get(place);
  const promise = new Promise((resolve, reject) => {
    waiting.set(place, {edit, resolve, reject});
  });
  replaced?.resolve();
  run();
  return promise;
}

async function run() {
  if (running) return;
  running = true;
  while (waiting.size) {
    const [place, {edit, resolve, reject}] = waiting.entries().next().value;
    waiting.delete(place);
    underWay = place;
    try {
      const viewer = screen.viewer();
      const answer = await sendEdit(edit, viewer);
      lastRevision = Math.max(lastRevision, answer.revision);
      if (answer.image) screen.paint(viewer, answer);
      resolve();
    } catch (refusal) {
      reject(refusal);
    }
    underWay = null;
  }
  running = false;
  for (const each of quiet) each(lastRevision);
}

/// A word for a movement of the hand: what follows within a moment is one step of
/// undo.
const Moment = 800;  // milliseconds
let gesture = 0;
let lastUse = 0;
export function gestureWord(begins = false) {
  const now = performance.now();
  if (begins || now - lastUse > Moment) ++gesture;
  lastUse = now;
  return `gesture ${gesture}`;
}
