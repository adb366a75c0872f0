' A model made by the public members alone, with what a file can hold, saved to the file of argument 2.
Option Explicit
Dim model, root, cell, entry, i
Set model = CreateFromFile(Argument(1), "KOBModeleTraduction")
Set root = model.Racine
Set cell = root.AddNoeuds("Fenêtre \ un", 0, "Ж 漢")
cell.TypeFeuille = 2
cell.m_left = -1
cell.m_width = 1
cell.ChangeLeft 1.5, 2
cell.ChangeWidth 1 / 3, 6
For i = 1 To 3
  Set entry = CreateFromFile(Argument(1), "KOBTraductionObj")
  entry.nom = "Entrée " & i
  entry.ChangeTraduction "texte " & i & vbCrLf & "€ Ω", i
  cell.ColTraduction.Add entry
Next
cell.AddMessage "Titre", "Bonjour"
cell.AddNoeuds("Vide").AddNoeuds "Profond"
root.AddMessage "a", ""
AssertEqual True, model.Save(Argument(2))
AssertEqual "", Boxes()
