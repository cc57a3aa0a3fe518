<TS version="2.1">
  <context>
    <name>DiagnosisPlugin</name>
    <message>
      <source>IDS_OK</source>
      <translation>Bien</translation>
    </message>
  </context>
</TS>
