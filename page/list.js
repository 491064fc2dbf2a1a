// Names out of a log: found and checked in slices, so that the page stays alive, and listed failures first.

const SLICE_MILLISECONDS = 8;
const SLICE_BYTES = 1 << 18;
const ROWS_AT_ONCE = 100;
const LONGEST_SHOWN = 300;
// A text box takes seconds to lay out a text as long as this; it is taken without being shown.
const LONGEST_IN_BOX = 20000;

const pause = () => new Promise((resolve) => setTimeout(resolve));

// The lines of a text, in slices that end with a line.
function* slicesOf(bytes) {
  for (let begin = 0; begin < bytes.length; ) {
    const end = bytes.indexOf(0x0a, Math.min(begin + SLICE_BYTES, bytes.length) - 1) + 1 || bytes.length;
    yield bytes.subarray(begin, end);
    begin = end;
  }
}

class NameList {
  // `open` gets the bytes of the name that is clicked.
  constructor(library, open) {
    this.library = library;
    this.open = open;
    this.box = byId('log');
    this.told = byId('list-told');
    this.rows = byId('list');
    this.more = byId('list-more');
    this.run = 0;
    this.bytes = new Uint8Array();
    this.watch();
  }

  watch() {
    this.takeTyped = debounced(200, () => this.take(encoder.encode(this.box.value)));
    this.box.addEventListener('input', this.takeTyped);
    this.box.addEventListener('paste', (event) => {
      const text = event.clipboardData.getData('text/plain');
      if (text.length <= LONGEST_IN_BOX) return;
      event.preventDefault();
      this.takeLong(encoder.encode(text), 'What was pasted');
    });
    takeFiles(byId('log-file'), this.box, (bytes, name) => this.takeLong(bytes, name), (message) => this.fail(message));
    byId('log-json').addEventListener('change', () => this.take(this.bytes));
    this.more.addEventListener('click', () => this.showMore());
  }

  takeLong(bytes, what) {
    this.takeTyped.cancel(); // it would end this run
    const megabytes = (bytes.length / 1e6).toFixed(1);
    this.box.value = '';
    this.box.placeholder = `${what} (${megabytes} MB) is read, and too long to be shown here.`;
    return this.take(bytes);
  }

  // Ends what is running.
  fail(message) {
    ++this.run;
    this.told.className = 'error';
    this.told.textContent = message;
  }

  async take(bytes) {
    const run = ++this.run; // a newer one ends this one
    this.told.className = '';
    this.bytes = bytes;
    this.results = [];
    this.rows.replaceChildren();
    this.more.hidden = true;
    this.library.beginList(byId('log-json').checked);
    let count = 0;
    for (const lines of slicesOf(bytes)) {
      count = this.library.addToList(lines);
      await pause();
      if (run !== this.run) return;
    }
    while (this.results.length < count) {
      this.checkSlice(count);
      this.tell(count);
      await pause();
      if (run !== this.run) return;
    }
    this.order();
    this.tell(count);
    this.showMore();
  }

  checkSlice(count) {
    const end = performance.now() + SLICE_MILLISECONDS;
    while (this.results.length < count && performance.now() < end) {
      this.results.push(...this.library.checkList(this.results.length, this.results.length + 10));
    }
  }

  tell(count) {
    const failed = this.results.filter((result) => result.failed).length;
    const warned = this.results.filter((result) => !result.failed && result.problems > 0).length;
    const checked = this.results.length < count ? `${this.results.length.toLocaleString('en')} checked of ` : '';
    this.told.textContent = `${checked}${counted(count, 'name')}: ${failed} failed, ${warned} with warnings.`;
    if (count === 0 && this.bytes.length === 0) this.told.textContent = '';
  }

  order() {
    const rank = ({ failed, problems }) => (failed ? 0 : problems > 0 ? 1 : 2);
    this.numbers = this.results.map((result, number) => number);
    this.numbers.sort((a, b) => rank(this.results[a]) - rank(this.results[b]) || a - b);
    this.shown = 0;
  }

  showMore() {
    const next = this.numbers.slice(this.shown, this.shown + ROWS_AT_ONCE);
    this.shown += next.length;
    this.rows.append(...next.map((number) => this.rowOf(number)));
    const left = this.numbers.length - this.shown;
    this.more.hidden = left === 0;
    this.more.textContent = `Show ${Math.min(left, ROWS_AT_ONCE)} more of ${left.toLocaleString('en')}`;
  }

  rowOf(number) {
    const { kind, failed, problems, message } = this.results[number];
    const name = this.library.nameInList(number);
    const text = shownText(name);
    const severity = failed ? 'error' : 'warning';
    const button = makeButton('', () => this.open(name));
    button.append(make('code', {}, text.length > LONGEST_SHOWN ? text.slice(0, LONGEST_SHOWN) + '…' : text));
    const what = make('span', { class: 'muted' }, kind || 'no kind');
    const item = make('li', {}, button, what);
    if (problems > 0) item.append(' ', make('strong', { class: severity }, failed ? 'fails' : severity), ': ' + message);
    return item;
  }
}
