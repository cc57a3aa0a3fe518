// SPDX-FileCopyrightText: 2026 The DiagnosisPlugin authors
// SPDX-License-Identifier: MIT

#include <QtTest>

namespace {

// Qt's font library makes a cache if the system has none.
const char FontCache[] = "XDG_CACHE_HOME/fontconfig";

} // namespace

/// What remains of the program after its user has visited every tab and saved the report.
class TracesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void files();
    void systemCalls();

private:
    QTemporaryDir m_root;
    QTemporaryFile m_trace;
};

void TracesTest::initTestCase()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("The sanitizer's runtime cannot be traced.");
#endif
    QProcess process;
    process.start(QStringLiteral("strace"), {QStringLiteral("-qq"), QStringLiteral("true")});
    if (!process.waitForFinished() || process.exitCode() != 0)
        QSKIP("strace is missing, or may not trace here: " + process.readAllStandardError());

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *folder : {"HOME", "TMPDIR", "XDG_CACHE_HOME", "XDG_CONFIG_HOME",
                               "XDG_DATA_HOME", "XDG_RUNTIME_DIR"}) {
        QVERIFY(QDir(m_root.path()).mkdir(QLatin1String(folder)));
        environment.insert(QLatin1String(folder), m_root.filePath(QLatin1String(folder)));
    }
    QVERIFY(QFile::setPermissions(m_root.filePath(QStringLiteral("XDG_RUNTIME_DIR")),
                                  QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    environment.insert(QStringLiteral("SAVE_REPORT"), m_root.filePath(QStringLiteral("report")));
    process.setProcessEnvironment(environment);
    QVERIFY(m_trace.open());
    process.start(
        QStringLiteral("strace"),
        QStringLiteral("-f -qq -e signal=none -e trace=%network,open,openat,openat2,creat,"
                       "mknod,mknodat,mkdir,mkdirat,rename,renameat,renameat2,link,linkat,"
                       "symlink,symlinkat")
                .split(QLatin1Char(' ')) +
            QStringList{QStringLiteral("-o"), m_trace.fileName(), QStringLiteral("-E"),
                        QStringLiteral("LD_PRELOAD=" SAVE_REPORT), QStringLiteral(HOST_PROGRAM),
                        QStringLiteral("--modem"), QStringLiteral("wcdma"),
                        QStringLiteral("--open"), QStringLiteral("--log"),
                        m_root.path() + QStringLiteral("/log")});
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAll(), QByteArray());
}

/// Of the files that are there afterwards, only the report and the log contain identifiers ('!').
void TracesTest::files()
{
    QStringList files;
    QDirIterator all(m_root.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        QFile file(all.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray content = file.readAll();
        QString line = QDir(m_root.path()).relativeFilePath(file.fileName()) + QLatin1Char(' ');
        for (const char *identifier : {"001017003100016", "001010000000017", "TW3100A940016",
                                       "89001010000000000117", "447700900017"})
            line += QLatin1Char(content.contains(identifier) ? '!' : '-');
        if (!line.startsWith(QLatin1String(FontCache)))
            files.append(line);
    }
    files.sort();
    // Qt's file dialog remembers its last folder.
    QCOMPARE(files.join(QLatin1Char('\n')),
             QStringLiteral("XDG_CONFIG_HOME/QtProject.conf -----\nlog !!!!!\nreport !!!!!"));
}

/// Only these files were written, and no socket was opened.
void TracesTest::systemCalls()
{
    QStringList calls;
    const QStringList lines = QString::fromLocal8Bit(m_trace.readAll()).split(QLatin1Char('\n'));
    for (QString line : lines) {
        line.remove(m_root.path() + QLatin1Char('/'));
        const bool reads =
            line.contains(QLatin1String("O_RDONLY")) && !line.contains(QLatin1String("O_CREAT"));
        const bool fails = line.contains(QLatin1String(" = -1 "));
        const bool ends = line.isEmpty() || line.contains(QLatin1String(" resumed>"));
        const bool ofQt = line.contains(QLatin1String("\"XDG_CONFIG_HOME")) ||
                          line.contains(QLatin1Char('"') + QLatin1String(FontCache));
        if (!reads && !fails && !ends && !ofQt)
            calls.append(line.section(QLatin1Char(' '), 1).simplified());
    }
    calls.replaceInStrings(QRegularExpression(QStringLiteral("\", .*")), QStringLiteral("\""));
    QCOMPARE(calls.join(QLatin1Char('\n')),
             QStringLiteral("openat(AT_FDCWD, \"log\"\nopenat(AT_FDCWD, \"report\""));
}

QTEST_GUILESS_MAIN(TracesTest)
#include "traces.moc"
