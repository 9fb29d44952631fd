VERSION 5.00
Object = "{6A2F1C30-5D0B-4E55-9B54-0C9E1E0F7A11}#1.4#0"; "KelControls8.ocx"
Object = "{F9043C88-F6F2-101A-A3C9-08002B2F49FB}#1.2#0"; "COMDLG32.OCX"
Begin VB.Form frmOrders 
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Orders for Café ""Zürich"""
   ClientHeight    =   4500
   ClientLeft      =   45
   ClientTop       =   735
   ClientWidth     =   7200
   BeginProperty Font 
      Name            =   "Tahoma"
      Size            =   8.25
      Charset         =   0
      Weight          =   400
      Underline       =   0   'False
      Italic          =   0   'False
      Strikethrough   =   0   'False
   EndProperty
   Icon            =   "orders.frx":0000
   LinkTopic       =   "Form1"
   MaxButton       =   0   'False
   ScaleHeight     =   4500
   ScaleWidth      =   7200
   StartUpPosition =   3  'Windows Default
   Begin VB.Frame fraCustomer 
      BackColor       =   &H80000005&
      Caption         =   "Customer"
      Height          =   2295
      Left            =   120
      TabIndex        =   1
      Top             =   120
      Width           =   6975
      Begin KelControls8.KelText txtName 
         Height          =   300
         Left            =   120
         TabIndex        =   2
         Top             =   240
         Width           =   4005
         _ExtentX        =   7064
         _ExtentY        =   529
         Caption         =   "Name"
         CaptionWidth    =   1200
         MaxLength       =   40
         Text            =   "Renée"
      End
      Begin KelControls8.KelText txtNotes 
         Height          =   900
         Left            =   120
         TabIndex        =   3
         Top             =   660
         Width           =   4005
         _ExtentX        =   7064
         _ExtentY        =   1588
         Caption         =   "Notes"
         CaptionWidth    =   1200
         MultiLine       =   -1  'True
         Text            =   $"orders.frx":0042
      End
      Begin VB.OptionButton optPaid 
         Caption         =   "Paid"
         Height          =   255
         Index           =   0
         Left            =   4320
         TabIndex        =   4
         Top             =   240
         Width           =   1215
      End
      Begin VB.OptionButton optPaid 
         Caption         =   "Open"
         Height          =   255
         Index           =   1
         Left            =   4320
         TabIndex        =   5
         Top             =   600
         Width           =   1215
      End
   End
   Begin KelControls8.KelNumber numTotal 
      Height          =   300
      Left            =   120
      TabIndex        =   0
      Top             =   2640
      Width           =   3000
      _ExtentX        =   5292
      _ExtentY        =   529
      Caption         =   "Total"
      Decimals        =   2
      Enabled         =   0   'False
      MaxValue        =   1E+20
      MinValue        =   -1.5
      UpDownChange    =   .25
   End
   Begin VB.Line linBottom 
      X1              =   120
      X2              =   7080
      Y1              =   3120
      Y2              =   3120
   End
   Begin VB.Menu mnuFile 
      Caption         =   "&File"
      Begin VB.Menu mnuFileClose 
         Caption         =   "&Close"
         Shortcut        =   ^W
      End
   End
End
Attribute VB_Name = "frmOrders"
Attribute VB_GlobalNameSpace = False
Attribute VB_PredeclaredId = True
Option Explicit

' Prüft die Summe.   
Private Sub numTotal_Change()
    If numTotal.Value > 100 Then Begin = "no block"   
	txtName.Text = "End"

End Sub
   
' the last line has no end