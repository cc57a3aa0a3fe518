<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<!-- SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors -->
<!-- SPDX-License-Identifier: MIT -->
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>DiagnosisPlugin</name>
    <message>
        <source>IDS_PLUGIN_NAME</source>
        <translation>诊断</translation>
    </message>
    <message>
        <source>IDS_OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SAVE_PROMPT</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_REFRESH_PROMPT</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_CANCEL_PROMPT</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>IDS_PROMPT_CAPTION</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>IDS_ERROR_CAPTION</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>IDS_EXPORTSUCCESS_PROMPT</source>
        <translation>诊断信息已保存。</translation>
    </message>
    <message>
        <source>IDS_EXPORTFAILURE_PROMPT</source>
        <translation>无法保存诊断信息。</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_UNKNOWN</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>IDS_TAB_DEVICE</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>IDS_TAB_NETWORK_SETTINGS</source>
        <translation>网络设置</translation>
    </message>
    <message>
        <source>IDS_TAB_NETWORK_STATUS</source>
        <translation>网络状态</translation>
    </message>
    <message>
        <source>IDS_TAB_SIM</source>
        <translation>SIM/USIM</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_DEVICE_NAME</source>
        <translation>设备名称</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_APPLICATION_PORT</source>
        <translation>应用端口</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SERIAL_NUMBER</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IMEI</source>
        <translation>IMEI</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_HARDWARE_VERSION</source>
        <translation>硬件版本</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_FIRMWARE_VERSION</source>
        <translation>固件版本</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SOFTWARE_VERSION</source>
        <translation>软件版本</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_APN</source>
        <translation>APN</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SELECTION_MODE</source>
        <translation>网络选择</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_NETWORK_NAME</source>
        <translation>网络名称</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_NETWORK_TYPE</source>
        <translation>网络类型</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIGNAL_STRENGTH</source>
        <translation>信号强度</translation>
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
        <translation>小区 ID</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_LAC</source>
        <translation>位置区码 (LAC)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_CS_REGISTRATION</source>
        <translation>CS 域注册</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PS_REGISTRATION</source>
        <translation>PS 域注册</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PS_ATTACHMENT</source>
        <translation>PS 域附着</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IP_ADDRESS</source>
        <translation>IP 地址</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_DNS_SERVER</source>
        <translation>DNS 服务器</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_OWN_NUMBER</source>
        <translation>本机号码 (MSISDN)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIM_MESSAGES</source>
        <translation>SIM/USIM 中的短信</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SIM_CONTACTS</source>
        <translation>SIM/USIM 中的联系人</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_SMSC</source>
        <translation>短信中心 (SMSC)</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PIN_STATUS</source>
        <translation>PIN 状态</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_ICCID</source>
        <translation>ICCID</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SIM_MESSAGE_CONTENT_PROMPT</source>
        <translation>SIM/USIM 中的短信</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_SIM_CONTACT_CONTENT</source>
        <translation>SIM/USIM 中的联系人</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_NV_MESSAGE_CONTENT</source>
        <translation>设备中的短信</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_NV_CONTACT_CONTENT</source>
        <translation>设备中的联系人</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_IMSI</source>
        <translation>IMSI</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_FIRMWARE_VERSION</source>
        <translation>固件版本</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_HARDWARE_VERSION</source>
        <translation>硬件版本</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_VOLTAGE</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_PRL_VER</source>
        <translation>PRL 版本</translation>
    </message>
    <message>
        <source>IDS_NUM_CARRIERS_PROMPT</source>
        <translation>载波数量</translation>
    </message>
    <message>
        <source>IDS_CARRIERS_NUM_NA</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_ESN</source>
        <translation>ESN</translation>
    </message>
    <message>
        <source>IDS_MAINFRM_PESN</source>
        <translation>伪 ESN</translation>
    </message>
    <message>
        <source>IDS_DIAGNOSE_MEID</source>
        <translation>MEID</translation>
    </message>
    <message>
        <source>IDS_LANG_AUTOMATIC</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>IDS_LANG_MANUAL</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>IDS_LANG_ATTACHED</source>
        <translation>已附着</translation>
    </message>
    <message>
        <source>IDS_LANG_NOT_ATTACHED</source>
        <translation>未附着</translation>
    </message>
    <message>
        <source>IDS_LANG_NOT_REGISTERED</source>
        <translation>未注册</translation>
    </message>
    <message>
        <source>IDS_LANG_REGISTERED</source>
        <translation>已注册</translation>
    </message>
    <message>
        <source>IDS_LANG_REGISTERING</source>
        <translation>正在注册</translation>
    </message>
    <message>
        <source>IDS_LANG_REG_DENIED</source>
        <translation>注册被拒绝</translation>
    </message>
    <message>
        <source>IDS_LANG_ROAMING</source>
        <translation>漫游</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_NOT_INITIALIZED</source>
        <translation>PIN 未初始化</translation>
    </message>
    <message>
        <source>IDS_LANG_READY</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_REQUIRED</source>
        <translation>需要 PIN</translation>
    </message>
    <message>
        <source>IDS_LANG_PUK_REQUIRED</source>
        <translation>需要 PUK</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN_BLOCKED</source>
        <translation>PIN 已锁定</translation>
    </message>
    <message>
        <source>IDS_LANG_PIN2_REQUIRED</source>
        <translation>需要 PIN2</translation>
    </message>
    <message>
        <source>IDS_LANG_PUK2_REQUIRED</source>
        <translation>需要 PUK2</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Diagnosis host</source>
        <translation>诊断主程序</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>调制解调器</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Plugged in</source>
        <translation>已插入</translation>
    </message>
    <message>
        <source>Unplugged</source>
        <translation>已拔出</translation>
    </message>
    <message>
        <source>&amp;Plug in</source>
        <translation>插入(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Unplug</source>
        <translation>拔出(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Diagnostics</source>
        <translation>诊断(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Copy report</source>
        <translation>复制报告(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Save report…</source>
        <translation>保存报告(&amp;S)…</translation>
    </message>
    <message>
        <source>Save report</source>
        <translation>保存报告</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>文本 (*.txt)</translation>
    </message>
    <message>
        <source>&amp;Hide identifiers</source>
        <translation>隐藏标识信息(&amp;H)</translation>
    </message>
    <message>
        <source>Reports do not tell what identifies the device, its user or its place.</source>
        <translation>报告不包含可识别设备、用户或位置的信息。</translation>
    </message>
    <message>
        <source>A simulated modem takes its place.</source>
        <translation>现以模拟调制解调器代替。</translation>
    </message>
    <message>
        <source>%1 (simulated)</source>
        <translation>%1（模拟）</translation>
    </message>
    <message>
        <source>The diagnostics window could not be opened.</source>
        <translation>无法打开诊断窗口。</translation>
    </message>
    <message>
        <source>The report was copied.</source>
        <translation>报告已复制。</translation>
    </message>
    <message>
        <source>The report was saved.</source>
        <translation>报告已保存。</translation>
    </message>
    <message>
        <source>The report was not saved: %1</source>
        <translation>报告未能保存：%1</translation>
    </message>
</context>
<context>
    <name>Verdict</name>
    <message>
        <source>The system's message bus does not answer.</source>
        <translation>系统的消息总线没有响应。</translation>
    </message>
    <message>
        <source>ModemManager is not running.</source>
        <translation>ModemManager 未运行。</translation>
    </message>
    <message>
        <source>ModemManager has not answered yet.</source>
        <translation>ModemManager 尚未响应。</translation>
    </message>
    <message>
        <source>ModemManager has not answered for %1 seconds.</source>
        <translation>ModemManager 已有 %1 秒没有响应。</translation>
    </message>
    <message>
        <source>The modem does not answer.</source>
        <translation>调制解调器没有响应。</translation>
    </message>
    <message>
        <source>ModemManager has no modem.</source>
        <translation>ModemManager 没有找到调制解调器。</translation>
    </message>
    <message>
        <source>ModemManager has no modem with the number %1.</source>
        <translation>ModemManager 没有编号为 %1 的调制解调器。</translation>
    </message>
    <message>
        <source>No modem is plugged in.</source>
        <translation>没有插入调制解调器。</translation>
    </message>
    <message>
        <source>The modem failed: its SIM has an error.</source>
        <translation>调制解调器出现故障：SIM 卡有错误。</translation>
    </message>
    <message>
        <source>The modem failed: its capabilities are unknown.</source>
        <translation>调制解调器出现故障：无法确定其功能。</translation>
    </message>
    <message>
        <source>The modem failed: its eSIM has no profile.</source>
        <translation>调制解调器出现故障：eSIM 中没有配置文件。</translation>
    </message>
    <message>
        <source>The modem failed, and does not say why.</source>
        <translation>调制解调器出现故障，但未说明原因。</translation>
    </message>
    <message>
        <source>There is no SIM in the modem.</source>
        <translation>调制解调器中没有 SIM 卡。</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN (tries left: %1).</source>
        <translation>SIM 卡要求输入 PIN（剩余次数：%1）。</translation>
    </message>
    <message>
        <source>The SIM asks for its PIN.</source>
        <translation>SIM 卡要求输入 PIN。</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK (tries left: %1).</source>
        <translation>SIM 卡要求输入 PUK（剩余次数：%1）。</translation>
    </message>
    <message>
        <source>The SIM asks for its PUK.</source>
        <translation>SIM 卡要求输入 PUK。</translation>
    </message>
    <message>
        <source>The SIM is blocked: no tries are left for its PUK.</source>
        <translation>SIM 卡已锁死：PUK 的输入次数已用完。</translation>
    </message>
    <message>
        <source>The modem is locked and asks for a code other than the PIN.</source>
        <translation>调制解调器已锁定，需要 PIN 以外的密码。</translation>
    </message>
    <message>
        <source>The modem is switched off.</source>
        <translation>调制解调器已关闭。</translation>
    </message>
    <message>
        <source>The modem is in low-power mode: its radio is off.</source>
        <translation>调制解调器处于低功耗模式：射频已关闭。</translation>
    </message>
    <message>
        <source>The modem is disabled.</source>
        <translation>调制解调器已停用。</translation>
    </message>
    <message>
        <source>The modem is starting.</source>
        <translation>调制解调器正在启动。</translation>
    </message>
    <message>
        <source>The network refuses the modem (cause: %1).</source>
        <translation>网络拒绝了调制解调器（原因：%1）。</translation>
    </message>
    <message>
        <source>The network refuses the modem.</source>
        <translation>网络拒绝了调制解调器。</translation>
    </message>
    <message>
        <source>The modem is searching for a network.</source>
        <translation>调制解调器正在搜索网络。</translation>
    </message>
    <message>
        <source>The modem is not registered with a network.</source>
        <translation>调制解调器未在网络上注册。</translation>
    </message>
    <message>
        <source>The modem is registered, but not attached to the packet service.</source>
        <translation>调制解调器已注册，但未附着到分组域。</translation>
    </message>
    <message>
        <source>The modem is registered, but there is no connection.</source>
        <translation>调制解调器已注册，但没有建立连接。</translation>
    </message>
    <message>
        <source>The modem is connected, but its signal is weak (%1).</source>
        <translation>调制解调器已连接，但信号较弱（%1）。</translation>
    </message>
    <message>
        <source>The modem is connected.</source>
        <translation>调制解调器已连接。</translation>
    </message>
    <message>
        <source>The modem does not tell enough for a verdict.</source>
        <translation>调制解调器提供的信息不足，无法判断。</translation>
    </message>
</context>
<context>
    <name>RadioAndService</name>
    <message>
        <source>Radio and service</source>
        <translation>无线与服务</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>调制解调器</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>小区</translation>
    </message>
    <message>
        <source>SIM slot</source>
        <translation>SIM 卡槽</translation>
    </message>
    <message>
        <source>Bearer</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Failed reason</source>
        <translation>故障原因</translation>
    </message>
    <message>
        <source>Power</source>
        <translation>电源</translation>
    </message>
    <message>
        <source>Unlock required</source>
        <translation>所需解锁码</translation>
    </message>
    <message>
        <source>Unlock tries</source>
        <translation>剩余解锁次数</translation>
    </message>
    <message>
        <source>Manufacturer</source>
        <translation>制造商</translation>
    </message>
    <message>
        <source>Firmware revision</source>
        <translation>固件修订版</translation>
    </message>
    <message>
        <source>Equipment identifier</source>
        <translation>设备标识</translation>
    </message>
    <message>
        <source>Capabilities</source>
        <translation>功能</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Bands</source>
        <translation>频段</translation>
    </message>
    <message>
        <source>Access technologies</source>
        <translation>接入技术</translation>
    </message>
    <message>
        <source>Signal quality</source>
        <translation>信号质量</translation>
    </message>
    <message>
        <source>Registration</source>
        <translation>注册</translation>
    </message>
    <message>
        <source>Rejection cause</source>
        <translation>拒绝原因</translation>
    </message>
    <message>
        <source>Packet service</source>
        <translation>分组域服务</translation>
    </message>
    <message>
        <source>Operator code</source>
        <translation>运营商代码</translation>
    </message>
    <message>
        <source>Operator name</source>
        <translation>运营商名称</translation>
    </message>
    <message>
        <source>Cell identity</source>
        <translation>小区标识</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>接口</translation>
    </message>
    <message>
        <source>Address family</source>
        <translation>地址族</translation>
    </message>
    <message>
        <source>IPv4 method</source>
        <translation>IPv4 方式</translation>
    </message>
    <message>
        <source>IPv4 address</source>
        <translation>IPv4 地址</translation>
    </message>
    <message>
        <source>IPv6 method</source>
        <translation>IPv6 方式</translation>
    </message>
    <message>
        <source>IPv6 address</source>
        <translation>IPv6 地址</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>已接收</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>已发送</translation>
    </message>
    <message>
        <source>Last error</source>
        <translation>最近的错误</translation>
    </message>
</context>
</TS>
