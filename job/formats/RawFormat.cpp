// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatDefinitions.h"

#include "job/values/Phrase.h"

namespace BatchJob {

FormatSchema RawFormat()
{
    FormatSchema format;
    format.id = FormatId::Raw;
    format.name = QStringLiteral("RAW");
    format.description = Phrase::English("what the sensor of a camera saw, in the formats of many makers");
    for (const char* extension :
         {"3fr", "ari", "arw", "cr2", "cr3", "crw", "dcr", "dng", "erf", "fff", "gpr", "iiq", "k25", "kdc", "mef",
          "mos", "mrw", "nef", "nrw", "orf", "pef", "raf", "raw", "rw2", "rwl", "sr2", "srf", "srw", "x3f"}) {
        format.extensions.append(QString::fromLatin1(extension));
    }
    format.signatures = {
        {{{0, "FUJIFILMCCD-RAW"}}},
        {{{0, "IIRO"}}},
        {{{0, "IIRS"}}},
        {{{0, "IIU"}}},
        {{{0, "FOVb"}}},
        {{{0, "II*"}, {8, "CR"}}},
        {{{6, "HEAPCCDR"}}},
        {{{4, "ftypcrx "}}},
        // Most are TIFF files by their first bytes.
        {{{0, "II*"}}, true},
        {{{0, "MM"}}, true},
        {{{0, "II+"}}, true},
    };
    format.isWritten = false;
    format.holdsTransparency = false;
    format.holdsGrey = true;
    format.bitDepths = {16}; // as the pictures are developed
    format.loss = FormatLoss::Never;
    format.isSlowToDecode = true;
    format.metadata.holdsIptc = true;
    format.metadata.writing = MetadataWriting::None;
    return format;
}

} // namespace BatchJob
