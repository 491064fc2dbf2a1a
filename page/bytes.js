// Names are bytes. On the page \xNN is the byte NN, and everything else stands for itself.

const HEX_ESCAPE = /\\x([0-9a-fA-F]{2})/g;
// What a text would hide or be rearranged by, and a backslash that would read as the beginning of an escape.
const NEEDS_ESCAPE =
  /[\u0000-\u001f\u007f-\u009f\u061c\u200e\u200f\u2028-\u202e\u2066-\u2069\ufeff]|\\(?=x[0-9a-fA-F]{2})/g;

const encoder = new TextEncoder();
const strictDecoder = new TextDecoder('utf-8', { fatal: true, ignoreBOM: true });
const decoder = new TextDecoder('utf-8', { ignoreBOM: true });

function decodeStrictly(bytes) {
  try {
    return strictDecoder.decode(bytes);
  } catch {
    return null;
  }
}

function joinBytes(parts) {
  const bytes = new Uint8Array(parts.reduce((size, part) => size + part.length, 0));
  let at = 0;
  for (const part of parts) {
    bytes.set(part, at);
    at += part.length;
  }
  return bytes;
}

// The bytes of what was typed. Line breaks, which a text box adds and changes, do not count.
function bytesOfTyped(text) {
  const line = text.replace(/[\r\n]/g, '');
  const parts = [];
  let end = 0;
  for (const escape of line.matchAll(HEX_ESCAPE)) {
    parts.push(encoder.encode(line.slice(end, escape.index)), [parseInt(escape[1], 16)]);
    end = escape.index + escape[0].length;
  }
  parts.push(encoder.encode(line.slice(end)));
  return joinBytes(parts);
}

const escapeOf = (byte) => '\\x' + byte.toString(16).padStart(2, '0');
const escapesOf = (bytes) => Array.from(bytes, escapeOf).join('');

// How many bytes the valid character at `at` has; 0 where there is none.
function sizeOfCharacter(bytes, at) {
  const lead = bytes[at];
  if (lead < 0x80) return 1;
  const size = lead < 0xc2 ? 0 : lead < 0xe0 ? 2 : lead < 0xf0 ? 3 : lead < 0xf5 ? 4 : 0;
  const least = { 0xe0: 0xa0, 0xf0: 0x90 }[lead] || 0x80;
  const most = { 0xed: 0x9f, 0xf4: 0x8f }[lead] || 0xbf;
  for (let i = 1; i < size; ++i) {
    const byte = bytes[at + i]; // undefined after the end
    if (!(byte >= (i === 1 ? least : 0x80) && byte <= (i === 1 ? most : 0xbf))) return 0;
  }
  return size;
}

// Where the valid characters from `from` on end.
function endOfValid(bytes, from) {
  let at = from;
  for (let size; at < bytes.length && (size = sizeOfCharacter(bytes, at)) > 0; ) at += size;
  return at;
}

function addEscape(pieces, bytes) {
  const last = pieces[pieces.length - 1];
  if (last && last.isEscape) last.text += escapesOf(bytes);
  else pieces.push({ text: escapesOf(bytes), isEscape: true });
}

function addText(pieces, text) {
  let end = 0;
  for (const found of text.matchAll(NEEDS_ESCAPE)) {
    if (found.index > end) pieces.push({ text: text.slice(end, found.index), isEscape: false });
    addEscape(pieces, encoder.encode(found[0]));
    end = found.index + found[0].length;
  }
  if (end < text.length) pieces.push({ text: text.slice(end), isEscape: false });
}

// The bytes as texts to show: characters, and escapes of what is no character or cannot be seen.
function piecesOf(bytes) {
  const pieces = [];
  const whole = decodeStrictly(bytes);
  if (whole !== null) {
    addText(pieces, whole);
    return pieces;
  }
  for (let at = 0; at < bytes.length; ) {
    const end = endOfValid(bytes, at);
    if (end > at) addText(pieces, strictDecoder.decode(bytes.subarray(at, end)));
    addEscape(pieces, bytes.subarray(end, end + 1));
    at = end + 1;
  }
  return pieces;
}

// The same for a part of a name, which may end inside of what would read as an escape.
function piecesOfPart(name, [begin, end]) {
  for (let at = Math.max(begin, end - 3); at < end; ++at) {
    if (/^\\x[0-9a-fA-F]{2}$/.test(String.fromCharCode(...name.subarray(at, at + 4)))) {
      const before = piecesOf(name.subarray(begin, at));
      return [...before, { text: escapeOf(name[at]), isEscape: true }, ...piecesOf(name.subarray(at + 1, end))];
    }
  }
  return piecesOf(name.subarray(begin, end));
}

const shownText = (bytes) => piecesOf(bytes).map((piece) => piece.text).join('');

const PERCENT_CODES = Array.from({ length: 256 }, (_, byte) => {
  const character = String.fromCharCode(byte);
  if (/[A-Za-z0-9\-_.~:/@]/.test(character)) return character;
  return '%' + byte.toString(16).toUpperCase().padStart(2, '0');
});

// For the part of a link after "#": every byte but the harmless ones as %NN.
function percentEncode(bytes) {
  let text = '';
  for (const byte of bytes) text += PERCENT_CODES[byte];
  return text;
}

function percentDecode(text) {
  const parts = [];
  let end = 0;
  for (const escape of text.matchAll(/%([0-9a-fA-F]{2})/g)) {
    parts.push(encoder.encode(text.slice(end, escape.index)), [parseInt(escape[1], 16)]);
    end = escape.index + 3;
  }
  parts.push(encoder.encode(text.slice(end)));
  return joinBytes(parts);
}
