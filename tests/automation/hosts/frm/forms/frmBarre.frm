VERSION 5.00
Begin VB.Form frmBarre 
   Caption         =   "Barre d'outils € œ"
   ClientWidth     =   9000
   Begin MSComctlLib.Toolbar tbMain 
      Align           =   1  'Align Top
      Left            =   0
      ToolTipText     =   "La barre"
      Width           =   9000
      BeginProperty Buttons {66833FE8-8583-11D1-B16A-00C0F0283628} 
         NumButtons      =   4
         BeginProperty Button1 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Caption         =   "Ouvrir"
            Key             =   "Open"
            Object.ToolTipText     =   "Ouvre un dossier"
            BeginProperty ButtonMenus {66833FEC-8583-11D1-B16A-00C0F0283628} 
               NumButtonMenus  =   2
               BeginProperty ButtonMenu1 {66833FEE-8583-11D1-B16A-00C0F0283628} 
                  Key             =   "Recent"
                  Text            =   "Récents"
               EndProperty
               BeginProperty ButtonMenu2 {66833FEE-8583-11D1-B16A-00C0F0283628} 
                  Text            =   "Sans clé"
               EndProperty
            EndProperty
         EndProperty
         BeginProperty Button2 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Style           =   3
         EndProperty
         BeginProperty Button3 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Object.ToolTipText     =   "Sans clé, reçoit le texte de la barre"
         EndProperty
         BeginProperty Button4 {66833FEA-8583-11D1-B16A-00C0F0283628} 
            Caption         =   "Barre"
            Key             =   "a\b"
         EndProperty
      EndProperty
   End
   Begin VB.Timer Timer1 
      Interval        =   100
      Left            =   10
   End
   Begin VB.PictureBox pic 
      Left            =   0
      Tag             =   "pic"
      Width           =   10
      Begin VB.Label pic2 
         Caption         =   "Un"
         Left            =   0
         Tag             =   "Contexte[C]"
         ToolTipText     =   "Deux"
         Width           =   10
      End
   End
   Begin VB.Label Label1 
      Caption         =   ""
      Left            =   0
      Width           =   10
   End
End
