// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDomDocument>

class QString;

/// The DOM document of an XML text that may come from anywhere.
///
/// The parser and the destructor of the DOM recurse. Texts up to `shallowDepth` are parsed on the caller's stack,
/// deeper ones on a thread with a stack that is large enough, for which the caller waits; either way a caller needs no
/// more than 512 KiB of stack.
class ZTGuardedDom
{
public:
    /// How deep elements may be nested. The indentation of a text that Serialize() would write for a deeper tree does
    /// not fit into a QString, so every text that it writes is read.
    static constexpr int maximumDepth = 16384;

    ZTGuardedDom() = default;
    ~ZTGuardedDom();

    /// Parses `text` as QDomDocument::setContent() does without namespaces, but refuses what would overflow the stack
    /// or exhaust the memory: elements deeper than `maximumDepth`, declarations of entities, nested content models.
    /// Returns false for those and for text that is not well-formed. References to undeclared entities are dropped. At
    /// most one call for each object.
    bool Parse(const QString& text);

    /// Valid after a successful Parse(). Nodes of it must not outlive this object.
    const QDomDocument& Document() const { return document; }

private:
    Q_DISABLE_COPY(ZTGuardedDom)

    static constexpr int shallowDepth = 1000;

    QDomDocument document;
    bool mayBeDeep = false;
};
