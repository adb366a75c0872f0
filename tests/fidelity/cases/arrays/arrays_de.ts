<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
 <name>Arrays</name>
 <message>
  <source>Arrays</source>
  <translation>Felder</translation>
 </message>
 <message>
  <source>None</source>
  <translation>Keine</translation>
 </message>
 <message>
  <source>Some</source>
  <translation>Einige</translation>
 </message>
 <message>
  <source>Most</source>
  <translation>Die meisten</translation>
 </message>
 <message>
  <source>All</source>
  <translation>Alle</translation>
 </message>
 <message>
  <source>Zero</source>
  <translation>Null</translation>
 </message>
 <message>
  <source>Nothing</source>
  <translation>Nichts</translation>
 </message>
 <message>
  <source>Copy</source>
  <translation>Kopieren</translation>
 </message>
 <message>
  <source>Sell</source>
  <translation>Verkaufen</translation>
 </message>
</context>
</TS>
