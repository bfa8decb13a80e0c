#pragma once

#include "ZTBatchInputModel.h"

#include <QString>
#include <QStringList>

class ZTBatchDocument;

/// A node for InsertBranch(); its text and its path are `path`.
TreeNode<BatchNodeData>* NewInputNode(int type, const QString& path);

/// Adds such a node below `parent`.
QModelIndex AddInput(ZTBatchDocument& document, int type, const QString& path,
                     const QModelIndex& parent = QModelIndex());

/// The elements of a text in document order, one line each: blanks for the level, the name, the attributes sorted by
/// name, with control characters made visible. One line that says so when the text does not parse.
QStringList ElementLines(const QString& xml);

/// The attributes of the first element named `element`, as name="value" texts sorted by name; none when it is missing.
QStringList AttributesOf(const QString& xml, const QString& element);

/// The value of one of them; null when it is missing.
QString AttributeOf(const QString& xml, const QString& element, const QString& attribute);

/// The nodes below `parent`, one line each: blanks for the level, type, text, path.
QStringList InputLines(const ZTBatchInputModel& model, const QModelIndex& parent = QModelIndex(), int level = 0);

/// Everything that a document holds and writes, and its name, file name, filter and state: what must not change when a
/// text is refused.
QStringList StateOf(const ZTBatchDocument& document);
