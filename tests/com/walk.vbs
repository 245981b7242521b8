' Walks through a history as a script can that knows the type library alone.
Option Explicit
Const kAllStates = 0
Const kByProcess = 4

Dim viewer, width, flag, key, keys, message

Sub PrintTree
  Dim root
  For Each root In viewer.NodeKeys
    WScript.Echo "  " & root & " " & viewer.NodeText(root)
    PrintKeys root, "    "
  Next
End Sub

Sub PrintKeys(parent, indent)
  Dim child
  For Each child In viewer.NodeKeys(parent)
    WScript.Echo indent & child
    PrintKeys child, indent & "  "
  Next
End Sub

' What depends on the clock, and on how the machine's owner likes dates, is left out.
Function IsFixed(column)
  Select Case viewer.ColumnCaption(column)
    Case "", "Start", "End", "Duration"
      IsFixed = False
    Case Else
      IsFixed = True
  End Select
End Function

Sub PrintList
  Dim line, column, row
  line = viewer.ListItems.Count & " rows"
  For column = 1 To 20
    If viewer.ColumnCaption(column) <> "" Then line = line & "|" & viewer.ColumnCaption(column)
  Next
  WScript.Echo line
  For Each row In viewer.ListItems
    line = "  " & row.Index & " " & row.SmallIcon & " " & row.Key
    If row.Selected Then line = line & " selected"
    If IsFixed(1) Then line = line & " " & row.Text
    For column = 2 To 20
      If IsFixed(column) Then line = line & "|" & row.SubItems(column - 1)
    Next
    WScript.Echo line
  Next
End Sub

Set viewer = CreateObject("Quorvel.ucProcessLog")
viewer.p_Connect = viewer.OpenHistory("sqlite:" & WScript.Arguments(0))
viewer.p_FromType = kByProcess
viewer.m_GetLogByProcess
WScript.Echo "Processes"
For Each key In viewer.NodeKeys
  viewer.ExpandNode key
Next
PrintTree

keys = viewer.NodeKeys
viewer.ClickNode keys(1)
viewer.SelectRow 2
PrintList
WScript.Echo "Selected " & viewer.SelectedItem.Index & ", of " & viewer.p_ListCount
viewer.m_MenuCall 12
viewer.m_Copy
PrintList
key = viewer.ListItems(1).Key
WScript.Echo "Row of the key " & key & ": " & viewer.ListItems(key).Index

viewer.m_GetLogAll kAllStates
WScript.Echo "All"
PrintTree

viewer.SelectTab "Connections"
WScript.Echo "Connections"
keys = viewer.NodeKeys
viewer.tvMotherList_ExpandCommunications keys(0)
PrintTree
viewer.ClickNode keys(0)
PrintList

viewer.p_FromType = 6
viewer.m_GetLogByAlarms
WScript.Echo "Alarms"
PrintTree

width = 800
viewer.SizeControls width
flag = True
viewer.m_GetMenuState flag, flag, flag, flag, flag, flag, flag, flag, flag, flag, flag, flag, flag
WScript.Echo "Width " & width & ", menu " & CInt(flag)

On Error Resume Next
viewer.p_Connect = 77
viewer.m_GetLogByUser True
message = Split(Err.Source, vbCrLf)
WScript.Echo "Error " & Err.Number & " of " & message(0) & ": " & Err.Description
Err.Clear
viewer.ExpandNode "none"
WScript.Echo "Error " & Err.Number & ": " & Err.Description
