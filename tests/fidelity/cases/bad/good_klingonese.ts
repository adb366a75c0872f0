<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
 <name>Good</name>
 <message>
  <source>Good</source>
  <translation>maj</translation>
 </message>
</context>
</TS>
