<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
 <name>Long</name>
 <message>
  <source>Off</source>
  <translation>Desactivado hasta que alguien lo vuelva a activar</translation>
 </message>
</context>
</TS>
