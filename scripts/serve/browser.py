"""A headless Chromium, driven over its DevTools pipe, as a person drives it: by
mouse and keyboard. What it complains of, and whatever it asks for elsewhere, is
kept."""
import base64
import contextlib
import json
import os
import pathlib
import random
import select
import shutil
import subprocess
import tempfile
import time

PATIENCE = 60.0  # seconds for whatever a person would wait for, on a busy machine
SLOWNESS = 6     # how many times slower a slow browser computes
LATENCY = 2.0    # seconds at most that a slow browser waits for an answer; few take long

KEYS = {  # name: (code, virtual key)
    "ArrowLeft": ("ArrowLeft", 37), "ArrowUp": ("ArrowUp", 38), "ArrowRight": ("ArrowRight", 39),
    "ArrowDown": ("ArrowDown", 40), "Tab": ("Tab", 9), "Enter": ("Enter", 13), "Escape": ("Escape", 27),
    "Delete": ("Delete", 46), "PageDown": ("PageDown", 34), "PageUp": ("PageUp", 33), "Home": ("Home", 36),
    "End": ("End", 35), " ": ("Space", 32)}
MODIFIERS = {"Alt": 1, "Control": 2, "Shift": 8}


class Trouble(AssertionError):
    """What a case expected and did not find."""


class Browser:
    """A slow one computes slowly, and answers reach it late and in any order, as on
    a busy machine: what does not wait for what it needs, fails."""

    def __init__(self, slow=None):
        self.slow = None if slow is None else random.Random(slow)
        self.late = []  # answers kept back: (when they may go on, page, number)
        self.folder = tempfile.mkdtemp()
        to_child, self.write_end = os.pipe()
        self.read_end, from_child = os.pipe()

        def wire():  # the browser reads from 3 and writes to 4
            os.dup2(to_child, 13)
            os.dup2(from_child, 14)
            os.dup2(13, 3)
            os.dup2(14, 4)

        self.process = subprocess.Popen(
            ["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
             "--disable-background-networking", "--disable-component-update", "--disable-sync", "--hide-scrollbars",
             "--disable-dev-shm-usage", "--force-device-scale-factor=1", "--remote-debugging-pipe",
             f"--user-data-dir={self.folder}/profile", "about:blank"],
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            preexec_fn=wire, pass_fds=(3, 4))
        os.close(to_child)
        os.close(from_child)
        self.rest = b""
        self.count = 0
        self.pages = {}  # by session
        self.saved = 0  # files, by the end of their download
        self.call("Browser.grantPermissions", permissions=["clipboardReadWrite", "clipboardSanitizedWrite"])

    def close(self):
        with contextlib.suppress(Trouble, OSError):
            self.call("Browser.close")
        try:
            self.process.wait(5)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def send(self, method, session=None, **parameters):
        """The number of the message."""
        self.count += 1
        message = {"id": self.count, "method": method, "params": parameters}
        if session:
            message["sessionId"] = session
        os.write(self.write_end, json.dumps(message).encode() + b"\0")
        return self.count

    def call(self, method, session=None, **parameters):
        ours = self.send(method, session, **parameters)
        end = time.monotonic() + PATIENCE
        while True:
            answer = self.receive(end)
            if answer is None:
                raise Trouble(f"the browser does not answer to {method}")
            if answer.get("id") == ours:
                if "error" in answer:
                    raise Trouble(f"{method}: {answer['error']['message']}")
                return answer["result"]

    def receive(self, end):
        """The next message; events go to their pages. None when the time is over."""
        while b"\0" not in self.rest:
            self.let_go()
            until = min([end, *(each[0] for each in self.late)])
            ready, _, _ = select.select([self.read_end], [], [], max(until - time.monotonic(), 0))
            if not ready:
                if time.monotonic() < end:
                    continue
                return None
            piece = os.read(self.read_end, 1 << 20)
            if not piece:
                raise Trouble("the browser has ended")
            self.rest += piece
        text, self.rest = self.rest.split(b"\0", 1)
        message = json.loads(text)
        if "method" in message and message.get("sessionId") in self.pages:
            self.pages[message["sessionId"]].hear(message["method"], message["params"])
        elif message.get("method") == "Browser.downloadProgress":
            self.saved += message["params"]["state"] == "completed"
        return message

    def keep_back(self, page, number):
        self.late.append((time.monotonic() + LATENCY * self.slow.random() ** 4, page, number))

    def let_go(self):
        """Hands on the answers whose time has come."""
        now = time.monotonic()
        due = [each for each in self.late if each[0] <= now]
        self.late = [each for each in self.late if each[0] > now]
        for _, page, number in due:
            self.send("Fetch.continueResponse", page, requestId=number)

    def open(self, address, width=1400, height=900, dark=False):
        """A page in a tab of its own."""
        return Page(self, address, width, height, dark)


class Page:
    def __init__(self, browser, address, width, height, dark):
        self.browser = browser
        self.address = address
        self.faults = []
        self.refusals = []  # answers 4xx of the program, which the browser takes for errors
        self.forgiven = None  # complaints with this word are no faults
        self.requests = []
        self.downloads = pathlib.Path(tempfile.mkdtemp(dir=browser.folder))
        context = browser.call("Target.createBrowserContext")["browserContextId"]
        self.context = context
        browser.call("Browser.setDownloadBehavior", behavior="allow", browserContextId=context,
                     downloadPath=str(self.downloads), eventsEnabled=True)
        browser.call("Browser.grantPermissions", browserContextId=context,
                     permissions=["clipboardReadWrite", "clipboardSanitizedWrite"])
        self.target = browser.call("Target.createTarget", url="about:blank", browserContextId=context,
                                   width=width, height=height)["targetId"]
        self.session = browser.call("Target.attachToTarget", targetId=self.target, flatten=True)["sessionId"]
        browser.pages[self.session] = self
        for domain in ["Page", "Runtime", "Log", "Network", "DOM"]:
            self.call(f"{domain}.enable")
        self.call("Emulation.setFocusEmulationEnabled", enabled=True)
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1,
                  mobile=width < 500)
        self.call("Emulation.setEmulatedMedia",
                  features=[{"name": "prefers-color-scheme", "value": "dark" if dark else "light"}])
        if browser.slow:
            self.call("Emulation.setCPUThrottlingRate", rate=SLOWNESS)
            self.call("Fetch.enable", patterns=[{"requestStage": "Response"}])
        self.call("Page.navigate", url=address)

    def close(self):
        self.browser.call("Target.closeTarget", targetId=self.target)
        self.browser.call("Target.disposeBrowserContext", browserContextId=self.context)

    def call(self, method, **parameters):
        return self.browser.call(method, self.session, **parameters)

    # What the browser tells

    def hear(self, method, event):
        if method == "Runtime.exceptionThrown":
            details = event["exceptionDetails"]
            self.faults.append(details.get("exception", {}).get("description") or details["text"])
        elif method == "Runtime.consoleAPICalled" and event["type"] in ("error", "warning", "assert"):
            self.faults.append("console: " + " ".join(str(each.get("value", each.get("description")))
                                                      for each in event["args"]))
        elif method == "Log.entryAdded" and event["entry"]["level"] in ("error", "warning"):
            entry = event["entry"]
            text = f"{entry['text']} {entry.get('url', '')}"
            if self.forgiven and self.forgiven in text:
                return
            (self.refusals if "status of 4" in text else self.faults).append(text)
        elif method == "Fetch.requestPaused":
            self.browser.keep_back(self.session, event["requestId"])
        elif method == "Network.requestWillBeSent":
            url = event["request"]["url"]
            self.requests.append((event["request"]["method"], url))
            if not url.startswith((self.address.split("#")[0], "data:", "blob:")):
                self.faults.append(f"a request elsewhere: {url}")

    # What is on the page

    def evaluate(self, expression):
        """The value of an expression, or of the promise that it gives."""
        answer = self.call("Runtime.evaluate", expression=expression, awaitPromise=True, returnByValue=True)
        if "exceptionDetails" in answer:
            details = answer["exceptionDetails"]
            raise Trouble(details.get("exception", {}).get("description", details["text"]))
        return answer["result"].get("value")

    def wait(self, expression, what):
        """Waits until an expression is true."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if value := self.evaluate(expression):
                return value
            self.browser.receive(time.monotonic() + 0.015)
        raise Trouble(f"{what}, but that did not happen")

    def text(self, selector):
        return self.evaluate(f"document.querySelector({json.dumps(selector)})?.textContent ?? null")

    def value(self, selector):
        return self.evaluate(f"document.querySelector({json.dumps(selector)})?.value ?? null")

    def place(self, selector, right=0.5, down=0.5):
        """Where something is on the screen, once it can be seen, brought there first."""
        name = json.dumps(selector)
        box = self.wait(f"""(() => {{
            const found = document.querySelector({name});
            if (!found) return null;
            found.scrollIntoView({{block: 'nearest', inline: 'nearest'}});
            const {{x, y, width, height}} = found.getBoundingClientRect();
            return width ? {{x, y, width, height}} : null;
        }})()""", f"there is something to be seen of {selector}")
        return box["x"] + box["width"] * right, box["y"] + box["height"] * down

    # The hands of a person

    def mouse(self, kind, x, y, **more):
        self.call("Input.dispatchMouseEvent", type=kind, x=x, y=y, **more)

    def click(self, selector):
        x, y = self.place(selector)
        self.mouse("mouseMoved", x, y)
        self.mouse("mousePressed", x, y, button="left", buttons=1, clickCount=1)
        self.mouse("mouseReleased", x, y, button="left", clickCount=1)

    def point(self, selector, right, down):
        self.mouse("mouseMoved", *self.place(selector, right, down))

    def drag(self, start, end, steps=8):
        self.mouse("mouseMoved", *start)
        self.mouse("mousePressed", *start, button="left", buttons=1, clickCount=1)
        for step in range(1, steps + 1):
            self.mouse("mouseMoved", *(a + (b - a) * step / steps for a, b in zip(start, end)),
                       button="left", buttons=1)
        self.mouse("mouseReleased", *end, button="left", clickCount=1)

    def press(self, key, *modifiers):
        code, number = KEYS.get(key) or (f"Key{key.upper()}", ord(key.upper()))
        bits = sum(MODIFIERS[each] for each in modifiers)
        text = {"Enter": "\r", " ": " "}.get(key, key if len(key) == 1 and not bits & 3 else "")
        common = {"key": key, "code": code, "windowsVirtualKeyCode": number, "modifiers": bits}
        self.call("Input.dispatchKeyEvent", type="keyDown" if text else "rawKeyDown", text=text, **common)
        self.call("Input.dispatchKeyEvent", type="keyUp", **common)

    def write(self, selector, text):
        """Types over what a field has, and leaves it there to be handed on."""
        self.click(selector)
        self.evaluate(f"document.querySelector({json.dumps(selector)}).select()")
        self.call("Input.insertText", text=text)

    def choose(self, selector, label):
        """Takes a choice of a list, by its words."""
        self.place(selector)
        found = self.evaluate(f"""(() => {{
            const list = document.querySelector({json.dumps(selector)});
            const option = [...list.options].find(each => each.textContent === {json.dumps(label)});
            if (!option) return [...list.options].map(each => each.textContent);
            list.focus();
            list.selectedIndex = option.index;
            list.dispatchEvent(new Event('input', {{bubbles: true}}));
            list.dispatchEvent(new Event('change', {{bubbles: true}}));
            return true;
        }})()""")
        if found is not True:
            raise Trouble(f"{selector} has no choice '{label}' but {found}")

    def download(self, selector):
        """The bytes of what a click on a link saves."""
        before = self.browser.saved
        self.click(selector)
        end = time.monotonic() + PATIENCE
        while self.browser.saved == before:
            if self.browser.receive(end) is None:
                raise Trouble(f"a click on {selector} saved nothing")
        file, = self.downloads.iterdir()
        content = file.read_bytes()
        file.unlink()
        return content

    def screenshot(self, file, whole=False):
        data = self.call("Page.captureScreenshot", format="png", captureBeyondViewport=whole)["data"]
        pathlib.Path(file).write_bytes(base64.b64decode(data))
