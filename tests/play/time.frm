VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmTime 
   Caption         =   "Time fields"
   ClientHeight    =   3200
   ClientWidth     =   4300
   Begin KelControls8.KelTime at 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4000
      Caption         =   "At"
      CaptionWidth    =   1200
      Value           =   "10:15:30"
   End
   Begin KelControls8.KelTime secs 
      Height          =   300
      Left            =   120
      TabIndex        =   1
      Top             =   480
      Width           =   4000
      Caption         =   "Seconds"
      CaptionWidth    =   1200
      Format          =   "hh:nn:ss"
      Value           =   "10:15:30"
   End
   Begin KelControls8.KelTime none 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   840
      Width           =   4000
      Caption         =   "None"
      CaptionWidth    =   1200
      Mandatory       =   0   'False
      Value           =   ""
   End
   Begin KelControls8.KelTime bound 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1200
      Width           =   4000
      Caption         =   "Bound"
      CaptionWidth    =   1200
      Format          =   "hh:nn"
      MaxValue        =   0.75
      MinValue        =   0.25
      SelectOnFocus   =   -1  'True
      Value           =   "08:00:00"
   End
   Begin KelControls8.KelTime held 
      Height          =   300
      Left            =   120
      TabIndex        =   4
      Top             =   1560
      Width           =   4000
      Caption         =   "Held"
      CaptionWidth    =   1200
      Locked          =   -1  'True
      Value           =   "23:59:59"
   End
   Begin KelControls8.KelTime off 
      Height          =   300
      Left            =   120
      TabIndex        =   5
      Top             =   1920
      Width           =   4000
      Caption         =   "Off"
      CaptionWidth    =   1200
      Enabled         =   0   'False
      UpDown          =   0   'False
      Value           =   "01:00:00"
   End
   Begin KelControls8.KelTime bare 
      Height          =   300
      Left            =   120
      TabIndex        =   6
      Top             =   2280
      Width           =   4000
   End
   Begin KelControls8.KelText text 
      Height          =   300
      Left            =   120
      TabIndex        =   7
      Top             =   2640
      Width           =   4000
      Caption         =   "Text"
      CaptionWidth    =   1200
   End
End
Attribute VB_Name = "frmTime"
