#pragma once

#include <QString>

/// Results under work: a result is whole under its final name, or it is absent.
namespace BatchProtocol {

/// A hidden file in the folder of a result, which becomes the result when it is finished.
///
/// Its name is ".velkora-", 16 hexadecimal digits, ".tmp". While it is being written it is locked (flock; on Windows it
/// is open for this process only), so that a later run can tell it from one that a crash has left: the system releases
/// the lock with the process. Belongs to one thread at a time.
class TemporaryFile
{
public:
    /// What became of the final name.
    enum class Placement {
        Done,
        NameTaken, ///< a file of that name has appeared, and was left alone
        Failed     ///< see Error()
    };

    explicit TemporaryFile(const QString& finalName);

    /// Removes the file, unless Place() has finished it.
    ~TemporaryFile();

    /// Makes the file and locks it. False when the folder does not allow that, see Error(). To be called once.
    bool Create();

    /// The open file, for reading and writing at any position; -1 before Create(). It stays this object's.
    int Descriptor() const { return descriptor; }

    /// Where the file stands; empty before Create().
    QString FileName() const { return fileName; }

    /// Flushes the file to disk, gives it its final name, and flushes the folder. With `replaceExisting` it takes the
    /// place of a file of that name; else such a file is never touched, whenever it appeared. After anything but Done
    /// the file is removed with this object.
    Placement Place(bool replaceExisting);

    /// What went wrong, for users.
    QString Error() const { return error; }

    /// Removes from `folder` the temporary files that nobody is writing any more, and nothing else. Returns how many.
    /// Safe on any thread, beside any other process.
    static int Sweep(const QString& folder);

private:
    Q_DISABLE_COPY(TemporaryFile)

    bool Fail(int errorNumber);

    QString finalName;
    QString fileName;
    QString error;
    int descriptor = -1;
};

} // namespace BatchProtocol
