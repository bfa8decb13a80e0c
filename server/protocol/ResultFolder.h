// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <vector>

/// Where results go.
namespace BatchProtocol {

/// A folder of results, held open: what is done in it happens in this very folder, whatever becomes of its path.
///
/// Results go below a root, the folder that the user has named. Others may be able to write there, and may put links in
/// the place of folders at any moment. So no link below the root is followed.
class ResultFolder
{
public:
    /// What to do about folders that do not exist.
    enum class Missing { Fail, Make };

    ResultFolder() = default;
    ~ResultFolder();

    /// Opens the folder `path`, which is `root` or lies below it. With an empty root links are followed everywhere.
    /// False when that fails, see Error(). Call it once.
    bool Open(const QString& root, const QString& path, Missing missing);

    /// What went wrong, for users.
    QString Error() const { return error; }

#ifdef Q_OS_UNIX
    /// The open folder, for openat() and its like; this object closes it.
    int Descriptor() const
    {
        return descriptor;
    }
#endif

private:
    Q_DISABLE_COPY(ResultFolder)

    bool OpenRoot(const QString& root, Missing missing);

    /// Enters the folder `below` in one step. False where the system does not know that step, and on failure, whose
    /// reason is found step by step.
    bool EnterAtOnce(const QString& below);
    bool Enter(const QString& folder, const QString& name, Missing missing);

    QString error;
#ifdef Q_OS_UNIX
    int descriptor = -1;
#else
    std::vector<void*> handles; ///< of all folders from the root on: none of them can be replaced meanwhile
#endif
};

} // namespace BatchProtocol
