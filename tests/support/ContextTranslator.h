// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTranslator>

/// Translates every text of one context into the text in brackets, and no other text.
class ContextTranslator : public QTranslator
{
public:
    explicit ContextTranslator(const char* context)
        : context(context)
    {
    }

    QString translate(const char* textContext, const char* text, const char*, int) const override
    {
        return qstrcmp(textContext, context) == 0 ? QLatin1Char('[') + QString::fromUtf8(text) + QLatin1Char(']')
                                                  : QString();
    }

    bool isEmpty() const override { return false; }

private:
    const char* context;
};
