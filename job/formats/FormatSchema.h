// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FormatList.h"

#include "job/values/ParameterSchema.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

namespace BatchJob {

/// A format of FormatList.h, as an index into tables with an entry for each format. What a format can do is in its
/// FormatSchema; no code compares identifiers to decide that.
enum class FormatId {
#define BATCHJOB_FORMAT_ID(id) id,
    BATCHJOB_FORMATS(BATCHJOB_FORMAT_ID)
#undef BATCHJOB_FORMAT_ID
};

struct BytesAt
{
    int offset = 0;
    QByteArray bytes;
};

/// The first bytes of files of a format: all of `pieces`, each at its offset.
struct FormatSignature
{
    QVector<BytesAt> pieces;
    bool needsExtension = false; ///< other formats begin alike: only files with one of the format's extensions count
};

/// Whether pixels change when they are written.
enum class FormatLoss {
    Never,
    Optional, ///< depends on the options
    Always
};

/// What a file may hold besides one picture. Results have one page; of an input with several, one is used.
enum class FormatPages {
    One,
    Frames,      ///< of an animation; the first is used
    Directories, ///< pages and smaller copies of pages; the first page is used
    Items,       ///< pictures, one of which is the main one, which is used
    Listed       ///< pictures behind the first one, which is used, and an index of them
};

/// How the worker reads the metadata of a file.
enum class MetadataReading {
    FromFile,            ///< the metadata library reads the file
    FromDecoder,         ///< the decoder hands over the blocks
    FromBoxes,           ///< the worker finds the blocks in the boxes of the file
    FromIdentifiedBoxes, ///< the same; what a box holds is known by an id in it, and the first of each id counts
    FromChunks           ///< the worker finds the blocks in the chunks of the file
};

/// How the worker writes metadata.
enum class MetadataWriting {
    None,         ///< the format holds none
    ByEncoder,    ///< the encoder writes the blocks
    BeforePixels, ///< in boxes before what the encoder writes
    AfterEncoding ///< the metadata library writes them into the finished file
};

/// How a result is kept free of EXIF. Some encoders make up an EXIF block if they are given none.
enum class ExifRemoval {
    NotNeeded,
    CutOut ///< the block is cut out of the finished file
};

/// Which metadata files of a format hold, and how the worker reads and writes it.
struct MetadataSupport
{
    bool holdsExif = true;
    bool holdsIptc = false; ///< if not, captions and keywords are written as XMP
    bool holdsXmp = true;
    bool holdsProfile = true;
    MetadataReading reading = MetadataReading::FromFile;
    MetadataWriting writing = MetadataWriting::ByEncoder;
    ExifRemoval exifRemoval = ExifRemoval::NotNeeded;
    bool isExifRepeated = false; ///< the encoder may write more EXIF blocks than it is given; these are cut out
    int longestBlock = 0;        ///< bytes; 0: no limit
    int shortestProfile = 0;     ///< bytes; after a shorter profile the metadata library finds nothing
    bool hasXmpWrapper = true;   ///< readers expect XMP in a packet

    /// The decoder tells the orientation or has turned the picture. If not, the EXIF block says it, which the decoder
    /// does not see everywhere in the file.
    bool isOrientationInDecoder = true;

    /// The decoder and the encoder handle the colour profile. If not, the metadata library does.
    bool isProfileInDecoder = true;

    bool isProfileRewritten = false; ///< files hold what a profile says in a form of their own, not its bytes
};

/// The capabilities of one format. The defaults are those of most formats.
struct FormatSchema
{
    FormatId id = FormatId::Jpeg;
    QString name;           ///< as a job has it, such as "JPEG"
    QString description;    ///< one line
    QStringList extensions; ///< lower case, without dot; results get the first
    QVector<FormatSignature> signatures;
    bool isWritten = true; ///< false: files are read only
    bool holdsTransparency = true;
    bool holdsCmyk = false;
    bool holdsGrey = false;      ///< in one channel; if not, grey becomes RGB
    QVector<int> bitDepths{8};   ///< bits a channel, ascending
    int longestSide = 0;         ///< pixels
    bool isSlowToDecode = false; ///< as a whole only: no small result is decoded faster
    FormatLoss loss = FormatLoss::Optional;
    FormatPages pages = FormatPages::One;
    MetadataSupport metadata;
    QVector<ParameterSchema> options; ///< what `formatOptions` of a job may hold for it
};

} // namespace BatchJob
