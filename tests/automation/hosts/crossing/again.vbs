' Loads each file of the folder of argument 2 and saves it in that of argument 3; the names are in the file of argument 4.
Option Explicit
Dim name, model
For Each name In Split(ReadText(Argument(4)), vbLf)
  If name <> "" Then
    Set model = CreateFromFile(Argument(1), "KOBModeleTraduction")
    AssertEqual True, model.Load(Argument(2) & "\" & name), name
    AssertEqual True, model.Save(Argument(3) & "\" & name), name
    Print name
  End If
Next
AssertEqual "", Boxes()
