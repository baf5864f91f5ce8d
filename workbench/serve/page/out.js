// Out of the browser: the command that draws the present picture. (The network and
// the pictures are links that save what the program writes.)

import {byId, say} from './dom.js';
import {command} from './server.js';

async function copy() {
  byId('command').showModal();
  const text = byId('command-text');
  say(byId('command-said'), '');
  try {
    text.value = await command();
  } catch (refusal) {
    text.value = '';
    say(byId('command-said'), refusal.message);
    return;
  }
  text.focus();
  text.select();
  try {
    await navigator.clipboard.writeText(text.value);
    say(byId('command-said'), 'It is copied.');
  } catch {
    say(byId('command-said'), 'Copy it with Ctrl+C.');
  }
}

export function showOut() {
  byId('copy-command').addEventListener('click', copy);
}
