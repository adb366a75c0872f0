<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
 <name>NamesDialog</name>
 <message>
  <source>Names</source>
  <translation>Namen</translation>
 </message>
 <message>
  <source>First</source>
  <translation>Erster</translation>
 </message>
 <message>
  <source>Second</source>
  <translation>Zweiter</translation>
 </message>
 <message>
  <source>Left</source>
  <translation>Links</translation>
 </message>
 <message>
  <source>Right</source>
  <translation>Rechts</translation>
 </message>
 <message>
  <source>Right side</source>
  <translation>Rechte Seite</translation>
 </message>
 <message>
  <source>Resize</source>
  <translation>Größe ändern</translation>
 </message>
 <message>
  <source>Your name</source>
  <translation>Ihr Name</translation>
 </message>
</context>
<context>
 <name>NamesWindow</name>
 <message>
  <source>Window</source>
  <translation>Fenster</translation>
 </message>
 <message>
  <source>&amp;File</source>
  <translation>&amp;Datei</translation>
 </message>
 <message>
  <source>Open</source>
  <translation>Öffnen</translation>
 </message>
 <message>
  <source>Open again</source>
  <translation>Nochmals öffnen</translation>
 </message>
</context>
</TS>
