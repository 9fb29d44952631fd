VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmCombo 
   Caption         =   "Combo fields"
   ClientHeight    =   2940
   ClientWidth     =   5040
   Begin KelControls8.KelCombo entry 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4800
      Caption         =   "&With the focus"
      CaptionWidth    =   1900
      List            =   "Apple,Apricot,Banana,Cherry,Damson,Elderberry,Fig,Grape,Hazelnut,Kiwi,Lemon,Mango"
      Text            =   "Apricot"
   End
   Begin KelControls8.KelCombo fruit 
      Height          =   300
      Left            =   120
      TabIndex        =   1
      Top             =   520
      Width           =   4800
      Caption         =   "&Mandatory"
      CaptionWidth    =   1900
      List            =   "Apple,Apricot,Banana,Cherry,Damson,Elderberry,Fig,Grape,Hazelnut,Kiwi,Lemon,Mango"
      Text            =   "Banana"
   End
   Begin KelControls8.KelCombo second 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   920
      Width           =   4800
      Caption         =   "&Optional"
      CaptionWidth    =   1900
      List            =   "Apple,Apricot,Banana,Cherry,Damson,Elderberry,Fig,Grape,Hazelnut,Kiwi,Lemon,Mango"
      Mandatory       =   0   'False
      Text            =   "Cherry"
   End
   Begin KelControls8.KelCombo free 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1320
      Width           =   4800
      Caption         =   "&Any text"
      CaptionWidth    =   1900
      LimitToList     =   0   'False
      List            =   "Apple,Apricot,Banana,Cherry,Damson,Elderberry,Fig,Grape,Hazelnut,Kiwi,Lemon,Mango"
      Mandatory       =   0   'False
      Text            =   "Dragon fruit"
   End
   Begin KelControls8.KelCombo missing 
      Height          =   300
      Left            =   120
      TabIndex        =   4
      Top             =   1720
      Width           =   4800
      Caption         =   "Mandatory, &empty"
      CaptionWidth    =   1900
      List            =   "Apple,Apricot,Banana,Cherry,Damson,Elderberry,Fig,Grape,Hazelnut,Kiwi,Lemon,Mango"
   End
   Begin KelControls8.KelCombo held 
      Height          =   300
      Left            =   120
      TabIndex        =   5
      Top             =   2120
      Width           =   4800
      Caption         =   "&Locked"
      CaptionWidth    =   1900
      List            =   "Apple,Apricot,Banana,Cherry,Damson,Elderberry,Fig,Grape,Hazelnut,Kiwi,Lemon,Mango"
      Locked          =   -1  'True
      Text            =   "Fig"
   End
   Begin KelControls8.KelCombo off 
      Height          =   300
      Left            =   120
      TabIndex        =   6
      Top             =   2520
      Width           =   4800
      Caption         =   "&Disabled"
      CaptionWidth    =   1900
      Enabled         =   0   'False
      List            =   "Apple,Apricot,Banana,Cherry,Damson,Elderberry,Fig,Grape,Hazelnut,Kiwi,Lemon,Mango"
      Text            =   "Grape"
   End
End
Attribute VB_Name = "frmCombo"
