// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "XmpPath.h"

namespace BatchWorker {

QVector<XmpStep> StepsOf(const Exiv2::Xmpdatum& entry)
{
    QVector<XmpStep> steps;
    QByteArray space = QByteArray::fromStdString(entry.groupName());
    const QList<QByteArray> parts = QByteArray::fromStdString(entry.tagName()).split('/');
    for (QByteArray part : parts) {
        part = part.startsWith('?') ? part.mid(1) : part;
        const int index = part.indexOf('[');
        part = index < 0 ? part : part.left(index);
        const int colon = part.indexOf(':');
        if (colon >= 0) {
            space = part.left(colon);
            part = part.mid(colon + 1);
        }
        steps.append({space, part});
    }
    return steps;
}

std::string SpaceOf(const QByteArray& space)
{
    try {
        return Exiv2::XmpProperties::ns(space.toStdString());
    } catch (const Exiv2::AnyError&) {
        return {};
    }
}

} // namespace BatchWorker
