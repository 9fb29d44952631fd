VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmNumber 
   Caption         =   "Number fields"
   ClientHeight    =   3340
   ClientWidth     =   5040
   Begin KelControls8.KelNumber entry 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4800
      Caption         =   "&With the focus"
      CaptionWidth    =   1900
      Decimals        =   2
      MaxValue        =   100000
      MinValue        =   -100000
      UpDown          =   -1  'True
      Value           =   1234.5
   End
   Begin KelControls8.KelNumber amount 
      Height          =   300
      Left            =   120
      TabIndex        =   1
      Top             =   520
      Width           =   4800
      Caption         =   "&Mandatory"
      CaptionWidth    =   1900
      Decimals        =   2
      MaxValue        =   100000
      MinValue        =   -100000
      Value           =   1234.5
   End
   Begin KelControls8.KelNumber discount 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   920
      Width           =   4800
      Caption         =   "&Optional"
      CaptionWidth    =   1900
      Mandatory       =   0   'False
      Decimals        =   2
      MaxValue        =   100000
      MinValue        =   -100000
      Value           =   -99.95
   End
   Begin KelControls8.KelNumber quantity 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1320
      Width           =   4800
      Caption         =   "&Without decimals"
      CaptionWidth    =   1900
      Mandatory       =   0   'False
      Decimals        =   0
      MaxValue        =   100000
      MinValue        =   -100000
      UpDown          =   -1  'True
      Value           =   12
   End
   Begin KelControls8.KelNumber missing 
      Height          =   300
      Left            =   120
      TabIndex        =   4
      Top             =   1720
      Width           =   4800
      Caption         =   "Mandatory, &zero"
      CaptionWidth    =   1900
      Decimals        =   0
      Value           =   0
   End
   Begin KelControls8.KelNumber share 
      Height          =   300
      Left            =   120
      TabIndex        =   5
      Top             =   2120
      Width           =   4800
      Caption         =   "At most &100"
      CaptionWidth    =   1900
      Mandatory       =   0   'False
      Decimals        =   0
      MaxValue        =   100
      MinValue        =   0
      Value           =   250
   End
   Begin KelControls8.KelNumber total 
      Height          =   300
      Left            =   120
      TabIndex        =   6
      Top             =   2520
      Width           =   4800
      Caption         =   "&Locked"
      CaptionWidth    =   1900
      Locked          =   -1  'True
      Decimals        =   2
      MaxValue        =   100000
      MinValue        =   -100000
      Value           =   1134.55
   End
   Begin KelControls8.KelNumber off 
      Height          =   300
      Left            =   120
      TabIndex        =   7
      Top             =   2920
      Width           =   4800
      Caption         =   "&Disabled"
      CaptionWidth    =   1900
      Enabled         =   0   'False
      Decimals        =   2
      MaxValue        =   100000
      MinValue        =   -100000
      Value           =   0
   End
End
Attribute VB_Name = "frmNumber"
