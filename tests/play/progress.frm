VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmProgress 
   Caption         =   "Progress bars"
   ClientHeight    =   2000
   ClientWidth     =   4800
   Begin KelControls8.KelProgressBar job 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4500
   End
   Begin KelControls8.KelProgressBar quiet 
      Height          =   400
      Left            =   120
      TabIndex        =   1
      Top             =   480
      Width           =   1000
      Min             =   0
      Max             =   1999
      ShowTime        =   0   'False
   End
   Begin KelControls8.KelProgressBar late 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   960
      Width           =   3000
      Min             =   -10
      Max             =   9
   End
   Begin KelControls8.KelText note 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1320
      Width           =   4000
      Caption         =   "Note"
      CaptionWidth    =   1200
   End
End
Attribute VB_Name = "frmProgress"
