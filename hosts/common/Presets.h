// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

class ZTBatchDocument;

namespace BatchHost {

/// A job without inputs, kept under a name.
struct Preset
{
    QString name; ///< that of the file, without ".xml"
    QString file;
    bool comesAlong = false; ///< with the program; false: it is the user's own
    QString title;           ///< the name that the job in the file carries
    QString problem;         ///< why it cannot be used; empty if it can
};

/// The presets of the user and those that come with the program. All hosts share them. Each call reads the folders
/// anew.
///
/// Names that mean the same file on some system, such as "Web" and "web", are one name. A preset of the user hides one
/// of that name that comes along.
class Presets
{
public:
    /// The presets of the user are in a folder below `settingsFolder`.
    explicit Presets(const QString& settingsFolder);

    /// All presets, by name; those that cannot be used have a problem.
    QVector<Preset> All() const;

    /// Reads the preset `name` into `job`, without inputs that the file may have. A relative output folder stays
    /// relative. Returns the warnings of LoadJob(). Throws RequestError if there is no such preset, or if it is no job.
    QStringList Load(ZTBatchDocument& job, const QString& name) const;

    /// The name of the preset that `name` means, as its file spells it. Throws RequestError if there is none.
    QString NameOf(const QString& name) const { return Find(name).name; }

    /// Saves `job`, which has no inputs, as the user's preset `name`, and returns the file. A preset of the user is
    /// replaced only when `replaceExisting` is true. Throws RequestError, also for a name that no file can have.
    QString Save(const ZTBatchDocument& job, const QString& name, bool replaceExisting) const;

    /// Gives the user's preset `name` another name, and returns its file. A preset of the user that has that name is
    /// replaced only when `replaceExisting` is true. Throws RequestError.
    QString Rename(const QString& name, const QString& newName, bool replaceExisting) const;

    /// Removes the user's preset `name`. Throws RequestError.
    void Remove(const QString& name) const;

    /// Makes the user's preset `name` again from `content`, what its file held before Remove(). Throws RequestError.
    void Restore(const QString& name, const QByteArray& content) const;

private:
    QVector<Preset> OfUser() const;
    QVector<Preset> Files() const;
    Preset Find(const QString& name) const;
    Preset FindOwn(const QString& name) const;

    QString folder;
};

} // namespace BatchHost
