// What the page knows: the state as the program told it last, the entries of the
// catalogue, and which object is selected. Whoever shows something of it listens.

const listeners = {state: [], selection: [], entries: []};

export const studio = {
  state: null,
  entries: [],
  selected: null,

  /// Calls the listener at each change: of "state", "selection" or "entries".
  on(topic, listener) {
    listeners[topic].push(listener);
  },

  /// A younger state than the one that stands.
  accept(state) {
    this.state = state;
    if (!this.node(this.selected)) this.select(firstChoice(state));
    for (const each of listeners.state) each(state);
  },

  acceptEntries(entries) {
    this.entries = entries;
    for (const each of listeners.entries) each();
  },

  entry(key) {
    return this.entries.find(each => each.key === key) ?? null;
  },

  select(name) {
    if (this.selected === name) return;
    this.selected = name;
    history.replaceState(null, '', name === null ? '#' : '#' + encodeURIComponent(name));
    for (const each of listeners.selection) each();
  },

  node(name) {
    return this.state?.nodes.find(each => each.name === name) ?? null;
  },

  get selectedNode() {
    return this.node(this.selected);
  },

  /// All connections: who reads at which input, and from where.
  connections() {
    return this.state.nodes.flatMap(node =>
      node.parameters.filter(each => each.connected).map(each => ({
        consumer: node.name, input: each.name,
        provider: each.connected.object, output: each.connected.parameter,
      })));
  },
};

/// The object that the address names, else the first map, else the first object.
function firstChoice(state) {
  const named = decodeURIComponent(location.hash.slice(1));
  const choice = state.nodes.find(each => each.name === named) ??
    state.nodes.find(each => each.isMap) ?? state.nodes[0];
  return choice?.name ?? null;
}

/// The types whose values have a text that a person sets.
const TextTypes = new Set(['double', 'int', 'bool', 'string', 'rgba_float_t', 'Enum', 'FlagList', 'Range',
                           'VTime', 'Point', 'Box', 'Pair', 'Identifier', 'Nothing']);

/// An input that can only be connected: its text says no more than what it takes,
/// such as "A Grid Object.".
export function isPort({type, text}) {
  return !TextTypes.has(type) && /^An? .*Object\.$/.test(text);
}

/// What others can read of an object: its outputs, and those of its own values that
/// somebody reads. What every object of the host gives (two colons before its name)
/// counts where somebody reads it.
export function outputsOf(node) {
  const read = studio.connections().filter(each => each.provider === node.name).map(each => each.output);
  const values = node.parameters.filter(each => read.includes(each.name) &&
    !node.outputs.some(output => output.name === each.name));
  return [...node.outputs.filter(each => !each.name.startsWith('::') || read.includes(each.name)), ...values.map(({name, type}) => ({name, type}))];
}
