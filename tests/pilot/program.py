"""Programs that carry out a script line by line, in a sandbox that they share."""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = os.path.abspath(sys.argv.pop(1))


class Program:
    def __init__(self, root):
        self.process = subprocess.Popen([TOOL, "pilot", "--root", str(root)], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True, encoding="utf-8")

    def tell(self, *lines):
        self.process.stdin.write("".join(line + "\n" for line in lines))
        self.process.stdin.flush()

    def answer(self):
        return json.loads(self.process.stdout.readline())

    def do(self, *lines):
        """The answer to the last line, which has one."""
        self.tell(*lines)
        return self.answer()

    def open(self, note):
        return self.do("host pCouleurFen \"0\"", "host pStrOrchm " + json.dumps(note), "show",
                       "get Session.Dirty")

    def type(self, text, wait=10000):
        return self.do("type Co_Rtf.Bx_RTF " + json.dumps(text), f"tick {wait}",
                       "get Co_Rtf.Bx_RTF.Text")

    def boxes(self):
        return [box["text"] for box in self.do("boxes")]

    def kill(self):
        self.process.kill()
        self.end()

    def end(self):
        self.process.stdin.close()
        self.process.stdout.close()
        return self.process.wait(60)


class SandboxTest(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.root = pathlib.Path(temporary.name)

    def start(self):
        program = Program(self.root)
        self.addCleanup(program.kill)
        return program

    def documents(self):
        return {path.name: path.read_bytes() for path in (self.root / "c/Documents").iterdir()}
