// Names out of a log: found and checked in slices, so that the page stays alive, and listed failures first.

const SLICE_MILLISECONDS = 8;
const SLICE_BYTES = 1 << 18;
const ROWS_AT_ONCE = 100;
const LONGEST_SHOWN = 300;
// A text box takes seconds to lay out a text as long as this; it is taken without being shown.
const LONGEST_IN_BOX = 20000;

const megabytes = (size) => (size / 1e6).toFixed(1);
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
    this.progress = byId('list-progress');
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
    this.more.addEventListener('click', () => {
      const first = this.shown;
      this.showMore();
      if (this.more.hidden) this.rows.children[first].querySelector('button').focus(); // it was on what is hidden now
    });
  }

  takeLong(bytes, what) {
    this.takeTyped.cancel(); // it would end this run
    this.box.value = '';
    this.box.placeholder = `${what} (${megabytes(bytes.length)} MB) is read, and too long to be shown here.`;
    return this.take(bytes);
  }

  // Ends what is running.
  fail(message) {
    ++this.run;
    this.progress.textContent = '';
    this.told.className = 'error';
    this.told.textContent = message;
  }

  // A newer call ends this one.
  async take(bytes) {
    const run = ++this.run;
    this.bytes = bytes;
    this.clear();
    try {
      for await (const progress of this.read(bytes)) {
        if (run !== this.run) return;
        this.progress.textContent = progress;
      }
      this.finish();
    } catch (error) {
      if (run === this.run) this.fail(error.message);
    }
  }

  clear() {
    this.results = [];
    this.failed = 0;
    this.warned = 0;
    this.told.className = '';
    this.told.textContent = ''; // nothing is read out before the end
    this.progress.textContent = '';
    this.rows.replaceChildren();
    this.more.hidden = true;
  }

  // Gives how far it is, slice by slice: after the pause, in which a newer call may have taken the library's list.
  async *read(bytes) {
    this.library.beginList(byId('log-json').checked);
    let [read, count] = [0, 0];
    for (const lines of slicesOf(bytes)) {
      count = this.library.addToList(lines);
      read += lines.length;
      await pause();
      yield `Reading: ${megabytes(read)} of ${megabytes(bytes.length)} MB, ${counted(count, 'name')}.`;
    }
    while (this.results.length < count) {
      this.checkSlice(count);
      await pause();
      yield `${this.results.length.toLocaleString('en')} checked of ${counted(count, 'name')}.`;
    }
  }

  checkSlice(count) {
    const end = performance.now() + SLICE_MILLISECONDS;
    while (this.results.length < count && performance.now() < end) {
      for (const result of this.library.checkList(this.results.length, this.results.length + 10)) this.add(result);
    }
  }

  add(result) {
    this.results.push(result);
    if (result.failed) ++this.failed;
    else if (result.problems > 0) ++this.warned;
  }

  finish() {
    this.order();
    this.showMore();
    this.progress.textContent = '';
    if (this.bytes.length === 0) return;
    const count = counted(this.results.length, 'name');
    this.told.textContent = `${count}: ${this.failed} failed, ${this.warned} with warnings.`;
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
