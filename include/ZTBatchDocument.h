#pragma once

#include "ZTBatchGlobal.h"

#include <QModelIndex>
#include <QObject>
#include <QString>

#include <memory>

class ZTBatchInputModel;
class ZTBatchOutputSettings;
class ZTStyle;

/// The description of one batch job: what goes in, which effects are applied, how results are written.
///
/// The document owns an input model, a style and output settings, which the host edits directly, and turns the whole
/// job into an XML text and back. Reading and writing files is the host's. It also knows whether the job was changed:
/// every change of the input or the output settings counts, edits of the style do not.
///
/// Everything happens on the thread that created the document, signals come from inside the call that caused them, and
/// a host must not delete one of the three owned objects.
class BATCHCORE_EXPORT ZTBatchDocument : public QObject
{
    Q_OBJECT

public:
    explicit ZTBatchDocument(QObject* parent = nullptr);
    ~ZTBatchDocument() override;

    /// Empty by default. Written to the text of the job, but never read from it.
    QString GetDocumentName() const;

    /// The host's file name for the job, which the library only keeps. Empty by default.
    QString GetFileName() const;

    /// A value of the host, which the library only keeps. Empty by default.
    QString GetGroupFilter() const;

    /// The folders and files that go in. Owned by the document, like the two below.
    ZTBatchInputModel* GetInputModel() const;
    ZTBatchOutputSettings* GetOutputSettings() const;

    /// The effects, in the order in which they are applied.
    ZTStyle* GetStyle() const;

    /// 0 after construction and loading, 1 after a change, or what SetModificationState() was given.
    int ModificationState() const;

    /// The XML text of the job: a document of type "batch" without XML declaration, indented by four spaces a level, so
    /// that folders in folders make it grow with the square of their depth.
    ///
    /// Without a sink every node is written and the file system is not asked. With one, whatever object it is, a node
    /// whose path does not exist now is left out with all that is below it, and so is one whose path stands in the text
    /// already, level by level from the top. A QTextBrowser also receives what was left out, as translated warnings
    /// with the paths; its handlers may do anything, even delete the document, and then the text is empty.
    ///
    /// The text can be read back whatever the job holds. XML has no way to carry control characters other than tab and
    /// line breaks, halves of surrogate pairs, U+FFFE and U+FFFF: each is written as U+FFFD. Not written are the tool
    /// tips and the enabled states of nodes, the alpha of colours and the loaded background picture.
    QString Serialize(QObject* warningSink) const;

    /// Replaces the job by the one in `xml`. Returns false, with a debug line and nothing changed, when the text is not
    /// well-formed or not of the document type "batch".
    ///
    /// Refused like a text that is not well-formed is one that could take all stack or memory: elements more than
    /// 1,000 levels deep, declarations of entities, or of elements with more than 1,000 opening parentheses around.
    ///
    /// A text of the right type always loads: sections and attributes that are missing, or do not make sense, take
    /// defaults. Input and style are emptied in any case; output settings whose section is missing stay, except that
    /// transformation, crop and profile are reset. Name, file name and group filter stay. At the end the modification
    /// state is 0, and ModificationStateChanged(0) comes even when it was 0 before.
    bool Deserialize(const QString& xml);

    /// Emits DocumentNameChanged() on change. Not a modification.
    void SetDocumentName(const QString& name);

    /// No signal, not a modification.
    void SetFileName(const QString& fileName);

    /// No signal, not a modification.
    void SetGroupFilter(const QString& filter);

    /// Replaces the document's effects by those of `style`, which may be the document's own. No signal, not a
    /// modification.
    void SetStyle(const ZTStyle& style);

    /// Any value is accepted. Emits ModificationStateChanged() on change.
    void SetModificationState(int value);

Q_SIGNALS:
    void DocumentNameChanged(const QString& name);

    /// For hosts to emit when they have edited the style; the document never does.
    void StyleChanged();

    /// The modification state is `value` now. Comes on change, and at the end of each successful Deserialize().
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
