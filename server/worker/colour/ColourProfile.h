#pragma once

#include <QByteArray>

#include <optional>

namespace BatchWorker {

/// What the numbers of a picture mean.
enum class ColourKind { Grey, Rgb, Cmyk };

/// The kind of picture that `profile`, an ICC profile, describes; nothing when it is no profile, or not one of
/// pictures.
std::optional<ColourKind> KindOfProfile(const QByteArray& profile);

/// Whether `profile` calls itself sRGB.
bool IsSrgb(const QByteArray& profile);

/// A profile under a file name, which is all that the imaging library accepts. The file is in memory and exists as long
/// as this object.
class ProfileFile
{
public:
    explicit ProfileFile(const QByteArray& profile);
    ~ProfileFile();

    /// Empty when the file could not be made.
    const QByteArray& Name() const { return name; }

private:
    Q_DISABLE_COPY(ProfileFile)

    int descriptor;
    QByteArray name;
};

} // namespace BatchWorker
