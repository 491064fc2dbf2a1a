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

function debounced(milliseconds, work) {
  let timer = 0;
  return (...values) => {
    clearTimeout(timer);
    timer = setTimeout(() => work(...values), milliseconds);
  };
}

// Makes `items` one stop of the Tab key, between which the arrow keys move.
function makeRoving(container, items) {
  items.forEach((item, i) => item.setAttribute('tabindex', i === 0 ? '0' : '-1'));
  const steps = { ArrowDown: 1, ArrowRight: 1, ArrowUp: -1, ArrowLeft: -1, Home: -Infinity, End: Infinity };
  container.onkeydown = (event) => {
    const at = items.indexOf(event.target);
    if (at < 0 || !(event.key in steps)) return;
    event.preventDefault();
    const next = items[Math.max(0, Math.min(items.length - 1, at + steps[event.key]))];
    items[at].setAttribute('tabindex', '-1');
    next.setAttribute('tabindex', '0');
    next.focus();
  };
}

// Calls `take` with the bytes of a file that is chosen with `input` or dropped on `target`.
function takeFiles(input, target, take) {
  const read = async (file) => take(new Uint8Array(await file.arrayBuffer()), file.name);
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
