// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobKeeper.h"

#include "OutputFolder.h"

#include "hosts/common/JobDefaults.h"
#include "hosts/common/JobFile.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"
#include "hosts/desktop/job/EditedJob.h"

#include "ZTBatchInputModel.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace BatchHost;

namespace BatchDesktop {

namespace {

const QString extension = QStringLiteral(".vbatch.xml");

Settings DefaultSettings()
{
    ZTBatchDocument job;
    SetJobDefaults(job);
    return Settings::Of(job);
}

/// Settings that a file does not name are those of a new job. If `path` cannot be read, `job` is as it was.
QStringList Read(ZTBatchDocument& job, const QString& path)
{
    const Settings before = Settings::Of(job);
    DefaultSettings().ApplyTo(job);
    QStringList warnings;
    try {
        warnings = LoadJob(job, path);
    } catch (const RequestError&) {
        before.ApplyTo(job);
        throw;
    }
    ZTBatchOutputSettings& output = *job.GetOutputSettings();
    output.SetPath(CompleteOutputFolder(output.GetPath(), QFileInfo(path).absolutePath()));
    return warnings;
}

} // namespace

JobKeeper::JobKeeper(EditedJob& job, QWidget& window)
    : job(job)
    , window(window)
{
    connect(&job.History(), &QUndoStack::cleanChanged, this, &JobKeeper::Changed);
}

QString JobKeeper::Name() const
{
    if (file.isEmpty()) {
        return Messages::tr("New job");
    }
    const QString name = QFileInfo(file).fileName();
    return name.endsWith(extension, Qt::CaseInsensitive) ? name.chopped(extension.size())
                                                         : QFileInfo(file).completeBaseName();
}

bool JobKeeper::IsChanged() const
{
    return wasChanged || !job.History().isClean();
}

void JobKeeper::New()
{
    if (!MayGo()) {
        return;
    }
    job.Replace([](ZTBatchDocument& document) {
        document.GetInputModel()->removeRows(0, document.GetInputModel()->rowCount());
        Settings settings = DefaultSettings();
        settings.outputFolder = UsualOutputFolder();
        settings.ApplyTo(document);
        document.SetDocumentName(QString());
    });
    SetFile(QString(), false);
}

bool JobKeeper::Open()
{
    const QString path = dialogs.openFile(&window, Messages::tr("Open job"), Folder());
    return !path.isEmpty() && Open(path);
}

bool JobKeeper::Open(const QString& path)
{
    if (!MayGo()) {
        return false;
    }
    QStringList warnings;
    try {
        job.Replace([&](ZTBatchDocument& document) { warnings = Read(document, path); });
    } catch (const RequestError& error) {
        Q_EMIT Failed(path);
        Q_EMIT Notice(Translated(error.text));
        return false;
    }
    SetFile(path, false);
    Q_EMIT Used(path);
    if (!warnings.isEmpty()) {
        Q_EMIT Notice(Translated(warnings.first()));
    }
    return true;
}

bool JobKeeper::Save()
{
    return file.isEmpty() ? SaveAs() : SaveTo(file);
}

bool JobKeeper::SaveAs()
{
    const QString suggested = file.isEmpty() ? QDir(Folder()).filePath(Name() + extension) : file;
    QString path = dialogs.saveFile(&window, Messages::tr("Save job"), suggested);
    if (path.isEmpty()) {
        return false;
    }
    if (QFileInfo(path).suffix().isEmpty()) {
        path += extension;
        if (QFileInfo::exists(path)) {
            Q_EMIT Notice(Messages::tr("%1 exists; choose it to replace it.").arg(QDir::toNativeSeparators(path)));
            return false;
        }
    }
    return SaveTo(path);
}

void JobKeeper::SetFile(const QString& path, bool isChanged)
{
    file = path;
    wasChanged = isChanged;
    Q_EMIT Changed();
}

/// Whether the present job may go: it has no changes, they are saved now, or the user can do without them.
bool JobKeeper::MayGo()
{
    if (!IsChanged()) {
        return true;
    }
    switch (dialogs.askForChanges(&window, Name())) {
    case JobDialogs::Answer::Save:
        return Save();
    case JobDialogs::Answer::Discard:
        return true;
    case JobDialogs::Answer::Cancel:
        break;
    }
    return false;
}

bool JobKeeper::SaveTo(const QString& path)
{
    try {
        SaveJob(job.Document(), path, true); // The dialog has asked.
    } catch (const RequestError& error) {
        Q_EMIT Notice(Translated(error.text));
        return false;
    }
    job.EndStep();
    job.History().setClean();
    SetFile(path, false);
    Q_EMIT Used(path);
    return true;
}

QString JobKeeper::Folder() const
{
    return file.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                          : QFileInfo(file).absolutePath();
}

} // namespace BatchDesktop
