"""How long a changed value takes to the screen."""
import statistics
import time

VALUES = 50
AT_ONCE = 10

# Sets values one after the other, each once the page has come to rest.
CHANGES = """async (first, count) => {
    const slider = document.querySelector('[data-parameter="zoom"] .value[data-context="Viewer1"] [type=range]');
    const canvas = document.querySelector('canvas');
    const wait = time => new Promise(resolve => setTimeout(resolve, time));
    const change = () => new Promise(resolve => {
        const observer = new MutationObserver(() => { observer.disconnect(); resolve(); });
        observer.observe(canvas, {attributes: true, attributeFilter: ['data-revision']});
    });
    const painted = () => new Promise(resolve => requestAnimationFrame(() => {
        const channel = new MessageChannel();
        channel.port1.onmessage = resolve;
        channel.port2.postMessage(null);
    }));
    const times = [];
    performance.setResourceTimingBufferSize(5000);
    for (let i = first; i < first + count; ++i) {
        performance.clearResourceTimings();
        const start = performance.now();
        const arrived = change();
        slider.value = 30 + i / 10;
        slider.dispatchEvent(new Event('input', {bubbles: true}));
        await arrived;
        const drawn = performance.now();
        await painted();
        const end = performance.now();
        await wait(60);
        const asked = performance.getEntriesByType('resource').find(each => each.name.includes('/edit'));
        times.push({whole: end - start, screen: end - drawn, answer: asked.duration});
    }
    return times;
}"""


def measure(room):
    """Prints the median time from an input event to the painted picture, and its parts."""
    page = room.open()
    page.select("Camera")
    page.settle()
    page.call("Network.disable")  # which tells of each piece of a picture, and costs time
    times = []
    for first in range(0, VALUES, AT_ONCE):
        times += page.evaluate(f"({CHANGES})({first}, {AT_ONCE})")
    median = {part: statistics.median(each[part] for each in times) for part in times[0]}
    room.shut(page)
    drawn, undrawn = (statistics.median(server_times(room.serving, query)) for query in ("?viewer=Viewer1", ""))
    print(f"From an input event to the painted picture of 1046 x 650: median {median['whole']:.0f} ms of {VALUES} values "
          f"(the answer {median['answer']:.0f} ms, the screen {median['screen']:.0f} ms; "
          f"the slowest {max(each['whole'] for each in times):.0f} ms). The server alone: "
          f"{drawn:.0f} ms, of which {drawn - undrawn:.0f} ms for the picture.", flush=True)


def server_times(serving, query):
    """How long changes take that nobody shows, in milliseconds."""
    for i in range(VALUES):
        change = {"do": "set", "object": "Camera", "name": "zoom", "context": "Viewer1", "text": str(50 + i / 10)}
        start = time.perf_counter()
        serving.edit(change, query)
        yield (time.perf_counter() - start) * 1000
        time.sleep(0.06)
