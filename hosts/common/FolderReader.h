#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QVector>

/// Reads one folder, by the means of the platform: names that Qt cannot represent are found, too.
namespace BatchHost {

/// Tells files and folders apart by what they are, not by how they are called. Equal only for the same one.
struct FileIdentity
{
    quint64 device = 0;
    quint64 number = 0;

    bool operator==(const FileIdentity& other) const
    {
        return device == other.device && number == other.number;
    }
};

inline uint qHash(const FileIdentity& identity, uint seed = 0)
{
    return ::qHash(identity.device ^ (identity.number * 0x9E3779B97F4A7C15ULL), seed);
}

struct FolderEntry
{
    enum class Kind { File, Folder, Other };

    QString name;        ///< where the name cannot be represented, a readable form of it with \xNN
    bool hasName = true; ///< false: the name cannot be represented, nobody could open the entry by it
    Kind kind = Kind::Other;
    bool isLink = false; ///< `kind` and the fields below are those of what it leads to
    bool leadsNowhere = false;
    QDateTime modified;              ///< UTC
    FileIdentity identity; ///< of folders
};

struct FolderContent
{
    QString error; ///< why the folder cannot be read; empty when it was
    FileIdentity identity;
    QVector<FolderEntry> entries; ///< in no order, without "." and ".."
};

FolderContent ReadFolder(const QString& path);

/// The identity of the folder at `path`, through links; its number is 0 when there is none.
FileIdentity IdentityOfFolder(const QString& path);

} // namespace BatchHost
