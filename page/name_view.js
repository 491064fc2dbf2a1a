// The name, byte by byte, tied to the rows of the table below it.

// More would make the page slow.
const MOST_SEGMENTS = 3000;
const MOST_BYTES = 20000;
const NONE = -1;

// What the bytes of a name are: [{role, label, range: [begin, end], also: [ranges that it depends on]}].
function partsOf(explained) {
  const rangeOfKey = new Map();
  for (const { key, bytes } of [...explained.members, ...explained.steers]) {
    if (bytes) rangeOfKey.set(key, bytes);
  }
  const rangesOf = (keys) => (keys || []).filter((key) => rangeOfKey.has(key)).map((key) => rangeOfKey.get(key));
  return [
    ...explained.members.map((member) => ({
      role: 'member', label: member.member, range: member.bytes || null,
      also: rangesOf(member.chosen_by || member.of),
    })),
    ...explained.steers.map(({ key, bytes }) => ({ role: 'steer', label: key + ' only steers', range: bytes, also: [] })),
    ...explained.ignored.map(({ bytes, reason }) => ({ role: 'ignored', label: 'ignored: ' + reason, range: bytes, also: [] })),
    ...explained.structure.map((range) => ({ role: 'structure', label: 'structure', range, also: [] })),
  ];
}

// For every byte the number of the smallest part that has it.
function ownersOf(parts, size) {
  const owners = new Int32Array(size).fill(NONE);
  const numbers = parts.map((part, number) => number).filter((number) => parts[number].range);
  const sizeOf = (number) => parts[number].range[1] - parts[number].range[0];
  numbers.sort((a, b) => sizeOf(b) - sizeOf(a));
  for (const number of numbers) owners.fill(number, ...parts[number].range);
  return owners;
}

function severitiesOf(problems, size) {
  const severities = new Array(size).fill('');
  for (const severity of ['warning', 'error']) {
    for (const problem of problems) {
      if (problem.severity === severity && problem.bytes) severities.fill(severity, ...problem.bytes);
    }
  }
  return severities;
}

// Places between bytes that mean something: an empty text, an end where more was expected.
function emptySegmentsOf(parts, problems) {
  const isEmpty = (range) => range && range[0] === range[1];
  return [
    ...parts.flatMap((part, owner) => (isEmpty(part.range) ? [{ range: part.range, owner, severity: '' }] : [])),
    ...problems.filter(({ bytes }) => isEmpty(bytes)).map(({ bytes, severity }) => ({ range: bytes, owner: NONE, severity })),
  ];
}

function segmentsOf(parts, problems, size) {
  const owners = ownersOf(parts, size);
  const severities = severitiesOf(problems, size);
  const segments = emptySegmentsOf(parts, problems);
  for (let begin = 0, end; begin < size; begin = end) {
    end = begin + 1;
    while (end < size && owners[end] === owners[begin] && severities[end] === severities[begin]) ++end;
    segments.push({ range: [begin, end], owner: owners[begin], severity: severities[begin] });
  }
  const isShown = ({ range }) => range[1] <= size;
  return segments.filter(isShown).sort((a, b) => a.range[0] - b.range[0] || a.range[1] - b.range[1]);
}

const isInside = (inner, outer) => inner[0] >= outer[0] && inner[1] <= outer[1];
const shownRange = ([begin, end]) => (begin === end ? `at byte ${begin}` : `bytes ${begin} to ${end}`);

class NameView {
  // `container` gets the bytes, `about` says what is under the pointer.
  constructor(container, about) {
    this.container = container;
    this.about = about;
    this.rows = new Map(); // by the number of their part
  }

  show(name, explained) {
    const bytes = name.subarray(0, MOST_BYTES);
    this.parts = partsOf(explained);
    this.rows.clear();
    this.segments = segmentsOf(this.parts, explained.problems, bytes.length).slice(0, MOST_SEGMENTS);
    this.segments.forEach((segment) => (segment.element = this.elementOf(segment, bytes)));
    this.container.replaceChildren(...this.segments.map((segment) => segment.element));
    if (this.segments.length === MOST_SEGMENTS || bytes.length < name.length) this.container.append('…');
    makeRoving(this.container, this.segments.map((segment) => segment.element));
    this.about.textContent = 'Point at a part of the name or at a member: the other one is marked.';
  }

  elementOf(segment, bytes) {
    const part = this.parts[segment.owner];
    const element = make('span', { role: 'option', class: `${part ? part.role : 'structure'} ${segment.severity}` });
    element.append(...piecesOfPart(bytes, segment.range).map(({ text, isEscape }) =>
      isEscape ? make('span', { class: 'escape' }, text) : text));
    element.dataset.bytes = segment.range.join('-');
    element.setAttribute('aria-label', `${element.textContent || 'nothing'}, ${this.describe(segment)}`);
    element.setAttribute('aria-selected', 'false');
    this.watch(element, segment.owner, () => this.describe(segment));
    return element;
  }

  describe({ range, owner, severity }) {
    const part = this.parts[owner];
    return `${shownRange(range)}: ${part ? part.label : 'structure'}${severity ? `, ${severity}` : ''}`;
  }

  // Ties a row of the table to its part.
  addRow(number, row) {
    this.rows.set(number, row);
    const part = this.parts[number];
    this.watch(row, number, () => `${part.label}: ${part.range ? shownRange(part.range) : 'not from bytes of the name'}`);
  }

  watch(element, number, describe) {
    const mark = () => this.mark(number, element, describe());
    element.addEventListener('pointerenter', mark);
    element.addEventListener('focus', mark);
    element.addEventListener('pointerleave', () => this.unmark());
    element.addEventListener('blur', () => this.unmark());
  }

  markMember(path) {
    const number = this.parts.findIndex((part) => part.role === 'member' && part.label === path);
    if (number !== NONE) this.mark(number, null, `${path}, in the picture`);
  }

  mark(number, element, text) {
    this.unmark();
    const part = this.parts[number] || { range: null, also: [] };
    for (const segment of this.segments) {
      const isOwn = segment.element === element || (part.range && isInside(segment.range, part.range));
      const isAlso = part.also.some((range) => isInside(segment.range, range));
      segment.element.classList.toggle('marked', Boolean(isOwn));
      segment.element.classList.toggle('also', !isOwn && isAlso);
      segment.element.setAttribute('aria-selected', String(Boolean(isOwn)));
    }
    if (this.rows.has(number)) this.rows.get(number).classList.add('marked');
    this.about.textContent = text;
  }

  unmark() {
    for (const { element } of this.segments) {
      element.classList.remove('marked', 'also');
      element.setAttribute('aria-selected', 'false');
    }
    for (const row of this.rows.values()) row.classList.remove('marked');
  }
}
