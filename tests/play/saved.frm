VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmText 
   Caption         =   "Text fields"
   ClientHeight    =   4000
   ClientWidth     =   4300
   Begin KelControls8.KelText one 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4000
      Caption         =   "one"
      CaptionWidth    =   1500
      Enabled         =   0   'False
      InsertMode      =   0   'False
      Locked          =   -1  'True
      Mandatory       =   0   'False
      MaxLength       =   3
      SelectOnFocus   =   -1  'True
      Text            =   "long enough"
   End
   Begin KelControls8.KelText two 
      Height          =   300
      Left            =   120
      TabIndex        =   1
      Top             =   480
      Width           =   4000
      Caption         =   "Two"
      CaptionWidth    =   1200
      SelectOnFocus   =   -1  'True
      Text            =   "second"
   End
   Begin KelControls8.KelText free 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   840
      Width           =   4000
      Caption         =   "Free"
      CaptionWidth    =   1200
      Mandatory       =   0   'False
   End
   Begin KelControls8.KelText held 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1200
      Width           =   4000
      Caption         =   "Held"
      CaptionWidth    =   1200
      Locked          =   -1  'True
      Text            =   "kept"
   End
   Begin KelControls8.KelText off 
      Height          =   300
      Left            =   120
      TabIndex        =   4
      Top             =   1560
      Width           =   4000
      Caption         =   "Off"
      CaptionWidth    =   1200
      Enabled         =   0   'False
      Text            =   "out"
   End
   Begin KelControls8.KelText over 
      Height          =   300
      Left            =   120
      TabIndex        =   5
      Top             =   1920
      Width           =   4000
      Caption         =   "Over"
      CaptionWidth    =   1200
      InsertMode      =   0   'False
      Text            =   "abc"
   End
   Begin KelControls8.KelText short 
      Height          =   300
      Left            =   120
      TabIndex        =   6
      Top             =   2280
      Width           =   4000
      Caption         =   "Short"
      CaptionWidth    =   1200
      MaxLength       =   5
   End
   Begin KelControls8.KelText secret 
      Height          =   300
      Left            =   120
      TabIndex        =   7
      Top             =   2640
      Width           =   4000
      Caption         =   "Secret"
      CaptionWidth    =   1200
      PasswordChar    =   "*"
   End
   Begin KelControls8.KelText note 
      Height          =   900
      Left            =   120
      TabIndex        =   8
      Top             =   3000
      Width           =   4000
      Caption         =   "Note"
      CaptionWidth    =   1200
      Mandatory       =   0   'False
      MultiLine       =   -1  'True
      Text            =   $"saved.frx":0000
   End
End
Attribute VB_Name = "frmText"
