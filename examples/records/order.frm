VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmOrders
   Caption         =   "Orders"
   ClientHeight    =   4500
   ClientWidth     =   9480
   Begin VB.Frame fraOrder
      Caption         =   "Order"
      Height          =   1980
      Left            =   240
      TabIndex        =   0
      Top             =   180
      Width           =   9000
      Begin KelControls8.KelNumber numId
         Height          =   300
         Left            =   180
         TabIndex        =   1
         TabStop         =   0   'False
         ToolTipText     =   "Given by the database"
         Top             =   360
         Width           =   2640
         Caption         =   "Number"
         CaptionWidth    =   1320
         Decimals        =   0
         GroupDigits     =   0   'False
         Locked          =   -1  'True
         Mandatory       =   0   'False
         MaxValue        =   2147483647
      End
      Begin KelControls8.KelDate datOrderDate
         Height          =   300
         Left            =   5160
         TabIndex        =   4
         Top             =   360
         Width           =   3420
         Caption         =   "&Order date"
         CaptionWidth    =   1500
         Format          =   "dd/mm/yyyy"
         Mandatory       =   -1  'True
         Value           =   "Now"
      End
      Begin KelControls8.KelCombo cboCustomer
         DataField       =   "customer_id:tag"
         Height          =   300
         Left            =   180
         TabIndex        =   2
         ToolTipText     =   "Type the first letters, or open the list with the Down key"
         Top             =   750
         Width           =   4800
         Caption         =   "&Customer"
         CaptionWidth    =   1320
         Mandatory       =   -1  'True
      End
      Begin KelControls8.KelDate datWantedDate
         Height          =   300
         Left            =   5160
         TabIndex        =   5
         Top             =   750
         Width           =   3420
         Caption         =   "&Wanted by"
         CaptionWidth    =   1500
         Format          =   "dd/mm/yyyy"
         Mandatory       =   0   'False
         Value           =   ""
      End
      Begin KelControls8.KelText txtReference
         Height          =   300
         Left            =   180
         TabIndex        =   3
         ToolTipText     =   "The customer's own number of the order"
         Top             =   1140
         Width           =   4080
         Caption         =   "Re&ference"
         CaptionWidth    =   1320
         Mandatory       =   0   'False
         MaxLength       =   20
      End
      Begin KelControls8.KelCombo cboEmployee
         DataField       =   "employee_id:tag"
         Height          =   300
         Left            =   5160
         TabIndex        =   6
         Top             =   1140
         Width           =   3660
         Caption         =   "&Sold by"
         CaptionWidth    =   1500
         Mandatory       =   0   'False
      End
      Begin KelControls8.KelText txtNotes
         Height          =   300
         Left            =   180
         TabIndex        =   7
         Top             =   1530
         Width           =   8640
         Caption         =   "&Notes"
         CaptionWidth    =   1320
         Mandatory       =   0   'False
      End
   End
   Begin VB.Frame fraPayment
      Caption         =   "Payment"
      Height          =   1980
      Left            =   240
      TabIndex        =   8
      Top             =   2340
      Width           =   4440
      Begin KelControls8.KelCombo cboPaymentTerm
         DataField       =   "payment_term_code:tag"
         Height          =   300
         Left            =   180
         TabIndex        =   9
         Top             =   360
         Width           =   4080
         Caption         =   "&Terms"
         CaptionWidth    =   1320
         Mandatory       =   -1  'True
      End
      Begin KelControls8.KelNumber numGoodsTotal
         Height          =   300
         Left            =   180
         TabIndex        =   10
         ToolTipText     =   "Of the goods, before discount"
         Top             =   750
         Width           =   3000
         Caption         =   "&Amount"
         CaptionWidth    =   1320
         Decimals        =   2
         Mandatory       =   0   'False
         MaxValue        =   9999999.99
      End
      Begin KelControls8.KelNumber numDiscount
         Height          =   300
         Left            =   180
         TabIndex        =   11
         Top             =   1140
         Width           =   2640
         Caption         =   "&Discount %"
         CaptionWidth    =   1320
         Decimals        =   1
         Mandatory       =   0   'False
         MaxValue        =   50
         UpDown          =   -1  'True
         UpDownChange    =   .5
      End
      Begin KelControls8.KelCheck chkIsPaid
         Height          =   300
         Left            =   1515
         TabIndex        =   12
         Top             =   1560
         Width           =   1500
         Caption         =   "&Paid"
         Mandatory       =   0   'False
         Value           =   0   'False
      End
   End
   Begin VB.Frame fraDelivery
      Caption         =   "Delivery"
      Height          =   1980
      Left            =   4860
      TabIndex        =   13
      Top             =   2340
      Width           =   4380
      Begin KelControls8.KelCombo cboShipper
         DataField       =   "shipper_id:tag"
         Height          =   300
         Left            =   180
         TabIndex        =   14
         Top             =   360
         Width           =   4020
         Caption         =   "Sh&ipper"
         CaptionWidth    =   1320
         Mandatory       =   0   'False
      End
      Begin KelControls8.KelNumber numFreight
         Height          =   300
         Left            =   180
         TabIndex        =   15
         Top             =   750
         Width           =   2640
         Caption         =   "Fr&eight"
         CaptionWidth    =   1320
         Decimals        =   2
         Mandatory       =   0   'False
         MaxValue        =   99999.99
      End
      Begin KelControls8.KelDate datShippedAt
         Height          =   300
         Left            =   180
         TabIndex        =   16
         Top             =   1140
         Width           =   3000
         Caption         =   "Shipped o&n"
         CaptionWidth    =   1320
         Format          =   "dd/mm/yyyy"
         Mandatory       =   0   'False
         Value           =   ""
      End
      Begin KelControls8.KelTime timShippedAt
         Height          =   300
         Left            =   180
         TabIndex        =   17
         Top             =   1530
         Width           =   2460
         Caption         =   "at"
         CaptionWidth    =   1320
         Format          =   "hh:nn"
         Mandatory       =   0   'False
         Value           =   ""
      End
   End
End
Attribute VB_Name = "frmOrders"
