// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MetadataText.h"

#include <QTextCodec>

namespace BatchWorker {

namespace {

/// Sets `isValid` to whether `bytes` are UTF-8.
QString Decoded(const QByteArray& bytes, bool& isValid)
{
    QTextCodec::ConverterState state;
    const QString decoded = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    isValid = state.invalidChars == 0 && state.remainingChars == 0;
    return decoded;
}

} // namespace

QString LineOf(const std::string& bytes)
{
    const QByteArray text = QByteArray::fromStdString(bytes).replace('\0', ' ');
    bool isValid = false;
    const QString decoded = Decoded(text, isValid);
    return (isValid ? decoded : QString::fromLatin1(text)).simplified();
}

bool IsUtf8(const std::string& bytes)
{
    bool isValid = false;
    Decoded(QByteArray::fromStdString(bytes), isValid);
    return isValid;
}

std::string TextIn(const Exiv2::Xmpdatum& entry)
{
    const auto* alternatives = dynamic_cast<const Exiv2::LangAltValue*>(&entry.value());
    if (!alternatives) {
        return entry.toString();
    }
    const auto common = alternatives->value_.find("x-default");
    const auto found = common == alternatives->value_.end() ? alternatives->value_.begin() : common;
    return found == alternatives->value_.end() ? std::string() : found->second;
}

} // namespace BatchWorker
