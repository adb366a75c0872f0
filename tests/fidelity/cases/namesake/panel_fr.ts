<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
 <name>Panel</name>
 <message>
  <source>Panel</source>
  <translation>Panneau</translation>
 </message>
 <message>
  <source>Outside</source>
  <translation>Dehors</translation>
 </message>
 <message>
  <source>Inside</source>
  <translation>Dedans</translation>
 </message>
 <message>
  <source>It is inside</source>
  <translation>À l'intérieur</translation>
 </message>
</context>
</TS>
