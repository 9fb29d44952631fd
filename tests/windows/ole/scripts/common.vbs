' Put in front of each script: checks that print a line each, and go on.
Option Explicit

Dim Broken, WhyBroken

Sub Expect(actual, wanted, what)
    If TypeName(actual) <> TypeName(wanted) Then
        WhyBroken = WhyBroken & what & " is a " & TypeName(actual) & ", not a " & TypeName(wanted) & "; "
    ElseIf actual <> wanted Then
        WhyBroken = WhyBroken & what & " is " & CStr(actual) & ", not " & CStr(wanted) & "; "
    End If
End Sub

' Checks and forgets the error that the statement before left.
Sub ExpectError(number, what)
    If Err.Number <> number Then
        WhyBroken = WhyBroken & what & " gives error " & Err.Number & " " & Err.Description & ", not " & number & "; "
    End If
    Err.Clear
End Sub

Sub Tested(name)
    If Err.Number <> 0 Then WhyBroken = WhyBroken & "error " & Err.Number & " " & Err.Description & "; "
    If WhyBroken = "" Then
        WScript.Echo "ok " & name
    Else
        WScript.Echo "FAILED " & name & ": " & WhyBroken
    End If
    WhyBroken = ""
    Err.Clear
End Sub

