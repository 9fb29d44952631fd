VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmTime 
   Caption         =   "Time fields"
   ClientHeight    =   3340
   ClientWidth     =   5040
   Begin KelControls8.KelTime entry 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4800
      Caption         =   "&With the focus"
      CaptionWidth    =   1900
      Value           =   "10:15:00"
   End
   Begin KelControls8.KelTime start 
      Height          =   300
      Left            =   120
      TabIndex        =   1
      Top             =   520
      Width           =   4800
      Caption         =   "&Mandatory"
      CaptionWidth    =   1900
      Value           =   "09:00:00"
   End
   Begin KelControls8.KelTime end 
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
   Begin KelControls8.KelTime exact 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1320
      Width           =   4800
      Caption         =   "With &seconds"
      CaptionWidth    =   1900
      Mandatory       =   0   'False
      Format          =   "hh:nn:ss"
      Value           =   "21:30:15"
   End
   Begin KelControls8.KelTime missing 
      Height          =   300
      Left            =   120
      TabIndex        =   4
      Top             =   1720
      Width           =   4800
      Caption         =   "Mandatory, &empty"
      CaptionWidth    =   1900
      Value           =   ""
   End
   Begin KelControls8.KelTime hours 
      Height          =   300
      Left            =   120
      TabIndex        =   5
      Top             =   2120
      Width           =   4800
      Caption         =   "&8 am to 6 pm"
      CaptionWidth    =   1900
      Mandatory       =   0   'False
      MaxValue        =   .75
      MinValue        =   .333333333333333
      Value           =   "07:00:00"
   End
   Begin KelControls8.KelTime logged 
      Height          =   300
      Left            =   120
      TabIndex        =   6
      Top             =   2520
      Width           =   4800
      Caption         =   "Loc&ked"
      CaptionWidth    =   1900
      Locked          =   -1  'True
      Value           =   "16:45:00"
   End
   Begin KelControls8.KelTime off 
      Height          =   300
      Left            =   120
      TabIndex        =   7
      Top             =   2920
      Width           =   4800
      Caption         =   "&Disabled"
      CaptionWidth    =   1900
      Enabled         =   0   'False
      Value           =   "16:45:00"
   End
End
Attribute VB_Name = "frmTime"
