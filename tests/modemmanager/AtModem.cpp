// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include "AtModem.h"

#include "ServiceSupport.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <cstddef>
#include <cstring>

using Lock = std::lock_guard<std::mutex>;

AtModem::AtModem()
{
    static int count = 0;
    m_port = QString("abstract:modem%1:%2").arg(++count).arg(getpid()).toLatin1();
    set(ServiceSupport::content("at_modem.txt"));
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

void AtModem::set(const QString &answers)
{
    const Lock lock(m_mutex);
    const auto pairs = ServiceSupport::pairs(answers);
    for (auto i = pairs.begin(); i != pairs.end(); ++i) {
        for (const QString &command : i.key().split(' '))
            m_answers[command.toLatin1()] = i->toLatin1().replace("\\n", "\r\n");
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
    std::unique_lock<std::mutex> lock(m_mutex);
    const int late = m_answers["late"].toInt();
    const QByteArray general = command.left(command.indexOf('=') + 1);
    QByteArray found = m_answers.value(command, m_answers.value(general, "ERROR"));
    // The operator comes in the format that was last asked for.
    if (command.startsWith("AT+COPS=3,")) {
        m_answers["AT+COPS?"] = found;
        found.clear();
    }
    lock.unlock();
    std::this_thread::sleep_for(std::chrono::milliseconds(late));
    if (found.contains("ERROR"))
        send(found);
    else if (found != "no answer")
        send(found.isEmpty() ? "OK" : found + "\r\n\r\nOK");
}
