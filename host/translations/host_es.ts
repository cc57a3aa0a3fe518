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
        <source>Modem</source>
        <translation>Módem</translation>
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
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Señal</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>Enchufado</translation>
    </message>
    <message>
        <source>Unplugged</source>
        <translation>Desenchufado</translation>
    </message>
    <message>
        <source>&amp;Plug in</source>
        <translation>&amp;Enchufar</translation>
    </message>
    <message>
        <source>&amp;Unplug</source>
        <translation>Desench&amp;ufar</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;Diagnóstico</translation>
    </message>
    <message>
        <source>&amp;Copy report</source>
        <translation>&amp;Copiar informe</translation>
    </message>
    <message>
        <source>&amp;Save report…</source>
        <translation>&amp;Guardar informe…</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>Guardar informe</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texto (*.txt)</translation>
    </message>
    <message>
        <source>&amp;Hide identifiers</source>
        <translation>&amp;Ocultar identificadores</translation>
    </message>
    <message>
        <source>Reports do not tell what identifies the device, its user or its place.</source>
        <translation>Los informes no contienen nada que identifique el dispositivo, a su usuario o su ubicación.</translation>
    </message>
    <message>
        <source>A simulated modem takes its place.</source>
        <translation>Un módem simulado ocupa su lugar.</translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (simulado)</translation>
    </message>
    <message>
        <source>The diagnostics window could not be opened.</source>
        <translation>No se ha podido abrir la ventana de diagnóstico.</translation>
    </message>
    <message>
        <source>The report was copied.</source>
        <translation>El informe se ha copiado.</translation>
    </message>
    <message>
        <source>The report was saved.</source>
        <translation>El informe se ha guardado.</translation>
    </message>
    <message>
        <source>The report was not saved: %1</source>
        <translation>El informe no se ha guardado: %1</translation>
    </message>
</context>
<context>
    <name>Verdict</name>
    <message>
        <source>The system's message bus does not answer.</source>
        <translation>El bus de mensajes del sistema no responde.</translation>
    </message>
    <message>
        <source>ModemManager is not running.</source>
        <translation>ModemManager no está en ejecución.</translation>
    </message>
    <message>
        <source>ModemManager has not answered yet.</source>
        <translation>ModemManager todavía no ha respondido.</translation>
    </message>
    <message>
        <source>ModemManager has not answered for %1 seconds.</source>
        <translation>ModemManager no responde desde hace %1 segundos.</translation>
    </message>
    <message>
        <source>The modem does not answer.</source>
        <translation>El módem no responde.</translation>
    </message>
    <message>
        <source>ModemManager has no modem.</source>
        <translation>ModemManager no encuentra ningún módem.</translation>
    </message>
    <message>
        <source>ModemManager has no modem with the number %1.</source>
        <translation>ModemManager no tiene ningún módem con el número %1.</translation>
    </message>
    <message>
        <source>No modem is plugged in.</source>
        <translation>No hay ningún módem enchufado.</translation>
    </message>
    <message>
        <source>The modem failed: its SIM has an error.</source>
        <translation>El módem ha fallado: su SIM tiene un error.</translation>
    </message>
    <message>
        <source>The modem failed: its capabilities are unknown.</source>
        <translation>El módem ha fallado: se desconocen sus capacidades.</translation>
    </message>
    <message>
        <source>The modem failed: its eSIM has no profile.</source>
        <translation>El módem ha fallado: su eSIM no tiene ningún perfil.</translation>
    </message>
    <message>
        <source>The modem failed, and does not say why.</source>
        <translation>El módem ha fallado y no indica el motivo.</translation>
    </message>
    <message>
        <source>There is no SIM in the modem.</source>
        <translation>No hay ninguna tarjeta SIM en el módem.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN (tries left: %1).</source>
        <translation>La SIM pide su PIN (intentos restantes: %1).</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN.</source>
        <translation>La SIM pide su PIN.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK (tries left: %1).</source>
        <translation>La SIM pide su PUK (intentos restantes: %1).</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK.</source>
        <translation>La SIM pide su PUK.</translation>
    </message>
    <message>
        <source>The SIM is blocked: no tries are left for its PUK.</source>
        <translation>La SIM está bloqueada: no quedan intentos para su PUK.</translation>
    </message>
    <message>
        <source>The modem is locked and asks for a code other than the PIN.</source>
        <translation>El módem está bloqueado y pide un código distinto del PIN.</translation>
    </message>
    <message>
        <source>The modem is switched off.</source>
        <translation>El módem está apagado.</translation>
    </message>
    <message>
        <source>The modem is in low-power mode: its radio is off.</source>
        <translation>El módem está en modo de bajo consumo: su radio está apagada.</translation>
    </message>
    <message>
        <source>The modem is disabled.</source>
        <translation>El módem está deshabilitado.</translation>
    </message>
    <message>
        <source>The modem is starting.</source>
        <translation>El módem se está iniciando.</translation>
    </message>
    <message>
        <source>The network refuses the modem (cause: %1).</source>
        <translation>La red rechaza el módem (causa: %1).</translation>
    </message>
    <message>
        <source>The network refuses the modem.</source>
        <translation>La red rechaza el módem.</translation>
    </message>
    <message>
        <source>The modem is searching for a network.</source>
        <translation>El módem está buscando una red.</translation>
    </message>
    <message>
        <source>The modem is not registered with a network.</source>
        <translation>El módem no está registrado en ninguna red.</translation>
    </message>
    <message>
        <source>The modem is registered, but not attached to the packet service.</source>
        <translation>El módem está registrado, pero no conectado al servicio de paquetes.</translation>
    </message>
    <message>
        <source>The modem is registered, but there is no connection.</source>
        <translation>El módem está registrado, pero no hay conexión.</translation>
    </message>
    <message>
        <source>The modem is connected, but its signal is weak (%1).</source>
        <translation>El módem está conectado, pero su señal es débil (%1).</translation>
    </message>
    <message>
        <source>The modem is connected.</source>
        <translation>El módem está conectado.</translation>
    </message>
    <message>
        <source>The modem does not tell enough for a verdict.</source>
        <translation>El módem no da datos suficientes para un dictamen.</translation>
    </message>
</context>
<context>
    <name>RadioAndService</name>
    <message>
        <source>Radio and service</source>
        <translation>Radio y servicio</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Módem</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>Celda</translation>
    </message>
    <message>
        <source>SIM slot</source>
        <translation>Ranura SIM</translation>
    </message>
    <message>
        <source>Bearer</source>
        <translation>Conexión</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Failed reason</source>
        <translation>Motivo del fallo</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>Alimentación</translation>
    </message>
    <message>
        <source>Unlock required</source>
        <translation>Código requerido</translation>
    </message>
    <message>
        <source>Unlock tries</source>
        <translation>Intentos restantes</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>Fabricante</translation>
    </message>
    <message>
        <source>Firmware revision</source>
        <translation>Revisión del firmware</translation>
    </message>
    <message>
        <source>Equipment identifier</source>
        <translation>Identificador del equipo</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>Capacidades</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>Modos</translation>
    </message>
    <message>
        <source>Bands</source>
        <translation>Bandas</translation>
    </message>
    <message>
        <source>Access technologies</source>
        <translation>Tecnologías de acceso</translation>
    </message>
    <message>
        <source>Signal quality</source>
        <translation>Calidad de la señal</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Rejection cause</source>
        <translation>Causa del rechazo</translation>
    </message>
    <message>
        <source>Packet service</source>
        <translation>Servicio de paquetes</translation>
    </message>
    <message>
        <source>Operator code</source>
        <translation>Código del operador</translation>
    </message>
    <message>
        <source>Operator name</source>
        <translation>Nombre del operador</translation>
    </message>
    <message>
        <source>Cell identity</source>
        <translation>Identidad de la celda</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activa</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Conectada</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interfaz</translation>
    </message>
    <message>
        <source>Address family</source>
        <translation>Familia de direcciones</translation>
    </message>
    <message>
        <source>IPv4 method</source>
        <translation>Método IPv4</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>Dirección IPv4</translation>
    </message>
    <message>
        <source>IPv6 method</source>
        <translation>Método IPv6</translation>
    </message>
    <message>
        <source>IPv6 address</source>
        <translation>Dirección IPv6</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recibido</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>Last error</source>
        <translation>Último error</translation>
    </message>
</context>
</TS>
