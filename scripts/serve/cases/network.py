"""The network: boxes, curves, and walks along them."""
import json
import re

from cases.common import MAP, case, connections, drawn, places
from program import HYPSOMETRIC
from room import box, equal, expect


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
