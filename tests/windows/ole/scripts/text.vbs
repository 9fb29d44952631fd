Dim field, other, word

On Error Resume Next

Set field = CreateObject("KelControls8.KelText")
field.Text = "by default"
Expect field & "", "by default", "the field itself"
Tested "script_text_default_member"

' A put by reference leaves the caller's variable alone, whatever it holds.
Set field = CreateObject("KelControls8.KelText")
word = 42
field.TextOriginal = word
Expect word, 42, "the variable"
Expect field.TextOriginal, "42", "TextOriginal"
word = "forty"
field.TextSaved = word
field.Text = "other"
Expect word, "forty", "the variable"
Expect field.TextSaved, "forty", "TextSaved"
Tested "script_text_by_reference"

Set field = CreateObject("KelControls8.KelText")
field.CaptionWidth = "abc"
ExpectError 13, "a word as a width"
field.CaptionWidth = 40000
ExpectError 6, "a width too large"
field.Locked = "perhaps"
ExpectError 13, "a word as a switch"
field.Text = Null
ExpectError 13, "Null as a text"
field.Valid = True
ExpectError 438, "putting what can only be read"
field.Nonsense = 1
ExpectError 438, "putting what is not there"
word = field.Nonsense
ExpectError 438, "reading what is not there"
field.TooltipSet
ExpectError 450, "too few arguments"
field.TooltipSet "a", "b"
ExpectError 450, "too many arguments"
field.TooltipSet CreateObject("KelControls8.KelControlHandler")
ExpectError 13, "an object without a value as a text"
Expect field.CaptionWidth, CInt(0), "CaptionWidth after all this"
Tested "script_text_mistakes"

Set field = CreateObject("KelControls8.KelText")
Set other = CreateObject("KelControls8.KelText")
other.Text = "other's"
field.Text = other
Expect field.Text, "other's", "Text from another field"
Tested "script_text_from_another_field"
