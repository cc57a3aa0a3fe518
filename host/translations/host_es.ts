<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>DiagnosisPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>Diagnóstico</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SAVE_PROMPT</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_REFRESH_PROMPT</source>
        <translation>&amp;Actualizar</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_CANCEL_PROMPT</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>IDS_ERROR_CAPTION</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>IDS_EXPORTSUCCESS_PROMPT</source>
        <translation>El diagnóstico se ha guardado.</translation>
    </message>
    <message>
        <source>IDS_EXPORTFAILURE_PROMPT</source>
        <translation>No se ha podido guardar el diagnóstico.</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_UNKNOWN</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>IDS_TAB_DEVICE</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>IDS_TAB_NETWORK_SETTINGS</source>
        <translation>Ajustes de red</translation>
    </message>
    <message>
        <source>IDS_TAB_NETWORK_STATUS</source>
        <translation>Estado de red</translation>
    </message>
    <message>
        <source>IDS_TAB_SIM</source>
        <translation>SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_DEVICE_NAME</source>
        <translation>Nombre del dispositivo</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_APPLICATION_PORT</source>
        <translation>Puerto de aplicación</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SERIAL_NUMBER</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_HARDWARE_VERSION</source>
        <translation>Versión de hardware</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_FIRMWARE_VERSION</source>
        <translation>Versión de firmware</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SOFTWARE_VERSION</source>
        <translation>Versión de software</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_APN</source>
        <translation>APN</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SELECTION_MODE</source>
        <translation>Selección de red</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_NETWORK_NAME</source>
        <translation>Nombre de la red</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_NETWORK_TYPE</source>
        <translation>Tipo de red</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIGNAL_STRENGTH</source>
        <translation>Intensidad de la señal</translation>
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
        <translation>ID de celda</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_LAC</source>
        <translation>Área de ubicación (LAC)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_CS_REGISTRATION</source>
        <translation>Registro CS</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PS_REGISTRATION</source>
        <translation>Registro PS</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PS_ATTACHMENT</source>
        <translation>Conexión PS</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IP_ADDRESS</source>
        <translation>Dirección IP</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_DNS_SERVER</source>
        <translation>Servidor DNS</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_OWN_NUMBER</source>
        <translation>Número propio (MSISDN)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIM_MESSAGES</source>
        <translation>Mensajes en SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIM_CONTACTS</source>
        <translation>Contactos en SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SMSC</source>
        <translation>Centro de SMS (SMSC)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PIN_STATUS</source>
        <translation>Estado del PIN</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_ICCID</source>
        <translation>ICCID</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SIM_MESSAGE_CONTENT_PROMPT</source>
        <translation>Mensajes en SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SIM_CONTACT_CONTENT</source>
        <translation>Contactos en SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_NV_MESSAGE_CONTENT</source>
        <translation>Mensajes en dispositivo</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_NV_CONTACT_CONTENT</source>
        <translation>Contactos en dispositivo</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_FIRMWARE_VERSION</source>
        <translation>Versión de firmware</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_HARDWARE_VERSION</source>
        <translation>Versión de hardware</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_VOLTAGE</source>
        <translation>Voltaje</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PRL_VER</source>
        <translation>Versión de PRL</translation>
    </message>
    <message>
        <source>IDS_NUM_CARRIERS_PROMPT</source>
        <translation>Número de portadoras</translation>
    </message>
    <message>
        <source>IDS_CARRIERS_NUM_NA</source>
        <translation>No disponible</translation>
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
        <translation>Automática</translation>
    </message>
    <message>
        <source>IDS_LANG_MANUAL</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>IDS_LANG_ATTACHED</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>IDS_LANG_NOT_ATTACHED</source>
        <translation>No conectado</translation>
    </message>
    <message>
        <source>IDS_LANG_NOT_REGISTERED</source>
        <translation>No registrado</translation>
    </message>
    <message>
        <source>IDS_LANG_REGISTERED</source>
        <translation>Registrado</translation>
    </message>
    <message>
        <source>IDS_LANG_REGISTERING</source>
        <translation>Registrando</translation>
    </message>
    <message>
        <source>IDS_LANG_REG_DENIED</source>
        <translation>Registro denegado</translation>
    </message>
    <message>
        <source>IDS_LANG_ROAMING</source>
        <translation>Itinerancia</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_NOT_INITIALIZED</source>
        <translation>PIN no inicializado</translation>
    </message>
    <message>
        <source>IDS_LANG_READY</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_REQUIRED</source>
        <translation>Se requiere PIN</translation>
    </message>
    <message>
        <source>IDS_LANG_PUK_REQUIRED</source>
        <translation>Se requiere PUK</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_BLOCKED</source>
        <translation>PIN bloqueado</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN2_REQUIRED</source>
        <translation>Se requiere PIN2</translation>
    </message>
    <message>
        <source>IDS_LANG_PUK2_REQUIRED</source>
        <translation>Se requiere PUK2</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Diagnosis host</source>
        <translation>Host de diagnóstico</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnóstico</translation>
    </message>
    <message>
        <source>The diagnostics window could not be opened.</source>
        <translation>No se ha podido abrir la ventana de diagnóstico.</translation>
    </message>
</context>
<context>
    <name>ModemWindow</name>
    <message>
        <source>&amp;Plug in</source>
        <translation>&amp;Conectar</translation>
    </message>
    <message>
        <source>&amp;Unplug</source>
        <translation>&amp;Desconectar</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Módem</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>Conectado</translation>
    </message>
    <message>
        <source>Unplugged</source>
        <translation>Desconectado</translation>
    </message>
</context>
</TS>
