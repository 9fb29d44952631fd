VERSION 5.00
Begin VB.Form Lager
   Caption = "Łódź – Lager №1"
   ClientHeight = 2000
   ClientWidth = 4000
   ' fields, from top to bottom
   Begin KelControls8.KelCombo Stadt
      Left = 100
      Top = 200
      Width = 3000
      _ExtentX = 5292
      Caption = "Miasto"
      List = "Łódź,Kraków"
   End

   Begin KelControls8.KelCheck Aktiv
   End
End
Attribute VB_Name = "Lager"
' źródło
