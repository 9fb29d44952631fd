VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmNumber 
   Caption         =   "Number fields"
   ClientHeight    =   2800
   ClientWidth     =   4300
   Begin KelControls8.KelNumber price 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4000
      Caption         =   "Price"
      CaptionWidth    =   1200
      Decimals        =   2
      MaxValue        =   99999
      MinValue        =   -99999
      Value           =   1234.5
   End
   Begin KelControls8.KelNumber qty 
      Height          =   300
      Left            =   120
      TabIndex        =   1
      Top             =   480
      Width           =   4000
      Caption         =   "Quantity"
      CaptionWidth    =   1200
      Decimals        =   0
      GroupDigits     =   0   'False
      MaxValue        =   1000
      MinValue        =   1
      UpDown          =   -1  'True
      Value           =   5
   End
   Begin KelControls8.KelNumber rate 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   840
      Width           =   4000
      Caption         =   "Rate"
      CaptionWidth    =   1200
      Decimals        =   2
      InsertMode      =   -1  'True
      Mandatory       =   0   'False
      MaxValue        =   5
      MinValue        =   -5
      SelectOnFocus   =   -1  'True
      UpDown          =   -1  'True
      UpDownChange    =   0.05
      Value           =   1.9
   End
   Begin KelControls8.KelNumber held 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1200
      Width           =   4000
      Caption         =   "Held"
      CaptionWidth    =   1200
      Decimals        =   2
      Locked          =   -1  'True
      MaxValue        =   10
      MinValue        =   0
      UpDown          =   -1  'True
      Value           =   -7
   End
   Begin KelControls8.KelNumber off 
      Height          =   300
      Left            =   120
      TabIndex        =   4
      Top             =   1560
      Width           =   4000
      Caption         =   "Off"
      CaptionWidth    =   1200
      Enabled         =   0   'False
      MaxValue        =   10
      UpDown          =   -1  'True
      Value           =   3
   End
   Begin KelControls8.KelNumber bare 
      Height          =   300
      Left            =   120
      TabIndex        =   5
      Top             =   1920
      Width           =   4000
   End
   Begin KelControls8.KelText text 
      Height          =   300
      Left            =   120
      TabIndex        =   6
      Top             =   2280
      Width           =   4000
      Caption         =   "Text"
      CaptionWidth    =   1200
   End
End
Attribute VB_Name = "frmNumber"
