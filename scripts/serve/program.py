"""The program as a person starts it."""
import hashlib
import io
import json
import pathlib
import signal
import subprocess
import urllib.request

from PIL import Image

from browser import Trouble

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
HYPSOMETRIC = ROOT / "prism/tinctures/examples/HypsometricSlice.telm"


class Program:
    """telmbench, with a folder for what it writes."""

    def __init__(self, file, folder):
        self.file = file
        self.folder = pathlib.Path(folder)

    def call(self, *arguments):
        """What it prints. It has to be content."""
        done = subprocess.run([self.file, *map(str, arguments)], capture_output=True, text=True, cwd=self.folder)
        if done.returncode:
            raise Trouble(f"telmbench {' '.join(map(str, arguments))}: {done.stderr}")
        return done.stdout

    def complaint(self, *arguments):
        """What it says on standard error."""
        done = subprocess.run([self.file, *map(str, arguments)], capture_output=True, text=True, cwd=self.folder)
        return done.stderr

    def picture(self, network, *settings, viewer="Viewer1", plugin=None):
        """The file of a picture that `run` draws."""
        file = self.folder / "expected.png"
        options = [option for each in settings for option in ("--set", each)]
        before = ["--plugin", plugin] if plugin else []
        self.call(*before, "run", network, "--viewer", viewer, *options, "-o", file)
        return file.read_bytes()

    def saved(self, network, *settings):
        """The text of a network with other values, as `run --save` writes it."""
        file = self.folder / "expected.telm"
        options = [option for each in settings for option in ("--set", each)]
        self.call("run", network, *options, "-o", self.folder / "expected.png", "--save", file)
        return file.read_bytes()

    def serve(self, network, *options, before=()):
        return Serving([self.file, *map(str, before), "serve", str(network), *map(str, options)], self.folder)


class Serving:
    """A running `telmbench serve`."""

    def __init__(self, command, folder):
        self.log = open(folder / "serve.log", "w+")
        # What runs in the background is told to ignore it, and so is what it starts.
        signal.signal(signal.SIGINT, signal.default_int_handler)
        self.process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=self.log, text=True, cwd=folder,
                                        stdin=subprocess.DEVNULL)
        self.address = self.process.stdout.readline().strip()
        if not self.address.startswith("http://127.0.0.1:"):
            self.stop()
            raise Trouble(f"telmbench serve printed '{self.address}' in the place of an address: {self.said()}")

    def said(self):
        self.log.seek(0)
        return self.log.read()

    def edit(self, change, query=""):
        """A change that no page makes. Gives the bytes of the answer."""
        with urllib.request.urlopen(urllib.request.Request(
                self.address + "edit" + query, json.dumps(change).encode(),
                {"Content-Type": "application/json"})) as answer:
            return answer.read()

    def stop(self):
        """Ends it as Ctrl-C does."""
        self.process.send_signal(signal.SIGINT)
        try:
            return self.process.wait(10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
            raise Trouble("telmbench serve did not end at Ctrl-C") from None


def pixel_hash(png):
    """A word for the pixels of a PNG file, row by row."""
    return hashlib.sha256(Image.open(io.BytesIO(png)).convert("RGBA").tobytes()).hexdigest()
