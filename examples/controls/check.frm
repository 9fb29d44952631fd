VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmCheck 
   Caption         =   "Check fields"
   ClientHeight    =   2140
   ClientWidth     =   3840
   Begin KelControls8.KelCheck entry 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   3600
      Caption         =   "&With the focus"
      Value           =   -1  'True
   End
   Begin KelControls8.KelCheck agree 
      Height          =   300
      Left            =   120
      TabIndex        =   1
      Top             =   520
      Width           =   3600
      Caption         =   "&Mandatory, for the colour alone"
      Value           =   0   'False
   End
   Begin KelControls8.KelCheck news 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   920
      Width           =   3600
      Caption         =   "&Optional"
      Mandatory       =   0   'False
      Value           =   -1  'True
   End
   Begin KelControls8.KelCheck held 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1320
      Width           =   3600
      Caption         =   "&Locked"
      Locked          =   -1  'True
      Value           =   -1  'True
   End
   Begin KelControls8.KelCheck off 
      Height          =   300
      Left            =   120
      TabIndex        =   4
      Top             =   1720
      Width           =   3600
      Caption         =   "&Disabled"
      Enabled         =   0   'False
      Value           =   -1  'True
   End
End
Attribute VB_Name = "frmCheck"
