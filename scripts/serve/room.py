"""What a case has at hand: the program, the browser, and pages of this program."""
import json

from browser import Page, Trouble
from program import HYPSOMETRIC


def expect(truth, otherwise):
    if not truth:
        raise Trouble(otherwise)


def equal(found, expected, what):
    if found != expected:
        raise Trouble(f"{what}: {str(found)[:300]!r} in the place of {str(expected)[:300]!r}")


def box(name):
    return f'.box[data-name="{name}"]'


def value(parameter, control, viewer=""):
    """A control of a parameter, of one viewer if it is named."""
    return f'[data-parameter="{parameter}"] .value[data-context="{viewer}"] {control}'


class Room:
    def __init__(self, program, browser, shots=None):
        self.shots = shots
        self.program = program
        self.browser = browser
        self.network = HYPSOMETRIC
        self.serving = None
        self.pages = []
        self.faults = []

    def serve(self, network, *options, before=()):
        self.network = network
        self.serving = self.program.serve(network, *options, before=before)
        return self.serving

    def open(self, **window):
        """The page, once it shows its first pictures and all that can be made."""
        if not self.serving:
            self.serve(self.network)
        page = LivePage(self.browser.open(self.serving.address, **window))
        self.pages.append(page)
        page.wait("document.querySelector('canvas')?.dataset.revision", "the page opens with a picture")
        page.wait("!!document.querySelector('#entries [data-key]')", "the page opens with the catalogue")
        page.settle()
        return page

    def shut(self, page):
        """Closes a page before its time. A program serves so many connections and no more."""
        page.close()
        self.pages.remove(page)
        self.faults += page.faults + page.refusals

    def close(self):
        """Ends all. What the browser complained of is a fault, and a refusal that no
        case expected."""
        faults = self.faults + [fault for page in self.pages for fault in page.faults + page.refusals]
        try:
            for page in self.pages:
                page.close()
        finally:
            status = self.serving.stop() if self.serving else 0
        expect(not faults, "; ".join(faults))
        equal(status, 0, "the status at Ctrl-C")

    def picture(self, *settings, **more):
        return self.program.picture(self.network, *settings, **more)


class LivePage(Page):
    """The page of a network."""

    def __init__(self, page):
        self.__dict__ = page.__dict__
        self.browser.pages[self.session] = self

    def settle(self):
        """Waits until no change is under way and everything is shown."""
        self.wait("""Promise.all([import('./edits.js'), import('./studio.js')]).then(([edits, {studio}]) =>
            !edits.isBusy() && studio.state.revision >= edits.lastRevision &&
            [...document.querySelectorAll('canvas')].every(each => each.dataset.revision >= studio.state.revision))""",
                  "all changes arrive and are drawn")

    def state(self):
        return self.evaluate("import('./studio.js').then(({studio}) => studio.state)")

    def node(self, name):
        return next((each for each in self.state()["nodes"] if each["name"] == name), None)

    def parameter(self, node, name):
        return next(each for each in self.node(node)["parameters"] if each["name"] == name)

    def select(self, name):
        self.click(box(name))
        self.wait(f"document.querySelector('.node-name b')?.textContent === {json.dumps(name)}", f"{name} is selected")

    def set(self, selector, text):
        """Types a text and hands it on."""
        self.write(selector, text)
        self.press("Enter")
        self.settle()

    def toggle(self, selector):
        self.click(selector)
        self.settle()

    def take(self, selector, label):
        """Takes a choice of a list, and waits for what it does."""
        self.choose(selector, label)
        self.settle()

    def undo(self):
        self.press("z", "Control")
        self.settle()

    def redo(self):
        self.press("z", "Control", "Shift")
        self.settle()

    def saved(self):
        """The network as its text now stands."""
        return self.evaluate("fetch('network.telm').then(answer => answer.text())")

    def pixels(self, viewer="Viewer1"):
        """A word for the pixels that the canvas has."""
        return self.evaluate(f"""(async () => {{
            const canvas = document.querySelector('[data-viewer="{viewer}"] canvas');
            const {{data}} = canvas.getContext('2d').getImageData(0, 0, canvas.width, canvas.height);
            const hash = new Uint8Array(await crypto.subtle.digest('SHA-256', data));
            return [...hash].map(each => each.toString(16).padStart(2, '0')).join('');
        }})()""")

    def refused(self, count):
        """The browser has told of so many answers that refuse something, as expected."""
        equal(len(self.refusals), count, "answers that refuse something")
        self.refusals.clear()
