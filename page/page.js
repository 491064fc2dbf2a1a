// One name, shown in every way, and where it comes from.

// Not at every key: a screen reader reads it out.
const tellAloud = debounced(400, (text) => (byId('told-aloud').textContent = text));

class Page {
  constructor(library, samples) {
    this.library = library;
    this.bytes = new Uint8Array();
    this.view = new NameView(byId('bytes'), byId('about'));
    this.form = new FieldsForm(library, (name) => this.take(name, 'fields'));
    this.samples = this.byKind(samples);
    this.watch();
  }

  get as() {
    return byId('as').value;
  }

  byKind(samples) {
    const kinds = new Map(this.library.kinds().map(({ kind }) => [kind, []]));
    for (const name of samples) {
      const bytes = encoder.encode(name);
      kinds.get(this.library.kind(bytes)).push(bytes);
    }
    byId('kind').append(...Array.from(kinds.keys(), (kind) => make('option', { value: kind }, kind)));
    return kinds;
  }

  watch() {
    byId('name').addEventListener('input', () => this.take(bytesOfTyped(byId('name').value), 'box'));
    byId('kind').addEventListener('change', () => this.takeSample(0));
    byId('next-sample').addEventListener('click', () => this.takeSample(this.sample + 1));
    byId('as').addEventListener('change', () => this.show('as'));
    byId('hide-defaults').addEventListener('change', (event) => hideDefaults(byId('members'), event.target.checked));
    document.getElementsByName('mode').forEach((radio) => radio.addEventListener('change', () => this.draw()));
    byId('copy').addEventListener('click', () => this.copyLink());
    byId('picture').addEventListener('pointerover', (event) => this.pointAt(event.target));
    window.addEventListener('hashchange', () => this.takeLink());
  }

  takeSample(number) {
    const names = this.samples.get(byId('kind').value);
    this.sample = number % names.length;
    byId('as').value = 'auto';
    this.take(names[this.sample], 'sample');
  }

  // Takes the name of the link; false when it has none.
  takeLink() {
    const values = new Map(location.hash.slice(1).split('&').map((pair) => [pair.split('=', 1)[0], pair]));
    if (!values.has('name')) return false;
    const as = (values.get('as') || '').slice('as='.length);
    byId('as').value = Object.hasOwn(READ_AS, as) ? as : 'auto';
    this.take(percentDecode(values.get('name').slice('name='.length)), 'link');
    return true;
  }

  // `source` already shows the name and is left as it is.
  take(bytes, source) {
    this.bytes = bytes;
    if (source !== 'sample') this.sample = -1;
    if (source !== 'box') byId('name').value = shownText(bytes);
    this.show(source);
  }

  show(source) {
    const decoded = this.library.decode(this.bytes, this.as);
    const explained = JSON.parse(this.library.explain(this.bytes, this.as));
    this.view.show(this.bytes, explained);
    showMembers(byId('members'), explained, this.view);
    this.showProblems(explained);
    this.showResult(JSON.parse(decoded), explained);
    byId('json').textContent = decoded;
    this.draw();
    if (source !== 'fields') this.form.show(this.bytes, this.as);
    this.showLink();
  }

  showResult({ records, exception }, { problems }) {
    const kind = this.library.kind(this.bytes, this.as);
    const fails = this.library.hasFailed(this.bytes, this.as);
    const what = kind === 'marker' ? 'A marker name' : kind === null ? 'No kind of bubble' : kind;
    const how = exception !== null ? `: the call throws ${exception}` : fails ? ': it fails' : ': it decodes';
    const told = `${what}${how}, ${problems.length === 0 ? 'no problems' : counted(problems.length, 'problem')}.`;
    this.tell(told);
    if (kind !== null) byId('kind').value = kind;
    byId('records').replaceChildren(...records.map(({ level, tag, message }) =>
      make('li', {}, make('span', { class: 'muted' }, `level ${level}, ${tag} `), make('code', {}, message))));
  }

  tell(text) {
    byId('told').textContent = text;
    tellAloud(text);
  }

  showProblems(explained) {
    const shown = explained.problems.slice(0, MOST_PROBLEMS);
    const left = explained.problems.length - shown.length;
    byId('problems').replaceChildren(...shown.map((problem) => problemItem(problem, this.remedyFor(problem, explained))));
    if (left > 0) byId('problems').append(make('li', {}, `and ${left.toLocaleString('en')} more`));
  }

  remedyFor(problem, explained) {
    if (problem.suggestion === '--marker') {
      return { button: makeButton('Read it as a marker name', () => this.readAs('marker')) };
    }
    if (!problem.suggestion || !problem.bytes) return { isShown: true };
    const button = makeButton('Use it', () => this.mend(problem, explained));
    button.setAttribute('aria-label', `Use ${problem.suggestion}`);
    return { isShown: true, button };
  }

  mend(problem, explained) {
    const name = mended(this.library, this.bytes, this.as, explained, problem);
    if (name === null) {
      this.tell(`${problem.suggestion} in its place does not mend the name.`);
      return;
    }
    this.take(name, 'problem');
    byId('name').focus(); // the button is gone
  }

  readAs(as) {
    byId('as').value = as;
    this.show('as');
    byId('as').focus();
  }

  draw() {
    const mode = document.querySelector('[name=mode]:checked').value;
    const svg = this.library.draw(this.bytes, this.as, mode);
    const picture = new DOMParser().parseFromString(svg, 'image/svg+xml').documentElement;
    byId('picture').replaceChildren(document.importNode(picture, true));
  }

  pointAt(element) {
    const member = element.dataset.member;
    if (member) this.view.markMember(member);
    else this.view.unmark();
  }

  showLink() {
    const as = this.as === 'auto' ? '' : `&as=${this.as}`;
    byId('link').href = `#name=${percentEncode(this.bytes)}${as}`;
    byId('copied').textContent = '';
  }

  async copyLink() {
    try {
      await navigator.clipboard.writeText(byId('link').href);
      byId('copied').textContent = 'Copied.';
    } catch {
      byId('copied').textContent = 'This browser does not let the page copy: copy the link itself.';
    }
  }

  open(name) {
    byId('as').value = 'auto';
    this.take(name, 'list');
    byId('name').focus();
    byId('name').scrollIntoView({ block: 'center' });
  }
}

async function main() {
  refuseOtherDrops();
  const library = await Library.start(byId('wasm').textContent);
  const builtIn = encoder.encode(byId('built-in-config').textContent);
  const page = new Page(library, JSON.parse(byId('samples').textContent));
  watchConfig(library, builtIn, () => page.show('config'));
  if (!page.takeLink()) page.takeSample(0);
  new NameList(library, (name) => page.open(name));
  // For the browser's console, and for tests.
  window.bubbles = { library, page, bytesOfTyped, shownText, started: performance.now() };
}

main().catch((error) => {
  byId('told').textContent = `The page cannot start: ${error.message}. It needs a browser of mid-2023 or later.`;
  byId('told').className = 'error';
});
