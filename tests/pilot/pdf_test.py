#!/usr/bin/env python3
"""Notes laid out on pages as PDF files, read by another program.   usage: pdf_test.py MICROEDIT"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

MICROEDIT = os.path.abspath(sys.argv.pop(1))
SKIPPED = 77
HEAD = r"{\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}{\colortbl;\red255\green0\blue0;}\f0\fs24 "
PICTURE = (r"{\pict\dibitmap0\picw2\pich2\picwgoal20000\pichgoal60000 "
           "280000000200000002000000010018000000000010000000000000000000000000000000000000000000ff"
           "0000ff00000000ff0000ff0000}")


class Pdf(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)
        self.env = {"HOME": str(self.folder), "XDG_RUNTIME_DIR": str(self.folder),
                    "PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8"}
        self.folder.chmod(0o700)

    def run_it(self, *command, status=0):
        done = subprocess.run(command, capture_output=True, timeout=100, cwd=self.folder,
                              env=self.env)
        self.assertEqual(done.returncode, status, (command, done.stderr))
        if status:
            self.assertRegex(done.stderr, rb"\Amicroedit : .*\n\Z")
        return done.stdout.decode("utf-8", "replace")

    def pdf(self, rtf, *options):
        """Makes `a.pdf` of a note."""
        (self.folder / "a.rtf").write_bytes(rtf.encode("latin-1"))
        self.run_it(MICROEDIT, "--pdf", "a.pdf", *options, "a.rtf")

    def info(self, name):
        return re.search(rf"^{name}: *(.*)$", self.run_it("pdfinfo", "a.pdf"), re.M)[1]

    def pages(self):
        """Their words; the reader joins what narrow blanks part."""
        text = self.run_it("pdftotext", "-layout", "a.pdf", "-").split("\f")
        return [" ".join(page.replace("/", " / ").split()) for page in text[:-1]]

    def pixels(self, page=1):
        self.run_it("pdftoppm", "-r", "36", "-f", str(page), "-singlefile", "a.pdf", "page")
        file = (self.folder / "page.ppm").read_bytes()
        size = re.match(rb"P6\s(\d+) (\d+)\s255\s", file)
        body = file[size.end():]
        return [body[i:i + 3] for i in range(0, len(body), 3)]

    def test_the_text_of_each_page_and_its_number(self):
        lines = r"\par ".join(f"ligne {i} \\'e9t\\'e9" for i in range(200))
        self.pdf(HEAD + lines + "}", "--title", "Été")
        self.assertEqual(self.info("Title"), "Été")
        pages = self.pages()
        self.assertGreater(len(pages), 3)
        self.assertEqual(re.findall(r"ligne (\d+) été", " ".join(pages)), [str(i) for i in range(200)])
        for number, page in enumerate(pages, 1):
            self.assertTrue(page.endswith(f" {number} / {len(pages)}"), page)

    def test_paper_tables_footnotes_pictures(self):
        note = (r"\paperw8391\paperh11906\margl567\margr567 un{\super\chftn{\footnote\chftn  l\'e0-bas}}"
                r"\par\trowd\cellx2000\cellx4000\intbl Quercus\cell robur\cell\row\pard\cf1 rouge\page "
                + PICTURE + "}")
        self.pdf(HEAD + note)
        self.assertRegex(self.info("Page size"), r"^420 x 595 pts")
        self.assertEqual(self.info("Title"), "a")
        pages = self.pages()
        self.assertEqual(len(pages), 3, "a picture taller than the page is fitted into one")
        self.assertEqual(pages[0], "un1 Quercus robur rouge 1 / 3")
        self.assertEqual(pages[2], "1. là-bas 3 / 3")
        red = [pixel for pixel in self.pixels(page=2) if pixel[0] > 250 and max(pixel[1:]) < 5]
        self.assertGreater(len(red), 50 * 200)
        dark = [i // 210 for i, pixel in enumerate(self.pixels(page=3)) if pixel[0] < 250]
        self.assertLess(max(dark, key=dark.count), 28, "the rule is above the text")

    def test_what_stands_for_a_picture_is_not_text_and_its_dots_are_kept(self):
        self.pdf(HEAD + "avant " + PICTURE + r"apr\'e8s {\v secret}fin}")
        self.assertEqual(self.pages()[0], "avant après fin 1 / 1")
        image = self.run_it("pdfimages", "-list", "a.pdf").splitlines()[2].split()
        self.assertEqual((image[3:5], image[8]), (["2", "2"], "image"), "without losses")

    def test_what_heads_a_table_is_on_each_page(self):
        row = r"\trowd%s\clbrdrt\brdrs\brdrw60\cellx4000\pard\intbl %s\cell\row "
        self.pdf(HEAD + row % (r"\trhdr", "esp\\'e8ce") + "".join(
            row % ("", f"Carex {i}") for i in range(150)) + "}")
        pages = self.pages()
        self.assertGreater(len(pages), 2)
        self.assertTrue(all(page.startswith("espèce Carex") for page in pages), pages)
        self.assertEqual(re.findall(r"Carex (\d+)", " ".join(pages)), [str(i) for i in range(150)])

    def test_a_table_wider_than_the_paper_is_all_there(self):
        self.pdf(HEAD + r"\trowd\cellx9000\cellx18000\cellx27000\intbl un\cell deux\cell trois\cell\row}")
        self.assertEqual(self.pages(), ["un deux trois 1 / 1"])

    def test_links_can_be_followed(self):
        link = r'{\field{\*\fldinst HYPERLINK "%s"}{\fldrslt %s}} '
        links = {r"https://a.example/\'e9)(b?c=d%26#e": r"page {\i enti\'e8re}",
                 "mailto:a@b.example": "lettre", "cmd:calc": "commande", "/bin/sh": "programme",
                 "http://[": "vide", "autre.rtf": "voisine"}
        self.pdf(HEAD + "".join(link % pair for pair in links.items()) + "}")
        found = re.findall(rb"/URI \((.*)\)\n", (self.folder / "a.pdf").read_bytes())
        self.assertEqual(sorted(set(found)),
                         [b"https://a.example/%C3%A9%29%28b?c=d%26#e", b"mailto:a@b.example"])

    def test_a_text_and_damaged_notes(self):
        (self.folder / "t.txt").write_text("œuf\nfin", encoding="utf-8")
        self.run_it(MICROEDIT, "--pdf", "a.pdf", "t.txt")
        self.assertEqual(self.pages(), ["œuf fin 1 / 1"])
        for rtf in ("", r"\paperw-1\paperh0\margl99999999 x}}}{{", r"\trowd\cellx-9\cell\row\row x",
                    r"\sl-31680\fs9999 x\page\page\page", r"{\pict\pngblip 00} x"):
            self.pdf(HEAD + rtf)
            self.assertTrue(self.pages()[-1].endswith(f"/ {self.info('Pages')}"), rtf)

    def test_what_cannot_be_written_leaves_everything_alone(self):
        self.pdf(HEAD + "a}")
        old = (self.folder / "a.pdf").read_bytes()
        self.run_it(MICROEDIT, "--pdf", "a.pdf", "absent.rtf", status=1)
        (self.folder / "b.rtf").write_text("b")
        self.run_it(MICROEDIT, "--pdf", "a.pdf", "b.rtf", status=1)
        self.run_it(MICROEDIT, "--pdf", "nowhere/a.pdf", "a.rtf", status=1)
        self.run_it(MICROEDIT, "--pdf", "a.rtf", "a.rtf", status=2)
        self.run_it(MICROEDIT, "--pdf", "a.pdf", status=2)
        (self.folder / "a.pdf").chmod(0o444)
        self.run_it(MICROEDIT, "--pdf", "a.pdf", "a.rtf", status=1)
        self.assertEqual((self.folder / "a.pdf").read_bytes(), old)


if __name__ == "__main__":
    if not shutil.which("pdftotext"):
        sys.exit(SKIPPED)
    unittest.main()
