VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmText 
   Caption         =   "Text fields"
   ClientHeight    =   4340
   ClientWidth     =   5040
   Begin KelControls8.KelText entry 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4800
      Caption         =   "&With the focus"
      CaptionWidth    =   1900
      Text            =   "one two three"
   End
   Begin KelControls8.KelText name 
      Height          =   300
      Left            =   120
      TabIndex        =   1
      Top             =   520
      Width           =   4800
      Caption         =   "&Mandatory"
      CaptionWidth    =   1900
      Text            =   "Anna Weber"
   End
   Begin KelControls8.KelText street 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   920
      Width           =   4800
      Caption         =   "&Optional"
      CaptionWidth    =   1900
      Mandatory       =   0   'False
      Text            =   "12 Mill Lane"
   End
   Begin KelControls8.KelText missing 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1320
      Width           =   4800
      Caption         =   "Mandatory, &empty"
      CaptionWidth    =   1900
   End
   Begin KelControls8.KelText number 
      Height          =   300
      Left            =   120
      TabIndex        =   4
      Top             =   1720
      Width           =   4800
      Caption         =   "&Locked"
      CaptionWidth    =   1900
      Locked          =   -1  'True
      Text            =   "C-10382"
   End
   Begin KelControls8.KelText off 
      Height          =   300
      Left            =   120
      TabIndex        =   5
      Top             =   2120
      Width           =   4800
      Caption         =   "&Disabled"
      CaptionWidth    =   1900
      Enabled         =   0   'False
      Text            =   "not now"
   End
   Begin KelControls8.KelText secret 
      Height          =   300
      Left            =   120
      TabIndex        =   6
      Top             =   2520
      Width           =   4800
      Caption         =   "&Password"
      CaptionWidth    =   1900
      Mandatory       =   0   'False
      PasswordChar    =   "*"
      Text            =   "secret"
   End
   Begin KelControls8.KelText code 
      Height          =   300
      Left            =   120
      TabIndex        =   7
      Top             =   2920
      Width           =   4800
      Caption         =   "At most &eight"
      CaptionWidth    =   1900
      Mandatory       =   0   'False
      InsertMode      =   0   'False
      MaxLength       =   8
      Text            =   "AB-4711"
   End
   Begin KelControls8.KelText notes 
      Height          =   900
      Left            =   120
      TabIndex        =   8
      Top             =   3320
      Width           =   4800
      Caption         =   "Several l&ines"
      CaptionWidth    =   1900
      Mandatory       =   0   'False
      MultiLine       =   -1  'True
   End
End
Attribute VB_Name = "frmText"
