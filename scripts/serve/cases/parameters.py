"""The selected object: controls for its parameters, and what they do."""
from cases.common import LEGEND, MAP, case
from program import HYPSOMETRIC, pixel_hash
from room import equal, expect, value

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
