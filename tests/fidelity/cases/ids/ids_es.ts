<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
 <name></name>
 <message id="title-id">
  <source>Title</source>
  <translation>Título</translation>
 </message>
 <message id="label-id">
  <source>Label</source>
  <translation>Etiqueta</translation>
 </message>
</context>
</TS>
