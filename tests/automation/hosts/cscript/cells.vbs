' The members of the three classes, their collections and their errors.
Option Explicit

Sub Check(what, expected, seen)
  If expected <> seen Then
    WScript.Echo what & ": expected " & expected & ", seen " & seen
    WScript.Quit 1
  End If
End Sub

Dim model, root, cell, code, entry, names, item, number
Set model = CreateObject("KOBTraduction.KOBModeleTraduction")
Set root = model.Racine
Check "root", "RACINE", root.nom
Check "the root again", True, root Is model.Racine

code = 0
root.AddNoeuds "b", code
root.AddNoeuds "C", code, "Third"
root.AddNoeuds "a"
Check "no refusal", 0, code
Check "refused", True, root.AddNoeuds("B", code) Is Nothing
Check "refusal", -2, code
names = ""
For Each cell In root.ColCell
  names = names & cell.nom & "/" & cell.Alias & " "
Next
Check "in order", "a/a b/b C/Third ", names
Check "count", 3, root.ColCell.Count
Check "default member", "C", root.ColCell(3).nom
Check "parent", True, root.ColCell(3).parentcell Is root

Set cell = root.ColCell(1).AddMessage("Titre", "Hello")
Check "message", 1, cell.TypeFeuille
Check "text", "Hello", model.GetTraduction("a\Titre", 3)
cell.Traduction.ChangeTraduction "Bonjour", 3
Check "translated", "Bonjour", model.GetTraduction("\a\\titre\", 3)

On Error Resume Next
item = model.GetTraduction("a\Titre", 99)
number = Err.Number
Err.Clear
Check "no such language", 9, number
Set item = root.ColCell(4)
number = Err.Number
Err.Clear
Check "no such cell", 9, number
cell.ChangeWidth 1.5, 1
number = Err.Number
Err.Clear
Check "no control cell", 91, number
cell.NoSuchMember = 1
number = Err.Number
Err.Clear
Check "no such member", 438, number
On Error GoTo 0

cell.TypeFeuille = 2
Check "factors", 6, cell.ColWidth.Count
cell.ChangeWidth 1.5, 3
Check "factor", 1.5, cell.ColWidth(3)
Set entry = CreateObject("KOBTraduction.KOBTraductionObj")
entry.nom = "Caption"
entry.ChangeTraduction "Texte", 1
cell.ColTraduction.Add entry
Check "the same entry", True, cell.ColTraduction(1) Is entry

Set cell = CreateObject("KOBTraduction.KOBCellTraduction")
cell.nom = "own"
root.ColCell.Add cell, 1
Check "in front", "own", root.ColCell(1).nom
root.ColCell.Remove 1
Check "gone", "a", root.ColCell(1).nom
WScript.Echo "FIN"
