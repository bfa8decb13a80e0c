// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchManager.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

class QAction;
class QWidget;

namespace BatchDesktop {

class PicturesPane;

/// How the module asks for files, and shows where they are. Nothing of it is modal.
struct InputDialogs
{
    using Use = std::function<void(const QStringList& paths)>;

    /// Call `use` with what was chosen; never, if nothing was.
    std::function<void(QWidget* parent, const Use& use)> chooseFiles;
    std::function<void(QWidget* parent, const Use& use)> chooseFolder;

    /// Shows the folders of files.
    std::function<void(const QStringList& paths)> show;

    static InputDialogs OfDesktop();
};

/// What the window itself offers for its inputs: the actions, the handler of drops and paste, and the one that
/// refreshes entries. All are registered with ZTBatchManager, as another module would do it.
class InputModule : public QObject
{
    Q_OBJECT

public:
    /// `pane` must outlive the module, and there must be a manager.
    explicit InputModule(PicturesPane& pane, const InputDialogs& dialogs = InputDialogs::OfDesktop());
    ~InputModule() override;

private:
    class DropHandler;
    class UpdateHandler;

    QAction* AddAction(const QString& name, const QString& text, const QKeySequence& key, int order);
    void UpdateActions();

    PicturesPane& pane;
    const InputDialogs dialogs;
    QAction* addFiles = nullptr;
    QAction* addFolder = nullptr;
    QAction* remove = nullptr;
    QAction* show = nullptr;
    std::unique_ptr<DropHandler> dropHandler;
    std::unique_ptr<UpdateHandler> updateHandler;
};

} // namespace BatchDesktop
