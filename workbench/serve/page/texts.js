// The texts of values with several parts, taken apart and put together again. The
// host alone says what they mean, and whether it reads them.

/// A form of text: labels of its parts, and the letters around and between them.
class Form {
  constructor(labels, ...letters) {
    this.labels = labels;
    this.letters = letters;
    const quoted = letters.map(each => each.replace(/[[\]{}()]/g, '\\$&'));
    this.pattern = new RegExp(`^\\s*${quoted.join('(.*?)')}\\s*$`);
  }

  /// The parts; those of another text are all in the first one.
  split(text) {
    const found = this.pattern.exec(text);
    return found ? found.slice(1) : this.labels.map((_, i) => i === 0 ? text : '');
  }

  join(parts) {
    return this.letters.map((letter, i) => letter + (parts[i] ?? '')).join('');
  }
}

export const Forms = {
  rgba_float_t: new Form(['red', 'green', 'blue', 'alpha'], '(', ',', ',', ',', ')'),
  Range: new Form(['min', 'max'], '', ',', ''),
  VTime: new Form(['value', 'min', 'max', 'step'], '', '[', ',', ']@', ''),
  Point: new Form(['x', 'y', 'z'], '{', ',', ',', '}'),
  Pair: new Form(['x', 'y'], '', 'x', ''),
};

/// The chosen word of a choice.
export function chosen(text) {
  return text.split('{')[0];
}

/// The words of a list of flags: those that are on have no minus, and what the text
/// leaves out is off.
export function flagsOn(text) {
  return new Set(text.split(/\s+/));
}

/// A text for the names of all flags and those that are on.
export function flagsText(names, on) {
  return names.map(name => ` ${on.has(name) ? '' : '-'}${name}`).join('');
}

/// A sum without the dust of binary fractions, as people write numbers.
export function plainNumber(number) {
  return String(Number(number.toPrecision(12)));
}
