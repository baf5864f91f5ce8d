"""What cases have in common: how they are told, and the network that they use."""
import re

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


def drawn(image):
    """An expression for what a picture element shows; null before it has loaded."""
    return f"""(() => {{
        const image = document.querySelector('{image}');
        if (!image?.complete || image.naturalWidth < 2) return null;
        const canvas = Object.assign(document.createElement('canvas'), {{width: image.naturalWidth, height: image.naturalHeight}});
        canvas.getContext('2d').drawImage(image, 0, 0);
        return canvas.toDataURL();
    }})()"""
