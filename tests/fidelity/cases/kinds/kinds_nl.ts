<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
 <name>Kinds</name>
 <message>
  <source>Kinds</source>
  <translation>Soorten</translation>
 </message>
 <message>
  <source>The form</source>
  <translation>Het formulier</translation>
 </message>
 <message>
  <source>Combo item</source>
  <translation>Keuze</translation>
 </message>
 <message>
  <source>List item</source>
  <translation>Regel</translation>
 </message>
 <message>
  <source>Column</source>
  <translation>Kolom</translation>
 </message>
 <message>
  <source>Tree item</source>
  <translation>Tak</translation>
 </message>
 <message>
  <source>Row</source>
  <translation>Rij</translation>
 </message>
 <message>
  <source> pieces</source>
  <translation> stuks</translation>
 </message>
 <message>
  <source>Default</source>
  <translation>Standaard</translation>
 </message>
 <message>
  <source>Push</source>
  <translation>Duwen</translation>
 </message>
 <message>
  <source>Pushing</source>
  <translation>Duwt</translation>
 </message>
 <message>
  <source>A button</source>
  <translation>Een knop</translation>
 </message>
 <message>
  <source>Push button</source>
  <translation>Drukknop</translation>
 </message>
 <message>
  <source>To be pushed</source>
  <translation>Om te duwen</translation>
 </message>
 <message>
  <source>Typed</source>
  <translation>Getypt</translation>
 </message>
 <message>
  <source>Type here</source>
  <translation>Typ hier</translation>
 </message>
 <message>
  <source>Inner</source>
  <translation>Binnen</translation>
 </message>
</context>
</TS>
