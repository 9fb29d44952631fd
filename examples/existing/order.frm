VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmOrder 
   Caption         =   "Order"
   ClientHeight    =   1980
   ClientWidth     =   5040
   Begin VB.Frame fraLine 
      Caption         =   "Line"
      Height          =   1260
      Left            =   120
      TabIndex        =   0
      Top             =   60
      Width           =   4800
      Begin KelControls8.KelCombo cboArticle 
         Height          =   300
         Left            =   120
         TabIndex        =   1
         Top             =   300
         Width           =   4500
         Caption         =   "Article"
         CaptionWidth    =   1200
         List            =   "Bolt,Nut,Washer"
         Text            =   "Screw"
      End
      Begin KelControls8.KelNumber numQuantity 
         Height          =   300
         Left            =   120
         TabIndex        =   2
         Top             =   720
         Width           =   4500
         BorderStyle     =   1
         Caption         =   "Quantity"
         CaptionWidth    =   1200
         Decimals        =   0
         Value           =   12
      End
   End
   Begin VB.CommandButton cmdSave 
      Caption         =   "&Save"
      Height          =   360
      Left            =   3720
      TabIndex        =   3
      Top             =   1440
      Width           =   1200
   End
End
Attribute VB_Name = "frmOrder"
Private Sub cmdSave_Click()
   ' This stays as it is.
End Sub
