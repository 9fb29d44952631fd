VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmCheck 
   Caption         =   "Check boxes"
   ClientHeight    =   2800
   ClientWidth     =   4300
   Begin KelControls8.KelCheck agree 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4000
      Caption         =   "I &agree"
      Value           =   0   'False
   End
   Begin KelControls8.KelCheck plain 
      Height          =   300
      Left            =   120
      TabIndex        =   1
      ToolTipText     =   "Nothing depends on it"
      Top             =   480
      Width           =   4000
      Caption         =   "Remember ""me"""
      FontBold        =   -1  'True
      Mandatory       =   0   'False
   End
   Begin KelControls8.KelCheck held 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   840
      Width           =   4000
      Caption         =   "Held"
      Locked          =   -1  'True
   End
   Begin KelControls8.KelCheck off 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1200
      Width           =   4000
      Caption         =   "Off"
      Enabled         =   0   'False
      Value           =   0   'False
   End
   Begin KelControls8.KelCheck bare 
      Height          =   500
      Left            =   120
      TabIndex        =   4
      Top             =   1560
      Width           =   4000
   End
   Begin KelControls8.KelProgressBar job 
      Height          =   300
      Left            =   4120
      TabIndex        =   5
      Top             =   1560
      Width           =   180
   End
   Begin KelControls8.KelText note 
      Height          =   300
      Left            =   120
      TabIndex        =   6
      Top             =   2160
      Width           =   4000
      Caption         =   "Note"
      CaptionWidth    =   1200
      Text            =   "some"
   End
   Begin KelControls8.KelText ghost 
      Height          =   300
      Left            =   120
      TabIndex        =   7
      Top             =   2480
      Visible         =   0   'False
      Width           =   4000
      Caption         =   "&Ghost"
      CaptionWidth    =   1200
   End
   Begin VB.Label lblPlain 
      Caption         =   "&Plain"
      Height          =   255
      Left            =   4000
      TabIndex        =   0
      Top             =   480
      Width           =   300
   End
   Begin VB.Label lblOff 
      Caption         =   "O&ff"
      Height          =   255
      Left            =   4000
      TabIndex        =   2
      Top             =   1200
      Width           =   300
   End
   Begin VB.Label lblNote 
      Caption         =   "S&&o &much"
      Height          =   255
      Left            =   4000
      TabIndex        =   4
      Top             =   2160
      Width           =   300
   End
End
Attribute VB_Name = "frmCheck"
