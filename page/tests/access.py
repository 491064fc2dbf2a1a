"""Everyone can use the page, on any screen, and nothing leaves it."""

from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.keys import Keys

CONTROLS = """return Array.from(document.querySelectorAll(
    'a[href], button, input, select, textarea, summary, [tabindex="0"]'))
  .filter((element) => element.checkVisibility() && !(element.type === 'radio' && !element.checked))"""
# Roles of the browser's accessibility tree that a user acts on or looks for.
NAMED_ROLES = {"button", "checkbox", "combobox", "link", "listbox", "option", "radio", "textbox", "spinbutton", "region",
               "DisclosureTriangle", "list", "group", "row", "rowheader", "columnheader"}


def keyboard(checks, browser):
    """The Tab key reaches every control, forwards and backwards."""
    browser.open()
    browser.run("document.querySelectorAll('details').forEach((details) => (details.open = true))")
    browser.type_into("log", "kavrix://resource/Home_0_x_0@3.etaBubble kavrix://resource/x")
    browser.wait("return document.querySelectorAll('#list li').length === 2")
    browser.run("window.reached = new Set();"
                "document.addEventListener('focusin', (event) => window.reached.add(event.target))")
    controls = browser.run(CONTROLS)
    checks.true("controls", len(controls) > 25, len(controls))
    for shift, what in ((Keys.NULL, "Tab"), (Keys.SHIFT, "Shift and Tab")):
        browser.run("document.activeElement.blur(); window.reached = new Set()")
        browser.get("name").click()
        for _ in range(len(controls) + 5):
            ActionChains(browser.driver).send_keys(shift, Keys.TAB, Keys.NULL).perform()
        missed = browser.run("return arguments[0].filter((element) => !window.reached.has(element))"
                             ".map((element) => element.outerHTML.slice(0, 80))", controls)
        checks.same(f"controls that {what} does not reach", missed, [])


def names(checks, browser):
    """Of the accessibility tree, as screen readers see it."""
    nodes = browser.devtools("Accessibility.getFullAXTree")["nodes"]
    nodes = [node for node in nodes if not node["ignored"]]
    nameless = [(node["role"]["value"], node["nodeId"]) for node in nodes
                if node["role"]["value"] in NAMED_ROLES - {"row", "list", "group", "rowheader"}
                and not node.get("name", {}).get("value", "").strip()]
    checks.same("controls without a name", nameless, [])
    roles = {node["role"]["value"] for node in nodes}
    checks.true("roles", {"button", "combobox", "textbox", "listbox", "option", "status", "main"} <= roles, roles)


def fill_live_regions(browser):
    """Gives each of them something to tell of; returns who is to tell what."""
    browser.open()
    browser.type_into("name", "kavrix://resource/Main St_0@12.labelBubble")
    browser.type_into("field-direction", "x")
    browser.type_into("log", "kavrix://resource/Home_0_x_0@3.etaBubble")
    browser.type_into("config", "[")
    browser.get("copy").click()
    return {"copied": "cop", "told-aloud": "labelBubble: it decodes", "fields-error": '"x"', "list-told": "1 name: ",
            "config-told": "Not used: "}


def visible_error(checks, browser):
    """What is read aloud when it changes, and that it does."""
    for region, told in fill_live_regions(browser).items():
        browser.wait(f"return document.getElementById('{region}').textContent !== ''")
        checks.true(f"told in {region}", told.lower() in browser.text(region).lower(), browser.text(region))
    live = browser.run("return Array.from(document.querySelectorAll('[role=status], [role=alert]'), (e) => e.id)")
    checks.same("live regions", live, ["copied", "told-aloud", "fields-error", "list-told", "config-told"])


def contrast(checks, browser, mode):
    """Of every text that is shown outside the picture, at least 4.5 to 1."""
    worst = browser.run("""
      const channels = (colour) => colour.match(/[\\d.]+/g).map(Number);
      const luminance = ([r, g, b]) => [r, g, b].map((c) => c / 255)
        .map((c) => (c <= 0.04045 ? c / 12.92 : ((c + 0.055) / 1.055) ** 2.4))
        .reduce((sum, c, i) => sum + c * [0.2126, 0.7152, 0.0722][i], 0);
      const background = (element) => {
        for (; element; element = element.parentElement) {
          const colour = channels(getComputedStyle(element).backgroundColor);
          if (colour.length === 3 || colour[3] > 0) return colour;
        }
        return [255, 255, 255];
      };
      const opacityOf = (element) => {
        const colour = channels(getComputedStyle(element).color);
        let opacity = colour.length === 4 ? colour[3] : 1;
        for (; element; element = element.parentElement) opacity *= getComputedStyle(element).opacity;
        return opacity;
      };
      let worst = [99, ''];
      for (const element of document.querySelectorAll('body *:not(svg *)')) {
        const hasText = Array.from(element.childNodes).some((node) => node.nodeType === 3 && node.data.trim());
        if (!hasText || !element.checkVisibility() || element.tagName === 'SCRIPT') continue;
        const under = background(element);
        const opacity = opacityOf(element);
        const seen = channels(getComputedStyle(element).color).slice(0, 3)
            .map((c, i) => c * opacity + under[i] * (1 - opacity));
        const [a, b] = [luminance(seen), luminance(under)];
        const ratio = (Math.max(a, b) + 0.05) / (Math.min(a, b) + 0.05);
        if (ratio < worst[0]) worst = [ratio, element.outerHTML.slice(0, 100)];
      }
      return worst""")
    checks.true(f"contrast, {mode}", 4.5 <= worst[0] < 99, worst)


BROKEN = 'kavrix://resource/{"contnt":"Jam","nav_mode":1,"mode":2,"scene":1}x.trafficBubble'


# In a member, in what is ignored, and in the structure.
ESCAPES = 'kavrix://resource/{"content":"a\\xff",\\x09"mode":0,"x":"\\xff"}.trafficBubble'


def looks(checks, browser):
    """Light, dark and narrow; leaves a picture of each."""
    for mode in ("light", "dark"):
        browser.devtools("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": mode}])
        browser.open()
        browser.picture(mode)
        browser.type_into("name", BROKEN)
        contrast(checks, browser, mode)
        browser.picture(f"{mode}-warnings")
        browser.type_into("name", ESCAPES)
        roles = browser.run("return Array.from(document.querySelectorAll('#bytes .escape'),"
                            "(escape) => escape.parentElement.classList[0])")
        checks.same("parts with escapes", set(roles), {"member", "ignored", "structure"})
        contrast(checks, browser, f"{mode}, escapes")
    browser.devtools("Emulation.setDeviceMetricsOverride", width=360, height=1800, deviceScaleFactor=2, mobile=True)
    browser.open()
    browser.type_into("name", BROKEN)
    width = browser.run("return document.documentElement.scrollWidth")
    checks.true("nothing wider than a narrow screen", width <= 360, width)
    browser.picture("narrow")
    browser.devtools("Emulation.clearDeviceMetricsOverride")
    browser.devtools("Emulation.setEmulatedMedia", features=[])


def stays_inside(checks, browser):
    """Nothing was asked for but the page, nothing was told on the console; and a script that tries is stopped."""
    checks.same("console", browser.console(), [])
    asked = {address.split("#")[0] for address in browser.requests()} - {"about:blank"}
    checks.true("request for the page", browser.address in asked, asked)
    checks.true("requests", all(address.startswith("blob:null/") or address == browser.address for address in asked), asked)
    checks.same("resources", browser.run("return performance.getEntriesByType('resource').length"), 0)
    browser.open()
    stopped = browser.run_async("""const done = arguments[0];
        document.addEventListener('securitypolicyviolation', (event) => done(event.effectiveDirective));
        fetch('https://example.com/').catch(() => setTimeout(() => done('not stopped'), 1000))""")
    checks.same("what stops a request", stopped, "connect-src")
    stopped = browser.run_async("""const done = arguments[0];
        document.addEventListener('securitypolicyviolation', (event) => done(event.effectiveDirective));
        const script = document.createElement('script');
        script.textContent = 'window.wasRun = true';
        document.body.append(script);
        setTimeout(() => done('not stopped'), 2000)""")
    checks.same("what stops a script that came into the page", stopped, "script-src-elem")
    checks.same("script that came into the page", browser.run("return window.wasRun"), None)
