<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
 <name>Ask</name>
 <message>
  <source>Ask</source>
  <translation>Demande</translation>
 </message>
</context>
<context>
 <name>Scoped</name>
 <message>
  <source>Ask</source>
  <translation>Question</translation>
 </message>
 <message>
  <source>OK</source>
  <translation>D'accord</translation>
 </message>
</context>
<context>
 <name>QPlatformTheme</name>
 <message>
  <source>OK</source>
  <translation>Bien</translation>
 </message>
 <message>
  <source>Cancel</source>
  <translation>Annuler</translation>
 </message>
 <message>
  <source>Close</source>
  <translation>Fermer</translation>
 </message>
</context>
</TS>
