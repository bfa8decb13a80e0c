#pragma once

#include <QString>
#include <QTemporaryDir>

/// Gives this process and its children a temporary folder of their own: local sockets and temporary files of tests that
/// run side by side never meet. Made first thing in a test; removes the folder at its end.
class PrivateTempDir
{
public:
    PrivateTempDir();
    ~PrivateTempDir();

    /// The absolute path of `name` in the folder.
    QString FilePath(const QString& name) const;

    /// The names of what stands in the folder now, sorted; local sockets are found too.
    QStringList Entries() const;

private:
    Q_DISABLE_COPY(PrivateTempDir)

    QByteArray previous;
    QTemporaryDir folder;
};
