// SPDX-FileCopyrightText: The KOBTraduction authors
#include "Benches.h"
#include "Contest.h"
#include "RecordedCalls.h"

#include <tests/automation/hosts/scripting/LibraryClass.h>
#include <tests/automation/hosts/scripting/ScriptEngine.h>

#include <cstdio>

namespace kob::bench {

namespace {

using hosts::ComPtr;
using hosts::Variant;

/// A form of script objects, ten controls to a frame, with captions and tool tips of about 23 characters.
constexpr const char16_t* script =
    uR"script(
Class Control
  Public Name
  Public Index
  Public Container
  Public Tag
  Public Caption
  Public ToolTipText
  Public Left
  Public Width
  Public Visible
End Class

Class List
  Dim Items(20000)
  Public Count
  Public Default Property Get Item(i)
    Set Item = Items(i)
  End Property
  Public Sub Add(x)
    Count = Count + 1
    Set Items(Count) = x
  End Sub
End Class

Class Form
  Public Name
  Public Caption
  Public Tag
  Public Width
  Public Controls
  Dim Captions(20000)
  Dim Tips(20000)

  Private Function NewControl(name, index, container, caption, tip)
    Dim c
    Set c = New Control
    c.Name = name
    c.Index = index
    Set c.Container = container
    c.Tag = ""
    c.Caption = caption
    c.ToolTipText = tip
    c.Left = 120
    c.Width = 900
    c.Visible = True
    Controls.Add c
    Set NewControl = c
  End Function

  Public Sub Fill(n)
    Dim i, frame
    Name = "Form"
    Caption = "Commande"
    Tag = ""
    Width = 9000
    Set Controls = New List
    Controls.Count = 0
    For i = 0 To n - 1
      If i Mod 10 = 0 Then
        Set frame = NewControl("Frame", i \ 10, Me, "Groupe de commandes " & i, "")
      Else
        NewControl "Button" & i, -1, frame, "Valider la commande " & i, "Envoyer la commande " & i
      End If
    Next
  End Sub

  ' What a script writes that has its texts in arrays.
  Public Sub Keep()
    Dim i
    For i = 1 To Controls.Count
      Captions(i) = "-- " & Controls.Item(i).Caption
      Tips(i) = Controls.Item(i).ToolTipText
    Next
  End Sub
  Public Sub SetAll()
    Dim i, c
    For i = 1 To Controls.Count
      Set c = Controls.Item(i)
      c.Caption = Captions(i)
      c.ToolTipText = Tips(i)
    Next
  End Sub
  Public Function Wrong(start)
    Dim i
    Wrong = 0
    For i = 1 To Controls.Count
      If Left(Controls.Item(i).Caption, 3) <> start Then Wrong = Wrong + 1
    Next
  End Function
End Class

Dim f
Set f = New Form
)script";

void translate(IDispatch* model, IDispatch* form, std::int32_t language) {
  hosts::call(model, u"TraduitDialog", {Variant(form), Variant(language)});
}

/// Ends the run when a caption does not begin as it has to.
void mustBegin(IDispatch* form, TextView start) {
  if (hosts::call(form, u"Wrong", {Variant(start)}).number() != 0) {
    throw hosts::ComError{E_FAIL, E_FAIL, u"a caption is wrong"};
  }
}

}  // namespace

void benchDialog(const std::wstring& server, int controls, int rounds) {
  const ComPtr<IDispatch> model = hosts::createFromFile(server, u"KOBModeleTraduction");
  hosts::ScriptEngine engine(hosts::ScriptLanguage::VBScript);
  if (const auto error = engine.run(script)) {
    throw hosts::ComError{E_FAIL, error->number, error->message(u"script")};
  }
  const ComPtr<IDispatch> form = engine.variable(u"f").object();
  hosts::call(form.get(), u"Fill", {Variant(std::int32_t{controls})});
  hosts::call(model.get(), u"UpdateWithForm", {Variant(form.get())});
  hosts::call(model.get(), u"UpdateTestLangue", {Variant(std::int32_t{2})});

  // Everybody writes texts of his own, so that every text changes every time.
  RecordedCalls calls;
  translate(model.get(), form.get(), 2);
  mustBegin(form.get(), u"** ");
  translate(model.get(), calls.stand(form.get()).get(), 1);
  hosts::call(form.get(), u"Keep");
  hosts::call(form.get(), u"SetAll");
  mustBegin(form.get(), u"-- ");
  calls.replay();
  if (hosts::call(form.get(), u"Wrong", {Variant(u"-- ")}).number() != controls) {
    throw hosts::ComError{E_FAIL, E_FAIL, u"the list of calls does not do what the call did"};
  }

  const std::string job = "TraduitDialog on " + std::to_string(controls) + " controls of VBScript (" +
                          std::to_string(calls.count()) + " calls of the host), for one control";
  compete(job, controls, rounds,
          {{"TraduitDialog", [&] { translate(model.get(), form.get(), 2); }},
           {"a loop of the script, texts in arrays", [&] { hosts::call(form.get(), u"SetAll"); }},
           {"the same calls of the host, from a list", [&] { calls.replay(); }}});
}

}  // namespace kob::bench
