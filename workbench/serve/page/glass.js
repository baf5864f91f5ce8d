// The map under the glass: ramp, components, lightness and what people with a
// colour-vision deficiency see, as the gallery draws them.

import {byId, element} from './dom.js';
import {oneAtATime} from './oneAtATime.js';
import {glassOf} from './server.js';
import {studio} from './studio.js';

const root = byId('glass').attachShadow({mode: 'open'});
const body = element('div');
root.append(element('link', {rel: 'stylesheet', href: 'gallery.css'}),
            element('link', {rel: 'stylesheet', href: 'glass.css'}), element('h3', {}, 'Under the glass'), body);

let shown = '';

const look = oneAtATime(async () => {
  const node = studio.selectedNode;
  const isThere = Boolean(node?.isMap && !node.missing);
  byId('glass').hidden = !isThere;
  if (!isThere) return;
  let html;
  try {
    html = await glassOf(node.name);
  } catch (refusal) {
    html = '';
    body.replaceChildren(element('p', {}, refusal.message));
  }
  if (html && html !== shown)
    body.replaceChildren(...new DOMParser().parseFromString(html, 'text/html').body.childNodes);
  shown = html;
});

export function showGlass() {
  studio.on('state', look);
  studio.on('selection', look);
}
