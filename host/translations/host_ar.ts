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
        <source>Modem</source>
        <translation>المودم</translation>
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
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>الإشارة</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>موصول</translation>
    </message>
    <message>
        <source>Unplugged</source>
        <translation>مفصول</translation>
    </message>
    <message>
        <source>&amp;Plug in</source>
        <translation>&amp;توصيل</translation>
    </message>
    <message>
        <source>&amp;Unplug</source>
        <translation>&amp;فصل</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>&amp;التشخيص</translation>
    </message>
    <message>
        <source>&amp;Copy report</source>
        <translation>&amp;نسخ التقرير</translation>
    </message>
    <message>
        <source>&amp;Save report…</source>
        <translation>&amp;حفظ التقرير…</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>حفظ التقرير</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>نص (*.txt)</translation>
    </message>
    <message>
        <source>&amp;Hide identifiers</source>
        <translation>إ&amp;خفاء المعرّفات</translation>
    </message>
    <message>
        <source>Reports do not tell what identifies the device, its user or its place.</source>
        <translation>لا تتضمن التقارير ما يحدد هوية الجهاز أو مستخدمه أو مكانه.</translation>
    </message>
    <message>
        <source>A simulated modem takes its place.</source>
        <translation>يحل محله مودم محاكى.</translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1 (محاكاة)</translation>
    </message>
    <message>
        <source>The diagnostics window could not be opened.</source>
        <translation>تعذر فتح نافذة التشخيص.</translation>
    </message>
    <message>
        <source>The report was copied.</source>
        <translation>تم نسخ التقرير.</translation>
    </message>
    <message>
        <source>The report was saved.</source>
        <translation>تم حفظ التقرير.</translation>
    </message>
    <message>
        <source>The report was not saved: %1</source>
        <translation>لم يتم حفظ التقرير: %1</translation>
    </message>
</context>
<context>
    <name>Verdict</name>
    <message>
        <source>The system's message bus does not answer.</source>
        <translation>ناقل الرسائل في النظام لا يستجيب.</translation>
    </message>
    <message>
        <source>ModemManager is not running.</source>
        <translation>خدمة ModemManager لا تعمل.</translation>
    </message>
    <message>
        <source>ModemManager has not answered yet.</source>
        <translation>لم تستجب خدمة ModemManager بعد.</translation>
    </message>
    <message>
        <source>ModemManager has not answered for %1 seconds.</source>
        <translation>لم تستجب خدمة ModemManager منذ %1 ثانية.</translation>
    </message>
    <message>
        <source>The modem does not answer.</source>
        <translation>المودم لا يستجيب.</translation>
    </message>
    <message>
        <source>ModemManager has no modem.</source>
        <translation>لا يوجد أي مودم لدى ModemManager.</translation>
    </message>
    <message>
        <source>ModemManager has no modem with the number %1.</source>
        <translation>لا يوجد لدى ModemManager مودم برقم %1.</translation>
    </message>
    <message>
        <source>No modem is plugged in.</source>
        <translation>لا يوجد مودم موصول.</translation>
    </message>
    <message>
        <source>The modem failed: its SIM has an error.</source>
        <translation>تعطل المودم: هناك خطأ في شريحة SIM.</translation>
    </message>
    <message>
        <source>The modem failed: its capabilities are unknown.</source>
        <translation>تعطل المودم: قدراته غير معروفة.</translation>
    </message>
    <message>
        <source>The modem failed: its eSIM has no profile.</source>
        <translation>تعطل المودم: لا يوجد ملف تعريف في شريحة eSIM.</translation>
    </message>
    <message>
        <source>The modem failed, and does not say why.</source>
        <translation>تعطل المودم دون ذكر السبب.</translation>
    </message>
    <message>
        <source>There is no SIM in the modem.</source>
        <translation>لا توجد شريحة SIM في المودم.</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN (tries left: %1).</source>
        <translation>تطلب شريحة SIM رمز PIN (المحاولات المتبقية: %1).</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN.</source>
        <translation>تطلب شريحة SIM رمز PIN.</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK (tries left: %1).</source>
        <translation>تطلب شريحة SIM رمز PUK (المحاولات المتبقية: %1).</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK.</source>
        <translation>تطلب شريحة SIM رمز PUK.</translation>
    </message>
    <message>
        <source>The SIM is blocked: no tries are left for its PUK.</source>
        <translation>شريحة SIM محظورة: لم تبق أي محاولة لرمز PUK.</translation>
    </message>
    <message>
        <source>The modem is locked and asks for a code other than the PIN.</source>
        <translation>المودم مقفل ويطلب رمزًا غير PIN.</translation>
    </message>
    <message>
        <source>The modem is switched off.</source>
        <translation>المودم مطفأ.</translation>
    </message>
    <message>
        <source>The modem is in low-power mode: its radio is off.</source>
        <translation>المودم في وضع الطاقة المنخفضة: اتصاله اللاسلكي متوقف.</translation>
    </message>
    <message>
        <source>The modem is disabled.</source>
        <translation>المودم غير مفعّل.</translation>
    </message>
    <message>
        <source>The modem is starting.</source>
        <translation>يجري بدء تشغيل المودم.</translation>
    </message>
    <message>
        <source>The network refuses the modem (cause: %1).</source>
        <translation>ترفض الشبكة المودم (السبب: %1).</translation>
    </message>
    <message>
        <source>The network refuses the modem.</source>
        <translation>ترفض الشبكة المودم.</translation>
    </message>
    <message>
        <source>The modem is searching for a network.</source>
        <translation>يبحث المودم عن شبكة.</translation>
    </message>
    <message>
        <source>The modem is not registered with a network.</source>
        <translation>المودم غير مسجل في أي شبكة.</translation>
    </message>
    <message>
        <source>The modem is registered, but not attached to the packet service.</source>
        <translation>المودم مسجل، لكنه غير مرتبط بخدمة الحزم.</translation>
    </message>
    <message>
        <source>The modem is registered, but there is no connection.</source>
        <translation>المودم مسجل، لكن لا يوجد اتصال.</translation>
    </message>
    <message>
        <source>The modem is connected, but its signal is weak (%1).</source>
        <translation>المودم متصل، لكن إشارته ضعيفة (%1).</translation>
    </message>
    <message>
        <source>The modem is connected.</source>
        <translation>المودم متصل.</translation>
    </message>
    <message>
        <source>The modem does not tell enough for a verdict.</source>
        <translation>لا يقدم المودم معلومات كافية لتحديد حالته.</translation>
    </message>
</context>
<context>
    <name>RadioAndService</name>
    <message>
        <source>Radio and service</source>
        <translation>الراديو والخدمة</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>المودم</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>الشبكة</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>الخلية</translation>
    </message>
    <message>
        <source>SIM slot</source>
        <translation>فتحة SIM</translation>
    </message>
    <message>
        <source>Bearer</source>
        <translation>الاتصال</translation>
    </message>
    <message>
        <source>State</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Failed reason</source>
        <translation>سبب العطل</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>الطاقة</translation>
    </message>
    <message>
        <source>Unlock required</source>
        <translation>الرمز المطلوب</translation>
    </message>
    <message>
        <source>Unlock tries</source>
        <translation>المحاولات المتبقية</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>الشركة المصنعة</translation>
    </message>
    <message>
        <source>Firmware revision</source>
        <translation>مراجعة البرنامج الثابت</translation>
    </message>
    <message>
        <source>Equipment identifier</source>
        <translation>معرّف الجهاز</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>القدرات</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>الأوضاع</translation>
    </message>
    <message>
        <source>Bands</source>
        <translation>النطاقات</translation>
    </message>
    <message>
        <source>Access technologies</source>
        <translation>تقنيات الوصول</translation>
    </message>
    <message>
        <source>Signal quality</source>
        <translation>جودة الإشارة</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>Rejection cause</source>
        <translation>سبب الرفض</translation>
    </message>
    <message>
        <source>Packet service</source>
        <translation>خدمة الحزم</translation>
    </message>
    <message>
        <source>Operator code</source>
        <translation>رمز المشغل</translation>
    </message>
    <message>
        <source>Operator name</source>
        <translation>اسم المشغل</translation>
    </message>
    <message>
        <source>Cell identity</source>
        <translation>هوية الخلية</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>نشطة</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>الواجهة</translation>
    </message>
    <message>
        <source>Address family</source>
        <translation>عائلة العناوين</translation>
    </message>
    <message>
        <source>IPv4 method</source>
        <translation>طريقة IPv4</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>عنوان IPv4</translation>
    </message>
    <message>
        <source>IPv6 method</source>
        <translation>طريقة IPv6</translation>
    </message>
    <message>
        <source>IPv6 address</source>
        <translation>عنوان IPv6</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>المستلم</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>المرسل</translation>
    </message>
    <message>
        <source>Last error</source>
        <translation>آخر خطأ</translation>
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
