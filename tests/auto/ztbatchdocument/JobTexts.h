// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchInputModel.h"

#include <QString>
#include <QStringList>

#include <functional>

class ZTBatchDocument;

/// A node for InsertBranch(), whose text and path are `path`.
TreeNode<BatchNodeData>* NewInputNode(int type, const QString& path);

/// Adds such a node below `parent`.
QModelIndex AddInput(ZTBatchDocument& document, int type, const QString& path,
                     const QModelIndex& parent = QModelIndex());

/// The elements of a text in document order, one line each: indented by level, the name, the attributes sorted by name,
/// control characters made visible. If the text does not parse, one line that says so.
QStringList ElementLines(const QString& xml);

/// The attributes of the first element named `element`, as name="value" texts sorted by name; none when it is missing.
QStringList AttributesOf(const QString& xml, const QString& element);

/// The value of one of them; null when it is missing.
QString AttributeOf(const QString& xml, const QString& element, const QString& attribute);

/// The nodes below `parent`, one line each: indented by level, type, text, path.
QStringList InputLines(const ZTBatchInputModel& model, const QModelIndex& parent = QModelIndex(), int level = 0);

/// Everything that must not change when a text is refused: what the document writes, its name, file name, filter and
/// state.
QStringList StateOf(const ZTBatchDocument& document);

/// Runs `function` on a thread with a stack of `bytes`, and waits for its end.
void RunOnStack(uint bytes, const std::function<void()>& function);
