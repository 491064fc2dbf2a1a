// The table of members, and the problems.

const MOST_ROWS = 600;
const MOST_PROBLEMS = 50;

// As the library's JSON has it: JSON.stringify takes the sign of -0.0.
function shownValue(value) {
  if (Object.is(value, -0)) return '-0.0';
  const isWord = Number.isInteger(value) && value > 0xffff;
  return JSON.stringify(value) + (isWord ? ` (0x${value.toString(16).padStart(8, '0')})` : '');
}

const ORIGINS = {
  name: ({ key, bytes }) => `${key}, ${bytes ? shownRange(bytes) : 'place not known'}`,
  config: ({ record, number }) => `${record}, ${number === 0 ? 'its name' : 'value ' + number}`,
  context: ({ key }) => `the context, ${key}`,
  kind: () => 'the kind',
  computed: ({ of }) => `made of ${of.join(', ')}`,
  default: () => 'default',
};

function originOf(member) {
  const parts = [ORIGINS[member.from](member)];
  if (member.rule) parts.push(member.rule);
  if (member.chosen_by && member.chosen_by.length > 0) parts.push('chosen by ' + member.chosen_by.join(', '));
  return parts.join('; ');
}

function makeRow(first, value, from, className) {
  return make('tr', { class: className }, make('th', { scope: 'row' }, make('code', {}, first)),
    make('td', {}, make('code', {}, value)), make('td', {}, from));
}

function rowsOf(explained) {
  return [
    ...explained.members.map((member) =>
      makeRow(member.member, shownValue(member.value), originOf(member), member.from)),
    ...explained.steers.map(({ key, bytes }) =>
      makeRow(key, '', 'only steers, ' + (bytes ? shownRange(bytes) : 'place not known'), 'steer')),
    ...explained.ignored.map(({ bytes, reason }) => makeRow('', '', `ignored, ${shownRange(bytes)}: ${reason}`, 'ignored')),
  ];
}

// Rows come in the order of the parts of the name's view.
function showMembers(body, explained, view) {
  const rows = rowsOf(explained);
  const shown = rows.slice(0, MOST_ROWS);
  shown.forEach((row, number) => view.addRow(number, row));
  body.replaceChildren(...shown);
  if (rows.length > shown.length) {
    body.append(make('tr', {}, make('td', { colspan: '3' }, `+${rows.length - shown.length} more`)));
  }
  makeRoving(body, shown);
}

function hideDefaults(body, areHidden) {
  body.classList.toggle('hides-defaults', areHidden);
  makeRoving(body, Array.from(body.querySelectorAll('[tabindex]')));
}

// The name with a suggestion in place of the problem's bytes; null where that does not mend it. Explains the name
// anew, which is too slow to do for every problem at every key.
function mended(library, bytes, as, explained, problem) {
  const [begin, end] = problem.bytes;
  const name = joinBytes([bytes.subarray(0, begin), encoder.encode(problem.suggestion), bytes.subarray(end)]);
  const { kind, problems } = JSON.parse(library.explain(name, as));
  const errors = (list) => list.filter(({ severity }) => severity === 'error').length;
  const persists = problems.some(({ code, bytes: at }) => code === problem.code && at && at[0] === begin);
  const findsKind = explained.kind === null && kind !== null;
  const isBetter = findsKind || errors(problems) < errors(explained.problems) || problems.length < explained.problems.length;
  return !persists && isBetter ? name : null;
}

function problemItem(problem, remedy) {
  const item = make('li', {}, make('strong', { class: problem.severity }, problem.severity), ': ', problem.message, ' ');
  item.append(make('code', { class: 'muted' }, `[${problem.code}]`));
  if (problem.bytes) item.append(make('span', { class: 'muted' }, ' ' + shownRange(problem.bytes)));
  if (problem.suggestion && remedy.isShown) {
    item.append(' Did you mean ', make('code', {}, problem.suggestion), '? ');
  }
  if (remedy.button) item.append(' ', remedy.button);
  return item;
}
