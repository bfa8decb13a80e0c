#include "FileIdentity.h"

#include <QDir>

#include <qt_windows.h>

namespace BatchJob {

std::optional<FileIdentity> IdentityOf(const QString& path)
{
    const QString native = QDir::toNativeSeparators(path);
    const HANDLE file = CreateFileW(reinterpret_cast<const wchar_t*>(native.utf16()), 0,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    BY_HANDLE_FILE_INFORMATION found = {};
    const bool isKnown = GetFileInformationByHandle(file, &found) != 0;
    CloseHandle(file);
    if (!isKnown) {
        return std::nullopt;
    }
    return FileIdentity{found.dwVolumeSerialNumber, (quint64(found.nFileIndexHigh) << 32U) | found.nFileIndexLow};
}

} // namespace BatchJob
