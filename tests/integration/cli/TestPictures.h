#pragma once

#include <QString>

/// Pictures that tests write themselves.
namespace TestPictures {

/// A JPEG of `width` x `height` pixels at `path`, whose folders are made; `seed` makes it another one.
void Write(const QString& path, int seed = 0, int width = 64, int height = 48);

/// The same, cut off in the middle.
void WriteDamaged(const QString& path);

} // namespace TestPictures
