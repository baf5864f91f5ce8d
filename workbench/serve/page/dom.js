// Makes elements.

/// An element with properties (or attributes, where the name has a hyphen or is
/// "role"), with `on` its listeners and `data` its data attributes, and children.
export function element(tag, properties = {}, ...children) {
  const made = document.createElement(tag);
  for (const [name, value] of Object.entries(properties)) {
    if (name === 'on')
      for (const [type, listener] of Object.entries(value)) made.addEventListener(type, listener);
    else if (name === 'data') Object.assign(made.dataset, value);
    else if (name === 'role' || name.includes('-')) {
      if (value !== null && value !== undefined) made.setAttribute(name, value);
    } else if (value !== undefined) made[name] = value;
  }
  made.append(...children.filter(each => each !== null && each !== undefined));
  return made;
}

export function byId(id) {
  return document.getElementById(id);
}

/// Sets a text only where it differs, so that selections and assistive
/// technology are left in peace.
export function say(place, text) {
  if (place.textContent !== text) place.textContent = text;
}

/// A word that no other element on the page has for its id.
let count = 0;
export function freshId(word) {
  return `${word}-${++count}`;
}
