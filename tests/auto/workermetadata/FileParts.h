// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// Parts of files as cameras and phones write them.
namespace FileParts {

QByteArray BigEndian(quint32 number, int size = 4);

/// A segment of a JPEG file; `marker` in hexadecimal digits.
QByteArray Segment(const char* marker, const QByteArray& content);
QByteArray XmpSegment(const QByteArray& attributes);
QByteArray AsFirstSegment(QByteArray jpeg, const QByteArray& segment);

/// The index of a file of two pictures, of which the second begins at `place` of the file.
QByteArray MultiPictureIndex(quint32 place);

QByteArray Box(const char* type, const QByteArray& content);

/// A track of a film; `kind` is "vide", "soun" or "pict".
QByteArray Track(const char* kind, quint32 samples = 30);
QByteArray Film(const QByteArray& tracks);

} // namespace FileParts
