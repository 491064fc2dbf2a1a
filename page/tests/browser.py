"""The page in a headless Chromium without a network, and the native tool to compare with."""

import json
import os
import subprocess

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.support.ui import WebDriverWait

TOOL = "build/release/kavrix-resource"
INDEX = "build/page/index.html"


class Checks:
    """Counts checks; a failed one is printed and remembered."""

    def __init__(self):
        self.passed = 0
        self.failed = 0

    def same(self, what, found, expected):
        self.true(what, found == expected, f"found {found!r}\n  expected {expected!r}")

    def true(self, what, holds, detail=""):
        if holds:
            self.passed += 1
            return
        self.failed += 1
        print(f"test-page: {what}: {detail}")


class Browser:
    def __init__(self):
        options = Options()
        options.add_argument("--headless=new")
        options.add_argument("--host-resolver-rules=MAP * ~NOTFOUND")
        options.add_argument("--window-size=1300,1400")
        options.add_argument("--force-color-profile=srgb")
        if os.geteuid() == 0:
            options.add_argument("--no-sandbox")
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        self.driver.set_script_timeout(120)
        self.address = "file://" + os.path.abspath(INDEX)

    def open(self, link=""):
        # From another page: only the part after "#" would not load it again.
        self.driver.get("about:blank")
        self.driver.get(self.address + link)
        self.wait("return window.bubbles !== undefined")

    def wait(self, script, seconds=60):
        WebDriverWait(self.driver, seconds, 0.05).until(lambda driver: driver.execute_script(script))

    def run(self, script, *values):
        return self.driver.execute_script(script, *values)

    def run_async(self, script, *values):
        return self.driver.execute_async_script(script, *values)

    def get(self, element_id):
        return self.driver.find_element("id", element_id)

    def text(self, element_id):
        return self.run("return document.getElementById(arguments[0]).textContent", element_id)

    def type_into(self, element_id, text):
        """Sets a box to a text, as typing does."""
        self.run("const box = document.getElementById(arguments[0]); box.value = arguments[1];"
                 "box.dispatchEvent(new Event('input', {bubbles: true}))", element_id, text)

    def drop(self, element_id, text, file):
        """Drops a file that holds a text on a box."""
        self.run("""const files = new DataTransfer();
            files.items.add(new File([arguments[1]], arguments[2]));
            document.getElementById(arguments[0]).dispatchEvent(
                new DragEvent('drop', {dataTransfer: files, bubbles: true, cancelable: true}))""", element_id, text, file)

    def call(self, method, name, *values):
        """What a function of the library says about a name."""
        return self.run("return window.bubbles.library[arguments[0]](Uint8Array.from(arguments[1]), ...arguments[2])",
                        method, list(name), list(values))

    def call_for_all(self, method, names):
        return self.run("return arguments[1].map((name) => window.bubbles.library[arguments[0]](Uint8Array.from(name)))",
                        method, [list(name) for name in names])

    def name(self):
        """The bytes of the name that is shown."""
        return bytes(self.run("return Array.from(window.bubbles.page.bytes)"))

    def picture(self, file):
        self.driver.save_screenshot(f"build/page/{file}.png")

    def devtools(self, command, **values):
        return self.driver.execute_cdp_cmd(command, values)

    def requests(self):
        """The addresses of all that was asked for since the last call."""
        messages = [json.loads(entry["message"])["message"] for entry in self.driver.get_log("performance")]
        return [message["params"]["request"]["url"] for message in messages
                if message["method"] == "Network.requestWillBeSent"]

    def console(self):
        return [entry["message"] for entry in self.driver.get_log("browser")]


def run_tool(*arguments, given=b"", statuses=(0, 1)):
    result = subprocess.run([TOOL, *arguments], input=given, capture_output=True, check=False)
    if result.returncode not in statuses:
        raise SystemExit(f"test-page: {arguments}: {result.stderr.decode()}")
    return result


def run_over(names, *arguments, statuses=(0, 1)):
    """One line of output for each name, newlines included."""
    output = run_tool(*arguments, given=b"".join(name + b"\n" for name in names), statuses=statuses).stdout.decode()
    return output.splitlines(keepends=True)
