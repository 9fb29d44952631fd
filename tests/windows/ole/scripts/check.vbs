Dim field, bar

On Error Resume Next

Set field = CreateObject("KelControls8.KelCheck")
Expect TypeName(field.Value), "Boolean", "type of Value"
Expect field.Value, False, "Value of a new box"
field.Value = True
Expect field.Value, True, "Value"
Expect field & "", CStr(True), "the field itself"
Expect field.Changed, False, "Changed"
field.ValueOriginal = False
Expect field.Changed, True, "Changed from the original"
field.ValueSaved = True
Expect field.ChangedSaved, False, "ChangedSaved"
field.Value = 0
Expect field.Value, False, "Value from a number"
Expect field.Valid, True, "Valid"
Tested "script_check_values"

Set field = CreateObject("KelControls8.KelCheck")
field.Caption = "I &agree"
Expect field.Caption, "I &agree", "Caption"
field.FontBold = True
Expect field.FontBold, True, "FontBold"
field.Locked = True
Expect field.Locked, True, "Locked"
Expect field.Enabled, True, "Enabled"
field.Mandatory = False
Expect field.Mandatory, False, "Mandatory"
field.TooltipSet "tip"
field.Refresh
field.Value = "perhaps"
ExpectError 13, "a word as a value"
field.Valid = False
ExpectError 438, "a put of what can only be read"
Tested "script_check_properties"

Set bar = CreateObject("KelControls8.KelProgressBar")
Expect bar.Min, CLng(1), "Min"
Expect bar.Max, CLng(100), "Max"
Expect bar.ShowTime, True, "ShowTime"
bar.Max = 24000
bar.Start
bar.Value = 480
Expect bar.Value, CLng(480), "Value"
Expect bar & "", "480", "the bar itself"
bar.Value = 99999
Expect bar.Value, CLng(24000), "Value past the end"
bar.Clear
bar.Refresh
bar.Enabled = False
Expect bar.Enabled, False, "Enabled of the bar"
bar.Value = "half"
ExpectError 13, "a word as a value of the bar"
Tested "script_progress"
