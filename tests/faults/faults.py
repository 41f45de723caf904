#!/usr/bin/env python3
"""Makes every system call of an act on a note fail in turn, or ends the program there, and looks
what is left of the note.
usage: faults.py SHIM LUMENOTE [--full] [ACT...]
Without --full each call gets one fault, not all of them, and the files are in memory if they can."""
import collections
import errno
import json
import os
import pathlib
import subprocess
import sys
import tempfile

OLD, NEW, RESULT = "ancien", "nouveau ancien", "revenu nouveau ancien"
ERRORS = (errno.ENOSPC, errno.EIO, errno.EACCES)
KILL = 0
FAILED = "Enregistrement impossible"

BEGIN = r"""
host pCouleurFen 0
host pStrOrchm C:\n\a.txt
show
type Co_Rtf.Bx_RTF "nouveau "
cat C:\begin
"""
END = r"""
cat C:\end
get Co_Rtf.Bar_Etat.Panels(2)
boxes
forms
get Session.Dirty
get Co_Rtf.Bx_RTF.Text
cat C:\n\a.txt
"""
SAVE = BEGIN + "click Co_Rtf.mnuPopEnregistrer" + END
CLOSE = BEGIN + "close Co_Rtf" + END
CONVERT = BEGIN + "click Co_Rtf.mnuPopTextRichText" + END
STRING = r"""
host pCouleurFen 0
host pStrOrchm "ancien"
cat C:\begin
show
""" + END.replace(r"cat C:\n\a.txt", "host pStrOrchm")
ROUND_TRIP = BEGIN + rf"""
click Co_Rtf.mnuPopQjot
tick 600
cat C:\end
file C:\Temp\Sava.txt "{RESULT}"
touch C:\Temp\Sava.txt
cat C:\begin
finish
tick 60
""" + END


class Sandbox:
    """A note in a folder of its own, and the tool that works on it under the shim."""

    def __init__(self, root, linked):
        self.root = pathlib.Path(root).resolve()
        for name, text in (("c/n/a.txt", OLD), ("c/begin", ""), ("c/end", ""),
                           ("c/Temp/TmpFlStr.txt", "une autre note"),
                           ("c/Program Files/qjot/qjot.exe", "stand-in program\r\n")):
            path = self.root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(text.encode("cp1252"))
        self.names = ["a.txt"]
        if linked:
            os.link(self.root / "c/n/a.txt", self.root / "c/n/b.txt")
            self.names.append("b.txt")

    def run(self, script, **fault):
        environment = dict(os.environ, LD_PRELOAD=SHIM, FAULT_ROOT=str(self.root),
                           FAULT_LOG=str(self.root / "log"))
        environment.update({f"FAULT_{name.upper()}": str(value) for name, value in fault.items()})
        done = subprocess.run([TOOL, "pilot", "--root", str(self.root)], text=True, timeout=60,
                              input=script, capture_output=True, env=environment)
        lines = [json.loads(line) for line in done.stdout.splitlines()[-6:]]
        return done, lines

    def calls(self, script):
        self.run(script)
        return (self.root / "log").read_text().split()

    def texts(self, *patterns):
        return [path.read_bytes().decode("cp1252")
                for pattern in patterns for path in self.root.glob(pattern)]

    def note(self):
        return self.texts("c/n/a.txt")[0]

    def rescued(self):
        return self.texts("c/Documents/Secours_*", "state/rescue/*")

    def backups(self):
        """Not the records of work files, whose origin is "*"."""
        return [copy.read_text("cp1252") for copy in self.root.glob("state/owner-*/*.note")
                if copy.with_suffix(".origin").read_text() != "*"]


def require(holds, what):
    if not holds:
        raise AssertionError(what)


def told(panel, boxes):
    return panel == FAILED or any(box["text"].startswith(FAILED) for box in boxes)


def check_save(sandbox, panel, boxes, forms, dirty, shown, note):
    require(note in (OLD, NEW) or OLD in sandbox.backups(), f"torn: {note!r}")
    require(note == NEW or dirty, "taken for saved")
    require(not dirty or panel == FAILED, "not told")
    require(set(sandbox.texts("c/n/*")) == {NEW}, "not saved when the fault was gone")
    return "new" if note == NEW else "old, told"


def check_closing(sandbox, panel, boxes, forms, dirty, shown, note):
    require(note in (OLD, NEW) or OLD in sandbox.backups(), f"torn: {note!r}")
    if note == NEW:
        return "new"
    require(told(panel, boxes), "not told")
    if forms:
        require(shown == NEW, "lost in the window that stays open")
        return "window stays open"
    require(NEW in sandbox.rescued(), "lost")
    return "rescue copy"


def check_round_trip(sandbox, panel, boxes, forms, dirty, shown, note):
    places = [note, shown, *sandbox.rescued()]
    require(note in (OLD, NEW, RESULT), f"torn: {note!r}")
    require(any(NEW in text for text in places), "lost")
    require(RESULT in places + sandbox.texts("c/Temp/Sav*"), "result lost")
    require(dirty or shown == note, "taken for saved")
    return "result is the note" if note == RESULT else "result stays where it is"


def check_conversion(sandbox, panel, boxes, forms, dirty, shown, note):
    converted = sandbox.texts("c/n/a.rtf")
    require(shown == NEW, "lost in the window")
    require(note in (OLD, None), "the note has changed")
    require(converted or note == OLD, "lost")
    require(not converted or NEW in converted[0], "torn")
    sandbox.names = ["a.rtf"] if converted else ["a.txt"]
    return "converted" if converted else "nothing has changed"


def check_string(sandbox, panel, boxes, forms, dirty, shown, note):
    require(note == OLD, f"the host reads {note!r}")
    return "opened" if forms else "refused"


def check_kill(sandbox):
    note = sandbox.note()
    torn = note not in (OLD, NEW, RESULT)
    require(not torn or OLD in sandbox.backups(), f"torn: {note!r}")
    backup = bool(sandbox.backups())
    result = note != RESULT and RESULT in sandbox.texts("c/Temp/Sav*")
    done, lines = sandbox.run(SAVE)
    require(done.returncode == 0 and sandbox.note() == "nouveau " + note, "not usable again")
    require(not backup or note == OLD or OLD in sandbox.rescued(), "no rescue copy of the backup")
    require(not result or RESULT in sandbox.rescued(), "result lost")
    return "torn, rescue copy" if torn else "old" if note == OLD else "new"


Act = collections.namedtuple("Act", "script check linked kill", defaults=(False, False))
ACTS = {
    "save": Act(SAVE, check_save),
    "save_in_place": Act(SAVE, check_save, linked=True),
    "closing": Act(CLOSE, check_closing),
    "closing_in_place": Act(CLOSE, check_closing, linked=True),
    "conversion": Act(CONVERT, check_conversion),
    "string_note": Act(STRING, check_string),
    "round_trip": Act(ROUND_TRIP, check_round_trip),
    "kill": Act(SAVE, check_kill, kill=True),
    "kill_in_place": Act(SAVE, check_kill, linked=True, kill=True),
    "kill_closing": Act(CLOSE, check_kill, kill=True),
    "kill_round_trip": Act(ROUND_TRIP, check_kill, kill=True),
}


def faults_of(act, call, full):
    if act.kill:
        return [dict(errno=KILL)]
    if not full:
        return [dict(errno=ERRORS[call % len(ERRORS)])]
    return [dict(errno=error, stays=stays) for error in ERRORS for stays in ("", "1")]


def folder(full):
    return tempfile.TemporaryDirectory(
        dir=None if full or not os.path.isdir("/dev/shm") else "/dev/shm")


def attempt(act, call, fault, full):
    with folder(full) as root:
        sandbox = Sandbox(root, act.linked)
        done, lines = sandbox.run(act.script, call=call, **fault)
        require(done.returncode == (-9 if act.kill else 0), f"ended with {done.returncode}")
        outcome = act.check(sandbox, *([] if act.kill else lines))
        left = [name for name in sorted(os.listdir(sandbox.root / "c/n"))
                if not (fault.get("stays") and name.startswith(".lumenote-"))]
        require(left == sandbox.names, f"{left} are left")
        return outcome


def run(name, full):
    act = ACTS[name]
    outcomes, failures = collections.Counter(), 0
    with folder(full) as root:
        calls = Sandbox(root, act.linked).calls(act.script)
    for number, call in enumerate(calls, 1):
        for fault in faults_of(act, number, full):
            try:
                outcomes[attempt(act, number, fault, full)] += 1
            except AssertionError as error:
                failures += 1
                print(f"{name}: call {number}, {call}, {fault}: {error}")
    parts = ", ".join(f"{count} {outcome}" for outcome, count in outcomes.most_common())
    print(f"{name}: {len(calls)} calls, {sum(outcomes.values()) + failures} faults: {parts}; "
          f"{failures} failures")
    return failures


if __name__ == "__main__":
    SHIM, TOOL, *rest = sys.argv[1:]
    chosen = [name for name in rest if name != "--full"] or list(ACTS)
    sys.exit(any([run(name, "--full" in rest) for name in chosen]))
