VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmDate 
   Caption         =   "Date fields"
   ClientHeight    =   3900
   ClientWidth     =   4300
   Begin KelControls8.KelDate when 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4000
      Caption         =   "When"
      CaptionWidth    =   1200
      Value           =   "15032013"
   End
   Begin KelControls8.KelDate none 
      Height          =   300
      Left            =   120
      TabIndex        =   1
      Top             =   480
      Width           =   4000
      Caption         =   "None"
      CaptionWidth    =   1200
      Mandatory       =   0   'False
      Value           =   ""
   End
   Begin KelControls8.KelDate bound 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   840
      Width           =   4000
      Caption         =   "Bound"
      CaptionWidth    =   1200
      MaxValue        =   40543
      MinValue        =   36526
      SelectOnFocus   =   -1  'True
      Value           =   "05052009"
   End
   Begin KelControls8.KelDate first 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1200
      Width           =   4000
      Caption         =   "First"
      CaptionWidth    =   1200
      DaysFlag        =   1
      Format          =   "mmm yyyy"
      Value           =   "15032013"
   End
   Begin KelControls8.KelDate last 
      Height          =   300
      Left            =   120
      TabIndex        =   4
      Top             =   1560
      Width           =   4000
      Caption         =   "Last"
      CaptionWidth    =   1200
      DaysFlag        =   2
      Value           =   "31012013"
   End
   Begin KelControls8.KelDate born 
      Height          =   300
      Left            =   120
      TabIndex        =   5
      Top             =   1920
      Width           =   4000
      Caption         =   "Born"
      CaptionWidth    =   1200
      DaysFlag        =   3
      Format          =   "dd.mm.yy"
      Value           =   "01021975"
   End
   Begin KelControls8.KelDate held 
      Height          =   300
      Left            =   120
      TabIndex        =   6
      Top             =   2280
      Width           =   4000
      Caption         =   "Held"
      CaptionWidth    =   1200
      Locked          =   -1  'True
      Value           =   "01021975"
   End
   Begin KelControls8.KelDate off 
      Height          =   300
      Left            =   120
      TabIndex        =   7
      Top             =   2640
      Width           =   4000
      Caption         =   "Off"
      CaptionWidth    =   1200
      Enabled         =   0   'False
      Value           =   "01021975"
   End
   Begin KelControls8.KelDate bare 
      Height          =   300
      Left            =   120
      TabIndex        =   8
      Top             =   3000
      Width           =   4000
   End
   Begin KelControls8.KelText text 
      Height          =   300
      Left            =   120
      TabIndex        =   9
      Top             =   3360
      Width           =   4000
      Caption         =   "Text"
      CaptionWidth    =   1200
   End
End
Attribute VB_Name = "frmDate"
