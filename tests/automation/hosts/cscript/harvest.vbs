' A form made of VBScript classes, harvested and shown in a test language.
Option Explicit

Class Control
  Public Name
  Public Index
  Public Container
  Public tag
  Public Caption
  Public ToolTipText
  Public left
  Public width
End Class

Class Form
  Public Name
  Public tag
  Public Caption
  Public width
  Public Controls
End Class

Class ControlList
  Dim items(3)
  Public Property Get Count
    Count = 3
  End Property
  Public Default Property Get Item(i)
    Set Item = items(i)
  End Property
  Public Sub Put(i, value)
    Set items(i) = value
  End Sub
End Class

Sub Check(what, expected, seen)
  If expected <> seen Then
    WScript.Echo what & ": expected " & expected & ", seen " & seen
    WScript.Quit 1
  End If
End Sub

Function NewControl(name, index, container, caption, tip, tag)
  Dim made
  Set made = New Control
  made.Name = name
  made.Index = index
  Set made.Container = container
  made.tag = tag
  made.Caption = caption
  made.ToolTipText = tip
  made.left = 120
  made.width = 1000
  Set NewControl = made
End Function

Dim frm, frame, ok, no, controls, model
Set frm = New Form
frm.Name = "FrmMain"
frm.Caption = "Main"
frm.tag = ""
frm.width = 6000
Set frame = NewControl("Frame1", -1, frm, "Frame", "", "")
Set ok = NewControl("cmdOk", 0, frame, "&OK", "Saves", "")
Set no = NewControl("cmdOk", 1, frame, "&No", "Does not", "[C]")
Set controls = New ControlList
controls.Put 1, frame
controls.Put 2, ok
controls.Put 3, no
Set frm.Controls = controls

Set model = CreateObject("KOBTraduction.KOBModeleTraduction")
Check "languages", 6, model.NbLangues
model.UpdateWithForm frm
Check "path", "\FrmMain\Frame1\cmdOk(1)", model.GetPath(no)
Check "cell", "cmdOk(0)", model.GetCell("frmmain\FRAME1\cmdok(0)").nom
Check "no cell", True, model.GetCell("FrmMain\Frame2") Is Nothing
Check "tool tip", "Saves", model.GetCell("FrmMain\Frame1\cmdOk(0)").ColTraduction(2).ColTraduction(1)

model.UpdateTestLangue 2
model.TraduitDialog frm, 2
Check "form", "** Main **", frm.Caption
Check "frame", "** Frame **", frame.Caption
Check "ok", "** &OK **", ok.Caption
Check "ok's tool tip", "** Saves **", ok.ToolTipText
Check "no", "** &No **", no.Caption
Check "no's tool tip", "Does not", no.ToolTipText
Check "no's tag", "[C]", no.tag
model.TraduitDialog frm, 1
Check "back", "&OK", ok.Caption
model.TraduitControle ok, 2
Check "one control", "** &OK **", ok.Caption
WScript.Echo "FIN"
