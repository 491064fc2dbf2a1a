"""What the page does when it is used."""

from browser import run_over, run_tool
from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.keys import Keys

JAM = b'kavrix://resource/{"content":"Jam","mode":0,"scene":1}.trafficBubble'
ODD = b'kavrix://resource/{"content":"a\x00b\xff\\x41","mode":0}.trafficBubble'
ODD_TYPED = 'kavrix://resource/{"content":"a\\x00b\\xff\\x5cx41","mode":0}.trafficBubble'

MARKED = "return Array.from(document.querySelectorAll('#bytes .marked'), (span) => span.textContent)"
ROWS = """return Array.from(document.querySelectorAll('#members tr')).filter((row) => row.checkVisibility())
    .map((row) => Array.from(row.querySelectorAll('code'), (code) => code.textContent))"""
STOPS = "#members [tabindex='0']"
MARKED_ROWS = "return Array.from(document.querySelectorAll('#members .marked th'), (cell) => cell.textContent)"


def row_of(browser, member):
    return browser.run("return Array.from(document.querySelectorAll('#members tr'))"
                       ".find((row) => row.querySelector('th').textContent === arguments[0])", member)


def segment_with(browser, text):
    return browser.run("return Array.from(document.querySelectorAll('#bytes > span'))"
                       ".find((span) => span.textContent === arguments[0])", text)


def point_at(browser, element):
    ActionChains(browser.driver).move_to_element(element).perform()


def typed(checks, browser):
    """By the keyboard, key by key."""
    browser.open()
    box = browser.get("name")
    box.send_keys(Keys.CONTROL, "a")
    box.send_keys(ODD_TYPED)
    checks.same("name of what was typed", browser.name(), ODD)
    checks.same("bytes shown", browser.text("bytes"), ODD_TYPED)
    native = run_over([ODD], "decode", "--format", "json")[0]
    browser.type_into("name", ODD_TYPED.replace(",", ",\n"))
    checks.same("name with line breaks in the box", browser.name(), ODD)
    checks.same("line of a name with NUL and bytes that are not UTF-8", browser.text("json"), native)
    for name in (ODD, b"\x00", b"\xff\xfe", b"", b"\\x4", b"\\x41\\x5c", "kavrix://\u202e\u0085\ufeff中".encode(), b"a\nb\r\tc",
                 bytes(range(256))):
        shown = browser.run("return bubbles.shownText(Uint8Array.from(arguments[0]))", list(name))
        back = bytes(browser.run("return Array.from(bubbles.bytesOfTyped(arguments[0]))", shown))
        checks.same(f"shown and typed again, {name!r}", back, name)
        checks.true(f"shown text of {name!r}", shown.isprintable(), repr(shown))


def link(checks, browser):
    browser.type_into("name", ODD_TYPED)
    address = browser.get("link").get_attribute("href")
    browser.open("#" + address.split("#", 1)[1])
    checks.same("name of the link", browser.name(), ODD)
    checks.same("box of the link", browser.get("name").get_attribute("value"), ODD_TYPED)
    browser.run("location.hash = '#name=kavrix://resource/前%FF_0@1.labelBubble&as=marker'")
    browser.wait("return document.getElementById('as').value === 'marker'")
    checks.same("changed link", browser.name(), "kavrix://resource/前".encode() + b"\xff_0@1.labelBubble")
    for way in ("what", "constructor", "toString"):
        browser.open(f"#name=%zz%&as={way}")
        checks.same("link with broken escapes", browser.name(), b"%zz%")
        checks.same(f"reading of a link that names {way}", browser.get("as").get_attribute("value"), "auto")


def starts(checks, browser):
    """With one configuration and one name, each shown once."""
    script = browser.devtools("Page.addScriptToEvaluateOnNewDocument", source="""window.shown = [];
        new MutationObserver((changes) => window.shown.push(...changes.map(({target}) => target.id)))
          .observe(document, {childList: true, subtree: true})""")
    browser.open()
    browser.devtools("Page.removeScriptToEvaluateOnNewDocument", identifier=script["identifier"])
    shown = browser.run("return window.shown")
    checks.same("times that they are shown", [shown.count("json"), shown.count("config-told")], [1, 1])


def hover(checks, browser):
    browser.open()
    browser.type_into("name", JAM.decode())
    point_at(browser, row_of(browser, "content"))
    checks.same("bytes of a member under the pointer", browser.run(MARKED), ["Jam"])
    browser.picture("hover")
    point_at(browser, segment_with(browser, "1"))
    checks.same("member of bytes under the pointer", browser.run(MARKED_ROWS), ["scene"])
    checks.same("bytes under the pointer", browser.run(MARKED), ["1"])
    checks.same("what is under the pointer", browser.text("about"), "bytes 52 to 53: scene")
    point_at(browser, row_of(browser, "style_word"))
    also = browser.run("return Array.from(document.querySelectorAll('#bytes .also'), (span) => span.textContent)")
    checks.same("keys that chose a style value", also, ["1"])
    point_at(browser, browser.get("name"))
    checks.same("nothing under the pointer", browser.run(MARKED), [])
    point_at(browser, browser.driver.find_element("css selector", "#picture [data-member=content]"))
    checks.same("member of a text in the picture", browser.run(MARKED_ROWS), ["content"])
    browser.run("document.querySelector('#members tr').focus()")
    checks.same("row with the focus", browser.run(MARKED_ROWS), ["scene"])
    browser.driver.switch_to.active_element.send_keys(Keys.ARROW_DOWN)
    checks.same("row after an arrow key", browser.run(MARKED), ["Jam"])
    browser.run("document.querySelector('#bytes [tabindex=\"0\"]').focus()")
    browser.driver.switch_to.active_element.send_keys(Keys.END)
    checks.same("bytes after the End key", browser.run(MARKED), [".trafficBubble"])
    name = b'kavrix://resource/{"content":"","mode":0}.trafficBubble'
    browser.type_into("name", name.decode())
    point_at(browser, row_of(browser, "content"))
    checks.same("place of an empty text", browser.run(MARKED), [""])


def edit(checks, browser):
    browser.open()
    browser.type_into("name", "kavrix://resource/Main St_0@12.labelBubble")
    box = browser.get("field-content")
    box.send_keys("_1")
    refusal = run_tool("encode", "--kind", "labelBubble", '{"content":"Main St_1","mode":0,"direction":12}').stderr.decode()
    shown = browser.text("fields-error")
    checks.true("refusal", shown and refusal.endswith(f": {shown}\n"), f"{shown!r}, {refusal!r}")
    checks.same("refused field", box.get_attribute("aria-invalid"), "true")
    checks.same("name while a field is refused", browser.name(), b"kavrix://resource/Main St_0@12.labelBubble")
    browser.picture("refused")
    box.send_keys(Keys.BACKSPACE, Keys.BACKSPACE, "r")
    checks.same("kind of the name", browser.get("kind").get_attribute("value"), "labelBubble")
    checks.same("edited name", browser.name(), b"kavrix://resource/Main Str_0@12.labelBubble")
    checks.same("box of the edited name", browser.get("name").get_attribute("value"), browser.name().decode())
    checks.same("refusal that is gone", browser.text("fields-error"), "")
    checks.same("focus after an edit", browser.run("return document.activeElement.id"), "field-content")
    for value, found in (("x", '"x"'), ("2147483648", "2147483648")):
        browser.type_into("field-direction", value)
        checks.true("refused direction", found in browser.text("fields-error"), browser.text("fields-error"))
    browser.type_into("field-direction", "")
    checks.same("name without the field", browser.name(), b"kavrix://resource/Main Str_0@0.labelBubble")
    browser.run("""window.thrown = [];
        window.onerror = (message) => (window.thrown.push(message), true); // which tells the console nothing
        const {form} = bubbles.page;
        window.take = form.take;
        form.take = () => { throw new Error('cannot be drawn') }""")
    browser.type_into("field-direction", "7")
    checks.same("failure of the page after the success of the encoder",
                [browser.text("fields-error"), browser.run("return window.thrown.length")], ["", 1])
    browser.run("bubbles.page.form.take = window.take; window.onerror = null")
    browser.type_into("name", 'kavrix://resource/{"cameras":[{"type":1}],"snap_text":"a\\nb"}.cameraBubble')
    browser.type_into("field-cameras", '[{"type":1,"speed":90}]')
    checks.true("edited list, kept newline", b'"speed":90' in browser.name() and b"a\\u000ab" in browser.name(), browser.name())


def hidden_rows(checks, browser):
    """The keyboard goes from row to row past those that are hidden."""
    browser.open()
    browser.type_into("name", 'kavrix://resource/{"content":"Jam","mode":0}.trafficBubble')
    browser.get("hide-defaults").click()
    for when in ("hidden", "hidden before the name came"):
        shown = browser.run("return Array.from(document.querySelectorAll('#members tr'))"
                            ".filter((row) => row.checkVisibility())")
        stops = browser.driver.find_elements("css selector", STOPS)
        first = browser.driver.find_element("css selector", "#members tr")
        checks.true(f"first row, {when}", len(shown) > 2 and first != shown[0], [row.text for row in shown])
        checks.same(f"rows that the Tab key stops at, {when}", stops, shown[:1])
        browser.run("arguments[0].focus()", shown[0])
        for row in [*shown[1:], shown[-1]]:
            browser.driver.switch_to.active_element.send_keys(Keys.ARROW_DOWN)
            checks.same(f"row after an arrow key, {when}", browser.driver.switch_to.active_element, row)
        browser.type_into("name", 'kavrix://resource/{"content":"Jammed","mode":0}.trafficBubble')
    browser.get("hide-defaults").click()
    first = browser.driver.find_element("css selector", "#members tr")
    checks.same("stop when rows are shown again", browser.driver.find_elements("css selector", STOPS), [first])


def broken_name(checks, browser):
    browser.open()
    browser.type_into("name", 'kavrix://resource/{"contnt":"Jam","mode":0,"scene":}.traficBubble')
    browser.picture("broken")
    problems = browser.driver.find_elements("css selector", "#problems li")
    checks.same("problems", len(problems), 1)
    checks.true("near marker", "near-marker" in problems[0].text, problems[0].text)
    problems[0].find_element("tag name", "button").click()
    checks.same("mended marker", browser.name(), b'kavrix://resource/{"contnt":"Jam","mode":0,"scene":}.trafficBubble')
    checks.same("focus after a suggestion", browser.run("return document.activeElement.id"), "name")
    checks.true("broken payload", "not-json" in browser.text("problems"), browser.text("problems"))
    checks.same("told of a failure", browser.text("told"), "trafficBubble: it fails, 1 problem.")
    browser.type_into("name", browser.name().decode().replace(":}", ":1}"))
    browser.get("problems").find_element("tag name", "button").click()
    checks.same("mended key", browser.name(), JAM)
    checks.same("problems that are gone", browser.text("problems"), "")
    checks.same("told of a success", browser.text("told"), "trafficBubble: it decodes, no problems.")
    browser.wait("return document.getElementById('told-aloud').textContent === 'trafficBubble: it decodes, no problems.'")
    browser.type_into("name", "short.nameBubble")
    checks.true("name shorter than the prefix", "too-short" in browser.text("problems"), browser.text("problems"))
    checks.true("told of an exception", "throws" in browser.text("told"), browser.text("told"))


def many_problems(checks, browser):
    """At a key the name is explained once, whatever is wrong with it."""
    browser.open()
    browser.run("const explain = bubbles.library.explain; window.explained = 0;"
                "bubbles.library.explain = function(...values) { ++window.explained; return explain.apply(this, values) }")
    keys = ",".join(f'"contnt":"{number}"' for number in range(80))
    browser.type_into("name", f'kavrix://resource/{{{keys}}}.trafficBubble')
    checks.same("times that a name is explained", browser.run("return window.explained"), 1)
    problems = browser.run("return Array.from(document.querySelectorAll('#problems li'), (item) => item.textContent)")
    checks.same("problems that are shown", len(problems), 51)
    count = browser.run("return JSON.parse(bubbles.library.explain(bubbles.page.bytes)).problems.length")
    checks.same("problems that are not", problems[-1], f"and {count - 50} more")
    checks.true("problems that are told of", f", {count} problems." in browser.text("told"), browser.text("told"))


def useless_suggestion(checks, browser):
    browser.open()
    name = 'kavrix://resource/{"content":"a","contnt":"b","mode":0}.trafficBubble'
    browser.type_into("name", name)
    browser.get("problems").find_element("tag name", "button").click()
    checks.same("told of what does not mend", browser.text("told"), "content in its place does not mend the name.")
    checks.same("name that is not mended", browser.name(), name.encode())


def choices(checks, browser):
    """The controls that choose how a name is shown."""
    browser.open()
    browser.type_into("name", JAM.decode())
    for mode in ("night", "day", "name"):
        browser.driver.find_element("css selector", f"[name=mode][value={mode}]").click()
        shown = "night" if mode == "night" else "day"
        checks.true(f"picture, {mode}", f"schematic, {shown}" in browser.text("picture"), browser.text("picture"))
    names = [row[0] for row in browser.run(ROWS)]
    browser.get("hide-defaults").click()
    left = [row[0] for row in browser.run(ROWS)]
    checks.true("members without defaults", "content" in left and "lan" in names and "lan" not in left, left)
    for works, told in (("true", "Copied."), ("false", "This browser does not let the page copy: copy the link itself.")):
        browser.run("Object.defineProperty(navigator, 'clipboard', {configurable: true, value: {writeText: async (text) => {"
                    f"  if (!{works}) throw new Error('no'); window.copiedText = text; }}}}}})")
        browser.get("copy").click()
        browser.wait("return document.getElementById('copied').textContent !== ''")
        checks.same("told of the copy", browser.text("copied"), told)
        browser.type_into("name", JAM.decode())
        checks.same("told of the copy of another name", browser.text("copied"), "")
    checks.same("copy", browser.run("return window.copiedText"), browser.get("link").get_attribute("href"))
    marker = b'kavrix://resource/{"marker_type":3,"mode":0}.marker'
    browser.type_into("name", marker.decode())
    checks.same("name that ends in .marker", browser.text("json"), run_over([marker], "decode", "--format", "json", "--marker")[0])
    browser.run("const as = document.getElementById('as'); as.value = 'bubble'; as.dispatchEvent(new Event('change'))")
    checks.same("the same as a bubble name", browser.text("json"), run_over([marker], "decode", "--format", "json")[0])
    browser.get("problems").find_element("tag name", "button").click()
    checks.same("reading that was suggested", browser.get("as").get_attribute("value"), "marker")


def configuration(checks, browser):
    browser.open()
    browser.type_into("name", JAM.decode())
    browser.get("config-details").find_element("tag name", "summary").click()
    text = browser.get("config").get_attribute("value")
    with open("samples/default_config.json", encoding="utf-8") as file:
        checks.same("built-in configuration", text.strip(), file.read().strip())
    broken = text.replace('"0xffd93036"', '"red"')
    browser.type_into("config", broken)
    browser.wait("return document.getElementById('config').getAttribute('aria-invalid') === 'true'")
    with open("build/page/broken.json", "w", encoding="utf-8") as file:
        file.write(broken)
    told = run_tool("decode", "--config", "build/page/broken.json", JAM.decode(), statuses=(2,)).stderr.decode()
    message = browser.text("config-told").removeprefix("Not used: ")
    checks.true("error of the loader", message and told.endswith(f"broken.json: {message}\n"), f"{message!r}, {told!r}")
    checks.true("record and value", "traffic_nav_style" in message and "value 2" in message, message)
    browser.run("document.getElementById('config').scrollIntoView({block: 'end'})")
    browser.picture("broken-config")
    checks.true("configuration that stays", "0xffd93036" in browser.text("members"))
    browser.type_into("config", text.replace("0xffd93036", "0xff00ff00"))
    browser.wait("return document.getElementById('members').textContent.includes('0xff00ff00')")
    browser.type_into("config", text.replace("1.25, 14.0,", "1.25, -0.0,"))
    browser.wait("return document.getElementById('members').textContent.includes('-0.0')")
    checks.same("negative zero", dict(browser.run(ROWS))["style_float_1"], "-0.0")
    browser.get("config-file").send_keys(browser.address.removeprefix("file://").replace("index.html", "broken.json"))
    browser.wait("return document.getElementById('config-told').textContent.startsWith('Not used')")
    browser.drop("config", text.replace("0xffd93036", "0xff0000ff"), "dropped.json")
    browser.wait("return document.getElementById('members').textContent.includes('0xff0000ff')")
    browser.get("config-reset").click()
    checks.true("built-in configuration again", "0xffd93036" in browser.text("members"))


def no_memory(checks, browser):
    """A call that gets no memory fails, changes nothing, and keeps nothing."""
    browser.open()
    told = browser.run("""const {module} = bubbles.library;
        const [malloc, free] = [module._malloc, module._free];
        const kept = new Set();
        const first = module.HEAPU8.slice(0, 1024);
        module._malloc = (size) => {
          const pointer = size > 10 ? 0 : malloc(size);
          if (pointer) kept.add(pointer);
          return pointer;
        };
        module._free = (pointer) => (kept.delete(pointer), free(pointer));
        let told = '';
        try {
          bubbles.library.encode('x', '{"content":"Jam"}');
        } catch (error) {
          told = error.message;
        }
        Object.assign(module, {_malloc: malloc, _free: free});
        return [told, kept.size, first.every((byte, at) => byte === module.HEAPU8[at])]""")
    checks.same("call without memory", told, ["no memory for 17 bytes", 0, True])
