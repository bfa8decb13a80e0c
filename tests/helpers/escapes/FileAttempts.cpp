// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Attempts.h"

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

int Open(const char* path, int flags)
{
    constexpr mode_t forOwner = 0600;
    const int file = open(path, flags | O_CLOEXEC, forOwner);
    const int outcome = Outcome(file);
    if (file >= 0) {
        close(file);
    }
    return outcome;
}

} // namespace

/// The folder "secrets" belongs to the user, but not to the job; "inputs" may only be read.
Attempts FileAttempts()
{
    return {
        {"read a private key", [] { return Open("secrets/key", O_RDONLY); }},
        {"read the list of processes", [] { return Open("/proc", O_RDONLY | O_DIRECTORY); }},
        {"read the environment of a process", [] { return Open("/proc/self/environ", O_RDONLY); }},
        {"read the passwords of the system", [] { return Open("/etc/passwd", O_RDONLY); }},
        {"list a folder", [] { return Open("secrets", O_RDONLY | O_DIRECTORY); }},
        {"write a start-up file", [] { return Open("secrets/profile", O_WRONLY | O_APPEND); }},
        {"make a start-up file", [] { return Open("secrets/autostart", O_WRONLY | O_CREAT | O_EXCL); }},
        {"make a nameless file elsewhere", [] { return Open("secrets", O_TMPFILE | O_RDWR); }},
        {"delete a file", [] { return Outcome(unlink("secrets/key")); }},
        {"delete an input", [] { return Outcome(unlink("inputs/photo")); }},
        {"write an input", [] { return Open("inputs/photo", O_WRONLY); }},
        {"empty an input by its name", [] { return Outcome(truncate("inputs/photo", 0)); }},
        {"empty an input by opening it", [] { return Open("inputs/photo", O_RDONLY | O_TRUNC); }},
        {"make a file among the inputs", [] { return Open("inputs/more", O_WRONLY | O_CREAT | O_EXCL); }},
        {"rename an input", [] { return Outcome(rename("inputs/photo", "inputs/other")); }},
        {"move a result out", [] { return Outcome(rename("out/result", "secrets/result")); }},
        {"link a result out", [] { return Outcome(link("out/result", "secrets/result")); }},
        {"link an input in", [] { return Outcome(link("inputs/photo", "out/photo")); }},
        {"make a symbolic link", [] { return Outcome(symlink("/etc/passwd", "out/link")); }},
        {"follow a link out of the output folder", [] { return Open("out/wayout/key", O_RDONLY); }},
        {"make a folder", [] { return Outcome(mkdir("secrets/more", 0700)); }},
        {"make a pipe with a name", [] { return Outcome(mkfifo("out/pipe", 0600)); }},
        {"change the permissions of a file", [] { return Outcome(chmod("secrets/key", 0644)); }},
        {"change the owner of a file", [] { return Outcome(chown("secrets/key", getuid(), gid_t(-1))); }},
        {"change the times of a file",
         [] {
             const timespec times[2] = {{1, 0}, {1, 0}};
             return Outcome(utimensat(AT_FDCWD, "secrets/key", times, 0));
         }},
        {"change the attributes of a file", [] { return Outcome(setxattr("secrets/key", "user.mark", "1", 1, 0)); }},
    };
}

/// What a worker does all the time.
Attempts NeededWork()
{
    return {
        {"needed: read an input", [] { return Open("inputs/photo", O_RDONLY); }},
        {"needed: read an input below a folder", [] { return Open("inputs/trip/photo", O_RDONLY); }},
        {"needed: ask for an input that is missing",
         [] { return Open("inputs/none", O_RDONLY) == ENOENT ? 0 : EINVAL; }},
        {"needed: ask about any file",
         [] {
             struct stat status;
             return Outcome(stat("secrets/key", &status));
         }},
        {"needed: write a result",
         [] {
             const int file = open("out/.new", O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
             char byte = 'x';
             const bool isWritten = file >= 0 && write(file, &byte, 1) == 1 && ftruncate(file, 1) == 0 &&
                                    pread(file, &byte, 1, 0) == 1 && fsync(file) == 0;
             return isWritten && futimens(file, nullptr) == 0 ? Outcome(rename("out/.new", "out/new")) : errno;
         }},
        {"needed: replace a result",
         [] {
             const int problem = Open("out/.new", O_RDWR | O_CREAT | O_EXCL);
             return problem != 0 ? problem : Outcome(rename("out/.new", "out/result"));
         }},
        {"needed: name a result by a link",
         [] {
             const int problem = Open("out/.new", O_RDWR | O_CREAT | O_EXCL);
             return problem != 0 || link("out/.new", "out/linked") != 0 ? errno : Outcome(unlink("out/.new"));
         }},
        {"needed: flush the output folder",
         [] {
             const int folder = open("out", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
             return folder < 0 ? errno : Outcome(fsync(folder));
         }},
        {"needed: a nameless file, opened a second time",
         [] {
             const int file = open("tmp", O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
             if (file < 0 || write(file, "pixels", 6) != 6) {
                 return errno;
             }
             char path[64];
             std::snprintf(path, sizeof(path), "/proc/self/fd/%d", file);
             return Open(path, O_RDWR);
         }},
        {"needed: read the fonts' settings", [] { return Open("/etc/fonts/fonts.conf", O_RDONLY); }},
        {"needed: read a time zone", [] { return Open("/usr/share/zoneinfo/Europe/Berlin", O_RDONLY); }},
    };
}
