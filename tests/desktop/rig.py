"""A desktop of its own for tests: an X server without a screen, a window manager, a home folder.

Each test is run as NAME_test.py MICROEDIT [LUMENOTE NOTES_HOST DROP_TARGET]; status 77 when the desktop
cannot be had.
"""
import ctypes
import itertools
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

MICROEDIT, LUMENOTE, NOTES_HOST, DROP_TARGET = [*map(os.path.abspath, sys.argv[1:5]), *[None] * 3][:4]
del sys.argv[1:5]
NEEDED = ("Xvfb", "openbox", "xdotool", "xprop", "ps")
SKIPPED = 77
CLIENT_MESSAGE, Z_PIXMAP = 33, 2  # of the X protocol
FORMAT_ZONE = (342, 241)  # below a note, to the right: opens the paragraph dialog
PATIENCE = int(os.environ.get("PATIENCE", "120"))  # seconds; only what fails waits so long


def until(condition, patience=PATIENCE):
    """What `condition` gives as soon as it is true in the logical sense; None if it never is."""
    end = time.monotonic() + patience
    while not (value := condition()):
        if time.monotonic() > end:
            return None
        time.sleep(0.05)
    return value


def descendants(process):
    found = []
    for task in pathlib.Path(f"/proc/{process}/task").glob("*/children"):
        for child in map(int, task.read_text().split()):
            found += [child, *descendants(child)]
    return found


class Image(ctypes.Structure):
    """The beginning of the X library's own."""
    _fields_ = [(name, ctypes.c_int) for name in ("width", "height", "xoffset", "format")] + [
        ("data", ctypes.c_void_p)] + [(name, ctypes.c_int) for name in (
            "byte_order", "bitmap_unit", "bitmap_bit_order", "bitmap_pad", "depth",
            "bytes_per_line")]


class Host:
    """A program that answers each line on its standard input by one; see notes_host.cpp."""

    def __init__(self, desktop, *command):
        self.desktop = desktop
        self.path = desktop.home / f"output-{len(desktop.started)}"
        self.process = desktop.start(*command, output=self.path.name, stdin=subprocess.PIPE)

    def lines(self):
        return self.path.read_text(encoding="utf-8").splitlines()

    def tell(self, line):
        self.process.stdin.write(line.encode() + b"\n")
        self.process.stdin.flush()

    def ask(self, line):
        before = len(self.lines())
        self.tell(line)
        self.desktop.wait(lambda: len(self.lines()) > before, f"the answer to {line!r}")
        return self.lines()[-1]

    def waits_for(self, line, wanted):
        """Asks again until the answer is `wanted`, a text or a condition on one."""
        fits = wanted if callable(wanted) else lambda answer: answer == wanted
        self.desktop.wait(lambda: fits(self.ask(line)), f"{line!r} as wanted")


class Desktop(unittest.TestCase):
    """Whatever a test starts, or what that leaves behind, ends with it."""

    @classmethod
    def setUpClass(cls):
        missing = [program for program in NEEDED if not shutil.which(program)]
        if missing:
            raise unittest.SkipTest("not installed: " + " ".join(missing))
        ctypes.CDLL(None).prctl(36, 1)  # orphans become children of this process

    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory(ignore_cleanup_errors=True)
        self.addCleanup(self.temporary.cleanup)
        self.started = []
        self.addCleanup(self.end_all)
        self.home = pathlib.Path(self.temporary.name)
        kept = {name: os.environ[name] for name in ("PATH", "LSAN_OPTIONS") if name in os.environ}
        self.env = dict(kept, HOME=str(self.home), TMPDIR=str(self.home), LC_ALL="C.UTF-8",
                        XDG_RUNTIME_DIR=str(self.home), LUMENOTE_DRIVE_C=str(self.home / "c"),
                        NO_AT_BRIDGE="1")
        self.env["DISPLAY"] = self.start_server()
        self.start_window_manager()

    def start_server(self):
        reading, writing = os.pipe()
        self.start("Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24", "-noreset",
                   "-nolisten", "tcp", pass_fds=[writing])
        os.close(writing)
        with open(reading, encoding="ascii") as number:
            return ":" + number.readline().strip()

    def start_window_manager(self):
        """It announces itself before it listens: only what it answers says that it is there."""
        self.start("openbox")
        for desktop in ("1", "0"):
            self.wait(lambda: self.switch_to(desktop), "the window manager")

    def leave_no_place(self, folder):
        """From now on neither the note in `folder` nor a rescue copy can be written."""
        shutil.rmtree(folder)
        (self.home / ".config").mkdir(exist_ok=True)
        (self.home / ".config" / "user-dirs.dirs").write_text('XDG_DOCUMENTS_DIR="/proc"\n')
        shutil.rmtree(self.home / ".local", ignore_errors=True)
        (self.home / ".local").touch()

    def switch_to(self, desktop):
        self.run_x("xdotool", "set_desktop", desktop)
        return self.run_x("xdotool", "get_desktop").strip() == desktop

    def start(self, *command, output="log", **options):
        options = {"stdin": subprocess.DEVNULL, **options}
        with open(self.home / "log", "ab") as log, open(self.home / output, "ab") as out:
            self.started.append(subprocess.Popen(command, env=self.env, stdout=out, stderr=log,
                                                 start_new_session=True, **options))
        return self.started[-1]

    def end_all(self):
        while processes := descendants(os.getpid()):
            for process in processes:
                try:
                    os.kill(process, signal.SIGKILL)
                except ProcessLookupError:
                    pass
            try:
                while os.waitpid(-1, os.WNOHANG)[0]:
                    pass
            except ChildProcessError:
                pass
            time.sleep(0.02)
        for program in self.started:
            program.wait()
            if program.stdin:
                program.stdin.close()

    def wait(self, condition, what="it"):
        value = until(condition)
        if value is None:
            ended = [(program.args[0], program.poll()) for program in self.started]
            self.fail(f"{what} never came; windows {self.titles()}, ends {ended}\n{self.log()}")
        return value

    def log(self):
        return (self.home / "log").read_text(errors="replace")[-3000:]

    def run_x(self, *command):
        done = subprocess.run(command, env=self.env, capture_output=True, text=True, timeout=PATIENCE)
        return done.stdout

    def windows(self):
        """The windows that the window manager knows, by number, each with its title."""
        numbers = self.run_x("xprop", "-root", "-notype", "_NET_CLIENT_LIST").partition("#")[2]
        titles = {}
        for number in filter(None, map(str.strip, numbers.split(","))):
            title = self.run_x("xprop", "-id", number, "-notype", "_NET_WM_NAME")
            titles[number] = title.partition(' = "')[2].rstrip('"\n')
        return titles

    def titles(self):
        return list(self.windows().values())

    def window(self, part):
        """The number of a window whose title holds `part`; None without one."""
        return next((number for number, title in self.windows().items() if part in title), None)

    def title_of(self, window):
        return self.windows().get(window)

    def active(self):
        """The title of the window that has the keyboard."""
        return self.title_of(hex(int(self.run_x("xdotool", "getactivewindow") or 0)))

    def front(self, part):
        """The number of the window with `part` in its title, once it has the keyboard."""
        self.wait(lambda: part in (self.active() or ""), f"{part!r} in front")
        return self.window(part)

    def mouse(self, window, *actions):
        """Runs xdotool's mouse actions; a pair of numbers moves to a point in the window."""
        command = ["xdotool"]
        for action in actions:
            if isinstance(action, tuple):
                command += ["mousemove", "--window", window, *map(str, action)]
            else:
                command += action.split()
        self.run_x(*command)

    def popup(self):
        """What is shown over the editor's windows: menus, lists, tooltips, something dragged."""
        shown = self.run_x("xdotool", "search", "--onlyvisible", "--class", "notes_host|microedit|herbier")
        return {hex(int(number)) for number in shown.split()} - self.windows().keys()

    def tooltip(self):
        return any("_TOOLTIP" in self.run_x("xprop", "-id", window, "_NET_WM_WINDOW_TYPE")
                   for window in self.popup())

    def choose(self, window, *keys):
        """An entry of a note's context menu, or only the menu."""
        self.activate(window)
        self.mouse(window, (150, 150), "click 3")
        self.wait(self.popup, "the context menu")
        if keys:
            self.run_x("xdotool", "key", "--delay", "40", *keys)

    def ask_to_close(self, window):
        """Sends a window what its close box sends, whether it shows one or not."""
        x11 = ctypes.CDLL("libX11.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        display = ctypes.c_void_p(x11.XOpenDisplay(self.env["DISPLAY"].encode()))
        atom = lambda name: x11.XInternAtom(display, name, 0)
        event = (ctypes.c_long * 24)(CLIENT_MESSAGE, 0, 0, 0, int(window, 16),
                                     atom(b"WM_PROTOCOLS"), 32, atom(b"WM_DELETE_WINDOW"))
        x11.XSendEvent(display, ctypes.c_ulong(int(window, 16)), 0, 0, event)
        x11.XCloseDisplay(display)

    def picture(self, window, left, top, width, height):
        """The pixels that a part of the window shows."""
        x11 = ctypes.CDLL("libX11.so.6")
        x11.XOpenDisplay.restype = ctypes.c_void_p
        x11.XGetImage.restype = ctypes.POINTER(Image)
        display = ctypes.c_void_p(x11.XOpenDisplay(self.env["DISPLAY"].encode()))
        image = x11.XGetImage(display, ctypes.c_ulong(int(window, 16)), left, top, width, height,
                              ctypes.c_ulong(0xFFFFFFFF), Z_PIXMAP)
        pixels = ctypes.string_at(image.contents.data, image.contents.bytes_per_line * height)
        x11.XDestroyImage(image)
        x11.XCloseDisplay(display)
        return pixels

    def settled(self, value):
        """What `value` gives once it has stayed the same for a moment."""
        def twice():
            before = value()
            time.sleep(0.2)
            return value() == before
        self.wait(twice, "a settled state")
        return value()

    def activate(self, window):
        """Brings a window to the front that is not there yet."""
        if self.run_x("xdotool", "getactivewindow").strip() != str(int(window, 16)):
            self.run_x("xdotool", "windowactivate", "--sync", window)

    def keys(self, window, *keys):
        """Presses keys in a window that is brought to the front."""
        self.activate(window)
        self.run_x("xdotool", "key", "--delay", "40", *keys)

    def type(self, window, text):
        self.activate(window)
        self.run_x("xdotool", "type", "--delay", "20", text)


class Notes(Desktop):
    """A host of several notes, of which the first is open."""

    def open(self, *notes):
        self.host = Host(self, NOTES_HOST, *notes)
        self.note = self.show(1)

    def show(self, number):
        self.host.ask(f"show {number}")
        return self.front(f"Note {number}")

    def paragraph_dialog(self):
        self.mouse(self.note, FORMAT_ZONE, "click 1")
        return self.front("Format Paragraphe")

    def edit(self, number=1):
        """Types at the beginning of a note."""
        self.type(self.window(f"Note {number}"), "x")
        self.host.waits_for(f"text {number}", lambda text: text.startswith("x"))

    def drag_to(self, start, window, height, sees):
        """Drags what is selected at `start` over a window until that `sees` it, and lets it fall there."""
        x, y = start
        self.mouse(self.note, start, "mousedown 1", (x + 13, y + 2), (x + 23, y + 6))
        steps = itertools.cycle(range(200, 220, 3))

        def move():
            self.mouse(window, (next(steps), height))
            return sees()

        self.wait(move, "the drag at its target")
        self.mouse(window, (200, height), "mouseup 1")

    def agree(self, title="notes_host"):
        """To a box with this title."""
        self.keys(self.front(title), "Return")
        self.wait(lambda: not self.window(title), "the end of the box")

    def ends(self, *last):
        """The host has ended with these lines."""
        self.assertEqual(self.host.process.wait(timeout=60), 0)
        self.assertEqual(self.host.lines()[-len(last):], list(last))


def main():
    """Runs the tests of the program; status 77 when the desktop cannot be had."""
    result = unittest.main(exit=False).result
    nothing_ran = result.skipped and len(result.skipped) >= max(result.testsRun, 1)
    sys.exit(not result.wasSuccessful() or (SKIPPED if nothing_ran else 0))
