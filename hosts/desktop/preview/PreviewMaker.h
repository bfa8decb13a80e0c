// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PreviewMaking.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>

namespace BatchDesktop {

/// Makes previews with workers of its own, one after the other: the newest that is asked for counts. A preview is the
/// very file that a run would write. Nothing here waits; needs an event loop.
class PreviewMaker : public QObject
{
    Q_OBJECT

public:
    /// Previews are made by `program`, and for a screen with the ICC profile `displayProfile`.
    PreviewMaker(const QString& program, const BatchProtocol::ServerLimits& limits, const QByteArray& displayProfile,
                 QObject* parent = nullptr);

    /// With the installed worker, the limits of the environment, and sRGB.
    explicit PreviewMaker(QObject* parent = nullptr);
    ~PreviewMaker() override;

    /// Makes a preview of `file`, an absolute path, soon: a preview that is asked for shortly after takes its place.
    void Show(const QString& file, const Settings& settings);

    /// Gives up what is being made.
    void Stop();

    /// Whether Made() or Failed() will follow.
    bool IsUpdating() const { return isUpdating; }

    /// Where the files of previews are.
    QString Folder() const { return workshop.folder.Path(); }

Q_SIGNALS:
    /// What was shown is no longer what the settings give. Made() or Failed() follows, unless Stop() is called.
    void Updating();
    void Made(const BatchDesktop::PreviewPictures& pictures);

    /// There is no preview. `reason` is what a run would say of the file, in English.
    void Failed(const QString& reason);

    /// What was being made was given up.
    void Stopped();

private:
    void BeginWhenPossible();
    void Begin();
    void OnMade(const PreviewPictures& pictures);
    void OnFailed(const QString& reason);
    void Finish();

    PreviewWorkshop workshop;
    QTimer delay;
    std::optional<PreviewMaking::Order> next; ///< asked for, and not begun
    std::unique_ptr<PreviewMaking> making;    ///< the last one that was begun; keeps its result
    bool isMaking = false;                    ///< `making` is not over
    bool isUpdating = false;
};

} // namespace BatchDesktop
