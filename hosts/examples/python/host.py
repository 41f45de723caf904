#!/usr/bin/env python3
"""A host in Python: edits the note on its standard input and prints what becomes of it."""
import ctypes
import sys

lumenote = ctypes.CDLL("liblumenote-qt.so.0")
lumenote.lumenote_create.restype = ctypes.c_void_p
lumenote.lumenote_get.restype = ctypes.c_char_p
for name in ("set", "get", "show", "destroy"):
    getattr(lumenote, f"lumenote_{name}").argtypes = [
        ctypes.c_void_p, *{"set": [ctypes.c_char_p] * 2, "get": [ctypes.c_char_p],
                           "show": [ctypes.c_int]}.get(name, [])]

control = lumenote.lumenote_create()
for name, value in {"pTitreFenêtre": "Orchis purpurea Huds.", "pTitreCadre": "Remarques",
                    "pCouleurFen": "14737632", "NoteText": sys.stdin.read()}.items():
    lumenote.lumenote_set(control, name.encode(), value.encode())
if lumenote.lumenote_show(control, 1):  # until its user closes it
    sys.exit("the editor cannot be opened")
print(lumenote.lumenote_get(control, b"pStrOrchm").decode())
lumenote.lumenote_destroy(control)
