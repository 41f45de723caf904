#!/usr/bin/env python3
"""The tool's commands on files and streams.   usage: tool_test.py LUMENOTE"""
import os
import pathlib
import stat
import subprocess
import sys
import tempfile
import unittest

TOOL = os.path.abspath(sys.argv.pop(1))
RTF = rb"{\rtf1\ansi{\fonttbl{\f0 Arial;}}\f0 caf\'e9 \b gras\b0\line z\par fin}"


class Tool(unittest.TestCase):
    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.temporary.name)

    def tearDown(self):
        self.temporary.cleanup()

    def run_tool(self, *arguments, data=b"", status=0, errors=1):
        done = subprocess.run([TOOL, *arguments], input=data, capture_output=True, timeout=60,
                              cwd=self.folder)
        self.assertEqual(done.returncode, status, (arguments, done.stderr))
        if status:
            self.assertEqual(done.stderr.count(b"\n"), errors, done.stderr)
        self.said = done.stderr.decode()
        return done.stdout

    def write(self, name, data=b"texte"):
        (self.folder / name).write_bytes(data)

    def read(self, name):
        return (self.folder / name).read_bytes()

    def test_text(self):
        for name, data, text in [
            ("a.rtf", RTF, "café gras\nz\nfin\n"),
            ("b.txt", "l'été\r\n€\n".encode("cp1252"), "l'été\n€\n"),
            ("d.txt", b"\xef\xbb\xbf" + "Ωé".encode(), "Ωé\n"),
            ("g.txt", RTF[:12], RTF[:12].decode() + "\n"),
            ("h.note", RTF, "café gras\nz\nfin\n"),
            ("i.rtf", RTF[:-9], "café gras\nz\n"),
            ("j.htm", "<title>x</title><p>é<p>b".encode("cp1252"), "é\nb\n"),
        ]:
            self.write(name, data)
            self.assertEqual(self.run_tool("text", name).decode(), text, name)
        self.assertEqual(self.run_tool("text", "-", data=RTF).decode(), "café gras\nz\nfin\n")

    def test_convert(self):
        self.write("a.rtf", RTF)
        self.run_tool("convert", "a.rtf", "b.txt")
        self.assertEqual(self.read("b.txt"), "café gras\vz\r\nfin".encode("cp1252"))
        self.run_tool("convert", "b.txt", "c.rtf")
        self.assertEqual(self.run_tool("text", "c.rtf").decode(), "café gras\nz\nfin\n")
        self.run_tool("convert", "c.rtf", "d.rtf")
        self.assertEqual(self.read("c.rtf"), self.read("d.rtf"))
        self.run_tool("convert", "a.rtf", "d.html")
        self.assertIn("<b>gras</b>".encode(), self.read("d.html"))
        self.run_tool("convert", "d.html", "d2.rtf")
        self.run_tool("convert", "d2.rtf", "d2.HTM")
        self.assertEqual(self.read("d.html"), self.read("d2.HTM"))
        self.assertEqual(self.run_tool("convert", "--to=html", "d.html", "-"), self.read("d.html"))
        self.assertEqual(self.run_tool("convert", "a.rtf", "-"), self.read("b.txt"))
        self.assertEqual(self.run_tool("convert", "-", "-", data=b"x")[:6], b"{\\rtf1")
        self.run_tool("convert", "--to=txt", "a.rtf", "e.note")
        self.assertEqual(self.read("e.note"), self.read("b.txt"))
        self.assertEqual(self.run_tool("convert", "--to", "txt", "-", "-", data=b"{\\rtf1 \\u937?}"),
                         "\ufeffΩ".encode())

    def test_convert_into_a_folder(self):
        (self.folder / "notes/sous.2").mkdir(parents=True)
        for name in ("notes/a.rtf", "notes/sous.2/a.RTF", "b.rtf"):
            self.write(name, RTF)
        self.write("notes/c.html", b"<p>un")
        self.write("notes/sans", b"deux")
        self.run_tool("convert", "--to", "html", "b.rtf", "notes", "notes/sans", "web/tout")
        web = self.folder / "web/tout"
        self.assertEqual(sorted(str(path.relative_to(web)) for path in web.rglob("*.*")),
                         ["a.html", "b.html", "sans.html", "sous.2", "sous.2/a.html"])
        self.assertIn("notes : 4 ; converties : 4 ; refusées : 0", self.said)
        self.assertEqual((web / "sous.2/a.html").read_bytes(),
                         self.run_tool("convert", "--to", "html", "b.rtf", "-"))
        # Results of before are replaced, notes and other notes' results are not.
        self.write("web/tout/b.html", b"avant")
        self.run_tool("convert", "--to=html", "b.rtf", "notes/a.rtf", "notes/sous.2/a.RTF",
                      "web/tout", status=1, errors=2)
        self.assertIn("notes : 3 ; converties : 2 ; refusées : 1", self.said)
        self.assertIn(b"gras", self.read("web/tout/b.html"))
        self.write("notes/a.html", b"<p>une note")
        self.run_tool("convert", "--to=html", "notes", "notes", status=1, errors=2)
        self.assertEqual(self.read("notes/a.html"), b"<p>une note")
        self.assertIn(b"gras", self.read("notes/sous.2/a.html"))
        self.run_tool("convert", "--to=txt", "notes", "b.rtf", status=1, errors=6)
        # Tried first, or with what is replaced kept.
        def files():
            return {path: path.read_bytes() for path in self.folder.rglob("*.*") if path.is_file()}
        self.write("web/tout/b.html", b"avant")
        before = files()
        self.assertEqual(self.run_tool("convert", "--to=html", "--dry-run", "b.rtf", "notes/a.rtf",
                                       "notes", "web/tout", status=1, errors=2),
                         b"b.rtf\tweb/tout/b.html\tremplac\xc3\xa9e\n"
                         b"notes/a.rtf\tweb/tout/a.html\tremplac\xc3\xa9e\n"
                         b"notes/sous.2/a.RTF\tweb/tout/sous.2/a.html\tremplac\xc3\xa9e\n")
        self.assertIn("notes : 4 ; à convertir : 3 ; refusées : 1", self.said)
        self.assertEqual(self.run_tool("convert", "--dry-run", "b.rtf", "c.txt"), b"b.rtf\tc.txt\n")
        self.run_tool("convert", "--to=html", "--dry-run", "notes", "ailleurs")
        self.assertEqual(files(), before)
        self.run_tool("convert", "--backup", "b.rtf", "web/tout/b.html")
        self.run_tool("convert", "--backup", "--to=txt", "b.rtf", "web")
        self.assertEqual(self.read("web/tout/b.html~"), b"avant")
        self.assertEqual(sorted(os.listdir(self.folder / "web")), ["b.txt", "tout"])

    def test_convert_replaces_no_note(self):
        for folder in ("un", "deux", "vrai"):
            (self.folder / folder).mkdir()
        for name, data in (("un/a.txt", b"autre"), ("un/c.rtf", RTF), ("deux/a.rtf", RTF),
                           ("deux/d.rtf", RTF), ("un/voisin.html", b"<p>voisin")):
            self.write(name, data)
        (self.folder / "lien").symlink_to("vrai")
        (self.folder / "vrai/d.html").symlink_to("c.html")  # one file by two names
        (self.folder / "vrai/voisin.html").symlink_to("../un/voisin.html")
        self.write("un/voisin.rtf", RTF)
        for operands, errors in ((("rtf", "un/a.txt", "deux/a.rtf", "deux"), 3),
                                 (("html", "un/c.rtf", "deux/d.rtf", "lien"), 2),
                                 (("html", "un/voisin.rtf", "lien"), 2)):
            self.run_tool("convert", "--to", *operands, status=1, errors=errors)
        self.assertEqual(self.read("un/voisin.html"), b"<p>voisin")
        self.run_tool("convert", "--to=html", "deux/a.rtf", "deux/d.rtf", status=2)
        (self.folder / "deux/a.txt").symlink_to("a.rtf")
        self.run_tool("convert", "deux/a.rtf", "deux/a.txt", status=1)
        self.assertEqual([self.read("deux/" + name) for name in ("a.rtf", "d.rtf")], [RTF, RTF])
        self.run_tool("convert", "--to=txt", "deux/a.rtf", "neuf/")
        self.assertEqual(os.listdir(self.folder / "neuf"), ["a.txt"])
        self.assertIn(b"caf", self.run_tool("text", "lien"))

    def test_what_cannot_be_done(self):
        for name in ("faux.rtf", "a.txt", "garde.rtf"):
            self.write(name)
        for name, data, status in [("image", b"\x89PNG\r\n\0", 1), ("lisez-moi", b"texte", 0),
                                   ("large", "\ufefftexte".encode("utf-16-le"), 0)]:
            self.write(name, data)
            self.assertEqual(self.run_tool("text", name, status=status), b"" if status else b"texte\n")
            os.remove(self.folder / name)
        for arguments in [("text", "rien.rtf"), ("text", "faux.rtf"), ("text", "rien/."),
                          ("text", "nulle/part.txt"), ("convert", "a.txt", "nulle/part.rtf"),
                          ("convert", "faux.rtf", "b.txt"), ("convert", "a.txt", "./x.rtf/y.rtf")]:
            self.run_tool(*arguments, status=1)
        (self.folder / "garde.rtf").chmod(stat.S_IRUSR)
        self.run_tool("convert", "a.txt", "garde.rtf", status=1)
        self.assertEqual(self.read("garde.rtf"), b"texte")
        self.assertEqual(sorted(os.listdir(self.folder)), ["a.txt", "faux.rtf", "garde.rtf"])

    def test_clean(self):
        self.write("liste.txt", b"teh=:=the\r\nrn=:=m\r\nzz=:=z\n")
        for name in ("a.rtf", "b.rtf"):
            self.write(name, b"{\\rtf1 Teh rnot,teh;x}")
        before = self.read("a.rtf")
        self.assertEqual(self.run_tool("clean", "--dry-run", "--list", "liste.txt", "a.rtf"),
                         b"teh\tthe\t2\nrn\tm\t1\nzz\tz\t0\n")
        self.assertEqual(self.read("a.rtf"), before)
        self.run_tool("clean", "--list", "liste.txt", "a.rtf", "-o", "c.rtf")
        self.assertEqual(self.read("a.rtf"), before)
        self.assertEqual(self.run_tool("text", "c.rtf"), b"the mot, the ; x\n")
        self.write("faux.rtf")
        self.run_tool("clean", "--list=liste.txt", "a.rtf", "faux.rtf", "b.rtf", status=1,
                      errors=2)
        self.assertIn("notes : 3 ; changées : 2 ; inchangées : 0 ; refusées : 1\n", self.said)
        self.assertEqual([self.read(name) for name in ("a.rtf", "b.rtf", "faux.rtf")],
                         [self.read("c.rtf")] * 2 + [b"texte"])

    def test_folders(self):
        (self.folder / "notes/sous").mkdir(parents=True)
        (self.folder / "notes/boucle").symlink_to(".")
        self.write("notes/b.rtf", b"{\\rtf1 un,deux}")
        self.write("notes/sous/a.RTF", b"{\\rtf1 trois,quatre}")
        self.write("notes/sous/c.txt", b"cinq,six")
        self.write("notes/image.png", b"un")
        self.assertEqual(self.run_tool("text", "notes", "notes/b.rtf").decode(),
                         "==> notes/b.rtf <==\nun,deux\n==> notes/sous/a.RTF <==\ntrois,quatre\n"
                         "==> notes/sous/c.txt <==\ncinq,six\n==> notes/b.rtf <==\nun,deux\n")
        before = self.read("notes/b.rtf")
        self.run_tool("clean", "--dry-run", "notes")
        self.assertIn("notes : 2 ; à changer : 2 ; inchangées : 0 ; refusées : 0", self.said)
        self.assertEqual(self.read("notes/b.rtf"), before)
        self.run_tool("clean", "-o", "x.rtf", "notes", status=2)
        self.run_tool("clean", "--backup", "notes")
        self.assertEqual(self.read("notes/b.rtf~"), before)
        self.assertEqual(self.run_tool("text", "notes/sous/a.RTF"), b"trois, quatre\n")
        self.run_tool("clean", "--backup", "notes")
        self.assertIn("changées : 0 ; inchangées : 2", self.said)
        self.assertEqual(self.read("notes/b.rtf~"), before)

    def test_clean_leaves_what_it_cannot_clean(self):
        self.write("a.rtf", b"{\\rtf1 " + b"," * 30000 + b"}")
        self.write("liste.txt", b"a=:=b\n\n")
        before = self.read("a.rtf")
        for options in [(), ("--dry-run",), ("--list", "liste.txt"), ("--list", "rien.txt")]:
            self.assertEqual(self.run_tool("clean", *options, "a.rtf", status=1), b"")
            self.assertEqual(self.read("a.rtf"), before)
        self.run_tool("clean", "--list", "liste.txt", "a.rtf", status=1)
        self.assertRegex(self.said, r"^lumenote : liste\.txt : [^:]* : ligne 2\n$")

    def test_links(self):
        os.environ["LUMENOTE_DRIVE_C"] = str(self.folder / "c")
        self.addCleanup(os.environ.pop, "LUMENOTE_DRIVE_C")
        link = self.folder / "c/Program Files/Microsoft/Office11/WinWord.exe"
        self.run_tool("link", "winword", "/bin/cat")
        self.run_tool("link", "WINWORD", TOOL)
        self.assertEqual(os.readlink(link), TOOL)
        self.assertEqual(os.listdir(link.parent), ["WinWord.exe"])
        self.assertEqual(self.run_tool("links").decode().splitlines(),
                         ["Qjot\t-", "Atlantis\t-", "WinWord\t" + os.path.realpath(TOOL),
                          "ReadIris\t-", "FineReader\t-"])
        link.unlink()
        link.write_bytes(b"garde")
        for program in ("/bin/cat", "rien", "."):
            self.run_tool("link", "WinWord", program, status=1)
        self.assertEqual(link.read_bytes(), b"garde")

    def test_wrong_command_lines(self):
        self.write("a.txt")
        for arguments in [(), ("rien",), ("text",), ("help", "rien"), ("convert", "a.txt"),
                          ("convert", "a.txt", "b.doc"), ("convert", "--to", "doc", "a.txt", "-"),
                          ("convert", "a.txt", "."), ("convert", "--backup", "--dry-run", "a.txt", "b.rtf"),
                          ("convert", "--to", "rtf", "-", "."),
                          ("convert", "--to", "rtf", "a.txt", "a.txt", "-"),
                          ("text", "--rien", "a.txt"), ("pilot", "rien.pilot"), ("pilot", "--root"),
                          ("pilot", "--root", "a.txt"), ("pilot", "a", "b"), ("clean",),
                          ("clean", "-o", "c", "a", "b"), ("clean", "-o", "c", "--dry-run", "a"),
                          ("link", "Qjot"), ("link", "Rien", "/bin/cat"), ("links", "a")]:
            self.run_tool(*arguments, status=2)
        self.assertEqual(os.listdir(self.folder), ["a.txt"])
        for arguments in [("--help",), ("-h",), ("help",)]:
            self.assertIn(b"lumenote convert", self.run_tool(*arguments))
        for arguments in [("help", "clean"), ("clean", "--help"), ("clean", "a", "-h")]:
            help = self.run_tool(*arguments)
            self.assertTrue(b"lumenote clean" in help and b"lumenote text" not in help, help)
        self.assertRegex(self.run_tool("--version"), rb"^lumenote \d+\.\d+\.\d+\n$")

    @unittest.skipIf(os.name == "nt", "a folder cannot be opened")
    def test_an_input_that_cannot_be_read(self):
        folder = os.open(self.folder, os.O_RDONLY)
        done = subprocess.run([TOOL, "convert", "-", "-"], stdin=folder, capture_output=True)
        os.close(folder)
        self.assertEqual((done.returncode, done.stdout, done.stderr.count(b"\n")), (1, b"", 1))

    @unittest.skipUnless(os.path.exists("/dev/full"), "no full device here")
    def test_a_full_device(self):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([TOOL, "text", "-"], input=b"x", stdout=full,
                                  stderr=subprocess.PIPE)
        self.assertEqual((done.returncode, done.stderr.count(b"\n")), (1, 1))


if __name__ == "__main__":
    unittest.main()
