// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "AtModem.h"

#include <QList>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <cstddef>
#include <cstring>

namespace {

const char currentOperator[] = "AT+COPS?";
const char numericOperator[] = "AT+COPS=3,2";
const char namedOperator[] = "AT+COPS=3,0";

QByteArray newPort()
{
    static int count = 0;
    return "abstract:modem" + QByteArray::number(++count) + ":" + QByteArray::number(getpid());
}

} // namespace

const char AtModem::silence[] = "-";

AtModem::AtModem() : m_port(newPort())
{
    for (const char *accepted :
         {"AT", "ATZ", "ATE0", "ATV1", "ATX4", "AT&C1", "AT+CMEE=", "AT+CFUN=", "AT+CREG=",
          "AT+CGREG=", "AT+CMGF=", "AT+CSMS=", "AT+CNMI=", "AT+CSCS=", "AT+CPMS="})
        set(accepted, "");
    set("AT+GCAP", "+GCAP: +CGSM,+DS,+ES");
    set("AT+CGMI", "Test Works");
    set("AT+CGMM", "TM-V1");
    set("AT+CGMR", "7.08.1");
    set("AT+CGSN", "001017003100016");
    set("AT+CPIN?", "+CPIN: READY");
    set("AT+CIMI", "001010000000017");
    set("AT+CRSM=176,12258,0,0,10", "+CRSM: 144,0,\"98000101000000001071\"");
    set("AT+CRSM=176,28589,0,0,4", "+CRSM: 144,0,\"00000002\"");
    set("AT+CRSM=176,28486,0,0,17", "+CRSM: 144,0,\"0154657374FFFFFFFFFFFFFFFFFFFFFFFF\"");
    set("AT+CNUM", "+CNUM: \"\",\"+447700900017\",145");
    set("AT+CFUN?", "+CFUN: 1");
    set("AT+CSQ", "+CSQ: 19,99");
    set("AT+CSIM=10,\"0020000100\"", "+CSIM: 4,\"63C3\"");
    set("AT+CSIM=10,\"002C000100\"", "+CSIM: 4,\"63C9\"");
    set("AT+CESQ=?", "+CESQ: (0-63,99),(0-7,99),(0-96,255),(0-49,255),(0-34,255),(0-97,255)");
    set("AT+CESQ", "+CESQ: 99,99,34,37,255,255");
    set("AT+CGATT?", "+CGATT: 1");
    set("AT+CGDCONT?", "+CGDCONT: 1,\"IP\",\"internet.example\",\"\",0,0");
    set("AT+CGACT?", "+CGACT: 1,0");
    set("AT+CPMS=?", "+CPMS: (\"SM\",\"ME\"),(\"SM\",\"ME\"),(\"SM\",\"ME\")");
    set("AT+CMGF=?", "+CMGF: (0,1)");
    set("AT+CMGL=4", "+CMGL: 1,1,,21\r\n"
                     "079144770009900004"
                     "0C914477000910710000621121600000000"
                     "2E834");
    registerAs(1);

    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path + 1, m_port.constData(), static_cast<size_t>(m_port.size()));
    const size_t size = offsetof(sockaddr_un, sun_path) + 1 + static_cast<size_t>(m_port.size());
    m_listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (bind(m_listener, reinterpret_cast<sockaddr *>(&address), static_cast<socklen_t>(size)) ||
        listen(m_listener, 1) || pipe(m_end))
        qFatal("no virtual modem: %s", std::strerror(errno));
    m_thread = std::thread(&AtModem::run, this);
}

AtModem::~AtModem()
{
    close(m_end[1]);
    m_thread.join();
    close(m_end[0]);
    close(m_listener);
}

void AtModem::set(const QByteArray &command, const QByteArray &answer)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_answers[command].text = answer;
}

void AtModem::delay(const QByteArray &command, int milliseconds)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_answers[command].delay = milliseconds;
}

void AtModem::registerAs(int state, const char *operatorCode)
{
    const bool registered = state == 1 || state == 5;
    const QByteArray status = QByteArray::number(state);
    const QByteArray location = registered ? ",\"1A2B\",\"00C3D4E\",2" : "";
    set("AT+CREG?", "+CREG: 2," + status + location);
    set("AT+CGREG?", "+CGREG: 2," + status + location);
    // In the format that was last asked for.
    set(numericOperator,
        registered ? "+COPS: 0,2,\"" + QByteArray(operatorCode) + "\",2" : "+COPS: 0");
    set(namedOperator, registered ? "+COPS: 0,0,\"Test Net One\",2" : "+COPS: 0");
    set("AT+CGATT?", registered ? "+CGATT: 1" : "+CGATT: 0");
}

void AtModem::send(const QByteArray &line)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    const QByteArray bytes = "\r\n" + line + "\r\n";
    if (m_connection >= 0)
        ::send(m_connection, bytes.constData(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL);
}

QByteArray AtModem::commands() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_commands;
}

void AtModem::run()
{
    QByteArray input;
    for (;;) {
        pollfd files[] = {{m_end[0], POLLIN, 0},
                          {m_connection >= 0 ? m_connection : m_listener, POLLIN, 0}};
        poll(files, 2, -1);
        if (files[0].revents)
            break;
        if (m_connection < 0) {
            const int connection = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
            std::lock_guard<std::mutex> lock(m_mutex);
            m_connection = connection;
            continue;
        }
        char bytes[512];
        const ssize_t size = recv(m_connection, bytes, sizeof bytes, 0);
        if (size <= 0) {
            std::lock_guard<std::mutex> lock(m_mutex);
            close(m_connection);
            m_connection = -1;
            input.clear();
            continue;
        }
        input.append(bytes, static_cast<int>(size));
        for (int end = 0; (end = static_cast<int>(input.indexOf('\r'))) >= 0;) {
            answer(input.left(end).trimmed());
            input.remove(0, end + 1);
        }
    }
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_connection >= 0)
        close(m_connection);
}

void AtModem::answer(const QByteArray &command)
{
    Answer found;
    found.text = "ERROR";
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_commands += command + "\n";
        const QByteArray general = command.left(command.indexOf('=') + 1);
        for (const QByteArray &key : {command, general}) {
            if (!key.isEmpty() && m_answers.contains(key)) {
                found = m_answers[key];
                break;
            }
        }
        if (command == numericOperator || command == namedOperator) {
            m_answers[currentOperator] = found;
            found = {};
        }
    }
    if (found.text == silence)
        return;
    // The end does not wait for a late answer.
    pollfd end = {m_end[0], POLLIN, 0};
    if (found.delay > 0 && poll(&end, 1, found.delay) > 0)
        return;
    if (found.text.isEmpty())
        send("OK");
    else if (found.text.contains("ERROR"))
        send(found.text);
    else
        send(found.text + "\r\n\r\nOK");
}
