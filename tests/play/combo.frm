VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmCombo 
   Caption         =   "Combo fields"
   ClientHeight    =   3000
   ClientWidth     =   4300
   Begin KelControls8.KelCombo fruit 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   120
      Width           =   4000
      Caption         =   "Fruit"
      CaptionWidth    =   1200
      List            =   "Apple,Apricot,Banana,banana split,Cherry"
      ListTag         =   "10,20,30,40"
      Text            =   "Banana"
   End
   Begin KelControls8.KelCombo free 
      Height          =   300
      Left            =   120
      TabIndex        =   1
      Top             =   480
      Width           =   4000
      Caption         =   "Free"
      CaptionWidth    =   1200
      LimitToList     =   0   'False
      List            =   "Apple,Apricot,Banana,banana split,Cherry"
      Mandatory       =   0   'False
      SelectOnFocus   =   -1  'True
      Text            =   "Kiwi"
   End
   Begin KelControls8.KelCombo opt 
      Height          =   300
      Left            =   120
      TabIndex        =   2
      Top             =   840
      Width           =   4000
      Caption         =   "Optional"
      CaptionWidth    =   1200
      DropDownWidth   =   3000
      List            =   "Apple,Apricot,Banana,banana split,Cherry"
      Mandatory       =   0   'False
      MaxLength       =   6
   End
   Begin KelControls8.KelCombo held 
      Height          =   300
      Left            =   120
      TabIndex        =   3
      Top             =   1200
      Width           =   4000
      Caption         =   "Held"
      CaptionWidth    =   1200
      List            =   "Apple,Apricot,Banana,banana split,Cherry"
      Locked          =   -1  'True
      Text            =   "Apple"
   End
   Begin KelControls8.KelCombo off 
      Height          =   300
      Left            =   120
      TabIndex        =   4
      Top             =   1560
      Width           =   4000
      Caption         =   "Off"
      CaptionWidth    =   1200
      Enabled         =   0   'False
      List            =   "Apple,Apricot,Banana,banana split,Cherry"
      Text            =   "Cherry"
   End
   Begin KelControls8.KelCombo bare 
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
   Begin KelControls8.KelProgressBar bar 
      Height          =   300
      Left            =   120
      Top             =   2640
      Width           =   4000
   End
End
Attribute VB_Name = "frmCombo"
