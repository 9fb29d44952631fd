VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmProgress 
   Caption         =   "Progress bars"
   ClientHeight    =   1740
   ClientWidth     =   5040
   Begin KelControls8.KelProgressBar begun 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4800
      ShowTime        =   0   'False
   End
   Begin KelControls8.KelProgressBar half 
      Height          =   300
      Left            =   120
      TabIndex        =   1
      Top             =   520
      Width           =   4800
      ShowTime        =   0   'False
   End
   Begin KelControls8.KelProgressBar timed 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   920
      Width           =   4800
      Max             =   1000
   End
   Begin KelControls8.KelProgressBar off 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1320
      Width           =   4800
      Enabled         =   0   'False
      ShowTime        =   0   'False
   End
End
Attribute VB_Name = "frmProgress"
