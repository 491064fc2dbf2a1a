"""Reads JSON as leniently as the library's JSON reader does, byte by byte.

It goes beyond the standard: comments are skipped, whatever follows the root is ignored, the last of equal keys wins,
texts keep their bytes, raw control characters and broken UTF-8 included. Integers and reals stay apart.
"""

NESTING_LIMIT = 256
INT64_MIN, UINT64_MAX = -(1 << 63), (1 << 64) - 1
SPACES = b" \t\r\n"
DIGITS = b"0123456789"
ESCAPES = {b'"': b'"', b"/": b"/", b"\\": b"\\", b"b": b"\b", b"f": b"\f", b"n": b"\n", b"r": b"\r", b"t": b"\t"}


class NotJson(Exception):
    """The text is refused."""


def parse_object(text):
    """The root as a dict with bytes for keys and texts, or None when the text is refused or the root is no object."""
    try:
        root = _Reader(text).value(1)
    except NotJson:
        return None
    return root if isinstance(root, dict) else None


class _Reader:
    def __init__(self, text):
        self.text = text
        self.at = 0

    def peek(self):
        return self.text[self.at : self.at + 1]

    def token(self):
        """The next token: (kind, text), the kind being the first byte of a punctuation mark or a word."""
        while self.peek() and self.peek() in SPACES:
            self.at += 1
        start, head = self.at, self.peek()
        self.at += 1
        if not head:
            return "end", b""
        if head in b"{}[],:":
            return head.decode(), head
        if head == b'"':
            return "text", self.quoted()
        if head == b"/":
            return ("comment" if self.skip_comment() else "bad"), b""
        if head in DIGITS + b"-":
            self.skip_number()
            return "number", self.text[start : self.at]
        for word in (b"true", b"false", b"null"):
            if self.text.startswith(word, start):
                self.at = start + len(word)
                return "word", word
        return "bad", b""

    def token_after_comments(self):
        kind, text = self.token()
        while kind == "comment":
            kind, text = self.token()
        return kind, text

    def quoted(self):
        start = self.at
        while self.at < len(self.text):
            byte = self.peek()
            self.at += 2 if byte == b"\\" else 1
            if byte == b'"':
                return self.text[start : self.at - 1]
        raise NotJson("text without its end")

    def skip_comment(self):
        mark = self.peek()
        self.at += 1
        if mark == b"*":
            end = self.text.find(b"*/", self.at)
            if end < 0:
                raise NotJson("comment without its end")
            self.at = end + 2
            return True
        if mark == b"/":
            while self.peek() and self.peek() not in b"\r\n":
                self.at += 1
            return True
        return False

    def skip_digits(self):
        while self.peek() and self.peek() in DIGITS:
            self.at += 1

    def skip_number(self):
        self.skip_digits()
        if self.peek() == b".":
            self.at += 1
            self.skip_digits()
        if self.peek() in (b"e", b"E"):
            self.at += 1
            if self.peek() in (b"+", b"-"):
                self.at += 1
            self.skip_digits()

    def value(self, depth):
        if depth > NESTING_LIMIT:
            raise NotJson("nested too deeply")
        kind, text = self.token_after_comments()
        if kind == "{":
            return self.members(depth)
        if kind == "[":
            return self.elements(depth)
        if kind == "number":
            return number(text)
        if kind == "text":
            return unescape(text)
        if kind == "word":
            return {b"true": True, b"false": False, b"null": None}[text]
        raise NotJson("no value")

    def members(self, depth):
        result = {}
        kind, text = self.token_after_comments()
        if kind == "}":
            return result
        while True:
            if kind != "text":
                raise NotJson("no key")
            key = unescape(text)
            if self.token()[0] != ":":
                raise NotJson("no colon")
            result[key] = self.value(depth + 1)
            separator = self.token_after_comments()[0]
            if separator == "}":
                return result
            if separator != ",":
                raise NotJson("no comma")
            kind, text = self.token_after_comments()

    def elements(self, depth):
        result = []
        while self.peek() and self.peek() in SPACES:
            self.at += 1
        if self.peek() == b"]":
            self.at += 1
            return result
        while True:
            result.append(self.value(depth + 1))
            separator = self.token_after_comments()[0]
            if separator == "]":
                return result
            if separator != ",":
                raise NotJson("no comma")


def number(text):
    """An int where the text is one of 64 bits, else a float."""
    digits = text.lstrip(b"-")
    if all(byte in DIGITS for byte in digits):
        value = int(text) if digits else 0
        return value if INT64_MIN <= value <= UINT64_MAX else float(value)
    try:
        return float(text)
    except ValueError:
        raise NotJson("no number") from None


def unescape(text):
    result, at = bytearray(), 0
    while at < len(text):
        byte = text[at : at + 1]
        at += 1
        if byte != b"\\":
            result += byte
            continue
        escape = text[at : at + 1]
        at += 1
        if escape == b"u":
            code, at = code_point(text, at)
            result += chr(code).encode("utf-8", "surrogatepass")
        elif escape in ESCAPES:
            result += ESCAPES[escape]
        else:
            raise NotJson("unknown escape")
    return bytes(result)


def code_point(text, at):
    code, at = four_hex_digits(text, at), at + 4
    if not 0xD800 <= code <= 0xDBFF:
        return code, at
    if text[at : at + 2] != b"\\u":
        raise NotJson("half a surrogate pair")
    low, at = four_hex_digits(text, at + 2), at + 6
    return 0x10000 + ((code & 0x3FF) << 10) + (low & 0x3FF), at


def four_hex_digits(text, at):
    digits = text[at : at + 4]
    if len(digits) != 4 or not all(byte in b"0123456789abcdefABCDEF" for byte in digits):
        raise NotJson("no hexadecimal digits")
    return int(digits, 16)
