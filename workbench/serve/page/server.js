// All that the page asks of the program that serves it.

/// What the host refuses, in its own words.
export class Refusal extends Error {}

async function refusalOf(response) {
  try {
    return new Refusal((await response.json()).error);
  } catch {
    return new Refusal(`The program answered with status ${response.status}.`);
  }
}

async function ask(address, options) {
  const response = await fetch(address, options);
  if (!response.ok) throw await refusalOf(response);
  return response;
}

/// An address with a query.
export function address(path, query) {
  return `${path}?${new URLSearchParams(query)}`;
}

/// The state once it is younger than the revision; nothing if none came for a while.
export async function stateAfter(revision) {
  const response = await ask(revision === null ? 'state' : address('state', {after: revision}));
  return response.status === 204 ? null : response.json();
}

/// Carries out an edit; the number of the revision that has it.
export async function sendEdit(edit) {
  const response = await ask('edit', {
    method: 'POST',
    headers: {'Content-Type': 'application/json'},
    body: JSON.stringify(edit),
  });
  return (await response.json()).revision;
}

/// The picture of a viewer, as it came, and the revision it shows.
export async function pixelsOf(viewer) {
  const response = await ask(address('pixels', {viewer}));
  const number = name => Number(response.headers.get(name));
  const bytes = new Uint8ClampedArray(await response.arrayBuffer());
  return {
    revision: number('X-Revision'),
    image: new ImageData(bytes, number('X-Width'), number('X-Height')),
  };
}

export async function probe(viewer, x, y) {
  return (await ask(address('probe', {viewer, x, y}))).json();
}

export async function glassOf(object) {
  return (await ask(address('glass', {object}))).text();
}

export async function catalogue() {
  return (await ask('catalogue')).json();
}

export async function command() {
  return (await ask('command')).text();
}
