// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "AtModem.h"

#include <QFile>
#include <QString>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>

using Lock = std::lock_guard<std::mutex>;

AtModem::AtModem()
{
    static int count = 0;
    m_port = QString("abstract:modem%1:%2").arg(++count).arg(getpid()).toLatin1();
    QFile usual(TOOLS_DIR "/at_modem.txt");
    if (!usual.open(QIODevice::ReadOnly))
        qFatal("no virtual modem: %s", qPrintable(usual.errorString()));
    set(usual.readAll());
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path + 1, m_port.constData(), static_cast<size_t>(m_port.size()));
    const size_t size = offsetof(sockaddr_un, sun_path) + 1 + static_cast<size_t>(m_port.size());
    m_listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (bind(m_listener, reinterpret_cast<sockaddr *>(&address), static_cast<socklen_t>(size)) ||
        listen(m_listener, 1))
        qFatal("no virtual modem: %s", std::strerror(errno));
    m_thread = std::thread(&AtModem::run, this);
}

AtModem::~AtModem()
{
    shutdown(m_listener, SHUT_RDWR);
    m_thread.join();
    close(m_listener);
}

void AtModem::set(const QByteArray &answers)
{
    const Lock lock(m_mutex);
    for (const QByteArray &line : QByteArray(answers).replace("; ", "\n").split('\n')) {
        const int end = line.indexOf(" =");
        if (line.startsWith('#') || end < 0)
            continue;
        for (const QByteArray &command : line.left(end).split(' '))
            m_answers[command] = line.mid(end + 2).trimmed().replace("\\n", "\r\n");
    }
}

void AtModem::send(const QByteArray &line)
{
    const Lock lock(m_mutex);
    const QByteArray bytes = "\r\n" + line + "\r\n";
    ::send(m_connection, bytes.constData(), static_cast<size_t>(bytes.size()), MSG_NOSIGNAL);
}

void AtModem::run()
{
    int connection;
    while ((connection = accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC)) >= 0) {
        {
            const Lock lock(m_mutex);
            m_connection = connection;
        }
        QByteArray input;
        for (char byte; recv(connection, &byte, 1, 0) == 1;) {
            if (byte == '\r') {
                answer(input.trimmed());
                input.clear();
            } else {
                input += byte;
            }
        }
        const Lock lock(m_mutex);
        close(connection);
        m_connection = -1;
    }
}

void AtModem::answer(const QByteArray &command)
{
    QByteArray found;
    {
        const Lock lock(m_mutex);
        const QByteArray general = command.left(command.indexOf('=') + 1);
        found = m_answers.value(command, m_answers.value(general, "ERROR"));
        // The operator comes in the format that was last asked for.
        if (command.startsWith("AT+COPS=3,")) {
            m_answers["AT+COPS?"] = found;
            found.clear();
        }
    }
    if (found.contains("ERROR"))
        send(found);
    else
        send(found.isEmpty() ? "OK" : found + "\r\n\r\nOK");
}
