<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>DiagnosisPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>التشخيص</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SAVE_PROMPT</source>
        <translation>&amp;حفظ</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_REFRESH_PROMPT</source>
        <translation>&amp;تحديث</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_CANCEL_PROMPT</source>
        <translation>&amp;إلغاء</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>معلومات</translation>
    </message>
    <message>
        <source>IDS_ERROR_CAPTION</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>IDS_EXPORTSUCCESS_PROMPT</source>
        <translation>تم حفظ بيانات التشخيص.</translation>
    </message>
    <message>
        <source>IDS_EXPORTFAILURE_PROMPT</source>
        <translation>تعذر حفظ بيانات التشخيص.</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_UNKNOWN</source>
        <translation>غير معروف</translation>
    </message>
    <message>
        <source>IDS_TAB_DEVICE</source>
        <translation>الجهاز</translation>
    </message>
    <message>
        <source>IDS_TAB_NETWORK_SETTINGS</source>
        <translation>إعدادات الشبكة</translation>
    </message>
    <message>
        <source>IDS_TAB_NETWORK_STATUS</source>
        <translation>حالة الشبكة</translation>
    </message>
    <message>
        <source>IDS_TAB_SIM</source>
        <translation>SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_DEVICE_NAME</source>
        <translation>اسم الجهاز</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_APPLICATION_PORT</source>
        <translation>منفذ التطبيق</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SERIAL_NUMBER</source>
        <translation>الرقم التسلسلي</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_HARDWARE_VERSION</source>
        <translation>إصدار العتاد</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_FIRMWARE_VERSION</source>
        <translation>إصدار البرنامج الثابت</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SOFTWARE_VERSION</source>
        <translation>إصدار البرنامج</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_APN</source>
        <translation>APN</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SELECTION_MODE</source>
        <translation>اختيار الشبكة</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_NETWORK_NAME</source>
        <translation>اسم الشبكة</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_NETWORK_TYPE</source>
        <translation>نوع الشبكة</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIGNAL_STRENGTH</source>
        <translation>قوة الإشارة</translation>
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
        <translation>معرّف الخلية</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_LAC</source>
        <translation>رمز منطقة الموقع (LAC)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_CS_REGISTRATION</source>
        <translation>التسجيل CS</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PS_REGISTRATION</source>
        <translation>التسجيل PS</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PS_ATTACHMENT</source>
        <translation>الارتباط PS</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IP_ADDRESS</source>
        <translation>عنوان IP</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_DNS_SERVER</source>
        <translation>خادم DNS</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_OWN_NUMBER</source>
        <translation>الرقم الخاص (MSISDN)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIM_MESSAGES</source>
        <translation>الرسائل في SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIM_CONTACTS</source>
        <translation>جهات الاتصال في SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SMSC</source>
        <translation>مركز الرسائل (SMSC)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PIN_STATUS</source>
        <translation>حالة PIN</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_ICCID</source>
        <translation>ICCID</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SIM_MESSAGE_CONTENT_PROMPT</source>
        <translation>الرسائل في SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SIM_CONTACT_CONTENT</source>
        <translation>جهات الاتصال في SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_NV_MESSAGE_CONTENT</source>
        <translation>الرسائل في الجهاز</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_NV_CONTACT_CONTENT</source>
        <translation>جهات الاتصال في الجهاز</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_FIRMWARE_VERSION</source>
        <translation>إصدار البرنامج الثابت</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_HARDWARE_VERSION</source>
        <translation>إصدار العتاد</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_VOLTAGE</source>
        <translation>الجهد</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PRL_VER</source>
        <translation>إصدار PRL</translation>
    </message>
    <message>
        <source>IDS_NUM_CARRIERS_PROMPT</source>
        <translation>عدد الناقلات</translation>
    </message>
    <message>
        <source>IDS_CARRIERS_NUM_NA</source>
        <translation>غير متوفر</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_ESN</source>
        <translation>ESN</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_PESN</source>
        <translation>رقم ESN زائف</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_MEID</source>
        <translation>MEID</translation>
    </message>
    <message>
        <source>IDS_LANG_AUTOMATIC</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>IDS_LANG_MANUAL</source>
        <translation>يدوي</translation>
    </message>
    <message>
        <source>IDS_LANG_ATTACHED</source>
        <translation>مرتبط</translation>
    </message>
    <message>
        <source>IDS_LANG_NOT_ATTACHED</source>
        <translation>غير مرتبط</translation>
    </message>
    <message>
        <source>IDS_LANG_NOT_REGISTERED</source>
        <translation>غير مسجل</translation>
    </message>
    <message>
        <source>IDS_LANG_REGISTERED</source>
        <translation>مسجل</translation>
    </message>
    <message>
        <source>IDS_LANG_REGISTERING</source>
        <translation>جار التسجيل</translation>
    </message>
    <message>
        <source>IDS_LANG_REG_DENIED</source>
        <translation>رُفض التسجيل</translation>
    </message>
    <message>
        <source>IDS_LANG_ROAMING</source>
        <translation>تجوال</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_NOT_INITIALIZED</source>
        <translation>لم تتم تهيئة PIN</translation>
    </message>
    <message>
        <source>IDS_LANG_READY</source>
        <translation>جاهز</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_REQUIRED</source>
        <translation>مطلوب PIN</translation>
    </message>
    <message>
        <source>IDS_LANG_PUK_REQUIRED</source>
        <translation>مطلوب PUK</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_BLOCKED</source>
        <translation>PIN محظور</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN2_REQUIRED</source>
        <translation>مطلوب PIN2</translation>
    </message>
    <message>
        <source>IDS_LANG_PUK2_REQUIRED</source>
        <translation>مطلوب PUK2</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Diagnosis host</source>
        <translation>مضيف التشخيص</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;التشخيص</translation>
    </message>
    <message>
        <source>The diagnostics window could not be opened.</source>
        <translation>تعذر فتح نافذة التشخيص.</translation>
    </message>
</context>
<context>
    <name>ModemWindow</name>
    <message>
        <source>&amp;Plug in</source>
        <translation>&amp;توصيل</translation>
    </message>
    <message>
        <source>&amp;Unplug</source>
        <translation>&amp;فصل</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>المودم</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>موصول</translation>
    </message>
    <message>
        <source>Unplugged</source>
        <translation>مفصول</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>RTL</translation>
    </message>
</context>
</TS>
