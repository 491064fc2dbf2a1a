// Small helpers. Texts only ever become text nodes.

const byId = (id) => document.getElementById(id);

// make('button', {type: 'button', class: 'small'}, 'Use it', ...)
function make(tag, attributes, ...children) {
  const element = document.createElement(tag);
  for (const [name, value] of Object.entries(attributes || {})) element.setAttribute(name, value);
  element.append(...children);
  return element;
}

function makeButton(text, onClick) {
  const button = make('button', { type: 'button' }, text);
  button.addEventListener('click', onClick);
  return button;
}

function counted(count, one, many) {
  return count.toLocaleString('en') + ' ' + (count === 1 ? one : many || one + 's');
}

// `cancel` of what is returned drops the work that is pending.
function debounced(milliseconds, work) {
  let timer = 0;
  const run = (...values) => {
    clearTimeout(timer);
    timer = setTimeout(() => work(...values), milliseconds);
  };
  run.cancel = () => clearTimeout(timer);
  return run;
}

const isShown = (element) => element.getClientRects().length > 0;

// Makes `items` one stop of the Tab key, between which the arrow keys move; those that are hidden are no part of it. To
// be called again when items are hidden or shown.
function makeRoving(container, items) {
  const makeStop = (stop) => items.forEach((item) => item.setAttribute('tabindex', item === stop ? '0' : '-1'));
  const steps = { ArrowDown: 1, ArrowRight: 1, ArrowUp: -1, ArrowLeft: -1, Home: -Infinity, End: Infinity };
  makeStop(items.find(isShown));
  container.onkeydown = (event) => {
    const shown = items.filter(isShown);
    const at = shown.indexOf(event.target);
    if (at < 0 || !Object.hasOwn(steps, event.key)) return;
    event.preventDefault();
    const next = shown[Math.max(0, Math.min(shown.length - 1, at + steps[event.key]))];
    makeStop(next);
    next.focus();
  };
}

// Calls `take` with the bytes of a file that is chosen with `input` or dropped on `target`, or `fail` with a message.
// Nothing comes of a file once another one, or a text in `target`, was given.
function takeFiles(input, target, take, fail) {
  let newest = 0;
  const read = async (file) => {
    const number = ++newest;
    const bytes = await file.arrayBuffer().catch((error) => error);
    if (number !== newest) return;
    if (bytes instanceof Error) fail(`${file.name} cannot be read: ${bytes.message}`);
    else take(new Uint8Array(bytes), file.name);
  };
  for (const given of ['input', 'paste']) target.addEventListener(given, () => ++newest);
  input.addEventListener('change', () => {
    if (input.files.length > 0) read(input.files[0]);
    input.value = '';
  });
  target.addEventListener('dragover', (event) => event.preventDefault());
  target.addEventListener('drop', (event) => {
    if (event.dataTransfer.files.length === 0) return;
    event.preventDefault();
    read(event.dataTransfer.files[0]);
  });
}

// Keeps the browser from leaving the page for a file that is dropped where nothing takes it.
function refuseOtherDrops() {
  for (const type of ['dragover', 'drop']) {
    window.addEventListener(type, (event) => {
      const isTaken = event.defaultPrevented || event.target.type === 'file';
      if (isTaken || !event.dataTransfer.types.includes('Files')) return;
      event.preventDefault();
      event.dataTransfer.dropEffect = 'none';
    });
  }
}
