' Shows the wizard and prints the judgments. The class is bound late, by its name alone.
'   cscript hospitals.vbs [MODEL.kst]
' The model is ..\hospitals.kst unless one is given.
Option Explicit

' region wizard
Dim Dea, Done, KestaDir, Folder, Model
Done = False

Folder = Left(WScript.ScriptFullName, InStrRev(WScript.ScriptFullName, "\"))
Model = Folder & "..\hospitals.kst"
If WScript.Arguments.Count > 0 Then Model = WScript.Arguments(0)

' The events call the procedures below whose names begin with Dea_.
Set Dea = WScript.CreateObject("Tarnwise_DEA.TRN_DEA", "Dea_")

KestaDir = Folder
Dea.GetCurFileData KestaDir, 1, Model

' Elements 0 to 30: as many as a model can have attributes.
Dim AX(30), AY(30), BX(30), BY(30), AOrientation(30), ALX(30), ALY(30), AUX(30), AUY(30)
Dea.TranferABCoordinates AX, AY, BX, BY, AOrientation, ALX, ALY, AUX, AUY

Dea.ShowTarnwise
Do Until Done
  WScript.Sleep 50
Loop
Set Dea = Nothing
' end region

' region events
Sub Dea_SendMasseges(Msg)
  WScript.Echo Msg
End Sub

Sub Dea_ExportDirectBW(RJType, BRefAttID, CRefAttID, RefAttWR, Weights, WeightsH, WeightsL)
  Dim j
  WScript.Echo RJType & ", references " & BRefAttID & " and " & CRefAttID & ", their ratio " & RefAttWR
  For j = 0 To UBound(Weights)
    WScript.Echo "attribute " & j & ": " & WeightsL(j) & " <= " & Weights(j) & " <= " & WeightsH(j)
  Next
End Sub

' After trade-offs only: what to hand over by TranferABCoordinates next time. AOrientation is what came in; the user's
' lines come back by 1 where ALX(j) and AUX(j) differ, else 2 where ALY(j) and AUY(j) do, else 0.
Sub Dea_ExportABScores(AX, AY, BX, BY, AOrientation, ALX, ALY, AUX, AUY)
  Dim j
  For j = 0 To UBound(AX)
    WScript.Echo "attribute " & j & ": A " & AX(j) & ", " & AY(j) & "; B " & BX(j) & ", " & BY(j)
  Next
End Sub

Sub Dea_UnloadTarnwise(fIndex, WeightsDone)
  If WeightsDone Then
    WScript.Echo "judged"
  Else
    WScript.Echo "cancelled"
  End If
  Dea.UnloadTarnwise
  Done = True
End Sub
' end region
