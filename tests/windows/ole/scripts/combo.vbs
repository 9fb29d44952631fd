Dim field, names, name

On Error Resume Next

Set field = CreateObject("KelControls8.KelCombo")
field.ListFromArray Array("Bath", "Ely, Cambs", "say ""hi""")
Expect field.ListCount, CLng(3), "ListCount"
Expect field.ListItem(2), "Ely, Cambs", "ListItem"
Expect field.List, "Bath,""Ely, Cambs"",""say """"hi""""""", "List"
names = Array("York", 7)
field.ListFromArray names
Expect field.ListItem(2), "7", "ListItem from a variable"
Expect UBound(names), CLng(1), "the script's array"
field.ListFromArray "York"
ExpectError 13, "a string for an array"
Expect field.ListCount, CLng(2), "ListCount after the error"
Tested "script_combo_arrays"

Set field = CreateObject("KelControls8.KelCombo")
field.List = "a,b,""c,d"""
field.ListTag = "1,2,3"
field.Text = "b"
Expect field & "", "b", "the field itself"
Expect field.ListIndex, 2, "ListIndex"
Expect field.ListItem, "a", "ListItem without a number"
Expect field.ListTagItem, "2", "ListTagItem without a number"
field.ListIndex = 3
Expect field.Text, "c,d", "Text"
Expect field.Changed, False, "Changed"
field.Text = "none"
Expect field.Text, "", "Text that is no item"
Expect field.Valid, False, "Valid"
field.LimitToList = False
field.Text = "none"
Expect field.Text, "none", "any text"
Expect field.ListIndex, -1, "ListIndex of any text"
field.DropDownWidth = 9000
Expect field.DropDownWidth, CLng(0), "DropDownWidth"
field.TextSaved = "none"
Expect field.ChangedSaved, False, "ChangedSaved"
field.TooltipSet "tip"
field.Refresh
Tested "script_combo_properties"
