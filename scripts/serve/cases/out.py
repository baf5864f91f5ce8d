"""Back by undo, and out into files and commands."""
import shlex

from cases.common import LEGEND, MAP, case
from program import HYPSOMETRIC, pixel_hash
from room import box, equal, expect, value


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
