' A host in VBScript: properties in any order, the editor shown, typed into and waited for, the note
' read back, errors caught.   usage: host.vbs TYPIST
' Run as code page 1252. The last line printed is PASS; cscript hides uncaught errors.
Option Explicit
Dim failures : failures = 0

Sub Expect(what, holds)
  If Not holds Then
    failures = failures + 1
    WScript.Echo "FAIL " & what
  End If
End Sub

Function Described(forwards)
  Dim made : Set made = CreateObject("Lumenote.CoBxRtf")
  If forwards Then
    made.pNomAppli = "Flore" : made.pChmAppli = "C:\hote\flore.exe" : made.pTitreFenêtre = "Été"
    made.pTitreCadre = "Cadre" : made.pCouleurFen = 255 : made.pSScléReg = "Essai"
    made.pAttribut = "" : made.pModelWord = "C:\modele.dot" : made.pStrOrchm = "Forêt"
  Else
    made.pStrOrchm = "Forêt" : made.pModelWord = "" : made.pAttribut = "ReadOnly"
    made.pSScléReg = "Essai" : made.pCouleurFen = "12632256" : made.pTitreCadre = ""
    made.pTitreFenêtre = "" : made.pChmAppli = "C:\flore.exe" : made.pNomAppli = "Flore"
  End If
  Set Described = made
End Function

Dim first, second
Set first = Described(True)
Set second = CreateObject("Lumenote.CoBxRtf.1")
second.pCouleurFen = "0"
second.pStrOrchm = "{\rtf1 Abies}"
first.ShowMicroEdit
second.ShowMicroEdit "0"
Expect "a note of text", first.pStrOrchm = "Forêt"
Expect "a note of RTF", InStr(second.pStrOrchm, "Abies") > 0
first.pStrOrchm = "de nouveau"
first.ShowMicroEdit 2
Expect "shown again", first.pStrOrchm = "de nouveau"
Set second = Described(False)
second.ShowMicroEdit
Expect "in the other order", second.pStrOrchm = "Forêt"

' A user of another program types meanwhile.
second.pAttribut = ""
second.pTitreFenêtre = "Attente VBScript"
second.pStrOrchm = "note"
CreateObject("WScript.Shell").Run """" & WScript.Arguments(0) & """ ""Attente VBScript"" ""Forêt, """
second.ShowMicroEdit 1
Expect "what was typed " & second.pStrOrchm, second.pStrOrchm = "Forêt, note"

Dim value
On Error Resume Next
second.pCouleurFen = "rouge"
second.ShowMicroEdit
Expect "type mismatch " & Err.Number, Err.Number = 13
Expect "its text", Err.Description = "Incompatibilité de type"
Expect "its source", Err.Source = "Lumenote.CoBxRtf.pCouleurFen"
Err.Clear
second.pCouleurFen = "4294967296"
second.ShowMicroEdit 1
Expect "overflow " & Err.Number, Err.Number = 6
Err.Clear
value = first.pTitreFenêtre
Expect "a refused read " & Err.Number, Err.Number = 438
Err.Clear
first.pInconnu = "x"
Expect "an unknown member " & Err.Number, Err.Number = 438
Err.Clear
first.ShowMicroEdit "un"
Expect "an argument that is no number " & Err.Number, Err.Number = 13
Err.Clear
On Error Goto 0

Set first = Nothing
Set second = Nothing
If failures = 0 Then WScript.Echo "PASS"
