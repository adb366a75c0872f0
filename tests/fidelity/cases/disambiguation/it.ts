<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
 <name>Keys</name>
 <message>
  <source>Open</source>
  <comment>file</comment>
  <translation>Apri il file</translation>
 </message>
 <message>
  <source>Open</source>
  <comment>door</comment>
  <translation>Apri la porta</translation>
 </message>
 <message>
  <source>Open</source>
  <translation>Aperto</translation>
 </message>
 <message>
  <source>Port</source>
  <translation>Porto</translation>
 </message>
 <message>
  <source>Bank</source>
  <comment>river</comment>
  <translation>Riva</translation>
 </message>
 <message>
  <source>Bank</source>
  <comment>dam</comment>
  <translation>Argine</translation>
 </message>
 <message>
  <source>Close</source>
  <translation>Chiudi</translation>
 </message>
 <message>
  <source>Nearly</source>
  <translation type="unfinished">Quasi</translation>
 </message>
 <message>
  <source>Gone</source>
  <translation type="vanished">Andato</translation>
 </message>
 <message>
  <source>Old</source>
  <translation type="obsolete">Vecchio</translation>
 </message>
 <message>
  <source>Empty</source>
  <translation type="unfinished"></translation>
 </message>
 <message>
  <source>Same</source>
  <comment>a</comment>
  <translation>Uguale A</translation>
 </message>
 <message>
  <source>Same</source>
  <comment>b</comment>
  <translation>Uguale B</translation>
 </message>
</context>
<context>
 <name>Other</name>
 <message>
  <source>Keys</source>
  <translation>Chiavi sbagliate</translation>
 </message>
</context>
</TS>
