Dim field, other, text

On Error Resume Next

Set field = CreateObject("KelControls8.KelNumber")
Expect TypeName(field.Value), "Double", "type of Value"
field.Decimals = 2
field.Value = 12.345
Expect field.Value, 12.35, "Value"
Expect field.ValueOriginal, 12.35, "ValueOriginal"
field.Value = 7
Expect field & "", "7", "the field itself"
field.Value = "1.5"
Expect field.Value, 1.5, "Value from a string"
field.Value = Null
Expect field.Value, 1.5, "Value after Null"
field.Value = "nothing"
Expect field.Value, 1.5, "Value after a word"
field.MinValue = 2
Expect field.Valid, False, "Valid below the minimum"
Expect field.Valid(False), False, "Valid without a message"
field.Value = 3
Expect field.Valid, True, "Valid"
Expect field.Changed, False, "Changed"
field.ValueSaved = 4
Expect field.ChangedSaved, True, "ChangedSaved"
Tested "script_number_values"

Set field = CreateObject("KelControls8.KelNumber")
field.Caption = "Amount"
text = "before"
Expect field.ChangedCaption(text), False, "ChangedCaption"
Expect text, "Amount", "the caption that came back"
field.FontBold = True
Expect field.FontBold, True, "FontBold"
field.UpDown = True
field.UpDownChange = 0.25
Expect field.UpDownChange, 0.25, "UpDownChange"
field.GroupDigits = False
Expect field.GroupDigits, False, "GroupDigits"
field.Enabled = False
Expect field.Enabled, False, "Enabled"
field.TooltipSet "tip"
field.Refresh
Tested "script_number_properties"

Set field = CreateObject("KelControls8.KelNumber")
field.MaxValue = "much"
ExpectError 13, "a word as a bound"
text = field.Valid(True, True)
ExpectError 450, "too many arguments"
field.Decimals = 40000
ExpectError 6, "too many decimals for their type"
field.Decimals = 17
Expect field.Decimals, CInt(-1), "Decimals after more than there can be"
Tested "script_number_mistakes"
