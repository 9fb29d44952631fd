Dim handler, runtime, host, at, list

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
Expect runtime.ReadField(list, at, 44), "", "behind the last field"
Expect (at < 0), True, "position is negative"
Expect runtime.RuntimeDates.RoundNumber(1.005, 2), 1.01, "RoundNumber"
Expect runtime.RuntimeDates.NumberFromValue("", 2), CDbl(0), "NumberFromValue of an empty text"
Expect runtime.RuntimeDates.NumberFromValue(2.5, 0), CDbl(3), "NumberFromValue of a number"
list = runtime.NoSuchMember
ExpectError 438, "a member that is not there"
handler.SetRuntime runtime
Tested "script_runtime_default_object"
