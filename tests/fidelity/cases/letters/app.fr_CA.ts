<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
 <name>Letters</name>
 <message>
  <source> Letters </source>
  <translation> Lettres </translation>
 </message>
 <message>
  <source>   Three blanks</source>
  <translation>   Trois blancs</translation>
 </message>
 <message>
  <source>  </source>
  <translation>jamais</translation>
 </message>
 <message>
  <source>One
Two

Four</source>
  <translation>Un
Deux

Quatre</translation>
 </message>
 <message>
  <source>Search &amp;&amp; &amp;replace</source>
  <translation>Chercher &amp;&amp; &amp;remplacer</translation>
 </message>
 <message>
  <source>"Yes" &lt;or&gt; 'no'</source>
  <translation>« Oui » &lt;ou&gt; « non »</translation>
 </message>
 <message>
  <source>Smile 😀</source>
  <translation>Sourire 😀😀</translation>
 </message>
 <message>
  <source>&lt;b&gt;Bold&lt;/b&gt; &amp;amp; more</source>
  <translation>&lt;b&gt;Gras&lt;/b&gt; &amp;amp; plus</translation>
 </message>
 <message>
  <source>Item</source>
  <translation>  Élément</translation>
 </message>
 <message>
  <source>line 1
  line 2</source>
  <translation>ligne 1
  ligne 2</translation>
 </message>
</context>
</TS>
