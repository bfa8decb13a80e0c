// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OwnFolder.h"

#include "ProcessEnd.h"
#include "ProgramFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace {

constexpr char folderVariable[] = "BATCHCORE_TEST_OWN_FOLDER";
constexpr int failure = 97;

/// Makes a hard link where that is possible: a process must find its executable in the new folder. Windows does not
/// remove links to a running executable.
bool Place(const QString& from, const QString& to)
{
#ifdef Q_OS_WIN
    return QFile::copy(from, to);
#else
    std::error_code error;
    std::filesystem::create_hard_link(from.toStdString(), to.toStdString(), error);
    return !error || QFile::copy(from, to);
#endif
}

int RunThere(const QString& executable, const QString& folder, const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QString::fromLatin1(folderVariable), folder);
    environment.insert(QStringLiteral("TMPDIR"), folder);
#ifdef Q_OS_WIN
    // Windows looks for libraries beside the executable and in this path.
    environment.insert(QStringLiteral("PATH"), QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) +
                                                   QLatin1Char(';') + environment.value(QStringLiteral("PATH")));
#endif

    QProcess test;
    test.setProcessEnvironment(environment);
    test.setProcessChannelMode(QProcess::ForwardedChannels);
    test.setInputChannelMode(QProcess::ForwardedInputChannel);
    test.start(executable, arguments);
    if (!test.waitForFinished(-1) || test.exitStatus() != QProcess::NormalExit) {
        std::fprintf(stderr, "The test crashed or could not be run: %s\n", qUtf8Printable(test.errorString()));
        return failure;
    }
    return test.exitCode();
}

int RunInNewFolder(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QDir to(folder.path());
    const QString executable = to.filePath(QFileInfo(QCoreApplication::applicationFilePath()).fileName());
    if (!folder.isValid() || !Place(QCoreApplication::applicationFilePath(), executable) ||
        !Place(BuiltProgram(QStringLiteral("scriptedserver")),
               to.filePath(ProgramFileName(QStringLiteral("VelkoraBatchProcessing")))) ||
        !Place(BuiltProgram(QStringLiteral("deaths")), to.filePath(ProgramFileName(QStringLiteral("deaths"))))) {
        std::fprintf(stderr, "The test's folder could not be created.\n");
        return failure;
    }
    return RunThere(executable, folder.path(), QCoreApplication::arguments().mid(1));
}

} // namespace

int RunInOwnFolder(int argc, char** argv, int (*runTest)(int, char**))
{
    if (!qEnvironmentVariableIsSet(folderVariable)) {
        return RunInNewFolder(argc, argv);
    }
    EndWithParent();
    return runTest(argc, argv);
}
