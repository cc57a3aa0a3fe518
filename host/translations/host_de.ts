<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DiagnosisPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>Diagnose</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SAVE_PROMPT</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_REFRESH_PROMPT</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_CANCEL_PROMPT</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>IDS_ERROR_CAPTION</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>IDS_EXPORTSUCCESS_PROMPT</source>
        <translation>Die Diagnose wurde gespeichert.</translation>
    </message>
    <message>
        <source>IDS_EXPORTFAILURE_PROMPT</source>
        <translation>Die Diagnose konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_UNKNOWN</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>IDS_TAB_DEVICE</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>IDS_TAB_NETWORK_SETTINGS</source>
        <translation>Netzeinstellungen</translation>
    </message>
    <message>
        <source>IDS_TAB_NETWORK_STATUS</source>
        <translation>Netzstatus</translation>
    </message>
    <message>
        <source>IDS_TAB_SIM</source>
        <translation>SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_DEVICE_NAME</source>
        <translation>Gerätename</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_APPLICATION_PORT</source>
        <translation>Anwendungsport</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SERIAL_NUMBER</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_HARDWARE_VERSION</source>
        <translation>Hardwareversion</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_FIRMWARE_VERSION</source>
        <translation>Firmwareversion</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SOFTWARE_VERSION</source>
        <translation>Softwareversion</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_APN</source>
        <translation>APN</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SELECTION_MODE</source>
        <translation>Netzauswahl</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_NETWORK_NAME</source>
        <translation>Netzname</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_NETWORK_TYPE</source>
        <translation>Netztyp</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIGNAL_STRENGTH</source>
        <translation>Signalstärke</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_RSSI</source>
        <translation>RSSI</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_RSQUAL</source>
        <translation>RSQUAL (BER)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_RSCP</source>
        <translation>RSCP</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_ECIO</source>
        <translation>Ec/Io</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_ECNO</source>
        <translation>Ec/No</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_CELL_ID</source>
        <translation>Zell-ID</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_LAC</source>
        <translation>Aufenthaltsbereich (LAC)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_CS_REGISTRATION</source>
        <translation>CS-Registrierung</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PS_REGISTRATION</source>
        <translation>PS-Registrierung</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PS_ATTACHMENT</source>
        <translation>PS-Anbindung</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IP_ADDRESS</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_DNS_SERVER</source>
        <translation>DNS-Server</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_OWN_NUMBER</source>
        <translation>Eigene Nummer (MSISDN)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIM_MESSAGES</source>
        <translation>Nachrichten in SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIM_CONTACTS</source>
        <translation>Kontakte in SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SMSC</source>
        <translation>SMS-Zentrale (SMSC)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PIN_STATUS</source>
        <translation>PIN-Status</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_ICCID</source>
        <translation>ICCID</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SIM_MESSAGE_CONTENT_PROMPT</source>
        <translation>Nachrichten in SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SIM_CONTACT_CONTENT</source>
        <translation>Kontakte in SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_NV_MESSAGE_CONTENT</source>
        <translation>Nachrichten im Gerät</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_NV_CONTACT_CONTENT</source>
        <translation>Kontakte im Gerät</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_FIRMWARE_VERSION</source>
        <translation>Firmwareversion</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_HARDWARE_VERSION</source>
        <translation>Hardwareversion</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_VOLTAGE</source>
        <translation>Spannung</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PRL_VER</source>
        <translation>PRL-Version</translation>
    </message>
    <message>
        <source>IDS_NUM_CARRIERS_PROMPT</source>
        <translation>Anzahl der Träger</translation>
    </message>
    <message>
        <source>IDS_CARRIERS_NUM_NA</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_ESN</source>
        <translation>ESN</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_PESN</source>
        <translation>Pseudo-ESN</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_MEID</source>
        <translation>MEID</translation>
    </message>
    <message>
        <source>IDS_LANG_AUTOMATIC</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>IDS_LANG_MANUAL</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>IDS_LANG_ATTACHED</source>
        <translation>Angebunden</translation>
    </message>
    <message>
        <source>IDS_LANG_NOT_ATTACHED</source>
        <translation>Nicht angebunden</translation>
    </message>
    <message>
        <source>IDS_LANG_NOT_REGISTERED</source>
        <translation>Nicht registriert</translation>
    </message>
    <message>
        <source>IDS_LANG_REGISTERED</source>
        <translation>Registriert</translation>
    </message>
    <message>
        <source>IDS_LANG_REGISTERING</source>
        <translation>Registrierung läuft</translation>
    </message>
    <message>
        <source>IDS_LANG_REG_DENIED</source>
        <translation>Registrierung abgelehnt</translation>
    </message>
    <message>
        <source>IDS_LANG_ROAMING</source>
        <translation>Roaming</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_NOT_INITIALIZED</source>
        <translation>PIN nicht initialisiert</translation>
    </message>
    <message>
        <source>IDS_LANG_READY</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_REQUIRED</source>
        <translation>PIN erforderlich</translation>
    </message>
    <message>
        <source>IDS_LANG_PUK_REQUIRED</source>
        <translation>PUK erforderlich</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_BLOCKED</source>
        <translation>PIN gesperrt</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN2_REQUIRED</source>
        <translation>PIN2 erforderlich</translation>
    </message>
    <message>
        <source>IDS_LANG_PUK2_REQUIRED</source>
        <translation>PUK2 erforderlich</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Diagnosis host</source>
        <translation>Diagnosehost</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>Eingesteckt</translation>
    </message>
    <message>
        <source>Unplugged</source>
        <translation>Abgezogen</translation>
    </message>
    <message>
        <source>&amp;Plug in</source>
        <translation>&amp;Einstecken</translation>
    </message>
    <message>
        <source>&amp;Unplug</source>
        <translation>&amp;Abziehen</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnose</translation>
    </message>
    <message>
        <source>&amp;Copy report</source>
        <translation>Bericht &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Save report…</source>
        <translation>Bericht &amp;speichern…</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>&amp;Hide identifiers</source>
        <translation>Kennungen &amp;verbergen</translation>
    </message>
    <message>
        <source>Reports do not tell what identifies the device, its user or its place.</source>
        <translation>Berichte enthalten nichts, woran Gerät, Benutzer oder Standort zu erkennen sind.</translation>
    </message>
    <message>
        <source>A simulated modem takes its place.</source>
        <translation>Ein simuliertes Modem tritt an seine Stelle.</translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (simuliert)</translation>
    </message>
    <message>
        <source>The diagnostics window could not be opened.</source>
        <translation>Das Diagnosefenster konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The report was copied.</source>
        <translation>Der Bericht wurde kopiert.</translation>
    </message>
    <message>
        <source>The report was saved.</source>
        <translation>Der Bericht wurde gespeichert.</translation>
    </message>
    <message>
        <source>The report was not saved: %1</source>
        <translation>Der Bericht wurde nicht gespeichert: %1</translation>
    </message>
</context>
<context>
    <name>Verdict</name>
    <message>
        <source>The system's message bus does not answer.</source>
        <translation>Der Nachrichtenbus des Systems antwortet nicht.</translation>
    </message>
    <message>
        <source>ModemManager is not running.</source>
        <translation>ModemManager läuft nicht.</translation>
    </message>
    <message>
        <source>ModemManager has not answered yet.</source>
        <translation>ModemManager hat noch nicht geantwortet.</translation>
    </message>
    <message>
        <source>ModemManager has not answered for %1 seconds.</source>
        <translation>ModemManager antwortet seit %1 Sekunden nicht.</translation>
    </message>
    <message>
        <source>The modem does not answer.</source>
        <translation>Das Modem antwortet nicht.</translation>
    </message>
    <message>
        <source>ModemManager has no modem.</source>
        <translation>ModemManager kennt kein Modem.</translation>
    </message>
    <message>
        <source>ModemManager has no modem with the number %1.</source>
        <translation>ModemManager kennt kein Modem mit der Nummer %1.</translation>
    </message>
    <message>
        <source>No modem is plugged in.</source>
        <translation>Es ist kein Modem eingesteckt.</translation>
    </message>
    <message>
        <source>The modem failed: its SIM has an error.</source>
        <translation>Das Modem ist ausgefallen: Seine SIM-Karte hat einen Fehler.</translation>
    </message>
    <message>
        <source>The modem failed: its capabilities are unknown.</source>
        <translation>Das Modem ist ausgefallen: Seine Fähigkeiten sind unbekannt.</translation>
    </message>
    <message>
        <source>The modem failed: its eSIM has no profile.</source>
        <translation>Das Modem ist ausgefallen: Seine eSIM hat kein Profil.</translation>
    </message>
    <message>
        <source>The modem failed, and does not say why.</source>
        <translation>Das Modem ist ausgefallen und nennt keinen Grund.</translation>
    </message>
    <message>
        <source>There is no SIM in the modem.</source>
        <translation>Im Modem ist keine SIM-Karte.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN (tries left: %1).</source>
        <translation>Die SIM-Karte verlangt ihre PIN (verbleibende Versuche: %1).</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN.</source>
        <translation>Die SIM-Karte verlangt ihre PIN.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK (tries left: %1).</source>
        <translation>Die SIM-Karte verlangt ihre PUK (verbleibende Versuche: %1).</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK.</source>
        <translation>Die SIM-Karte verlangt ihre PUK.</translation>
    </message>
    <message>
        <source>The SIM is blocked: no tries are left for its PUK.</source>
        <translation>Die SIM-Karte ist gesperrt: Für ihre PUK ist kein Versuch mehr übrig.</translation>
    </message>
    <message>
        <source>The modem is locked and asks for a code other than the PIN.</source>
        <translation>Das Modem ist gesperrt und verlangt einen anderen Code als die PIN.</translation>
    </message>
    <message>
        <source>The modem is switched off.</source>
        <translation>Das Modem ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>The modem is in low-power mode: its radio is off.</source>
        <translation>Das Modem ist im Energiesparmodus: Sein Funkteil ist aus.</translation>
    </message>
    <message>
        <source>The modem is disabled.</source>
        <translation>Das Modem ist deaktiviert.</translation>
    </message>
    <message>
        <source>The modem is starting.</source>
        <translation>Das Modem startet.</translation>
    </message>
    <message>
        <source>The network refuses the modem (cause: %1).</source>
        <translation>Das Netz weist das Modem ab (Ursache: %1).</translation>
    </message>
    <message>
        <source>The network refuses the modem.</source>
        <translation>Das Netz weist das Modem ab.</translation>
    </message>
    <message>
        <source>The modem is searching for a network.</source>
        <translation>Das Modem sucht ein Netz.</translation>
    </message>
    <message>
        <source>The modem is not registered with a network.</source>
        <translation>Das Modem ist in keinem Netz registriert.</translation>
    </message>
    <message>
        <source>The modem is registered, but not attached to the packet service.</source>
        <translation>Das Modem ist registriert, aber nicht an den Paketdienst angebunden.</translation>
    </message>
    <message>
        <source>The modem is registered, but there is no connection.</source>
        <translation>Das Modem ist registriert, aber es besteht keine Verbindung.</translation>
    </message>
    <message>
        <source>The modem is connected, but its signal is weak (%1).</source>
        <translation>Das Modem ist verbunden, aber sein Signal ist schwach (%1).</translation>
    </message>
    <message>
        <source>The modem is connected.</source>
        <translation>Das Modem ist verbunden.</translation>
    </message>
    <message>
        <source>The modem does not tell enough for a verdict.</source>
        <translation>Das Modem teilt zu wenig für einen Befund mit.</translation>
    </message>
</context>
<context>
    <name>RadioAndService</name>
    <message>
        <source>Radio and service</source>
        <translation>Funk und Dienst</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Zelle</translation>
    </message>
    <message>
        <source>SIM slot</source>
        <translation>SIM-Steckplatz</translation>
    </message>
    <message>
        <source>Bearer</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Failed reason</source>
        <translation>Grund des Ausfalls</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>Unlock required</source>
        <translation>Verlangter Code</translation>
    </message>
    <message>
        <source>Unlock tries</source>
        <translation>Verbleibende Versuche</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <source>Firmware revision</source>
        <translation>Firmwarestand</translation>
    </message>
    <message>
        <source>Equipment identifier</source>
        <translation>Gerätekennung</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Fähigkeiten</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>Betriebsmodi</translation>
    </message>
    <message>
        <source>Bands</source>
        <translation>Frequenzbänder</translation>
    </message>
    <message>
        <source>Access technologies</source>
        <translation>Zugangstechniken</translation>
    </message>
    <message>
        <source>Signal quality</source>
        <translation>Signalqualität</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Registrierung</translation>
    </message>
    <message>
        <source>Rejection cause</source>
        <translation>Ursache der Abweisung</translation>
    </message>
    <message>
        <source>Packet service</source>
        <translation>Paketdienst</translation>
    </message>
    <message>
        <source>Operator code</source>
        <translation>Betreibercode</translation>
    </message>
    <message>
        <source>Operator name</source>
        <translation>Betreibername</translation>
    </message>
    <message>
        <source>Cell identity</source>
        <translation>Zellkennung</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Verbunden</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Schnittstelle</translation>
    </message>
    <message>
        <source>Address family</source>
        <translation>Adressfamilie</translation>
    </message>
    <message>
        <source>IPv4 method</source>
        <translation>IPv4-Verfahren</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>IPv4-Adresse</translation>
    </message>
    <message>
        <source>IPv6 method</source>
        <translation>IPv6-Verfahren</translation>
    </message>
    <message>
        <source>IPv6 address</source>
        <translation>IPv6-Adresse</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Empfangen</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Gesendet</translation>
    </message>
    <message>
        <source>Last error</source>
        <translation>Letzter Fehler</translation>
    </message>
</context>
</TS>
