VERSION 5.00
Object = "{0992557C-BAC4-4203-B9CA-4ED27EA3B85A}#1.4#0"; "KelControls8.ocx"
Begin VB.Form frmAddress 
   Caption         =   "Address"
   ClientHeight    =   3840
   ClientWidth     =   6080
   Begin KelControls8.KelCombo cboTitle 
      Height          =   300
      Left            =   240
      TabIndex        =   0
      Top             =   240
      Width           =   3300
      Caption         =   "&Title"
      CaptionWidth    =   1500
      LimitToList     =   0   'False
      List            =   "Ms,Mr,Dr,Prof. Dr"
      Mandatory       =   0   'False
      MaxLength       =   20
      SelectOnFocus   =   -1  'True
   End
   Begin KelControls8.KelText txtName 
      Height          =   300
      Left            =   240
      TabIndex        =   1
      Top             =   630
      Width           =   5600
      Caption         =   "&Name"
      CaptionWidth    =   1500
      MaxLength       =   40
      SelectOnFocus   =   -1  'True
      Text            =   "Katharina Vogt"
   End
   Begin KelControls8.KelText txtStreet 
      Height          =   300
      Left            =   240
      TabIndex        =   2
      Top             =   1020
      Width           =   5600
      Caption         =   "&Street"
      CaptionWidth    =   1500
      MaxLength       =   40
      SelectOnFocus   =   -1  'True
      Text            =   "Am Alten Hafen 12"
   End
   Begin KelControls8.KelCombo cboTown 
      Height          =   300
      Left            =   240
      TabIndex        =   3
      Top             =   1410
      Width           =   4400
      Caption         =   "T&own"
      CaptionWidth    =   1500
      List            =   "Aachen,Augsburg,Bad Homburg,Bad Honnef,Bad Kissingen,Berlin,Bielefeld,Bochum,Bonn,Bremen,Bremerhaven,Chemnitz,Cottbus,Darmstadt,Dessau,Dortmund,Dresden,Duisburg,Düren,Düsseldorf,Erfurt,Erlangen,Essen,Flensburg,Frankfurt (Oder),Frankfurt am Main,Freiburg,Fulda,Göttingen,Halle (Saale),Hamburg,Hannover,Heidelberg,Jena,Karlsruhe,Kassel,Kiel,Köln,Leipzig,Lübeck,Mainz,Mannheim,München,Münster,Nürnberg,Potsdam,Regensburg,Rostock,Saarbrücken,Stuttgart,Trier,Ulm,Wiesbaden,Wuppertal,Würzburg"
      ListTag         =   "52062,86150,61348,53604,97688,10115,33602,44787,53111,28195,27568,09111,03046,64283,06844,44135,01067,47051,52349,40210,99084,91052,45127,24937,15230,60311,79098,36037,37073,06108,20095,30159,69115,07743,76133,34117,24103,50667,04103,23552,55116,68159,80331,48143,90402,14467,93047,18055,66111,70173,54290,89073,65183,42103,97070"
      SelectOnFocus   =   -1  'True
      Text            =   "Bremen"
   End
   Begin KelControls8.KelText txtCode 
      Height          =   300
      Left            =   4760
      TabIndex        =   4
      Top             =   1410
      Width           =   1080
      Locked          =   -1  'True
      Mandatory       =   0   'False
      TabStop         =   0   'False
      Text            =   "28195"
   End
   Begin KelControls8.KelCombo cboCountry 
      Height          =   300
      Left            =   240
      TabIndex        =   5
      Top             =   1800
      Width           =   3900
      Caption         =   "&Country"
      CaptionWidth    =   1500
      DropDownWidth   =   4200
      List            =   "Austria,Belgium,""Bonaire, Sint Eustatius and Saba"",Denmark,France,Germany,Luxembourg,Netherlands,Poland,Switzerland"
      ListTag         =   "AT,BE,BQ,DK,FR,DE,LU,NL,PL,CH"
      SelectOnFocus   =   -1  'True
      Text            =   "Germany"
   End
   Begin KelControls8.KelCombo cboRoute 
      Height          =   300
      Left            =   240
      TabIndex        =   6
      Top             =   2190
      Width           =   3900
      Caption         =   "Route"
      CaptionWidth    =   1500
      List            =   "Night,Morning,Afternoon"
      Locked          =   -1  'True
      Mandatory       =   0   'False
      Text            =   "Morning"
   End
   Begin KelControls8.KelCombo cboDepot 
      Height          =   300
      Left            =   240
      TabIndex        =   7
      Top             =   2580
      Width           =   3900
      Caption         =   "Depot"
      CaptionWidth    =   1500
      Enabled         =   0   'False
      List            =   "North,South"
      Mandatory       =   0   'False
      Text            =   "North"
   End
   Begin VB.CommandButton cmdOk 
      Height          =   375
      Left            =   4580
      TabIndex        =   8
      Top             =   3230
      Width           =   1260
      Caption         =   "OK"
   End
End
Attribute VB_Name = "frmAddress"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub cboTown_Change()
    txtCode.Text = cboTown.ListTagItem
End Sub

Private Sub cboCountry_ChangeEx(Handled As Boolean)
    Handled = (cboCountry.ListTagItem = "DE") Or MsgBox("Deliver abroad?", vbYesNo) = vbYes
End Sub

Private Sub cmdOk_Click()
    If cboTown.Valid And cboCountry.Valid Then Unload Me
End Sub
