// What went wrong: a program that does not answer, a plug-in that does not load,
// lines of the network that could not be carried out.

import {byId, element, say} from './dom.js';
import {focusBox} from './network.js';
import {studio} from './studio.js';

let answers = true;

function banners() {
  const texts = answers ? [] : ['The program does not answer. What stands here is the last that it told; start telmbench serve again and open its new address.'];
  for (const error of new Set(studio.state?.plugins.map(each => each.error).filter(Boolean)))
    texts.push(`The last pictures stay, since the new build does not load: ${error}`);
  const place = byId('banners');
  if ([...place.children].map(each => each.textContent).join('\n') !== texts.join('\n'))
    place.replaceChildren(...texts.map(text => element('p', {}, text)));
}

export function showAnswering(isAnswering) {
  answers = isAnswering;
  banners();
}

function complaint({line, reason, failure, object}) {
  const where = line ? `Line ${line}: ` : '';
  return element('p', {className: failure ? 'reason' : 'soft'}, where + reason + ' ', object && studio.node(object)
    ? element('button', {type: 'button', className: 'link', on: {click: () => {
      studio.select(object);
      focusBox();
    }}}, `Show ${object}`) : null);
}

function complaints(state) {
  const button = byId('complaints-button');
  const count = state.complaints.length;
  button.hidden = count === 0;
  say(button, count === 1 ? '1 remark' : `${count} remarks`);
  if (!count) open(false);
  byId('complaints').replaceChildren(...state.complaints.map(complaint));
}

function open(isOpen) {
  byId('complaints').hidden = !isOpen;
  byId('complaints-button').setAttribute('aria-expanded', String(isOpen));
}

export function showMessages() {
  studio.on('state', state => {
    banners();
    complaints(state);
    document.title = `${state.title} · telmbench`;
    say(byId('title'), state.title);
  });
  byId('complaints-button').addEventListener('click', () => open(byId('complaints').hidden));
}
