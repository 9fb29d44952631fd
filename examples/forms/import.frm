VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmImport 
   Caption         =   "Import addresses"
   ClientHeight    =   3150
   ClientWidth     =   7080
   Begin KelControls8.KelText txtFile 
      Height          =   300
      Left            =   240
      TabIndex        =   0
      ToolTipText     =   "One address a line, fields separated by semicolons"
      Top             =   240
      Width           =   6600
      Caption         =   "&File"
      CaptionWidth    =   1500
      SelectOnFocus   =   -1  'True
      Text            =   "C:\Data\addresses.csv"
   End
   Begin KelControls8.KelNumber numLines 
      Height          =   300
      Left            =   240
      TabIndex        =   1
      TabStop         =   0   'False
      Top             =   630
      Width           =   3300
      Caption         =   "Lines"
      CaptionWidth    =   1500
      Decimals        =   0
      Locked          =   -1  'True
      Mandatory       =   0   'False
      MaxValue        =   9999999
      Value           =   24000
   End
   Begin KelControls8.KelCheck chkHeader 
      Height          =   300
      Left            =   1740
      TabIndex        =   2
      Top             =   1020
      Width           =   5100
      Caption         =   "The first line names the fields"
      Mandatory       =   0   'False
   End
   Begin KelControls8.KelCheck chkDuplicates 
      Height          =   300
      Left            =   1740
      TabIndex        =   3
      ToolTipText     =   "Same name, street and town"
      Top             =   1350
      Width           =   5100
      Caption         =   "&Skip addresses that are there already"
      Mandatory       =   0   'False
      Value           =   0   'False
   End
   Begin KelControls8.KelCheck chkConsent 
      Height          =   300
      Left            =   1740
      TabIndex        =   4
      Top             =   1680
      Width           =   5100
      Caption         =   "The &people in the list have agreed to be kept"
      Value           =   0   'False
   End
   Begin KelControls8.KelProgressBar prgImport 
      Height          =   300
      Left            =   240
      TabIndex        =   5
      Top             =   2160
      Width           =   6600
      Max             =   24000
   End
   Begin VB.CommandButton cmdImport 
      Height          =   375
      Left            =   5580
      TabIndex        =   6
      Top             =   2610
      Width           =   1260
      Caption         =   "Import"
   End
End
Attribute VB_Name = "frmImport"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub cmdImport_Click()
    Dim FileNumber As Integer, Number As Long, Record As String
    If Not (txtFile.Valid And chkConsent.Value) Then Exit Sub
    chkHeader.Locked = True
    chkDuplicates.Locked = True
    chkConsent.Locked = True
    FileNumber = FreeFile
    Open txtFile.Text For Input As #FileNumber
    prgImport.Max = numLines.Value
    prgImport.Start
    Do Until EOF(FileNumber)
        Line Input #FileNumber, Record
        Number = Number + 1
        If Number > 1 Or Not chkHeader.Value Then KeepAddress Record, chkDuplicates.Value
        prgImport.Value = Number
    Loop
    Close #FileNumber
    chkHeader.Locked = False
    chkDuplicates.Locked = False
    chkConsent.Locked = False
End Sub
