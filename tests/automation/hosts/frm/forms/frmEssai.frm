VERSION 5.00
Object = "{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0"; "MSCOMCTL.OCX"
Begin VB.Form frmEssai 
   Caption         =   "Une ""fenêtre"" d'essai"
   ClientHeight    =   3000
   ClientLeft      =   60
   ClientWidth     =   6000
   Icon            =   "frmEssai.frx":0000
   Begin VB.Frame frmEssai2 
      Caption         =   "Cadre"
      Height          =   900
      Left            =   120
      Tag             =   "PAS TRADUIT"
      ToolTipText     =   "Ce cadre n'est pas traduit"
      Width           =   2000
      Begin VB.CommandButton cmdOk 
         Caption         =   "&Valider"
         Index           =   0
         Left            =   -75000
         Tag             =   "[T]"
         ToolTipText     =   "Enregistre"
         Width           =   900
      End
      Begin VB.CommandButton cmdOk 
         Caption         =   "&Annuler"
         Index           =   2
         Left            =   100
         Tag             =   "Vente[C]"
         ToolTipText     =   "Oublie tout"
         Width           =   900
      End
   End
   Begin VB.CommandButton cmdOk 
      BeginProperty Font 
         Name            =   "Arial"
         Size            =   8.25
      EndProperty
      Caption         =   "  && co  "
      Index           =   7
      Left            =   0
      Visible         =   0   'False
      Width           =   0
   End
   Begin VB.Menu mnuFichier 
      Caption         =   "&Fichier"
      Begin VB.Menu mnuOuvrir 
         Caption         =   "&Ouvrir..."
         Shortcut        =   ^O
      End
      Begin VB.Menu mnuTrait 
         Caption         =   "-"
         Index           =   0
      End
   End
End
Attribute VB_Name = "frmEssai"
