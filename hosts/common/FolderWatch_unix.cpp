// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FolderWatch.h"

#include <QFile>
#include <QSocketNotifier>

#ifdef Q_OS_LINUX
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <sys/inotify.h>
#include <sys/statfs.h>
#include <unistd.h>
#endif

namespace BatchHost {

#ifdef Q_OS_LINUX

namespace {

constexpr std::uint32_t events = IN_CREATE | IN_MODIFY | IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE |
                                 IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;

/// Whether other machines may change `folder`, of which this one's system tells nothing.
bool IsOfNetwork(const QString& folder)
{
    // Source of the numbers: statfs(2). NFS, SMB, CIFS, SMB2, FUSE, 9P, AFS, Ceph, Coda.
    constexpr std::array<unsigned long, 9> kinds{0x6969,     0x517b,     0xff534d42, 0xfe534d42, 0x65735546,
                                                 0x01021997, 0x5346414f, 0x00c36400, 0x73757245};
    struct statfs state;
    return statfs(QFile::encodeName(folder).constData(), &state) == 0 &&
           std::find(kinds.begin(), kinds.end(), static_cast<unsigned long>(state.f_type) & 0xffffffff) != kinds.end();
}

} // namespace

FolderWatch::FolderWatch(const QString& folder)
    : channel(IsOfNetwork(folder) ? -1 : inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    if (channel >= 0) {
        auto* const notifier = new QSocketNotifier(channel, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this, [this] { Read(); });
    }
}

FolderWatch::~FolderWatch()
{
    Close();
}

bool FolderWatch::Follow(const QStringList& paths)
{
    bool isNew = false;
    for (const QString& folder : paths) {
        if (channel < 0) {
            return false;
        }
        const int watch = inotify_add_watch(channel, QFile::encodeName(folder).constData(), events);
        if (watch >= 0) {
            isNew = isNew || folders.value(watch) != folder;
            folders.insert(watch, folder);
        } else if (errno == ENOSPC || errno == ENOMEM) {
            Close();
        }
    }
    return isNew;
}

void FolderWatch::Read()
{
    constexpr std::size_t enough = 64 << 10;
    alignas(inotify_event) std::array<char, enough> bytes{};
    ssize_t count = 0;
    while (channel >= 0 && (count = read(channel, bytes.data(), bytes.size())) > 0) {
        for (ssize_t place = 0; place < count;) {
            inotify_event event;
            std::memcpy(&event, &bytes[std::size_t(place)], sizeof(event));
            const char* const name = &bytes[std::size_t(place) + sizeof(event)];
            place += ssize_t(sizeof(event) + event.len);
            if ((event.mask & IN_Q_OVERFLOW) != 0) {
                Q_EMIT Overflown();
            } else if ((event.mask & IN_IGNORED) != 0) {
                folders.remove(event.wd);
            } else if (event.len > 0) {
                const QString path = folders.value(event.wd) + QLatin1Char('/') + QFile::decodeName(name);
                if ((event.mask & IN_MODIFY) != 0) {
                    Q_EMIT Writing(path);
                } else if ((event.mask & IN_CLOSE_WRITE) != 0) {
                    Q_EMIT Closed(path);
                } else if ((event.mask & IN_MOVED_TO) != 0) {
                    Q_EMIT MovedIn(path);
                }
            }
        }
    }
    Q_EMIT Changed();
}

void FolderWatch::Close()
{
    if (channel < 0) {
        return;
    }
    qDeleteAll(findChildren<QSocketNotifier*>());
    close(channel);
    channel = -1;
    folders.clear();
}

#else

FolderWatch::FolderWatch(const QString&) {}

FolderWatch::~FolderWatch() = default;

bool FolderWatch::Follow(const QStringList&)
{
    return false;
}

#endif

} // namespace BatchHost
