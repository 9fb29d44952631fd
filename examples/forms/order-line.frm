VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmOrderLine 
   Caption         =   "Order line"
   ClientHeight    =   3270
   ClientWidth     =   7080
   Begin KelControls8.KelText txtArticle 
      Height          =   300
      Left            =   240
      TabIndex        =   0
      Top             =   240
      Width           =   6600
      Caption         =   "&Article"
      CaptionWidth    =   1500
      MaxLength       =   30
      SelectOnFocus   =   -1  'True
      Text            =   "Copper pipe 15 mm"
   End
   Begin KelControls8.KelNumber numQuantity 
      Height          =   300
      Left            =   240
      TabIndex        =   1
      ToolTipText     =   "Pieces, 1 to 9,999"
      Top             =   630
      Width           =   3300
      Caption         =   "&Quantity"
      CaptionWidth    =   1500
      Decimals        =   0
      MaxValue        =   9999
      MinValue        =   1
      SelectOnFocus   =   -1  'True
      UpDown          =   -1  'True
      Value           =   12
   End
   Begin KelControls8.KelNumber numPrice 
      Height          =   300
      Left            =   240
      TabIndex        =   2
      Top             =   1020
      Width           =   3300
      Caption         =   "Unit &price"
      CaptionWidth    =   1500
      Decimals        =   2
      MaxValue        =   9999999
      MinValue        =   0
      SelectOnFocus   =   -1  'True
      Value           =   1234.56
   End
   Begin KelControls8.KelNumber numDiscount 
      Height          =   300
      Left            =   240
      TabIndex        =   3
      Top             =   1410
      Width           =   3300
      Caption         =   "&Discount %"
      CaptionWidth    =   1500
      Decimals        =   1
      Mandatory       =   0   'False
      MaxValue        =   100
      MinValue        =   0
      SelectOnFocus   =   -1  'True
      UpDown          =   -1  'True
      UpDownChange    =   0.5
      Value           =   2.5
   End
   Begin KelControls8.KelNumber numBalance 
      Height          =   300
      Left            =   240
      TabIndex        =   4
      Top             =   1800
      Width           =   3300
      Caption         =   "Account &balance"
      CaptionWidth    =   1500
      Decimals        =   2
      Locked          =   -1  'True
      Mandatory       =   0   'False
      MaxValue        =   9999999
      MinValue        =   -9999999
      Value           =   -4310.75
   End
   Begin KelControls8.KelNumber numPoints 
      Height          =   300
      Left            =   240
      TabIndex        =   5
      Top             =   2190
      Width           =   3300
      Caption         =   "Loyalty points"
      CaptionWidth    =   1500
      Decimals        =   0
      Enabled         =   0   'False
      Mandatory       =   0   'False
      MaxValue        =   1000000
      UpDown          =   -1  'True
      Value           =   23400
   End
   Begin KelControls8.KelNumber numTotal 
      Height          =   300
      Left            =   240
      TabIndex        =   6
      Top             =   2700
      Width           =   3300
      Caption         =   "Total"
      CaptionWidth    =   1500
      Decimals        =   2
      FontBold        =   -1  'True
      Locked          =   -1  'True
      Mandatory       =   0   'False
      MaxValue        =   99999999
      MinValue        =   -99999999
      TabStop         =   0   'False
      Value           =   14444.35
   End
   Begin VB.CommandButton cmdOk 
      Height          =   375
      Left            =   5580
      TabIndex        =   7
      Top             =   2660
      Width           =   1260
      Caption         =   "OK"
   End
End
Attribute VB_Name = "frmOrderLine"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub ShowTotal()
    numTotal.Value = numQuantity.Value * numPrice.Value * (100 - numDiscount.Value) / 100
End Sub

Private Sub numQuantity_Change()
    ShowTotal
End Sub

Private Sub numDiscount_Change()
    ShowTotal
End Sub

Private Sub cmdOk_Click()
    If numQuantity.Valid(True) And numPrice.Valid(True) And numDiscount.Valid(True) Then Unload Me
End Sub
