// A model saved, loaded by another one and enumerated, from JScript. The argument is the file.
function check(what, expected, seen) {
  if (expected !== seen) {
    WScript.Echo(what + ": expected " + expected + ", seen " + seen);
    WScript.Quit(1);
  }
}

var file = WScript.Arguments.Item(0);
var model = new ActiveXObject("KOBTraduction.KOBModeleTraduction");
var messages = model.Racine.AddNoeuds("Messages");
messages.AddMessage("Un", "\u00C9t\u00E9 \u0416 \u6F22");
messages.AddMessage("Deux", "autre");
check("saved", true, model.Save(file));
check("the file's name", "", model.Fichier);

var other = new ActiveXObject("KOBTraduction.KOBModeleTraduction");
check("loaded", true, other.Load(file));
check("the loaded file's name", file, other.Fichier);
check("text", "\u00C9t\u00E9 \u0416 \u6F22", other.GetTraduction("messages\\un", 1));
var names = "";
for (var all = new Enumerator(other.GetCell("Messages").ColCell); !all.atEnd(); all.moveNext()) {
  names += all.item().nom + " ";
}
check("cells", "Deux Un ", names);

var form = { Name: "Fiche", Caption: "Accueil", tag: "", width: 10, Controls: [] };
var label = { Name: "Label1", Caption: "Nom", tag: "", left: 1, width: 10, Container: form };
var controls = function (i) { return [label][i - 1]; };
controls.Count = 1;
controls.Item = controls;
form.Controls = controls;
other.UpdateWithForm(form);
other.UpdateTestLangue(4);
other.TraduitDialog(form, 4);
check("caption", "** Nom **", label.Caption);
check("form", "** Accueil **", form.Caption);
WScript.Echo("FIN");
