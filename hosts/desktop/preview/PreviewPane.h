// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PreviewMaker.h"

#include <QAction>
#include <QList>
#include <QWidget>

#include <memory>

class QLabel;

namespace BatchDesktop {

class EditedJob;
class PreviewView;

/// Shows what a run would make of one picture with the present settings, and follows each change of them. Pictures are
/// made while the pane is visible.
class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewPane(EditedJob& job, QWidget* parent = nullptr);

    /// The same with previews by `maker`.
    PreviewPane(EditedJob& job, std::unique_ptr<PreviewMaker> maker, QWidget* parent = nullptr);
    ~PreviewPane() override;

    /// Shows the picture `file`, an absolute path; none if it is empty.
    void SetFile(const QString& file);
    const QString& File() const { return file; }

    /// Makes the preview anew, for files that have changed on the disk.
    void Renew();

    /// Everything that can be done here, for menus.
    QList<QAction*> Actions() const;

    PreviewMaker& Maker() { return *maker; }
    PreviewView& View() { return *view; }

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QAction* AddAction(const QString& text, const QString& name, const QKeySequence& key);
    QWidget* NewToolRow();
    void OnSettingsChanged();
    void Ask();
    void OnMade(const PreviewPictures& pictures);
    void OnFailed(const QString& reason);
    void Say(const QString& newFacts, const QStringList& lines);
    void NoteZoom();

    EditedJob& job;
    const std::unique_ptr<PreviewMaker> maker;
    PreviewView* const view;
    QLabel* const facts;
    QLabel* const more;
    QAction* fit = nullptr;
    QAction* exact = nullptr;
    QAction* doubled = nullptr;
    QAction* withLine = nullptr;
    QAction* sideBySide = nullptr;
    QAction* renew = nullptr;
    QString file;
    Settings shown;          ///< the last settings that were asked for
    bool isOutdated = false; ///< something has changed while the pane was hidden
};

} // namespace BatchDesktop
