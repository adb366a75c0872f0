<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
 <name>Settings</name>
 <message>
  <source>Connect settings</source>
  <translation>Instellingen verbinden</translation>
 </message>
 <message>
  <source>Listen settings</source>
  <translation>Instellingen luisteren</translation>
 </message>
 <message>
  <source>Connect</source>
  <translation>Verbinden</translation>
 </message>
 <message>
  <source>Listen</source>
  <translation>Luisteren</translation>
 </message>
 <message>
  <source>Connect now</source>
  <translation>Nu verbinden</translation>
 </message>
 <message>
  <source>Listen now</source>
  <translation>Nu luisteren</translation>
 </message>
 <message>
  <source>Reach the server</source>
  <translation>De server bereiken</translation>
 </message>
 <message>
  <source>Wait for clients</source>
  <translation>Op clients wachten</translation>
 </message>
</context>
</TS>
