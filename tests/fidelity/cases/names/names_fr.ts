<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
 <name>NamesDialog</name>
 <message>
  <source>Names</source>
  <translation>Noms</translation>
 </message>
 <message>
  <source>First</source>
  <translation>Premier</translation>
 </message>
 <message>
  <source>Second</source>
  <translation>Deuxième</translation>
 </message>
 <message>
  <source>Left</source>
  <translation>Gauche</translation>
 </message>
 <message>
  <source>Right</source>
  <translation>Droite</translation>
 </message>
 <message>
  <source>Right side</source>
  <translation>Côté droit</translation>
 </message>
 <message>
  <source>Resize</source>
  <translation>Redimensionner</translation>
 </message>
 <message>
  <source>Your name</source>
  <translation>Votre nom</translation>
 </message>
</context>
<context>
 <name>NamesWindow</name>
 <message>
  <source>Window</source>
  <translation>Fenêtre</translation>
 </message>
 <message>
  <source>&amp;File</source>
  <translation>&amp;Fichier</translation>
 </message>
 <message>
  <source>Open</source>
  <translation>Ouvrir</translation>
 </message>
 <message>
  <source>Open again</source>
  <translation>Rouvrir</translation>
 </message>
</context>
</TS>
