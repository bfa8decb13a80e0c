// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputModule.h"

#include "PicturesPane.h"

#include "hosts/common/Language.h"

#include "ZTInputDnDHandler.h"
#include "ZTInputUpdateHandler.h"

#include <QAction>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

/// The files and folders that `data` names: by URLs, or as text with an absolute path in each line.
QStringList PathsIn(const QMimeData& data)
{
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) {
            paths.append(QDir::cleanPath(url.toLocalFile()));
        }
    }
    if (urls.isEmpty() && data.hasText()) {
        const QStringList lines = data.text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString& line : lines) {
            const QString path = QDir::fromNativeSeparators(line.trimmed());
            if (!QDir::isAbsolutePath(path) || !QFileInfo::exists(path)) {
                return {};
            }
            paths.append(QDir::cleanPath(path));
        }
    }
    return paths;
}

} // namespace

/// Adds what is dropped and pasted to the edited job.
class InputModule::DropHandler : public ZTBatchManager::ZTInputDnDHandler
{
public:
    explicit DropHandler(PicturesPane& pane)
        : pane(pane)
    {
    }

protected:
    bool DoIsAccept(const QMimeData& data) const override { return !PathsIn(data).isEmpty(); }

    void DoDropData(ZTBatchInputModel* model, const QMimeData& data) override
    {
        if (model == pane.Job().Document().GetInputModel()) {
            pane.Adder().Add(PathsIn(data));
        }
    }

private:
    PicturesPane& pane;
};

/// Notes what has become of a file on the disk.
class InputModule::UpdateHandler : public ZTBatchManager::ZTInputUpdateHandler
{
public:
    explicit UpdateHandler(PicturesPane& pane)
        : pane(pane)
    {
    }

protected:
    void DoUpdate(ZTBatchInputModel* model, const QModelIndex& id, bool ignoreModificationTime) override
    {
        const BatchNodeData* const record = model->getNodeData(id);
        if (!record || record->type == Folder) {
            return;
        }
        const QString path = record->fileName;
        const QFileInfo info(path);
        const QString modified = info.exists() ? info.lastModified().toUTC().toString(Qt::ISODate) : QString();
        const bool isChanged = record->lastModification != modified;
        if (!isChanged && !ignoreModificationTime) {
            return;
        }
        model->setToolTip(id, info.exists()
                                  ? QString()
                                  : Messages::tr("%1 does not exist any more").arg(QDir::toNativeSeparators(path)));
        model->setLastModification(id, modified);
        pane.ForgetThumbnail(path);
    }

private:
    PicturesPane& pane;
};

InputModule::InputModule(PicturesPane& pane, const InputDialogs& dialogs)
    : pane(pane)
    , dialogs(dialogs)
    , addFiles(AddAction(QStringLiteral("addFiles"), Messages::tr("Add &files\u2026"), QKeySequence::Open, 10))
    , addFolder(AddAction(QStringLiteral("addFolder"), Messages::tr("Add f&older\u2026"),
                          QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_O), 20))
    , remove(AddAction(QStringLiteral("removeInputs"), Messages::tr("&Remove"), QKeySequence::Delete, 30))
    , show(AddAction(QStringLiteral("showInFolder"), Messages::tr("S&how in folder"), QKeySequence(), 40))
    , dropHandler(std::make_unique<DropHandler>(pane))
    , updateHandler(std::make_unique<UpdateHandler>(pane))
{
    // The key belongs to other panes too.
    remove->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    const InputDialogs::Use add = [&pane](const QStringList& paths) { pane.AddPaths(paths); };
    connect(addFiles, &QAction::triggered, this, [this, add] { this->dialogs.chooseFiles(&this->pane, add); });
    connect(addFolder, &QAction::triggered, this, [this, add] { this->dialogs.chooseFolder(&this->pane, add); });
    connect(remove, &QAction::triggered, &pane, &PicturesPane::RemoveSelected);
    connect(show, &QAction::triggered, this, [this] { this->dialogs.show(this->pane.SelectedPaths()); });
    connect(&pane, &PicturesPane::SelectionChanged, this, &InputModule::UpdateActions);
    connect(&pane, &PicturesPane::InputsChanged, this, &InputModule::UpdateActions);
    ZTBatchManager& manager = *ZTBatchManager::Instance();
    manager.RegisterDragAndDropHandler(dropHandler.get());
    manager.RegisterInputUpdateHandler(updateHandler.get());
    UpdateActions();
}

InputModule::~InputModule()
{
    ZTBatchManager* const manager = ZTBatchManager::Instance();
    if (!manager) {
        return;
    }
    for (QAction* const action : {addFiles, addFolder, remove, show}) {
        manager->UnregisterInputAction(action);
    }
}

QAction* InputModule::AddAction(const QString& name, const QString& text, const QKeySequence& key, int order)
{
    auto* const action = new QAction(text, this);
    action->setObjectName(name);
    action->setShortcut(key);
    ZTBatchManager::Instance()->RegisterInputAction(action, order);
    return action;
}

void InputModule::UpdateActions()
{
    const bool hasSelection = pane.HasSelection();
    remove->setEnabled(hasSelection);
    show->setEnabled(hasSelection);
}

} // namespace BatchDesktop
