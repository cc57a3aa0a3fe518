<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>DiagnosisPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>Diagnostic</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SAVE_PROMPT</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_REFRESH_PROMPT</source>
        <translation>&amp;Actualiser</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_CANCEL_PROMPT</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>IDS_ERROR_CAPTION</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>IDS_EXPORTSUCCESS_PROMPT</source>
        <translation>Le diagnostic a été enregistré.</translation>
    </message>
    <message>
        <source>IDS_EXPORTFAILURE_PROMPT</source>
        <translation>Le diagnostic n'a pas pu être enregistré.</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_UNKNOWN</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <source>IDS_TAB_DEVICE</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>IDS_TAB_NETWORK_SETTINGS</source>
        <translation>Paramètres réseau</translation>
    </message>
    <message>
        <source>IDS_TAB_NETWORK_STATUS</source>
        <translation>État du réseau</translation>
    </message>
    <message>
        <source>IDS_TAB_SIM</source>
        <translation>SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_DEVICE_NAME</source>
        <translation>Nom de l'appareil</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_APPLICATION_PORT</source>
        <translation>Port d'application</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SERIAL_NUMBER</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_HARDWARE_VERSION</source>
        <translation>Version du matériel</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_FIRMWARE_VERSION</source>
        <translation>Version du micrologiciel</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SOFTWARE_VERSION</source>
        <translation>Version du logiciel</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_APN</source>
        <translation>APN</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SELECTION_MODE</source>
        <translation>Sélection du réseau</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_NETWORK_NAME</source>
        <translation>Nom du réseau</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_NETWORK_TYPE</source>
        <translation>Type de réseau</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIGNAL_STRENGTH</source>
        <translation>Force du signal</translation>
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
        <translation>ID de cellule</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_LAC</source>
        <translation>Zone de localisation (LAC)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_CS_REGISTRATION</source>
        <translation>Enregistrement CS</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PS_REGISTRATION</source>
        <translation>Enregistrement PS</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PS_ATTACHMENT</source>
        <translation>Attachement PS</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IP_ADDRESS</source>
        <translation>Adresse IP</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_DNS_SERVER</source>
        <translation>Serveur DNS</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_OWN_NUMBER</source>
        <translation>Mon numéro (MSISDN)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIM_MESSAGES</source>
        <translation>Messages dans SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIM_CONTACTS</source>
        <translation>Contacts dans SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SMSC</source>
        <translation>Centre SMS (SMSC)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PIN_STATUS</source>
        <translation>État du PIN</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_ICCID</source>
        <translation>ICCID</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SIM_MESSAGE_CONTENT_PROMPT</source>
        <translation>Messages dans SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SIM_CONTACT_CONTENT</source>
        <translation>Contacts dans SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_NV_MESSAGE_CONTENT</source>
        <translation>Messages dans l'appareil</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_NV_CONTACT_CONTENT</source>
        <translation>Contacts dans l'appareil</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_FIRMWARE_VERSION</source>
        <translation>Version du micrologiciel</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_HARDWARE_VERSION</source>
        <translation>Version du matériel</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_VOLTAGE</source>
        <translation>Tension</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PRL_VER</source>
        <translation>Version de la PRL</translation>
    </message>
    <message>
        <source>IDS_NUM_CARRIERS_PROMPT</source>
        <translation>Nombre de porteuses</translation>
    </message>
    <message>
        <source>IDS_CARRIERS_NUM_NA</source>
        <translation>Non disponible</translation>
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
        <translation>Automatique</translation>
    </message>
    <message>
        <source>IDS_LANG_MANUAL</source>
        <translation>Manuelle</translation>
    </message>
    <message>
        <source>IDS_LANG_ATTACHED</source>
        <translation>Attaché</translation>
    </message>
    <message>
        <source>IDS_LANG_NOT_ATTACHED</source>
        <translation>Non attaché</translation>
    </message>
    <message>
        <source>IDS_LANG_NOT_REGISTERED</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>IDS_LANG_REGISTERED</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>IDS_LANG_REGISTERING</source>
        <translation>Enregistrement en cours</translation>
    </message>
    <message>
        <source>IDS_LANG_REG_DENIED</source>
        <translation>Enregistrement refusé</translation>
    </message>
    <message>
        <source>IDS_LANG_ROAMING</source>
        <translation>Itinérance</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_NOT_INITIALIZED</source>
        <translation>PIN non initialisé</translation>
    </message>
    <message>
        <source>IDS_LANG_READY</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_REQUIRED</source>
        <translation>PIN requis</translation>
    </message>
    <message>
        <source>IDS_LANG_PUK_REQUIRED</source>
        <translation>PUK requis</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_BLOCKED</source>
        <translation>PIN bloqué</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN2_REQUIRED</source>
        <translation>PIN2 requis</translation>
    </message>
    <message>
        <source>IDS_LANG_PUK2_REQUIRED</source>
        <translation>PUK2 requis</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Diagnosis host</source>
        <translation>Hôte de diagnostic</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>Branché</translation>
    </message>
    <message>
        <source>Unplugged</source>
        <translation>Débranché</translation>
    </message>
    <message>
        <source>&amp;Plug in</source>
        <translation>&amp;Brancher</translation>
    </message>
    <message>
        <source>&amp;Unplug</source>
        <translation>Débranche&amp;r</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnostic</translation>
    </message>
    <message>
        <source>&amp;Copy report</source>
        <translation>&amp;Copier le rapport</translation>
    </message>
    <message>
        <source>&amp;Save report…</source>
        <translation>&amp;Enregistrer le rapport…</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texte (*.txt)</translation>
    </message>
    <message>
        <source>&amp;Hide identifiers</source>
        <translation>&amp;Masquer les identifiants</translation>
    </message>
    <message>
        <source>Reports do not tell what identifies the device, its user or its place.</source>
        <translation>Les rapports ne contiennent rien qui permette d'identifier l'appareil, son utilisateur ou son emplacement.</translation>
    </message>
    <message>
        <source>A simulated modem takes its place.</source>
        <translation>Un modem simulé le remplace.</translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (simulé)</translation>
    </message>
    <message>
        <source>The diagnostics window could not be opened.</source>
        <translation>La fenêtre de diagnostic n'a pas pu être ouverte.</translation>
    </message>
    <message>
        <source>The report was copied.</source>
        <translation>Le rapport a été copié.</translation>
    </message>
    <message>
        <source>The report was saved.</source>
        <translation>Le rapport a été enregistré.</translation>
    </message>
    <message>
        <source>The report was not saved: %1</source>
        <translation>Le rapport n'a pas été enregistré : %1</translation>
    </message>
</context>
<context>
    <name>Verdict</name>
    <message>
        <source>The system's message bus does not answer.</source>
        <translation>Le bus de messages du système ne répond pas.</translation>
    </message>
    <message>
        <source>ModemManager is not running.</source>
        <translation>ModemManager n'est pas lancé.</translation>
    </message>
    <message>
        <source>ModemManager has not answered yet.</source>
        <translation>ModemManager n'a pas encore répondu.</translation>
    </message>
    <message>
        <source>ModemManager has not answered for %1 seconds.</source>
        <translation>ModemManager ne répond plus depuis %1 secondes.</translation>
    </message>
    <message>
        <source>The modem does not answer.</source>
        <translation>Le modem ne répond pas.</translation>
    </message>
    <message>
        <source>ModemManager has no modem.</source>
        <translation>ModemManager ne voit aucun modem.</translation>
    </message>
    <message>
        <source>ModemManager has no modem with the number %1.</source>
        <translation>ModemManager n'a pas de modem numéro %1.</translation>
    </message>
    <message>
        <source>No modem is plugged in.</source>
        <translation>Aucun modem n'est branché.</translation>
    </message>
    <message>
        <source>The modem failed: its SIM has an error.</source>
        <translation>Le modem est en panne : sa carte SIM présente une erreur.</translation>
    </message>
    <message>
        <source>The modem failed: its capabilities are unknown.</source>
        <translation>Le modem est en panne : ses capacités sont inconnues.</translation>
    </message>
    <message>
        <source>The modem failed: its eSIM has no profile.</source>
        <translation>Le modem est en panne : son eSIM n'a aucun profil.</translation>
    </message>
    <message>
        <source>The modem failed, and does not say why.</source>
        <translation>Le modem est en panne et n'en donne pas la raison.</translation>
    </message>
    <message>
        <source>There is no SIM in the modem.</source>
        <translation>Il n'y a pas de carte SIM dans le modem.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN (tries left: %1).</source>
        <translation>La carte SIM demande son code PIN (essais restants : %1).</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN.</source>
        <translation>La carte SIM demande son code PIN.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK (tries left: %1).</source>
        <translation>La carte SIM demande son code PUK (essais restants : %1).</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK.</source>
        <translation>La carte SIM demande son code PUK.</translation>
    </message>
    <message>
        <source>The SIM is blocked: no tries are left for its PUK.</source>
        <translation>La carte SIM est bloquée : il ne reste aucun essai pour son code PUK.</translation>
    </message>
    <message>
        <source>The modem is locked and asks for a code other than the PIN.</source>
        <translation>Le modem est verrouillé et demande un autre code que le PIN.</translation>
    </message>
    <message>
        <source>The modem is switched off.</source>
        <translation>Le modem est éteint.</translation>
    </message>
    <message>
        <source>The modem is in low-power mode: its radio is off.</source>
        <translation>Le modem est en mode basse consommation : sa radio est éteinte.</translation>
    </message>
    <message>
        <source>The modem is disabled.</source>
        <translation>Le modem est désactivé.</translation>
    </message>
    <message>
        <source>The modem is starting.</source>
        <translation>Le modem démarre.</translation>
    </message>
    <message>
        <source>The network refuses the modem (cause: %1).</source>
        <translation>Le réseau refuse le modem (cause : %1).</translation>
    </message>
    <message>
        <source>The network refuses the modem.</source>
        <translation>Le réseau refuse le modem.</translation>
    </message>
    <message>
        <source>The modem is searching for a network.</source>
        <translation>Le modem recherche un réseau.</translation>
    </message>
    <message>
        <source>The modem is not registered with a network.</source>
        <translation>Le modem n'est enregistré sur aucun réseau.</translation>
    </message>
    <message>
        <source>The modem is registered, but not attached to the packet service.</source>
        <translation>Le modem est enregistré, mais n'est pas attaché au service de paquets.</translation>
    </message>
    <message>
        <source>The modem is registered, but there is no connection.</source>
        <translation>Le modem est enregistré, mais aucune connexion n'est établie.</translation>
    </message>
    <message>
        <source>The modem is connected, but its signal is weak (%1).</source>
        <translation>Le modem est connecté, mais son signal est faible (%1).</translation>
    </message>
    <message>
        <source>The modem is connected.</source>
        <translation>Le modem est connecté.</translation>
    </message>
    <message>
        <source>The modem does not tell enough for a verdict.</source>
        <translation>Le modem n'en dit pas assez pour conclure.</translation>
    </message>
</context>
<context>
    <name>RadioAndService</name>
    <message>
        <source>Radio and service</source>
        <translation>Radio et service</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Modem</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Réseau</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Cellule</translation>
    </message>
    <message>
        <source>SIM slot</source>
        <translation>Emplacement SIM</translation>
    </message>
    <message>
        <source>Bearer</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Failed reason</source>
        <translation>Cause de la panne</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentation</translation>
    </message>
    <message>
        <source>Unlock required</source>
        <translation>Code demandé</translation>
    </message>
    <message>
        <source>Unlock tries</source>
        <translation>Essais restants</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Fabricant</translation>
    </message>
    <message>
        <source>Firmware revision</source>
        <translation>Révision du micrologiciel</translation>
    </message>
    <message>
        <source>Equipment identifier</source>
        <translation>Identifiant de l'équipement</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Capacités</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>Modes</translation>
    </message>
    <message>
        <source>Bands</source>
        <translation>Bandes</translation>
    </message>
    <message>
        <source>Access technologies</source>
        <translation>Technologies d'accès</translation>
    </message>
    <message>
        <source>Signal quality</source>
        <translation>Qualité du signal</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Rejection cause</source>
        <translation>Cause du refus</translation>
    </message>
    <message>
        <source>Packet service</source>
        <translation>Service de paquets</translation>
    </message>
    <message>
        <source>Operator code</source>
        <translation>Code de l'opérateur</translation>
    </message>
    <message>
        <source>Operator name</source>
        <translation>Nom de l'opérateur</translation>
    </message>
    <message>
        <source>Cell identity</source>
        <translation>Identité de la cellule</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Active</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connectée</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interface</translation>
    </message>
    <message>
        <source>Address family</source>
        <translation>Famille d'adresses</translation>
    </message>
    <message>
        <source>IPv4 method</source>
        <translation>Méthode IPv4</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>Adresse IPv4</translation>
    </message>
    <message>
        <source>IPv6 method</source>
        <translation>Méthode IPv6</translation>
    </message>
    <message>
        <source>IPv6 address</source>
        <translation>Adresse IPv6</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Envoyé</translation>
    </message>
    <message>
        <source>Last error</source>
        <translation>Dernière erreur</translation>
    </message>
</context>
</TS>
