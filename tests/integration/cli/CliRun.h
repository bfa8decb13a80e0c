#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// velkora-batch as a process: run to its end, with what it wrote.
struct CliRun
{
    int exitCode = -1; ///< -1: it crashed or did not end in time
    QByteArray out;
    QByteArray err;

    QString Err() const { return QString::fromUtf8(err); }

    static CliRun OfProgram(const QString& program, const QStringList& arguments, const QString& folder,
                            const QProcessEnvironment& environment);

    static CliRun Of(const QStringList& arguments, const QString& folder = QString(),
                     const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());
};
