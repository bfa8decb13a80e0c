// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <random>

/// The bytes of a picture, and the extension that belongs to them.
struct PictureBytes
{
    QString extension;
    QByteArray bytes;
};

/// Small pictures of every format that this installation can write: grey, RGB, with alpha, 16 bits, with a profile and
/// EXIF, as far as the format takes them; and camera RAW.
QVector<PictureBytes> SmallPictures();

/// `bytes` with one kind of damage, which `random` chooses: flipped bits, truncation, extreme values in the header, a
/// piece that is missing, doubled or overwritten.
QByteArray Mutated(const QByteArray& bytes, std::mt19937& random);
