// A host in JScript.   usage: host.js TYPIST
// Run as code page 1252. The last line printed is PASS.
var failures = 0;

function expect(what, holds) {
  if (holds) return;
  failures++;
  WScript.Echo("FAIL " + what);
}

function numberOf(act) {
  try {
    act();
  } catch (error) {
    return error.number & 0xFFFF;
  }
  return 0;
}

var note = new ActiveXObject("Lumenote.CoBxRtf");
note.pSScléReg = "Essai";
note.pTitreFenêtre = "Été";
note.pStrOrchm = "Forêt";
expect("an empty colour", numberOf(function () { note.ShowMicroEdit(); }) == 13);
note.pCouleurFen = 255;
note.ShowMicroEdit();
expect("the note", note.pStrOrchm == "Forêt");
note.ShowMicroEdit("0");
expect("the note again", note.pStrOrchm == "Forêt");
note.pTitreFenêtre = "Attente JScript";
note.pStrOrchm = "note";
new ActiveXObject("WScript.Shell").Run('"' + WScript.Arguments(0) + '" "Attente JScript" "Forêt, "');
note.ShowMicroEdit(1);
expect("what was typed", note.pStrOrchm == "Forêt, note");
expect("a refused read", numberOf(function () { return note.pSScléReg; }) != 0);
expect("text", typeof note.pStrOrchm == "string");
if (failures == 0) WScript.Echo("PASS");
