VERSION 5.00
Begin VB.MDIForm frmOnglets 
   Caption         =   "Onglets"
   ClientLeft      =   165
   ClientWidth     =   9000
   Tag             =   "Principal"
   Begin TabDlg.SSTab ssDonnees 
      Height          =   2000
      Left            =   10
      ToolTipText     =   "Les données"
      Width           =   4000
      Tab             =   1
      TabCaption(0)   =   "Général"
      Tab(0).ControlEnabled=   0   'False
      Tab(0).Control(0)=   "lblNom(0)"
      TabCaption(1)   =   "Détails"
      Begin VB.Label lblNom 
         Caption         =   "Nom :"
         Index           =   0
         Left            =   -74880
         Width           =   800
      End
      Begin VB.Label lblNom 
         Caption         =   "Prénom :"
         Index           =   1
         Left            =   120
         Tag             =   "0"
         Width           =   800
      End
   End
   Begin TabDlg.SSTab ssVente 
      Left            =   10
      Tabs            =   2
      Tag             =   "Vente"
      Width           =   4000
      TabCaption(0)   =   "Achat"
      TabCaption(1)   =   ""
   End
   Begin TabDlg.SSTab ssMuet 
      Left            =   10
      Tabs            =   1
      Tag             =   "[T]"
      Width           =   4000
      TabCaption(0)   =   "Reste"
   End
   Begin MSComctlLib.TabStrip tsAutre 
      Left            =   10
      Width           =   4000
      BeginProperty Tabs {1EFB6598-857C-11D1-B16A-00C0F0283628} 
         NumTabs         =   1
         BeginProperty Tab1 {1EFB659A-857C-11D1-B16A-00C0F0283628} 
            Caption         =   "Ailleurs"
         EndProperty
      EndProperty
   End
   Begin VB.Frame frmOnglets 
      Caption         =   "Du nom de la feuille"
      Left            =   0
      Width           =   100
      Begin VB.Frame Cadre 
         Caption         =   "Dedans"
         Left            =   0
         Width           =   100
         Begin VB.CheckBox chkA 
            Caption         =   "Ligne un"
            Left            =   1
            Width           =   1
         End
      End
   End
End
