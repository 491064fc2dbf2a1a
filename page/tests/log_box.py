"""The names in a log: what is pasted, typed or dropped, and the list of them."""

import json

from browser import run_tool
from names import log_of


def given_at_once(checks, browser):
    """What was given last is what is taken."""
    browser.open()
    log = "kavrix://resource/Home_0_x_0@3.etaBubble\n" * 3
    browser.type_into("log", "typed")
    browser.drop("log", log, "dropped.log")
    browser.run_async("setTimeout(arguments[0], 400)") # longer than the page waits for more keys
    checks.true("file that came after a key", browser.text("list-told").startswith("3 names:"), browser.text("list-told"))
    # The first file is read slowly.
    browser.run("""const read = File.prototype.arrayBuffer;
        File.prototype.arrayBuffer = async function() {
          if (this.name === 'lost') throw new Error('it is gone');
          if (this.name === 'slow') await new Promise((resolve) => setTimeout(resolve, 300));
          return read.call(this);
        }""")
    browser.drop("log", log, "slow")
    browser.drop("log", log[:len(log) // 3], "quick")
    browser.run_async("setTimeout(arguments[0], 600)")
    checks.true("newer of two files", browser.text("list-told").startswith("1 name:"), browser.text("list-told"))
    browser.drop("log", log, "slow")
    browser.type_into("log", log[:len(log) // 3] * 2)
    browser.run_async("setTimeout(arguments[0], 600)")
    checks.true("text that came after a file", browser.text("list-told").startswith("2 names:"), browser.text("list-told"))
    for box, told, before in (("log", "list-told", ""), ("config", "config-told", "Not used: ")):
        browser.drop(box, "", "lost")
        browser.wait(f"return document.getElementById('{told}').className === 'error'")
        checks.same(f"file that cannot be read, {box}", browser.text(told), before + "lost cannot be read: it is gone")
    browser.type_into("log", log)
    browser.wait("return document.getElementById('list-told').textContent.startsWith('3 names:')")
    checks.same("told as before", browser.get("list-told").get_attribute("class"), "")


def dropped_beside(checks, browser):
    """The browser opens a dropped file in place of the page, unless that is prevented. A text may be dropped."""
    browser.open()
    kept = browser.run("""const drop = (id, type, put) => {
          const dataTransfer = new DataTransfer();
          put(dataTransfer.items);
          const event = new DragEvent(type, {dataTransfer, bubbles: true, cancelable: true});
          document.getElementById(id).dispatchEvent(event);
          return event.defaultPrevented;
        };
        const file = (items) => items.add(new File(['x'], 'x.log'));
        const text = (items) => items.add('x', 'text/plain');
        return ['told', 'name', 'log-file'].map((id) => ['dragover', 'drop'].map((type) =>
          [drop(id, type, file), drop(id, type, text)]))""")
    checks.same("drops that are prevented", kept, [[[True, False]] * 2, [[True, False]] * 2, [[False, False]] * 2])


def told_of_log(checks, browser):
    """What is read out comes once, at the end; what goes on is shown; and a failure is told."""
    browser.open()
    browser.run("""window.said = {'list-told': [], 'list-progress': []};
        for (const id in window.said) {
          new MutationObserver((changes) => changes.forEach(({addedNodes, target}) =>
            addedNodes.forEach(({data}) => window.said[target.id].push(data))))
              .observe(document.getElementById(id), {childList: true});
        }""")
    browser.type_into("log", log_of(5000))
    browser.wait("return document.getElementById('list-told').textContent.startsWith('5,000 names: ')")
    said = browser.run("return window.said")
    checks.same("read out", said["list-told"], [browser.text("list-told")])
    checks.true("shown while it reads", said["list-progress"][0].startswith("Reading: 0."), said["list-progress"][:3])
    checks.true("shown while it checks", "checked of 5,000 names." in said["list-progress"][-1], said["list-progress"][-3:])
    checks.same("shown after the end", browser.text("list-progress"), "")
    browser.run("""const paste = (text) => {
          const clipboardData = new DataTransfer();
          clipboardData.setData('text/plain', text);
          document.getElementById('log').dispatchEvent(new ClipboardEvent('paste', {clipboardData, cancelable: true}));
        };
        paste(arguments[0]);
        setTimeout(() => paste(arguments[1]))""", log_of(5000), log_of(500))
    browser.wait("return document.getElementById('list-told').textContent !== ''")
    checks.true("log that ends another one", browser.text("list-told").startswith("500 names: "), browser.text("list-told"))
    browser.run("bubbles.library.addToList = () => { throw new Error('no memory for it') }")
    browser.type_into("log", "x")
    browser.wait("return document.getElementById('list-told').className === 'error'")
    checks.same("told of a log that cannot be read", browser.text("list-told"), "no memory for it")


def last_rows(checks, browser):
    browser.open()
    browser.type_into("log", "kavrix://resource/Home_0_x_0@3.etaBubble\n" * 250)
    browser.wait("return document.getElementById('list-told').textContent.startsWith('250 names: ')")
    for rows, has_focus in ((200, "list-more"), (250, "")):
        browser.get("list-more").click()
        checks.same("rows", len(browser.driver.find_elements("css selector", "#list li")), rows)
        checks.same(f"focus at {rows} rows", browser.run("return document.activeElement.id"), has_focus)
    first_new = browser.driver.find_element("css selector", "#list li:nth-child(201) button")
    checks.same("focus when all rows are shown", browser.driver.switch_to.active_element, first_new)


PASTE = """const done = arguments[1];
    const clipboard = new DataTransfer();
    clipboard.setData('text/plain', arguments[0]);
    let last = performance.now(), longest = 0, frames = 0, started = last;
    const frame = (now) => {
      longest = Math.max(longest, performance.now() - last);
      last = performance.now();
      ++frames;
      const told = document.getElementById('list-told').textContent;
      const isDone = told !== '' && document.querySelector('#list li');
      if (isDone) done({longest, frames, milliseconds: last - started});
      else requestAnimationFrame(frame);
    };
    requestAnimationFrame(frame);
    document.getElementById('log').dispatchEvent(
        new ClipboardEvent('paste', {clipboardData: clipboard, bubbles: true, cancelable: true}))"""


def log(checks, browser, most_gap):
    """Returns how long the longest frame took, and all of it, in milliseconds."""
    browser.open()
    text = log_of(10_000)
    measured = browser.run_async(PASTE, text)
    survey = json.loads(run_tool("survey", "--extract", "--format", "json", given=text.encode()).stdout)
    failed = sum(kind["failed"] for kind in survey["kinds"].values())
    told = browser.text("list-told")
    checks.true("names in the log", told.startswith(f"10,000 names: {failed} failed, "), f"{told}; {failed} failed")
    rows = browser.run("return Array.from(document.querySelectorAll('#list li'), (row) => row.textContent)")
    checks.same("rows", len(rows), 100)
    checks.true("failures first", all("fails" in row for row in rows), rows[:3])
    checks.true("longest frame", measured["longest"] < most_gap, measured)
    checks.true("frames", measured["frames"] > 10, measured)
    browser.run("document.getElementById('log').scrollIntoView()")
    browser.picture("list")
    browser.get("list-more").click()
    checks.same("rows after more were asked for", len(browser.driver.find_elements("css selector", "#list li")), 200)
    first = browser.driver.find_element("css selector", "#list li button")
    name = first.text
    first.click()
    checks.same("name that was opened", browser.name().decode(), name)
    browser.type_into("log", '{"request":"kavrix:\\/\\/resource\\/Home_0_x_0@3.etaBubble"}\nx')
    browser.get("log-json").click()
    browser.wait("return document.getElementById('list-told').textContent.startsWith('1 name:')")
    checks.true("name in JSON", "Home_0_x_0@3" in browser.text("list"), browser.text("list"))
    return measured
