// Keeps the state of the page that of the program, whoever changes it: this page,
// another one, or a plug-in that was built anew.

import {isBusy, lastRevision} from './edits.js';
import {stateAfter} from './server.js';
import {studio} from './studio.js';

const Pause = 1000;     // milliseconds, before a program that is gone is asked again
const Patience = 300;   // milliseconds that a state waits for a hand that moves

const wait = time => new Promise(resolve => setTimeout(resolve, time));

/// While the hand moves, its values go first.
async function quiet() {
  for (let waited = 0; isBusy() && waited < Patience; waited += 20) await wait(20);
}

function visible() {
  return new Promise(resolve => {
    if (!document.hidden) return resolve();
    document.addEventListener('visibilitychange', () => resolve(visible()), {once: true});
  });
}

/// Never ends. Tells `heard` whether the program answers.
export async function follow(heard) {
  let answers = false;
  for (;;) {
    await visible();
    await quiet();
    try {
      // Whoever did not answer is asked for what there is, not for what comes.
      const state = await stateAfter(answers ? studio.state.revision : null);
      answers = true;
      heard(true);
      if (state && state.revision >= lastRevision) studio.accept(state);
    } catch {
      answers = false;
      heard(false);
      await wait(Pause);
    }
  }
}
