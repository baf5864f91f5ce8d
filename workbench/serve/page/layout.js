// Where boxes, ports and curves of the network lie on the sheet.

// The network stores places of an editor with smaller boxes: a stretch makes room
// for names, and keeps every box where it is beside the others.
const StretchX = 1.62;
const StretchY = 0.82;

const Width = 130;
const Heights = {map: 54, visible: 40, icon: 24, hidden: 24};

export function boxOf(node) {
  const height = node.status === 'visible' ? Heights[node.isMap ? 'map' : 'visible'] : Heights[node.status];
  return {x: node.x * StretchX, y: node.y * StretchY, width: Width, height};
}

/// The stored place of a box whose corner is at a point of the sheet.
export function storedPlace(x, y) {
  return {x: Math.round(x / StretchX), y: Math.round(y / StretchY)};
}

export function around(boxes) {
  const x = Math.min(...boxes.map(box => box.x));
  const y = Math.min(...boxes.map(box => box.y));
  return {
    x, y,
    width: Math.max(...boxes.map(box => box.x + box.width)) - x,
    height: Math.max(...boxes.map(box => box.y + box.height)) - y,
  };
}

/// How far down one of so many ports stands, as a part of the height.
export function portPlace(index, count) {
  return (index + 1) / (count + 1);
}

/// A curve that leaves to the right and arrives from the left, as a list of four
/// points. It sags where it would run behind boxes otherwise.
export function curve(from, to, boxes) {
  const reach = Math.max(Math.abs(to.x - from.x) / 2, to.x < from.x ? 60 : 18);
  const curves = Sags.map(sag => [from, {x: from.x + reach, y: from.y + sag},
                                  {x: to.x - reach, y: to.y + sag}, to]);
  const hits = curves.map(points => hitsOf(points, boxes));
  return curves[hits.indexOf(Math.min(...hits))];
}

const Sags = [0, 45, -45, 90, -90, 135, -135];
const Samples = 24;

/// How many of the points of a curve lie within boxes.
function hitsOf([a, b, c, d], boxes) {
  let hits = 0;
  for (let i = 1; i < Samples; ++i) {
    const t = i / Samples, s = 1 - t;
    const at = axis => s * s * s * a[axis] + 3 * s * s * t * b[axis] + 3 * s * t * t * c[axis] + t * t * t * d[axis];
    const x = at('x'), y = at('y');
    hits += boxes.some(box => x > box.x && x < box.x + box.width && y > box.y && y < box.y + box.height);
  }
  return hits;
}

export function pathText([a, b, c, d]) {
  return `M${a.x} ${a.y} C${b.x} ${b.y} ${c.x} ${c.y} ${d.x} ${d.y}`;
}
