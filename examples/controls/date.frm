VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmDate 
   Caption         =   "Date fields"
   ClientHeight    =   3740
   ClientWidth     =   5040
   Begin KelControls8.KelDate entry 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4800
      Caption         =   "&With the focus"
      CaptionWidth    =   1900
      Value           =   "15032013"
   End
   Begin KelControls8.KelDate ordered 
      Height          =   300
      Left            =   120
      TabIndex        =   1
      Top             =   520
      Width           =   4800
      Caption         =   "&Mandatory"
      CaptionWidth    =   1900
      Value           =   "15032013"
   End
   Begin KelControls8.KelDate delivered 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   920
      Width           =   4800
      Caption         =   "&Optional"
      CaptionWidth    =   1900
      Mandatory       =   0   'False
      Value           =   ""
   End
   Begin KelControls8.KelDate long 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1320
      Width           =   4800
      Caption         =   "&Long format"
      CaptionWidth    =   1900
      Mandatory       =   0   'False
      Format          =   "dddd d mmmm yyyy"
      Value           =   "15032013"
   End
   Begin KelControls8.KelDate month 
      Height          =   300
      Left            =   120
      TabIndex        =   4
      Top             =   1720
      Width           =   4800
      Caption         =   "End of the m&onth"
      CaptionWidth    =   1900
      Mandatory       =   0   'False
      DaysFlag        =   2
      Format          =   "mmm yyyy"
      Value           =   "31032013"
   End
   Begin KelControls8.KelDate missing 
      Height          =   300
      Left            =   120
      TabIndex        =   5
      Top             =   2120
      Width           =   4800
      Caption         =   "Mandatory, &empty"
      CaptionWidth    =   1900
      Value           =   ""
   End
   Begin KelControls8.KelDate range 
      Height          =   300
      Left            =   120
      TabIndex        =   6
      Top             =   2520
      Width           =   4800
      Caption         =   "In &2013 only"
      CaptionWidth    =   1900
      Mandatory       =   0   'False
      MaxValue        =   41639
      MinValue        =   41275
      Value           =   "01022012"
   End
   Begin KelControls8.KelDate booked 
      Height          =   300
      Left            =   120
      TabIndex        =   7
      Top             =   2920
      Width           =   4800
      Caption         =   "Loc&ked"
      CaptionWidth    =   1900
      Locked          =   -1  'True
      Value           =   "01022013"
   End
   Begin KelControls8.KelDate off 
      Height          =   300
      Left            =   120
      TabIndex        =   8
      Top             =   3320
      Width           =   4800
      Caption         =   "&Disabled"
      CaptionWidth    =   1900
      Enabled         =   0   'False
      Value           =   "01022013"
   End
End
Attribute VB_Name = "frmDate"
