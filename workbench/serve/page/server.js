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

const AsTheyAre = 2 ** 31;

/// The pixels of an answer, which are numbers N, each with a pixel that stands N times
/// or, beyond 2^31, with N of them. A pixel is red, green, blue and alpha, a byte each.
function imageOf(bytes, width, height) {
  const image = new ImageData(width, height);
  const pixels = new Uint32Array(image.data.buffer);
  const numbers = new Uint32Array(bytes);
  for (let i = 0, at = 0; i < numbers.length;) {
    const count = numbers[i++];
    if (count < AsTheyAre) pixels.fill(numbers[i++], at, at += count);
    else {
      const several = numbers.subarray(i, i += count - AsTheyAre);
      pixels.set(several, at);
      at += several.length;
    }
  }
  return image;
}

/// A picture as it came, and the revision it shows.
async function pictureOf(response) {
  const [width, height, revision] = ['X-Width', 'X-Height', 'X-Revision'].map(name => Number(response.headers.get(name)));
  return {revision, image: imageOf(await response.arrayBuffer(), width, height)};
}

/// Carries out an edit: the revision that has it, and the picture of the viewer then,
/// if there is one and it can be drawn.
export async function sendEdit(edit, viewer) {
  const response = await ask(viewer === null ? 'edit' : address('edit', {viewer}), {
    method: 'POST',
    headers: {'Content-Type': 'application/json'},
    body: JSON.stringify(edit),
  });
  return response.headers.has('X-Width') ? pictureOf(response) : response.json();
}

/// The picture of a viewer.
export async function pixelsOf(viewer) {
  return pictureOf(await ask(address('pixels', {viewer})));
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
