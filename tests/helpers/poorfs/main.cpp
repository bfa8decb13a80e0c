// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// A file system that shows a folder, and refuses what some network file systems refuse. Runs until it is unmounted, or
// killed.

#define FUSE_USE_VERSION 31

#include <fuse3/fuse.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <vector>

namespace {

struct Refusals
{
    bool renameFlags = false;
    bool links = false;
    bool locks = false;
};

int root = -1;
Refusals refuses;

/// The path below the open folder `root`.
const char* Below(const char* path)
{
    return path[1] == '\0' ? "." : path + 1;
}

int Result(long outcome)
{
    return outcome < 0 ? -errno : int(outcome);
}

int Handle(const fuse_file_info* file)
{
    return int(file->fh);
}

void* Init(fuse_conn_info*, fuse_config* config)
{
    config->use_ino = 1;
    config->hard_remove = 1;
    config->attr_timeout = 0;
    config->entry_timeout = 0;
    config->negative_timeout = 0;
    return nullptr;
}

int GetAttributes(const char* path, struct stat* status, fuse_file_info* file)
{
    return Result(file ? fstat(Handle(file), status) : fstatat(root, Below(path), status, AT_SYMLINK_NOFOLLOW));
}

int ReadLink(const char* path, char* target, size_t size)
{
    const ssize_t length = readlinkat(root, Below(path), target, size - 1);
    if (length < 0) {
        return -errno;
    }
    target[length] = '\0';
    return 0;
}

int MakeFolder(const char* path, mode_t mode)
{
    return Result(mkdirat(root, Below(path), mode));
}

int Unlink(const char* path)
{
    return Result(unlinkat(root, Below(path), 0));
}

int RemoveFolder(const char* path)
{
    return Result(unlinkat(root, Below(path), AT_REMOVEDIR));
}

int MakeSymbolicLink(const char* target, const char* path)
{
    return Result(symlinkat(target, root, Below(path)));
}

int Rename(const char* from, const char* to, unsigned flags)
{
    if (flags != 0 && refuses.renameFlags) {
        return -EINVAL;
    }
    return Result(renameat2(root, Below(from), root, Below(to), flags));
}

int Link(const char* from, const char* to)
{
    return refuses.links ? -EPERM : Result(linkat(root, Below(from), root, Below(to), 0));
}

int ChangeMode(const char* path, mode_t mode, fuse_file_info* file)
{
    return Result(file ? fchmod(Handle(file), mode) : fchmodat(root, Below(path), mode, 0));
}

int Truncate(const char* path, off_t size, fuse_file_info* file)
{
    if (file) {
        return Result(ftruncate(Handle(file), size));
    }
    const int opened = openat(root, Below(path), O_WRONLY | O_CLOEXEC);
    const int result = opened < 0 ? -errno : Result(ftruncate(opened, size));
    close(opened);
    return result;
}

int OpenWith(const char* path, int flags, mode_t mode, fuse_file_info* file)
{
    // The kernel says where to write, also to the end.
    const int opened = openat(root, Below(path), (flags & ~O_APPEND) | O_NOFOLLOW | O_CLOEXEC, mode);
    if (opened < 0) {
        return -errno;
    }
    file->fh = std::uint64_t(opened);
    return 0;
}

int Open(const char* path, fuse_file_info* file)
{
    return OpenWith(path, file->flags, 0, file);
}

int Create(const char* path, mode_t mode, fuse_file_info* file)
{
    return OpenWith(path, file->flags | O_CREAT, mode, file);
}

int Read(const char*, char* bytes, size_t size, off_t place, fuse_file_info* file)
{
    return Result(pread(Handle(file), bytes, size, place));
}

int Write(const char*, const char* bytes, size_t size, off_t place, fuse_file_info* file)
{
    return Result(pwrite(Handle(file), bytes, size, place));
}

int Statistics(const char*, struct statvfs* statistics)
{
    return Result(fstatvfs(root, statistics));
}

int Release(const char*, fuse_file_info* file)
{
    return Result(close(Handle(file)));
}

int Flush(const char*, int, fuse_file_info*)
{
    return 0; // Nobody cuts the power, and disks take their time.
}

int ReadFolder(const char* path, void* list, fuse_fill_dir_t fill, off_t, fuse_file_info*, fuse_readdir_flags)
{
    const int opened = openat(root, Below(path), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    DIR* const folder = opened < 0 ? nullptr : fdopendir(opened);
    if (!folder) {
        return -errno;
    }
    while (const dirent* const entry = readdir(folder)) {
        struct stat status = {};
        status.st_ino = entry->d_ino;
        status.st_mode = mode_t(DTTOIF(entry->d_type));
        fill(list, entry->d_name, &status, 0, fuse_fill_dir_flags(0));
    }
    closedir(folder);
    return 0;
}

int SetTimes(const char* path, const timespec times[2], fuse_file_info* file)
{
    return Result(file ? futimens(Handle(file), times) : utimensat(root, Below(path), times, AT_SYMLINK_NOFOLLOW));
}

int LockRange(const char*, fuse_file_info* file, int command, struct flock* range)
{
    return refuses.locks ? -ENOLCK : Result(fcntl(Handle(file), command, range));
}

int LockFile(const char*, fuse_file_info* file, int operation)
{
    return refuses.locks ? -ENOLCK : Result(flock(Handle(file), operation));
}

fuse_operations Operations()
{
    fuse_operations operations = {};
    operations.init = Init;
    operations.getattr = GetAttributes;
    operations.readlink = ReadLink;
    operations.mkdir = MakeFolder;
    operations.unlink = Unlink;
    operations.rmdir = RemoveFolder;
    operations.symlink = MakeSymbolicLink;
    operations.rename = Rename;
    operations.link = Link;
    operations.chmod = ChangeMode;
    operations.truncate = Truncate;
    operations.open = Open;
    operations.create = Create;
    operations.read = Read;
    operations.write = Write;
    operations.statfs = Statistics;
    operations.release = Release;
    operations.fsync = Flush;
    operations.readdir = ReadFolder;
    operations.utimens = SetTimes;
    operations.lock = LockRange;
    operations.flock = LockFile;
    return operations;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fprintf(stderr, "Usage: poorfs FOLDER PLACE [no-rename-flags] [no-links] [no-locks]\n"
                             "Shows FOLDER at PLACE.\n");
        return 2;
    }
    for (int i = 3; i < argc; ++i) {
        refuses.renameFlags = refuses.renameFlags || std::strcmp(argv[i], "no-rename-flags") == 0;
        refuses.links = refuses.links || std::strcmp(argv[i], "no-links") == 0;
        refuses.locks = refuses.locks || std::strcmp(argv[i], "no-locks") == 0;
    }
    root = open(argv[1], O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (root < 0) {
        std::perror(argv[1]);
        return 1;
    }
    umask(0);
    const fuse_operations operations = Operations();
    std::string name = argv[0];
    std::string foreground = "-f";
    std::string place = argv[2];
    std::vector<char*> arguments{name.data(), foreground.data(), place.data()};
    return fuse_main(int(arguments.size()), arguments.data(), &operations, nullptr);
}
