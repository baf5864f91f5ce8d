"""What a person does with the page, and what must come of it."""
import json
import re
import shlex
import struct

from program import HYPSOMETRIC, pixel_hash
from room import box, equal, expect, value

MAP = "Hypsometric_for_FieldSlice_colormap"
LEGEND = "Hypsometric_for_FieldSlice_colormap1"
cases = []


def case(title):
    def add(function):
        cases.append((title, function))
        return function
    return add


def places(network):
    """The stored places of all objects, and how they are shown."""
    text = network.read_text()
    found = {}
    for name, attribute, stored in re.findall(r'^(\w+)\.qTelm::Net::(x|y|status)="(.*?)[{"]', text, re.M):
        found.setdefault(name, {})[attribute] = stored
    return found


def connections(network):
    return re.findall(r"^(\w+)\.(\S+?)=>(\w+)", network.read_text(), re.M)


# The network

@case("opens with a box for each object, where the network stores it, and a curve for each connection")
def opens(room):
    page = room.open()
    shown = {name: each for name, each in places(HYPSOMETRIC).items() if each["status"] != "hidden"}
    boxes = {each["name"]: each for each in page.evaluate("""[...document.querySelectorAll('.box')].map(box => ({
        name: box.dataset.name, x: box.offsetLeft, y: box.offsetTop, small: box.classList.contains('icon')}))""")}
    equal(set(boxes), set(shown), "the boxes")
    right, left, low = shown["Viewer1"], shown["GlobalTime"], shown["FieldSlice"]
    across = (boxes["Viewer1"]["x"] - boxes["GlobalTime"]["x"]) / (int(right["x"]) - int(left["x"]))
    down = (boxes["FieldSlice"]["y"] - boxes["Viewer1"]["y"]) / (int(low["y"]) - int(right["y"]))
    for name, each in shown.items():
        expect(abs(boxes[name]["x"] - int(each["x"]) * across) < 2, f"{name} does not stand at its x")
        expect(abs(boxes[name]["y"] - int(each["y"]) * down) < 2, f"{name} does not stand at its y")
        equal(boxes[name]["small"], each["status"] == "icon", f"{name} is small")
    curves = set(page.evaluate("[...document.querySelectorAll('#curves path')].map(each => each.dataset.to)"))
    expected = {f"{consumer}.{name}" for consumer, name, provider in connections(HYPSOMETRIC)
                if consumer in shown and provider in shown}
    equal(curves, {each.replace(".::", ".") for each in expected}
          if not curves & {each for each in expected if "::" in each} else expected, "the curves")
    page.click("#show-hidden")
    equal(page.evaluate("document.querySelectorAll('.box').length"), len(places(HYPSOMETRIC)), "boxes with the hidden ones")


def drawn(image):
    """An expression for what a picture element shows; null before it has loaded."""
    return f"""(() => {{
        const image = document.querySelector('{image}');
        if (!image?.complete || image.naturalWidth < 2) return null;
        const canvas = Object.assign(document.createElement('canvas'), {{width: image.naturalWidth, height: image.naturalHeight}});
        canvas.getContext('2d').drawImage(image, 0, 0);
        return canvas.toDataURL();
    }})()"""


@case("a map wears the icon that its object draws, and another map another one")
def wears_icon(room):
    page = room.open()
    draw = drawn(f"{box(MAP)} .icon")
    before = page.wait(draw, "the map wears an icon")
    page.select(MAP)
    page.click('#entries [data-key="Colormaps/Muv"] .entry')
    page.settle()
    page.wait(f"![null, {json.dumps(before)}].includes({draw})", "the icon follows the map")


@case("a click selects an object, and its parameters stand beside the picture")
def selects(room):
    page = room.open()
    for name in ["Camera", "FieldSlice", "Viewer2"]:
        page.select(name)
        equal(page.evaluate(f"document.querySelector('{box(name)}').ariaPressed"), "true", f"{name} is marked")
        shown = page.evaluate("[...document.querySelectorAll('[data-parameter], [data-input]')]"
                              ".map(each => each.dataset.parameter ?? each.dataset.input)")
        expected = [each["name"] for each in page.node(name)["parameters"] if each["expert"] == 0]
        equal(sorted(shown), sorted(expected), f"the parameters of {name}")


@case("arrow keys walk along connections and to neighbours, Page Down through all objects")
def walks(room):
    page = room.open()
    page.select("theField")
    for key, expected in [("ArrowRight", "FieldSlice"), ("ArrowRight", "DefaultScene"), ("ArrowUp", "HeadShine"),
                          ("ArrowUp", "CameraTripod"), ("Home", "GlobalTime"), ("ArrowRight", "Camera"),
                          ("ArrowLeft", "GlobalTime"), ("ArrowDown", "theBundle")]:
        page.press(key)
        equal(page.evaluate("document.activeElement.dataset.name"), expected, f"the focus after {key}")
        equal(page.text(".node-name b"), expected, f"the object after {key}")
    seen = set()
    page.press("Home")
    for _ in range(page.evaluate("document.querySelectorAll('.box').length")):
        seen.add(page.evaluate("document.activeElement.dataset.name"))
        page.press("PageDown")
    equal(seen, {name for name, each in places(HYPSOMETRIC).items() if each["status"] != "hidden"}, "objects passed")
    outline = page.evaluate("getComputedStyle(document.activeElement).outlineStyle")
    equal(outline, "solid", "the focus is seen by its outline")


@case("the empty plane is a grip, the wheel zooms, Fit shows all")
def pans(room):
    page = room.open()
    transform = "document.querySelector('#sheet').style.transform"
    start = page.evaluate(transform)
    x, y = page.place("#plane", 0.55, 0.9)
    page.drag((x, y), (x - 60, y - 40))
    moved = page.evaluate(transform)
    expect(moved != start, "a grip on the plane moved nothing")
    page.call("Input.dispatchMouseEvent", type="mouseWheel", x=x, y=y, deltaX=0, deltaY=-240)
    page.wait(f"{transform} !== {json.dumps(moved)}", "the wheel zooms")
    scales = [float(re.search(r"scale\((.*)\)", each)[1]) for each in (moved, page.evaluate(transform))]
    expect(scales[1] > scales[0] * 1.2, f"the wheel went from {scales[0]} to {scales[1]}")
    page.click("#zoom-fit")
    equal(page.evaluate(transform), start, "the view after Fit")


@case("a box that is dragged stays where it is left, and the network says so")
def moves(room):
    page = room.open()
    before = page.node("theGrid")
    x, y = page.place(box("theGrid"))
    page.drag((x, y), (x + 90, y - 50))
    page.settle()
    after = page.node("theGrid")
    expect(after["x"] > before["x"] + 30 and after["y"] < before["y"] - 30, f"it went to {after['x']}, {after['y']}")
    expect(f'theGrid.qTelm::Net::x="{after["x"]:g}"' in page.saved(), "the network stores its place")
    page.press("ArrowUp", "Shift")
    page.settle()
    equal(page.node("theGrid")["y"], after["y"] - 10, "its place after Shift and an arrow")


# Parameters

CONTROLS = [  # object, parameter, what its value has
    ("FieldSlice", "transparency", ["range", "text"]),
    ("theBundle", "gridsize", ["range", "text"]),
    ("Camera", "near", ["text"]),
    ("FieldSlice", "mode", ["select-one"]),
    (MAP, "options", ["checkbox"]),
    ("FieldSlice", "datarange", ["text", "text"]),
    ("GlobalTime", "value", ["button", "button", "button", "range", "text", "text", "text", "text"]),
    ("Camera", "lookat", ["text", "text", "text"]),
    (LEGEND, "bordercolor", ["color", "text", "text", "text", "text"]),
    ("theField", "fieldname", ["text"]),
    ("HeadShine", "on", ["checkbox"]),
]


@case("each type of value has its control, with name, type, default, and level")
def has_controls(room):
    page = room.open()
    for name, parameter, expected in CONTROLS:
        page.select(name)
        if page.parameter(name, parameter)["expert"]:
            page.click("#show-expert")
        found = page.evaluate(f"""[...document.querySelectorAll('{value(parameter, ".control :is(input, select, button)")}')]
            .map(each => each.type)""")
        equal(found, expected, f"the control of {name}.{parameter}")
        facts = page.text(f'[data-parameter="{parameter}"] .facts')
        expect(page.parameter(name, parameter)["type"] in facts, f"{name}.{parameter} says '{facts}'")


@case("a slider drags the picture along, and the picture is that of run, byte for byte")
def drags(room):
    page = room.open()
    page.select("Camera")
    slider = value("zoom", "[type=range]", "Viewer1")
    start, end = page.place(slider, 0.4), page.place(slider, 0.2)
    page.drag(start, end, 20)
    page.settle()
    zoom = page.parameter("Camera", "zoom")["contexts"]["Viewer1"]
    expect(float(zoom) < 40, f"the zoom is {zoom}")
    equal(page.value(value("zoom", "[type=text]", "Viewer1")), zoom, "the number beside the slider")
    equal(page.pixels(), pixel_hash(room.picture(f"Camera.zoom{{Viewer1}}={zoom}")), "the pixels")
    page.undo()
    equal(page.parameter("Camera", "zoom")["contexts"]["Viewer1"], "45", "the zoom after one undo of the whole drag")


@case("a choice, a flag, a colour, a range, a point and a whole number are set, and the picture follows")
def sets_all(room):
    page = room.open()
    page.select("FieldSlice")
    page.take(value("orientation", "select"), "Z")
    page.set(value("datarange", ".part:nth-child(1) input"), "0.25")
    page.select(MAP)
    page.click("#show-expert")
    page.toggle(value("options", "[type=checkbox]"))
    page.select(LEGEND)
    page.set(value("bordercolor", ".part:nth-of-type(2) input"), "-0.5")
    page.select("theBundle")
    page.set(value("gridsize", "[type=text]"), "16")
    page.select("Camera")
    page.set(value("lookat", ".part:nth-child(1) input", "Viewer1"), "0.2")
    settings = ["FieldSlice.orientation=Z", "FieldSlice.datarange=0.25,1", f"{MAP}.options= inverse",
                f"{LEGEND}.bordercolor=(1,-0.5,1,1)", "theBundle.gridsize=16", "Camera.lookat{Viewer1}={0.2,0,0.125}"]
    equal(page.pixels(), pixel_hash(room.picture(*settings)), "the pixels of Viewer1")
    equal(page.pixels("Viewer2"), pixel_hash(room.picture(*settings, viewer="Viewer2")), "the pixels of Viewer2")
    equal(page.saved().encode(), room.program.saved(HYPSOMETRIC, *settings), "the network")


@case("the picker of a colour sets three of its floats")
def picks_color(room):
    page = room.open()
    page.select(LEGEND)
    picker = value("bordercolor", "[type=color]")
    equal(page.value(picker), "#ffffff", "the picker's colour")
    page.evaluate(f"""(() => {{
        const picker = document.querySelector('{picker}');
        picker.value = '#ff8000';
        picker.dispatchEvent(new Event('input', {{bubbles: true}}));
    }})()""")
    page.settle()
    red, green, blue, alpha = page.parameter(LEGEND, "bordercolor")["color"]
    equal((red, round(green * 255), blue, alpha), (1, 128, 0, 1), "the floats")
    text = page.parameter(LEGEND, "bordercolor")["text"]
    equal(page.pixels(), pixel_hash(room.picture(f"{LEGEND}.bordercolor={text}")), "the pixels")


@case("a time steps, wraps and plays")
def plays(room):
    page = room.open()
    page.select("GlobalTime")
    step = '[aria-label="value: step on"]'
    page.toggle(step)
    equal(page.parameter("GlobalTime", "value")["text"], "0.1[0,1]@0.1", "the time after a step")
    page.toggle('[aria-label="value: step back"]')
    page.toggle('[aria-label="value: step back"]')
    equal(page.parameter("GlobalTime", "value")["text"], "1[0,1]@0.1", "the time behind its beginning")
    page.click('[aria-label="value: play"]')
    page.wait("import('./studio.js').then(({studio}) => /^0.[34]/.test(studio.node('GlobalTime').parameters[0].text))",
              "the time plays on")
    page.click('[aria-label="value: pause"]')
    page.settle()
    text = page.parameter("GlobalTime", "value")["text"]
    equal(page.pixels(), pixel_hash(room.picture(f"GlobalTime.value={text}")), "the pixels")


@case("a text that does not parse shows the host's own reason at its field and changes nothing")
def refuses(room):
    page = room.open()
    before = page.saved()
    page.select("FieldSlice")
    for field, bad in [(value("transparency", "[type=text]"), "dense"),
                       (value("datarange", ".part:nth-child(2) input"), "1;2")]:
        page.write(field, bad)
        page.press("Enter")
        row = field.split(" ")[0]
        reason = page.wait(f"document.querySelector('{row} .reason').textContent", "a reason is shown")
        expect(bad in reason, f"the reason is '{reason}'")
        told = page.evaluate(f"document.getElementById(document.querySelector('{field}')"
                             ".getAttribute('aria-describedby'))?.textContent")
        equal(told, reason, "what describes the field")
        equal(page.value(field), bad, "the field keeps what was typed")
        page.press("Escape")
        equal(page.evaluate(f"document.querySelector('{row} .reason').textContent"), "", "the reason after Escape")
    equal(page.value(value("transparency", "[type=text]")), "1", "the field after Escape")
    page.refused(2)
    equal(page.saved(), before, "the network")
    page.write(value("transparency", "[type=text]"), "dense")
    page.press("Enter")
    reason = page.wait("document.querySelector('[data-parameter=transparency] .reason').textContent", "a reason is shown")
    expect(reason in room.program.complaint("run", HYPSOMETRIC, "--set", "FieldSlice.transparency=dense", "-o", "x.png"),
           f"the page says '{reason}', run something else")
    page.refused(1)


@case("what is typed and not yet handed on stays, whatever else changes")
def keeps_typed(room):
    page = room.open()
    page.select("FieldSlice")
    field = value("transparency", "[type=text]")
    page.write(field, "0.3")
    room.serving.edit({"do": "set", "object": "FieldSlice", "name": "transparency", "text": "0.9"})
    page.wait("import('./studio.js').then(({studio}) => studio.state.revision === 2)", "the page follows")
    equal(page.value(field), "0.3", "what was typed")
    page.press("z", "Control")
    page.settle()
    equal(page.parameter("FieldSlice", "transparency")["text"], "0.9", "the value, as undo is that of the field")
    page.press("Enter")
    page.press("Escape")
    page.settle()


@case("experts' parameters appear at a switch, reset leads back to the default")
def resets(room):
    page = room.open()
    page.select(MAP)
    equal(page.evaluate("document.querySelectorAll('[data-parameter]').length"), 0, "parameters for everybody")
    page.click("#show-expert")
    equal(page.evaluate("document.querySelectorAll('[data-parameter]').length"), 1, "parameters with those for experts")
    expect("level" in page.text('[data-parameter="options"] .facts'), "it names the level")
    page.toggle(value("options", "[type=checkbox]"))
    changed = page.pixels()
    page.toggle('[aria-label="Reset options"]')
    expect(page.pixels() != changed, "the reset shows in the picture")
    equal(page.parameter(MAP, "options")["text"], page.parameter(MAP, "options")["default"], "the text after the reset")


@case("an object of a higher level shows its experts' parameters without the switch")
def heeds_level(room):
    network = room.program.folder / "expert.telm"
    network.write_text(HYPSOMETRIC.read_text().replace(f'{MAP}.qTelm::Net::ExpertLevel="0"', f'{MAP}.qTelm::Net::ExpertLevel="1"'))
    room.serve(network)
    page = room.open()
    page.select(MAP)
    equal(page.evaluate("[...document.querySelectorAll('[data-parameter]')].map(each => each.dataset.parameter)"), ["options"],
          "the parameters")


@case("a viewer is given a value of its own, and the other one keeps its picture")
def gives_viewer_value(room):
    page = room.open()
    page.select("FieldSlice")
    page.settle()
    small = page.pixels("Viewer2")
    page.take("#own-value", "Viewer1: transparency")
    page.set(value("transparency", "[type=text]", "Viewer1"), "0.5")
    equal(page.parameter("FieldSlice", "transparency")["contexts"], {"Viewer1": "0.5"}, "the values of viewers")
    equal(page.pixels("Viewer2"), small, "the picture of Viewer2")
    equal(page.pixels(), pixel_hash(room.picture("FieldSlice.transparency{Viewer1}=0.5")), "the picture of Viewer1")


# Pictures, glass and catalogue

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


# Undo, and out again

@case("every kind of change can be undone and done again, by keys and by buttons")
def undoes(room):
    page = room.open()
    texts = [page.saved()]

    def did():
        page.settle()
        texts.append(page.saved())
        expect(texts[-1] != texts[-2], f"change {len(texts) - 1} changed the network")

    page.select("FieldSlice")
    page.take(value("mode", "select"), "Smooth")
    did()
    page.take('[aria-label="chart reads from"]', "nothing")
    did()
    page.take('[aria-label="chart reads from"]', page.evaluate(
        "document.querySelector('[aria-label=\"chart reads from\"]').options[1].textContent"))
    did()
    page.click('#entries [data-key="Colormaps/Ort"] .add')
    did()
    page.click('#entries [data-key="Colormaps/Zebramap"] .entry')
    did()
    x, y = page.place(box("theGrid"))
    page.drag((x, y), (x + 80, y - 60))
    did()
    page.select(MAP)
    page.click("#delete")
    did()
    for place in range(len(texts) - 2, -1, -1):
        page.undo() if place % 2 else page.toggle("#undo")
        equal(page.saved(), texts[place], f"the network at step {place} on the way back")
    expect(page.evaluate("document.querySelector('#undo').disabled"), "there is nothing more to undo")
    for place in range(1, len(texts)):
        page.redo() if place % 2 else page.toggle("#redo")
        equal(page.saved(), texts[place], f"the network at step {place} on the way on")


@case("the saved network is that of run --save, and reading it gives the same picture")
def saves(room):
    page = room.open()
    page.select("FieldSlice")
    page.set(value("transparency", "[type=text]"), "0.75")
    page.take(value("orientation", "select"), "X")
    settings = ["FieldSlice.transparency=0.75", "FieldSlice.orientation=X"]
    text = page.download("#save-network")
    equal(text, room.program.saved(HYPSOMETRIC, *settings), "the saved network")
    saved = room.program.folder / "saved.telm"
    saved.write_bytes(text)
    picture = page.download('[data-viewer="Viewer1"] figcaption a')
    equal(picture, room.picture(*settings), "the saved picture, against run with the settings")
    equal(picture, room.program.picture(saved), "the saved picture, against run of the saved network")


@case("the copied command draws the present picture in a terminal")
def copies(room):
    page = room.open()
    page.select(LEGEND)
    page.set(value("bordercolor", ".part:nth-of-type(1) input"), "0.25")
    page.click("#copy-command")
    page.wait("document.querySelector('#command-text').value", "the command is shown")
    command = page.value("#command-text")
    equal(page.wait("navigator.clipboard.readText()", "the command is copied"), command, "the clipboard")
    words = shlex.split(command)
    equal(words[0], "telmbench", "its first word")
    room.program.call(*words[1:])
    name = words[words.index("-o") + 1]
    equal(pixel_hash((room.program.folder / name).read_bytes()), page.pixels(), "the pixels")
    page.click("#command-close")
    page.select(MAP)
    page.click('#entries [data-key="Colormaps/Muv"] .entry')
    page.settle()
    page.click("#copy-command")
    said = page.wait("document.querySelector('#command-said').textContent.includes('save') && "
                     "document.querySelector('#command-said').textContent", "what has other objects is refused")
    expect("network" in said, f"the reason is '{said}'")
    page.refused(1)


# Others who change it

@case("two pages show the same, whichever of them changes it")
def shares(room):
    first = room.open()
    second = room.open(width=390, height=844)
    first.select("FieldSlice")
    first.take(value("orientation", "select"), "Z")
    second.wait("import('./studio.js').then(({studio}) => studio.node('FieldSlice').parameters"
                ".find(each => each.name === 'orientation').text.startsWith('Z'))", "the other page follows")
    second.settle()
    equal(second.pixels(), first.pixels(), "the pixels of the two")
    second.toggle("#undo")
    first.wait("document.querySelector('[data-parameter=orientation] select').value === 'Y'", "the first page follows")
    first.settle()
    equal(first.pixels(), second.pixels(), "the pixels of the two")


def recolored(plugin):
    """A plug-in as its author might build it anew: one tint is another."""
    old = struct.pack("<4f", 0.2, 0.5, 0, 0)
    new = struct.pack("<4f", 1, 0, 1, 0)
    content = plugin.read_bytes()
    expect(old in content, "the plug-in has the tint")
    return content.replace(old, new)


def put(file, content):
    """As a linker does it: the new file takes the place of the old one at once."""
    fresh = file.with_suffix(".new")
    fresh.write_bytes(content)
    fresh.replace(file)


@case("a plug-in that is built anew shows its new colours by itself; one that does not load leaves all as it is")
def follows_plugin(room):
    built = room.program.file.parent / "prism_tinctures.telm"
    plugin = room.program.folder / "mine.telm"
    plugin.write_bytes(built.read_bytes())
    room.serve(HYPSOMETRIC, "--watch", before=["--plugin", plugin])
    page = room.open()
    page.select("FieldSlice")
    page.set(value("transparency", "[type=text]"), "0.5")
    before = page.pixels()
    ramp = drawn('#entries [data-key="Colormaps/Hypsometric"] img')
    first_ramp = page.wait(ramp, "the catalogue shows the ramp")
    put(plugin, recolored(plugin))
    page.wait("Number(document.querySelector('canvas').dataset.revision) >= 3", "the picture is drawn anew")
    page.settle()
    equal(page.pixels(), pixel_hash(room.picture("FieldSlice.transparency=0.5", plugin=plugin)), "the pixels")
    expect(page.pixels() != before, "the colours are new")
    page.wait(f"![null, {json.dumps(first_ramp)}].includes({ramp})", "the catalogue's ramp is that of the new build")
    shown = page.pixels()
    put(plugin, b"no library")
    reason = page.wait("document.querySelector('#banners').textContent", "the page tells that it does not load")
    expect("mine.telm" in reason and "no 64-bit library" in reason, f"the page says '{reason}'")
    equal(page.pixels(), shown, "the last pixels stay")
    expect('FieldSlice.transparency="0.5"' in page.saved(), "nothing of the network is lost")
    put(plugin, built.read_bytes())
    page.wait("!document.querySelector('#banners').textContent", "the next good build brings it back")
    page.settle()
    equal(page.pixels(), before, "the pixels of the first build")


@case("a network that fails in parts tells each reason at its object")
def tells_faults(room):
    network = room.program.folder / "broken.telm"
    network.write_text(HYPSOMETRIC.read_text().replace("Colormaps/Hypsometric ", "Colormaps/Hypsometrik ")
                       .replace('FieldSlice.datarange="0,1"', 'FieldSlice.datarange="wide"'))
    room.serve(network)
    page = room.open()
    for name, word in [(MAP, "Hypsometrik"), ("FieldSlice", "wide")]:
        page.wait(f"!!document.querySelector('{box(name)} .count:not([hidden])')", f"{name} is marked")
        page.select(name)
        expect(word in page.text("#node-facts"), f"the reason at {name} is '{page.text('#node-facts')}'")
    page.click("#complaints-button")
    expect("wide" in page.text("#complaints"), "the list of all remarks has it too")


@case("a program that has ended is told of, and what was last seen stays")
def tells_end(room):
    page = room.open()
    shown = page.pixels()
    page.forgiven = "net::ERR_"  # what the browser says of a program that is gone
    told = "document.querySelector('#banners').textContent.includes('does not answer')"
    line = {"latency": 0, "downloadThroughput": -1, "uploadThroughput": -1}
    page.call("Network.emulateNetworkConditions", offline=True, **line)
    room.serving.edit({"do": "move", "object": "theGrid", "x": 120, "y": 226})  # answers who waits
    page.wait(told, "the page tells that nobody answers")
    page.call("Network.emulateNetworkConditions", offline=False, **line)
    page.wait(f"!{told}", "the page tells no more, once somebody answers")
    room.serving.stop()
    page.wait(told, "the page tells that the program has ended")
    equal(page.pixels(), shown, "the pixels")


# The hand, the keyboard, the eye

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
