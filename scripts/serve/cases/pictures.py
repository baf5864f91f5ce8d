"""Pictures, the map under the glass, and the catalogue."""
import json

from cases.common import LEGEND, MAP, case
from program import HYPSOMETRIC, pixel_hash
from room import box, equal, expect, value


@case("under the pointer stand pixel, sample, scalar, map and floats, as lookup prints them")
def probes(room):
    page = room.open()
    page.point('[data-viewer="Viewer1"] canvas', 0.45, 0.35)
    probe = '[data-viewer="Viewer1"] .probe'
    page.wait(f"document.querySelectorAll('{probe} div').length >= 6", "the probe shows what it found")
    rows = dict(page.evaluate(f"[...document.querySelectorAll('{probe} div')].map(each => [...each.children].map(one => one.textContent))"))
    equal(rows["map"], MAP, "the map")
    equal(rows["pixel"], f"{int(1046 * 0.45)}, {int(650 * 0.35)}", "the pixel under the pointer")
    looked_up = rows["value, red, green, blue, alpha"]
    equal(room.program.call("lookup", "Hypsometric", rows["scalar"]).strip().splitlines()[-1], looked_up, "the lookup")
    before = rows["pixel"]
    page.evaluate("document.querySelector('canvas').focus()")
    page.press("ArrowRight", "Shift")
    x, y = map(int, before.split(", "))
    page.wait(f"document.querySelector('{probe} dd').textContent === '{x + 10}, {y}'", "an arrow moves the probe")


@case("the map under the glass shows ramp, components, lightness and three deficiencies, live")
def glass(room):
    page = room.open()
    page.select(MAP)
    inside = "document.querySelector('#glass').shadowRoot"
    ready = f"{inside}.querySelectorAll('img').length === 4 && [...{inside}.querySelectorAll('img')].every(each => each.naturalWidth > 2)"
    page.wait(ready, "four ramps stand under the glass")
    equal(page.evaluate(f"{inside}.querySelectorAll('svg.plot').length"), 2, "plots")
    words = page.evaluate(f"{inside}.textContent")
    for word in ["Components", "Lightness", "Protan", "Deutan", "Tritan"]:
        expect(word in words, f"{word} is named")
    before = page.evaluate(f"{inside}.querySelector('img').src")
    page.evaluate("document.querySelector('#show-expert').click()")
    page.toggle(value("options", "[type=checkbox]"))
    page.wait(f"{ready} && {inside}.querySelector('img').src !== {json.dumps(before)}", "the glass follows a flag")
    page.select("Camera")
    page.wait("document.querySelector('#glass').hidden", "the glass goes where no map is selected")


@case("the catalogue has every entry with its ramp, and finds them by their words")
def searches(room):
    page = room.open()
    expected = [each["key"] for each in json.loads(room.program.call("catalogue", "--json"))]
    keys = page.evaluate("[...document.querySelectorAll('#entries [data-key]')].filter(each => each.querySelector('img')).map(each => each.dataset.key)")
    equal(sorted(keys), sorted(expected), "the maps")
    page.evaluate("document.querySelectorAll('#entries img').forEach(each => { each.loading = 'eager'; })")
    page.wait("[...document.querySelectorAll('#entries img')].every(each => each.naturalWidth > 2)", "every ramp loads")
    page.write("#search", "topo")
    page.wait("document.querySelectorAll('#entries [data-key]').length < 10", "the list follows the words")
    found = page.evaluate("[...document.querySelectorAll('#entries [data-key]')].map(each => each.dataset.key)")
    expect("Colormaps/Topographic" in found and "Colormaps/Muv" not in found, f"'topo' finds {found}")


@case("one click puts a map in the place of the selected one, and what read it reads on")
def swaps(room):
    page = room.open()
    page.select(MAP)
    page.click('#entries [data-key="Colormaps/Topographic"] .entry')
    page.settle()
    node = page.node(MAP)
    equal(node["key"], "Colormaps/Topographic", "the key in its place")
    equal(page.parameter("FieldSlice", "colormap")["connected"]["object"], MAP, "what the slice reads")
    swapped = room.program.folder / "swapped.telm"
    swapped.write_text(HYPSOMETRIC.read_text().replace(f"Colormaps/Hypsometric {MAP}", f"Colormaps/Topographic {MAP}"))
    equal(page.pixels(), pixel_hash(room.program.picture(swapped)), "the pixels")
    page.undo()
    equal(page.saved(), HYPSOMETRIC.read_text(), "the network after undo")


@case("an entry is added as an object, connected, cut and deleted, by choosing among what fits")
def connects(room):
    page = room.open()
    before = page.pixels()
    page.click('#entries [data-key="Colormaps/Glow"] .add')
    page.settle()
    page.wait("document.querySelector('.node-name b').textContent !== " + json.dumps(MAP), "the new object is selected")
    added = page.text(".node-name b")
    equal(page.node(added)["key"], "Colormaps/Glow", "what was added")
    equal(page.pixels(), before, "the pixels, as nobody reads it yet")
    options = page.evaluate("[...document.querySelector('[aria-label=\"Connect colormap to\"]').options].map(each => each.textContent)")
    equal(options[1:], ["WebTelm.framebuffer", "FieldSlice.colormap", f"{LEGEND}.colormap"], "what may read the new map")
    page.take('[aria-label="Connect colormap to"]', "FieldSlice.colormap")
    equal(page.parameter("FieldSlice", "colormap")["connected"]["object"], added, "what the slice reads")
    expect(page.pixels() != before, "the new colours are seen")
    page.select("FieldSlice")
    options = page.evaluate("[...document.querySelector('[aria-label=\"colormap reads from\"]').options].map(each => each.textContent)")
    expect(any(each.startswith(MAP) for each in options) and not any("theGrid" in each for each in options),
           f"the slice may read {options}")
    page.take('[aria-label="colormap reads from"]', next(each for each in options if each.startswith(MAP)))
    equal(page.pixels(), before, "the pixels with the old map")
    page.take('[aria-label="colormap reads from"]', options[0])
    equal(page.parameter("FieldSlice", "colormap")["connected"], None, "what the slice reads after the cut")
    page.wait(f"!!document.querySelector('{box('FieldSlice')} .count:not([hidden])')", "the slice tells what it lacks")
    page.undo()
    page.select(added)
    page.click("#delete")
    page.settle()
    equal(page.node(added), None, "the object that was deleted")
