"""Others who change what the page shows: another page, a plug-in, the end."""
import json
import struct

from cases.common import MAP, case, drawn
from program import HYPSOMETRIC, pixel_hash
from room import box, equal, expect, value


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
