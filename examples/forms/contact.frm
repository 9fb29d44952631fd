VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmContact 
   BorderStyle     =   1  'Fixed Single
   Caption         =   "Contact"
   ClientHeight    =   5160
   ClientLeft      =   45
   ClientTop       =   330
   ClientWidth     =   7680
   LinkTopic       =   "frmContact"
   MaxButton       =   0   'False
   ScaleHeight     =   5160
   ScaleWidth      =   7680
   StartUpPosition =   2  'CenterScreen
   Begin VB.Frame fraAddress 
      Caption         =   "Address"
      Height          =   1935
      Left            =   240
      TabIndex        =   1
      Top             =   780
      Width           =   7215
      Begin KelControls8.KelText txtName 
         Height          =   300
         Left            =   180
         TabIndex        =   2
         ToolTipText     =   "First name and last name"
         Top             =   300
         Width           =   4560
         _ExtentX        =   8043
         _ExtentY        =   529
         Caption         =   "&Name"
         CaptionWidth    =   1200
         MaxLength       =   40
         SelectOnFocus   =   -1  'True
      End
      Begin KelControls8.KelText txtStreet 
         Height          =   300
         Left            =   180
         TabIndex        =   3
         Top             =   690
         Width           =   6840
         _ExtentX        =   12065
         _ExtentY        =   529
         Caption         =   "&Street"
         CaptionWidth    =   1200
         Mandatory       =   0   'False
         Text            =   "Harbour Lane 12"
      End
      Begin KelControls8.KelText txtPostcode 
         Height          =   300
         Left            =   180
         TabIndex        =   4
         Top             =   1080
         Width           =   2400
         _ExtentX        =   4233
         _ExtentY        =   529
         Caption         =   "&Postcode"
         CaptionWidth    =   1200
         InsertMode      =   0   'False
         MaxLength       =   8
         Text            =   "AB1 2CD"
      End
      Begin KelControls8.KelText txtTown 
         Height          =   300
         Left            =   2760
         TabIndex        =   5
         Top             =   1080
         Width           =   4260
         _ExtentX        =   7514
         _ExtentY        =   529
         Caption         =   "&Town"
         CaptionWidth    =   720
         Mandatory       =   0   'False
         SelectOnFocus   =   -1  'True
         Text            =   "Stonehaven"
      End
      Begin KelControls8.KelText txtCountry 
         Height          =   300
         Left            =   180
         TabIndex        =   6
         Top             =   1470
         Width           =   4560
         _ExtentX        =   8043
         _ExtentY        =   529
         Caption         =   "Country"
         CaptionWidth    =   1200
         Enabled         =   0   'False
         Mandatory       =   0   'False
         Text            =   "United Kingdom"
      End
   End
   Begin KelControls8.KelText txtCustomer 
      Height          =   300
      Left            =   420
      TabIndex        =   7
      Top             =   2880
      Width           =   3240
      _ExtentX        =   5715
      _ExtentY        =   529
      Caption         =   "Customer"
      CaptionWidth    =   1200
      Locked          =   -1  'True
      Mandatory       =   0   'False
      Text            =   "C-004711"
   End
   Begin KelControls8.KelText txtPassword 
      Height          =   300
      Left            =   3960
      TabIndex        =   8
      Top             =   2880
      Width           =   3300
      _ExtentX        =   5821
      _ExtentY        =   529
      Caption         =   "Pass&word"
      CaptionWidth    =   1080
      MaxLength       =   20
      PasswordChar    =   "*"
      Text            =   "secret"
   End
   Begin KelControls8.KelText txtNote 
      Height          =   1140
      Left            =   420
      TabIndex        =   9
      Top             =   3330
      Width           =   6840
      _ExtentX        =   12065
      _ExtentY        =   2011
      Caption         =   "N&ote"
      CaptionWidth    =   1200
      Mandatory       =   0   'False
      MultiLine       =   -1  'True
      Text            =   $"contact.frx":0000
   End
   Begin VB.CommandButton cmdSave 
      Caption         =   "Sa&ve"
      Default         =   -1  'True
      Height          =   375
      Left            =   6000
      TabIndex        =   10
      Top             =   4620
      Width           =   1260
   End
   Begin VB.Label lblHeading 
      Caption         =   "Who is it, and where do we write to?"
      Height          =   255
      Left            =   240
      TabIndex        =   0
      Top             =   300
      Width           =   7215
   End
End
Attribute VB_Name = "frmContact"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub cmdSave_Click()
    If Not txtName.Valid Then
        txtName.SetFocus
        Exit Sub
    End If
    txtName.TextSaved = txtName.Text
End Sub

Private Sub txtName_Change()
    cmdSave.Enabled = txtName.ChangedSaved
End Sub
