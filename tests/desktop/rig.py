"""A desktop of its own for tests: an X server without a screen, a window manager, a home folder."""
import ctypes
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

NEEDED = ("Xvfb", "openbox", "xdotool", "xprop", "ps")
PATIENCE = 120  # seconds; only a test that fails waits so long


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
        self.start("openbox")
        self.wait(lambda: "0x" in self.run_x("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"))

    def start_server(self):
        reading, writing = os.pipe()
        self.start("Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24", "-nolisten",
                   "tcp", pass_fds=[writing])
        os.close(writing)
        with open(reading, encoding="ascii") as number:
            return ":" + number.readline().strip()

    def start(self, *command, **options):
        with open(self.home / "log", "ab") as log:
            self.started.append(subprocess.Popen(command, env=self.env, stdin=subprocess.DEVNULL,
                                                 stdout=log, stderr=log, start_new_session=True,
                                                 **options))
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

    def wait(self, condition, what="it"):
        value = until(condition)
        if value is None:
            self.fail(f"{what} never came; windows {self.titles()}\n{self.log()}")
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

    def keys(self, window, *keys):
        """Presses keys in a window that is brought to the front."""
        self.run_x("xdotool", "windowactivate", "--sync", window, "key", "--delay", "40", *keys)

    def type(self, window, text):
        self.run_x("xdotool", "windowactivate", "--sync", window, "type", "--delay", "20", text)
