Dim handler, runtime, host, at, list, field

Class ScriptRuntime
    Public Depth
    Public Asked
    Public Property Get ColorDepth
        Asked = Asked & "d"
        ColorDepth = Depth
    End Property
    Public Property Get DecimalSeparator
        Asked = Asked & "s"
        DecimalSeparator = ","
    End Property
    Public Function DecimalDigits
        Asked = Asked & "n"
        DecimalDigits = 3
    End Function
    Public Property Get RuntimeDates
        Asked = Asked & "D"
        Set RuntimeDates = New ScriptDates
    End Property
End Class

Dim LastParsed

Class ScriptDates
    Public Function ParseDate(text, format, defaultDate, birthDay)
        LastParsed = text & "|" & format & "|" & TypeName(defaultDate) & "|" & birthDay
        ParseDate = Null
        If text = "the second" Then ParseDate = DateSerial(2000, 1, 2)
    End Function
    Public Function LastDayOfMonth(day)
        LastDayOfMonth = DateSerial(2000, 1, 31)
    End Function
    Public Function ParseTime(text)
        LastParsed = TypeName(text)
        ParseTime = TimeSerial(18, 0, 0)
    End Function
    Public Function NumberFromValue(value, decimals)
        NumberFromValue = value & decimals
    End Function
    Public Function RoundNumber(value, decimals)
        RoundNumber = value
    End Function
End Class

Class BareRuntime
    Public Property Get ColorDepth
        ColorDepth = 8
    End Property
End Class

Class FailingRuntime
    Public Property Get DecimalSeparator
        Err.Raise vbObjectError + 77, "host", "no separator today"
    End Property
End Class

On Error Resume Next

Set handler = CreateObject("KelControls8.KelControlHandler")
Set host = New ScriptRuntime
host.Depth = 24
handler.SetRuntime host
Expect host.Asked, "snd", "what was asked of the script's object"
handler.SetRuntime host
Expect host.Asked, "sndsnd", "what was asked the second time"
Tested "script_runtime_object_of_the_script"

Set field = CreateObject("KelControls8.KelDate")
field.Value = "the second"
Expect field.Value, DateSerial(2000, 1, 2), "what the script's object read"
Expect LastParsed, "the second|dd/mm/yyyy|Date|False", "what it was given"
field.DaysFlag = 2
field.Value = "the second"
Expect field.Value, DateSerial(2000, 1, 31), "the last day by the script's object"
field.Value = "never"
Expect TypeName(field.Value), "Null", "Value after Null from the script"
Expect Right(host.Asked, 1), "D", "the conversions were fetched for each use"
Set field = CreateObject("KelControls8.KelTime")
field.Value = 0.5
Expect field.Value, TimeSerial(18, 0, 0), "the time by the script's object"
Expect LastParsed, "Double", "what it was given"
Set field = CreateObject("KelControls8.KelNumber")
field.Decimals = 2
field.Value = 1
Expect field.Value, CDbl(12), "the number by the script's object"
Tested "script_runtime_conversions_of_the_script"

handler.SetRuntime New BareRuntime
ExpectError CLng(&H80020006), "an object without DecimalSeparator"
handler.SetRuntime "text"
ExpectError 13, "a text as run-time object"
handler.SetRuntime 5
ExpectError 13, "a number as run-time object"
handler.SetRuntime
ExpectError 450, "no run-time object at all"
handler.SetRuntime New FailingRuntime
Expect (Err.Number <> 0), True, "the script's own error"
Err.Clear
Tested "script_runtime_refusals"

Set runtime = CreateObject("KelRuntime8.Runtime")
Expect (runtime.ColorDepth >= 8), True, "ColorDepth"
Expect Len(runtime.DecimalSeparator), CLng(1), "length of DecimalSeparator"
Expect TypeName(runtime.DecimalDigits), "Integer", "type of DecimalDigits"
Expect (Len(runtime.CaptionFontName) > 0), True, "CaptionFontName"
Expect (runtime.FieldFontSize > 5), True, "FieldFontSize"
list = runtime.ListAppend("", "a,b")
list = runtime.ListAppend(list, "c")
Expect list, """a,b"",c", "list"
at = 0
Expect runtime.ReadField(list, at, 44), "a,b", "first field"
Expect runtime.ReadField(list, at, 44), "c", "second field"
Expect runtime.RuntimeDates.RoundNumber(1.005, 2), 1.01, "RoundNumber"
Expect runtime.RuntimeDates.NumberFromValue(2.5, 0), CDbl(3), "NumberFromValue of a number"
Expect runtime.RuntimeDates.ParseDate("31/01/2013", "dd/mm/yyyy", Date, False), DateSerial(2013, 1, 31), "ParseDate"
Expect runtime.RuntimeDates.LastDayOfMonth(DateSerial(2012, 2, 5)), DateSerial(2012, 2, 29), "LastDayOfMonth"
Expect runtime.RuntimeDates.ParseTime("6 pm"), TimeSerial(18, 0, 0), "ParseTime"
Expect TypeName(runtime.RuntimeDates.ParseTime("24:00")), "Null", "ParseTime of no time"
list = runtime.NoSuchMember
ExpectError 438, "a member that is not there"
handler.SetRuntime runtime
Tested "script_runtime_default_object"
