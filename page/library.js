// The library: WebAssembly that stands, compressed, in the page itself.

const READ_AS = { auto: 0, bubble: 1, marker: 2 };
const MODE = { name: 0, day: 1, night: 2 };

class LibraryError extends Error {
  constructor({ message, field }) {
    super(message);
    this.field = field; // that the encoder refused, such as "cameras[1].speed"
  }
}

class Library {
  static async start(packed) {
    const bytes = Uint8Array.from(atob(packed), (character) => character.charCodeAt(0));
    const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream('gzip'));
    const wasmBinary = await new Response(stream).arrayBuffer();
    return new Library(await loadLibrary({ wasmBinary }));
  }

  constructor(module) {
    this.module = module;
  }

  // Texts and names are given as bytes; the result is bytes.
  call(name, ...values) {
    const pointers = [];
    const put = (value) => {
      if (!(value instanceof Uint8Array)) return [value];
      pointers.push(this.copied(value));
      return [pointers[pointers.length - 1], value.length];
    };
    try {
      const worked = this.module['_page_' + name](...values.flatMap(put));
      const result = this.result();
      if (!worked) throw new LibraryError(JSON.parse(decoder.decode(result)));
      return result;
    } finally {
      pointers.forEach((pointer) => this.module._free(pointer));
    }
  }

  // Where the library finds the bytes, until they are freed.
  copied(bytes) {
    const pointer = this.module._malloc(bytes.length + 1);
    if (pointer === 0) throw new LibraryError({ message: `no memory for ${counted(bytes.length, 'byte')}`, field: '' });
    this.module.HEAPU8.set(bytes, pointer);
    return pointer;
  }

  result() {
    const begin = this.module._page_result();
    return this.module.HEAPU8.slice(begin, begin + this.module._page_result_size());
  }

  text(...call) {
    return decoder.decode(this.call(...call));
  }
  json(...call) {
    return JSON.parse(this.text(...call));
  }

  kinds() {
    return this.json('kinds');
  }
  setConfig(bytes) {
    this.call('set_config', bytes);
  }
  // A line as `kavrix-resource decode --format json` prints it.
  decode(name, as = 'auto') {
    return this.text('decode', name, READ_AS[as]);
  }
  // Whether the decode fails.
  hasFailed(name, as = 'auto') {
    return this.json('has_failed', name, READ_AS[as]);
  }
  explain(name, as = 'auto') {
    return this.text('explain', name, READ_AS[as]);
  }
  draw(name, as, mode) {
    return this.text('draw', name, READ_AS[as], MODE[mode]);
  }
  kind(name, as = 'auto') {
    return this.json('kind', name, READ_AS[as]);
  }
  fields(name, as = 'auto') {
    return this.json('fields', name, READ_AS[as]);
  }
  encode(kind, fields) {
    return this.call('encode', encoder.encode(kind), encoder.encode(fields));
  }
  beginList(areJson) {
    this.call('begin_list', areJson ? 1 : 0);
  }
  addToList(lines) {
    return Number(this.text('add_to_list', lines));
  }
  checkList(begin, end) {
    return this.json('check_list', begin, end);
  }
  nameInList(number) {
    return this.call('name_in_list', number);
  }
}
