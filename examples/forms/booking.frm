VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmBooking 
   Caption         =   "Booking"
   ClientHeight    =   3600
   ClientWidth     =   6780
   Begin KelControls8.KelText txtGuest 
      Height          =   300
      Left            =   240
      TabIndex        =   0
      Top             =   240
      Width           =   6300
      Caption         =   "&Guest"
      CaptionWidth    =   1500
      SelectOnFocus   =   -1  'True
      Text            =   "Ada Byron"
   End
   Begin KelControls8.KelDate datBirth 
      Height          =   300
      Left            =   240
      TabIndex        =   1
      ToolTipText     =   "Day, month, year"
      Top             =   630
      Width           =   3600
      Caption         =   "&Born"
      CaptionWidth    =   1500
      DaysFlag        =   3
      Mandatory       =   0   'False
      SelectOnFocus   =   -1  'True
      UpDown          =   0   'False
      Value           =   "10121985"
   End
   Begin KelControls8.KelDate datArrival 
      Height          =   300
      Left            =   240
      TabIndex        =   2
      Top             =   1020
      Width           =   3600
      Caption         =   "&Arrival"
      CaptionWidth    =   1500
      Format          =   "ddd dd mmm yyyy"
      MaxValue        =   55153
      MinValue        =   40909
      SelectOnFocus   =   -1  'True
      Value           =   "21112026"
   End
   Begin KelControls8.KelTime timArrival 
      Height          =   300
      Left            =   240
      TabIndex        =   3
      Top             =   1410
      Width           =   3600
      Caption         =   "A&t"
      CaptionWidth    =   1500
      Format          =   "hh:nn am/pm"
      SelectOnFocus   =   -1  'True
      Value           =   "14:00:00"
   End
   Begin KelControls8.KelDate datDeparture 
      Height          =   300
      Left            =   240
      TabIndex        =   4
      Top             =   1800
      Width           =   3600
      Caption         =   "&Departure"
      CaptionWidth    =   1500
      Mandatory       =   0   'False
      SelectOnFocus   =   -1  'True
      Value           =   ""
   End
   Begin KelControls8.KelTime timBreakfast 
      Height          =   300
      Left            =   240
      TabIndex        =   5
      Top             =   2190
      Width           =   3600
      Caption         =   "Brea&kfast"
      CaptionWidth    =   1500
      Format          =   "hh:nn"
      Mandatory       =   0   'False
      MaxValue        =   0.4375
      MinValue        =   0.25
      SelectOnFocus   =   -1  'True
      Value           =   "07:30:00"
   End
   Begin KelControls8.KelDate datInvoice 
      Height          =   300
      Left            =   240
      TabIndex        =   6
      Top             =   2580
      Width           =   3600
      Caption         =   "&Invoice of"
      CaptionWidth    =   1500
      DaysFlag        =   2
      Format          =   "mmmm yyyy"
      Locked          =   -1  'True
      Mandatory       =   0   'False
      Value           =   "30112026"
   End
   Begin KelControls8.KelDate datDeposit 
      Height          =   300
      Left            =   240
      TabIndex        =   7
      Top             =   2970
      Width           =   3600
      Caption         =   "Deposit due"
      CaptionWidth    =   1500
      Enabled         =   0   'False
      Mandatory       =   0   'False
      Value           =   "01112026"
   End
   Begin VB.CommandButton cmdBook 
      Height          =   375
      Left            =   5280
      TabIndex        =   8
      Top             =   3000
      Width           =   1260
      Caption         =   "Book"
   End
End
Attribute VB_Name = "frmBooking"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub cmdBook_Click()
    If datArrival.Valid(True) And timArrival.Valid(True) And datDeparture.Valid(True) Then Unload Me
End Sub

Private Sub datArrival_Change()
    datDeparture.MinValue = datArrival.Value
End Sub
