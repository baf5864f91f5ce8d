"""The hand, the keyboard, the eye, on every size of screen."""
import re

from cases.common import LEGEND, MAP, case, places
from program import HYPSOMETRIC, pixel_hash
from room import equal, expect, value


@case("a burst of a hundred values builds no queue: one request at a time, and the last value wins")
def builds_no_queue(room):
    page = room.open()
    page.select("Camera")
    page.settle()
    page.requests.clear()
    page.evaluate(f"""(async () => {{
        const slider = document.querySelector('{value("zoom", "[type=range]", "Viewer1")}');
        performance.clearResourceTimings();
        performance.setResourceTimingBufferSize(2000);
        for (let i = 1; i <= 100; ++i) {{
            slider.value = 40 - i * 0.2;
            slider.dispatchEvent(new Event('input', {{bubbles: true}}));
            await new Promise(resolve => setTimeout(resolve, 3));
        }}
    }})()""")
    page.settle()
    edits = sum(method == "POST" for method, _ in page.requests)
    expect(1 <= edits < 100, f"{edits} changes went out")
    spans = page.evaluate("""performance.getEntriesByType('resource')
        .filter(each => /\\/(edit|pixels)\\?.*Viewer1$/.test(each.name))
        .map(each => [each.startTime, each.responseEnd]).sort((a, b) => a[0] - b[0])""")
    expect(len(spans) >= edits, "the browser kept the times of all requests")
    for (_, end), (start, _) in zip(spans, spans[1:]):
        expect(start >= end - 0.5, f"a request began at {start} ms, before the last one was answered at {end} ms")
    equal(page.parameter("Camera", "zoom")["contexts"]["Viewer1"], "20", "the value that won")
    equal(page.pixels(), pixel_hash(room.picture("Camera.zoom{Viewer1}=20")), "the last picture")


@case("all of it works without a mouse")
def works_by_keyboard(room):
    page = room.open()
    for _ in range(20):
        page.press("Tab")
        if page.evaluate("document.activeElement.classList.contains('box')"):
            break
    equal(page.evaluate("document.activeElement.dataset.name"), MAP, "Tab reaches the selected box")
    page.press("ArrowRight")
    equal(page.text(".node-name b"), "FieldSlice", "the object to the right")
    page.press("Enter")
    expect(page.evaluate("document.querySelector('#node').contains(document.activeElement)"), "Enter leads to the object")
    for _ in range(40):
        if page.evaluate("document.activeElement.closest('[data-parameter=mode]') && document.activeElement.matches('select')"):
            break
        page.press("Tab")
    page.press("ArrowDown")
    page.settle()
    expect(page.parameter("FieldSlice", "mode")["text"].startswith("Smooth"), "an arrow picks the next choice")
    page.press("z", "Control")
    page.settle()
    expect(page.parameter("FieldSlice", "mode")["text"].startswith("Interpolated"), "Ctrl+Z takes it back")
    page.press("Escape")
    equal(page.evaluate("document.activeElement.dataset.name"), "FieldSlice", "Escape leads back to the box")
    page.press("ArrowLeft")
    page.press("Delete")
    page.settle()
    expect(len(page.state()["nodes"]) < len(places(HYPSOMETRIC)), "Delete deletes the object")


ROLES = {"button", "textbox", "searchbox", "checkbox", "combobox", "slider", "link", "ColorWell", "img", "image",
         "listbox", "spinbutton", "dialog", "menuitem", "radio"}


@case("every control has a name for assistive technology, and Tab reaches it")
def is_accessible(room):
    page = room.open()
    for name in ["Camera", "GlobalTime", MAP, "FieldSlice", LEGEND, "DefaultScene"]:
        page.select(name)
        page.evaluate("document.querySelector('#show-expert').checked || document.querySelector('#show-expert').click()")
        page.settle()
        tree = page.call("Accessibility.getFullAXTree")["nodes"]
        controls = [each for each in tree if not each["ignored"] and each["role"]["value"] in ROLES]
        expect(len(controls) > 30, f"the tree has {len(controls)} controls")
        nameless = [each["role"]["value"] for each in controls if not each.get("name", {}).get("value", "").strip()]
        equal(nameless, [], f"controls without a name, with {name} selected")
    page.evaluate("document.activeElement.blur()")
    page.evaluate("""document.querySelectorAll('.box').forEach(each => { each.dataset.reached = 'by arrows'; })""")
    for _ in range(300):
        page.press("Tab")
        if page.evaluate("""(() => {
            const reached = document.activeElement;
            if (reached.dataset.reached === 'by Tab') return true;
            reached.dataset.reached = 'by Tab';
        })()"""):
            break
    missed = page.evaluate("""[...document.querySelectorAll('button, a[href], input, select, textarea, canvas')]
        .filter(each => each.checkVisibility() && !each.disabled && !each.dataset.reached).map(each => each.outerHTML.slice(0, 90))""")
    equal(missed, [], "controls that Tab does not reach")


@case("light and dark, from 390 to 1800 pixels, nothing is cut off")
def fits(room):
    room.serve(HYPSOMETRIC)
    for width, height, dark in [(390, 844, False), (390, 844, True), (800, 1000, False), (1400, 900, False),
                                (1400, 900, True), (1800, 1100, False)]:
        page = room.open(width=width, height=height, dark=dark)
        page.select(MAP)
        equal(page.evaluate("document.documentElement.scrollWidth"), width, f"the page's width in a window of {width}")
        page.wait("document.querySelector('#glass').shadowRoot.querySelectorAll('img').length === 4", "the glass is there")
        cut = page.evaluate("""[...document.querySelectorAll('.scroll')].filter(each => each.scrollWidth > each.clientWidth + 1)
            .map(each => (each.id || each.parentElement.id) + ' ' + each.scrollWidth)""")
        equal(cut, [], f"parts wider than their place in a window of {width}")
        paper = page.evaluate("getComputedStyle(document.body).backgroundColor")
        brightness = sum(map(int, re.findall(r"\d+", paper)[:3]))
        expect((brightness < 200) == dark, f"the paper is {paper}")
        if room.shots:
            page.screenshot(room.shots / f"{width}-{'dark' if dark else 'light'}.png")
        room.shut(page)


@case("on small screens the picture stays in sight of whoever turns parameters")
def stays_in_sight(room):
    for width, height in [(390, 844), (1000, 700)]:
        page = room.open(width=width, height=height)
        page.select("Camera")
        page.place(value("epsilon", "[type=text]", "Viewer1"))
        top, bottom, scrolled = page.evaluate("""(() => {
            const {top, bottom} = document.querySelector('canvas').getBoundingClientRect();
            return [top, bottom, scrollY];
        })()""")
        expect(scrolled > 300, f"the page is longer than a window of {width} x {height}")
        expect(top >= 0 and bottom <= height, f"the picture stands from {top} to {bottom} in a window of {width} x {height}")
        room.shut(page)
