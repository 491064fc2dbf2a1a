// The form that edits a name: one box for each key of the kind, encoded at every change.

const isTextKey = ({ type }) => type === 'text';

function isJson(text) {
  try {
    JSON.parse(text);
    return true;
  } catch {
    return false;
  }
}

class FieldsForm {
  // `take` gets the bytes of each name that is encoded.
  constructor(library, take) {
    this.library = library;
    this.take = take;
    this.keys = new Map(library.kinds().map((kind) => [kind.kind, kind.keys.filter(({ key }) => !key.includes('['))]));
    this.box = byId('fields');
    this.note = byId('fields-note');
    this.error = byId('fields-error');
  }

  show(name, as) {
    this.error.textContent = '';
    try {
      this.fill(this.library.kind(name, as), this.library.fields(name, as));
    } catch (error) {
      this.fill(null, null);
      this.note.textContent = `The fields cannot be edited: ${error.message}`;
    }
  }

  fill(kind, fields) {
    this.kind = kind;
    this.values = new Map(Object.entries(fields || {}).map(([key, value]) => [key, JSON.stringify(value)]));
    this.inputs = new Map();
    const keys = this.keys.get(kind) || [];
    this.box.replaceChildren(...keys.map((key) => this.rowOf(key, fields || {})));
    this.note.textContent = this.noteFor(kind, fields);
  }

  noteFor(kind, fields) {
    if (kind === null) return 'A name without a kind has no fields.';
    if (fields === null) return 'The payload does not parse. A change here builds a new name.';
    return 'A change builds the name anew. An empty box leaves the field out.';
  }

  rowOf(key, fields) {
    const id = 'field-' + key.key;
    const isLine = key.type.startsWith('integer') || key.type === 'flag';
    const input = isLine ? make('input', { id, type: 'text', inputmode: 'numeric' }) : make('textarea', { id, rows: '1' });
    const value = fields[key.key];
    if (value !== undefined) input.value = isTextKey(key) ? value : JSON.stringify(value);
    const hint = make('span', { class: 'muted', id: id + '-type' }, [key.type, key.rule].filter(Boolean).join(', '));
    input.setAttribute('aria-describedby', `${hint.id} fields-error`);
    input.setAttribute('spellcheck', 'false');
    input.setAttribute('autocomplete', 'off');
    input.addEventListener('input', () => this.edit(key, input.value));
    this.inputs.set(key.key, input);
    return make('div', { class: 'field' }, make('label', { for: id }, make('code', {}, key.key)), input, hint);
  }

  // What is no JSON goes to the encoder as a string, which it refuses in its own words.
  edit(key, text) {
    if (text === '') this.values.delete(key.key);
    else this.values.set(key.key, !isTextKey(key) && isJson(text) ? text : JSON.stringify(text));
    const members = Array.from(this.values, ([name, value]) => `${JSON.stringify(name)}:${value}`);
    let name;
    try {
      name = this.library.encode(this.kind, `{${members.join(',')}}`);
    } catch (error) {
      this.tell(error.message, error.field);
      return;
    }
    this.tell('', '');
    this.take(name);
  }

  tell(message, field) {
    this.error.textContent = message;
    const refused = (field || '').replace(/[[.].*/, '');
    for (const [key, input] of this.inputs) input.setAttribute('aria-invalid', String(message !== '' && key === refused));
  }
}
