// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "Conversation.h"

#include "DiagnosticsLog.h"
#include "SdkControl.h"
#include "sdk/VeltDevice.h"
#include "sdk/VeltNetwork.h"
#include "sdk/VeltPhonebook.h"
#include "sdk/VeltSms.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <utility>

namespace {

const int mostArguments = 3; ///< of a log line, behind time, source and function

template <typename Out, VELT_ERROR (*function)(Out *)>
void ask()
{
    Out out = Out();
    function(&out);
}

template <std::size_t size, VELT_ERROR (*function)(char *)>
void askText()
{
    char text[size + 1] = "";
    function(text);
}

template <VELT_ERROR (*function)(int32_t *, int32_t *)>
void askPair()
{
    int32_t first = 0;
    int32_t second = 0;
    function(&first, &second);
}

template <VELT_ERROR (*function)(const char *, const char *, char *, int32_t)>
void askAddress()
{
    char address[256] = "";
    function("TM-W310", "Test Net Internet", address, 64);
}

/// Each call with the arguments that the plug-in gives on the modem wcdma. The SMS centre is asked
/// with two different ones, which cost the same.
// clang-format off
const std::pair<const char *, void (*)()> Calls[] = {
    {"VELT_DevSrv_GetProductType",     ask<int32_t, VELT_DevSrv_GetProductType>},
    {"VELT_DevSrv_GetDevicePort",      ask<int32_t, VELT_DevSrv_GetDevicePort>},
    {"VELT_DevSrv_GetFirmwareVersion", ask<VELT_VERSION_INFO, VELT_DevSrv_GetFirmwareVersion>},
    {"VELT_DevSrv_GetDeviceName",      askText<VELT_SIZE_DEVICE_NAME, VELT_DevSrv_GetDeviceName>},
    {"VELT_DevSrv_GetSN",              askText<VELT_SIZE_SERIAL_NUMBER, VELT_DevSrv_GetSN>},
    {"VELT_DevSrv_GetImeiInfo",        askText<VELT_SIZE_IMEI, VELT_DevSrv_GetImeiInfo>},
    {"VELT_DevSrv_GetImsiInfo",        askText<VELT_SIZE_IMSI, VELT_DevSrv_GetImsiInfo>},
    {"VELT_NetSrv_GetCSRegState",      ask<VELT_REG_STATE, VELT_NetSrv_GetCSRegState>},
    {"VELT_NetSrv_GetPSRegState",      ask<VELT_REG_STATE, VELT_NetSrv_GetPSRegState>},
    {"VELT_NetSrv_GetPSState",         ask<int32_t, VELT_NetSrv_GetPSState>},
    {"VELT_NetSrv_GetRowRSSI",         ask<VELT_SIGNAL_PAIR, VELT_NetSrv_GetRowRSSI>},
    {"VELT_NetSrv_GetSignalQuality",   ask<VELT_SIGNAL_PAIR, VELT_NetSrv_GetSignalQuality>},
    {"VELT_NetSrv_GetIPAddress",       askAddress<VELT_NetSrv_GetIPAddress>},
    {"VELT_NetSrv_GetDNS",             askAddress<VELT_NetSrv_GetDNS>},
    {"VELT_PBSrv_PBGetMemAbility",     askPair<VELT_PBSrv_PBGetMemAbility>},
    {"VELT_NetSrv_SetCSRegReport",     [] { VELT_NetSrv_SetCSRegReport(2); }},
    {"VELT_NetSrv_GetCurPlmn", [] {
        int32_t mode = -1;
        VELT_OPERATOR plmn = VELT_OPERATOR();
        VELT_NetSrv_GetCurPlmn(&mode, &plmn);
    }},
    {"VELT_NetSrv_GetEFFile", [] {
        char content[VELT_SIZE_EF_FILE + 1] = "";
        VELT_NetSrv_GetEFFile(1, content);
    }},
    {"VELT_DevSrv_GetPinStatus", [] {
        int32_t status = 0;
        char attempts[3] = "";
        VELT_DevSrv_GetPinStatus(0, &status, &attempts[0], &attempts[1], &attempts[2]);
    }},
    {"VELT_DevSrv_GetUserNumMemAbility", [] {
        int32_t numbers[5] = {};
        VELT_DevSrv_GetUserNumMemAbility(&numbers[0], &numbers[1], &numbers[2], &numbers[3],
                                         &numbers[4]);
    }},
    {"VELT_DevSrv_ReadUserNumItem", [] {
        VELT_USER_NUMBER item = VELT_USER_NUMBER();
        VELT_DevSrv_ReadUserNumItem(1, &item);
    }},
    {"VELT_SMSSrv_GetSMSCentreNumber", [] {
        int32_t length = 0;
        uint16_t number[VELT_SIZE_SMS_CENTRE / 2] = {};
        VELT_SMSSrv_GetSMSCentreNumber(&length, number, 13);
    }},
    {"VELT_SMSSrv_SMSRecordSetGetRecordCount", [] {
        int32_t count = 0;
        VELT_SMSSrv_SMSRecordSetGetRecordCount(&count, 1);
    }},
    {"VELT_SMSSrv_GetRecordInfo", [] {
        int32_t total = 0;
        int32_t unread = 0;
        VELT_SMSSrv_GetRecordInfo(&total, &unread, 1);
    }},
};
// clang-format on

QStringList lines;                  ///< since the record began
std::vector<std::size_t> callsThen; ///< how many calls there were before each line

void note(QtMsgType, const QMessageLogContext &, const QString &message)
{
    lines.append(message);
    callsThen.push_back(SdkControl::recordedCalls().size());
}

/// The format of a log line, and what its lines look like.
struct Format
{
    QByteArray text;
    QRegularExpression lines;
    QByteArray kinds; ///< of the conversions, by the letter that each begins with
};

/// Those of the plug-in's sources.
QList<Format> readFormats()
{
    const QRegularExpression call(QStringLiteral("qDebug\\(((?:\\s*\"[^\"]*\")+)"));
    const QRegularExpression seam(QStringLiteral("\"\\s*\""));
    const QRegularExpression conversion(QStringLiteral("%(s|d|u|li)"));
    const QDir folder(QStringLiteral(PLUGIN_SOURCE_DIR));
    QList<Format> formats;
    for (const QString &name : folder.entryList({QStringLiteral("*.cpp")})) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(name));
        auto found = call.globalMatch(QString::fromLatin1(file.readAll()));
        while (found.hasNext()) {
            const QString text = found.next().captured(1).remove(seam).remove(QLatin1Char('"'));
            QString lines = QRegularExpression::escape(text);
            QByteArray kinds;
            auto conversions = conversion.globalMatch(text);
            while (conversions.hasNext()) {
                const QString kind = conversions.next().captured(1);
                kinds.append(kind.at(0).toLatin1());
                const QString escaped = QRegularExpression::escape(QLatin1Char('%') + kind);
                lines.replace(lines.indexOf(escaped), escaped.size(),
                              kinds.endsWith('s') ? QStringLiteral("(.*?)")
                                                  : QStringLiteral("(-?\\d+)"));
            }
            formats.append({text.toLatin1(),
                            QRegularExpression(QRegularExpression::anchoredPattern(lines)), kinds});
        }
    }
    return formats;
}

void (*callNamed(const std::string &name))()
{
    for (const auto &call : Calls) {
        if (name == call.first)
            return call.second;
    }
    qFatal("no call of %s by hand", name.c_str());
}

/// What an action logs and calls.
std::vector<SdkControl::Call> watch(const std::function<void()> &action)
{
    lines.clear();
    callsThen.clear();
    SdkControl::startRecording();
    const QtMessageHandler previous = qInstallMessageHandler(note);
    action();
    qInstallMessageHandler(previous);
    const std::vector<SdkControl::Call> calls = SdkControl::recordedCalls();
    SdkControl::stopRecording();
    return calls;
}

/// A line without its time, which differs.
QStringList withoutTimes(QStringList lines)
{
    return lines.replaceInStrings(QRegularExpression(QStringLiteral("\\d\\d:\\d\\d:\\d\\d:\\d{3}")),
                                  QString());
}

} // namespace

/// The line as its format and arguments.
void Conversation::split(const QString &line, Step *step)
{
    static const QList<Format> formats = readFormats();
    for (const Format &known : formats) {
        // The most literal of those that fit.
        const QRegularExpressionMatch match = known.text.size() > step->format.size()
                                                  ? known.lines.match(line)
                                                  : QRegularExpressionMatch();
        if (!match.hasMatch() || known.kinds.size() < 3)
            continue;
        step->format = known.text;
        step->texts.clear();
        step->arguments.clear();
        for (int index = 0; index < known.kinds.size(); ++index) {
            const QByteArray text = match.captured(index + 1).toLatin1();
            if (index < 3)
                step->texts.append(text);
            else
                step->arguments.append({known.kinds.at(index), text, text.toLong()});
        }
    }
    if (step->format.isEmpty())
        qFatal("no format of the line \"%s\"", qPrintable(line));
}

/// Writes a line with the arguments that were taken along.
template <typename... Arguments>
void Conversation::log(std::integral_constant<int, 0>, const Step &step, Arguments... arguments)
{
    qDebug(step.format.constData(), LogTime().text(), step.texts.at(1).constData(),
           step.texts.at(2).constData(), arguments...);
}

/// Takes the next argument along, by its type, as long as there is one and room for it.
template <int size, typename... Arguments>
void Conversation::log(std::integral_constant<int, size>, const Step &step, Arguments... arguments)
{
    const int taken = sizeof...(Arguments);
    const std::integral_constant<int, size - 1> room;
    if (taken == step.arguments.size())
        return log(std::integral_constant<int, 0>(), step, arguments...);
    const Argument &next = step.arguments.at(taken);
    switch (next.kind) {
    case 's':
        return log(room, step, arguments..., next.text.constData());
    case 'l':
        return log(room, step, arguments..., next.number);
    default:
        return log(room, step, arguments..., static_cast<int>(next.number));
    }
}

Conversation Conversation::record(const std::function<void()> &action)
{
    const std::vector<SdkControl::Call> calls = watch(action);
    Conversation conversation;
    std::size_t made = 0;
    const auto addCalls = [&](std::size_t upTo) {
        for (; made < upTo; ++made)
            conversation.m_steps.push_back({callNamed(calls[made].function), {}, {}, {}});
    };
    for (int index = 0; index < lines.size(); ++index) {
        addCalls(callsThen[static_cast<std::size_t>(index)]);
        Step step = {nullptr, {}, {}, {}};
        split(lines.at(index), &step);
        conversation.m_steps.push_back(step);
    }
    addCalls(calls.size());

    const QStringList said = withoutTimes(lines);
    const bool sameCalls = watch([&] { conversation.repeat(); }).size() == calls.size();
    const QStringList repeated = withoutTimes(lines);
    for (int index = 0; index < qMax(said.size(), repeated.size()); ++index) {
        if (said.value(index) != repeated.value(index))
            qFatal("by hand \"%s\" is not \"%s\"", qPrintable(repeated.value(index)),
                   qPrintable(said.value(index)));
    }
    if (!sameCalls)
        qFatal("the calls by hand are not those of the plug-in");
    return conversation;
}

void Conversation::repeat() const
{
    for (const Step &step : m_steps) {
        if (step.call)
            step.call();
        else
            log(std::integral_constant<int, mostArguments>(), step);
    }
}
