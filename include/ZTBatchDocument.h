// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchGlobal.h"

#include <QModelIndex>
#include <QObject>
#include <QString>

#include <memory>

class ZTBatchInputModel;
class ZTBatchOutputSettings;
class ZTStyle;

/// The description of one batch job: its input, its effects, and how results are written.
///
/// The document owns an input model, a style and output settings, which the host edits directly. It converts the whole
/// job to XML text and back; the host reads and writes the files. It also tracks whether the job has changed: changes
/// of the input or the output settings count, edits of the style do not.
///
/// Use it only on the thread that created it. Signals are emitted from inside the call that causes them. A host must
/// not delete any of the three owned objects.
class BATCHCORE_EXPORT ZTBatchDocument : public QObject
{
    Q_OBJECT

public:
    explicit ZTBatchDocument(QObject* parent = nullptr);
    ~ZTBatchDocument() override;

    /// Empty by default. Written to the text of the job, but never read from it.
    QString GetDocumentName() const;

    /// The host's file name for the job, which the library only stores. Empty by default.
    QString GetFileName() const;

    /// A value of the host, which the library only stores. Empty by default.
    QString GetGroupFilter() const;

    /// The input folders and files. The document owns the model, and so the two objects below.
    ZTBatchInputModel* GetInputModel() const;
    ZTBatchOutputSettings* GetOutputSettings() const;

    /// The effects, in the order in which they are applied.
    ZTStyle* GetStyle() const;

    /// 0 after construction or loading, 1 after a change, or the value last given to SetModificationState().
    int ModificationState() const;

    /// Returns the XML text of the job: a document of type "batch" without XML declaration, indented by four spaces a
    /// level. Because of the indentation, the size of nested folders grows with the square of their depth.
    ///
    /// Without a sink, every node is written and the file system is not accessed. With a sink, whatever object it is, a
    /// node is left out together with its subtree when its path does not exist or has been written before; nodes are
    /// checked level by level from the top. A QTextBrowser also receives translated warnings with the paths that were
    /// left out. Slots connected to it may do anything; if one deletes the document, the text is empty.
    ///
    /// Deserialize() reads the text back, whatever the job holds. Every code unit of a text survives, except that
    /// U+FFFE and U+FFFF become U+FFFD. Control characters and lone surrogates are written unchanged, although XML does
    /// not allow them: other XML readers may refuse them, and UTF-8 cannot store lone surrogates. The tool tips and the
    /// enabled states of nodes, the alpha of colours and the loaded background picture are not written.
    QString Serialize(QObject* warningSink) const;

    /// Replaces the job with the one in `xml`. If the text is not well-formed or its document type is not "batch",
    /// writes a debug line, changes nothing and returns false.
    ///
    /// A text that could exhaust the stack or the memory is refused like one that is not well-formed. Such are elements
    /// more than 16,384 levels deep, declarations of entities, and declarations of elements in a text with more than
    /// 1,000 opening parentheses.
    ///
    /// Any other text of the right type is loaded: sections and attributes that are missing or invalid take defaults.
    /// The previous input and style are always removed. Output settings whose section is missing keep their values,
    /// except that transformation, crop and profile are reset when there is an output section at all. Name, file name
    /// and group filter are not changed. At the end the modification state is 0, and ModificationStateChanged(0) is
    /// emitted even if it was 0 before.
    bool Deserialize(const QString& xml);

    /// Emits DocumentNameChanged() on change. Does not change the modification state.
    void SetDocumentName(const QString& name);

    /// Emits nothing and does not change the modification state.
    void SetFileName(const QString& fileName);

    /// Emits nothing and does not change the modification state.
    void SetGroupFilter(const QString& filter);

    /// Replaces the document's effects with copies of those of `style`, which may be the document's own style. Emits
    /// nothing and does not change the modification state.
    void SetStyle(const ZTStyle& style);

    /// Any value is accepted. Emits ModificationStateChanged() on change.
    void SetModificationState(int value);

Q_SIGNALS:
    void DocumentNameChanged(const QString& name);

    /// For hosts to emit when they have edited the style; the document never does.
    void StyleChanged();

    /// The modification state is now `value`. Emitted on change and at the end of each successful Deserialize().
    void ModificationStateChanged(int value);

private Q_SLOTS:
    void IncrementModificationState();
    void OnInputDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight);
    void OnInputRowsRemoved(const QModelIndex& parent, int first, int last);
    void OnInputRowsInserted(const QModelIndex& parent, int first, int last);

private:
    Q_DISABLE_COPY(ZTBatchDocument)

    class Private;
    std::unique_ptr<Private> d;
};
