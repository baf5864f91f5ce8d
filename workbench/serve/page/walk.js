// Where an arrow key leads from an object of the network.

const Directions = {left: [-1, 0], right: [1, 0], up: [0, -1], down: [0, 1]};

/// The name of the object to go to; the same one where there is no way on. To the
/// left and right connections go first, then the nearest object on that side.
export function neighbour(nodes, connections, name, direction) {
  if (!(direction in Directions)) return inOrder(nodes, name, direction);
  return alongConnection(nodes, connections, name, direction) ??
    nearest(nodes, name, Directions[direction]) ?? name;
}

function inOrder(nodes, name, direction) {
  const names = [...nodes].sort((a, b) => a.x - b.x || a.y - b.y).map(each => each.name);
  const at = names.indexOf(name);
  const place = {first: 0, last: names.length - 1, previous: at - 1, next: at + 1}[direction];
  return names.at(place % names.length);
}

function alongConnection(nodes, connections, name, direction) {
  const ends = direction === 'left'
    ? connections.filter(each => each.consumer === name).map(each => each.provider)
    : direction === 'right'
      ? connections.filter(each => each.provider === name).map(each => each.consumer) : [];
  return ends.find(end => nodes.some(each => each.name === end));
}

/// The nearest one on that side; what lies aside counts as twice as far.
function nearest(nodes, name, [x, y]) {
  const from = nodes.find(each => each.name === name);
  const ranked = nodes.filter(each => each !== from).map(each => {
    const along = (each.x - from.x) * x + (each.y - from.y) * y;
    const aside = Math.abs((each.x - from.x) * y) + Math.abs((each.y - from.y) * x);
    return {name: each.name, along, distance: along + 2 * aside};
  }).filter(each => each.along > 0).sort((a, b) => a.distance - b.distance);
  return ranked[0]?.name;
}
