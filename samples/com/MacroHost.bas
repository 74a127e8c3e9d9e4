Attribute VB_Name = "MacroHost"
' Shows the wizard from a spreadsheet's macros and writes the judgments to the active sheet. The class is bound early:
' set a reference to "Tarnwise_DEA" first. Start RunTarnwise.
Option Explicit

' Lives between the macro, which ends at once, and the wizard's events.
Private mWizard As clsWizardEvents

Public Sub RunTarnwise()
    Dim Model As Variant
    Model = Application.GetOpenFilename("KESTA models (*.kst),*.kst")
    If VarType(Model) = vbBoolean Then Exit Sub
    Set mWizard = New clsWizardEvents
    mWizard.Start CStr(Model), ActiveSheet
End Sub
