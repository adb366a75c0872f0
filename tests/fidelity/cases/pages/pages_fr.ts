<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
 <name>Main</name>
 <message>
  <source>Main window</source>
  <translation>Fenêtre principale</translation>
 </message>
 <message>
  <source>General</source>
  <translation>Général</translation>
 </message>
 <message>
  <source>Most used</source>
  <translation>Le plus utilisé</translation>
 </message>
 <message>
  <source>Advanced</source>
  <translation>Avancé</translation>
 </message>
 <message>
  <source>Name</source>
  <translation>Nom</translation>
 </message>
 <message>
  <source>Depth</source>
  <translation>Profondeur</translation>
 </message>
 <message>
  <source>Colours</source>
  <translation>Couleurs</translation>
 </message>
 <message>
  <source>Shapes</source>
  <translation>Formes</translation>
 </message>
 <message>
  <source>Red</source>
  <translation>Rouge</translation>
 </message>
 <message>
  <source>First page</source>
  <translation>Première page</translation>
 </message>
 <message>
  <source>Second page</source>
  <translation>Deuxième page</translation>
 </message>
 <message>
  <source>&amp;File</source>
  <translation>&amp;Fichier</translation>
 </message>
 <message>
  <source>Recent</source>
  <translation>Récents</translation>
 </message>
 <message>
  <source>Standard</source>
  <translation>Standard (fr)</translation>
 </message>
 <message>
  <source>Log</source>
  <translation>Journal</translation>
 </message>
 <message>
  <source>...</source>
  <translation>…</translation>
 </message>
 <message>
  <source>Clear the log</source>
  <translation>Vider le journal</translation>
 </message>
 <message>
  <source>&amp;Save...</source>
  <translation>&amp;Enregistrer...</translation>
 </message>
 <message>
  <source>Print</source>
  <translation>Imprimer</translation>
 </message>
 <message>
  <source>Print the page</source>
  <translation>Imprimer la page</translation>
 </message>
 <message>
  <source>Quit</source>
  <translation>Quitter</translation>
 </message>
 <message>
  <source>Last file</source>
  <translation>Dernier fichier</translation>
 </message>
 <message>
  <source>Zoom in</source>
  <translation>Agrandir</translation>
 </message>
 <message>
  <source>In</source>
  <translation>Plus</translation>
 </message>
</context>
<context>
 <name>Assistant</name>
 <message>
  <source>Assistant</source>
  <translation>Assistant (fr)</translation>
 </message>
 <message>
  <source>Welcome</source>
  <translation>Bienvenue</translation>
 </message>
 <message>
  <source>It takes a minute</source>
  <translation>Cela prend une minute</translation>
 </message>
 <message>
  <source>Press Next</source>
  <translation>Appuyez sur Suivant</translation>
 </message>
 <message>
  <source>Done</source>
  <translation>Terminé</translation>
 </message>
</context>
</TS>
