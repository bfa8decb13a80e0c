#pragma once

#include <QTemporaryDir>

namespace BatchHost {

/// A temporary folder for this process and its server alone. The pipe between them has a fixed name in the temporary
/// folder: without this, two programs at a time would meet there.
/// Removed at the end.
class PrivateTempFolder
{
public:
    PrivateTempFolder();
    ~PrivateTempFolder();

    /// Why there is no such folder; empty when there is one. Without it the server cannot be reached.
    QString Error() const { return folder.isValid() ? QString() : folder.errorString(); }

    void Remove() { folder.remove(); }

private:
    Q_DISABLE_COPY(PrivateTempFolder)

    QTemporaryDir folder;
};

} // namespace BatchHost
