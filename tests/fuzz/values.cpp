// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

// The input is what the device answers, call by call. Each value is compared with the answer that
// it was made of, the windows with the values, and the exports with the windows.

#include "Fuzz.h"

#include "DiagnosticsCdmaUI.h"
#include "DiagnosticsConfigParse.h"
#include "DiagnosticsUILogic.h"

#include "core/Change.h"
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"
#include "sdk/VeltPhonebook.h"
#include "sdk/VeltSms.h"

#include <QFormLayout>
#include <QHash>
#include <QLabel>
#include <QRegularExpression>
#include <QTabWidget>

#include <cstring>

using namespace Fuzz;

namespace {

/// What a row has to say, by the last answer that it is made of.
struct Said
{
    QString text;
    VELT_ERROR result = VELT_SUCCESS;
};

/// The device: its answers are the bytes of the input in turn, and zeros behind its end.
struct
{
    const uint8_t *data;
    size_t size;
    size_t at;
    bool constant;                       ///< a function repeats its answer
    QHash<const char *, size_t> answers; ///< where that of a function begins
    QHash<QString, Said> said;           ///< by the name of the row

    void start(bool constantly)
    {
        constant = constantly;
        answers.clear();
        said.clear();
    }
} device;

/// One call of an SDK function. A failing one may fill its out-parameters, and a succeeding one may
/// leave them as they were.
class Answer
{
public:
    explicit Answer(const char *function)
        : m_at(device.constant ? device.answers.value(function, device.at) : device.at)
    {
        device.answers[function] = m_at;
        const uint8_t way = take();
        m_result = (way & 3) == 3 ? way : 0;
        m_fills = (way & 12) != 12;
    }
    ~Answer() { device.at = qMax(device.at, m_at); }

    template <typename Number>
    Answer &number(Number *out, const char *row = "")
    {
        char bytes[sizeof(Number)];
        for (char &byte : bytes)
            byte = static_cast<char>(take());
        if (m_fills)
            std::memcpy(out, bytes, sizeof bytes);
        return say(row, QString::number(*out));
    }

    Answer &text(char *buffer, int size, const char *row = "", const char *cdmaRow = "")
    {
        const QString text = QString::fromLatin1(fill(buffer, size));
        return m_fills ? say(row, text).say(cdmaRow, text) : ask(row).ask(cdmaRow);
    }

    Answer &localText(char *buffer, int size, const char *row)
    {
        const QString text = QString::fromLocal8Bit(fill(buffer, size));
        return m_fills ? say(row, text) : ask(row);
    }

    Answer &wideText(uint16_t *buffer, int size, const char *row)
    {
        fill(reinterpret_cast<char *>(buffer), size);
        int units = 0;
        while (units < size / 2 && buffer[units] != 0)
            ++units;
        return say(row, QString(reinterpret_cast<const QChar *>(buffer), units));
    }

    Answer &say(const char *row, const QString &text)
    {
        device.said[QLatin1String(row)].text = text;
        return ask(row);
    }

    operator VELT_ERROR() const { return m_result; }

private:
    uint8_t take() { return m_at < device.size ? device.data[m_at++] : 0; }

    Answer &ask(const char *row)
    {
        device.said[QLatin1String(row)].result = m_result;
        return *this;
    }

    /// Fills a buffer, with a zero behind the text where there is room, and gives the text up to
    /// its first zero.
    QByteArray fill(char *buffer, int size)
    {
        const int length = take() << 8 | take();
        QByteArray bytes(length % (size + 1), '\0');
        for (char &byte : bytes)
            byte = static_cast<char>(take());
        if (m_fills)
            std::memcpy(buffer, bytes.constData(), size_t(qMin(bytes.size() + 1, size)));
        return QByteArray(bytes.constData());
    }

    size_t m_at;
    VELT_ERROR m_result;
    bool m_fills;
};

} // namespace

// In place of libsdk. The rows that show a value stand beside it, those of the tabbed window first.
// clang-format off

#define ANSWER(function, outputs) VELT_ERROR function { return Answer(__func__) outputs; }

ANSWER(VELT_DevSrv_RegisterDevMgrCallback(VELT_DEVICE_CALLBACK), )
ANSWER(VELT_DevSrv_RegisterDevInitEventCallback(VELT_DEVICE_CALLBACK), )
ANSWER(VELT_DevSrv_UnRegisterDevMgrCallback(VELT_DEVICE_CALLBACK), )
ANSWER(VELT_DevSrv_UnRegisterDevInitEventCallback(VELT_DEVICE_CALLBACK), )
ANSWER(VELT_DevSrv_GetDevStatus(int32_t *status), .number(status))
ANSWER(VELT_DevSrv_GetProductType(int32_t *type), .number(type))
ANSWER(VELT_DevSrv_GetCustomizeName(char *name), .text(name, VELT_SIZE_CUSTOMIZE_NAME))
ANSWER(VELT_DevSrv_GetDeviceName(char *name), .text(name, VELT_SIZE_DEVICE_NAME, "Device name"))
ANSWER(VELT_DevSrv_GetDevicePort(int32_t *port), .number(port))
ANSWER(VELT_DevSrv_GetFirmwareVersion(VELT_VERSION_INFO *version),
       .text(version->firmware, 40, "Fireware version", "IDS_MAINFRM_FIRMWARE_VERSION")
       .text(version->hardware, 40, "Hardware version", "IDS_MAINFRM_HARDWARE_VERSION"))
ANSWER(VELT_DevSrv_GetImeiInfo(char *imei), .text(imei, VELT_SIZE_IMEI, "IMEI"))
ANSWER(VELT_DevSrv_GetSN(char *number), .text(number, VELT_SIZE_SERIAL_NUMBER, "Serial number"))
ANSWER(VELT_DevSrv_GetESN(VELT_ESN_INFO *esn),
       .text(esn->esn, 32, "IDS_MAINFRM_ESN").text(esn->meid, 32, "IDS_DIAGNOSE_MEID"))
ANSWER(VELT_DevSrv_GetVoltage(uint32_t *voltage), .number(voltage, "IDS_MAINFRM_VOLTAGE"))
ANSWER(VELT_DevSrv_GetNumberOfCarrier(int32_t *count), .number(count, "IDS_NUM_CARRIERS_PROMPT"))
ANSWER(VELT_DevSrv_GetSimStatus(int32_t *status), .number(status))
ANSWER(VELT_DevSrv_GetPinStatus(int32_t, int32_t *status, char *pinAttempts, char *pukAttempts,
           char *pinEnabled),
       .number(status).number(pinAttempts).number(pukAttempts).number(pinEnabled))
ANSWER(VELT_DevSrv_GetImsiInfo(char *imsi),
       .text(imsi, VELT_SIZE_IMSI, "IMSI number", "IDS_MAINFRM_IMSI"))
ANSWER(VELT_DevSrv_GetUserNumMemAbility(int32_t *capacity, int32_t *firstIndex, int32_t *used,
           int32_t *numberLength, int32_t *nameLength),
       .number(capacity).number(firstIndex).number(used).number(numberLength).number(nameLength))
ANSWER(VELT_DevSrv_ReadUserNumItem(int32_t, VELT_USER_NUMBER *item),
       .text(item->name, 256).text(item->number, 128, "Own number(MSISDN)"))

ANSWER(VELT_NetSrv_GetCurPlmn(int32_t *mode, VELT_OPERATOR *plmn),
       .number(mode).text(plmn->longName, 64).number(&plmn->accessTechnology))
ANSWER(VELT_NetSrv_GetCSRegState(VELT_REG_STATE *state),
       .number(&state->reportMode).number(&state->state).text(state->lac, 16, "LAC Code")
       .text(state->cellId, 16, "Cell ID"))
ANSWER(VELT_NetSrv_GetPSRegState(VELT_REG_STATE *state),
       .number(&state->reportMode).number(&state->state))
ANSWER(VELT_NetSrv_SetCSRegReport(int32_t), )
ANSWER(VELT_NetSrv_GetPSState(int32_t *state), .number(state))
ANSWER(VELT_NetSrv_GetRowRSSI(VELT_SIGNAL_PAIR *signal),
       .number(&signal->first).number(&signal->second, "RSQUAL(BER)")
       .say("Signal strength", QStringLiteral("%1, %2").arg(signal->first).arg(signal->second)))
ANSWER(VELT_NetSrv_GetSignalQuality(VELT_SIGNAL_PAIR *signal),
       .number(&signal->first, "RSCP").number(&signal->second, "Ec/Io"))
ANSWER(VELT_NetSrv_GetEFFile(int32_t, char *content), .text(content, VELT_SIZE_EF_FILE, "ICCID"))
ANSWER(VELT_NetSrv_GetPrlVer(char *version),
       .text(version, VELT_SIZE_PRL_VERSION, "IDS_DIAGNOSE_PRL_VER"))
ANSWER(VELT_NetSrv_GetIPAddress(const char *, const char *, char *address, int32_t size),
       .localText(address, size, "IP address"))
ANSWER(VELT_NetSrv_GetDNS(const char *, const char *, char *servers, int32_t size),
       .localText(servers, size, "DNS server"))

ANSWER(VELT_PBSrv_PBGetMemAbility(int32_t *used, int32_t *total), .number(used).number(total))
ANSWER(VELT_PBSrv_GetSize(int32_t, int32_t *size), .number(size))
ANSWER(VELT_PBSrv_GetCapacity(int32_t, int32_t *capacity), .number(capacity))

ANSWER(VELT_SMSSrv_GetSMSCentreNumber(int32_t *length, uint16_t *number, int32_t),
       .number(length).wideText(number, VELT_SIZE_SMS_CENTRE, "SMSC(Message center number)"))
ANSWER(VELT_SMSSrv_SMSRecordSetGetRecordCount(int32_t *count, int32_t), .number(count))
ANSWER(VELT_SMSSrv_GetRecordInfo(int32_t *total, int32_t *unread, int32_t),
       .number(total).number(unread))

// clang-format on

namespace {

QByteArray translated(const QString &key)
{
    return Change::tr(key, QStringLiteral("DiagnosisPlugin")).toUtf8();
}

/// A shown value is what the device said; where it said nothing of its own, a number or a word.
void checkValue(const QString &row, const QString &value)
{
    static const QRegularExpression ownWords(
        QStringLiteral("^(-?\\d+ / -?\\d+|[<>= ]*-\\d+dBm|[A-Za-z][A-Za-z '-]+)$"));
    if (!device.said.contains(row)) {
        require(ownWords.match(value).hasMatch(), "a number or a word",
                row + QLatin1String(" = ") + value);
        return;
    }
    const Said said = device.said.value(row);
    QString expected = said.result == VELT_SUCCESS ? said.text : QString();
    if (expected.isEmpty())
        expected = QLatin1String(row == QLatin1String("IDS_NUM_CARRIERS_PROMPT") ? "Not available"
                                                                                 : "Unknown");
    require(value == expected, "what the device said", row + QLatin1String(" = ") + value);
}

/// The value of a row on screen.
QByteArray shownValue(QWidget *window, const QString &row, bool read)
{
    const auto *label =
        window->findChild<QLabel *>(QStringLiteral("DiagnosticsUIPlugin_label%1Value").arg(row));
    require(label && label->textFormat() == Qt::PlainText, "a label with plain text", row);
    if (read)
        checkValue(row, label->text());
    else
        require(label->text() == QLatin1String("Unknown"), "unknown without a device", row);
    return label->text().toUtf8();
}

void checkTabbedWindow(Session &session, const QList<TabDetails> &tabs, bool available)
{
    auto *pages = session.parent->findChild<QTabWidget *>();
    for (int page = 0; page < pages->count(); ++page) {
        pages->setCurrentIndex(page);
        session.button("Refresh")->click();
    }
    const QByteArray saved = session.save("Save"); // reads the device even if there is none
    QByteArray shown;
    for (const TabDetails &tab : tabs) {
        shown += translated(tab.resourceID) + '\n';
        for (const TabItem &item : *tab.items)
            shown +=
                translated(item.resourceID) + ' ' + shownValue(pages, item.name, available) + '\n';
        shown += '\n';
    }
    require(!available || saved == shown, "the export of what is shown");
    require(saved.count('\n') >= shown.count('\n'), "a line for each row, two for each tab");
}

void checkCdmaWindow(Session &session)
{
    device.start(true); // answers anew, but the rows stay
    session.button("CdmaRefresh")->click();
    QByteArray shown;
    const auto *form = session.parent->findChild<QFormLayout *>();
    for (int row = 0; row < form->rowCount(); ++row) {
        const auto *caption =
            qobject_cast<QLabel *>(form->itemAt(row, QFormLayout::LabelRole)->widget());
        const QString name = caption->objectName().mid(25);
        shown += caption->text().toUtf8() + ' ' + shownValue(session.parent, name, true) + "\n\n";
    }
    require(session.save("CdmaSave") == shown, "the export of what is shown");
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Fuzz::host();
    device.data = data;
    device.size = size;
    device.at = 0;
    device.start(true);
    Session session;
    int32_t event = 0;
    Answer("event").number(&event);
    DiagnosticsUILogic::OnDevEvents(event, nullptr);
    const bool available = event != VELT_EVENT_DEV_REMOVAL && event != VELT_EVENT_DEV_LOST;
    require(session.show() == 1, "the window opens");
    const QList<TabDetails> &tabs = *DiagnosticsConfigParse::GetInstance()->GetTabInformation();
    if (session.parent->findChild<QTabWidget *>())
        checkTabbedWindow(session, tabs, available);
    else
        checkCdmaWindow(session);

    // From here on each call has an answer of its own.
    for (const TabDetails &tab : tabs) {
        for (const TabItem &item : *tab.items) {
            QString value;
            device.start(false);
            session.plugin.getValueLabelVal(tab.name, item.name, &value);
            checkValue(item.name, value);
        }
    }
    DiagnosticsCdmaUI *cdma = DiagnosticsCdmaUI::CreateInstance();
    for (const char *key :
         {"IDS_MAINFRM_SIM_MESSAGE_CONTENT_PROMPT", "IDS_MAINFRM_SIM_CONTACT_CONTENT",
          "IDS_MAINFRM_NV_MESSAGE_CONTENT", "IDS_MAINFRM_NV_CONTACT_CONTENT", "IDS_MAINFRM_IMSI",
          "IDS_MAINFRM_FIRMWARE_VERSION", "IDS_MAINFRM_HARDWARE_VERSION", "IDS_MAINFRM_VOLTAGE",
          "IDS_DIAGNOSE_PRL_VER", "IDS_NUM_CARRIERS_PROMPT", "IDS_MAINFRM_ESN",
          "IDS_DIAGNOSE_MEID"}) {
        device.start(false);
        const QString row = QLatin1String(key);
        checkValue(row, cdma->getLabelValuebyName(row));
    }
    return 0;
}
