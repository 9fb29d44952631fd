VERSION 5.00
Begin VB.Form frmClubMember
   Caption         =   "Member"
   ClientHeight    =   3270
   ClientWidth     =   7080
   Begin KelControls8.KelText txtName
      Height          =   300
      Left            =   240
      TabIndex        =   0
      Top             =   240
      Width           =   6600
      Caption         =   "&Name"
      CaptionWidth    =   1500
   End
   Begin KelControls8.KelNumber numFee
      Height          =   300
      Left            =   240
      TabIndex        =   1
      Top             =   630
      Width           =   3300
      Caption         =   "&Fee"
      CaptionWidth    =   1500
      Decimals        =   2
      Mandatory       =   0   'False
      MaxValue        =   9999
   End
   Begin KelControls8.KelDate datJoined
      Height          =   300
      Left            =   240
      TabIndex        =   2
      Top             =   1020
      Width           =   3300
      Caption         =   "&Joined"
      CaptionWidth    =   1500
      Format          =   "dd/mm/yyyy"
      Mandatory       =   0   'False
      Value           =   ""
   End
   Begin KelControls8.KelTime timMeets
      Height          =   300
      Left            =   240
      TabIndex        =   3
      Top             =   1410
      Width           =   3300
      Caption         =   "Meets at"
      CaptionWidth    =   1500
      DataField       =   "meeting time"
      Format          =   "hh:mm"
      Mandatory       =   0   'False
      Value           =   ""
   End
   Begin KelControls8.KelCombo cboBranch
      Height          =   300
      Left            =   240
      TabIndex        =   4
      Top             =   1800
      Width           =   3300
      Caption         =   "Branch"
      CaptionWidth    =   1500
      DataField       =   "branch:tag"
      List            =   "North,South,West"
      ListTag         =   "N,S,W"
      Mandatory       =   0   'False
   End
   Begin KelControls8.KelCheck chkActive
      Height          =   300
      Left            =   240
      TabIndex        =   5
      Top             =   2190
      Width           =   3300
      Caption         =   "Active"
      Value           =   -1  'True
   End
End
Attribute VB_Name = "frmClubMember"
