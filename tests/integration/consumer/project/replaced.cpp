// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Uses the library with the product's own sibling libraries.

#include <ZTBatchDocument.h>
#include <ZTIDContainer.h>
#include <ZTStyle.h>
#include <ZVApplication.h>

#include <QCoreApplication>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const ZTBatchDocument document(nullptr);
    document.GetStyle()->AppendEffect(QStringLiteral("invert"), QByteArray(), true);

    const bool works = ZTIDContainer().CreateAndRegisterID() == QLatin1String("product-1") &&
                       ZVApplication::GetTexturePatternIndex() == 3 &&
                       document.Serialize(nullptr).contains(QLatin1String("invert"));
    return works ? 0 : 1;
}
