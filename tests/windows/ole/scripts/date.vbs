Dim field, moment

On Error Resume Next

Set field = CreateObject("KelControls8.KelDate")
Expect TypeName(field.Value), "Empty", "type of Value at first"
field.Value = DateSerial(2013, 3, 15)
Expect field.Value, DateSerial(2013, 3, 15), "Value"
field.Value = Null
Expect TypeName(field.Value), "Null", "type of Value after Null"
field.Value = "31/01/2013"
Expect field.Value, DateSerial(2013, 1, 31), "Value from a text"
moment = DateSerial(2012, 2, 29)
field.ValueSaved = moment
Expect field.ValueSaved, moment, "ValueSaved"
Expect field.ChangedSaved, True, "ChangedSaved"
field.MaxValue = DateSerial(2013, 1, 1)
Expect field.MaxValue, DateSerial(2013, 1, 1), "MaxValue"
Expect field.Valid, False, "Valid past the latest date"
field.DaysFlag = 1
Expect field.DaysFlag, CLng(1), "DaysFlag"
field.MaxValue = "some day"
ExpectError 13, "a word as a bound"
Tested "script_date"

Set field = CreateObject("KelControls8.KelTime")
Expect TypeName(field.Value), "Empty", "type of Value at first"
field.Value = TimeSerial(18, 0, 0)
Expect field.Value, TimeSerial(18, 0, 0), "Value"
field.Value = ""
Expect TypeName(field.Value), "Null", "type of Value after an empty text"
field.MinValue = TimeSerial(8, 0, 0)
field.Value = TimeSerial(7, 0, 0)
Expect field.Valid, False, "Valid before the earliest time"
Tested "script_time"
